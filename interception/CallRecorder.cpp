#include "interception/CallRecorder.h"

namespace interception {

contract::Status CCallRecorder::Call(const Operation& operation,
                                     FunctionRef<contract::Status()> run) {
    Write(m_calls, operation.name);
    return run();
}

contract::Status CCallRecorder::Deliver(const Operation& event,
                                        std::function<contract::Status()> deliver) {
    Write(m_events, event.name);
    return deliver();
}

std::vector<std::string_view> CCallRecorder::Calls() const {
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

std::vector<std::string_view> CCallRecorder::Events() const {
    const std::lock_guard lock(m_mutex);
    return m_events;
}

void CCallRecorder::Clear() {
    const std::lock_guard lock(m_mutex);
    m_calls.clear();
    m_events.clear();
}

void CCallRecorder::Write(std::vector<std::string_view>& list, std::string_view name) {
    const std::lock_guard lock(m_mutex);
    list.push_back(name);
}

}
