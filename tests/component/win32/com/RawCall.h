#pragma once

#include "component/win32/com/Arguments.h"
#include "tests/interception/Target.h"

#include <memory>
#include <optional>
#include <tuple>
#include <type_traits>

namespace component {

/// What a client in COM passes for a parameter of the contract that delivers nothing.
template <class Parameter>
class CRawArgument {
public:
    using Com = typename Crossing<Parameter>::Com;

    Com Get() const { return Com{}; }
    bool IsAsFailureLeavesIt() const { return true; }
};
template <>
class CRawArgument<const contract::Guid&> {
public:
    BSTR Get() const { return m_text.Get(); }
    bool IsAsFailureLeavesIt() const { return true; }

private:
    const CBstr m_text{"{00000000-0000-0000-0000-000000000000}"};
};

/// What a client passes for results: a place with something in it, or null.
template <class Parameter>
class CRawResult {
public:
    using Com = typename Crossing<Parameter>::Com;
    using Value = std::remove_pointer_t<Com>;

    Com Get() { return &m_value; }
    /// Numbers are untouched; texts and objects are null.
    bool IsAsFailureLeavesIt() const {
        if constexpr (std::is_pointer_v<Value>) {
            return m_value == nullptr;
        } else {
            return m_value == 0x5A5A;
        }
    }

private:
    static Value Before() {
        if constexpr (std::is_pointer_v<Value>) {
            // Of no object: a callee that asked it anything would crash.
            return reinterpret_cast<Value>(static_cast<std::uintptr_t>(8));
        } else {
            return 0x5A5A;
        }
    }

    Value m_value = Before();
};

template <class Parameter>
inline constexpr bool kIsComResult =
    std::is_pointer_v<typename Crossing<Parameter>::Com> &&
    !std::is_same_v<typename Crossing<Parameter>::Com, BSTR> &&
    (interception::kIsResult<Parameter> || std::is_same_v<Parameter, LongFlag>);

template <class Parameter>
using RawArgument =
    std::conditional_t<kIsComResult<Parameter>, CRawResult<Parameter>, CRawArgument<Parameter>>;

struct RawOutcome {
    HRESULT result = S_OK;
    bool isAsFailureLeavesIt = false;
};

/// How a call of an operation by a client in COM looks that passes places for the results, and that
/// passes null for them.
template <class... Parameters>
class CRawCall {
public:
    static constexpr bool kHasResults = (false || ... || kIsComResult<Parameters>);

    template <class Object, class Method>
    static RawOutcome Make(Object* object, Method method) {
        std::tuple<RawArgument<Parameters>...> arguments;
        return std::apply(
            [&](auto&... each) {
                const HRESULT result = (object->*method)(each.Get()...);
                return RawOutcome{result, (true && ... && each.IsAsFailureLeavesIt())};
            },
            arguments);
    }

    template <class Object, class Method>
    static HRESULT MakeWithNulls(Object* object, Method method) {
        return (object->*method)(CRawArgument<Parameters>().Get()...);
    }
};

}
