#include "workstation/InputDiscarder.h"

#include "frontend/qt/CommandEvent.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <iterator>

namespace workstation {

namespace {

constexpr QEvent::Type kInputs[] = {QEvent::MouseButtonPress,
                                    QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick,
                                    QEvent::MouseMove,
                                    QEvent::Wheel,
                                    QEvent::KeyPress,
                                    QEvent::KeyRelease,
                                    QEvent::ShortcutOverride,
                                    QEvent::Shortcut,
                                    QEvent::InputMethod,
                                    QEvent::ContextMenu,
                                    QEvent::TabletPress,
                                    QEvent::TabletMove,
                                    QEvent::TabletRelease,
                                    QEvent::TouchBegin,
                                    QEvent::TouchUpdate,
                                    QEvent::TouchEnd,
                                    QEvent::NativeGesture,
                                    QEvent::DragEnter,
                                    QEvent::DragMove,
                                    QEvent::Drop};

bool IsInput(QEvent::Type type) { return std::ranges::find(kInputs, type) != std::end(kInputs); }

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
