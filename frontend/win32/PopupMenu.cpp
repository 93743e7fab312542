#include "frontend/win32/PopupMenu.h"

#include "frontend/win32/Text.h"

#include <utility>

namespace win32 {

std::unique_ptr<CPopupMenu> CPopupMenu::Create(HWND owner, std::shared_ptr<CCursorStack> cursors,
                                               int& error) {
    OwnedMenu menu(CreatePopupMenu());
    if (!menu) {
        error = static_cast<int>(GetLastError());
        return nullptr;
    }
    return std::unique_ptr<CPopupMenu>(new CPopupMenu(std::move(menu), owner, std::move(cursors)));
}

CPopupMenu::CPopupMenu(OwnedMenu menu, HWND owner, std::shared_ptr<CCursorStack> cursors)
    : m_menu(std::move(menu)), m_owner(owner), m_cursors(std::move(cursors)) {}

int CPopupMenu::Show(std::span<const panel::MenuItem> items, panel::Point screen) {
    Fill(items);
    const CArrowCursor arrow(m_cursors);
    return TrackPopupMenuEx(m_menu.get(), TPM_LEFTALIGN | TPM_RIGHTBUTTON | TPM_RETURNCMD, screen.x,
                            screen.y, m_owner, nullptr);
}

void CPopupMenu::Fill(std::span<const panel::MenuItem> items) {
    while (DeleteMenu(m_menu.get(), 0, MF_BYPOSITION)) {
    }
    for (const panel::MenuItem& item : items) {
        if (item.command == panel::kNoCommand) {
            AppendMenuW(m_menu.get(), MF_SEPARATOR, 0, nullptr);
        } else {
            AppendMenuW(m_menu.get(), MF_STRING, static_cast<UINT_PTR>(item.command),
                        ToWide(item.text).c_str());
        }
    }
}

}
