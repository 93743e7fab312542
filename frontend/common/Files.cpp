#include "frontend/common/Files.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace common {

std::string GetCurrentFolder() {
    std::error_code error;
    const std::u8string folder = std::filesystem::current_path(error).u8string();
    return {folder.begin(), folder.end()};
}

bool WriteFile(const std::string& path, std::string_view content) {
    std::ofstream file(std::filesystem::path(std::u8string(path.begin(), path.end())),
                       std::ios::binary | std::ios::trunc);
    if (!file) {
        return false;
    }
    file << content;
    return true;
}

}
