#pragma once

#include "frontend/win32/WinApi.h"
#include "tests/frontend/conformance/FrontEndDriver.h"

namespace win32tests {

/// Uses the controls of a dialog with the system's mouse and keyboard.
class CWin32ViewUser final : public conformance::IViewUser {
public:
    explicit CWin32ViewUser(HWND view) : m_view(view) {}

    bool Press(panel::ControlId button) override;
    bool PressMnemonic(char letter) override;
    bool PressKeyInList(panel::ControlId list, std::uint16_t virtualKey) override;
    bool ClickRow(panel::ControlId list, int row, conformance::Modifier modifier) override;
    bool RightClickRow(panel::ControlId list, int row) override;
    bool Toggle(panel::ControlId box) override;
    bool TypeText(panel::ControlId field, std::string_view text) override;
    bool TypeAddress(panel::ControlId field, std::uint32_t address) override;
    bool Choose(panel::ControlId list, std::string_view text) override;
    void RequestHelp() override;
    void PressTab() override;
    void PressReturn() override;
    void PressEscape() override;
    void PressCloseBox() override;

    std::string ShownTitle() override;
    std::string ShownText(panel::ControlId id) override;
    std::vector<conformance::ShownColumn> ShownColumns(panel::ControlId list) override;
    std::string ShownCell(panel::ControlId list, int row, int column) override;
    bool IsRowInSight(panel::ControlId list, int row) override;
    conformance::ShownProgress Progress(panel::ControlId bar) override;
    bool IsShownChecked(panel::ControlId box) override;
    std::vector<std::string> ShownChoices(panel::ControlId list) override;
    std::optional<panel::StandardIcon> ShownIcon(panel::ControlId id) override;
    std::vector<panel::ControlId> StackingOrder() override;
    panel::Rectangle ScreenRectangle(panel::ControlId id) override;

private:
    HWND Find(panel::ControlId id) const { return GetDlgItem(m_view, id); }
    bool ClickList(HWND list, int row, bool isRight, std::uint16_t heldKey);

    HWND m_view;
};

}
