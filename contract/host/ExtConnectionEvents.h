#pragma once

#include "contract/Guid.h"
#include "contract/Status.h"

#include <cstdint>

namespace contract {

/// Identifies the event interface where identifiers cross a binary boundary.
inline constexpr Guid kExtConnectionEvents{
    0x2D18C0CC, 0x9421, 0x443F, {0x9D, 0x5A, 0x64, 0x80, 0xF8, 0x7F, 0xC2, 0x8F}};

/// Connection states that the panel acts on. Others exist and are ignored.
///
/// Gone: the panel disables its device controls and forgets the mode; it makes no device call.
inline constexpr std::int32_t kConnectionDeviceGone = 5;
/// Ready: the panel clears its log, reads the device's type and refreshes everything, with message
/// boxes where something fails, before the event returns.
inline constexpr std::int32_t kConnectionDeviceReady = 7;

/// Events of the host's connection object, by number. The panel's handlers run on the
/// user-interface thread: a host that learns of a change on another one brings the event there. A
/// host does not act on the results. A well-mannered one raises events only while no command or
/// refresh of the panel is running.
class _IExtConnectionEvents {
public:
    virtual ~_IExtConnectionEvents() = default;

    /// 1: the connection has changed. A negative `status` means that the change failed; the panel
    /// then does nothing.
    virtual Status ConnectionStateChanged(Status status, std::int32_t state) = 0;

    /// 2: two arguments that the panel ignores.
    virtual Status Event2(std::int32_t first, std::int32_t second) = 0;
};

}
