#pragma once

#include "frontend/win32/CursorStack.h"
#include "panel/control/PopupMenu.h"

#include <memory>
#include <type_traits>

namespace win32 {

/// A pop-up menu of the system.
class CPopupMenu final : public panel::IPopupMenu {
public:
    /// Null, with the system's error number in `error`, when none can be had. `owner` is the
    /// panel's window.
    static std::unique_ptr<CPopupMenu> Create(HWND owner, std::shared_ptr<CCursorStack> cursors,
                                              int& error);

    int Show(std::span<const panel::MenuItem> items, panel::Point screen) override;

private:
    struct MenuEnd {
        void operator()(HMENU menu) const { DestroyMenu(menu); }
    };
    using OwnedMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuEnd>;

    CPopupMenu(OwnedMenu menu, HWND owner, std::shared_ptr<CCursorStack> cursors);
    void Fill(std::span<const panel::MenuItem> items);

    OwnedMenu m_menu;
    HWND m_owner;
    std::shared_ptr<CCursorStack> m_cursors;
};

}
