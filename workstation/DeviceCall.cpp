#include "workstation/DeviceCall.h"

#include "contract/ErrorInfo.h"

#include <utility>

namespace workstation {

void CDeviceCall::Begin(interception::FunctionRef<contract::Status()> run) {
    m_run = run;
    m_hasEnded = false;
    m_mustWake = false;
}

bool CDeviceCall::Wait(std::chrono::milliseconds limit) {
    std::unique_lock lock(m_mutex);
    const bool hasEnded = m_ended.wait_for(lock, limit, [this] { return m_hasEnded; });
    m_mustWake = !hasEnded;
    return hasEnded;
}

std::optional<CDeviceCall::Event> CDeviceCall::TakeEvent() {
    const std::lock_guard lock(m_mutex);
    if (m_events.empty()) {
        return std::nullopt;
    }
    Event event = std::move(m_events.front());
    m_events.pop_front();
    return event;
}

contract::Status CDeviceCall::Finish() {
    // Also an empty one: what a handler of the call's events left here is not this call's.
    if (m_status.IsFailure()) {
        contract::SetErrorInfo(m_description);
    }
    return m_status;
}

void CDeviceCall::Run() {
    // A call that succeeded may have left a description here; it must not be taken for the next's.
    contract::ClearErrorInfo();
    const contract::Status status = (*m_run)();
    std::unique_lock lock(m_mutex);
    m_status = status;
    if (status.IsFailure()) {
        m_description = contract::TakeErrorInfo();
    }
    m_hasEnded = true;
    const bool mustWake = m_mustWake;
    lock.unlock();
    // Without the lock, or the caller would wake only to wait for it.
    m_ended.notify_one();
    if (mustWake) {
        m_wake();
    }
}

void CDeviceCall::AddEvent(Event event) {
    std::unique_lock lock(m_mutex);
    m_events.push_back(std::move(event));
    const bool mustWake = m_mustWake;
    lock.unlock();
    if (mustWake) {
        m_wake();
    }
}

}
