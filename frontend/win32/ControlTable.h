#pragma once

#include "frontend/win32/WinApi.h"
#include "panel/control/DialogTemplate.h"

#include <string>
#include <unordered_map>

namespace win32 {

/// The controls of one dialog: what the template said of them, and their windows.
class CControlTable {
public:
    struct Control {
        HWND window;
        panel::ControlKind kind;
        std::uint32_t helpContext;
        std::string text; ///< as the user sees it; of kinds whose text is not read from the window
    };

    CControlTable(const panel::DialogTemplate& dialogTemplate, HWND dialog);

    /// Null for an id that the dialog does not have.
    const Control* Find(panel::ControlId id) const;
    Control* Find(panel::ControlId id);
    /// The window of a control of that kind, else null.
    HWND FindWindowOf(panel::ControlId id, panel::ControlKind kind) const;

    /// The id of the control that a window is, or is a part of.
    panel::ControlId FindId(HWND window) const;

private:
    HWND m_dialog;
    std::unordered_map<panel::ControlId, Control> m_controls;
};

bool IsField(panel::ControlKind kind);
bool IsList(panel::ControlKind kind);
/// Whether pressing it is a command.
bool SendsCommands(panel::ControlKind kind);

}
