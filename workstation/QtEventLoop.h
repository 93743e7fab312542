#pragma once

#include "workstation/EventLoop.h"

class QAbstractEventDispatcher;

namespace workstation {

/// The application's event loop. To be made on the user-interface thread, when there is an
/// application object, which must outlive it.
class CQtEventLoop : public IEventLoop {
public:
    CQtEventLoop();

    void HandleEvents() override;
    void WaitForEvents() override;
    void WakeUp() override;

private:
    QAbstractEventDispatcher& m_dispatcher;
};

}
