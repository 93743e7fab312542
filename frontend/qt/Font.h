#pragma once

#include "panel/control/DialogTemplate.h"

class QFont;

namespace qt {

/// Measures `font` for the conversion of dialog units, in device-independent pixels.
panel::FontMetrics MeasureFont(const QFont& font);

}
