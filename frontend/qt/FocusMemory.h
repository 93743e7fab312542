#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace qt {

/// Gives the controls of a view the keyboard focus, a disabled one as soon as it is enabled.
///
/// The toolkit refuses the focus to a disabled widget and forgets the wish. The wish is dropped
/// when the user takes the keyboard elsewhere in the same window, the host's part of it included; a
/// focus that the toolkit gives of its own accord, as on activation, does not count. A child of the
/// view's widget, which owns it.
class CFocusMemory final : public QObject {
public:
    explicit CFocusMemory(QWidget& view);

    void Focus(QWidget& control);
    /// The widget of the view that has, or is next to get, the focus; null when none.
    QWidget* GetFocused() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Remember(QWidget* control);
    bool IsUserElsewhere(const QObject& watched, const QEvent& event) const;

    QWidget& m_view;
    QPointer<QWidget> m_next;
};

}
