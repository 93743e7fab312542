#pragma once

#include "interception/Interceptor.h"

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace workstation {

/// Holds back what must not happen inside a command or refresh of the panel, above all the states
/// of the connection, until the panel is idle; then does it in the order in which it came.
///
/// As the interceptor of a connection it lets calls through as they are and holds back events, from
/// whatever thread. It belongs to the user-interface thread, on which everything held back is done.
class CConnectionGate : public QObject, public interception::IInterceptor {
public:
    using Action = std::function<void()>;

    /// `isPanelBusy` answers whether a command or refresh of the panel is running.
    explicit CConnectionGate(std::function<bool()> isPanelBusy);

    /// Does `action` at once when the panel is idle and nothing waits before it, else later.
    /// Connection states raised by the action itself reach the panel at once. User-interface thread
    /// only.
    void RunWhenIdle(Action action);
    /// Whether an action would be done at once.
    bool IsIdle();

    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override;
    contract::Status Deliver(const interception::Operation& operation,
                             std::function<contract::Status()> deliver) override;

    bool event(QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void Enqueue(Action action);
    bool IsEmpty();
    Action TakeFirst();
    void RunWaiting();

    const std::function<bool()> m_isPanelBusy;
    std::mutex m_mutex;
    std::deque<Action> m_waiting;
    bool m_isRunning = false;    ///< an action is being done
    bool m_isDelivering = false; ///< the panel is handling a state that the action raised
    int m_timer = 0;
};

}
