#include "frontend/qt/PopupMenu.h"

#include "frontend/qt/ArrowCursor.h"
#include "frontend/qt/Text.h"

#include <QAction>
#include <QMenu>

namespace qt {

namespace {

void Fill(QMenu& menu, std::span<const panel::MenuItem> items) {
    for (const panel::MenuItem& item : items) {
        if (item.command == panel::kNoCommand) {
            menu.addSeparator();
        } else {
            menu.addAction(ToQt(item.text))->setData(item.command);
        }
    }
}

}

int CPopupMenu::Show(std::span<const panel::MenuItem> items, panel::Point screen) {
    const QPointer<QMenu> menu(new QMenu(m_owner));
    menu->setObjectName(QStringLiteral("menu"));
    menu->setSeparatorsCollapsible(false);
    Fill(*menu, items);
    const CArrowCursor arrow;
    const QAction* const chosen = menu->exec(QPoint(screen.x, screen.y));
    const int command = menu && chosen ? chosen->data().toInt() : panel::kNoCommand;
    delete menu;
    return command;
}

}
