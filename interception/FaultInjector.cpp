#include "interception/FaultInjector.h"

#include "contract/ErrorInfo.h"
#include "interception/Operations.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace interception {

void CFaultInjector::Fail(NthCall call, Fault fault) {
    Add({std::move(call), Effect::Fail, std::move(fault), {}});
}

void CFaultInjector::DeliverNull(NthCall call) { Add({std::move(call), Effect::Null, {}, {}}); }

void CFaultInjector::RunBefore(NthCall call, std::function<void()> callback) {
    Add({std::move(call), Effect::Before, {}, std::move(callback)});
}

void CFaultInjector::RunAfter(NthCall call, std::function<void()> callback) {
    Add({std::move(call), Effect::After, {}, std::move(callback)});
}

std::size_t CFaultInjector::Calls() const {
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

std::size_t CFaultInjector::Calls(std::string_view operation) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_callsOf.find(operation);
    return found == m_callsOf.end() ? 0 : found->second;
}

std::size_t CFaultInjector::Fired() const {
    const std::lock_guard lock(m_mutex);
    return m_fired;
}

void CFaultInjector::Clear() {
    const std::lock_guard lock(m_mutex);
    m_calls = 0;
    m_fired = 0;
    m_callsOf.clear();
    m_plans.clear();
}

contract::Status CFaultInjector::Call(const Operation& operation,
                                      FunctionRef<contract::Status()> run) {
    const std::vector<Plan> plans = Take(operation);
    const auto runAll = [&plans](Effect effect) {
        for (const Plan& plan : plans) {
            if (plan.effect == effect) {
                plan.callback();
            }
        }
    };
    runAll(Effect::Before);
    for (const Plan& plan : plans) {
        if (plan.effect == Effect::Null) {
            return contract::kSuccess;
        }
        if (plan.effect != Effect::Fail) {
            continue;
        }
        if (!plan.fault.description.empty()) {
            contract::SetErrorInfo(plan.fault.description);
        }
        return plan.fault.status;
    }
    const contract::Status status = run();
    runAll(Effect::After);
    return status;
}

void CFaultInjector::Add(Plan plan) {
    if (plan.call.number == 0) {
        throw std::invalid_argument("Calls are counted from 1.");
    }
    if (!plan.call.operation.empty() && !FindOperation(plan.call.operation)) {
        throw std::invalid_argument("No such operation: " + plan.call.operation);
    }
    const std::lock_guard lock(m_mutex);
    m_plans.push_back(std::move(plan));
}

std::vector<CFaultInjector::Plan> CFaultInjector::Take(const Operation& operation) {
    const std::lock_guard lock(m_mutex);
    const std::size_t numberOfAll = ++m_calls;
    const std::size_t numberOfItsOwn = ++m_callsOf[std::string(operation.name)];
    const auto later = std::stable_partition(m_plans.begin(), m_plans.end(), [&](const Plan& plan) {
        if (plan.effect == Effect::Null && operation.delivers != Delivers::Object) {
            return false;
        }
        return plan.call.operation.empty()
                   ? plan.call.number == numberOfAll
                   : plan.call.operation == operation.name && plan.call.number == numberOfItsOwn;
    });
    std::vector<Plan> taken(std::make_move_iterator(m_plans.begin()),
                            std::make_move_iterator(later));
    m_plans.erase(m_plans.begin(), later);
    m_fired += taken.size();
    return taken;
}

}
