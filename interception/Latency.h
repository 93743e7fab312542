#pragma once

#include "interception/Interceptor.h"

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

namespace interception {

/// Makes operations take time: waits before each, on the thread that makes it. Events pass at once.
/// May be used, and changed, from several threads at once.
class CLatency final : public IInterceptor {
public:
    using Duration = std::chrono::microseconds;
    using Sleep = std::function<void(Duration)>;

    /// `sleep` waits for the time it is given. It is not called for times of 0 or less.
    explicit CLatency(Sleep sleep = WaitOnThisThread);

    /// Time of every operation that has none of its own; 0 at first.
    void SetDefault(Duration duration);
    /// Time of one operation. Throws std::invalid_argument for an operation that is none.
    void Set(std::string_view operation, Duration duration);

    contract::Status Call(const Operation& operation, FunctionRef<contract::Status()> run) override;

    static void WaitOnThisThread(Duration duration);

private:
    Duration TimeOf(std::string_view operation) const;

    const Sleep m_sleep;
    mutable std::mutex m_mutex;
    Duration m_default{0};
    std::map<std::string, Duration, std::less<>> m_times;
};

}
