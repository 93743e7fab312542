#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

class ISubsystemAccess;

/// How a host hands the panel the door to its subsystems.
class ISetSubsystemAccess {
public:
    virtual ~ISetSubsystemAccess() = default;

    /// Keeps `access` and connects to the programming-device subsystem: obtains subsystem and
    /// control and subscribes to the control's events. Returns the status of the first step that
    /// failed, which is also shown to the user; what was obtained before it stays. A later call
    /// skips the steps whose objects are held, so it only replaces the access object once the panel
    /// has a control.
    virtual Status SetSubsystemAccess(const std::shared_ptr<ISubsystemAccess>& access) = 0;
};

}
