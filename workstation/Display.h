#pragma once

namespace workstation {

/// Whether a window can be shown to a user: on a display that answers, or on a platform that the
/// user has chosen himself. Needs no QApplication, which could not be made without a display.
bool HasDisplay();

}
