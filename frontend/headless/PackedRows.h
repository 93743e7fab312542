#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace headless {

/// The rows of a list, packed: the cells of all rows stand in one buffer, each behind its length,
/// so that a row costs 16 bytes, its text and a byte a cell, and filling a list in row and column
/// order allocates nothing for a row or a cell.
///
/// Rows and columns must exist; a cell that was never set is empty.
class CPackedRows {
public:
    int Count() const { return static_cast<int>(m_rows.size()); }

    void Insert(int index, std::string_view firstCell);
    void Clear();

    void SetCell(int row, int column, std::string_view text);
    /// Valid until the next change.
    std::string_view Cell(int row, int column) const;
    /// Makes room for a new column in the rows that are there.
    void InsertColumn(int index);

    void SetKey(int row, std::uint32_t key) { At(row).key = key; }
    std::uint32_t Key(int row) const { return At(row).key; }
    void SetSelected(int row, bool isSelected) { At(row).isSelected = isSelected; }
    bool IsSelected(int row) const { return At(row).isSelected; }

    /// Size of the buffer with the cells.
    std::size_t TextBytes() const { return m_bytes.size(); }

private:
    struct Row {
        std::size_t begin = 0;
        std::uint32_t key = 0;
        std::uint16_t cellCount = 0;
        bool isSelected = false;
    };

    Row& At(int row) { return m_rows[static_cast<std::size_t>(row)]; }
    const Row& At(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    std::string_view BytesOf(int row) const;
    void AppendCell(std::string_view text);
    void AppendCellTo(Row& row, std::string_view text);
    std::string TakeBytes(int row);
    void ReplaceCell(int row, int column, std::string_view text);
    void CompactWhenWorthwhile();

    std::string m_bytes;
    std::vector<Row> m_rows;
    // The row whose cells end the buffer, so that more can be appended to it.
    int m_openRow = -1;
    std::size_t m_unusedBytes = 0;
};

}
