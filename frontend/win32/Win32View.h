#pragma once

#include "frontend/win32/CursorStack.h"
#include "frontend/win32/FocusMemory.h"
#include "panel/control/View.h"

#include <functional>
#include <memory>

namespace panel {

class IDialogHandler;

}

namespace win32 {

class CListControl;
class CViewWindow;

/// A view made of the system's controls.
///
/// Should its window end first, with the host's window for one, all verbs do nothing from then on.
/// The view may be destroyed inside any of its own notifications.
class CWin32View final : public panel::IView {
public:
    /// Joins a dialog that the system has just made of the template (DialogResource.h) and ends it
    /// with the view. Does not call OnInit.
    CWin32View(const panel::DialogTemplate& dialogTemplate, HWND dialog,
               panel::IDialogHandler& handler, std::shared_ptr<const CCursorStack> cursors,
               FocusRule mayTakeFocus = {});
    ~CWin32View() override;
    CWin32View(const CWin32View&) = delete;
    CWin32View& operator=(const CWin32View&) = delete;

    /// Makes it the view of a modal dialog: `endDialog` is what EndDialog does, and the cancel
    /// command comes without its button too.
    void BelongToDialog(std::function<void(int)> endDialog);

    /// Null once it has ended.
    HWND GetWindow() const;
    /// Shows the view; a control that has been given the focus meanwhile gets it now.
    void Show();
    /// The control that has been given the focus meanwhile and can have it as soon as the view is
    /// shown; null when none. The wish ends with that.
    HWND TakeFocusWish();

    panel::ControlId Capture(panel::ControlId id) override;
    void SetText(panel::ControlId id, std::string_view text) override;
    std::string GetText(panel::ControlId id) const override;
    void SetEnabled(panel::ControlId id, bool enabled) override;
    bool IsEnabled(panel::ControlId id) const override;
    void SetVisible(panel::ControlId id, bool visible) override;
    bool IsVisible(panel::ControlId id) const override;
    void SetFocus(panel::ControlId id) override;
    panel::ControlId GetFocus() const override;

    panel::Size GetClientSize() const override;
    void SetSize(panel::Size size) override;
    panel::Rectangle GetRectangle(panel::ControlId id) const override;
    void Move(panel::ControlId id, const panel::Rectangle& rectangle) override;
    panel::Point ToScreen(panel::ControlId id, panel::Point inControl) const override;

    void InsertColumn(panel::ControlId list, int index, const panel::ListColumn& column) override;
    int InsertRow(panel::ControlId list, int index, std::string_view text) override;
    void SetCell(panel::ControlId list, int row, int column, std::string_view text) override;
    std::string GetCell(panel::ControlId list, int row, int column) const override;
    void SetRowKey(panel::ControlId list, int row, std::uint32_t key) override;
    std::uint32_t GetRowKey(panel::ControlId list, int row) const override;
    void RemoveAllRows(panel::ControlId list) override;
    int GetRowCount(panel::ControlId list) const override;
    void SelectRow(panel::ControlId list, int row, bool selected) override;
    std::vector<int> GetSelectedRows(panel::ControlId list) const override;
    void SetSelectionMark(panel::ControlId list, int row) override;
    int GetSelectionMark(panel::ControlId list) const override;
    int GetFocusedRow(panel::ControlId list) const override;
    void EnsureRowVisible(panel::ControlId list, int row) override;
    std::optional<panel::Point> GetRowPosition(panel::ControlId list, int row) const override;
    panel::Size GetListClientSize(panel::ControlId list) const override;

    void SetTextLimit(panel::ControlId id, std::size_t characters) override;
    void AppendLog(panel::ControlId log, std::string_view text) override;
    void ClearLog(panel::ControlId log) override;

    void SetChecked(panel::ControlId box, bool checked) override;
    bool IsChecked(panel::ControlId box) const override;

    void SetAddress(panel::ControlId field, std::uint32_t address) override;
    std::uint32_t GetAddress(panel::ControlId field) const override;

    int AddChoice(panel::ControlId list, std::string_view text, std::int32_t data) override;
    void SelectChoice(panel::ControlId list, int index) override;
    int GetSelectedChoice(panel::ControlId list) const override;
    std::optional<std::int32_t> GetChoiceData(panel::ControlId list, int index) const override;

    int SetIcon(panel::ControlId id, panel::StandardIcon icon) override;

    void SetProgressRange(panel::ControlId bar, int maximum) override;
    void SetProgressPosition(panel::ControlId bar, int position) override;

    void EndDialog(int result) override;

private:
    /// The window of a control; null when there is none, or none any more.
    HWND Find(panel::ControlId id) const;
    HWND Find(panel::ControlId id, panel::ControlKind kind) const;
    CListControl FindList(panel::ControlId id) const;

    std::shared_ptr<CViewWindow> m_window;
    std::function<void(int)> m_endDialog;
};

}
