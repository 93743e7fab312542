#include "panel/device/DeviceConnection.h"

#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"
#include "panel/control/Call.h"
#include "panel/device/ProgrammingDeviceControlEvents.h"

#include <utility>

namespace panel {

using contract::Status;

CDeviceConnection::~CDeviceConnection() {
    if (m_control) {
        m_events->Disconnect(m_control);
    }
}

Status CDeviceConnection::ConnectToProgrammingDeviceSubsystem(
    const std::shared_ptr<contract::ISubsystemAccess>& access,
    std::shared_ptr<CProgrammingDeviceControlEvents> events) {
    m_access = access;
    if (m_control) {
        return contract::kSuccess;
    }
    if (!m_subsystem) {
        const Status status = ObtainSubsystem();
        if (status.IsFailure()) {
            return status;
        }
    }
    return m_control ? contract::kSuccess : ObtainControl(std::move(events));
}

Status CDeviceConnection::ObtainSubsystem() {
    std::shared_ptr<contract::ISubsystem> subsystem;
    const Status status = Call(m_access, &contract::ISubsystemAccess::GetSubsystem,
                               contract::kProgrammingDeviceSubsystem, subsystem);
    if (status.IsFailure()) {
        return status;
    }
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> devices;
    const Status queried =
        Query(subsystem, &contract::ISubsystem::QueryProgrammingDeviceSubsystem, devices);
    if (queried.IsSuccess()) {
        m_subsystem = devices;
    }
    return queried;
}

Status CDeviceConnection::ObtainControl(std::shared_ptr<CProgrammingDeviceControlEvents> events) {
    std::shared_ptr<contract::IProgrammingDeviceControl> control;
    const Status status = Call(
        m_subsystem, &contract::IProgrammingDeviceSubsystem::get_ProgrammingDeviceControl, control);
    // A host that hands over its access anew from inside a call has had the panel connected: a
    // second subscription would have every event twice.
    if (status.IsFailure() || m_control) {
        return status;
    }
    m_control = control;
    m_events = std::move(events);
    return m_events->Connect(m_control);
}

}
