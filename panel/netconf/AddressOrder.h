#pragma once

#include "contract/device/Krx10CommunicationConfiguration.h"

#include <array>
#include <bit>
#include <cstdint>

namespace panel {

/// Devices keep an address as its four bytes in memory order, address fields take a number whose
/// highest eight bits are the first part.

constexpr std::uint32_t ToFieldAddress(contract::AddressValue address) {
    const auto parts = std::bit_cast<std::array<std::uint8_t, 4>>(address);
    return std::uint32_t{parts[0]} << 24 | std::uint32_t{parts[1]} << 16 |
           std::uint32_t{parts[2]} << 8 | parts[3];
}

constexpr contract::AddressValue ToDeviceAddress(std::uint32_t field) {
    return std::bit_cast<contract::AddressValue>(std::array<std::uint8_t, 4>{
        static_cast<std::uint8_t>(field >> 24), static_cast<std::uint8_t>(field >> 16),
        static_cast<std::uint8_t>(field >> 8), static_cast<std::uint8_t>(field)});
}

}
