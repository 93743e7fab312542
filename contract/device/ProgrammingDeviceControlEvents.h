#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace contract {

/// Events of the programming-device control, by number.
///
/// Raised on the user-interface thread only. A handler may run while a device operation is still in
/// progress (the answer to RequestMode comes so) and may call the device again. Handlers return
/// success; a device does not act on their result.
class _IProgrammingDeviceControlEvents {
public:
    virtual ~_IProgrammingDeviceControlEvents() = default;

    /// 1: the device has entered, or reports, a mode: 1 Normal, 2 Service, 3 Maintenance. Other
    /// values are accepted.
    virtual Status ModeChanged(std::int32_t mode) = 0;

    /// 2: progress. `text` is UTF-8 (empty: absent); `done` of `total` in a unit of the operation's
    /// choice (uploads count bytes); `total` 0 means a plain notice without a percentage.
    virtual Status DeviceMessage(const std::string& text, std::uint32_t done,
                                 std::uint32_t total) = 0;

    /// 3: two numbers that the panel accepts and ignores.
    virtual Status Event3(std::int32_t first, std::int32_t second) = 0;
};

}
