#include "workstation/InputDiscarder.h"

#include "frontend/qt/CommandEvent.h"

#include <QApplication>
#include <QEvent>

namespace workstation {

namespace {

bool IsInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

}

CInputDiscarder::CInputDiscarder()
    : m_modal(QApplication::activeModalWidget()), m_popup(QApplication::activePopupWidget()) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool CInputDiscarder::eventFilter(QObject*, QEvent* event) {
    if (QApplication::activeModalWidget() != m_modal ||
        QApplication::activePopupWidget() != m_popup) {
        return false;
    }
    if (event->type() == qt::kCommandEvent) {
        event->ignore();
    }
    return IsInput(event->type());
}

}
