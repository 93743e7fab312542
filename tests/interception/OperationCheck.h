#pragma once

#include "interception/Interception.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/EventTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace interception {

/// What came of one operation that was called through a wrapper.
struct Outcome {
    contract::Status status;
    std::vector<Exchange::Received> received;
    /// What should have been received: the method, and the arguments (sinks as their wrappers).
    Exchange::Received expected;
    /// The caller's results before and after, what the target had to deliver (an object as its
    /// wrapper), and nulls.
    std::string before;
    std::string after;
    std::string delivered;
    std::string null;
};

/// Calls an operation with sample arguments through the wrapper of a fresh target.
template <auto method>
class COperationCheck {
public:
    static Outcome Run(const CInterception& interception, contract::Status answer) {
        return RunAs(method, interception, answer);
    }

    /// What the operation delivers, by its signature.
    static Delivers FromSignature() { return DeliversOf(method); }

private:
    template <class Owner, class... Parameters>
    static Delivers DeliversOf(contract::Status (Owner::*)(Parameters...)) {
        if ((... || (kIsResult<Parameters> && kIsReference<std::remove_cvref_t<Parameters>>))) {
            return Delivers::Object;
        }
        return (... || kIsResult<Parameters>) ? Delivers::Value : Delivers::Nothing;
    }

    template <class Parameter>
    static auto Given(int seed) {
        using T = std::remove_cvref_t<Parameter>;
        if constexpr (kIsReference<T>) {
            return T(MakeTarget<typename T::element_type>());
        } else {
            return Sample<T>(seed);
        }
    }

    /// How `value` looks on the other side of the interception.
    template <class T>
    static T Across(const CInterception& interception, const T& value) {
        if constexpr (kIsReference<T>) {
            if constexpr (Wrappable<typename T::element_type>) {
                return interception.Wrap(value);
            }
        }
        return value;
    }

    template <bool isWanted, class T>
    static std::string TextIf(const T& value) {
        return isWanted ? Describe(value) : "";
    }

    template <class Owner, class... Parameters>
    static Outcome RunAs(contract::Status (Owner::*)(Parameters...),
                         const CInterception& interception, contract::Status answer) {
        return RunWith<Owner, Parameters...>(interception, answer,
                                             std::index_sequence_for<Parameters...>());
    }

    template <class Owner, class... Parameters, std::size_t... index>
    static Outcome RunWith(const CInterception& interception, contract::Status answer,
                           std::index_sequence<index...>) {
        using Values = std::tuple<std::remove_cvref_t<Parameters>...>;
        const auto target = MakeTarget<Owner>();
        Values given{Given<Parameters>(index)...};
        const Values offered{Given<Parameters>(kDeliveredSeed + index)...};
        target->exchange.status = answer;
        if constexpr (sizeof...(Parameters) > 0) {
            if constexpr (kIsReference<std::tuple_element_t<sizeof...(Parameters) - 1, Values>>) {
                target->exchange.object = std::get<sizeof...(Parameters) - 1>(offered);
            }
        }
        // Held, so that the wrappers seen during the call have the same address as these.
        const Values givenAcross{Across(interception, std::get<index>(given))...};
        const Values offeredAcross{Across(interception, std::get<index>(offered))...};
        const auto resultText = [](const Values& values) {
            return (std::string() + ... + TextIf<kIsResult<Parameters>>(std::get<index>(values)));
        };

        Outcome outcome;
        outcome.expected = {
            &kMethodTag<method>,
            (std::string() + ... + TextIf<!kIsResult<Parameters>>(std::get<index>(givenAcross)))};
        outcome.before = resultText(given);
        outcome.delivered = resultText(offeredAcross);
        outcome.null = resultText({});
        outcome.status =
            (interception.Wrap<Owner>(target).get()->*method)(std::get<index>(given)...);
        outcome.after = resultText(given);
        outcome.received = target->exchange.received;
        return outcome;
    }
};

/// An operation by the name it should pass under, for tests with parameters.
struct NamedOperation {
    std::string name;
    Outcome (*run)(const CInterception&, contract::Status answer);
    Delivers delivers;
};

/// Shown by the test framework where a test fails.
inline void PrintTo(const NamedOperation& operation, std::ostream* stream) {
    *stream << operation.name;
}

template <auto method>
NamedOperation Named(const char* name) {
    return {name, &COperationCheck<method>::Run, COperationCheck<method>::FromSignature()};
}

}
