#pragma once

#include <array>
#include <cstdint>

namespace contract {

/// A 128-bit identifier in the field layout of the Windows GUID.
struct Guid {
    std::uint32_t data1;
    std::uint16_t data2;
    std::uint16_t data3;
    std::array<std::uint8_t, 8> data4;

    friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

}
