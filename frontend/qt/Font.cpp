#include "frontend/qt/Font.h"

#include <QFontMetrics>
#include <QString>

namespace qt {

panel::FontMetrics MeasureFont(const QFont& font) {
    const QFontMetrics metrics(font);
    const QString alphabet = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return {metrics.horizontalAdvance(alphabet),
            metrics.ascent() + metrics.descent() + metrics.leading()};
}

}
