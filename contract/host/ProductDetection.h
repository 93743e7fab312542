#pragma once

#include "contract/Guid.h"
#include "contract/Status.h"

#include <memory>

namespace contract {

/// Identifies IProductDetectionControl where identifiers cross a binary boundary.
inline constexpr Guid kProductDetectionControl{
    0x3BF39C3B, 0x8711, 0x4E61, {0xBD, 0x48, 0xEC, 0x6F, 0x12, 0x12, 0x7D, 0x17}};

/// Switch of the host's phone polling. One call at a time, on the thread of the call (see
/// contract/device/ProgrammingDeviceControl.h). The panel switches polling off for the length of a
/// long device operation and on again only if it was on.
class IProductDetectionControl {
public:
    virtual ~IProductDetectionControl() = default;

    /// Whether the host polls for connected phones. Untouched on failure.
    virtual Status GetPollingEnabled(bool& enabled) = 0;
    /// Switches polling; on failure it stays as it was.
    virtual Status SetPollingEnabled(bool enabled) = 0;
};

/// The host's detection of connected phones. Threads as for its switch.
class IProductDetection {
public:
    virtual ~IProductDetection() = default;

    /// Asks for the switch; kNoSuchInterface when polling cannot be switched.
    virtual Status
    QueryProductDetectionControl(std::shared_ptr<IProductDetectionControl>& control) = 0;
};

/// The host's product information subsystem. Threads as for the switch above.
class IProductInformation {
public:
    virtual ~IProductInformation() = default;

    /// Delivers the detection of phones, the same object at every call. Untouched on failure.
    virtual Status GetProductDetection(std::shared_ptr<IProductDetection>& detection) = 0;
};

}
