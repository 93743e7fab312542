#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace panel {

/// The system's error numbers that the registry answers with, beside whatever else it meets
/// (winerror.h).
inline constexpr int kRegistrySuccess = 0;
inline constexpr int kRegistryNotFound = 2;
inline constexpr int kRegistryMoreData = 234;

/// One open key; closed by its end. Names and texts are UTF-8; the empty name is that of the key's
/// default value. Every operation returns kRegistrySuccess or an error number. User-interface
/// thread only.
class IRegistryKey {
public:
    virtual ~IRegistryKey() = default;

    /// Delivers the bytes of a value, whatever its type: those of a text with its terminator when
    /// it was written with one, the four of a number in memory order. kRegistryMoreData when there
    /// are more than `capacity`; `bytes` is untouched on failure.
    virtual int ReadValue(const std::string& name, std::size_t capacity, std::string& bytes) = 0;
    /// Writes a text, a terminator after it.
    virtual int WriteText(const std::string& name, const std::string& text) = 0;
    virtual int WriteNumber(const std::string& name, std::uint32_t number) = 0;
};

/// The settings that the machine keeps for all its programs, as keys of named values. Paths are
/// UTF-8 with backslashes between the keys. User-interface thread only.
class IRegistry {
public:
    virtual ~IRegistry() = default;

    /// Opens a key for reading. `key` is untouched on failure.
    virtual int OpenKey(const std::string& path, std::unique_ptr<IRegistryKey>& key) = 0;
    /// Opens a key for reading and writing, making it and those above it when they are missing.
    virtual int CreateKey(const std::string& path, std::unique_ptr<IRegistryKey>& key) = 0;
};

}
