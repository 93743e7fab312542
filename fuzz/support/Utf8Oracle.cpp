#include "fuzz/support/Utf8Oracle.h"

#include <bit>

namespace fuzz {

namespace {

constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kLastSurrogate = 0xDFFF;
constexpr char32_t kLast = 0x10FFFF;
constexpr char32_t kLastOfOneUnit = 0xFFFF;

std::size_t BytesOf(char32_t character) {
    return character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
}

}

std::optional<char32_t> TakeCharacter(std::string_view& text) {
    if (text.empty()) {
        return std::nullopt;
    }
    const auto lead = static_cast<unsigned char>(text.front());
    const int ones = std::countl_one(lead);
    const std::size_t length = ones == 0 ? 1 : static_cast<std::size_t>(ones);
    if (ones == 1 || ones > 4 || text.size() < length) {
        return std::nullopt;
    }
    char32_t character = lead & (0xFFU >> (ones + 1));
    character = ones == 0 ? lead : character;
    for (const char next : text.substr(1, length - 1)) {
        const auto byte = static_cast<unsigned char>(next);
        if (std::countl_one(byte) != 1) {
            return std::nullopt;
        }
        character = character << 6 | (byte & 0x3FU);
    }
    const bool isSurrogate = character >= kFirstSurrogate && character <= kLastSurrogate;
    if (isSurrogate || character > kLast || BytesOf(character) != length) {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return character;
}

bool IsUtf8(std::string_view text) {
    while (TakeCharacter(text)) {
    }
    return text.empty();
}

std::size_t Utf16Units(std::string_view text) {
    std::size_t units = 0;
    while (const auto character = TakeCharacter(text)) {
        units += *character > kLastOfOneUnit ? 2 : 1;
    }
    return units;
}

std::string_view LongestBeginning(std::string_view text, std::size_t maxBytes) {
    std::string_view rest = text;
    std::size_t length = 0;
    while (TakeCharacter(rest) && text.size() - rest.size() <= maxBytes) {
        length = text.size() - rest.size();
    }
    return text.substr(0, length);
}

}
