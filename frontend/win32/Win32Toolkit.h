#pragma once

#include "frontend/win32/CursorStack.h"
#include "frontend/win32/FocusMemory.h"
#include "frontend/win32/SystemFile.h"
#include "frontend/win32/SystemRegistry.h"
#include "panel/control/FileDialog.h"
#include "panel/control/PopupMenu.h"
#include "panel/control/Toolkit.h"
#include "panel/control/View.h"

namespace win32 {

class CHelpWindow;
class CWin32View;

/// The toolkit made of the system's own controls and dialogs. Its thread is a single-threaded
/// apartment with a message loop, which hands the keys of the view's window to IsDialogMessage.
class CWin32Toolkit : public panel::IToolkit {
public:
    /// The rule is that of its views; dialogs have the focus in any case.
    explicit CWin32Toolkit(FocusRule mayTakeFocus = {});
    ~CWin32Toolkit() override;
    CWin32Toolkit(const CWin32Toolkit&) = delete;
    CWin32Toolkit& operator=(const CWin32Toolkit&) = delete;

    /// `nativeParent` is an HWND of this thread. The view is a child of it, with
    /// WS_EX_CONTROLPARENT; F1 needs nothing of the host's message loop. Given the focus, it hands
    /// it on to one of its controls. A view that is destroyed inside one of its own notifications
    /// ends its window with the next messages, so a library stays loaded until they have been
    /// handled.
    std::unique_ptr<panel::IView> CreateView(const panel::DialogTemplate& dialogTemplate,
                                             void* nativeParent,
                                             panel::IDialogHandler& handler) override;
    panel::DialogOutcome RunDialog(const panel::DialogTemplate& dialogTemplate,
                                   panel::IDialogHandler& handler, panel::Owner owner) override;
    std::int32_t ShowBox(const std::string& text, const std::string& caption,
                         std::uint32_t style) override;
    std::unique_ptr<panel::IPopupMenu> CreatePopupMenu(int& error) override;
    panel::FileOutcome OpenFile(const panel::FileDialog& dialog) override;
    panel::FileOutcome SaveFile(const panel::FileDialog& dialog) override;
    char GetPathSeparator() const override { return '\\'; }
    std::string GetCurrentFolder() const override { return win32::GetCurrentFolder(); }
    bool WriteFile(const std::string& path, std::string_view content) override {
        return WriteWholeFile(path, content);
    }
    panel::LocalTime GetLocalTime() const override;
    panel::IRegistry& Registry() override { return m_registry; }
    void PushWaitCursor() override;
    void PopCursor() override;
    /// One window, used again.
    void ShowHelp(const std::string& file, std::uint32_t context, panel::Owner owner) override;
    std::string GetComponentFolder() const override;
    panel::FontMetrics MeasureFont() const override;
    /// To the debugger.
    void Trace(const std::string& line) override;

private:
    /// A top-level window, or null when there is none: for a panel that is not shown the one in
    /// which the user works.
    HWND FindOwner(panel::Owner owner) const;

    const FocusRule m_mayTakeFocus;
    CSystemRegistry m_registry;
    std::shared_ptr<CCursorStack> m_cursors = std::make_shared<CCursorStack>();
    HWND m_panelWindow = nullptr;
    std::unique_ptr<CHelpWindow> m_help;
    int m_waitCursors = 0;
};

}
