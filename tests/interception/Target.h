#pragma once

#include "contract/Status.h"
#include "tests/interception/Samples.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace interception {

/// Names a method at run time: the address is its identity.
template <auto method>
inline constexpr char kMethodTag = 0;

/// A parameter through which an operation delivers.
template <class Parameter>
inline constexpr bool kIsResult =
    std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;

template <class T>
inline constexpr bool kIsReference = false;
template <class T>
inline constexpr bool kIsReference<std::shared_ptr<T>> = true;

/// What a target has seen, and what it is to answer.
struct Exchange {
    struct Received {
        const void* method;
        std::string arguments;
    };
    std::vector<Received> received;
    contract::Status status;
    /// Runs inside each call.
    std::function<void()> whileCalled;
    /// Delivered by an operation that delivers an object.
    std::shared_ptr<void> object;
};

/// Base of the targets: implementations of the contract's interfaces that note every call and
/// deliver samples.
template <class Interface>
class CRecordingTarget : public Interface {
public:
    Exchange exchange;

protected:
    using Target = Interface;

    template <auto method, class... Arguments>
    contract::Status Receive(Arguments&... arguments) {
        return ReceiveAs(method, &kMethodTag<method>, arguments...);
    }

private:
    template <class Owner, class... Parameters>
    contract::Status ReceiveAs(contract::Status (Owner::*)(Parameters...), const void* tag,
                               std::remove_reference_t<Parameters>&... arguments) {
        std::string seen;
        int seed = kDeliveredSeed;
        (Take<Parameters>(arguments, seen, seed++), ...);
        exchange.received.push_back({tag, seen});
        if (exchange.whileCalled) {
            exchange.whileCalled();
        }
        return exchange.status;
    }

    template <class Parameter, class Argument>
    void Take(Argument& argument, std::string& seen, int seed) {
        if constexpr (!kIsResult<Parameter>) {
            seen += Describe(argument);
        } else if (exchange.status.IsSuccess()) {
            Give(argument, seed);
        }
    }

    template <class Result>
    void Give(Result& result, int seed) {
        if constexpr (kIsReference<Result>) {
            result = std::static_pointer_cast<typename Result::element_type>(exchange.object);
        } else {
            result = Sample<Result>(seed);
        }
    }
};

/// The target of an interface; a specialisation for each.
template <class Interface>
class CTarget;

template <class Interface>
std::shared_ptr<CTarget<Interface>> MakeTarget() {
    return std::make_shared<CTarget<Interface>>();
}

}
