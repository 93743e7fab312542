#pragma once

#include "component/win32/com/Arguments.h"
#include "component/win32/com/ComCall.h"

#include <memory>
#include <utility>

namespace component {

/// Brings over the object of COM that `request` delivers. Untouched on failure.
template <class Interface, class Request>
contract::Status ImportResult(CBridge& bridge, std::shared_ptr<Interface>& result,
                              Request request) {
    ComPtr<ComOf<Interface>> object;
    const contract::Status status =
        CallCom([&] { return request(reinterpret_cast<void**>(object.GetAddressOf())); });
    if (status.IsSuccess()) {
        result = bridge.Import<Interface>(object.Get());
    }
    return status;
}

/// Asks for an object by its class.
template <class Interface>
contract::Status ImportByClass(CBridge& bridge, REFCLSID identifier,
                               std::shared_ptr<Interface>& result) {
    return ImportResult(bridge, result, [&](void** object) {
        return CoCreateInstance(identifier, nullptr, CLSCTX_ALL, __uuidof(ComOf<Interface>),
                                object);
    });
}

/// Base of an object of the contract that stands for one of COM.
template <class Interface>
class CImport : public Interface {
public:
    CImport(std::shared_ptr<CBridge> bridge, ComPtr<ComOf<Interface>> target)
        : m_bridge(std::move(bridge)), m_target(std::move(target)) {}
    ~CImport() override { m_bridge->template ForgetImport<Interface>(m_target.Get()); }
    CImport(const CImport&) = delete;
    CImport& operator=(const CImport&) = delete;

protected:
    using Com = ComOf<Interface>;

    /// Calls an operation whose parameters in the contract are `Parameters`.
    template <class... Parameters, class Method, class... Arguments>
    contract::Status Call(Method method, Arguments&&... arguments) {
        return CallWith(method, typename Crossing<Parameters>::Outgoing(*m_bridge, arguments)...);
    }

    /// Asks for another interface.
    template <class Other>
    contract::Status Query(std::shared_ptr<Other>& result) {
        return ImportResult(*m_bridge, result, [&](void** object) {
            return m_target->QueryInterface(__uuidof(ComOf<Other>), object);
        });
    }

    const std::shared_ptr<CBridge>& SharedBridge() const { return m_bridge; }
    Com* Target() const { return m_target.Get(); }

private:
    template <class Method, class... Crossings>
    contract::Status CallWith(Method method, Crossings&&... crossings) {
        const contract::Status status =
            CallCom([&] { return (m_target.Get()->*method)(crossings.Get()...); });
        if (status.IsSuccess()) {
            (crossings.Deliver(), ...);
        }
        return status;
    }

    const std::shared_ptr<CBridge> m_bridge;
    const ComPtr<Com> m_target;
};

}
