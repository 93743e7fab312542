#include "frontend/common/PackedRows.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace common {

namespace {

constexpr std::size_t kCompactFrom = 64U << 10;

}

void CPackedRows::Insert(int index, std::string_view firstCell) {
    if (index == Count()) {
        m_rows.emplace_back();
    } else {
        m_rows.insert(m_rows.begin() + index, Row{});
    }
    Open(index);
    AppendCell(*m_open, firstCell);
}

void CPackedRows::Clear() {
    m_text.Clear();
    m_rows.clear();
    m_openRow = -1;
    m_open = nullptr;
    m_unusedBytes = 0;
}

void CPackedRows::ChangeCell(int row, int column, std::string_view text) {
    if (!HasCell(row, column)) {
        return;
    }
    Row& target = At(row);
    if (column < target.cellCount) {
        Rewrite(row, target.cellCount, [&](int cell, const char*& old) {
            const std::string_view kept = NextCell(old);
            return cell == column ? text : kept;
        });
        return;
    }
    if (row != m_openRow) {
        OpenAtEnd(row);
    }
    while (target.cellCount < column) {
        AppendCell(target, {});
    }
    AppendCell(target, text);
}

std::string_view CPackedRows::Cell(int row, int column) const {
    const Row& source = At(row);
    if (column >= source.cellCount) {
        return {};
    }
    const char* cells = source.cells;
    for (int skipped = 0; skipped < column; ++skipped) {
        NextCell(cells);
    }
    return NextCell(cells);
}

void CPackedRows::InsertColumn(int index) {
    if (m_columnCount++ == 0) {
        return;
    }
    for (int row = 0; row < Count(); ++row) {
        if (index < At(row).cellCount) {
            Rewrite(row, At(row).cellCount + 1, [&](int cell, const char*& old) {
                return cell == index ? std::string_view() : NextCell(old);
            });
        }
    }
}

void CPackedRows::AppendCell(Row& row, std::string_view text) {
    if (text.size() < kLongCell) {
        WriteShortCell(text);
    } else {
        AppendLongCell(text);
    }
    row.cells = m_text.Block();
    ++row.cellCount;
}

void CPackedRows::AppendLongCell(std::string_view text) {
    const auto length = static_cast<std::uint32_t>(
        std::min<std::size_t>(text.size(), std::numeric_limits<std::uint32_t>::max()));
    char* const place = m_text.Extend(1 + sizeof length + length);
    *place = static_cast<char>(kLongCell);
    std::memcpy(place + 1, &length, sizeof length);
    text.copy(place + 1 + sizeof length, length);
}

std::string_view CPackedRows::NextCell(const char*& cells) {
    std::size_t length = static_cast<unsigned char>(*cells++);
    if (length == kLongCell) {
        std::uint32_t longLength = 0;
        std::memcpy(&longLength, cells, sizeof longLength);
        cells += sizeof longLength;
        length = longLength;
    }
    return {std::exchange(cells, cells + length), length};
}

std::string_view CPackedRows::CellsOf(const Row& row) {
    const char* end = row.cells;
    for (int cell = 0; cell < row.cellCount; ++cell) {
        NextCell(end);
    }
    return {row.cells, end};
}

void CPackedRows::Open(int row) {
    m_text.OpenBlock();
    m_openRow = row;
    m_open = &At(row);
}

void CPackedRows::OpenAtEnd(int row) {
    Rewrite(row, At(row).cellCount, [](int, const char*& old) { return NextCell(old); });
}

// The cells of a row that is about to be written anew as the open block.
std::string CPackedRows::TakeCells(int row) {
    std::string taken(CellsOf(At(row)));
    if (row == m_openRow) {
        m_text.EmptyBlock();
    } else {
        Open(row);
        m_unusedBytes += taken.size();
    }
    return taken;
}

template <class ChooseCell>
void CPackedRows::Rewrite(int row, int cellCount, ChooseCell chooseCell) {
    const std::string taken = TakeCells(row);
    const char* old = taken.data();
    Row& target = At(row);
    target.cellCount = 0;
    for (int cell = 0; cell < cellCount; ++cell) {
        AppendCell(target, chooseCell(cell, old));
    }
    CompactWhenWorthwhile();
}

void CPackedRows::CompactWhenWorthwhile() {
    if (m_unusedBytes < kCompactFrom || m_unusedBytes < m_text.UsedBytes() / 2) {
        return;
    }
    // The row that is open must be the open block of the compact text too, so it comes last.
    CTextArena compact;
    const auto copyRow = [&](Row& row) {
        const std::string_view cells = CellsOf(row);
        compact.OpenBlock();
        cells.copy(compact.Extend(cells.size()), cells.size());
        row.cells = compact.Block();
    };
    for (int row = 0; row < Count(); ++row) {
        if (row != m_openRow) {
            copyRow(At(row));
        }
    }
    copyRow(At(m_openRow));
    m_text = std::move(compact);
    m_unusedBytes = 0;
}

}
