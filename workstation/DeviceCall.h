#pragma once

#include "contract/Status.h"
#include "interception/FunctionRef.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

namespace workstation {

/// One blocking device call on its way from the user-interface thread to the worker and back, with
/// the events that the device raises meanwhile. Made once and used again for call after call.
///
/// The caller's side is used on the user-interface thread, the worker's side on the worker.
class CDeviceCall {
public:
    using Event = std::function<contract::Status()>;

    /// `wake` ends the caller's event loop for a moment; called on the worker's thread, and only
    /// between a Wait that ran out and the call's end.
    explicit CDeviceCall(std::function<void()> wake) : m_wake(std::move(wake)) {}

    // Caller's side

    /// Prepares the next call. `run` is borrowed until Wait has answered true.
    void Begin(interception::FunctionRef<contract::Status()> run);
    /// Waits for the end of the call, at most that long. Once it has answered false the worker
    /// wakes the caller for each event and at the end.
    bool Wait(std::chrono::milliseconds limit);
    /// The oldest event that has not been taken; none when all have been.
    std::optional<Event> TakeEvent();
    /// Leaves the description of a call that failed on this thread and returns the call's status.
    contract::Status Finish();

    // Worker's side

    /// Makes the call and takes its description.
    void Run();
    void AddEvent(Event event);

private:
    const std::function<void()> m_wake;
    std::optional<interception::FunctionRef<contract::Status()>> m_run;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::deque<Event> m_events;
    contract::Status m_status;
    std::string m_description;
    bool m_hasEnded = true;
    bool m_mustWake = false;
};

}
