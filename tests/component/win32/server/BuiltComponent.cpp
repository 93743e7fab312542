#include "tests/component/win32/server/BuiltComponent.h"

#include "tests/component/win32/server/Process.h"
#include "tests/component/win32/server/RegistryTree.h"
#include "tests/frontend/win32/Input.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace component {

namespace {

template <class Function>
Function Find(HMODULE module, const char* name) {
    const FARPROC function = GetProcAddress(module, name);
    EXPECT_NE(function, nullptr) << name;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

}

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
    RemoveTree(L"CLSID\\{235783FE-1F74-487E-8561-9E890047927A}");
    RemoveTree(L"TypeLib\\{315D7CB4-B70F-454D-8520-D76BBCAB99AD}");
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

CLoadedComponent::CLoadedComponent(const std::filesystem::path& file)
    : m_module(LoadLibraryW(file.c_str())) {
    EXPECT_NE(m_module, nullptr) << file;
}

CLoadedComponent::~CLoadedComponent() { FreeLibrary(m_module); }

HRESULT CLoadedComponent::GetClassObject(REFCLSID classIdentifier, REFIID interfaceIdentifier,
                                         void** result) const {
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    return Find<Function>(m_module, "DllGetClassObject")(classIdentifier, interfaceIdentifier,
                                                         result);
}

HRESULT CLoadedComponent::Call(const char* name) const {
    return Find<HRESULT(STDAPICALLTYPE*)()>(m_module, name)();
}

}
