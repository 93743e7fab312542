#pragma once

// Before the interfaces, so that their methods keep their names.
#include "frontend/win32/WinApi.h"

#include <krx8maintenance.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
#include <wrl/client.h>

namespace component {

template <class Interface>
using ComPtr = Microsoft::WRL::ComPtr<Interface>;

}
