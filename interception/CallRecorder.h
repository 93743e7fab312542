#pragma once

#include "interception/Interceptor.h"

#include <mutex>
#include <string_view>
#include <vector>

namespace interception {

/// Writes down what passes, in the order in which it starts, and lets everything happen.
/// May be used from several threads at once.
class CCallRecorder final : public IInterceptor {
public:
    contract::Status Call(const Operation& operation, FunctionRef<contract::Status()> run) override;
    contract::Status Deliver(const Operation& event,
                             std::function<contract::Status()> deliver) override;

    /// Names of the operations called, and of the events raised, since the last Clear.
    std::vector<std::string_view> Calls() const;
    std::vector<std::string_view> Events() const;
    void Clear();

private:
    void Write(std::vector<std::string_view>& list, std::string_view name);

    mutable std::mutex m_mutex;
    std::vector<std::string_view> m_calls;
    std::vector<std::string_view> m_events;
};

}
