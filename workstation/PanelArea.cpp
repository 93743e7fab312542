#include "workstation/PanelArea.h"

#include <QEvent>

#include <utility>

namespace workstation {

CPanelArea::CPanelArea(QWidget* parent) : QScrollArea(parent) {
    setWidget(new QWidget);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The panel's own controls take the focus, not the room around them.
    setFocusPolicy(Qt::NoFocus);
    Holder().installEventFilter(this);
}

void CPanelArea::Fit(QSize naturalSize, std::function<void(QSize)> onResized) {
    Holder().setMinimumSize(naturalSize);
    m_onResized = std::move(onResized);
    m_onResized(Holder().size());
    updateGeometry();
}

QSize CPanelArea::sizeHint() const {
    return widget()->minimumSize() + QSize(2 * frameWidth(), 2 * frameWidth());
}

bool CPanelArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::Resize && m_onResized) {
        m_onResized(widget()->size());
    }
    return QScrollArea::eventFilter(watched, event);
}

}
