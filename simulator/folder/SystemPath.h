#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// What systems have different rules for: names of files, and paths as texts. Texts are UTF-8, but
/// on a system whose paths are bytes these bytes, whatever they are.
namespace simulator {

std::filesystem::path PathOf(std::string_view text);

/// Where a path of this system cannot be said in UTF-8, U+FFFD stands for what cannot.
std::string TextOfPath(const std::filesystem::path& path);

/// The path in quotes for a message of one line, its control characters as JSON writes them.
std::string QuotePath(const std::filesystem::path& path);

/// The path with every link on it followed. What does not exist is taken as it is.
std::filesystem::path ResolvePath(const std::filesystem::path& path, std::error_code& error);

/// What a stored file may be called in the folder `files`.
bool IsPlainFileName(std::string_view name);

/// Equal for names that are the same file in a folder, and only for these.
std::string FileNameKey(std::string_view name);

}
