// What only the toolkit of the system's own windows can get wrong.

#include "frontend/win32/Text.h"
#include "frontend/win32/Win32View.h"
#include "tests/frontend/conformance/RecordingHandler.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/Panel.h"
#include "tests/frontend/win32/Win32FrontEndDriver.h"
#include "tests/simulator/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <dlgs.h>

#include <cstdlib>
#include <filesystem>
#include <new>

namespace win32tests {

namespace {

constexpr panel::ControlTemplate kControls[] = {
    {1, panel::ControlKind::DefaultButton, "OK", {7, 7, 40, 14}},
};
constexpr panel::DialogTemplate kTemplate{300, "A dialog", {100, 30}, kControls};

class Win32ToolkitTest : public testing::Test {
protected:
    void SetUp() override {
        m_view = m_driver.CreateView(kTemplate, m_handler);
        m_host = GetAncestor(dynamic_cast<win32::CWin32View&>(*m_view).GetWindow(), GA_ROOT);
    }

    panel::IToolkit& Toolkit() { return m_driver.Toolkit(); }

    CWin32FrontEndDriver m_driver;
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
    HWND m_host = nullptr;
};

POINT CentreOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

TEST_F(Win32ToolkitTest, BoxKeepsTheHostsWindowFromBeingUsed) {
    bool isUsable = true;
    m_driver.ExpectBox(1, [&] { isUsable = IsWindowEnabled(m_host); });
    Toolkit().ShowBox("text", "caption", 0x10);
    EXPECT_FALSE(isUsable);
    EXPECT_TRUE(IsWindowEnabled(m_host));
}

TEST_F(Win32ToolkitTest, BoxHasNoOwner) {
    HWND box = nullptr;
    HWND owner = m_host;
    m_driver.ExpectBox(1, [&] {
        box = GetActiveWindow();
        owner = ::GetWindow(box, GW_OWNER);
    });
    Toolkit().ShowBox("text", "caption", 0x10);
    EXPECT_NE(box, m_host);
    EXPECT_EQ(owner, nullptr);
}

TEST_F(Win32ToolkitTest, PopCursorGivesTheHostsCursorBack) {
    SetCursor(LoadCursorW(nullptr, IDC_CROSS));
    Toolkit().PushWaitCursor();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    Toolkit().PopCursor();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_CROSS));
}

TEST_F(Win32ToolkitTest, DialogStandsOverTheMiddleOfItsOwner) {
    POINT centre{};
    m_driver.ExpectDialog([&](conformance::IViewUser&) { centre = CentreOf(GetActiveWindow()); });
    Toolkit().RunDialog(kTemplate, m_handler, panel::Owner::Panel);
    const POINT expected = CentreOf(m_host);
    EXPECT_LE(std::abs(centre.x - expected.x), 1);
    EXPECT_LE(std::abs(centre.y - expected.y), 1);
}

TEST_F(Win32ToolkitTest, DialogThatEndsWithItsOwnerCountsAsCancelled) {
    m_driver.ExpectDialog([&](conformance::IViewUser&) { DestroyWindow(m_host); });
    EXPECT_EQ(Toolkit().RunDialog(kTemplate, m_handler, panel::Owner::Panel),
              panel::DialogOutcome::Closed(2));
}

TEST_F(Win32ToolkitTest, DialogThatCannotBeFilledCountsAsCancelled) {
    m_handler.onInit = [](panel::IView&) { throw std::bad_alloc(); };
    EXPECT_EQ(Toolkit().RunDialog(kTemplate, m_handler, panel::Owner::Panel),
              panel::DialogOutcome::Closed(2));
    EXPECT_TRUE(IsWindowEnabled(m_host));
}

TEST_F(Win32ToolkitTest, FileDialogLeavesTheCurrentFolder) {
    const simulator::CTemporaryFolder folder;
    folder.Write("code.bin", "code");
    const std::filesystem::path before = std::filesystem::current_path();
    m_driver.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        EXPECT_TRUE(user.Accept(folder.PathOf("code.bin")));
    });
    EXPECT_EQ(Toolkit().OpenFile({}).path, folder.PathOf("code.bin"));
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Win32ToolkitTest, FileDialogStartsInTheFolderGiven) {
    const simulator::CTemporaryFolder folder;
    folder.Write("code.bin", "code");
    m_driver.ExpectFileDialog(
        [](conformance::IFileDialogUser& user) { EXPECT_TRUE(user.Accept("code.bin")); });
    EXPECT_EQ(Toolkit().OpenFile({.startFolder = folder.PathOf("")}).path,
              folder.PathOf("code.bin"));
}

TEST_F(Win32ToolkitTest, OpenDialogHasTheSystemsTitleTheFirstFilterAndNoReadOnlyBox) {
    std::string title;
    LRESULT filter = CB_ERR;
    bool offersReadOnly = true;
    m_driver.ExpectFileDialog([&](conformance::IFileDialogUser& user) {
        const HWND dialog = GetActiveWindow();
        title = user.ShownTitle();
        filter = SendDlgItemMessageW(dialog, cmb1, CB_GETCURSEL, 0, 0);
        offersReadOnly = IsWindowVisible(GetDlgItem(dialog, chx1));
        user.Cancel();
    });
    Toolkit().OpenFile({.filters = {{"Code", "*.bin"}, {"All files", "*.*"}}});
    EXPECT_EQ(title, "Open");
    EXPECT_EQ(filter, 0);
    EXPECT_FALSE(offersReadOnly);
}

TEST_F(Win32ToolkitTest, LocalTimeIsInTheUsersShortFormats) {
    const auto read = [] {
        wchar_t date[80] = {};
        wchar_t time[80] = {};
        GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, 80);
        GetTimeFormatW(LOCALE_USER_DEFAULT, 0, nullptr, nullptr, time, 80);
        return std::pair(win32::FromWide(date), win32::FromWide(time));
    };
    const auto before = read();
    const panel::LocalTime now = Toolkit().GetLocalTime();
    const std::pair shown(now.date, now.time);
    EXPECT_TRUE(shown == before || shown == read()) << now.date << ' ' << now.time;
}

TEST_F(Win32ToolkitTest, ComponentFolderIsThatOfTheProgram) {
    const std::filesystem::path folder(Toolkit().GetComponentFolder());
    EXPECT_TRUE(std::filesystem::exists(folder / "win32_tests.exe")) << folder;
}

TEST_F(Win32ToolkitTest, PanelHasItsNaturalSizeAndFollowsItsHost) {
    const CHostWindow host;
    const auto panel = MakePanel();
    ASSERT_TRUE(panel->CreateView(host.Get()).IsSuccess());
    const HWND view = ::GetWindow(host.Get(), GW_CHILD);
    RECT area{};
    GetClientRect(view, &area);
    EXPECT_EQ(panel->GetNaturalSize(),
              (contract::PixelSize{static_cast<int>(area.right), static_cast<int>(area.bottom)}));
    panel->Resize({1000, 600});
    GetClientRect(view, &area);
    EXPECT_EQ(area.right, 1000);
    EXPECT_EQ(area.bottom, 600);
}

TEST_F(Win32ToolkitTest, TwoHundredPanelsLeaveNoWindow) {
    const CHostWindow host;
    for (int count = 0; count < 200; ++count) {
        const auto panel = MakePanel();
        ASSERT_TRUE(panel->CreateView(host.Get()).IsSuccess());
        ASSERT_NE(::GetWindow(host.Get(), GW_CHILD), nullptr);
        panel->DestroyView();
        ASSERT_EQ(::GetWindow(host.Get(), GW_CHILD), nullptr) << count;
    }
}

}

}
