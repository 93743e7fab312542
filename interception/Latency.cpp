#include "interception/Latency.h"

#include "interception/Operations.h"

#include <stdexcept>
#include <thread>
#include <utility>

namespace interception {

CLatency::CLatency(Sleep sleep) : m_sleep(std::move(sleep)) {}

void CLatency::SetDefault(Duration duration) {
    const std::lock_guard lock(m_mutex);
    m_default = duration;
}

void CLatency::Set(std::string_view operation, Duration duration) {
    if (!FindOperation(operation)) {
        throw std::invalid_argument("No such operation: " + std::string(operation));
    }
    const std::lock_guard lock(m_mutex);
    m_times.insert_or_assign(std::string(operation), duration);
}

contract::Status CLatency::Call(const Operation& operation, FunctionRef<contract::Status()> run) {
    if (const Duration duration = TimeOf(operation.name); duration > Duration::zero()) {
        m_sleep(duration);
    }
    return run();
}

void CLatency::WaitOnThisThread(Duration duration) { std::this_thread::sleep_for(duration); }

CLatency::Duration CLatency::TimeOf(std::string_view operation) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_times.find(operation);
    return found == m_times.end() ? m_default : found->second;
}

}
