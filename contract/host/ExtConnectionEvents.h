#pragma once

#include "contract/Status.h"

#include <cstdint>

namespace contract {

/// Connection states that the panel acts on. Others exist and are ignored.
inline constexpr std::int32_t kConnectionDeviceGone = 5;
inline constexpr std::int32_t kConnectionDeviceReady = 7;

/// Events of the host's connection object, by number. Raised on the user-interface thread; a host
/// does not act on the results. A well-mannered host raises them only while no command or refresh
/// of the panel is running.
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
