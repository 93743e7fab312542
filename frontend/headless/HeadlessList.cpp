#include "frontend/headless/HeadlessList.h"

#include "frontend/headless/Utf8.h"

#include <algorithm>
#include <limits>

namespace headless {

namespace {

struct KeyStep {
    std::uint16_t virtualKey;
    int pages;
    int rows;
};

constexpr int kToTheEnd = std::numeric_limits<int>::max() / 2;

// Virtual-key codes as in winuser.h: Page Up, Page Down, End, Home, Up, Down.
constexpr KeyStep kKeySteps[] = {
    {0x21, -1, 0},         {0x22, 1, 0},  {0x23, 0, kToTheEnd},
    {0x24, 0, -kToTheEnd}, {0x26, 0, -1}, {0x28, 0, 1},
};

void ShiftForInsertion(int& row, int index) {
    if (row >= index) {
        ++row;
    }
}

}

void CHeadlessList::InsertColumn(int index, const panel::ListColumn& column) {
    // Front ends differ in what they make of such a place, so that nobody may count on it.
    if (index < 0 || index > static_cast<int>(m_columns.size())) {
        return;
    }
    m_rows.InsertColumn(index);
    m_columns.insert(m_columns.begin() + index,
                     {ToShownText(column.heading), column.widthPixels, column.alignment});
}

int CHeadlessList::InsertRow(int index, std::string_view text) {
    const int count = m_rows.Count();
    if (index < 0 || index > count) {
        index = count;
    }
    m_rows.Insert(index, text);
    ShiftForInsertion(m_selectionMark, index);
    ShiftForInsertion(m_focusedRow, index);
    return index;
}

std::string CHeadlessList::GetCell(int row, int column) const {
    return HasRow(row) && HasColumn(column) ? ToShownText(m_rows.Cell(row, column)) : std::string();
}

std::uint32_t CHeadlessList::GetRowKey(int row) const { return HasRow(row) ? m_rows.Key(row) : 0; }

void CHeadlessList::RemoveAllRows() {
    m_rows.Clear();
    m_selectedCount = 0;
    m_selectionMark = panel::kNoRow;
    m_focusedRow = panel::kNoRow;
    m_topRow = 0;
}

void CHeadlessList::SelectRow(int row, bool isSelected) {
    if (!HasRow(row) || m_rows.IsSelected(row) == isSelected) {
        return;
    }
    if (isSelected && !m_isMultiSelect) {
        DeselectAll();
    }
    m_rows.SetSelected(row, isSelected);
    m_selectedCount += isSelected ? 1 : -1;
}

std::vector<int> CHeadlessList::GetSelectedRows() const {
    std::vector<int> selected;
    selected.reserve(static_cast<std::size_t>(m_selectedCount));
    for (int row = 0; static_cast<int>(selected.size()) < m_selectedCount; ++row) {
        if (m_rows.IsSelected(row)) {
            selected.push_back(row);
        }
    }
    return selected;
}

void CHeadlessList::SetSelectionMark(int row) {
    if (HasRow(row)) {
        m_selectionMark = row;
    }
}

void CHeadlessList::EnsureRowVisible(int row) {
    if (HasRow(row)) {
        m_topRow = std::clamp(m_topRow, std::max(row - m_pageSize + 1, 0), row);
    }
}

bool CHeadlessList::IsRowInSight(int row) const {
    return HasRow(row) && m_topRow <= row && row < m_topRow + m_pageSize;
}

void CHeadlessList::Click(int row, Modifier modifier) {
    if (!HasRow(row)) {
        return;
    }
    if (modifier == Modifier::Shift && m_isMultiSelect && HasRow(m_selectionMark)) {
        DeselectAll();
        const auto [first, last] = std::minmax(m_selectionMark, row);
        for (int selected = first; selected <= last; ++selected) {
            SelectRow(selected, true);
        }
    } else if (modifier == Modifier::Control) {
        SelectRow(row, !m_rows.IsSelected(row));
        m_selectionMark = row;
    } else {
        SelectOnly(row);
    }
    m_focusedRow = row;
    EnsureRowVisible(row);
}

void CHeadlessList::RightClick(int row) {
    if (!HasRow(row)) {
        return;
    }
    if (!m_rows.IsSelected(row)) {
        SelectOnly(row);
    }
    m_focusedRow = row;
    EnsureRowVisible(row);
}

void CHeadlessList::PressKey(std::uint16_t virtualKey) {
    const auto* const step = std::ranges::find(kKeySteps, virtualKey, &KeyStep::virtualKey);
    if (step == std::end(kKeySteps) || m_rows.Count() == 0) {
        return;
    }
    const int target = m_focusedRow + step->rows + step->pages * m_pageSize;
    m_focusedRow = std::clamp(target, 0, m_rows.Count() - 1);
    SelectOnly(m_focusedRow);
    EnsureRowVisible(m_focusedRow);
}

void CHeadlessList::SelectOnly(int row) {
    DeselectAll();
    SelectRow(row, true);
    m_selectionMark = row;
}

void CHeadlessList::DeselectAll() {
    for (int row : GetSelectedRows()) {
        m_rows.SetSelected(row, false);
    }
    m_selectedCount = 0;
}

}
