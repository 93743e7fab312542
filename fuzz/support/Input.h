#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fuzz {

/// The bytes of one run, taken from their beginning. When they are used up every number is 0 and
/// every text empty, so that a run always comes to its end.
class CInput {
public:
    CInput(const std::uint8_t* data, std::size_t size)
        : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool IsEmpty() const { return m_rest.empty(); }

    std::uint8_t Byte() {
        const std::string_view byte = Bytes(1);
        return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte.front());
    }
    /// From two bytes, the higher one first.
    std::uint16_t Number16() {
        const unsigned high = Byte();
        return static_cast<std::uint16_t>(high << 8 | Byte());
    }
    std::uint32_t Number32() {
        const std::uint32_t high = Number16();
        return high << 16 | Number16();
    }
    /// A number from 0 on, below `count`, from one byte.
    int Below(int count) { return Byte() % count; }
    /// True for one byte in `outOf`; not when the bytes are used up.
    bool Happens(int outOf) { return Below(outOf) == outOf - 1; }

    /// At most `size` bytes.
    std::string_view Bytes(std::size_t size) {
        const std::string_view taken = m_rest.substr(0, size);
        m_rest.remove_prefix(taken.size());
        return taken;
    }
    /// Up to the next newline, which is taken too and left out.
    std::string_view Line() {
        const std::string_view line = m_rest.substr(0, m_rest.find('\n'));
        m_rest.remove_prefix(std::min(line.size() + 1, m_rest.size()));
        return line;
    }
    std::string_view Rest() { return Bytes(m_rest.size()); }

private:
    std::string_view m_rest;
};

}
