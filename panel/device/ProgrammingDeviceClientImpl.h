#pragma once

#include "contract/panel/SetSubsystemAccess.h"
#include "panel/control/OutputArea.h"
#include "panel/device/DeviceConnection.h"
#include "panel/device/ProgrammingDeviceControlEvents.h"

#include <memory>

namespace panel {

/// The connection to the programming-device subsystem as a host gives it, mixed into `Derived`,
/// which offers Self() and Output().
template <class Derived>
class CProgrammingDeviceClientImpl : public virtual contract::ISetSubsystemAccess {
public:
    contract::Status
    SetSubsystemAccess(const std::shared_ptr<contract::ISubsystemAccess>& access) final {
        const auto self = static_cast<Derived*>(this)->Self();
        const contract::Status status = m_device.ConnectToProgrammingDeviceSubsystem(
            access, std::make_shared<CProgrammingDeviceControlEvents>(self));
        if (status.IsFailure()) {
            self->Output().ReportError("Connecting to KxProgrammingDevice subsystem failed",
                                       "SetSubsystemAccess", status);
        }
        return status;
    }

protected:
    ~CProgrammingDeviceClientImpl() override = default;

    CDeviceConnection& Device() { return m_device; }

private:
    CDeviceConnection m_device;
};

}
