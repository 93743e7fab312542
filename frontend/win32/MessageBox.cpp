#include "frontend/win32/MessageBox.h"

#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Text.h"

#include <utility>

namespace win32 {

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr wchar_t kDialogClass[] = L"#32770";

// The system has no answer to Escape where there is a choice between Yes and No.
LRESULT CALLBACK AnswerNoToEscape(HWND box, UINT message, WPARAM wParam, LPARAM lParam,
                                  UINT_PTR identifier, DWORD_PTR) {
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(box, AnswerNoToEscape, identifier);
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {
        wParam = MAKEWPARAM(IDNO, BN_CLICKED);
        lParam = reinterpret_cast<LPARAM>(GetDlgItem(box, IDNO));
    }
    return DefSubclassProc(box, message, wParam, lParam);
}

thread_local HHOOK g_hook = nullptr;

void Unhook() {
    if (g_hook) {
        UnhookWindowsHookEx(std::exchange(g_hook, nullptr));
    }
}

// The first dialog that this thread makes is the box.
LRESULT CALLBACK WaitForBox(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    wchar_t name[std::size(kDialogClass)] = {};
    if (code == HCBT_ACTIVATE && GetClassNameW(window, name, static_cast<int>(std::size(name))) &&
        std::wstring_view(name) == kDialogClass) {
        Unhook();
        SetWindowSubclass(window, AnswerNoToEscape, kSubclass, 0);
        return 0;
    }
    return CallNextHookEx(g_hook, code, wParam, lParam);
}

bool IsQuestion(std::uint32_t style) { return (style & MB_TYPEMASK) == MB_YESNO; }

}

std::int32_t ShowMessageBox(const std::string& text, const std::string& caption,
                            std::uint32_t style) {
    const CActivationContext context;
    if (IsQuestion(style)) {
        g_hook = SetWindowsHookExW(WH_CBT, WaitForBox, nullptr, GetCurrentThreadId());
    }
    const int pressed =
        MessageBoxW(nullptr, ToWide(text).c_str(), ToWide(caption).c_str(), style | MB_TASKMODAL);
    Unhook();
    if (!IsQuestion(style)) {
        return IDOK;
    }
    return pressed == IDYES ? IDYES : IDNO;
}

}
