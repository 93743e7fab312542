#pragma once

#include "contract/Status.h"

#include <memory>

namespace contract {

class IKrx10Control;
class IProgrammingDeviceControl;

/// The programming-device subsystem ("KxProgrammingDevice"): the way to the device's control
/// objects. One call at a time, on the thread of the call (see ProgrammingDeviceControl.h); results
/// are untouched on failure.
class IProgrammingDeviceSubsystem {
public:
    virtual ~IProgrammingDeviceSubsystem() = default;

    /// The control of the device, the same object at every call. The panel keeps the first one it
    /// gets for its whole life, so a host that changes devices changes them behind it.
    virtual Status
    get_ProgrammingDeviceControl(std::shared_ptr<IProgrammingDeviceControl>& control) = 0;

    /// The additional control of a networked device; fails for the others.
    virtual Status GetKrx10Control(std::shared_ptr<IKrx10Control>& control) = 0;
};

}
