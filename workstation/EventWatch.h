#pragma once

#include "contract/EventSource.h"

#include <functional>
#include <memory>

namespace workstation {

/// Subscribes `sink` to the events of `object` (a connection or a control) and returns what undoes
/// it; an empty function when the object has no such events.
template <class Events, class Object>
std::function<void()> Watch(Object& object, const std::shared_ptr<Events>& sink) {
    std::shared_ptr<contract::IBaseObject<Events>> base;
    std::shared_ptr<contract::IEventSource<Events>> source;
    std::uint32_t cookie = contract::kNotSubscribed;
    if (object.QueryBaseObject(base).IsFailure() || !base ||
        base->FindEventSource(source).IsFailure() || !source ||
        source->Subscribe(sink, cookie).IsFailure()) {
        return {};
    }
    return [source, cookie] { static_cast<void>(source->Unsubscribe(cookie)); };
}

}
