#include "tests/frontend/win32/Win32FrontEndDriver.h"

#include "frontend/win32/Text.h"
#include "frontend/win32/Win32View.h"
#include "tests/frontend/win32/FileDialogUser.h"
#include "tests/frontend/win32/Input.h"
#include "tests/frontend/win32/MenuUser.h"
#include "tests/frontend/win32/Win32ViewUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace win32tests {

namespace {

constexpr int kBoxText = 0xFFFF;
constexpr int kForced = 2;

std::string WithPlainLineEnds(std::wstring text) {
    std::erase(text, L'\r');
    return win32::FromWide(text);
}

std::uint32_t IconBitsOf(HWND box) {
    struct Icon {
        LPCWSTR name;
        std::uint32_t bits;
    };
    constexpr std::uint32_t kNone = 0;
    const Icon icons[] = {{IDI_ERROR, MB_ICONERROR},
                          {IDI_QUESTION, MB_ICONQUESTION},
                          {IDI_WARNING, MB_ICONWARNING},
                          {IDI_INFORMATION, MB_ICONINFORMATION}};
    for (const HWND label : ChildrenOf(box, L"Static")) {
        const auto shown = reinterpret_cast<HICON>(SendMessageW(label, STM_GETICON, 0, 0));
        for (const Icon& icon : icons) {
            if (shown && shown == LoadIconW(nullptr, icon.name)) {
                return icon.bits;
            }
        }
    }
    return kNone;
}

// All buttons of a box are there; those that it does not offer are hidden.
bool IsOffered(HWND box, int button) {
    const HWND window = GetDlgItem(box, button);
    return window && IsWindowVisible(window);
}

conformance::ShownBox Read(HWND box) {
    const bool isQuestion = IsOffered(box, IDYES) && IsOffered(box, IDNO);
    EXPECT_NE(isQuestion, IsOffered(box, IDOK));
    return {WithPlainLineEnds(TextOf(GetDlgItem(box, kBoxText))), win32::FromWide(TextOf(box)),
            IconBitsOf(box) | (isQuestion ? MB_YESNO : MB_OK)};
}

panel::MenuItem ReadItem(HMENU menu, UINT index) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_FTYPE | MIIM_ID;
    GetMenuItemInfoW(menu, index, TRUE, &item);
    if (item.fType & MFT_SEPARATOR) {
        return {};
    }
    wchar_t text[128] = {};
    GetMenuStringW(menu, index, text, 128, MF_BYPOSITION);
    return {static_cast<int>(item.wID), win32::FromWide(text)};
}

conformance::ShownMenu ReadMenu(HWND window) {
    const HMENU menu = MenuOf(window);
    conformance::ShownMenu shown;
    for (int index = 0; index < GetMenuItemCount(menu); ++index) {
        shown.items.push_back(ReadItem(menu, static_cast<UINT>(index)));
    }
    RECT place{};
    GetWindowRect(window, &place);
    shown.corner = {static_cast<int>(place.left), static_cast<int>(place.top)};
    return shown;
}

}

CWin32FrontEndDriver::~CWin32FrontEndDriver() {
    for (const std::string& prompt : m_prompts.GetUnexpected()) {
        ADD_FAILURE() << "unexpected prompt: " << prompt;
    }
    EXPECT_EQ(m_prompts.GetOutstanding(), 0u) << "expected prompts did not come";
}

std::unique_ptr<panel::IView>
CWin32FrontEndDriver::CreateView(const panel::DialogTemplate& dialogTemplate,
                                 panel::IDialogHandler& handler) {
    auto view = m_toolkit.CreateView(dialogTemplate, m_window.Get(), handler);
    // As a host does that activates what it embeds.
    SetFocus(dynamic_cast<win32::CWin32View&>(*view).GetWindow());
    Pump();
    return view;
}

std::unique_ptr<panel::IView>
CWin32FrontEndDriver::CreateViewInVain(const panel::DialogTemplate& dialogTemplate,
                                       panel::IDialogHandler& handler) {
    HWND ended = nullptr;
    {
        const CHostWindow window;
        ended = window.Get();
    }
    return m_toolkit.CreateView(dialogTemplate, ended, handler);
}

conformance::IViewUser& CWin32FrontEndDriver::UserOf(panel::IView& view) {
    return AddUser(dynamic_cast<win32::CWin32View&>(view).GetWindow());
}

conformance::IViewUser& CWin32FrontEndDriver::AddUser(HWND view) {
    m_users.push_back(std::make_unique<CWin32ViewUser>(view));
    return *m_users.back();
}

// The box's own loop handles what is done to it last.
void CWin32FrontEndDriver::ExpectBox(std::int32_t button, std::function<void()> whileOpen) {
    m_prompts.Expect(PromptKind::Box, [this, button, whileOpen](HWND box) {
        m_boxes.push_back(Read(box));
        if (whileOpen) {
            whileOpen();
        }
        ASSERT_TRUE(IsOffered(box, button));
        ClickCentre(GetDlgItem(box, button));
    });
}

void CWin32FrontEndDriver::ExpectBoxAndEscape() {
    m_prompts.Expect(PromptKind::Box, [this](HWND box) {
        m_boxes.push_back(Read(box));
        PressKey(VK_ESCAPE);
    });
}

void CWin32FrontEndDriver::ExpectDialog(std::function<void(conformance::IViewUser&)> act) {
    m_prompts.Expect(PromptKind::Dialog, [this, act](HWND dialog) {
        act(AddUser(dialog));
        if (IsWindowVisible(dialog)) {
            AddUser(dialog).PressEscape();
        }
        if (IsWindowVisible(dialog)) {
            EndDialog(dialog, kForced);
        }
    });
}

void CWin32FrontEndDriver::ExpectMenu(int command, std::function<void()> whileOpen) {
    m_prompts.Expect(PromptKind::Menu, [this, command, whileOpen](HWND window) {
        m_menus.push_back(ReadMenu(window));
        if (whileOpen) {
            whileOpen();
        }
        ChooseFromMenu(window, command);
    });
}

void CWin32FrontEndDriver::ExpectFileDialog(
    std::function<void(conformance::IFileDialogUser&)> act) {
    m_prompts.Expect(PromptKind::FileDialog, [act](HWND dialog) {
        CFileDialogUser user(dialog);
        act(user);
        user.Cancel();
    });
}

// Wine's dialog looks for the file first, Windows' does not.
bool CWin32FrontEndDriver::OpensByCompletedName() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
}

bool CWin32FrontEndDriver::IsWaitCursorShown() {
    return GetCursor() == LoadCursorW(nullptr, IDC_WAIT);
}

bool CWin32FrontEndDriver::IsHelpViewerShown() {
    return std::ranges::any_of(OwnWindows(), IsHelpViewer);
}

}

namespace conformance {

std::unique_ptr<IFrontEndDriver> MakeDriver() {
    return std::make_unique<win32tests::CWin32FrontEndDriver>();
}

}
