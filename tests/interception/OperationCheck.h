#pragma once

#include "interception/Interception.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/EventTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

#include <functional>
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

/// What the target does when it is called.
struct Answer {
    Answer(contract::Status answered, std::function<void()> done = {})
        : status(answered), whileCalled(std::move(done)) {}

    contract::Status status;
    std::function<void()> whileCalled;
};

/// Calls an operation with sample arguments through what a passage, such as CInterception, makes of
/// a fresh target with its Wrap.
template <auto method>
class COperationCheck {
public:
    template <class Passage>
    static Outcome Run(const Passage& passage, const Answer& answer) {
        return RunAs(method, passage, answer);
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

    /// How `value` looks on the other side of the passage.
    template <class Passage, class T>
    static T Across(const Passage& passage, const T& value) {
        if constexpr (requires { passage.Wrap(value); }) {
            return passage.Wrap(value);
        } else {
            return value;
        }
    }

    template <bool isWanted, class T>
    static std::string TextIf(const T& value) {
        return isWanted ? Describe(value) : "";
    }

    template <class Passage, class Owner, class... Parameters>
    static Outcome RunAs(contract::Status (Owner::*)(Parameters...), const Passage& passage,
                         const Answer& answer) {
        return RunWith<Owner, Parameters...>(passage, answer,
                                             std::index_sequence_for<Parameters...>());
    }

    template <class Owner, class... Parameters, class Passage, std::size_t... index>
    static Outcome RunWith(const Passage& passage, const Answer& answer,
                           std::index_sequence<index...>) {
        using Values = std::tuple<std::remove_cvref_t<Parameters>...>;
        const auto target = MakeTarget<Owner>();
        Values given{Given<Parameters>(index)...};
        const Values offered{Given<Parameters>(kDeliveredSeed + index)...};
        target->exchange.status = answer.status;
        target->exchange.whileCalled = answer.whileCalled;
        if constexpr (sizeof...(Parameters) > 0) {
            if constexpr (kIsReference<std::tuple_element_t<sizeof...(Parameters) - 1, Values>>) {
                target->exchange.object = std::get<sizeof...(Parameters) - 1>(offered);
            }
        }
        // Held, so that the wrappers seen during the call have the same address as these.
        const Values givenAcross{Across(passage, std::get<index>(given))...};
        const Values offeredAcross{Across(passage, std::get<index>(offered))...};
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
            (passage.template Wrap<Owner>(target).get()->*method)(std::get<index>(given)...);
        outcome.after = resultText(given);
        outcome.received = target->exchange.received;
        return outcome;
    }
};

/// An operation by the name it should pass under, for tests with parameters.
struct NamedOperation {
    std::string name;
    Outcome (*run)(const CInterception&, const Answer& answer);
    Delivers delivers;
};

/// Shown by the test framework where a test fails.
inline void PrintTo(const NamedOperation& operation, std::ostream* stream) {
    *stream << operation.name;
}

template <auto method>
NamedOperation Named(const char* name) {
    return {name, &COperationCheck<method>::template Run<CInterception>,
            COperationCheck<method>::FromSignature()};
}

}
