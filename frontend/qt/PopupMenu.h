#pragma once

#include "panel/control/PopupMenu.h"

#include <QPointer>
#include <QWidget>

namespace qt {

/// A pop-up menu of a widget, named "menu". Lines are shown as given, separators that follow each
/// other included. Ends with its owner; that counts as nothing chosen.
class CPopupMenu final : public panel::IPopupMenu {
public:
    /// `owner` null: of no window.
    explicit CPopupMenu(QWidget* owner) : m_owner(owner) {}

    int Show(std::span<const panel::MenuItem> items, panel::Point screen) override;

private:
    QPointer<QWidget> m_owner;
};

}
