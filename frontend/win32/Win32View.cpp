#include "frontend/win32/Win32View.h"

#include "frontend/win32/EditControl.h"
#include "frontend/win32/ListControl.h"
#include "frontend/win32/Placement.h"
#include "frontend/win32/Text.h"
#include "frontend/win32/ViewWindow.h"
#include "panel/control/ControlKinds.h"

#include <utility>

namespace win32 {

using panel::ControlId;
using panel::ControlKind;

CWin32View::CWin32View(const panel::DialogTemplate& dialogTemplate, HWND dialog,
                       panel::IDialogHandler& handler, std::shared_ptr<const CCursorStack> cursors,
                       FocusRule mayTakeFocus) {
    PlaceControls(dialog, dialogTemplate);
    m_window = CViewWindow::Attach(dialogTemplate, dialog, handler, std::move(cursors),
                                   std::move(mayTakeFocus));
    for (const panel::ControlTemplate& control : dialogTemplate.controls) {
        if (control.kind == ControlKind::EditField) {
            KeepCharactersWhole(GetDlgItem(dialog, control.id));
        } else if (control.kind == ControlKind::Log) {
            LeaveKeysToDialog(GetDlgItem(dialog, control.id));
        } else if (control.kind == ControlKind::SingleSelectList) {
            // The file list has no extended styles.
            CListControl(GetDlgItem(dialog, control.id)).UnfoldCutTexts();
        }
        m_window->Font().Fit(GetDlgItem(dialog, control.id), control.kind);
    }
}

CWin32View::~CWin32View() {
    m_window->Cut();
    m_window->Destroy();
}

void CWin32View::BelongToDialog(std::function<void(int)> endDialog) {
    m_endDialog = std::move(endDialog);
    m_window->AcceptCancel();
}

HWND CWin32View::GetWindow() const { return m_window->Get(); }

void CWin32View::Show() {
    ShowWindow(GetWindow(), SW_SHOW);
    m_window->Focus().HandOn();
}

HWND CWin32View::TakeFocusWish() { return m_window->Focus().TakeWish(); }

ControlId CWin32View::Capture(ControlId id) { return Find(id) ? id : panel::kNoControl; }

// Fields keep no mark: what they hold is shown as it is in any case.
void CWin32View::SetText(ControlId id, std::string_view text) {
    CControlTable::Control* const control = Find(id) ? m_window->Controls().Find(id) : nullptr;
    if (control && panel::ShowsText(control->kind)) {
        const std::wstring wide = ToWide(text);
        control->text = FromWide(wide);
        SetWindowTextW(control->window,
                       (IsField(control->kind) ? wide : EscapeMnemonics(wide)).c_str());
        m_window->Font().Fit(control->window, control->kind);
    }
}

std::string CWin32View::GetText(ControlId id) const {
    const CControlTable::Control* const control =
        Find(id) ? m_window->Controls().Find(id) : nullptr;
    if (!control) {
        return {};
    }
    if (IsField(control->kind) || control->kind == ControlKind::Log) {
        return GetWindowTextOf(control->window);
    }
    return panel::ShowsText(control->kind) ? control->text : std::string();
}

void CWin32View::SetEnabled(ControlId id, bool enabled) {
    const HWND control = Find(id);
    if (control && (IsWindowEnabled(control) != FALSE) != enabled) {
        m_window->Focus().Enable(control, enabled);
    }
}

bool CWin32View::IsEnabled(ControlId id) const { return IsWindowEnabled(Find(id)) != FALSE; }

void CWin32View::SetVisible(ControlId id, bool visible) {
    if (const HWND control = Find(id)) {
        ShowWindow(control, visible ? SW_SHOWNA : SW_HIDE);
    }
}

bool CWin32View::IsVisible(ControlId id) const {
    const HWND control = Find(id);
    return control && (GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

void CWin32View::SetFocus(ControlId id) {
    if (const HWND control = Find(id)) {
        m_window->Focus().Focus(control);
    }
}

ControlId CWin32View::GetFocus() const {
    return m_window->Get() ? m_window->Controls().FindId(m_window->Focus().GetFocused())
                           : panel::kNoControl;
}

panel::Size CWin32View::GetClientSize() const {
    return m_window->Get() ? ClientSizeOf(m_window->Get()) : panel::Size{};
}

void CWin32View::SetSize(panel::Size size) {
    if (const HWND window = GetWindow()) {
        SetWindowPos(window, nullptr, 0, 0, size.width, size.height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

panel::Rectangle CWin32View::GetRectangle(ControlId id) const {
    const HWND control = Find(id);
    return control ? RectangleOf(control) : panel::Rectangle{};
}

void CWin32View::Move(ControlId id, const panel::Rectangle& rectangle) {
    if (const HWND control = Find(id)) {
        const ControlKind kind = m_window->Controls().Find(id)->kind;
        Place(control, kind, rectangle);
        m_window->Font().Fit(control, kind);
    }
}

panel::Point CWin32View::ToScreen(ControlId id, panel::Point inControl) const {
    const HWND control = Find(id);
    POINT place{inControl.x, inControl.y};
    if (!control || !ClientToScreen(control, &place)) {
        return {};
    }
    return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

void CWin32View::SetTextLimit(ControlId id, std::size_t characters) {
    for (const ControlKind kind : {ControlKind::Log, ControlKind::EditField}) {
        if (const HWND edit = Find(id, kind)) {
            SetTextLimitOf(edit, characters);
        }
    }
}

void CWin32View::AppendLog(ControlId log, std::string_view text) {
    if (const HWND edit = Find(log, ControlKind::Log)) {
        AppendTo(edit, text);
    }
}

void CWin32View::ClearLog(ControlId log) {
    if (const HWND edit = Find(log, ControlKind::Log)) {
        Clear(edit);
    }
}

void CWin32View::EndDialog(int result) {
    if (m_endDialog) {
        m_endDialog(result);
    }
}

HWND CWin32View::Find(ControlId id) const {
    const CControlTable::Control* const control = m_window->Controls().Find(id);
    return control && m_window->Get() ? control->window : nullptr;
}

HWND CWin32View::Find(ControlId id, ControlKind kind) const {
    return m_window->Get() ? m_window->Controls().FindWindowOf(id, kind) : nullptr;
}

CListControl CWin32View::FindList(ControlId id) const {
    const HWND many = Find(id, ControlKind::MultiSelectList);
    return CListControl(many ? many : Find(id, ControlKind::SingleSelectList));
}

}
