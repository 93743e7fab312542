#pragma once

#include "frontend/win32/WinApi.h"

#include <string>

namespace win32 {

/// The library or program that contains this code.
HMODULE OwnModule();
/// Its file; empty when the system does not tell.
std::wstring OwnModuleFile();

}
