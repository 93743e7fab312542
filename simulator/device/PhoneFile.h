#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace simulator {

/// What a device makes of a phone code file.
struct PhoneFile {
    std::string name;
    std::int32_t type = 0;
    std::int32_t sizeBytes = 0;
    std::optional<std::int32_t> id;
    std::string version;
    std::optional<std::uint32_t> generation;
};

/// Recognises a file by its name and its first bytes, as docs/device-folder.md says ("Uploads").
/// The size is left to the caller.
PhoneFile RecognisePhoneFile(const std::string& name, std::string_view head);

/// Whether two file names are one to a device: letters of ASCII are the same in both cases.
bool IsSameName(std::string_view name, std::string_view other);

}
