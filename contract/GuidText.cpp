#include "contract/GuidText.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace contract {

namespace {

// X stands for a digit; the others stand for themselves.
constexpr std::string_view kForm = "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}";

bool IsHexDigit(char character) {
    return std::string_view("0123456789ABCDEFabcdef").find(character) != std::string_view::npos;
}

bool HasForm(std::string_view text) {
    if (text.size() != kForm.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kForm[i] == 'X' ? !IsHexDigit(text[i]) : text[i] != kForm[i]) {
            return false;
        }
    }
    return true;
}

template <class Number>
Number ReadHex(std::string_view text, std::size_t place) {
    Number number = 0;
    constexpr int kHexadecimal = 16;
    const char* const digits = text.data() + place;
    std::from_chars(digits, digits + 2 * sizeof number, number, kHexadecimal);
    return number;
}

}

std::string FormatGuid(const Guid& guid) {
    std::array<char, kForm.size() + 1> text;
    const auto& tail = guid.data4;
    std::snprintf(text.data(), text.size(), "{%08lX-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned long>(guid.data1), guid.data2, guid.data3, tail[0], tail[1],
                  tail[2], tail[3], tail[4], tail[5], tail[6], tail[7]);
    return text.data();
}

std::optional<Guid> ParseGuid(std::string_view text) {
    if (!HasForm(text)) {
        return std::nullopt;
    }
    constexpr std::size_t kTail[] = {20, 22, 25, 27, 29, 31, 33, 35};
    Guid guid{ReadHex<std::uint32_t>(text, 1),
              ReadHex<std::uint16_t>(text, 10),
              ReadHex<std::uint16_t>(text, 15),
              {}};
    for (std::size_t i = 0; i < guid.data4.size(); ++i) {
        guid.data4[i] = ReadHex<std::uint8_t>(text, kTail[i]);
    }
    return guid;
}

}
