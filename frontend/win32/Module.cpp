#include "frontend/win32/Module.h"

#include <string>

namespace win32 {

HMODULE OwnModule() {
    constexpr DWORD kFlags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    static constexpr char kPlace = 0;
    HMODULE module = nullptr;
    GetModuleHandleExW(kFlags, reinterpret_cast<const wchar_t*>(&kPlace), &module);
    return module;
}

// The system cuts a path that does not fit without saying how long it is.
std::wstring OwnModuleFile() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD room = static_cast<DWORD>(path.size());
        const DWORD length = GetModuleFileNameW(OwnModule(), path.data(), room);
        if (length < room) {
            path.resize(length);
            return path;
        }
        path.resize(2 * path.size());
    }
}

}
