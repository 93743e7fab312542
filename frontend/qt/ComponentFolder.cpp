#include "frontend/qt/ComponentFolder.h"

#include <dlfcn.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace qt {

namespace {

// The loader names the program itself as it was called, which says nothing of where it lies.
std::filesystem::path FindComponentFile() {
    Dl_info info{};
    if (!dladdr(reinterpret_cast<const void*>(&FindComponentFolder), &info) || !info.dli_fname) {
        return {};
    }
    const bool isProgram = std::string_view(info.dli_fname) == program_invocation_name;
    return isProgram ? "/proc/self/exe" : info.dli_fname;
}

}

std::string FindComponentFolder() {
    std::error_code error;
    return std::filesystem::canonical(FindComponentFile(), error).parent_path().string();
}

}
