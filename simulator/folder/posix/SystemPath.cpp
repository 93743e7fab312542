#include "simulator/folder/SystemPath.h"

#include "simulator/folder/MessageText.h"

namespace simulator {

std::filesystem::path PathOf(std::string_view text) { return text; }

std::string TextOfPath(const std::filesystem::path& path) { return path.native(); }

std::string QuotePath(const std::filesystem::path& path) { return QuoteForMessage(path.native()); }

std::filesystem::path ResolvePath(const std::filesystem::path& path, std::error_code& error) {
    return std::filesystem::weakly_canonical(path, error);
}

bool IsPlainFileName(std::string_view name) {
    // A backslash is refused, so that a device means the same wherever its folder is taken.
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

std::string FileNameKey(std::string_view name) { return std::string(name); }

}
