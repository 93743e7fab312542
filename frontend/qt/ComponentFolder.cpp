#include "frontend/qt/ComponentFolder.h"

#include <dlfcn.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace qt {

namespace {

// The loader names the program itself as it was called, which says nothing of where it lies.
std::filesystem::path AskLoader() {
    Dl_info info{};
    if (!dladdr(reinterpret_cast<const void*>(&FindComponentFile), &info) || !info.dli_fname) {
        return {};
    }
    const bool isProgram = std::string_view(info.dli_fname) == program_invocation_name;
    return isProgram ? "/proc/self/exe" : info.dli_fname;
}

}

std::string FindComponentFile() {
    std::error_code error;
    return std::filesystem::canonical(AskLoader(), error).string();
}

std::string FindComponentFolder() {
    return std::filesystem::path(FindComponentFile()).parent_path().string();
}

}
