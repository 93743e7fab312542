#include "frontend/win32/EditControl.h"

#include "frontend/win32/Barrier.h"
#include "frontend/win32/Text.h"
#include "frontend/win32/WindowText.h"

#include <limits>

namespace win32 {

namespace {

constexpr UINT_PTR kSubclass = 1;

struct Selection {
    DWORD begin = 0;
    DWORD end = 0;
};

Selection SelectionOf(HWND edit) {
    Selection selection;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&selection.begin),
                 reinterpret_cast<LPARAM>(&selection.end));
    return selection;
}

DWORD LengthOf(HWND window) { return static_cast<DWORD>(GetWindowTextLengthW(window)); }

// Limits of 0 and of all there is are the system's words for none.
DWORD RoomIn(HWND edit) {
    const auto limit = static_cast<DWORD>(SendMessageW(edit, EM_GETLIMITTEXT, 0, 0));
    const Selection selection = SelectionOf(edit);
    const DWORD kept = LengthOf(edit) - (selection.end - selection.begin);
    return limit == 0 ? std::numeric_limits<DWORD>::max() : limit > kept ? limit - kept : 0;
}

// What is pasted is cut at the limit, wherever that falls.
void RemoveHalfBeforeCaret(HWND edit) {
    const DWORD caret = SelectionOf(edit).end;
    const std::wstring text = WideTextOf(edit);
    if (caret > 0 && caret <= text.size() && IS_HIGH_SURROGATE(text[caret - 1]) &&
        (caret == text.size() || !IS_LOW_SURROGATE(text[caret]))) {
        SendMessageW(edit, EM_SETSEL, caret - 1, caret);
        SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
    }
}

// A character of two halves comes as two messages, and the first half alone may fit.
bool IsHalfTooMany(HWND edit, wchar_t typed) {
    if (IS_HIGH_SURROGATE(typed)) {
        return RoomIn(edit) < 2;
    }
    const DWORD caret = SelectionOf(edit).begin;
    const std::wstring text = WideTextOf(edit);
    return IS_LOW_SURROGATE(typed) &&
           (caret == 0 || caret > text.size() || !IS_HIGH_SURROGATE(text[caret - 1]));
}

LRESULT CALLBACK WholeCharacters(HWND edit, UINT message, WPARAM wParam, LPARAM lParam,
                                 UINT_PTR identifier, DWORD_PTR) {
    if (message == WM_CHAR &&
        Contained(false, [&] { return IsHalfTooMany(edit, static_cast<wchar_t>(wParam)); })) {
        return 0;
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(edit, WholeCharacters, identifier);
    }
    const LRESULT result = DefSubclassProc(edit, message, wParam, lParam);
    if (message == WM_PASTE) {
        Contained([&] { RemoveHalfBeforeCaret(edit); });
    }
    return result;
}

LRESULT CALLBACK DialogKeys(HWND log, UINT message, WPARAM wParam, LPARAM lParam,
                            UINT_PTR identifier, DWORD_PTR) {
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(log, DialogKeys, identifier);
    }
    const LRESULT result = DefSubclassProc(log, message, wParam, lParam);
    return message == WM_GETDLGCODE ? result & ~(DLGC_WANTALLKEYS | DLGC_HASSETSEL) : result;
}

}

std::string GetWindowTextOf(HWND window) { return FromWide(WideTextOf(window)); }

void SetTextLimitOf(HWND edit, std::size_t characters) {
    constexpr std::size_t kLargest = std::numeric_limits<int>::max();
    SendMessageW(edit, EM_SETLIMITTEXT, characters < kLargest ? characters : 0, 0);
}

void KeepCharactersWhole(HWND edit) { SetWindowSubclass(edit, WholeCharacters, kSubclass, 0); }

void LeaveKeysToDialog(HWND log) { SetWindowSubclass(log, DialogKeys, kSubclass, 0); }

void AppendTo(HWND log, std::string_view text) {
    const DWORD end = LengthOf(log);
    SendMessageW(log, EM_SETSEL, end, static_cast<LPARAM>(end));
    SendMessageW(log, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
    SendMessageW(log, WM_VSCROLL, SB_BOTTOM, 0);
}

void Clear(HWND log) {
    SendMessageW(log, EM_SETSEL, 0, -1);
    SendMessageW(log, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
}

}
