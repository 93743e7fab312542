#pragma once

#include "frontend/headless/HeadlessList.h"
#include "panel/control/ControlKinds.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/View.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace headless {

struct HeadlessChoice {
    std::string text;
    std::int32_t data = 0;
};

/// State of one control of a view.
struct HeadlessControl {
    /// The rectangle is in pixels of the view.
    HeadlessControl(const panel::ControlTemplate& controlTemplate,
                    const panel::Rectangle& initialRectangle);

    bool IsButton() const;
    bool IsCheckBox() const { return kind == panel::ControlKind::CheckBox; }
    bool IsLog() const { return kind == panel::ControlKind::Log; }
    bool CanHaveFocus() const { return panel::CanHaveFocus(kind); }
    /// Whether its text is the program's to set.
    bool HasText() const { return panel::ShowsText(kind); }
    /// Whether a user can do anything with it.
    bool IsUsable() const { return isEnabled && isVisible; }

    void Move(const panel::Rectangle& target);
    /// Place of a list's row in the view, wherever the list is scrolled to.
    panel::Rectangle RowRectangle(int row) const;
    /// The top left corner of a row inside the list.
    panel::Point RowPosition(int row) const;
    bool HasChoice(int index) const {
        return index >= 0 && index < static_cast<int>(choices.size());
    }

    panel::ControlId id;
    panel::ControlKind kind;
    std::uint32_t helpContext;
    std::string text;  ///< without mnemonic mark, as it was set
    char mnemonic = 0; ///< lower case; 0 when there is none
    bool isEnabled;
    bool isVisible;
    panel::Rectangle rectangle;
    int frameComputations = 0;
    /// What an edit control takes until it is told otherwise; it binds the user, not the program.
    std::size_t textLimit = 30'000;
    int progressMaximum = 100;
    int progressPosition = 0;
    bool isChecked = false;
    std::uint32_t address = 0; ///< its first part in the highest bits
    std::vector<HeadlessChoice> choices;
    int selectedChoice = panel::kNoChoice;
    std::optional<panel::StandardIcon> icon;
    std::unique_ptr<CHeadlessList> list; ///< null for what is no list

private:
    int PageSize() const;
};

}
