#pragma once

#include <cstddef>
#include <string_view>

namespace simulator {

/// Whether `text` is well-formed UTF-8 (RFC 3629): no overlong forms, surrogates or values beyond
/// U+10FFFF.
bool IsUtf8(std::string_view text);

/// How many characters `text`, which is UTF-8, has in UTF-16, which is how text fields count them:
/// those beyond U+FFFF are two.
std::size_t CharactersOf(std::string_view text);

}
