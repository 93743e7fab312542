#pragma once

#include "frontend/headless/TextPicture.h"

class QWidget;

namespace workstation {

/// Reads what the panel shows from the widgets under `holder`, knowing only their types and
/// relations, since the panel may come from elsewhere: fields are line edits with the label whose
/// buddy they are, the list is a table view, the log a plain text edit, and a part's title is that
/// of the group box around it.
headless::TextPicture ReadPanelPicture(QWidget& holder);

}
