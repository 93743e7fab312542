// What only a menu of the system's own can get wrong.

#include "panel/control/PopupMenu.h"
#include "frontend/win32/Win32Toolkit.h"
#include "tests/frontend/conformance/RecordingHandler.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/MenuUser.h"
#include "tests/frontend/win32/PromptHands.h"

#include <gtest/gtest.h>

namespace win32tests {

namespace {

constexpr panel::DialogTemplate kTemplate{300, "", {120, 150}, {}};
const std::vector<panel::MenuItem> kItems = {{1, "Upload"}, {10, "Select &All"}};

class PopupMenuTest : public testing::Test {
protected:
    void SetUp() override { m_view = m_toolkit.CreateView(kTemplate, m_host.Get(), m_handler); }

    int Show(std::function<void(HWND)> act) {
        m_hands.Expect(PromptKind::Menu, std::move(act));
        int error = 0;
        const int command = m_toolkit.CreatePopupMenu(error)->Show(kItems, {100, 100});
        EXPECT_EQ(m_hands.GetOutstanding(), 0u);
        return command;
    }

    const CHostWindow m_host;
    CPromptHands m_hands;
    win32::CWin32Toolkit m_toolkit;
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
};

TEST_F(PopupMenuTest, RightButtonChoosesToo) {
    EXPECT_EQ(Show([](HWND window) {
                  RECT place{};
                  GetMenuItemRect(nullptr, MenuOf(window), 1, &place);
                  ClickScreen({static_cast<int>(place.left + place.right) / 2,
                               static_cast<int>(place.top + place.bottom) / 2},
                              true);
                  // Ends a menu that does not heed the right button.
                  SendKey(VK_ESCAPE);
              }),
              10);
}

TEST_F(PopupMenuTest, MenuEndsWithItsObject) {
    HMENU menu = nullptr;
    EXPECT_EQ(Show([&](HWND window) {
                  menu = MenuOf(window);
                  EXPECT_TRUE(IsMenu(menu));
                  EndMenu();
              }),
              panel::kNoCommand);
    EXPECT_FALSE(IsMenu(menu));
}

}

}
