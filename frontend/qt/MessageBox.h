#pragma once

#include <cstdint>
#include <string>

namespace qt {

/// See panel::IToolkit::ShowBox.
std::int32_t ShowMessageBox(const std::string& text, const std::string& caption,
                            std::uint32_t style);

}
