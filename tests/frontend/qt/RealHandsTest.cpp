#include "tests/frontend/qt/RealHandsFixture.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

namespace qttests {

namespace {

TEST_F(RealHandsTest, ClicksSelectRows) {
    m_hands.Click(*List().viewport(), PlaceOf(2));
    EXPECT_TRUE(WaitForSelection({2}));
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(5));
    EXPECT_TRUE(WaitForSelection({2, 3, 4, 5}));
    m_hands.ClickHolding("ctrl", *List().viewport(), PlaceOf(3));
    EXPECT_TRUE(WaitForSelection({2, 4, 5}));
}

TEST_F(RealHandsTest, ShiftClickAfterRefreshExtendsFromTheFirstRow) {
    m_hands.ClickHolding("shift", *List().viewport(), PlaceOf(3));
    EXPECT_TRUE(WaitForSelection({0, 1, 2, 3}));
}

TEST_F(RealHandsTest, RightClickSelectsTheRowBeneathAndOpensTheMenu) {
    bool isOpened = false;
    m_prompts.Expect<QMenu>([&](QMenu&) {
        EXPECT_EQ(List().GetSelectedRows(), Rows{4});
        isOpened = true;
        m_hands.PressKey("Escape");
    });
    m_hands.Click(*List().viewport(), PlaceOf(4), 3);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return isOpened && QApplication::activePopupWidget() == nullptr; }, 10000));
}

TEST_F(RealHandsTest, WheelAndKeysScrollTheList) {
    m_hands.Click(*List().viewport(), PlaceOf(0), 5);
    EXPECT_TRUE(QTest::qWaitFor([this] { return List().verticalScrollBar()->value() > 0; }));
    m_hands.Click(*List().viewport(), List().viewport()->rect().center());
    m_hands.PressKey("End");
    EXPECT_TRUE(WaitForSelection({kFiles - 1}));
    EXPECT_EQ(List().verticalScrollBar()->value(), List().verticalScrollBar()->maximum());
}

TEST_F(RealHandsTest, DetailsButtonShowsSelfTestsUntilEscape) {
    bool isShown = false;
    m_prompts.Expect<QDialog>([&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Startup Self-test statuses"));
        EXPECT_EQ(dialog.findChild<qt::CListView*>()->GetRowCount(), 21);
        isShown = true;
        m_hands.Activate(dialog);
        m_hands.PressKey("Escape");
    });
    m_hands.Click(Control(panel::kDetailsButton));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return isShown && QApplication::activeModalWidget() == nullptr; }, 10000));
}

TEST_F(RealHandsTest, F1ShowsHelp) {
    m_hands.Click(*List().viewport(), PlaceOf(1));
    m_hands.PressKey("F1");
    EXPECT_TRUE(QTest::qWaitFor(IsHelpShown));
}

TEST_F(RealHandsTest, TabFollowsTheTemplate) {
    m_hands.Click(Control(panel::kSerialNumberField));
    ASSERT_TRUE(WaitForFocus(panel::kSerialNumberField));
    constexpr panel::ControlId kOrder[] = {
        panel::kHardwareField,  panel::kFlashSizeField,     panel::kFreeFlashField,
        panel::kRamSizeField,   panel::kFreeRamField,       panel::kBootSwField,
        panel::kFpgaField,      panel::kApplicationSwField, panel::kSelfTestField,
        panel::kIpAddressField, panel::kFileList,           panel::kStatusLog,
        panel::kUpdateButton,   panel::kDeleteButton,       panel::kReportButton,
        panel::kResetButton,    panel::kDetailsButton,      panel::kNetworkButton,
        panel::kCloseButton,    panel::kHelpButton,         panel::kSerialNumberField,
    };
    for (const panel::ControlId id : kOrder) {
        m_hands.PressKey("Tab");
        ASSERT_TRUE(WaitForFocus(id)) << id;
    }
}

TEST_F(RealHandsTest, UpdateButtonHasTheFocusOnceConnected) {
    EXPECT_TRUE(WaitForFocus(panel::kUpdateButton));
}

TEST_F(RealHandsTest, AltMnemonicsPressTheirButtons) {
    m_hands.PressKey("alt+c");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_viewControl->closeRequests == 1; }));
    m_hands.PressKey("alt+h");
    EXPECT_TRUE(QTest::qWaitFor(IsHelpShown));
}

TEST_F(RealHandsTest, ViewEndedByItsOwnCloseButtonIsGone) {
    m_viewControl->onClose = [this] { m_panel->DestroyView(); };
    m_hands.Click(Control(panel::kCloseButton));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window.findChildren<QWidget*>().isEmpty(); }));
}

}

}
