#pragma once

#include "interception/Forwarders.h"
#include "interception/Interceptor.h"
#include "interception/WrapperRegistry.h"

#include <concepts>
#include <cstddef>
#include <memory>
#include <utility>

namespace interception {

/// An interface of the contract that can be wrapped: each of contract/device and contract/host.
template <class Interface>
concept Wrappable = requires(RegistryReference registry, Reference<Interface> object) {
    { MakeForwarder(registry, object) } -> std::same_as<Reference<Interface>>;
};

/// Puts one interceptor before all objects that are reached from the ones it wraps.
///
/// The caller wraps what it hands to the panel (subsystem access, connection, context) or any other
/// object; everything these deliver is wrapped on its way, and so are the sinks that are handed to
/// event sources, in the other direction. Context members pass as they are.
///
/// A wrapper holds its object and what it needs of the interception, so it outlives this object. An
/// object has one wrapper for each of its interfaces, made once and found again while it lives, so
/// that comparing wrappers compares objects. Safe on any thread; the interceptor runs without a
/// lock being held.
class CInterception {
public:
    /// `interceptor` is shared, not null, and held until the last wrapper has gone.
    explicit CInterception(std::shared_ptr<IInterceptor> interceptor)
        : m_registry(std::make_shared<CWrapperRegistry>(std::move(interceptor))) {}

    /// The wrapper of `object`. Null and wrappers made by this interception come back unchanged.
    /// The interface is named where the object is held by a derived class:
    /// `Wrap<contract::IConnection>(myConnection)`.
    template <Wrappable Interface>
    std::shared_ptr<Interface> Wrap(const std::shared_ptr<Interface>& object) const {
        return m_registry->Wrap(object);
    }

    /// Number of wrappers that someone still holds, sinks included: 0 once every object that went
    /// through here has been released.
    std::size_t LiveWrappers() const { return m_registry->LiveWrappers(); }

private:
    std::shared_ptr<CWrapperRegistry> m_registry;
};

}
