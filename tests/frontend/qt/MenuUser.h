#pragma once

#include "tests/frontend/conformance/FrontEndDriver.h"

#include <QMenu>

namespace qttests {

/// An open menu of the toolkit as the user sees it.
conformance::ShownMenu ReadMenu(const QMenu& menu);

/// Clicks the item with that command; kNoCommand presses Escape instead. The menu may be gone when
/// it returns.
void ChooseFromMenu(QMenu& menu, int command, Qt::MouseButton button = Qt::LeftButton);

}
