// The list verbs of CWin32View: each is that of the list.

#include "frontend/win32/ListControl.h"
#include "frontend/win32/ViewWindow.h"
#include "frontend/win32/Win32View.h"

namespace win32 {

using panel::ControlId;

void CWin32View::InsertColumn(ControlId list, int index, const panel::ListColumn& column) {
    const CListControl found = FindList(list);
    found.InsertColumn(index, column);
    if (found.GetWindow()) {
        m_window->Font().FitHeadings(found.GetWindow());
    }
}

int CWin32View::InsertRow(ControlId list, int index, std::string_view text) {
    return FindList(list).InsertRow(index, text);
}

void CWin32View::SetCell(ControlId list, int row, int column, std::string_view text) {
    FindList(list).SetCell(row, column, text);
}

std::string CWin32View::GetCell(ControlId list, int row, int column) const {
    return FindList(list).GetCell(row, column);
}

void CWin32View::SetRowKey(ControlId list, int row, std::uint32_t key) {
    FindList(list).SetRowKey(row, key);
}

std::uint32_t CWin32View::GetRowKey(ControlId list, int row) const {
    return FindList(list).GetRowKey(row);
}

void CWin32View::RemoveAllRows(ControlId list) { FindList(list).RemoveAllRows(); }

int CWin32View::GetRowCount(ControlId list) const { return FindList(list).GetRowCount(); }

void CWin32View::SelectRow(ControlId list, int row, bool selected) {
    FindList(list).SelectRow(row, selected);
}

std::vector<int> CWin32View::GetSelectedRows(ControlId list) const {
    return FindList(list).GetSelectedRows();
}

void CWin32View::SetSelectionMark(ControlId list, int row) { FindList(list).SetSelectionMark(row); }

int CWin32View::GetSelectionMark(ControlId list) const { return FindList(list).GetSelectionMark(); }

int CWin32View::GetFocusedRow(ControlId list) const { return FindList(list).GetFocusedRow(); }

void CWin32View::EnsureRowVisible(ControlId list, int row) { FindList(list).EnsureRowVisible(row); }

std::optional<panel::Point> CWin32View::GetRowPosition(ControlId list, int row) const {
    return FindList(list).GetRowPosition(row);
}

panel::Size CWin32View::GetListClientSize(ControlId list) const {
    const HWND window = FindList(list).GetWindow();
    return window ? ClientSizeOf(window) : panel::Size{};
}

}
