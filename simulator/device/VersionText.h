#pragma once

#include <string_view>

/// Versions as devices compare them: numbers joined by dots.
namespace simulator {

/// Whether `text` is one number or several joined by dots, digits only.
bool IsVersion(std::string_view text);

/// Whether the numbers of `version` come after those of `other`; missing ones count as 0, and what
/// is no number ends a text.
bool IsNewer(std::string_view version, std::string_view other);

/// The last version in `text` (a file name), such as "4.08" in "fpga-2_v4.08"; empty when there is
/// no digit in it.
std::string_view LastVersionIn(std::string_view text);

}
