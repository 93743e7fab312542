#pragma once

#include "panel/control/DialogTemplate.h"

#include <QFont>

class QString;

namespace qt {

/// Measures `font` for the conversion of dialog units, in device-independent pixels.
panel::FontMetrics MeasureFont(const QFont& font);

/// `font`, condensed as far as `text` needs to fit `width` pixels and still be read; as it is when
/// that does not suffice. Template rectangles and column widths are fixed, fonts are not.
QFont FitFont(QFont font, const QString& text, int width);

}
