#pragma once

#include "interception/Interceptor.h"

#include <QObject>

#include <deque>
#include <functional>
#include <mutex>

namespace workstation {

/// Holds back what must not happen inside a command or refresh of the panel, above all the states
/// of the connection, until the panel is idle; then does it, one after the other in the order in
/// which it came, from the event loop and on the user-interface thread.
///
/// As an interceptor of a connection it lets calls through as they are and holds back events, from
/// whatever thread.
class CConnectionGate : public QObject, public interception::IInterceptor {
public:
    using Action = std::function<void()>;

    /// `isPanelBusy` answers whether a command or refresh of the panel is running; asked from the
    /// event loop only.
    explicit CConnectionGate(std::function<bool()> isPanelBusy);

    /// Has `action` done as soon as the panel is idle; never before this returns. Any thread.
    void RunWhenIdle(Action action);

    /// Whether no action is being done or waits, and the panel is idle. To be asked from the event
    /// loop of the user-interface thread.
    bool IsIdle();

    /// While it lives, connection states pass to the panel at once: for the states that an action
    /// itself raises. What is raised while the panel handles one of them is held back again.
    /// User-interface thread only.
    class COpening {
    public:
        explicit COpening(CConnectionGate& gate) : m_gate(gate) { m_gate.m_isOpen = true; }
        ~COpening() { m_gate.m_isOpen = false; }
        COpening(const COpening&) = delete;
        COpening& operator=(const COpening&) = delete;

    private:
        CConnectionGate& m_gate;
    };

    contract::Status Call(const interception::Operation& operation,
                          interception::FunctionRef<contract::Status()> run) override;
    contract::Status Deliver(const interception::Operation& operation,
                             std::function<contract::Status()> deliver) override;

    bool event(QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    bool HasWaiting();
    Action TakeFirst();
    void RunWaiting();

    const std::function<bool()> m_isPanelBusy;
    std::mutex m_mutex;
    std::deque<Action> m_waiting;
    bool m_isOpen = false;
    bool m_isRunning = false;
    int m_timer = 0;
};

}
