#include "component/win32/control/Keys.h"

#include "panel/control/PanelTemplate.h"

#include <string_view>

namespace component {

namespace {

/// Where a control stands among its view's, in the order of Tab; windows of no view stand last.
int PositionOf(HWND view, HWND control) {
    int position = 0;
    for (HWND window = GetWindow(view, GW_CHILD); window && window != control;
         window = GetWindow(window, GW_HWNDNEXT)) {
        ++position;
    }
    return position;
}

// The system's search goes round from the last control to the first. The view itself has the focus
// while the control that had it is disabled.
bool LeavesView(HWND view, bool isBackwards) {
    const HWND focused = GetFocus();
    if (focused == view) {
        return false;
    }
    const int from = PositionOf(view, focused);
    const int next = PositionOf(view, GetNextDlgTabItem(view, focused, isBackwards));
    return isBackwards ? next >= from : next <= from;
}

// The keys of A to Z are numbered as the capitals, on keyboards without Latin letters too.
WPARAM KeyOf(WPARAM letter) {
    const bool isSmall = letter >= 'a' && letter <= 'z';
    return isSmall ? letter - 'a' + 'A' : letter;
}

bool IsPushButton(HWND control) {
    constexpr LRESULT kPushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    return (SendMessageW(control, WM_GETDLGCODE, 0, 0) & kPushButton) != 0;
}

bool IsForView(HWND view, WPARAM key) {
    switch (key) {
    case VK_TAB:
        return GetKeyState(VK_CONTROL) >= 0 && !LeavesView(view, GetKeyState(VK_SHIFT) < 0);
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
    case VK_F1:
        return true;
    case VK_RETURN:
        return IsPushButton(GetFocus());
    default:
        return false;
    }
}

}

bool IsKeyMessage(const MSG& message) {
    return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

bool IsForView(HWND view, const MSG& message) {
    switch (message.message) {
    case WM_KEYDOWN:
        return IsForView(view, message.wParam);
    case WM_CHAR:
        return true;
    case WM_SYSCHAR:
        return FindButton(view, message) != nullptr;
    default:
        return false;
    }
}

bool HandOn(HWND view, MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_F1) {
        // The control that has the focus makes a help request of it.
        DispatchMessageW(&message);
        return true;
    }
    if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN) {
        // The system knows of a default button only that was reached by Tab.
        const HWND focused = GetFocus();
        SendMessageW(view, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(focused), BN_CLICKED),
                     reinterpret_cast<LPARAM>(focused));
        return true;
    }
    return IsDialogMessageW(view, &message) != FALSE;
}

std::vector<ACCEL> Mnemonics() {
    std::vector<ACCEL> mnemonics;
    for (const panel::ControlTemplate& control : panel::kPanelTemplate.controls) {
        const std::string_view text = control.text;
        const std::size_t mark = text.find('&');
        if (mark + 1 < text.size() && mark != std::string_view::npos) {
            const auto letter = static_cast<unsigned char>(text[mark + 1]);
            mnemonics.push_back({FALT | FVIRTKEY, static_cast<WORD>(KeyOf(letter)), control.id});
        }
    }
    return mnemonics;
}

HWND FindButton(HWND view, const MSG& message) {
    // A key of the number pad has the number of a small letter.
    const bool isCharacter = message.message == WM_CHAR || message.message == WM_SYSCHAR;
    const WPARAM key = isCharacter ? KeyOf(message.wParam) : message.wParam;
    for (const ACCEL& mnemonic : Mnemonics()) {
        const HWND button = GetDlgItem(view, mnemonic.cmd);
        if (mnemonic.key == key && IsWindowEnabled(button) && IsWindowVisible(button)) {
            return button;
        }
    }
    return nullptr;
}

}
