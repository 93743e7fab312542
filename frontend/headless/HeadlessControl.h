#pragma once

#include "frontend/headless/HeadlessList.h"
#include "panel/control/DialogTemplate.h"
#include "panel/control/View.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace headless {

/// State of one control of a view.
struct HeadlessControl {
    /// The rectangle is in pixels of the view.
    HeadlessControl(const panel::ControlTemplate& controlTemplate,
                    const panel::Rectangle& initialRectangle);

    bool IsButton() const;
    bool IsLog() const { return kind == panel::ControlKind::Log; }
    bool CanHaveFocus() const;
    /// Whether a user can do anything with it.
    bool IsUsable() const { return isEnabled && isVisible; }

    void Move(const panel::Rectangle& target);
    /// Place of a list's row in the view, wherever the list is scrolled to.
    panel::Rectangle RowRectangle(int row) const;

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
    std::unique_ptr<CHeadlessList> list; ///< null for what is no list

private:
    int PageSize() const;
};

}
