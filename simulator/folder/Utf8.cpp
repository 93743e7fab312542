#include "simulator/folder/Utf8.h"

#include <algorithm>
#include <cstddef>

namespace simulator {

namespace {

/// How a character may begin, and between what its second byte must lie (RFC 3629, section 4).
struct Form {
    unsigned char first;
    unsigned char last;
    std::size_t bytes;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

constexpr Form kForms[] = {
    {0x00, 0x7F, 1, 0x80, 0xBF}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// Bytes of the character at the front of `text`; 0 when there is none.
std::size_t LengthOfFirst(std::string_view text) {
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    for (const auto& form : kForms) {
        if (byte(0) < form.first || byte(0) > form.last) {
            continue;
        }
        if (text.size() < form.bytes) {
            return 0;
        }
        if (form.bytes > 1 && (byte(1) < form.lowestSecond || byte(1) > form.highestSecond)) {
            return 0;
        }
        const auto rest = text.substr(0, form.bytes).substr(std::min<std::size_t>(2, form.bytes));
        const bool isWhole = std::all_of(rest.begin(), rest.end(), [](char part) {
            return (static_cast<unsigned char>(part) & 0xC0) == 0x80;
        });
        return isWhole ? form.bytes : 0;
    }
    return 0;
}

}

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto length = LengthOfFirst(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::size_t CharactersOf(std::string_view text) {
    std::size_t characters = 0;
    for (const auto part : text) {
        const auto byte = static_cast<unsigned char>(part);
        const bool isFirst = (byte & 0xC0) != 0x80;
        characters += (isFirst ? 1U : 0U) + (byte >= 0xF0 ? 1U : 0U);
    }
    return characters;
}

}
