#include "tests/component/win32/server/BuiltComponent.h"

#include "tests/component/win32/server/Process.h"
#include "tests/component/win32/server/RegistryTree.h"
#include "tests/frontend/win32/Input.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace component {

std::filesystem::path OwnFolder() {
    wchar_t path[1024];
    const DWORD length = GetModuleFileNameW(nullptr, path, 1024);
    return std::filesystem::path(std::wstring(path, length)).parent_path();
}

// Relative to this program, as the system that builds it writes full paths in another way.
std::filesystem::path ComponentFile() {
    std::filesystem::path file = (OwnFolder() / KRX8_COMPONENT).lexically_normal();
    file.make_preferred();
    EXPECT_TRUE(std::filesystem::exists(file)) << file;
    return file;
}

std::optional<unsigned long> RunRegsvr32(const std::filesystem::path& file) {
    return RunProcess(L"regsvr32.exe /s \"" + file.wstring() + L"\"");
}

std::optional<unsigned long> RunRegsvr32ToUnregister(const std::filesystem::path& file) {
    return RunProcess(L"regsvr32.exe /s /u \"" + file.wstring() + L"\"");
}

void ForgetRegistration() {
    RemoveTree(L"QRZ.KRX8Maintenance.1");
    RemoveTree(L"QRZ.KRX8Maintenance");
    RemoveTree(kClassKey);
    RemoveTree(kLibraryKey);
    for (const wchar_t digit : std::wstring_view(L"0123456789")) {
        RemoveTree(L"Component Categories\\{A17A3B6" + std::wstring(1, digit) +
                   L"-97BE-4310-AAA9-6B0E8C0FA36B}");
    }
}

// COM marks what is unused at one call and unloads at the next, and an apartment that it made of
// its own accord ends some time after its last object.
bool AwaitUnloading() {
    using Clock = std::chrono::steady_clock;
    constexpr auto kLongest = std::chrono::seconds(5);
    const auto start = Clock::now();
    while (GetModuleHandleW(kComponentName)) {
        if (Clock::now() - start > kLongest) {
            return false;
        }
        win32tests::Pump();
        CoFreeUnusedLibraries();
        std::this_thread::yield();
    }
    return true;
}

}
