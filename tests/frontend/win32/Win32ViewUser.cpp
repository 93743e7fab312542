#include "tests/frontend/win32/Win32ViewUser.h"

#include "frontend/win32/Text.h"
#include "tests/frontend/win32/Input.h"

#include <algorithm>
#include <cctype>

namespace win32tests {

namespace {

using conformance::Modifier;
using panel::ControlId;

constexpr int kBelowRows = 3;
constexpr int kIntoLabel = 8;

struct HeldKey {
    Modifier modifier;
    std::uint16_t key;
};

constexpr HeldKey kHeldKeys[] = {
    {Modifier::None, 0}, {Modifier::Shift, VK_SHIFT}, {Modifier::Control, VK_CONTROL}};

LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, message, wParam, lParam);
}

bool IsButton(HWND window, DWORD type) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
    return ClassOf(window) == L"Button" && (style & BS_TYPEMASK) == type;
}

bool IsPushButton(HWND window) {
    return IsButton(window, BS_PUSHBUTTON) || IsButton(window, BS_DEFPUSHBUTTON);
}

bool TakesMnemonic(HWND window) {
    return IsPushButton(window) || IsButton(window, BS_AUTOCHECKBOX);
}

// What a click in the middle of the control meets.
bool IsOnTop(HWND view, HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    POINT centre{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    ScreenToClient(view, &centre);
    return ChildWindowFromPointEx(view, centre, CWP_SKIPINVISIBLE) == control;
}

bool ClickButton(HWND view, HWND button) {
    if (!IsUsable(button) || !IsOnTop(view, button)) {
        return false;
    }
    ClickCentre(button);
    Pump();
    return true;
}

wchar_t MnemonicOf(const std::wstring& text) {
    for (std::size_t mark = text.find(L'&'); mark != std::wstring::npos && mark + 1 < text.size();
         mark = text.find(L'&', mark + 2)) {
        if (text[mark + 1] != L'&') {
            return text[mark + 1];
        }
    }
    return 0;
}

int RowCountOf(HWND list) { return static_cast<int>(Send(list, LVM_GETITEMCOUNT)); }

std::vector<HWND> PartsOf(HWND address) {
    std::vector<HWND> parts = ChildrenOf(address, L"Edit");
    std::ranges::sort(parts, {}, [](HWND part) {
        RECT place{};
        GetWindowRect(part, &place);
        return place.left;
    });
    return parts;
}

void TypeOver(HWND edit, std::wstring_view text) {
    SetFocus(edit);
    Send(edit, EM_SETSEL, 0, -1);
    Type(text);
}

}

bool CWin32ViewUser::Press(ControlId id) {
    const HWND button = Find(id);
    return IsPushButton(button) && ClickButton(m_view, button);
}

bool CWin32ViewUser::PressMnemonic(char letter) {
    bool isThere = false;
    for (const HWND button : ChildrenOf(m_view, L"Button")) {
        isThere =
            isThere || (TakesMnemonic(button) && IsUsable(button) &&
                        std::towlower(MnemonicOf(TextOf(button))) == static_cast<wchar_t>(letter));
    }
    PressKey(static_cast<std::uint16_t>(std::toupper(static_cast<unsigned char>(letter))), VK_MENU);
    return isThere;
}

bool CWin32ViewUser::PressKeyInList(ControlId id, std::uint16_t virtualKey) {
    const HWND list = Find(id);
    if (!IsUsable(list)) {
        return false;
    }
    SetFocus(list);
    PressKey(virtualKey);
    return true;
}

bool CWin32ViewUser::ClickRow(ControlId list, int row, Modifier modifier) {
    return row != panel::kNoRow &&
           ClickList(Find(list), row, false,
                     std::ranges::find(kHeldKeys, modifier, &HeldKey::modifier)->key);
}

bool CWin32ViewUser::RightClickRow(ControlId list, int row) {
    return ClickList(Find(list), row, true, 0);
}

bool CWin32ViewUser::ClickList(HWND list, int row, bool isRight, std::uint16_t heldKey) {
    if (!IsUsable(list) || row >= RowCountOf(list)) {
        return false;
    }
    RECT area{};
    GetClientRect(list, &area);
    POINT place{area.right / 2, area.bottom - kBelowRows};
    if (row != panel::kNoRow) {
        Send(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
        RECT label{LVIR_LABEL, 0, 0, 0};
        Send(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
        place = {label.left + kIntoLabel + NextAside(), (label.top + label.bottom) / 2};
    }
    ClientToScreen(list, &place);
    ClickScreen({static_cast<int>(place.x), static_cast<int>(place.y)}, isRight, heldKey);
    Pump();
    return true;
}

bool CWin32ViewUser::Toggle(ControlId id) {
    const HWND box = Find(id);
    return IsButton(box, BS_AUTOCHECKBOX) && ClickButton(m_view, box);
}

bool CWin32ViewUser::TypeText(ControlId id, std::string_view text) {
    const HWND field = Find(id);
    if (!IsUsable(field)) {
        return false;
    }
    TypeOver(field, win32::ToWide(text));
    return true;
}

bool CWin32ViewUser::TypeAddress(ControlId id, std::uint32_t address) {
    if (!IsUsable(Find(id))) {
        return false;
    }
    int shift = 24;
    for (const HWND part : PartsOf(Find(id))) {
        TypeOver(part, std::to_wstring((address >> shift) & 0xFF));
        shift -= 8;
    }
    return true;
}

bool CWin32ViewUser::Choose(ControlId id, std::string_view text) {
    const HWND list = Find(id);
    const std::vector<std::string> choices = ShownChoices(id);
    const auto found = std::ranges::find(choices, text);
    if (!IsUsable(list) || found == choices.end()) {
        return false;
    }
    SetFocus(list);
    PressKey(VK_HOME);
    for (auto choice = choices.begin(); choice != found; ++choice) {
        PressKey(VK_DOWN);
    }
    return true;
}

void CWin32ViewUser::RequestHelp() { PressKey(VK_F1); }
void CWin32ViewUser::PressTab() { PressKey(VK_TAB); }
void CWin32ViewUser::PressReturn() { PressKey(VK_RETURN); }
void CWin32ViewUser::PressEscape() { PressKey(VK_ESCAPE); }

void CWin32ViewUser::PressCloseBox() {
    PostMessageW(m_view, WM_SYSCOMMAND, SC_CLOSE, 0);
    Pump();
}

}
