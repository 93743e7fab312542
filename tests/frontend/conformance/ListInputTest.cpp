#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::kNoRow;

constexpr std::uint16_t kEndKey = 0x23;
constexpr std::uint16_t kHomeKey = 0x24;
constexpr std::uint16_t kUpKey = 0x26;
constexpr std::uint16_t kDownKey = 0x28;

class ListInputTest : public ConformanceTest {
protected:
    void SetUp() override {
        Show();
        FillList(kManyList, 10);
        FillList(kOneList, 10);
    }

    Rows Selected(panel::ControlId list = kManyList) { return View().GetSelectedRows(list); }
};

TEST_F(ListInputTest, ClickSelectsMarksAndFocusesTheRow) {
    View().SelectRow(kManyList, 1, true);
    EXPECT_TRUE(User().ClickRow(kManyList, 4));
    EXPECT_EQ(Selected(), Rows{4});
    EXPECT_EQ(View().GetSelectionMark(kManyList), 4);
    EXPECT_EQ(View().GetFocusedRow(kManyList), 4);
}

TEST_F(ListInputTest, ClickOfMissingRowDoesNothing) {
    EXPECT_FALSE(User().ClickRow(kManyList, 10));
    EXPECT_FALSE(User().ClickRow(kDisabledList, 0));
    EXPECT_EQ(Selected(), Rows{});
}

TEST_F(ListInputTest, ControlClickTogglesTheRow) {
    User().ClickRow(kManyList, 4);
    EXPECT_TRUE(User().ClickRow(kManyList, 6, Modifier::Control));
    EXPECT_EQ(Selected(), (Rows{4, 6}));
    EXPECT_TRUE(User().ClickRow(kManyList, 4, Modifier::Control));
    EXPECT_EQ(Selected(), Rows{6});
    EXPECT_EQ(View().GetFocusedRow(kManyList), 4);
}

TEST_F(ListInputTest, ShiftClickExtendsFromTheClickedRow) {
    User().ClickRow(kManyList, 4);
    EXPECT_TRUE(User().ClickRow(kManyList, 6, Modifier::Shift));
    EXPECT_EQ(Selected(), (Rows{4, 5, 6}));
    EXPECT_EQ(View().GetSelectionMark(kManyList), 4);
    EXPECT_EQ(View().GetFocusedRow(kManyList), 6);
    EXPECT_TRUE(User().ClickRow(kManyList, 3, Modifier::Shift));
    EXPECT_EQ(Selected(), (Rows{3, 4}));
}

TEST_F(ListInputTest, ShiftClickExtendsFromTheMarkThatWasSet) {
    View().SelectRow(kManyList, 2, true);
    View().SetSelectionMark(kManyList, 2);
    EXPECT_TRUE(User().ClickRow(kManyList, 5, Modifier::Shift));
    EXPECT_EQ(Selected(), (Rows{2, 3, 4, 5}));
}

TEST_F(ListInputTest, ShiftClickExtendsFromMarkSetAfterAClick) {
    User().ClickRow(kManyList, 8);
    View().SetSelectionMark(kManyList, 1);
    EXPECT_TRUE(User().ClickRow(kManyList, 3, Modifier::Shift));
    EXPECT_EQ(Selected(), (Rows{1, 2, 3}));
}

TEST_F(ListInputTest, SingleSelectionListSelectsOneRowWhateverIsHeld) {
    User().ClickRow(kOneList, 4);
    User().ClickRow(kOneList, 6, Modifier::Shift);
    EXPECT_EQ(Selected(kOneList), Rows{6});
    User().ClickRow(kOneList, 2, Modifier::Control);
    EXPECT_EQ(Selected(kOneList), Rows{2});
}

TEST_F(ListInputTest, ClickFarDownScrollsThere) {
    FillList(kOneList, 500);
    EXPECT_TRUE(User().ClickRow(kOneList, 400));
    EXPECT_TRUE(User().IsRowInSight(kOneList, 400));
    EXPECT_EQ(Selected(kOneList), Rows{400});
}

TEST_F(ListInputTest, KeysAreReportedAsVirtualKeyCodes) {
    for (std::uint16_t key : {panel::kDeleteKey, panel::kContextMenuKey, std::uint16_t{'A'},
                              std::uint16_t{'7'}, std::uint16_t{0x2D}, std::uint16_t{0x74}})
        EXPECT_TRUE(User().PressKeyInList(kManyList, key)) << key;
    EXPECT_EQ(m_handler.events, (Events{"key 46 in 305", "key 93 in 305", "key 65 in 305",
                                        "key 55 in 305", "key 45 in 305", "key 116 in 305"}));
}

TEST_F(ListInputTest, KeysMoveTheSelectionAfterTheyWereReported) {
    User().ClickRow(kManyList, 4);
    Rows selectedWhenReported;
    m_handler.onListKeyDown = [&](auto...) { selectedWhenReported = Selected(); };
    EXPECT_TRUE(User().PressKeyInList(kManyList, kDownKey));
    EXPECT_EQ(m_handler.events, Events{"key 40 in 305"});
    EXPECT_EQ(selectedWhenReported, Rows{4});
    EXPECT_EQ(Selected(), Rows{5});
    EXPECT_EQ(View().GetFocusedRow(kManyList), 5);
}

