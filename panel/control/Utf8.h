#pragma once

#include <cstddef>
#include <string_view>

namespace panel {

/// The longest beginning of `text` of at most `maxBytes` bytes that ends between characters. Bytes
/// that are not UTF-8 are cut where the limit falls.
std::string_view CutToBytes(std::string_view text, std::size_t maxBytes);

/// The longest beginning of `text` that takes at most `maxUnits` units of UTF-16, which is how the
/// limits of wide texts are counted. A byte that is not UTF-8 counts as one unit.
std::string_view CutToUtf16Units(std::string_view text, std::size_t maxUnits);

/// Whether the texts are equal but for the case of the letters A to Z.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

}
