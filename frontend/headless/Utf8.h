#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace headless {

/// `text` as it is shown: each byte that is not part of well-formed UTF-8 becomes U+FFFD.
std::string ToShownText(std::string_view text);

/// How many characters (code points) well-formed UTF-8 holds.
std::size_t CountCharacters(std::string_view text);

}
