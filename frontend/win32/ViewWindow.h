#pragma once

#include "frontend/win32/ControlTable.h"
#include "frontend/win32/CursorStack.h"
#include "frontend/win32/FittingFont.h"
#include "frontend/win32/FocusMemory.h"
#include "panel/control/DialogHandler.h"

#include <memory>
#include <optional>

namespace win32 {

/// The window of a view: turns the messages of a dialog made from a template into notifications of
/// its handler. Shared by the view and the system's window: the view may end inside its own
/// notification, and then the controls still have to finish handling their messages; the window may
/// end with its parent, and then the view is left without one.
class CViewWindow final : public std::enable_shared_from_this<CViewWindow> {
public:
    /// Joins a dialog that has just been made.
    static std::shared_ptr<CViewWindow> Attach(const panel::DialogTemplate& dialogTemplate,
                                               HWND dialog, panel::IDialogHandler& handler,
                                               std::shared_ptr<const CCursorStack> cursors,
                                               FocusRule mayTakeFocus);

    /// Null once it has ended.
    HWND Get() const { return m_window; }
    CControlTable& Controls() { return m_controls; }
    CFocusMemory& Focus() { return m_focus; }
    CFittingFont& Font() { return m_font; }

    /// The handler hears nothing more.
    void Cut() { m_handler = nullptr; }
    /// Ends the window now, or, inside one of its own notifications, after that.
    void Destroy();

    /// Cancel is a command though no button sent it.
    void AcceptCancel() { m_acceptsCancel = true; }

private:
    CViewWindow(const panel::DialogTemplate& dialogTemplate, HWND dialog,
                panel::IDialogHandler& handler, std::shared_ptr<const CCursorStack> cursors,
                FocusRule mayTakeFocus);

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      UINT_PTR identifier, DWORD_PTR reference);
    /// The answer to a message that the dialog itself is not to see.
    std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);

    bool IsCommand(WPARAM wParam) const;
    void HandleNotification(const NMHDR& notification);
    void HandleListKey(panel::ControlId list, std::uint16_t virtualKey);
    void HandleHelp(const HELPINFO& request);
    void ReportSize(panel::Size size);
    void EndIfDue();

    /// One of its notifications, while it runs. The window may end after the last.
    class CNotification {
    public:
        explicit CNotification(CViewWindow& window) : m_window(window) {
            ++m_window.m_notifications;
        }
        ~CNotification() {
            --m_window.m_notifications;
            m_window.EndIfDue();
        }
        CNotification(const CNotification&) = delete;
        CNotification& operator=(const CNotification&) = delete;

    private:
        CViewWindow& m_window;
    };

    template <class... Parameters, class... Arguments>
    void Notify(void (panel::IDialogHandler::*event)(Parameters...), Arguments... arguments) {
        if (m_handler) {
            const CNotification notification(*this);
            (m_handler->*event)(arguments...);
        }
    }

    HWND m_window;
    CControlTable m_controls;
    CFocusMemory m_focus;
    CFittingFont m_font;
    panel::IDialogHandler* m_handler;
    std::shared_ptr<const CCursorStack> m_cursors;
    panel::Size m_reportedSize;
    int m_notifications = 0;
    bool m_isEnding = false;
    bool m_acceptsCancel = false;
};

panel::Size ClientSizeOf(HWND window);

}
