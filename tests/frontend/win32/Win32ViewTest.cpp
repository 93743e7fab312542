// What only a view of the system's own controls has: its windows, their ends, and a host that is
// not Qt.

#include "frontend/win32/Win32View.h"

#include "frontend/win32/Text.h"
#include "frontend/win32/Win32Toolkit.h"
#include "panel/selftest/SelfTestTemplate.h"
#include "tests/frontend/conformance/RecordingHandler.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/Win32ViewUser.h"

#include <gtest/gtest.h>

#include <new>
#include <optional>

namespace win32tests {

namespace {

using enum panel::ControlKind;
using Events = std::vector<std::string>;

constexpr panel::ControlId kButton = 301;
constexpr panel::ControlId kOther = 302;
constexpr panel::ControlId kList = 303;
constexpr panel::ControlId kLog = 304;
constexpr panel::ControlId kEdit = 305;
constexpr panel::ControlId kSingleList = 306;

constexpr panel::ControlTemplate kControls[] = {
    {kButton, Button, "&Delete", {7, 7, 40, 14}},
    {kOther, Button, "&Help", {54, 7, 40, 14}},
    {kList, MultiSelectList, "", {7, 30, 100, 50}},
    {kLog, Log, "", {7, 90, 100, 30}},
    {kEdit, EditField, "", {7, 130, 100, 13}},
    {kSingleList, SingleSelectList, "", {7, 146, 100, 30}},
};
constexpr panel::DialogTemplate kTemplate{300, "", {120, 180}, kControls};

class Win32ViewTest : public testing::Test {
protected:
    void SetUp() override {
        m_view = m_toolkit.CreateView(kTemplate, m_host->Get(), m_handler);
        m_handler.events.clear();
    }

    HWND ViewWindow() { return dynamic_cast<win32::CWin32View&>(*m_view).GetWindow(); }
    HWND Control(panel::ControlId id) { return GetDlgItem(ViewWindow(), id); }
    CWin32ViewUser User() { return CWin32ViewUser(ViewWindow()); }

