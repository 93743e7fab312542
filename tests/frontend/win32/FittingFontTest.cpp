// That texts are seen whole, whatever the system's font is: its measures are not those of the
// font that the templates were drawn for.

#include "frontend/win32/FittingFont.h"

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

constexpr ControlId kQuestion = 301;
constexpr ControlId kBox = 302;
constexpr ControlId kList = 303;

constexpr panel::ControlTemplate kControls[] = {
    {kQuestion, panel::ControlKind::Label, "", {7, 7, 100, 8}},
    {kBox, panel::ControlKind::CheckBox, "Internal Compact Flash", {7, 20, 88, 10}},
    {kList, panel::ControlKind::SingleSelectList, "", {7, 40, 100, 50}},
};
constexpr panel::DialogTemplate kTemplate{300, "", {120, 150}, kControls};

HFONT FontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

int WidthOf(const std::wstring& text, HFONT font) {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ previous = SelectObject(screen, font);
    SIZE size{};
    GetTextExtentPoint32W(screen, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(screen, previous);
    ReleaseDC(nullptr, screen);
    return static_cast<int>(size.cx);
}

int ClientWidthOf(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return static_cast<int>(client.right);
}

class FittingFontTest : public testing::Test {
protected:
    void Show(const panel::DialogTemplate& dialogTemplate) {
        m_view = m_toolkit.CreateView(dialogTemplate, m_host.Get(), m_handler);
    }

    HWND ViewWindow() { return dynamic_cast<win32::CWin32View&>(*m_view).GetWindow(); }
    HWND Control(ControlId id) { return GetDlgItem(ViewWindow(), id); }

    int ShownWidthOf(ControlId id) { return WidthOf(TextOf(Control(id)), FontOf(Control(id))); }
    bool HasUsualFont(ControlId id) { return FontOf(Control(id)) == FontOf(ViewWindow()); }

    const CHostWindow m_host;
    win32::CWin32Toolkit m_toolkit;
    conformance::CRecordingHandler m_handler;
    std::unique_ptr<panel::IView> m_view;
};

TEST_F(FittingFontTest, HardwareAddressFitsItsField) {
    Show(panel::kPanelTemplate);
    m_view->SetText(panel::kSerialNumberField, "00-00-5E-00-53-14");
    RECT room{};
    SendMessageW(Control(panel::kSerialNumberField), EM_GETRECT, 0,
                 reinterpret_cast<LPARAM>(&room));
    EXPECT_LE(ShownWidthOf(panel::kSerialNumberField), room.right - room.left);
}

TEST_F(FittingFontTest, ShorterTextHasTheUsualFontAgain) {
    Show(panel::kPanelTemplate);
    m_view->SetText(panel::kSerialNumberField, "00-00-5E-00-53-14");
    EXPECT_FALSE(HasUsualFont(panel::kSerialNumberField));
    m_view->SetText(panel::kSerialNumberField, "80412377");
    EXPECT_TRUE(HasUsualFont(panel::kSerialNumberField));
}

TEST_F(FittingFontTest, LabelALittleTooNarrowShowsItsWholeLine) {
    Show(kTemplate);
    std::string text = "Would";
    while (HasUsualFont(kQuestion) && text.size() < 100) {
        text += " n";
        m_view->SetText(kQuestion, text);
    }
    EXPECT_LE(ShownWidthOf(kQuestion), ClientWidthOf(Control(kQuestion)));
    EXPECT_GT(WidthOf(TextOf(Control(kQuestion)), FontOf(ViewWindow())),
              ClientWidthOf(Control(kQuestion)));
}

TEST_F(FittingFontTest, TextTooLongToBeReadSmallerKeepsTheUsualFont) {
    Show(kTemplate);
    m_view->SetText(kQuestion, std::string(100, 'n'));
    EXPECT_TRUE(HasUsualFont(kQuestion));
}

TEST_F(FittingFontTest, CheckBoxThatIsMadeNarrowerShowsItsWholeText) {
    Show(kTemplate);
    const int usual = ShownWidthOf(kBox);
    m_view->Move(kBox, {10, 10, usual + 15, 16});
    EXPECT_LT(ShownWidthOf(kBox), usual);
}

TEST_F(FittingFontTest, ButtonsOfThePanelShowTheirWholeTexts) {
    Show(panel::kPanelTemplate);
    for (const ControlId button : {panel::kNetworkButton, panel::kDetailsButton}) {
        std::wstring text = TextOf(Control(button));
        std::erase(text, L'&');
        EXPECT_LE(WidthOf(text, FontOf(Control(button))), ClientWidthOf(Control(button)) - 4);
    }
}

TEST_F(FittingFontTest, CutTextsOfASingleSelectionListUnfoldUnderTheMouse) {
    Show(kTemplate);
    EXPECT_TRUE(SendMessageW(Control(kList), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0) & LVS_EX_LABELTIP);
}

TEST_F(FittingFontTest, HeadingsFitTheirColumns) {
    Show(kTemplate);
    m_view->InsertColumn(kList, 0, {"File ID", 44, panel::Alignment::Right});
    m_view->InsertColumn(kList, 1, {"Location", 55, panel::Alignment::Left});
    const auto header = reinterpret_cast<HWND>(SendMessageW(Control(kList), LVM_GETHEADER, 0, 0));
    EXPECT_LE(WidthOf(L"File ID", FontOf(header)), 44 - 12);
    EXPECT_LE(WidthOf(L"Location", FontOf(header)), 55 - 12);
    EXPECT_TRUE(HasUsualFont(kList));
}

}

}
