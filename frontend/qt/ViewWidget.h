#pragma once

#include <QWidget>

#include <functional>

namespace qt {

/// The widget that a view's controls stand in.
class CViewWidget final : public QWidget {
public:
    explicit CViewWidget(QWidget& parent) : QWidget(&parent) {}

    /// Called when the toolkit has given the widget a size, the same one included.
    void SetResizeListener(std::function<void()> listener);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::function<void()> m_resizeListener;
};

}
