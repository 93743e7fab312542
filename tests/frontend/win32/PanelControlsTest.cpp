// What the panel's controls are as windows of the system.

#include "frontend/win32/Win32Toolkit.h"
#include "frontend/win32/Win32View.h"
#include "panel/control/PanelTemplate.h"
#include "tests/frontend/conformance/RecordingHandler.h"
#include "tests/frontend/win32/HostWindow.h"
#include "tests/frontend/win32/Input.h"

#include <gtest/gtest.h>

namespace win32tests {

namespace {

using panel::ControlId;

/// Counts how often a message comes to a window.
class CMessageCounter {
public:
    CMessageCounter(HWND window, UINT message) : m_window(window), m_message(message) {
        SetWindowSubclass(m_window, Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
    }
    ~CMessageCounter() { RemoveWindowSubclass(m_window, Procedure, kSubclass); }
    CMessageCounter(const CMessageCounter&) = delete;
    CMessageCounter& operator=(const CMessageCounter&) = delete;

    int Count() const { return m_count; }

private:
    static constexpr UINT_PTR kSubclass = 77;

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR, DWORD_PTR reference) {
        auto& counter = *reinterpret_cast<CMessageCounter*>(reference);
        counter.m_count += message == counter.m_message;
        return DefSubclassProc(window, message, wParam, lParam);
    }

    const HWND m_window;
    const UINT m_message;
    int m_count = 0;
};

class PanelControlsTest : public testing::Test {
protected:
    void SetUp() override {
        m_view = m_toolkit.CreateView(panel::kPanelTemplate, m_host.Get(), m_handler);
        m_handler.events.clear();
    }

    HWND Control(ControlId id) {
        return GetDlgItem(dynamic_cast<win32::CWin32View&>(*m_view).GetWindow(), id);
    }
    DWORD StyleOf(ControlId id) {
        return static_cast<DWORD>(GetWindowLongPtrW(Control(id), GWL_STYLE));
    }

    const CHostWindow m_host;
    win32::CWin32Toolkit m_toolkit;
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
};

TEST_F(PanelControlsTest, FileListIsAReportWithoutExtras) {
    const DWORD style = StyleOf(panel::kFileList);
    EXPECT_EQ(style & LVS_TYPEMASK, DWORD{LVS_REPORT});
    EXPECT_TRUE(style & LVS_NOSORTHEADER);
    EXPECT_TRUE(style & LVS_SHOWSELALWAYS);
    EXPECT_FALSE(style & LVS_SINGLESEL);
    EXPECT_EQ(SendMessageW(Control(panel::kFileList), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0), 0);
}

TEST_F(PanelControlsTest, SizeFieldsAcceptDigitsOnly) {
    for (const ControlId id : {panel::kFlashSizeField, panel::kFreeFlashField, panel::kRamSizeField,
                               panel::kFreeRamField}) {
        SendMessageW(Control(id), EM_SETREADONLY, FALSE, 0);
        SetFocus(Control(id));
        Type(L"1a2-3");
        EXPECT_EQ(TextOf(Control(id)), L"123") << id;
    }
}

TEST_F(PanelControlsTest, LogHasAVerticalScrollBarAndManyLines) {
    const DWORD style = StyleOf(panel::kStatusLog);
    EXPECT_TRUE(style & WS_VSCROLL);
    EXPECT_TRUE(style & ES_AUTOVSCROLL);
    EXPECT_TRUE(style & ES_MULTILINE);
    EXPECT_TRUE(style & ES_READONLY);
}

TEST_F(PanelControlsTest, AppendKeepsTheSelectedTextAndSelectsNothing) {
    const HWND log = Control(panel::kStatusLog);
    m_view->AppendLog(panel::kStatusLog, "one\r\ntwo\r\n");
    SendMessageW(log, EM_SETSEL, 1, 7);
    m_view->AppendLog(panel::kStatusLog, "three\r\n");
    EXPECT_EQ(m_view->GetText(panel::kStatusLog), "one\r\ntwo\r\nthree\r\n");
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(log, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(begin, 17u);
    EXPECT_EQ(end, 17u);
}

TEST_F(PanelControlsTest, MoveHasTheFrameComputedAnew) {
    for (const ControlId id : {panel::kHelpButton, panel::kFileList, panel::kStatusLog}) {
        const CMessageCounter frames(Control(id), WM_NCCALCSIZE);
        m_view->Move(id, m_view->GetRectangle(id));
        EXPECT_GE(frames.Count(), 1) << id;
    }
}

TEST_F(PanelControlsTest, HelpRequestGoesNoFurtherThanThePanel) {
    const CMessageCounter requests(m_host.Get(), WM_HELP);
    m_view->SetFocus(panel::kHelpButton);
    PressKey(VK_F1);
    EXPECT_EQ(m_handler.events, std::vector<std::string>{"help 9"});
    EXPECT_EQ(requests.Count(), 0);
}

}

}
