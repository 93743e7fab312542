#pragma once

#include "frontend/win32/WinApi.h"

namespace win32tests {

/// The menu that is open in a window of the system's.
HMENU MenuOf(HWND window);

/// Clicks the entry of that number; closes the menu where there is none.
void ChooseFromMenu(HWND window, int command);

}
