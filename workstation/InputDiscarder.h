#pragma once

#include <QObject>

class QWidget;

namespace workstation {

/// While it lives, what the user types and clicks is thrown away, and what an accessibility tool
/// presses: events handled during a device call keep the window painted, but must not start a
/// command inside the one that is running, nor after it. A box or menu that opens meanwhile gets
/// its input. User-interface thread only.
class CInputDiscarder : public QObject {
public:
    CInputDiscarder();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Only compared, never followed.
    const QWidget* const m_modal;
    const QWidget* const m_popup;
};

}
