#pragma once

namespace workstation {

/// Whether a window can be shown to a user: on a display that answers, or on a platform without
/// display server that QT_QPA_PLATFORM names. X11 or Wayland, found or named there, count only with
/// their display, "offscreen" and "minimal" never. Needs no QApplication, which could not be made
/// without a display.
bool HasDisplay();

}
