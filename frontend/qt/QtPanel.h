#pragma once

#include "contract/panel/Panel.h"

#include <memory>

namespace qt {

/// Makes the maintenance panel with a view of Qt widgets: the native parent is a QWidget*. Needs a
/// QApplication that outlives the panel.
std::shared_ptr<contract::IPanel> CreateQtPanel();

}
