#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

/// A source of the events of one event interface.
///
/// User-interface thread only.
template <class Events>
class IEventSource {
public:
    virtual ~IEventSource() = default;

    /// Adds `sink` and delivers the 32-bit cookie that names the subscription. The source holds the
    /// sink until it is unsubscribed. On failure nothing is held and `cookie` is untouched.
    virtual Status Subscribe(const std::shared_ptr<Events>& sink, std::uint32_t& cookie) = 0;

    /// Ends the subscription and releases its sink. Fails for a cookie that names none.
    virtual Status Unsubscribe(std::uint32_t cookie) = 0;
};

/// What an object that raises events answers when asked for its base: the place to look an event
/// source up. A step of its own, since an object may have a base and yet offer no such source.
template <class Events>
class IBaseObject {
public:
    virtual ~IBaseObject() = default;

    /// Delivers the source of the events `Events`. On failure `source` is untouched.
    virtual Status FindEventSource(std::shared_ptr<IEventSource<Events>>& source) = 0;
};

/// The cookie of a subscription that does not exist.
inline constexpr std::uint32_t kNotSubscribed = 0xFEFEFEFE;

}
