#pragma once

#include "frontend/common/PackedRows.h"
#include "panel/control/View.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace headless {

struct HeadlessColumn {
    std::string heading;
    int widthPixels = 0;
    panel::Alignment alignment = panel::Alignment::Left;
};

/// The key held down during a click.
enum class Modifier { None, Shift, Control };

/// State of one list control: the list verbs of panel::IView without the id, and what a user does
/// to it. Rows and columns that do not exist are treated as IView says.
class CHeadlessList {
public:
    explicit CHeadlessList(bool isMultiSelect) : m_isMultiSelect(isMultiSelect) {}

    void InsertColumn(int index, const panel::ListColumn& column);
    int InsertRow(int index, std::string_view text);
    void SetCell(int row, int column, std::string_view text) { m_rows.SetCell(row, column, text); }
    std::string GetCell(int row, int column) const;
    void SetRowKey(int row, std::uint32_t key) {
        if (HasRow(row)) {
            m_rows.SetKey(row, key);
        }
    }
    std::uint32_t GetRowKey(int row) const;
    void RemoveAllRows();
    int GetRowCount() const { return m_rows.Count(); }
    void SelectRow(int row, bool isSelected);
    std::vector<int> GetSelectedRows() const;
    void SetSelectionMark(int row);
    int GetSelectionMark() const { return m_selectionMark; }
    int GetFocusedRow() const { return m_focusedRow; }
    void EnsureRowVisible(int row);

    const std::vector<HeadlessColumn>& Columns() const { return m_columns; }
    bool HasRow(int row) const { return row >= 0 && row < m_rows.Count(); }

    /// How many whole rows fit into the control.
    void SetPageSize(int rows) { m_pageSize = rows; }
    bool IsRowInSight(int row) const;
    /// Place of a row below the column headings, in rows; negative above them.
    int RowOffset(int row) const { return row - m_topRow; }

    // What the list itself does with the user's input

    void Click(int row, Modifier modifier);
    /// A click on no row leaves the selection as it is.
    void RightClick(int row);
    /// The keys that move the item focus move the selection with it; others do nothing.
    void PressKey(std::uint16_t virtualKey);

private:
    bool HasColumn(int column) const {
        return column >= 0 && column < static_cast<int>(m_columns.size());
    }
    void SelectOnly(int row);
    void DeselectAll();

    bool m_isMultiSelect;
    std::vector<HeadlessColumn> m_columns;
    common::CPackedRows m_rows;
    int m_selectedCount = 0;
    int m_selectionMark = panel::kNoRow;
    int m_focusedRow = panel::kNoRow;
    int m_topRow = 0;
    int m_pageSize = 1;
};

}