TEST_F(ListInputTest, ArrowsHomeAndEndMoveTheFocusedRow) {
    User().ClickRow(kManyList, 4);
    Rows focused;
    for (std::uint16_t key : {kUpKey, kEndKey, kDownKey, kHomeKey, kUpKey}) {
        EXPECT_TRUE(User().PressKeyInList(kManyList, key));
        focused.push_back(View().GetFocusedRow(kManyList));
    }
    EXPECT_EQ(focused, (Rows{3, 9, 9, 0, 0}));
    EXPECT_EQ(Selected(), Rows{0});
}

TEST_F(ListInputTest, KeyInDisabledListIsNotReported) {
    EXPECT_FALSE(User().PressKeyInList(kDisabledList, panel::kDeleteKey));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ListInputTest, ContextMenuKeyIsNoRightClick) {
    EXPECT_TRUE(User().PressKeyInList(kManyList, panel::kContextMenuKey));
    EXPECT_TRUE(m_handler.rightClicks.empty());
}

TEST_F(ListInputTest, RightClickOnUnselectedRowSelectsItFirst) {
    User().ClickRow(kManyList, 1);
    Rows selectedWhenReported;
    m_handler.onListRightClick = [&](auto) { selectedWhenReported = Selected(); };
    EXPECT_TRUE(User().RightClickRow(kManyList, 3));
    EXPECT_EQ(selectedWhenReported, Rows{3});
    EXPECT_EQ(m_handler.events, Events{"right click on 305"});
}

TEST_F(ListInputTest, RightClickOnSelectedRowKeepsTheSelection) {
    User().ClickRow(kManyList, 1);
    User().ClickRow(kManyList, 3, Modifier::Shift);
    EXPECT_TRUE(User().RightClickRow(kManyList, 2));
    EXPECT_EQ(Selected(), (Rows{1, 2, 3}));
}

TEST_F(ListInputTest, RightClickReportsScreenCoordinates) {
    EXPECT_TRUE(User().RightClickRow(kManyList, 0));
    const panel::Rectangle list = User().ScreenRectangle(kManyList);
    ASSERT_EQ(m_handler.rightClicks.size(), 1u);
    const panel::Point point = m_handler.rightClicks.front();
    EXPECT_TRUE(list.x <= point.x && point.x < list.Right()) << point.x;
    EXPECT_TRUE(list.y < point.y && point.y < list.Bottom()) << point.y;
}

TEST_F(ListInputTest, RightClicksReportTheRowsTheyFellOn) {
    const int rowHeight =
        View().GetRowPosition(kManyList, 1)->y - View().GetRowPosition(kManyList, 0)->y;
    for (const int row : {0, 3, 1}) {
        EXPECT_TRUE(User().RightClickRow(kManyList, row));
        const panel::Point corner =
            View().ToScreen(kManyList, *View().GetRowPosition(kManyList, row));
        const panel::Point point = m_handler.rightClicks.back();
        EXPECT_GT(point.x, corner.x) << row;
        EXPECT_GE(point.y, corner.y) << row;
        EXPECT_LT(point.y, corner.y + rowHeight) << row;
    }
}

TEST_F(ListInputTest, RightClickBelowTheRowsIsReported) {
    View().RemoveAllRows(kManyList);
    EXPECT_TRUE(User().RightClickRow(kManyList, kNoRow));
    EXPECT_EQ(m_handler.events, Events{"right click on 305"});
    EXPECT_EQ(Selected(), Rows{});
}

TEST_F(ListInputTest, RightClickOnDisabledListIsNotReported) {
    EXPECT_FALSE(User().RightClickRow(kDisabledList, kNoRow));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ListInputTest, ListMayBeEmptiedInsideItsKey) {
    User().ClickRow(kManyList, 4);
    m_handler.onListKeyDown = [this](auto...) { View().RemoveAllRows(kManyList); };
    EXPECT_TRUE(User().PressKeyInList(kManyList, kDownKey));
    EXPECT_EQ(View().GetRowCount(kManyList), 0);
    EXPECT_EQ(Selected(), Rows{});
}

TEST_F(ListInputTest, ViewMayBeDestroyedInsideItsKey) {
    m_handler.onListKeyDown = [this](auto...) { m_view.reset(); };
    EXPECT_TRUE(User().PressKeyInList(kManyList, kDownKey));
    EXPECT_EQ(m_handler.events, Events{"key 40 in 305"});
}

TEST_F(ListInputTest, ViewMayBeDestroyedInsideItsRightClick) {
    m_handler.onListRightClick = [this](auto) { m_view.reset(); };
    EXPECT_TRUE(User().RightClickRow(kManyList, 2));
    EXPECT_EQ(m_handler.events, Events{"right click on 305"});
}

TEST_F(ListInputTest, ViewMayBeDestroyedInABoxOfItsKey) {
    m_handler.onListKeyDown = [this](auto...) { LoseViewInABox(); };
    EXPECT_TRUE(User().PressKeyInList(kManyList, kDownKey));
    EXPECT_EQ(m_handler.events, Events{"key 40 in 305"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

TEST_F(ListInputTest, ViewMayBeDestroyedInABoxOfItsRightClick) {
    m_handler.onListRightClick = [this](auto) { LoseViewInABox(); };
    EXPECT_TRUE(User().RightClickRow(kManyList, 2));
    EXPECT_EQ(m_handler.events, Events{"right click on 305"});
    EXPECT_EQ(m_driver->Boxes().size(), 2u);
}

}

}
