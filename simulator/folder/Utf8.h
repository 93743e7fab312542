#pragma once

#include <string_view>

namespace simulator {

/// Whether `text` is well-formed UTF-8 (RFC 3629): no overlong forms, surrogates or values beyond
/// U+10FFFF.
bool IsUtf8(std::string_view text);

}
