#include "frontend/win32/ViewWindow.h"

#include "frontend/win32/Barrier.h"

#include <utility>

namespace win32 {

namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr UINT kEndMessage = WM_APP + 1;

// What the system's window holds of the object; ends with the window.
using Reference = std::shared_ptr<CViewWindow>;

}

panel::Size ClientSizeOf(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {static_cast<int>(area.right), static_cast<int>(area.bottom)};
}

std::shared_ptr<CViewWindow> CViewWindow::Attach(const panel::DialogTemplate& dialogTemplate,
                                                 HWND dialog, panel::IDialogHandler& handler,
                                                 std::shared_ptr<const CCursorStack> cursors,
                                                 FocusRule mayTakeFocus) {
    std::shared_ptr<CViewWindow> window(new CViewWindow(
        dialogTemplate, dialog, handler, std::move(cursors), std::move(mayTakeFocus)));
    auto reference = std::make_unique<Reference>(window);
    if (SetWindowSubclass(dialog, Procedure, kSubclass,
                          reinterpret_cast<DWORD_PTR>(reference.get()))) {
        static_cast<void>(reference.release());
    }
    return window;
}

CViewWindow::CViewWindow(const panel::DialogTemplate& dialogTemplate, HWND dialog,
                         panel::IDialogHandler& handler,
                         std::shared_ptr<const CCursorStack> cursors, FocusRule mayTakeFocus)
    : m_window(dialog),
      m_controls(dialogTemplate, dialog),
      m_focus(dialog, std::move(mayTakeFocus)),
      m_font(dialog),
      m_handler(&handler),
      m_cursors(std::move(cursors)),
      m_reportedSize(ClientSizeOf(dialog)) {}

void CViewWindow::Destroy() {
    if (!m_window) {
        return;
    }
    if (m_notifications == 0) {
        DestroyWindow(m_window);
        return;
    }
    ShowWindow(m_window, SW_HIDE);
    m_isEnding = true;
}

// Not before the last of them returns: the loop of a box that one of them shows would take the
// message, and end a control that has not finished with its own.
void CViewWindow::EndIfDue() {
    if (m_isEnding && m_notifications == 0 && m_window) {
        PostMessageW(m_window, kEndMessage, 0, 0);
    }
}

LRESULT CALLBACK CViewWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                        UINT_PTR identifier, DWORD_PTR reference) {
    auto* const held = reinterpret_cast<Reference*>(reference);
    const Reference self = *held;
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, Procedure, identifier);
        delete held;
        self->m_window = nullptr;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    const auto answer =
        Contained(std::optional<LRESULT>(), [&] { return self->Handle(message, wParam, lParam); });
    return answer ? *answer : DefSubclassProc(window, message, wParam, lParam);
}

std::optional<LRESULT> CViewWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (IsCommand(wParam)) {
            Notify(&panel::IDialogHandler::OnCommand, LOWORD(wParam));
        }
        return 0;
    case WM_NOTIFY:
        HandleNotification(*reinterpret_cast<const NMHDR*>(lParam));
        return std::nullopt;
    case WM_HELP:
        HandleHelp(*reinterpret_cast<const HELPINFO*>(lParam));
        return TRUE;
    case WM_SIZE:
        ReportSize({LOWORD(lParam), HIWORD(lParam)});
        return std::nullopt;
    case WM_SETFOCUS:
        return m_focus.HandOn(reinterpret_cast<HWND>(wParam)) ? std::optional<LRESULT>(0)
                                                              : std::nullopt;
    case WM_SETCURSOR:
        return m_cursors->ShowWait() ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case kEndMessage:
        DestroyWindow(m_window);
        return 0;
    default:
        return std::nullopt;
    }
}

// Return and mnemonics send the number of a button, whatever has the focus; fields and lists send
// codes of their own with theirs.
bool CViewWindow::IsCommand(WPARAM wParam) const {
    if (HIWORD(wParam) != BN_CLICKED) {
        return false;
    }
    if (m_acceptsCancel && LOWORD(wParam) == panel::kCancelButton) {
        return true;
    }
    const CControlTable::Control* const control = m_controls.Find(LOWORD(wParam));
    return control && SendsCommands(control->kind) && IsWindowEnabled(control->window);
}

void CViewWindow::HandleNotification(const NMHDR& notification) {
    const auto id = static_cast<panel::ControlId>(notification.idFrom);
    const CControlTable::Control* const control = m_controls.Find(id);
    if (!control || !IsList(control->kind)) {
        return;
    }
    if (notification.code == LVN_KEYDOWN) {
        HandleListKey(id, reinterpret_cast<const NMLVKEYDOWN&>(notification).wVKey);
    } else if (notification.code == static_cast<UINT>(NM_RCLICK)) {
        POINT place = reinterpret_cast<const NMITEMACTIVATE&>(notification).ptAction;
        ClientToScreen(control->window, &place);
        Notify(&panel::IDialogHandler::OnListRightClick, id,
               panel::Point{static_cast<int>(place.x), static_cast<int>(place.y)});
    }
}

// The help key comes as a request of its own.
void CViewWindow::HandleListKey(panel::ControlId list, std::uint16_t virtualKey) {
    if (virtualKey != VK_F1) {
        Notify(&panel::IDialogHandler::OnListKeyDown, list, virtualKey);
    }
}

// The system's own number of a control would be that of a part of an address field.
void CViewWindow::HandleHelp(const HELPINFO& request) {
    const bool isWindow = request.iContextType == HELPINFO_WINDOW;
    const CControlTable::Control* const control = m_controls.Find(
        isWindow ? m_controls.FindId(static_cast<HWND>(request.hItemHandle)) : panel::kNoControl);
    Notify(&panel::IDialogHandler::OnHelp, control ? control->helpContext : 0U);
}

void CViewWindow::ReportSize(panel::Size size) {
    if (size != m_reportedSize) {
        m_reportedSize = size;
        Notify(&panel::IDialogHandler::OnResized, size);
    }
}

}
