#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// Draws the panel into `place` (logical units of the context), on paper and into metafiles too: as
/// its template lays it out, with the controls that `view` shows, their texts, and its buttons
/// enabled or not. Lists, log and progress are drawn empty. Without a view, which may be null, as
/// the template says.
void DrawPanel(HDC context, const RECT& place, HWND view);

}
