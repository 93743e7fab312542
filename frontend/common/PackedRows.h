#pragma once

#include "frontend/common/TextArena.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace common {

/// The rows of a list, packed: the cells of a row stand one behind the other, each behind its
/// length, and the rows likewise, so that a row costs 16 bytes, its text and a byte a cell, and
/// filling a list in row and column order allocates nothing for a row or a cell.
///
/// Rows must exist where nothing else is said. Of columns it knows how many there are, and the
/// cells that were set: any other cell is empty.
class CPackedRows {
public:
    int Count() const { return static_cast<int>(m_rows.size()); }

    /// Adds a row with key 0, not selected, before row `index`, which may be the count.
    void Insert(int index, std::string_view firstCell);
    /// Keeps the memory for the rows to come: a list is cleared to be filled again.
    void Clear();

    /// Nothing when there is no such row or column.
    void SetCell(int row, int column, std::string_view text) {
        if (m_open && row == m_openRow && column == m_open->cellCount && column < m_columnCount &&
            HasRoomFor(text)) {
            ++m_open->cellCount;
            WriteShortCell(text);
        } else {
            ChangeCell(row, column, text);
        }
    }
    /// UTF-8 as it was set. Valid until the next change.
    std::string_view Cell(int row, int column) const;
    /// Makes room for a new column in the rows that are there. The first column finds the first
    /// cells of the rows that were there before it.
    void InsertColumn(int index);

    void SetKey(int row, std::uint32_t key) { At(row).key = key; }
    std::uint32_t Key(int row) const { return At(row).key; }
    /// For a front end whose toolkit keeps no selection.
    void SetSelected(int row, bool isSelected) { At(row).isSelected = isSelected; }
    bool IsSelected(int row) const { return At(row).isSelected; }

    /// Size of the cells of all rows, with what was replaced and not yet cleared away.
    std::size_t TextBytes() const { return m_text.UsedBytes(); }

private:
    struct Row {
        const char* cells = nullptr;
        std::uint32_t key = 0;
        std::uint16_t cellCount = 0;
        bool isSelected = false;
    };

    Row& At(int row) { return m_rows[static_cast<std::size_t>(row)]; }
    const Row& At(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    // A length up to 254 is one byte; a longer one is this mark and four bytes.
    static constexpr unsigned char kLongCell = 0xFF;

    // Whether a cell can be written without moving the row that is open.
    bool HasRoomFor(std::string_view text) const {
        return text.size() < kLongCell && m_text.HasRoom(1 + text.size());
    }
    // The copy comes last, so that writing a cell needs no stack frame.
    void WriteShortCell(std::string_view text) {
        char* const place = m_text.Extend(1 + text.size());
        *place = static_cast<char>(text.size());
        text.copy(place + 1, text.size());
    }
    void AppendCell(Row& row, std::string_view text);
    void AppendLongCell(std::string_view text);
    static std::string_view NextCell(const char*& cells);
    static std::string_view CellsOf(const Row& row);
    void ChangeCell(int row, int column, std::string_view text);
    bool HasCell(int row, int column) const {
        return row >= 0 && row < Count() && column >= 0 && column < m_columnCount;
    }
    void Open(int row);
    void OpenAtEnd(int row);
    std::string TakeCells(int row);
    template <class ChooseCell>
    void Rewrite(int row, int cellCount, ChooseCell chooseCell);
    void CompactWhenWorthwhile();

    CTextArena m_text;
    std::vector<Row> m_rows;
    // The row whose cells are the open block, so that more can be appended to it.
    int m_openRow = -1;
    Row* m_open = nullptr;
    int m_columnCount = 0;
    std::size_t m_unusedBytes = 0;
};

}
