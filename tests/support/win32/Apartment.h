#pragma once

#include "component/win32/com/ComApi.h"

#include <functional>

namespace support {

/// Does something on a thread in an apartment of that kind (COINIT), while this one handles
/// messages, by which calls of its objects come back to it.
void RunInApartment(DWORD kind, const std::function<void()>& action);

}
