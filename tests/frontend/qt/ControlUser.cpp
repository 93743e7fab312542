#include "tests/frontend/qt/ControlUser.h"

#include <QCoreApplication>
#include <QTest>
#include <QWindow>

namespace qttests {

QWidget* CControlUser::FindWidget(panel::ControlId id) const {
    const QString name = QStringLiteral("control-%1").arg(id);
    return m_view ? m_view->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly) : nullptr;
}

QWidget* CControlUser::FindUsable(panel::ControlId id) const {
    QWidget* const widget = FindWidget(id);
    return widget && widget->isVisible() && widget->isEnabled() ? widget : nullptr;
}

void CControlUser::Click(QWidget& widget, QPoint position, Qt::MouseButton button,
                         Qt::KeyboardModifiers modifiers) const {
    QWidget* const window = widget.window();
    QTest::mouseClick(window->windowHandle(), button, modifiers, widget.mapTo(window, position));
    QCoreApplication::processEvents();
}

void CControlUser::ClickCentre(QWidget& widget) const { Click(widget, widget.rect().center()); }

void CControlUser::PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(m_view->window()->windowHandle(), key, modifiers);
    QCoreApplication::processEvents();
}

}
