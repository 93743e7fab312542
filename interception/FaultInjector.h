#pragma once

#include "contract/Status.h"
#include "interception/Interceptor.h"

#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace interception {

/// Picks one call: the `number`-th of all (counted from 1), or of those of `operation`, where one
/// is named.
struct NthCall {
    std::size_t number = 1;
    std::string operation = {};
};

/// How a call fails: with a status, and a description for its caller where there is one.
struct Fault {
    contract::Status status = contract::kUnspecifiedFailure;
    std::string description = {};
};

/// Counts calls and spoils those that were picked beforehand. Each plan counts from the start or
/// the last Clear, and comes true at most once.
///
/// May be used from several threads at once. The picking functions throw std::invalid_argument for
/// an operation that is none and for number 0, which would wait for ever.
class CFaultInjector final : public IInterceptor {
public:
    /// The call fails without being made.
    void Fail(NthCall call, Fault fault = {});
    /// The call succeeds with null, without being made. One that delivers no object is made as
    /// usual, and counts as not fired.
    void DeliverNull(NthCall call);
    /// Runs `callback` on the caller's thread, within the call, before or after it is made; the
    /// callback may make calls of its own, which count. Before, it may pick later calls too. After
    /// means after a call that was made: none when a fault took its place.
    void RunBefore(NthCall call, std::function<void()> callback);
    void RunAfter(NthCall call, std::function<void()> callback);

    /// Calls so far, those that were spoilt included.
    std::size_t Calls() const;
    std::size_t Calls(std::string_view operation) const;
    /// How many plans have come true.
    std::size_t Fired() const;
    /// Forgets plans and counts.
    void Clear();

    contract::Status Call(const Operation& operation, FunctionRef<contract::Status()> run) override;

private:
    enum class Effect { Fail, Null, Before, After };
    struct Plan {
        NthCall call;
        Effect effect;
        Fault fault = {};
        std::function<void()> callback = {};
    };

    void Add(Plan plan);
    /// Counts the call and takes the plans that it makes come true.
    std::vector<Plan> Take(const Operation& operation);

    mutable std::mutex m_mutex;
    std::size_t m_calls = 0;
    std::size_t m_fired = 0;
    std::map<std::string, std::size_t, std::less<>> m_callsOf;
    std::vector<Plan> m_plans;
};

}