    std::optional<CHostWindow> m_host{std::in_place};
    win32::CWin32Toolkit m_toolkit;
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
};

TEST_F(Win32ViewTest, ViewIsAVisibleChildOfTheHostsWindow) {
    EXPECT_EQ(GetParent(ViewWindow()), m_host->Get());
    EXPECT_TRUE(IsWindowVisible(ViewWindow()));
    EXPECT_TRUE(GetWindowLongPtrW(ViewWindow(), GWL_EXSTYLE) & WS_EX_CONTROLPARENT);
}

TEST_F(Win32ViewTest, ListOfSelfTestsShowsItsOneSelectionAlwaysAndSortsNothing) {
    const auto view = m_toolkit.CreateView(panel::kSelfTestTemplate, m_host->Get(), m_handler);
    const HWND window = dynamic_cast<win32::CWin32View&>(*view).GetWindow();
    const auto style = GetWindowLongPtrW(GetDlgItem(window, 236), GWL_STYLE);
    EXPECT_EQ(style & LVS_TYPEMASK, LVS_REPORT);
    EXPECT_TRUE(style & LVS_SINGLESEL);
    EXPECT_TRUE(style & LVS_SHOWSELALWAYS);
    EXPECT_TRUE(style & LVS_NOSORTHEADER);
}

TEST_F(Win32ViewTest, ListShowsItsSelectionWithoutFocusUnderHeadingsThatCannotBeClicked) {
    m_view->InsertColumn(kList, 0, {"Name", 100, panel::Alignment::Left});
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(Control(kList), GWL_STYLE));
    EXPECT_EQ(style & LVS_TYPEMASK, static_cast<DWORD>(LVS_REPORT));
    EXPECT_TRUE(style & LVS_SHOWSELALWAYS);
    EXPECT_FALSE(style & LVS_SINGLESEL);
    EXPECT_FALSE(style & (LVS_SORTASCENDING | LVS_SORTDESCENDING));
    const auto header = reinterpret_cast<HWND>(SendMessageW(Control(kList), LVM_GETHEADER, 0, 0));
    ASSERT_TRUE(IsWindow(header));
    EXPECT_FALSE(GetWindowLongPtrW(header, GWL_STYLE) & HDS_BUTTONS);
}

TEST_F(Win32ViewTest, ListHasNoShortcutThatSelectsAll) {
    for (int row = 0; row < 3; ++row) {
        m_view->InsertRow(kList, row, "row");
    }
    m_view->SelectRow(kList, 1, true);
    m_view->SetFocus(kList);
    PressKey('A', VK_CONTROL);
    EXPECT_EQ(m_handler.events, (Events{"key 17 in 303", "key 65 in 303"}));
    EXPECT_EQ(m_view->GetSelectedRows(kList), std::vector<int>{1});
}

TEST_F(Win32ViewTest, KeyNotificationIsAnsweredWithZero) {
    NMLVKEYDOWN key{};
    key.hdr = {Control(kList), static_cast<UINT_PTR>(kList), static_cast<UINT>(LVN_KEYDOWN)};
    key.wVKey = VK_DELETE;
    EXPECT_EQ(SendMessageW(ViewWindow(), WM_NOTIFY, kList, reinterpret_cast<LPARAM>(&key)), 0);
    EXPECT_EQ(m_handler.events, Events{"key 46 in 303"});
}

TEST_F(Win32ViewTest, ListOfManySelectionsHasNoExtendedStyle) {
    EXPECT_EQ(SendMessageW(Control(kList), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0), 0);
}

TEST_F(Win32ViewTest, CutTextsOfAListOfOneSelectionUnfoldUnderTheMouse) {
    EXPECT_EQ(SendMessageW(Control(kSingleList), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0),
              LVS_EX_LABELTIP);
}

TEST_F(Win32ViewTest, DestroyedViewLeavesNoWindow) {
    const HWND window = ViewWindow();
    m_view.reset();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32ViewTest, ViewDestroyedInsideItsCommandEndsItsWindowAfterwards) {
    const HWND window = ViewWindow();
    m_handler.onCommand = [&](panel::ControlId) {
        m_view.reset();
        EXPECT_TRUE(IsWindow(window));
        EXPECT_FALSE(IsWindowVisible(window));
    };
    EXPECT_TRUE(User().Press(kButton));
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32ViewTest, ExceptionOutOfACommandEndsInTheView) {
    const HWND window = ViewWindow();
    m_handler.onCommand = [](panel::ControlId) { throw std::bad_alloc(); };
    EXPECT_TRUE(User().Press(kButton));
    m_handler.onCommand = {};
    EXPECT_TRUE(User().Press(kOther));
    EXPECT_EQ(m_handler.events, (Events{"command 301", "command 302"}));
    m_view.reset();
    EXPECT_FALSE(IsWindow(window)); // at once, for no command is left running
}

TEST_F(Win32ViewTest, ViewDestroyedInsideACommandThatThrowsEndsItsWindow) {
    const HWND window = ViewWindow();
    m_handler.onCommand = [&](panel::ControlId) {
        m_view.reset();
        throw std::bad_alloc();
    };
    EXPECT_TRUE(User().Press(kButton));
    Pump();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32ViewTest, LoopInsideANotificationLeavesTheWindowOfALostView) {
    const HWND window = ViewWindow();
    m_handler.onListKeyDown = [&](auto...) {
        m_view.reset();
        Pump(); // as a box does
        EXPECT_TRUE(IsWindow(window));
    };
    EXPECT_TRUE(User().PressKeyInList(kList, panel::kDeleteKey));
    EXPECT_EQ(m_handler.events, Events{"key 46 in 303"});
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32ViewTest, VerbsAfterTheHostsWindowEndedDoNothing) {
    m_host.reset();
    m_view->SetText(kButton, "text");
    m_view->AppendLog(kLog, "line\r\n");
    m_view->SetFocus(kButton);
    m_view->SetSize({10, 10});
    m_view->Move(kButton, {1, 2, 3, 4});
    EXPECT_EQ(m_view->InsertRow(kList, 0, "row"), panel::kNoRow);
    EXPECT_EQ(m_view->Capture(kButton), panel::kNoControl);
    EXPECT_EQ(m_view->GetText(kLog), "");
    EXPECT_EQ(m_view->GetFocus(), panel::kNoControl);
    EXPECT_EQ(m_view->GetClientSize(), panel::Size{});
    EXPECT_EQ(m_view->GetSelectionMark(kList), panel::kNoRow);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(Win32ViewTest, FocusedControlThatIsDisabledGetsTheFocusBackWhenEnabled) {
    m_view->SetFocus(kButton);
    m_view->SetEnabled(kButton, false);
    EXPECT_EQ(GetFocus(), ViewWindow());
    EXPECT_EQ(m_view->GetFocus(), kButton);
    m_view->SetEnabled(kButton, true);
    EXPECT_EQ(GetFocus(), Control(kButton));
}

TEST_F(Win32ViewTest, KeysGoOnWhileTheFocusedControlIsDisabled) {
    m_view->SetFocus(kButton);
    m_view->SetEnabled(kButton, false);
    EXPECT_TRUE(User().PressMnemonic('h'));
    EXPECT_EQ(m_handler.events, Events{"command 302"});
}

TEST_F(Win32ViewTest, FocusOfAnInactiveWindowWaitsAndTakesNoActivation) {
    const CHostWindow other;
    m_view->SetFocus(kOther);
    EXPECT_EQ(GetActiveWindow(), other.Get());
    EXPECT_EQ(m_view->GetFocus(), kOther);
    SetForegroundWindow(m_host->Get());
    SetFocus(ViewWindow());
    EXPECT_EQ(GetFocus(), Control(kOther));
}

TEST_F(Win32ViewTest, FocusGivenToTheViewReturnsToTheControlThatHadIt) {
    m_view->SetFocus(kOther);
    SetFocus(ViewWindow());
    EXPECT_EQ(GetFocus(), Control(kOther));
}

TEST_F(Win32ViewTest, EscapeInTheLogOfAPanelSendsNothing) {
    m_view->SetFocus(kLog);
    User().PressEscape();
    EXPECT_TRUE(IsWindow(ViewWindow()));
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(Win32ViewTest, LogThatGetsTheFocusByTabIsNotSelected) {
    m_view->AppendLog(kLog, "line\r\n");
    m_view->SetFocus(kList);
    User().PressTab();
    ASSERT_EQ(GetFocus(), Control(kLog));
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(Control(kLog), EM_GETSEL, reinterpret_cast<WPARAM>(&begin),
                 reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(begin, end);
}

TEST_F(Win32ViewTest, AppendShowsTheEndOfTheLog) {
    for (int line = 0; line < 40; ++line) {
        m_view->AppendLog(kLog, "line\r\n");
    }
    SCROLLINFO scroll{};
    scroll.cbSize = sizeof scroll;
    scroll.fMask = SIF_ALL;
    ASSERT_TRUE(GetScrollInfo(Control(kLog), SB_VERT, &scroll));
    EXPECT_GT(scroll.nPos, 0);
    EXPECT_GE(scroll.nPos + static_cast<int>(scroll.nPage), scroll.nMax);
}

TEST_F(Win32ViewTest, PasteCutByTheLimitLeavesNoHalfCharacter) {
    m_view->SetTextLimit(kEdit, 2);
    SetWindowTextW(Control(kEdit), L"a");
    SendMessageW(Control(kEdit), EM_SETSEL, 1, 1);
    const std::wstring pasted = L"\xD83D\xDD27";
    OpenClipboard(m_host->Get());
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (pasted.size() + 1) * sizeof(wchar_t));
    std::copy_n(pasted.c_str(), pasted.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
    SendMessageW(Control(kEdit), WM_PASTE, 0, 0);
    EXPECT_EQ(m_view->GetText(kEdit), "a");
}

TEST_F(Win32ViewTest, WaitCursorIsShownAgainWhenTheMouseMovesOverTheView) {
    m_toolkit.PushWaitCursor();
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    SendMessageW(Control(kEdit), WM_SETCURSOR, reinterpret_cast<WPARAM>(Control(kEdit)),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    m_toolkit.PopCursor();
}

}

}
