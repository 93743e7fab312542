#pragma once

#include "panel/control/DialogTemplate.h"

class QWidget;

namespace qt {

/// Brings the widgets that BuildControl made of a template, in its order, into relation: group
/// boxes below all others, of two that overlap the earlier one on top, labels as the buddies of
/// what follows them, lists and logs named for accessibility after the group that they stand in.
void RelateControls(const panel::DialogTemplate& dialogTemplate, QWidget& view);

}
