#pragma once

#include <QGroupBox>

namespace qt {

/// A titled frame around controls, with the title in its upper line: templates leave no room for a
/// title above the frame, where some styles put it. Lets the mouse through to what it frames.
class CGroupBox final : public QGroupBox {
public:
    CGroupBox(const QString& title, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}
