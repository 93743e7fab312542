#pragma once

#include "component/win32/com/Arguments.h"
#include "component/win32/com/ComObject.h"
#include "component/win32/com/ServedCall.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace component {

template <class Interface>
class CExport;

/// Answers for the further interfaces of an export: those that the object of the contract is asked
/// for by operations of their own.
template <class Interface>
HRESULT QueryFurther(CExport<Interface>& object, REFIID identifier, void** result);

/// Base of an object of COM that stands for one of the contract. With an outer object it is a part
/// of that one: one of the interfaces that it answers for.
template <class Interface>
class CExport : public ComOf<Interface> {
public:
    using Com = ComOf<Interface>;

    CExport(std::shared_ptr<CBridge> bridge, std::shared_ptr<Interface> object, IUnknown* outer)
        : m_bridge(std::move(bridge)), m_object(std::move(object)), m_outer(outer) {}
    virtual ~CExport() {
        if (!m_outer) {
            m_bridge->ForgetExport(*m_object);
        }
    }
    CExport(const CExport&) = delete;
    CExport& operator=(const CExport&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        if (!result) {
            return E_POINTER;
        }
        if (m_outer && !IsAnsweredBy<Com>(identifier)) {
            return m_outer->QueryInterface(identifier, result);
        }
        if (SUCCEEDED(AnswerQuery(static_cast<Com*>(this), identifier, result))) {
            return S_OK;
        }
        return ServeCall(*m_bridge, *this, __uuidof(Com),
                         [&] { return QueryFurther(*this, identifier, result); });
    }

    /// Asks the object of the contract for another one and delivers it as a part of this one.
    template <class Other>
    HRESULT QueryPart(contract::Status (Interface::*query)(std::shared_ptr<Other>&),
                      void** result) {
        std::shared_ptr<Other> other;
        const HRESULT status =
            CallContract(__uuidof(Com), [&] { return (m_object.get()->*query)(other); });
        if (FAILED(status) || !other) {
            return FAILED(status) ? status : E_NOINTERFACE;
        }
        *result = MakeExport(m_bridge, other, this).Detach();
        return S_OK;
    }

    const std::shared_ptr<CBridge>& SharedBridge() const { return m_bridge; }
    const std::shared_ptr<Interface>& Object() const { return m_object; }

protected:
    using Contract = Interface;

    /// Serves a call by an operation whose parameters in the contract are `Parameters`.
    template <class... Parameters, class Method, class... Arguments>
    HRESULT Serve(Method method, Arguments... arguments) {
        // Here and not by the crossings alone: no call on another thread gets as far as those.
        (ClearResult(arguments), ...);
        return ServeCall(*m_bridge, *this, __uuidof(Com), [&] {
            return ServeWith(method,
                             typename Crossing<Parameters>::Incoming(*m_bridge, arguments)...);
        });
    }

    /// Serves a call that the type library answers.
    template <class Operation>
    HRESULT ServeByTypeLibrary(Operation operation) {
        return ServeCall(*m_bridge, *this, __uuidof(Com), operation);
    }

private:
    /// A text or an object is null until it is delivered.
    template <class Argument>
    static void ClearResult(Argument argument) {
        if constexpr (std::is_pointer_v<std::remove_pointer_t<Argument>>) {
            if (argument) {
                *argument = nullptr;
            }
        }
    }
    /// Whether an argument is valid; if not, with what the call fails.
    template <class Incoming>
    static bool IsTaken(const Incoming& argument, contract::Status& refusal) {
        if constexpr (requires { Incoming::kRefusal; }) {
            refusal = Incoming::kRefusal;
        } else {
            refusal = contract::kInvalidPointer;
        }
        return argument.IsValid();
    }
    template <class Method, class... Crossings>
    HRESULT ServeWith(Method method, Crossings&&... crossings) {
        const HRESULT status = CallContract(__uuidof(Com), [&] {
            contract::Status refusal;
            const bool areValid = (IsTaken(crossings, refusal) && ...);
            return areValid ? (m_object.get()->*method)(crossings.Get()...) : refusal;
        });
        if (SUCCEEDED(status)) {
            (crossings.Deliver(), ...);
        }
        return status;
    }

    const std::shared_ptr<CBridge> m_bridge;
    const std::shared_ptr<Interface> m_object;
    const ComPtr<IUnknown> m_outer;

    KRX8_COUNTED_REFERENCES(CExport)
};

}
