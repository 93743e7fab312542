#include "frontend/headless/Utf8.h"

#include <algorithm>

namespace headless {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

struct LeadBytes {
    unsigned char first;
    unsigned char last;
    std::size_t length;
    // The second byte is narrower than 80..BF where a wider one would encode a surrogate, a value
    // beyond U+10FFFF, or a shorter sequence's value.
    unsigned char secondFirst;
    unsigned char secondLast;
};

constexpr LeadBytes kLeadBytes[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

constexpr bool IsIn(unsigned char byte, unsigned char first, unsigned char last) {
    return first <= byte && byte <= last;
}

constexpr bool IsContinuation(char byte) {
    return IsIn(static_cast<unsigned char>(byte), 0x80, 0xBF);
}

bool IsSequence(std::string_view text, const LeadBytes& lead) {
    if (text.size() < lead.length) {
        return false;
    }
    if (lead.length > 1 &&
        !IsIn(static_cast<unsigned char>(text[1]), lead.secondFirst, lead.secondLast)) {
        return false;
    }
    return lead.length < 3 ||
           std::all_of(text.begin() + 2, text.begin() + lead.length, IsContinuation);
}

// Bytes of the well-formed character that `text` begins with; 0 when it begins with none.
std::size_t CharacterLength(std::string_view text) {
    const auto byte = static_cast<unsigned char>(text.front());
    for (const LeadBytes& lead : kLeadBytes) {
        if (IsIn(byte, lead.first, lead.last)) {
            return IsSequence(text, lead) ? lead.length : 0;
        }
    }
    return 0;
}

}

std::string ToShownText(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        shown += length ? text.substr(0, length) : kReplacement;
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return shown;
}

std::size_t CountCharacters(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsContinuation));
}

}
