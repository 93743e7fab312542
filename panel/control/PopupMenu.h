#pragma once

#include "panel/control/Geometry.h"

#include <span>
#include <string>

namespace panel {

/// No item of a menu; the command of a separator.
inline constexpr int kNoCommand = 0;

/// A line of a menu: an item, or a separator, whose command is kNoCommand.
struct MenuItem {
    int command = kNoCommand;
    std::string text = {}; ///< UTF-8; "&" marks the mnemonic

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

/// A pop-up menu, owned by the panel's window.
class IPopupMenu {
public:
    virtual ~IPopupMenu() = default;

    /// Shows the menu with its top left corner at a point of the screen, waits for the user (who
    /// may use either mouse button) and returns the command chosen, or kNoCommand.
    virtual int Show(std::span<const MenuItem> items, Point screen) = 0;
};

}
