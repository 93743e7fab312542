#pragma once

#include "panel/control/DialogTemplate.h"

class QString;
class QWidget;

namespace qt {

/// Shows `text` in the widget of a control as it is, marking no mnemonic.
void ShowText(QWidget& widget, panel::ControlKind kind, const QString& text);

/// Condenses the font of a button, check box or read-only field whose text would not fit its size.
void FitText(QWidget& widget, panel::ControlKind kind, const QString& text);

}
