#pragma once

#include "frontend/win32/Win32View.h"
#include "panel/control/Toolkit.h"

#include <optional>

namespace win32 {

/// A modal dialog made of a template.
class CDialog {
public:
    CDialog(const panel::DialogTemplate& dialogTemplate, panel::IDialogHandler& handler,
            std::shared_ptr<CCursorStack> cursors);

    /// Calls the handler's OnInit, shows the dialog in front of `owner`, which may be null, and
    /// waits for its end. A dialog that ends with its owner counts as cancelled.
    panel::DialogOutcome Run(HWND owner);

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Whether the system is to choose the control that gets the focus.
    bool Init(HWND window);

    const panel::DialogTemplate& m_template;
    panel::IDialogHandler& m_handler;
    const std::shared_ptr<CCursorStack> m_cursors;
    HWND m_owner = nullptr;
    std::unique_ptr<CWin32View> m_view;
    std::optional<int> m_result;
};

}
