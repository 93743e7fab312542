#pragma once

#include <cstdint>

namespace contract {

/// Result of every operation between host, device service and panel.
///
/// A signed 32-bit code; negative means failure. The bit patterns are those of the Windows HRESULT
/// (winerror.h), so that a status crosses a COM boundary unchanged. The type is [[nodiscard]]: a
/// caller that means to ignore a result says so with a cast to void.
class [[nodiscard]] Status {
public:
    constexpr Status() = default;
    constexpr explicit Status(std::int32_t code) : m_code(code) {}

    /// From the customary hexadecimal notation, e.g. FromBits(0x80004005).
    static constexpr Status FromBits(std::uint32_t bits) {
        return Status(static_cast<std::int32_t>(bits));
    }

    constexpr std::int32_t Code() const { return m_code; }
    constexpr bool IsFailure() const { return m_code < 0; }
    constexpr bool IsSuccess() const { return m_code >= 0; }

    friend constexpr bool operator==(Status, Status) = default;

private:
    std::int32_t m_code = 0;
};

inline constexpr Status kSuccess{};
/// A null object or pointer where one is needed (E_POINTER).
inline constexpr Status kInvalidPointer = Status::FromBits(0x80004003);
/// The object does not offer the interface asked for (E_NOINTERFACE).
inline constexpr Status kNoSuchInterface = Status::FromBits(0x80004002);
/// Unspecified failure (E_FAIL).
inline constexpr Status kUnspecifiedFailure = Status::FromBits(0x80004005);
/// Success with a warning: an update description could be carried out only in part.
inline constexpr Status kPartialUpdate = Status::FromBits(0x041B1010);

}
