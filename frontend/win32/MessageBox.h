#pragma once

#include "frontend/win32/WinApi.h"

#include <cstdint>
#include <string>

namespace win32 {

/// See IToolkit::ShowBox. All windows of the thread wait for the answer.
std::int32_t ShowMessageBox(const std::string& text, const std::string& caption,
                            std::uint32_t style);

}
