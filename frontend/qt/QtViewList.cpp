// The list verbs of CQtView: each is that of the list's widget.

#include "frontend/qt/ListView.h"
#include "frontend/qt/QtView.h"

namespace qt {

using panel::ControlId;

void CQtView::InsertColumn(ControlId list, int index, const panel::ListColumn& column) {
    if (CListView* const found = FindList(list)) {
        found->InsertColumn(index, column);
    }
}

int CQtView::InsertRow(ControlId list, int index, std::string_view text) {
    CListView* const found = FindList(list);
    return found ? found->InsertRow(index, text) : panel::kNoRow;
}

void CQtView::SetCell(ControlId list, int row, int column, std::string_view text) {
    if (CListView* const found = FindList(list)) {
        found->SetCell(row, column, text);
    }
}

std::string CQtView::GetCell(ControlId list, int row, int column) const {
    const CListView* const found = FindList(list);
    return found ? found->GetCell(row, column) : std::string();
}

void CQtView::SetRowKey(ControlId list, int row, std::uint32_t key) {
    if (CListView* const found = FindList(list)) {
        found->SetRowKey(row, key);
    }
}

std::uint32_t CQtView::GetRowKey(ControlId list, int row) const {
    const CListView* const found = FindList(list);
    return found ? found->GetRowKey(row) : 0;
}

void CQtView::RemoveAllRows(ControlId list) {
    if (CListView* const found = FindList(list)) {
        found->RemoveAllRows();
    }
}

int CQtView::GetRowCount(ControlId list) const {
    const CListView* const found = FindList(list);
    return found ? found->GetRowCount() : 0;
}

void CQtView::SelectRow(ControlId list, int row, bool selected) {
    if (CListView* const found = FindList(list)) {
        found->SelectRow(row, selected);
    }
}

std::vector<int> CQtView::GetSelectedRows(ControlId list) const {
    CListView* const found = FindList(list);
    return found ? found->GetSelectedRows() : std::vector<int>();
}

void CQtView::SetSelectionMark(ControlId list, int row) {
    if (CListView* const found = FindList(list)) {
        found->SetSelectionMark(row);
    }
}

int CQtView::GetSelectionMark(ControlId list) const {
    const CListView* const found = FindList(list);
    return found ? found->GetSelectionMark() : panel::kNoRow;
}

int CQtView::GetFocusedRow(ControlId list) const {
    const CListView* const found = FindList(list);
    return found ? found->GetFocusedRow() : panel::kNoRow;
}

void CQtView::EnsureRowVisible(ControlId list, int row) {
    if (CListView* const found = FindList(list)) {
        found->EnsureRowVisible(row);
    }
}

std::optional<panel::Point> CQtView::GetRowPosition(ControlId list, int row) const {
    CListView* const found = FindList(list);
    return found ? found->GetRowPosition(row) : std::nullopt;
}

panel::Size CQtView::GetListClientSize(ControlId list) const {
    const CListView* const found = FindList(list);
    return found ? found->GetClientSize() : panel::Size{};
}

}
