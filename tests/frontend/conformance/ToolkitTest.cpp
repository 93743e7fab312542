#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

constexpr std::uint32_t kError = 0x10;
constexpr std::uint32_t kQuestion = 0x24;
constexpr std::uint32_t kWarning = 0x30;
constexpr std::uint32_t kInformation = 0x40;

using Boxes = std::vector<ShownBox>;

class ToolkitTest : public ConformanceTest {};

TEST_F(ToolkitTest, BoxShowsTextAndCaptionAndReturnsOk) {
    for (std::uint32_t style : {kError, kWarning, kInformation}) {
        m_driver->ExpectBox(1);
        EXPECT_EQ(Toolkit().ShowBox("Can't delete file", "Maintenance", style), 1);
        EXPECT_EQ(m_driver->Boxes().back(), (ShownBox{"Can't delete file", "Maintenance", style}));
    }
}

TEST_F(ToolkitTest, QuestionReturnsTheButtonPressed) {
    m_driver->ExpectBox(6);
    EXPECT_EQ(Toolkit().ShowBox("Delete?", "Question", kQuestion), 6);
    m_driver->ExpectBox(7);
    EXPECT_EQ(Toolkit().ShowBox("Delete?", "Question", kQuestion), 7);
}

TEST_F(ToolkitTest, EscapeAnswersNoToAQuestion) {
    m_driver->ExpectBoxAndEscape();
    EXPECT_EQ(Toolkit().ShowBox("Delete?", "Question", kQuestion), 7);
}

TEST_F(ToolkitTest, EscapeAnswersOkToAReport) {
    m_driver->ExpectBoxAndEscape();
    EXPECT_EQ(Toolkit().ShowBox("Failed", "Report", kError), 1);
}

TEST_F(ToolkitTest, BoxShowsMarkupAndAmpersandsAsTheyAre) {
    m_driver->ExpectBox(1);
    Toolkit().ShowBox("<b>R&D</b> &amp; &x", "a & <i>b</i>", kError);
    EXPECT_EQ(m_driver->Boxes(), (Boxes{{"<b>R&D</b> &amp; &x", "a & <i>b</i>", kError}}));
}

TEST_F(ToolkitTest, BoxBreaksLinesAtCrLfAndLf) {
    m_driver->ExpectBox(1);
    Toolkit().ShowBox("one\r\ntwo\nthree", "caption", kError);
    EXPECT_EQ(m_driver->Boxes(), (Boxes{{"one\ntwo\nthree", "caption", kError}}));
}

TEST_F(ToolkitTest, BoxInsideABoxReturnsFirst) {
    std::int32_t inner = 0;
    m_driver->ExpectBox(6, [&] { inner = Toolkit().ShowBox("device gone", "inner", kError); });
    m_driver->ExpectBox(1);
    EXPECT_EQ(Toolkit().ShowBox("Delete?", "outer", kQuestion), 6);
    EXPECT_EQ(inner, 1);
}

TEST_F(ToolkitTest, PanelViewCanBeWrittenWhileABoxIsOpen) {
    Show();
    m_driver->ExpectBox(1, [this] { View().SetText(kField, "meanwhile"); });
    Toolkit().ShowBox("text", "caption", kError);
    EXPECT_EQ(View().GetText(kField), "meanwhile");
}

TEST_F(ToolkitTest, ViewMayBeDestroyedWhileABoxIsOpen) {
    Show();
    m_driver->ExpectBox(1, [this] { m_view.reset(); });
    EXPECT_EQ(Toolkit().ShowBox("text", "caption", kError), 1);
    EXPECT_EQ(m_view, nullptr);
}

TEST_F(ToolkitTest, WaitCursorsNest) {
    EXPECT_FALSE(m_driver->IsWaitCursorShown());
    Toolkit().PushWaitCursor();
    Toolkit().PushWaitCursor();
    EXPECT_TRUE(m_driver->IsWaitCursorShown());
    Toolkit().PopCursor();
    EXPECT_TRUE(m_driver->IsWaitCursorShown());
    Toolkit().PopCursor();
    EXPECT_FALSE(m_driver->IsWaitCursorShown());
}

TEST_F(ToolkitTest, BoxKeepsTheWaitCursorForAfterwards) {
    Toolkit().PushWaitCursor();
    m_driver->ExpectBox(1);
    Toolkit().ShowBox("text", "caption", kError);
    EXPECT_TRUE(m_driver->IsWaitCursorShown());
    Toolkit().PopCursor();
    EXPECT_FALSE(m_driver->IsWaitCursorShown());
}

TEST_F(ToolkitTest, HelpOnAMissingFileIsTheViewersToReport) {
    Show();
    EXPECT_FALSE(m_driver->IsHelpViewerShown());
    Toolkit().ShowHelp("no-such-folder/no-such-file.hlp", 1, panel::Owner::Panel);
    EXPECT_TRUE(m_driver->IsHelpViewerShown());
    EXPECT_EQ(m_driver->Boxes(), Boxes{});
}

TEST_F(ToolkitTest, ComponentFolderHasNoTrailingSeparator) {
    const std::string folder = Toolkit().GetComponentFolder();
    ASSERT_FALSE(folder.empty());
    EXPECT_NE(folder.back(), '/');
    EXPECT_NE(folder.back(), '\\');
}

}

}
