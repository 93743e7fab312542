#include "frontend/qt/FocusMemory.h"

#include <QCoreApplication>
#include <QFocusEvent>

namespace qt {

namespace {

bool IsByUser(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}

CFocusMemory::CFocusMemory(QWidget& view) : QObject(&view), m_view(view) {}

void CFocusMemory::Focus(QWidget& control) {
    if (control.isEnabled()) {
        Remember(nullptr);
        control.setFocus(Qt::OtherFocusReason);
    } else {
        Remember(&control);
    }
}

QWidget* CFocusMemory::GetFocused() const {
    if (m_next) {
        return m_next;
    }
    QWidget* const focused = m_view.window()->focusWidget();
    return focused && m_view.isAncestorOf(focused) ? focused : nullptr;
}

bool CFocusMemory::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_next && event->type() == QEvent::EnabledChange && m_next->isEnabled()) {
        Focus(*m_next);
    } else if (IsUserElsewhere(*watched, *event)) {
        Remember(nullptr);
    }
    return false;
}

void CFocusMemory::Remember(QWidget* control) {
    m_next = control;
    if (control) {
        QCoreApplication::instance()->installEventFilter(this);
    } else {
        QCoreApplication::instance()->removeEventFilter(this);
    }
}

bool CFocusMemory::IsUserElsewhere(const QObject& watched, const QEvent& event) const {
    if (!watched.isWidgetType()) {
        return false;
    }
    const auto& widget = static_cast<const QWidget&>(watched);
    if (widget.window() != m_view.window()) {
        return false;
    }
    if (event.type() == QEvent::KeyPress) {
        return &widget != m_view.window() && !m_view.isAncestorOf(&widget);
    }
    return event.type() == QEvent::FocusIn &&
           IsByUser(static_cast<const QFocusEvent&>(event).reason());
}

}
