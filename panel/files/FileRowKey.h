#pragma once

#include <cstdint>

namespace panel {

/// Type, location and identifier of a listed file in one number, kept with its row so that commands
/// address the file without asking the device again: type in bits 24 to 31, location in bits 16 to
/// 23, the low 16 bits of the identifier in bits 0 to 15. Devices address files by those 16 bits
/// too, so larger identifiers are deliberately truncated.
using FileRowKey = std::uint32_t;

constexpr FileRowKey MakeFileRowKey(std::int32_t type, std::int32_t location, std::int32_t id) {
    return (static_cast<std::uint32_t>(type) & 0xFF) << 24 |
           (static_cast<std::uint32_t>(location) & 0xFF) << 16 |
           (static_cast<std::uint32_t>(id) & 0xFFFF);
}

constexpr std::int32_t TypeOf(FileRowKey key) { return static_cast<std::int32_t>(key >> 24); }
constexpr std::int32_t LocationOf(FileRowKey key) {
    return static_cast<std::int32_t>(key >> 16 & 0xFF);
}
constexpr std::int32_t IdOf(FileRowKey key) { return static_cast<std::int32_t>(key & 0xFFFF); }

}
