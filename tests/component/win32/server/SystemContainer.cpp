#include "tests/component/win32/server/SystemContainer.h"

#include <gtest/gtest.h>

namespace component {

namespace {

constexpr wchar_t kProgramIdentifier[] = L"QRZ.KRX8Maintenance";

template <class Function>
Function Find(const char* name) {
    const FARPROC function = GetProcAddress(LoadLibraryW(L"atl.dll"), name);
    EXPECT_NE(function, nullptr) << name;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

struct Sought {
    int identifier;
    HWND found;
};

BOOL CALLBACK CheckIdentifier(HWND window, LPARAM argument) {
    auto& sought = *reinterpret_cast<Sought*>(argument);
    if (GetDlgCtrlID(window) != sought.identifier) {
        return TRUE;
    }
    sought.found = window;
    return FALSE;
}

BOOL CALLBACK AddOwn(HWND window, LPARAM windows) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId()) {
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    }
    return TRUE;
}

}

// The system may refuse to do it again.
void PrepareContainers() {
    static const BOOL isPrepared = Find<BOOL(WINAPI*)()>("AtlAxWinInit")();
    EXPECT_TRUE(isPrepared);
}

HWND OpenContainer(HWND parent) {
    return CreateWindowExW(0, L"AtlAxWin", kProgramIdentifier, WS_CHILD | WS_VISIBLE, 0, 0, 700,
                           500, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

HRESULT FillWindow(HWND window, ComPtr<IUnknown>& holder, ComPtr<IUnknown>& control) {
    using Function =
        HRESULT(WINAPI*)(LPCOLESTR, HWND, IStream*, IUnknown**, IUnknown**, REFIID, IUnknown*);
    return Find<Function>("AtlAxCreateControlEx")(kProgramIdentifier, window, nullptr,
                                                  holder.GetAddressOf(), control.GetAddressOf(),
                                                  IID_NULL, nullptr);
}

ComPtr<IUnknown> ControlIn(HWND container) {
    ComPtr<IUnknown> control;
    Find<HRESULT(WINAPI*)(HWND, IUnknown**)>("AtlAxGetControl")(container, control.GetAddressOf());
    return control;
}

HWND ControlWindowIn(HWND container) { return GetWindow(container, GW_CHILD); }

HWND PartIn(HWND container, int identifier) {
    Sought sought{identifier, nullptr};
    EnumChildWindows(container, CheckIdentifier, reinterpret_cast<LPARAM>(&sought));
    return sought.found;
}

std::vector<HWND> WindowsOfProcess() {
    std::vector<HWND> windows;
    EnumChildWindows(GetDesktopWindow(), AddOwn, reinterpret_cast<LPARAM>(&windows));
    // Those for messages only are below no desktop.
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        AddOwn(window, reinterpret_cast<LPARAM>(&windows));
        EnumChildWindows(window, AddOwn, reinterpret_cast<LPARAM>(&windows));
    }
    return windows;
}

}
