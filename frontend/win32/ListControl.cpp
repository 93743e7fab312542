#include "frontend/win32/ListControl.h"

#include "frontend/win32/Text.h"

namespace win32 {

namespace {

constexpr std::size_t kUsualCellLength = 64;

}

void CListControl::UnfoldCutTexts() const {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_LABELTIP, LVS_EX_LABELTIP);
}

void CListControl::InsertColumn(int index, const panel::ListColumn& column) const {
    std::wstring heading = ToWide(column.heading);
    LVCOLUMNW inserted{};
    inserted.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    inserted.fmt = column.alignment == panel::Alignment::Right ? LVCFMT_RIGHT : LVCFMT_LEFT;
    inserted.cx = column.widthPixels;
    inserted.pszText = heading.data();
    inserted.iSubItem = index;
    Send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&inserted));
}

int CListControl::InsertRow(int index, std::string_view text) const {
    if (!m_window) {
        return panel::kNoRow;
    }
    std::wstring cell = ToWide(text);
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = HasRow(index) ? index : GetRowCount();
    item.pszText = cell.data();
    return static_cast<int>(SendItem(LVM_INSERTITEMW, item));
}

void CListControl::SetCell(int row, int column, std::string_view text) const {
    if (HasCell(row, column)) {
        std::wstring cell = ToWide(text);
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.iSubItem = column;
        item.pszText = cell.data();
        SendItem(LVM_SETITEMW, item);
    }
}

// The system cuts a text that does not fit and tells how much of it did.
std::string CListControl::GetCell(int row, int column) const {
    if (!HasCell(row, column)) {
        return {};
    }
    std::wstring text(kUsualCellLength, L'\0');
    for (;;) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto length = static_cast<std::size_t>(
            Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < text.size()) {
            text.resize(length);
            return FromWide(text);
        }
        text.resize(2 * text.size());
    }
}

void CListControl::SetRowKey(int row, std::uint32_t key) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = static_cast<LPARAM>(key);
    SendItem(LVM_SETITEMW, item);
}

std::uint32_t CListControl::GetRowKey(int row) const {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    return SendItem(LVM_GETITEMW, item) ? static_cast<std::uint32_t>(item.lParam) : 0;
}

void CListControl::RemoveAllRows() const {
    Send(LVM_DELETEALLITEMS);
    SetSelectionMark(panel::kNoRow);
}

int CListControl::GetRowCount() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }

// A row of no list, or -1, would stand for all of them.
void CListControl::SelectRow(int row, bool selected) const {
    if (HasRow(row)) {
        LVITEMW item{};
        item.stateMask = LVIS_SELECTED;
        item.state = selected ? LVIS_SELECTED : 0;
        Send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
}

std::vector<int> CListControl::GetSelectedRows() const {
    std::vector<int> rows;
    for (int row = FindNext(panel::kNoRow, LVNI_SELECTED); row != panel::kNoRow;
         row = FindNext(row, LVNI_SELECTED)) {
        rows.push_back(row);
    }
    return rows;
}

void CListControl::SetSelectionMark(int row) const {
    if (row == panel::kNoRow || HasRow(row)) {
        Send(LVM_SETSELECTIONMARK, 0, row);
    }
}

int CListControl::GetSelectionMark() const {
    return m_window ? static_cast<int>(Send(LVM_GETSELECTIONMARK)) : panel::kNoRow;
}

int CListControl::GetFocusedRow() const { return FindNext(panel::kNoRow, LVNI_FOCUSED); }

void CListControl::EnsureRowVisible(int row) const {
    if (HasRow(row)) {
        Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    }
}

std::optional<panel::Point> CListControl::GetRowPosition(int row) const {
    POINT place{};
    if (!HasRow(row) ||
        !Send(LVM_GETITEMPOSITION, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place))) {
        return std::nullopt;
    }
    return panel::Point{static_cast<int>(place.x), static_cast<int>(place.y)};
}

LRESULT CListControl::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return m_window ? SendMessageW(m_window, message, wParam, lParam) : 0;
}

LRESULT CListControl::SendItem(UINT message, LVITEMW& item) const {
    return Send(message, 0, reinterpret_cast<LPARAM>(&item));
}

bool CListControl::HasRow(int row) const { return row >= 0 && row < GetRowCount(); }

bool CListControl::HasCell(int row, int column) const {
    return HasRow(row) && column >= 0 && column < GetColumnCount();
}

int CListControl::GetColumnCount() const {
    const auto header = reinterpret_cast<HWND>(Send(LVM_GETHEADER));
    return static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
}

int CListControl::FindNext(int after, UINT flags) const {
    return m_window ? static_cast<int>(
                          Send(LVM_GETNEXTITEM, static_cast<WPARAM>(after), MAKELPARAM(flags, 0)))
                    : panel::kNoRow;
}

}
