#include "simulator/folder/MessageText.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <utility>

namespace simulator {

namespace {

/// A character that no message may show as it is.
struct Control {
    unsigned codePoint;
    std::size_t bytes;
};

constexpr std::pair<unsigned, std::string_view> kShortEscapes[] = {
    {'\b', "\\b"}, {'\t', "\\t"}, {'\n', "\\n"}, {'\f', "\\f"}, {'\r', "\\r"}};

/// The control character or separator at the front of `text`, which is not empty.
std::optional<Control> ControlAtFront(std::string_view text) {
    const auto byte = [&](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    if (byte(0) < 0x20 || byte(0) == 0x7F) {
        return Control{byte(0), 1};
    }
    // Terminals take U+0080 to U+009F for control sequences, too.
    if (byte(0) == 0xC2 && byte(1) >= 0x80 && byte(1) <= 0x9F) {
        return Control{byte(1), 2};
    }
    // The line and the paragraph separator, U+2028 and U+2029.
    if (byte(0) == 0xE2 && byte(1) == 0x80 && (byte(2) == 0xA8 || byte(2) == 0xA9)) {
        return Control{0x1F80 + byte(2), 3};
    }
    return std::nullopt;
}

std::string EscapeOf(unsigned codePoint) {
    for (const auto& [character, escape] : kShortEscapes) {
        if (character == codePoint) {
            return std::string(escape);
        }
    }
    std::array<char, 7> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", codePoint & 0xFFFF);
    return escape.data();
}

/// With a backslash before the characters that are in `marked`, too.
std::string Escape(std::string_view text, std::string_view marked) {
    std::string escaped;
    while (!text.empty()) {
        std::size_t bytes = 1;
        if (const auto control = ControlAtFront(text)) {
            escaped += EscapeOf(control->codePoint);
            bytes = control->bytes;
        } else {
            escaped += marked.find(text.front()) == std::string_view::npos ? "" : "\\";
            escaped += text.front();
        }
        text.remove_prefix(bytes);
    }
    return escaped;
}

}

std::string EscapeForMessage(std::string_view text) { return Escape(text, {}); }

std::string QuoteForMessage(std::string_view text) { return '"' + Escape(text, "\"\\") + '"'; }

}
