#include "frontend/qt/GroupBox.h"

#include <QPainter>
#include <QStyle>

namespace qt {

namespace {

constexpr int kTitleIndent = 8;
constexpr int kTitlePadding = 3;
constexpr qreal kCornerRadius = 2;

}

CGroupBox::CGroupBox(const QString& title, QWidget* parent) : QGroupBox(title, parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void CGroupBox::paintEvent(QPaintEvent*) {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, title());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    const QRectF frame = rect().adjusted(0, text.height() / 2, 0, 0);
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius, kCornerRadius);
    if (title().isEmpty()) {
        return;
    }
    const QRect gap(kTitleIndent, 0, text.width() + 2 * kTitlePadding, text.height());
    painter.fillRect(gap, palette().window());
    style()->drawItemText(&painter, gap, Qt::AlignCenter | Qt::TextShowMnemonic, palette(),
                          isEnabled(), title(), QPalette::WindowText);
}

}
