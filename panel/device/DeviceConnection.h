#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {
class IProgrammingDeviceControl;
class IProgrammingDeviceSubsystem;
class ISubsystemAccess;
}

namespace panel {

class CProgrammingDeviceControlEvents;

/// The panel's references to the programming-device subsystem and how it obtains them.
///
/// References that were obtained stay for the panel's life: a host changes devices behind the
/// control. User-interface thread only.
class CDeviceConnection {
public:
    CDeviceConnection() = default;
    /// Disconnects from the control's events, whenever a control is held.
    ~CDeviceConnection();
    CDeviceConnection(const CDeviceConnection&) = delete;
    CDeviceConnection& operator=(const CDeviceConnection&) = delete;

    /// Keeps `access`, then obtains what is not yet held: the subsystem, the control and, only
    /// together with the control, the subscription of `events`. Returns the status of the first
    /// step that failed; what was obtained before it stays.
    contract::Status
    ConnectToProgrammingDeviceSubsystem(const std::shared_ptr<contract::ISubsystemAccess>& access,
                                        std::shared_ptr<CProgrammingDeviceControlEvents> events);

    const std::shared_ptr<contract::ISubsystemAccess>& Access() const { return m_access; }
    const std::shared_ptr<contract::IProgrammingDeviceSubsystem>& Subsystem() const {
        return m_subsystem;
    }
    /// The programming-device service; null while not connected.
    const std::shared_ptr<contract::IProgrammingDeviceControl>& Control() const {
        return m_control;
    }

private:
    contract::Status ObtainSubsystem();
    contract::Status ObtainControl(std::shared_ptr<CProgrammingDeviceControlEvents> events);

    std::shared_ptr<contract::ISubsystemAccess> m_access;
    std::shared_ptr<contract::IProgrammingDeviceSubsystem> m_subsystem;
    std::shared_ptr<contract::IProgrammingDeviceControl> m_control;
    std::shared_ptr<CProgrammingDeviceControlEvents> m_events;
};

}
