#pragma once

#include <string>
#include <string_view>

/// Files by paths in UTF-8, for front ends whose toolkit leaves them to the standard library.
namespace common {

/// The process's current folder; empty when the system does not tell.
std::string GetCurrentFolder();

/// Replaces what is in the file at `path`, or makes the file. False when it cannot be opened;
/// errors while writing are ignored.
bool WriteFile(const std::string& path, std::string_view content);

}
