#pragma once

#include "tests/frontend/conformance/FrontEndDriver.h"
#include "tests/frontend/qt/ControlUser.h"

namespace qttests {

/// Eyes and hands of a user on the widgets of one view.
class CQtViewUser final : public conformance::IViewUser {
public:
    explicit CQtViewUser(QWidget& view) : m_user(view) {}

    bool Press(panel::ControlId button) override;
    bool PressMnemonic(char letter) override;
    bool PressKeyInList(panel::ControlId list, std::uint16_t virtualKey) override;
    bool ClickRow(panel::ControlId list, int row, conformance::Modifier modifier) override;
    bool RightClickRow(panel::ControlId list, int row) override;
    bool Toggle(panel::ControlId box) override;
    bool TypeText(panel::ControlId field, std::string_view text) override;
    bool TypeAddress(panel::ControlId field, std::uint32_t address) override;
    bool Choose(panel::ControlId list, std::string_view text) override;
    void RequestHelp() override { m_user.PressKey(Qt::Key_F1); }
    void PressTab() override { m_user.PressKey(Qt::Key_Tab); }
    void PressReturn() override { m_user.PressKey(Qt::Key_Return); }
    void PressEscape() override { m_user.PressKey(Qt::Key_Escape); }
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
    QTableView* FindList(panel::ControlId id) const;
    bool ClickList(panel::ControlId list, int row, Qt::MouseButton button,
                   Qt::KeyboardModifiers modifiers);

    CControlUser m_user;
};

}
