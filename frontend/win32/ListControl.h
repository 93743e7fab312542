#pragma once

#include "frontend/win32/WinApi.h"
#include "panel/control/View.h"

namespace win32 {

/// The verbs of IView on one list. A handle, not an owner; one without a window has no rows.
class CListControl {
public:
    explicit CListControl(HWND window) : m_window(window) {}

    HWND GetWindow() const { return m_window; }

    /// A text that its column cuts off is shown whole under the mouse.
    void UnfoldCutTexts() const;
    void InsertColumn(int index, const panel::ListColumn& column) const;
    int InsertRow(int index, std::string_view text) const;
    void SetCell(int row, int column, std::string_view text) const;
    std::string GetCell(int row, int column) const;
    void SetRowKey(int row, std::uint32_t key) const;
    std::uint32_t GetRowKey(int row) const;
    void RemoveAllRows() const;
    int GetRowCount() const;
    void SelectRow(int row, bool selected) const;
    std::vector<int> GetSelectedRows() const;
    void SetSelectionMark(int row) const;
    int GetSelectionMark() const;
    int GetFocusedRow() const;
    void EnsureRowVisible(int row) const;
    std::optional<panel::Point> GetRowPosition(int row) const;

private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT SendItem(UINT message, LVITEMW& item) const;
    bool HasRow(int row) const;
    bool HasCell(int row, int column) const;
    int GetColumnCount() const;
    int FindNext(int after, UINT flags) const;

    HWND m_window;
};

}
