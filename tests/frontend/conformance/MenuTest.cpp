#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::MenuItem;

const std::vector<MenuItem> kItems = {
    {1, "Upload"}, {}, {4, "R&&D"}, {}, {}, {10, "Select &All"},
};
constexpr panel::Point kPlace{230, 140};

class MenuTest : public ConformanceTest {
protected:
    void SetUp() override { Show(); }

    int ShowMenu() {
        int error = 0;
        const auto menu = Toolkit().CreatePopupMenu(error);
        return menu->Show(kItems, kPlace);
    }
};

TEST_F(MenuTest, ChosenItemReturnsItsCommand) {
    for (const int command : {1, 4, 10}) {
        m_driver->ExpectMenu(command);
        EXPECT_EQ(ShowMenu(), command);
    }
}

TEST_F(MenuTest, EscapeReturnsNoCommand) {
    m_driver->ExpectMenu(panel::kNoCommand);
    EXPECT_EQ(ShowMenu(), panel::kNoCommand);
}

TEST_F(MenuTest, ItemsAndSeparatorsAreShownAsGivenAtThePoint) {
    m_driver->ExpectMenu(1);
    ShowMenu();
    EXPECT_EQ(m_driver->Menus(), (std::vector<ShownMenu>{{kItems, kPlace}}));
}

TEST_F(MenuTest, PanelViewCanBeWrittenWhileAMenuIsOpen) {
    m_driver->ExpectMenu(4, [this] { View().SetText(kField, "meanwhile"); });
    EXPECT_EQ(ShowMenu(), 4);
    EXPECT_EQ(View().GetText(kField), "meanwhile");
}

TEST_F(MenuTest, MenuCanBeShownAgain) {
    int error = 0;
    const auto menu = Toolkit().CreatePopupMenu(error);
    m_driver->ExpectMenu(1);
    m_driver->ExpectMenu(panel::kNoCommand);
    EXPECT_EQ(menu->Show(kItems, kPlace), 1);
    EXPECT_EQ(menu->Show(kItems, kPlace), panel::kNoCommand);
}

TEST_F(MenuTest, MenuKeepsTheWaitCursorForAfterwards) {
    Toolkit().PushWaitCursor();
    m_driver->ExpectMenu(1);
    ShowMenu();
    EXPECT_TRUE(m_driver->IsWaitCursorShown());
    Toolkit().PopCursor();
}

TEST_F(MenuTest, MenuOfARightClickReturnsIntoIt) {
    FillList(kManyList, 2);
    int command = 0;
    m_handler.onListRightClick = [&](panel::ControlId) { command = ShowMenu(); };
    m_driver->ExpectMenu(10);
    EXPECT_TRUE(User().RightClickRow(kManyList, 1));
    EXPECT_EQ(command, 10);
}

}

}
