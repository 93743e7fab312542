#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace panel {

/// The numbers of a dotted version, first one first.
using VersionNumber = std::vector<std::int32_t>;

/// Reads numbers separated by ".": leading blanks and a sign are accepted, no digits give 0, values
/// saturate at 32 bits. Reading stops at the first character after a number that is not ".": 1.2a.3
/// is 1, 2. An empty text gives no numbers; "1." gives 1, 0.
VersionNumber ParseVersion(std::string_view text);

/// -1, 0 or 1 as version `a` is older than, the same as or newer than `b`. Of two that share all
/// their numbers the longer is the newer, so 1.2.0 is newer than 1.2.
int CompareVersions(std::string_view a, std::string_view b);

/// Each number with at least three digits, joined by ".": 1, 2, 30 gives 001.002.030. The result is
/// cut to size - 1 characters, as into a buffer of `size`.
std::string FormatVersion(const VersionNumber& version, std::size_t size);

/// The version of an update package as it is kept, shown and compared, in a buffer of 80: 2.10.4
/// becomes 002.010.004.
std::string NormalizePackageVersion(std::string_view text);

}
