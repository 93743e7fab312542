#pragma once

#include "frontend/qt/HandlerLink.h"
#include "panel/control/DialogTemplate.h"

#include <memory>

class QWidget;

namespace qt {

/// Builds the widget of one control as a child of `view`, in its place and initial state. Its
/// object name is "control-" and the id.
QWidget* BuildControl(const panel::ControlTemplate& control, QWidget& view,
                      const std::shared_ptr<const CHandlerLink>& link);

/// The id that BuildControl gave the widget, or one of those around it; kNoControl for another.
panel::ControlId GetControlId(const QWidget* widget);

}
