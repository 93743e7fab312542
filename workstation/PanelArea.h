#pragma once

#include <QScrollArea>

#include <functional>

namespace workstation {

/// The room for the panel in the window: it gets all of it, and scroll bars once the room is
/// smaller than the panel's natural size.
class CPanelArea : public QScrollArea {
public:
    explicit CPanelArea(QWidget* parent);

    /// The widget that the panel's view is made in.
    QWidget& Holder() { return *widget(); }

    /// Sets the smallest size of the panel, and what to do when the panel gets another one.
    void Fit(QSize naturalSize, std::function<void(QSize)> onResized);

    /// The natural size with the frame around it.
    QSize sizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(QSize)> m_onResized;
};

}
