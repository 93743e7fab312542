#pragma once

#include "interception/OperationKey.h"
#include "interception/WrapperRegistry.h"

#include <memory>
#include <utility>

namespace interception {

/// Base of the forwarding class of one interface: it holds the wrapped object and sends each
/// operation through the interceptor. `method` is the operation as a member of the interface.
template <class Interface>
class CForwarder : public Interface, public CWrapper {
public:
    CForwarder(std::shared_ptr<CWrapperRegistry> registry, std::shared_ptr<Interface> target)
        : CWrapper(std::move(registry)), m_target(std::move(target)) {}
    ~CForwarder() override { Registry().Forget(m_target); }
    CForwarder(const CForwarder&) = delete;
    CForwarder& operator=(const CForwarder&) = delete;

protected:
    using Target = Interface;

    /// An operation that delivers nothing or values; values go straight into the caller's.
    template <auto method, class... Arguments>
    contract::Status Call(PlainOperation operation, Arguments&&... arguments) {
        return Registry().Interceptor().Call(
            *operation, [&] { return (m_target.get()->*method)(arguments...); });
    }

    /// An operation that delivers an object, as its last parameter. The caller gets its wrapper,
    /// unless the interceptor has no use for it.
    template <auto method, class Object, class... Arguments>
    contract::Status CallForObject(ObjectOperation operation, std::shared_ptr<Object>& result,
                                   const Arguments&... arguments) {
        std::shared_ptr<Object> delivered;
        auto& interceptor = Registry().Interceptor();
        const contract::Status status = interceptor.Call(
            *operation, [&] { return (m_target.get()->*method)(arguments..., delivered); });
        if (status.IsSuccess()) {
            result = interceptor.WrapsResultOf(*operation) ? Registry().Wrap(delivered) : delivered;
        }
        return status;
    }

    /// An event on its way to the sink that is the target.
    template <auto method, class... Arguments>
    contract::Status Deliver(EventOperation event, const Arguments&... arguments) {
        return Registry().Interceptor().Deliver(
            *event, [sink = m_target, ... copies = Arguments(arguments)] {
                return (sink.get()->*method)(copies...);
            });
    }

private:
    const std::shared_ptr<Interface> m_target;
};

}
