#pragma once

#include "contract/Guid.h"
#include "contract/Status.h"

#include <memory>

namespace contract {

class ISubsystem;

/// Identifies the programming-device subsystem.
inline constexpr Guid kProgrammingDeviceSubsystem{
    0x492DA5B7, 0xAE9B, 0x4AB6, {0x96, 0x2A, 0x56, 0x37, 0xD9, 0x56, 0x35, 0x37}};
/// Identifies the product information subsystem, which leads to phone polling.
inline constexpr Guid kProductInformationSubsystem{
    0x643BAC2B, 0x3BED, 0x4744, {0xB2, 0x25, 0x3C, 0xFA, 0x5D, 0x35, 0x58, 0x1A}};

/// The host's door to its subsystems. One call at a time, on the thread of the call (see
/// contract/device/ProgrammingDeviceControl.h).
class ISubsystemAccess {
public:
    virtual ~ISubsystemAccess() = default;

    /// Delivers the subsystem of that identifier, the same object at every call. Fails for an
    /// identifier that the host does not know; `subsystem` is then untouched.
    virtual Status GetSubsystem(const Guid& identifier, std::shared_ptr<ISubsystem>& subsystem) = 0;
};

}
