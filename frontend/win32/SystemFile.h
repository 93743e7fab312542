#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Files by paths in UTF-8. The standard library's streams would make the component twice as large.
namespace win32 {

/// Empty when the system does not tell.
std::string GetCurrentFolder();

/// Nothing for a file that cannot be read.
std::optional<std::string> ReadWholeFile(const std::string& path);

/// Replaces what is in the file, or makes it. False when it cannot be opened; errors while writing
/// are ignored.
bool WriteWholeFile(const std::string& path, std::string_view content);

}
