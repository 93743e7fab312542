#include "tests/frontend/headless/HeadlessTest.h"

#include "panel/control/PanelTemplate.h"

namespace headless {

namespace {

using panel::DialogOutcome;
using panel::Owner;

constexpr panel::ControlId kButton = 11;
constexpr panel::ControlTemplate kControls[] = {
    {kButton, panel::ControlKind::Button, "Go", {7, 7, 40, 14}},
};
const panel::DialogTemplate kTemplate{10, "Title", {100, 50}, kControls};

constexpr std::uint32_t kError = 0x10;
constexpr std::uint32_t kQuestion = 0x24;

class HeadlessToolkitTest : public HeadlessTest {
protected:
    std::int32_t ShowBox(std::uint32_t style) {
        return m_toolkit.ShowBox("text", "caption", style);
    }
    DialogOutcome RunDialog() { return m_toolkit.RunDialog(kTemplate, m_dialog, Owner::Panel); }

    conformance::CRecordingHandler m_dialog;
};

TEST_F(HeadlessToolkitTest, PanelHasItsNaturalSize) {
    EXPECT_EQ(Show(panel::kPanelTemplate).GetClientSize(), (panel::Size{788, 478}));
}

TEST_F(HeadlessToolkitTest, BoxesAreRecordedWithTheirAnswers) {
    Prompts().Answer(6);
    Prompts().Answer(1);
    EXPECT_EQ(ShowBox(kQuestion), 6);
    EXPECT_EQ(ShowBox(kError), 1);
    const std::vector<ShownBox> expected = {{"text", "caption", kQuestion, 6},
                                            {"text", "caption", kError, 1}};
    EXPECT_EQ(Prompts().Boxes(), expected);
    EXPECT_TRUE(Prompts().UnexpectedPrompts().empty());
}

TEST_F(HeadlessToolkitTest, UnexpectedBoxIsNotedAndAnsweredAsByEscape) {
    EXPECT_EQ(ShowBox(kQuestion), 7);
    EXPECT_EQ(ShowBox(kError), 1);
    const Events expected = {"box \"caption\": text", "box \"caption\": text"};
    EXPECT_EQ(Prompts().UnexpectedPrompts(), expected);
    EXPECT_EQ(Prompts().Boxes().size(), 2u);
}

TEST_F(HeadlessToolkitTest, ButtonThatTheBoxDoesNotHaveMakesItUnexpected) {
    Prompts().Answer(6);
    EXPECT_EQ(ShowBox(kError), 1);
    EXPECT_EQ(Prompts().UnexpectedPrompts().size(), 1u);
    EXPECT_EQ(Prompts().PendingAnswers(), 1u);
}

TEST_F(HeadlessToolkitTest, DialogWhereABoxIsExpectedIsUnexpected) {
    Prompts().Answer(1);
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(2));
    EXPECT_EQ(Prompts().UnexpectedPrompts(), Events{"dialog 10"});
    EXPECT_EQ(ShowBox(kError), 1);
    EXPECT_EQ(Prompts().PendingAnswers(), 0u);
}

TEST_F(HeadlessToolkitTest, DialogThatIgnoresEscapeIsClosedByForce) {
    Prompts().AnswerDialog();
    EXPECT_EQ(RunDialog(), DialogOutcome::Closed(2));
    EXPECT_EQ(m_dialog.events, (Events{"init", "command 2"}));
    EXPECT_TRUE(Prompts().UnexpectedPrompts().empty());
}

TEST_F(HeadlessToolkitTest, DialogsAreRecordedWithOwnerAndOutcome) {
    Prompts().AnswerDialog([](CHeadlessView& view) { view.EndDialog(5); });
    m_toolkit.RunDialog(kTemplate, m_dialog, Owner::ActiveWindow);
    const std::vector<ShownDialog> expected = {{10, Owner::ActiveWindow, DialogOutcome::Closed(5)}};
    EXPECT_EQ(Prompts().Dialogs(), expected);
}

TEST_F(HeadlessToolkitTest, DialogMadeToFailIsNotInitialised) {
    Prompts().FailDialog(1158);
    EXPECT_EQ(RunDialog(), DialogOutcome::Failed(1158));
    EXPECT_EQ(m_dialog.events, Events{});
    const std::vector<ShownDialog> expected = {{10, Owner::Panel, DialogOutcome::Failed(1158)}};
    EXPECT_EQ(Prompts().Dialogs(), expected);
}

TEST_F(HeadlessToolkitTest, ViewMadeToFailIsFollowedByOneThatWorks) {
    m_desktop->failingViews = 1;
    EXPECT_EQ(m_toolkit.CreateView(kTemplate, nullptr, m_handler), nullptr);
    EXPECT_NE(m_toolkit.CreateView(kTemplate, nullptr, m_handler), nullptr);
    EXPECT_EQ(m_handler.events, Events{"init"});
}

TEST_F(HeadlessToolkitTest, PathThatIsTooLongEndsTheFileDialogWithItsError) {
    Prompts().ChooseFile("D:\\a.fia");
    EXPECT_EQ(m_toolkit.OpenFile({.pathCapacity = 8}), panel::FileOutcome::Failed(12291));
    Prompts().ChooseFile("D:\\a.fia");
    EXPECT_EQ(m_toolkit.OpenFile({.pathCapacity = 9}), panel::FileOutcome::Accepted("D:\\a.fia"));
}

TEST_F(HeadlessToolkitTest, MadeUpPathIsTakenAsItIs) {
    Prompts().ChooseFile("D:\\missing.bin");
    EXPECT_EQ(m_toolkit.OpenFile({}), panel::FileOutcome::Accepted("D:\\missing.bin"));
    Prompts().ChooseFile("/missing/report.txt");
    EXPECT_EQ(m_toolkit.SaveFile({}), panel::FileOutcome::Accepted("/missing/report.txt"));
}

TEST_F(HeadlessToolkitTest, OpenBoxKeepsTheUserFromTheView) {
    CHeadlessView& view = Show(kTemplate);
    bool couldPress = true;
    Prompts().Answer(1, [&] { couldPress = view.Press(kButton); });
    ShowBox(kError);
    EXPECT_FALSE(couldPress);
    EXPECT_TRUE(view.Press(kButton));
}

TEST_F(HeadlessToolkitTest, OpenDialogKeepsTheUserFromTheView) {
    CHeadlessView& view = Show(kTemplate);
    bool couldPress = true;
    Prompts().AnswerDialog([&](CHeadlessView&) { couldPress = view.Press(kButton); });
    RunDialog();
    EXPECT_FALSE(couldPress);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(HeadlessToolkitTest, DesktopForgetsAViewThatHasEnded) {
    Show(kTemplate);
    m_view.reset();
    EXPECT_EQ(m_desktop->windows.PanelView(), nullptr);
}

TEST_F(HeadlessToolkitTest, CursorDepthAndItsHighestAreKept) {
    m_toolkit.PushWaitCursor();
    m_toolkit.PushWaitCursor();
    m_toolkit.PopCursor();
    m_toolkit.PopCursor();
    m_toolkit.PushWaitCursor();
    EXPECT_EQ(m_desktop->cursorDepth, 1);
    EXPECT_EQ(m_desktop->highestCursorDepth, 2);
}

TEST_F(HeadlessToolkitTest, HelpAndTraceAreRecorded) {
    m_toolkit.ShowHelp("folder/panel.hlp", 3, Owner::ActiveWindow);
    m_toolkit.Trace("a line\n");
    m_toolkit.Trace("another");
    const std::vector<ShownHelp> expected = {{"folder/panel.hlp", 3, Owner::ActiveWindow}};
    EXPECT_EQ(m_desktop->helps, expected);
    EXPECT_EQ(m_desktop->traceLines, (Events{"a line", "another (without newline)"}));
}

TEST_F(HeadlessToolkitTest, ComponentFolderIsWhatTheDesktopSays) {
    m_desktop->componentFolder = "somewhere";
    EXPECT_EQ(m_toolkit.GetComponentFolder(), "somewhere");
}

}

}
