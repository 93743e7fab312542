#pragma once

#include "contract/Guid.h"
#include "contract/Status.h"

#include <cstdint>
#include <string>

namespace contract {

/// Identifies the event interface where identifiers cross a binary boundary.
inline constexpr Guid kProgrammingDeviceControlEvents{
    0xE6225EB8, 0x46C0, 0x4D3F, {0x80, 0xBE, 0x5D, 0xA0, 0x25, 0x5A, 0xFD, 0xC4}};

/// Events of the programming-device control, by number.
///
/// A device raises them from inside an operation, on the thread of the call (see
/// ProgrammingDeviceControl.h), or between operations on the user-interface thread; on no other.
/// The panel's handlers run on the user-interface thread: a host that carries calls out elsewhere
/// brings the events there, in their order and before the call returns. A handler may run while a
/// device operation is still in progress (the answer to RequestMode comes so) and may call the
/// device again. Handlers return success; a device does not act on their result.
class _IProgrammingDeviceControlEvents {
public:
    virtual ~_IProgrammingDeviceControlEvents() = default;

    /// 1: the device has entered, or reports, a mode: 1 Normal, 2 Service, 3 Maintenance. Other
    /// values are accepted.
    virtual Status ModeChanged(std::int32_t mode) = 0;

    /// 2: progress. `text` is UTF-8 (empty: absent); `done` of `total` in a unit of the operation's
    /// choice (uploads count bytes); `total` 0 means a plain notice without a percentage. The panel
    /// shows one line of at most 259 bytes, or 260 with its percentage. It passes over a notice
    /// with the text of the last line and, of lines with a percentage, over one that repeats text
    /// and whole percentage.
    virtual Status DeviceMessage(const std::string& text, std::uint32_t done,
                                 std::uint32_t total) = 0;

    /// 3: two numbers that the panel accepts and ignores.
    virtual Status Event3(std::int32_t first, std::int32_t second) = 0;
};

}
