#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qt {

/// The rows of a list: texts of all cells in one buffer, so that a long listing costs no allocation
/// a cell or a row.
///
/// Rows and columns handed in must exist.
class CPackedRows {
public:
    int GetRowCount() const { return static_cast<int>(m_keys.size()); }
    int GetColumnCount() const { return m_columnCount; }

    /// Adds an empty column before column `index`, which may be the count.
    void InsertColumn(int index);
    /// Adds an empty row with key 0 before row `index`, which may be the count.
    void InsertRow(int index);
    /// Removes all rows; columns stay.
    void Clear();

    /// UTF-8. A text that would take the buffer beyond 4 GiB leaves the cell empty.
    void SetCell(int row, int column, std::string_view text);
    /// Valid until the next change.
    std::string_view GetCell(int row, int column) const;

    void SetKey(int row, std::uint32_t key) { m_keys[static_cast<std::size_t>(row)] = key; }
    std::uint32_t GetKey(int row) const { return m_keys[static_cast<std::size_t>(row)]; }

private:
    struct Cell {
        std::uint32_t offset = 0;
        std::uint32_t length = 0;
    };

    std::size_t IndexOf(int row, int column) const;
    void Squeeze();

    int m_columnCount = 0;
    std::string m_text;
    std::size_t m_unusedBytes = 0;
    std::vector<Cell> m_cells; // row by row
    std::vector<std::uint32_t> m_keys;
};

}
