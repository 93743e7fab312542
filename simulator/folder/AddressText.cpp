#include "simulator/folder/AddressText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace simulator {

namespace {

/// Takes one number off the front of `text`.
std::optional<std::uint8_t> TakeByte(std::string_view& text) {
    std::uint8_t byte = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), byte);
    const auto length = static_cast<std::size_t>(rest - text.data());
    if (error != std::errc() || length > 3) {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return byte;
}

}

std::optional<contract::AddressValue> ParseAddress(std::string_view text) {
    std::array<std::uint8_t, 4> bytes{};
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        if (index > 0) {
            if (!text.starts_with('.')) {
                return std::nullopt;
            }
            text.remove_prefix(1);
        }
        const auto byte = TakeByte(text);
        if (!byte) {
            return std::nullopt;
        }
        bytes[index] = *byte;
    }
    if (!text.empty()) {
        return std::nullopt;
    }
    return std::bit_cast<contract::AddressValue>(bytes);
}

std::string AddressText(contract::AddressValue address) {
    std::string text;
    for (const auto byte : std::bit_cast<std::array<std::uint8_t, 4>>(address)) {
        text += (text.empty() ? "" : ".") + std::to_string(byte);
    }
    return text;
}

}
