#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// Draws the panel into `place` (logical units of the context), on paper too: as its template lays
/// it out, with the texts of the controls in `view`, which may be null.
void DrawPanel(HDC context, const RECT& place, HWND view);

}
