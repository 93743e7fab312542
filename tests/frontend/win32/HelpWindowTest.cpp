#include "frontend/win32/HelpWindow.h"

#include "frontend/win32/Text.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/PromptHands.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace win32tests {

namespace {

constexpr int kPage = 102;

constexpr const char* kHelp = "# 1 Overview\n"
                              "\n"
                              "See [the list](topic:224).\n"
                              "\n"
                              "# 224 File list\n"
                              "\n"
                              "Files of the device.\n";

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() { m_folder.Write("panel.hlp", kHelp); }

    void Show(std::uint32_t topic) {
        m_help.ShowTopic(m_folder.PathOf("panel.hlp"), topic, nullptr);
        Pump();
    }

    /// The window; null while it is hidden.
    HWND Window() {
        const std::vector<HWND> windows = OwnWindows();
        const auto found = std::ranges::find_if(windows, IsHelpViewer);
        return found == windows.end() ? nullptr : *found;
    }
    HWND Page() { return GetDlgItem(Window(), kPage); }
    HWND Tree() { return ChildrenOf(Window(), L"SysTreeView32").at(0); }
    std::string PageText() {
        std::wstring text = TextOf(Page());
        std::erase(text, L'\r');
        return win32::FromWide(text);
    }

    simulator::CTemporaryFolder m_folder;
    win32::CHelpWindow m_help;
};

TEST_F(HelpWindowTest, TopicAskedForIsShownBesideTheTree) {
    Show(224);
    EXPECT_EQ(PageText(), "File list\nFiles of the device.\n");
    EXPECT_EQ(SendMessageW(Tree(), TVM_GETCOUNT, 0, 0), 2);
}

TEST_F(HelpWindowTest, ChoosingInTheTreeShowsTheTopic) {
    Show(224);
    SetFocus(Tree());
    PressKey(VK_UP);
    EXPECT_EQ(PageText(), "Overview\nSee the list.\n");
}

TEST_F(HelpWindowTest, ClickOnALinkFollowsIt) {
    Show(1);
    POINTL place{};
    SendMessageW(Page(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place), 15);
    POINT onScreen{place.x + 2, place.y + 5};
    ClientToScreen(Page(), &onScreen);
    ClickScreen({static_cast<int>(onScreen.x), static_cast<int>(onScreen.y)});
    Pump();
    EXPECT_EQ(PageText(), "File list\nFiles of the device.\n");
}

TEST_F(HelpWindowTest, PageKeepsItsMarginInAnySize) {
    Show(1);
    SetWindowPos(Window(), nullptr, 0, 0, 700, 300, SWP_NOMOVE | SWP_NOZORDER);
    POINTL begin{};
    SendMessageW(Page(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&begin), 0);
    constexpr LONG kLeastMargin = 5; // the system takes a pixel or two of it
    EXPECT_GE(begin.x, kLeastMargin);
    EXPECT_GE(begin.y, kLeastMargin);
}

TEST_F(HelpWindowTest, AskedAgainTheSameWindowShowsTheOtherTopic) {
    Show(1);
    const HWND first = Window();
    Show(224);
    EXPECT_EQ(Window(), first);
    EXPECT_EQ(PageText(), "File list\nFiles of the device.\n");
}

TEST_F(HelpWindowTest, MissingTopicIsSaidInTheWindow) {
    Show(5);
    EXPECT_EQ(PageText(), "There is no page 5 in this help.");
}

TEST_F(HelpWindowTest, MissingFileIsSaidInTheWindow) {
    m_help.ShowTopic("no-such-folder\\no-such-file.hlp", 1, nullptr);
    EXPECT_EQ(PageText(), "The help file was not found. It was looked for here:\n\n"
                          "no-such-folder\\no-such-file.hlp");
}

TEST_F(HelpWindowTest, EscapeHidesTheWindowAndItCanBeShownAgain) {
    Show(1);
    PressKey(VK_ESCAPE);
    EXPECT_EQ(Window(), nullptr);
    Show(1);
    EXPECT_NE(Window(), nullptr);
}

TEST_F(HelpWindowTest, TabGoesBetweenPageAndTree) {
    Show(1);
    EXPECT_EQ(GetFocus(), Page());
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), Tree());
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), Page());
}

}

}
