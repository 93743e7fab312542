#include "tests/frontend/qt/MenuUser.h"

#include <QAction>
#include <QTest>
#include <gtest/gtest.h>

namespace qttests {

conformance::ShownMenu ReadMenu(const QMenu& menu) {
    conformance::ShownMenu shown{{}, {menu.x(), menu.y()}};
    for (const QAction* const action : menu.actions()) {
        if (!action->isVisible()) {
            continue;
        }
        shown.items.push_back(
            action->isSeparator()
                ? panel::MenuItem{}
                : panel::MenuItem{action->data().toInt(), action->text().toStdString()});
    }
    return shown;
}

void ChooseFromMenu(QMenu& menu, int command, Qt::MouseButton button) {
    if (command == panel::kNoCommand) {
        QTest::keyClick(&menu, Qt::Key_Escape);
        return;
    }
    for (QAction* const action : menu.actions()) {
        if (action->data().toInt() == command) {
            QTest::mouseClick(&menu, button, {}, menu.actionGeometry(action).center());
            return;
        }
    }
    ADD_FAILURE() << "the menu has no item with command " << command;
    QTest::keyClick(&menu, Qt::Key_Escape);
}

}
