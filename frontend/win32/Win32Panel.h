#pragma once

#include "contract/panel/Panel.h"

#include <memory>

namespace win32 {

/// Makes the maintenance panel with a view of the system's controls: the native parent is an HWND
/// of the same thread, which is a single-threaded apartment.
///
/// The view is a child of that window, with WS_EX_CONTROLPARENT and the parent's only one of the
/// dialog class: the host's message loop hands it to IsDialogMessage, for Tab, arrow keys and
/// mnemonics; F1 needs nothing. Given the focus, it hands it on to one of its controls. A view that
/// is destroyed inside one of its own notifications ends its window with the next messages, so a
/// library stays loaded until they have been handled.
std::shared_ptr<contract::IPanel> CreateWin32Panel();

}
