#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace fuzz {

/// The character (RFC 3629) that `text` begins with, removed from it; nothing, and nothing removed,
/// when there is none. Works out the code point and asks whether it may be written so, where the
/// code under test compares bytes with tables.
std::optional<char32_t> TakeCharacter(std::string_view& text);

bool IsUtf8(std::string_view text);

/// Units of UTF-16 that a well-formed text takes.
std::size_t Utf16Units(std::string_view text);

/// The longest beginning of a well-formed text that ends between characters and has at most
/// `maxBytes` bytes.
std::string_view LongestBeginning(std::string_view text, std::size_t maxBytes);

}
