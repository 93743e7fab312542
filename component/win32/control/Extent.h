#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// Sizes in the unit of OLE, a hundredth of a millimetre, and in pixels of the screen.
SIZEL ToHimetric(SIZE pixels);
SIZE ToPixels(SIZEL himetric);

}
