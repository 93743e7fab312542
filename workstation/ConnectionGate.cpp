#include "workstation/ConnectionGate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QThread>

#include <utility>

namespace workstation {

namespace {
// The end of a panel command gives no sign that a host could see, so it is looked for.
constexpr int kLookAgainMs = 20;
}

CConnectionGate::CConnectionGate(std::function<bool()> isPanelBusy)
    : m_isPanelBusy(std::move(isPanelBusy)) {}

void CConnectionGate::RunWhenIdle(Action action) {
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(action));
    }
    // By way of the event loop, since the caller may be the panel's own command.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool CConnectionGate::IsIdle() { return !m_isRunning && !m_isPanelBusy() && !HasWaiting(); }

contract::Status CConnectionGate::Call(const interception::Operation&,
                                       interception::FunctionRef<contract::Status()> run) {
    return run();
}

contract::Status CConnectionGate::Deliver(const interception::Operation&,
                                          std::function<contract::Status()> deliver) {
    if (QThread::currentThread() == thread() && m_isOpen) {
        const QScopedValueRollback closedMeanwhile(m_isOpen, false);
        return deliver();
    }
    RunWhenIdle([deliver = std::move(deliver)] { static_cast<void>(deliver()); });
    return contract::kSuccess;
}

bool CConnectionGate::event(QEvent* event) {
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    RunWaiting();
    return true;
}

void CConnectionGate::timerEvent(QTimerEvent*) { RunWaiting(); }

bool CConnectionGate::HasWaiting() {
    const std::lock_guard lock(m_mutex);
    return !m_waiting.empty();
}

CConnectionGate::Action CConnectionGate::TakeFirst() {
    const std::lock_guard lock(m_mutex);
    Action action = std::move(m_waiting.front());
    m_waiting.pop_front();
    return action;
}

void CConnectionGate::RunWaiting() {
    while (!m_isRunning && HasWaiting() && !m_isPanelBusy()) {
        const QScopedValueRollback running(m_isRunning, true);
        TakeFirst()();
    }
    if (m_timer != 0) {
        killTimer(std::exchange(m_timer, 0));
    }
    if (HasWaiting()) {
        m_timer = startTimer(kLookAgainMs);
    }
}

}
