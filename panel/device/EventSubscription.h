#pragma once

#include "contract/EventSource.h"
#include "panel/control/Call.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace panel {

/// One subscription to the events of an object: base object, event source, cookie.
template <class Events>
class CEventSubscription {
public:
    /// Subscribes `sink` and keeps the cookie. kInvalidPointer for a null object; the status of the
    /// first step that fails otherwise, with the cookie as it was.
    template <class Object>
    contract::Status Connect(const std::shared_ptr<Object>& object,
                             const std::shared_ptr<Events>& sink) {
        std::shared_ptr<contract::IEventSource<Events>> source;
        contract::Status status = FindSource(object, source);
        if (status.IsFailure()) {
            return status;
        }
        std::uint32_t cookie = contract::kNotSubscribed;
        status = Call(source, &contract::IEventSource<Events>::Subscribe, sink, cookie);
        if (status.IsSuccess()) {
            m_cookie = cookie;
        }
        return status;
    }

    /// Cancels the subscription. The cookie is forgotten also when that fails: there is nobody left
    /// to try again.
    template <class Object>
    contract::Status Disconnect(const std::shared_ptr<Object>& object) {
        std::shared_ptr<contract::IEventSource<Events>> source;
        const std::uint32_t cookie = std::exchange(m_cookie, contract::kNotSubscribed);
        const contract::Status status = FindSource(object, source);
        return status.IsFailure()
                   ? status
                   : Call(source, &contract::IEventSource<Events>::Unsubscribe, cookie);
    }

    std::uint32_t Cookie() const { return m_cookie; }

private:
    template <class Object>
    static contract::Status FindSource(const std::shared_ptr<Object>& object,
                                       std::shared_ptr<contract::IEventSource<Events>>& source) {
        std::shared_ptr<contract::IBaseObject<Events>> base;
        const contract::Status status = Query(object, &Object::QueryBaseObject, base);
        return status.IsFailure()
                   ? status
                   : Obtain(base, &contract::IBaseObject<Events>::FindEventSource, source);
    }

    std::uint32_t m_cookie = contract::kNotSubscribed;
};

}
