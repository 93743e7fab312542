#include "workstation/QtEventLoop.h"

#include "workstation/InputDiscarder.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

namespace workstation {

CQtEventLoop::CQtEventLoop() : m_dispatcher(*QAbstractEventDispatcher::instance()) {}

void CQtEventLoop::HandleEvents() {
    const CInputDiscarder discarder;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void CQtEventLoop::WaitForEvents() {
    const CInputDiscarder discarder;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void CQtEventLoop::WakeUp() { m_dispatcher.wakeUp(); }

}
