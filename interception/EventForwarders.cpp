#include "interception/Forwarders.h"

#include "interception/Forwarder.h"

#include <utility>

namespace interception {

using namespace contract;

namespace {

template <class Events>
struct SourceOperations;
template <>
struct SourceOperations<_IProgrammingDeviceControlEvents> {
    static constexpr ObjectOperation kFind = "ProgrammingDeviceControlEvents.FindEventSource";
    static constexpr PlainOperation kSubscribe = "ProgrammingDeviceControlEvents.Subscribe";
    static constexpr PlainOperation kUnsubscribe = "ProgrammingDeviceControlEvents.Unsubscribe";
};
template <>
struct SourceOperations<_IExtConnectionEvents> {
    static constexpr ObjectOperation kFind = "ExtConnectionEvents.FindEventSource";
    static constexpr PlainOperation kSubscribe = "ExtConnectionEvents.Subscribe";
    static constexpr PlainOperation kUnsubscribe = "ExtConnectionEvents.Unsubscribe";
};

template <class Events>
class CBaseObjectForwarder final : public CForwarder<IBaseObject<Events>> {
public:
    using Forwarder = CForwarder<IBaseObject<Events>>;
    using Forwarder::Forwarder;
    using Target = IBaseObject<Events>;

    Status FindEventSource(std::shared_ptr<IEventSource<Events>>& source) override {
        return this->template CallForObject<&Target::FindEventSource>(
            SourceOperations<Events>::kFind, source);
    }
};

template <class Events>
class CEventSourceForwarder final : public CForwarder<IEventSource<Events>> {
public:
    using Forwarder = CForwarder<IEventSource<Events>>;
    using Forwarder::Forwarder;
    using Target = IEventSource<Events>;

    Status Subscribe(const std::shared_ptr<Events>& sink, std::uint32_t& cookie) override {
        return this->template Call<&Target::Subscribe>(SourceOperations<Events>::kSubscribe,
                                                       this->Registry().Wrap(sink), cookie);
    }
    Status Unsubscribe(std::uint32_t cookie) override {
        return this->template Call<&Target::Unsubscribe>(SourceOperations<Events>::kUnsubscribe,
                                                         cookie);
    }
};

class CProgrammingDeviceControlEventsForwarder final
    : public CForwarder<_IProgrammingDeviceControlEvents> {
public:
    using CForwarder::CForwarder;

    Status ModeChanged(std::int32_t mode) override {
        return Deliver<&Target::ModeChanged>("ProgrammingDeviceControlEvents.ModeChanged", mode);
    }
    Status DeviceMessage(const std::string& text, std::uint32_t done,
                         std::uint32_t total) override {
        return Deliver<&Target::DeviceMessage>("ProgrammingDeviceControlEvents.DeviceMessage", text,
                                               done, total);
    }
    Status Event3(std::int32_t first, std::int32_t second) override {
        return Deliver<&Target::Event3>("ProgrammingDeviceControlEvents.Event3", first, second);
    }
};

class CExtConnectionEventsForwarder final : public CForwarder<_IExtConnectionEvents> {
public:
    using CForwarder::CForwarder;

    Status ConnectionStateChanged(Status status, std::int32_t state) override {
        return Deliver<&Target::ConnectionStateChanged>(
            "ExtConnectionEvents.ConnectionStateChanged", status, state);
    }
    Status Event2(std::int32_t first, std::int32_t second) override {
        return Deliver<&Target::Event2>("ExtConnectionEvents.Event2", first, second);
    }
};

}

Reference<IBaseObject<_IProgrammingDeviceControlEvents>>
MakeForwarder(RegistryReference registry,
              Reference<IBaseObject<_IProgrammingDeviceControlEvents>> target) {
    return std::make_shared<CBaseObjectForwarder<_IProgrammingDeviceControlEvents>>(
        std::move(registry), std::move(target));
}

Reference<IEventSource<_IProgrammingDeviceControlEvents>>
MakeForwarder(RegistryReference registry,
              Reference<IEventSource<_IProgrammingDeviceControlEvents>> target) {
    return std::make_shared<CEventSourceForwarder<_IProgrammingDeviceControlEvents>>(
        std::move(registry), std::move(target));
}

Reference<_IProgrammingDeviceControlEvents>
MakeForwarder(RegistryReference registry, Reference<_IProgrammingDeviceControlEvents> target) {
    return std::make_shared<CProgrammingDeviceControlEventsForwarder>(std::move(registry),
                                                                      std::move(target));
}

Reference<IBaseObject<_IExtConnectionEvents>>
MakeForwarder(RegistryReference registry, Reference<IBaseObject<_IExtConnectionEvents>> target) {
    return std::make_shared<CBaseObjectForwarder<_IExtConnectionEvents>>(std::move(registry),
                                                                         std::move(target));
}

Reference<IEventSource<_IExtConnectionEvents>>
MakeForwarder(RegistryReference registry, Reference<IEventSource<_IExtConnectionEvents>> target) {
    return std::make_shared<CEventSourceForwarder<_IExtConnectionEvents>>(std::move(registry),
                                                                          std::move(target));
}

Reference<_IExtConnectionEvents> MakeForwarder(RegistryReference registry,
                                               Reference<_IExtConnectionEvents> target) {
    return std::make_shared<CExtConnectionEventsForwarder>(std::move(registry), std::move(target));
}

}
