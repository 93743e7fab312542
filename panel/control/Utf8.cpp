#include "panel/control/Utf8.h"

#include <algorithm>

namespace panel {

namespace {

constexpr std::size_t kLongestSequence = 4;

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// Bytes of the sequence that `lead` announces; 1 for a byte that starts none.
std::size_t SequenceLength(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xF0 && byte < 0xF8) {
        return 4;
    }
    if (byte >= 0xE0 && byte < 0xF0) {
        return 3;
    }
    return byte >= 0xC0 && byte < 0xE0 ? 2 : 1;
}

/// Bytes of the character at the beginning of `text`, 1 when it is not a whole sequence.
std::size_t CharacterLength(std::string_view text) {
    const std::size_t length = SequenceLength(text.front());
    if (length > text.size()) {
        return 1;
    }
    const std::string_view rest = text.substr(1, length - 1);
    return std::all_of(rest.begin(), rest.end(), IsContinuation) ? length : 1;
}

char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}

std::string_view CutToBytes(std::string_view text, std::size_t maxBytes) {
    if (text.size() <= maxBytes) {
        return text;
    }
    for (std::size_t back = 0; back < kLongestSequence && back <= maxBytes; ++back) {
        const std::size_t start = maxBytes - back;
        if (!IsContinuation(text[start])) {
            const bool straddles =
                back > 0 && start + CharacterLength(text.substr(start)) > maxBytes;
            return text.substr(0, straddles || back == 0 ? start : maxBytes);
        }
    }
    return text.substr(0, maxBytes);
}

std::string_view CutToUtf16Units(std::string_view text, std::size_t maxUnits) {
    std::size_t position = 0;
    std::size_t units = 0;
    while (position < text.size()) {
        const std::size_t length = CharacterLength(text.substr(position));
        units += length == kLongestSequence ? 2 : 1;
        if (units > maxUnits) {
            break;
        }
        position += length;
    }
    return text.substr(0, position);
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return ToLower(left) == ToLower(right); });
}

}
