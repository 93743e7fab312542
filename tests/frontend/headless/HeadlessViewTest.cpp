#include "tests/frontend/headless/HeadlessTest.h"

#include "panel/control/PanelTemplate.h"

namespace headless {

namespace {

class HeadlessViewTest : public HeadlessTest {
protected:
    void SetUp() override { Show(panel::kPanelTemplate); }
    CHeadlessView& View() { return *m_desktop->windows.PanelView(); }
};

TEST_F(HeadlessViewTest, CapturesAreKeptInTheirOrder) {
    View().Capture(panel::kStatusLog);
    View().Capture(999);
    View().Capture(panel::kProgressGroup);
    const std::vector<panel::ControlId> expected = {panel::kStatusLog, panel::kProgressGroup};
    EXPECT_EQ(View().Captures(), expected);
}

TEST_F(HeadlessViewTest, EachMoveComputesTheFrameOnce) {
    View().Move(panel::kFileList, {1, 2, 3, 4});
    View().Move(panel::kFileList, {1, 2, 3, 4});
    EXPECT_EQ(View().FrameComputations(panel::kFileList), 2);
    EXPECT_EQ(View().FrameComputations(panel::kFileGroup), 0);
}

TEST_F(HeadlessViewTest, TextLimitHoldsUntilItIsRemoved) {
    EXPECT_NE(View().TextLimit(panel::kStatusLog), panel::kNoTextLimit);
    View().SetTextLimit(panel::kStatusLog, panel::kNoTextLimit);
    EXPECT_EQ(View().TextLimit(panel::kStatusLog), panel::kNoTextLimit);
}

TEST_F(HeadlessViewTest, LogIsReadLineByLine) {
    View().AppendLog(panel::kStatusLog, "one\r\ntwo\r\n");
    View().AppendLog(panel::kStatusLog, "\r\nopen");
    EXPECT_EQ(View().LogLines(panel::kStatusLog), (Events{"one", "two", "", "open"}));
}

TEST_F(HeadlessViewTest, ResizeClientReportsTheNewSize) {
    View().ResizeClient({1000, 700});
    EXPECT_EQ(m_handler.events, Events{"resized 1000x700"});
}

TEST_F(HeadlessViewTest, RowsTakenBackByAMoveGoOutOfSight) {
    View().InsertColumn(panel::kFileList, 0, {"File name", 120, panel::Alignment::Left});
    for (int row = 0; row < 100; ++row)
        View().InsertRow(panel::kFileList, row, "file");
    EXPECT_TRUE(View().IsRowInSight(panel::kFileList, 10));
    View().Move(panel::kFileList, {0, 0, 300, 60});
    EXPECT_FALSE(View().IsRowInSight(panel::kFileList, 10));
}

TEST_F(HeadlessViewTest, InsertRowAboveMovesMarkAndFocusedRowDown) {
    for (int row = 0; row < 3; ++row)
        View().InsertRow(panel::kFileList, row, "file");
    View().SetEnabled(panel::kFileList, true);
    ASSERT_TRUE(View().ClickRow(panel::kFileList, 1));
    View().InsertRow(panel::kFileList, 0, "above");
    EXPECT_EQ(View().GetSelectionMark(panel::kFileList), 2);
    EXPECT_EQ(View().GetFocusedRow(panel::kFileList), 2);
    EXPECT_EQ(View().GetSelectedRows(panel::kFileList), std::vector<int>{2});
}

TEST_F(HeadlessViewTest, DisabledControlWithFocusGetsItBack) {
    View().SetFocus(panel::kCloseButton);
    View().SetEnabled(panel::kCloseButton, false);
    EXPECT_EQ(View().GetFocus(), panel::kCloseButton);
    View().SetEnabled(panel::kCloseButton, true);
    View().PressTab();
    EXPECT_EQ(View().GetFocus(), panel::kHelpButton);
}

}

}
