#pragma once

#include "panel/control/View.h"

class QLabel;

namespace qt {

/// Shows an icon of the widget's style in it, no larger than it is. Returns 0, or an error number
/// when the style has no such icon; the widget then shows none.
int ShowStandardIcon(QLabel& label, panel::StandardIcon icon);

}
