#include "tests/frontend/win32/MenuUser.h"

#include "panel/control/PopupMenu.h"
#include "tests/frontend/win32/Input.h"

namespace win32tests {

namespace {

constexpr UINT kGetMenu = 0x01E1; // MN_GETHMENU

void SendEscape() {
    INPUT escape{};
    escape.type = INPUT_KEYBOARD;
    escape.ki.wVk = VK_ESCAPE;
    SendInput(1, &escape, sizeof escape);
    escape.ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(1, &escape, sizeof escape);
}

}

HMENU MenuOf(HWND window) { return reinterpret_cast<HMENU>(SendMessageW(window, kGetMenu, 0, 0)); }

void ChooseFromMenu(HWND window, int command) {
    const HMENU menu = MenuOf(window);
    for (int index = 0; index < GetMenuItemCount(menu); ++index) {
        if (command != panel::kNoCommand &&
            GetMenuItemID(menu, index) == static_cast<UINT>(command)) {
            RECT place{};
            GetMenuItemRect(nullptr, menu, static_cast<UINT>(index), &place);
            ClickScreen({static_cast<int>(place.left + place.right) / 2,
                         static_cast<int>(place.top + place.bottom) / 2});
            return;
        }
    }
    SendEscape();
}

}
