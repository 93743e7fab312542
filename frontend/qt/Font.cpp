#include "frontend/qt/Font.h"

#include <QFontMetrics>
#include <QString>

namespace qt {

namespace {

constexpr int kFullStretch = 100;
constexpr int kLeastStretch = 75;
constexpr int kStretchStep = 5;

}

panel::FontMetrics MeasureFont(const QFont& font) {
    const QFontMetrics metrics(font);
    const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return {metrics.horizontalAdvance(alphabet),
            metrics.ascent() + metrics.descent() + metrics.leading()};
}

QFont FitFont(QFont font, const QString& text, int width) {
    const QFont original = font;
    for (int stretch = kFullStretch; stretch >= kLeastStretch; stretch -= kStretchStep) {
        if (QFontMetrics(font).horizontalAdvance(text) <= width) {
            return font;
        }
        font.setStretch(stretch - kStretchStep);
    }
    return original;
}

}
