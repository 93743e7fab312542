#include "frontend/qt/PackedRows.h"

#include <limits>
#include <utility>

namespace qt {

namespace {

constexpr std::size_t kLargestText = std::numeric_limits<std::uint32_t>::max();
constexpr std::size_t kSqueezeFromBytes = 65536;

}

void CPackedRows::InsertColumn(int index) {
    std::vector<Cell> cells;
    cells.reserve(m_cells.size() + m_keys.size());
    auto cell = m_cells.begin();
    for (int row = 0; row < GetRowCount(); ++row) {
        cells.insert(cells.end(), cell, cell + index);
        cells.emplace_back();
        cells.insert(cells.end(), cell + index, cell + m_columnCount);
        cell += m_columnCount;
    }
    m_cells = std::move(cells);
    ++m_columnCount;
}

void CPackedRows::InsertRow(int index) {
    m_cells.insert(m_cells.begin() + static_cast<std::ptrdiff_t>(IndexOf(index, 0)),
                   static_cast<std::size_t>(m_columnCount), Cell{});
    m_keys.insert(m_keys.begin() + index, 0);
}

void CPackedRows::Clear() {
    m_text = {};
    m_unusedBytes = 0;
    m_cells = {};
    m_keys = {};
}

void CPackedRows::SetCell(int row, int column, std::string_view text) {
    Cell& cell = m_cells[IndexOf(row, column)];
    m_unusedBytes += cell.length;
    cell = {};
    if (text.size() > kLargestText - m_text.size()) {
        return;
    }
    cell = {static_cast<std::uint32_t>(m_text.size()), static_cast<std::uint32_t>(text.size())};
    m_text.append(text);
    if (m_unusedBytes > kSqueezeFromBytes && m_unusedBytes > m_text.size() / 2) {
        Squeeze();
    }
}

std::string_view CPackedRows::GetCell(int row, int column) const {
    const Cell cell = m_cells[IndexOf(row, column)];
    return std::string_view(m_text).substr(cell.offset, cell.length);
}

std::size_t CPackedRows::IndexOf(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columnCount) +
           static_cast<std::size_t>(column);
}

void CPackedRows::Squeeze() {
    std::string text;
    text.reserve(m_text.size() - m_unusedBytes);
    for (Cell& cell : m_cells) {
        const std::size_t offset = text.size();
        text.append(m_text, cell.offset, cell.length);
        cell.offset = static_cast<std::uint32_t>(offset);
    }
    m_text = std::move(text);
    m_unusedBytes = 0;
}

}
