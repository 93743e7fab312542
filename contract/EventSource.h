#pragma once

#include "contract/Status.h"

#include <cstdint>
#include <memory>

namespace contract {

/// A source of the events of one event interface. One call at a time, on the thread of the call
/// (see contract/device/ProgrammingDeviceControl.h); each event interface says where its events are
/// raised. The panel subscribes and unsubscribes also from inside an event of the same source (a
/// host may release it there), so a source goes through its sinks in a way that stands that.
template <class Events>
class IEventSource {
public:
    virtual ~IEventSource() = default;

    /// Adds `sink`, which must not be null (kInvalidPointer), and delivers the 32-bit cookie that
    /// names the subscription, which is never kNotSubscribed. The source holds the sink until it is
    /// unsubscribed. On failure nothing is held and `cookie` is untouched.
    virtual Status Subscribe(const std::shared_ptr<Events>& sink, std::uint32_t& cookie) = 0;

    /// Ends the subscription and releases its sink; no event reaches it any more. Fails for a
    /// cookie that names none, such as kNotSubscribed, which the panel passes when subscribing had
    /// failed.
    virtual Status Unsubscribe(std::uint32_t cookie) = 0;
};

/// What an object that raises events answers when asked for its base: the place to look an event
/// source up. A step of its own, since an object may have a base and yet offer no such source.
/// Threads as for the source.
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
