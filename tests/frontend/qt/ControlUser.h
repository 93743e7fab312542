#pragma once

#include "panel/control/DialogTemplate.h"

#include <QPointer>
#include <QWidget>

class QTableView;

namespace qttests {

/// Mouse and keyboard of a test on one view's widgets. Events are sent to the window, not to the
/// control, so that they go where a real click or key would go.
class CControlUser {
public:
    /// The view's widget, "view-" and its template's id.
    explicit CControlUser(QWidget& view) : m_view(&view) {}

    QWidget* GetView() const { return m_view; }

    /// Null when there is no such control of that class.
    template <class Widget>
    Widget* Find(panel::ControlId id) const {
        return dynamic_cast<Widget*>(FindWidget(id));
    }
    QWidget* FindWidget(panel::ControlId id) const;
    /// The same where a user could work with it, else null.
    QWidget* FindUsable(panel::ControlId id) const;

    void Click(QWidget& widget, QPoint position, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {}) const;
    void ClickCentre(QWidget& widget) const;
    /// Sends a key to the view's window.
    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

private:
    QPointer<QWidget> m_view;
};

}
