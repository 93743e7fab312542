#pragma once

#include <string>
#include <string_view>

/// Between UTF-8 and the system's UTF-16. What is not well-formed becomes U+FFFD.
namespace simulator {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

}
