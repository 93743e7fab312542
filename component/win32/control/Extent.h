#pragma once

#include "component/win32/com/ComApi.h"

namespace component {

/// A size in pixels of the screen, in the unit of OLE, a hundredth of a millimetre.
SIZEL ToHimetric(SIZE pixels);

}
