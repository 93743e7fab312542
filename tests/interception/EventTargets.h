#pragma once

#include "contract/EventSource.h"
#include "tests/interception/Target.h"

namespace interception {

template <class Events>
class CTarget<contract::IBaseObject<Events>> final
    : public CRecordingTarget<contract::IBaseObject<Events>> {
public:
    contract::Status
    FindEventSource(std::shared_ptr<contract::IEventSource<Events>>& source) override {
        return this->template Receive<&contract::IBaseObject<Events>::FindEventSource>(source);
    }
};

template <class Events>
class CTarget<contract::IEventSource<Events>> final
    : public CRecordingTarget<contract::IEventSource<Events>> {
public:
    using Source = contract::IEventSource<Events>;

    contract::Status Subscribe(const std::shared_ptr<Events>& sink,
                               std::uint32_t& cookie) override {
        return this->template Receive<&Source::Subscribe>(sink, cookie);
    }
    contract::Status Unsubscribe(std::uint32_t cookie) override {
        return this->template Receive<&Source::Unsubscribe>(cookie);
    }
};

}
