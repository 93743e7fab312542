#pragma once

#include "frontend/win32/WinApi.h"

#include <string>

namespace win32 {

/// The text of a window of this process: what a field or a log holds, what a label or a button is
/// given to show.
std::wstring WideTextOf(HWND window);

}
