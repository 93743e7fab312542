#include "frontend/headless/PackedRows.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace headless {

namespace {

// A length up to 254 is one byte; a longer one is this mark and four bytes.
constexpr unsigned char kLongCell = 0xFF;
constexpr std::size_t kCompactFrom = 64 * 1024;

std::string_view NextCell(std::string_view& cells) {
    std::size_t length = static_cast<unsigned char>(cells.front());
    std::size_t prefix = 1;
    if (length == kLongCell) {
        std::uint32_t longLength = 0;
        std::memcpy(&longLength, cells.data() + 1, sizeof longLength);
        length = longLength;
        prefix += sizeof longLength;
    }
    const std::string_view cell = cells.substr(prefix, length);
    cells.remove_prefix(prefix + length);
    return cell;
}

}

void CPackedRows::Insert(int index, std::string_view firstCell) {
    m_rows.insert(m_rows.begin() + index, Row{m_bytes.size()});
    m_openRow = index;
    AppendCellTo(At(index), firstCell);
}

void CPackedRows::Clear() {
    m_bytes.clear();
    m_rows.clear();
    m_openRow = -1;
    m_unusedBytes = 0;
}

void CPackedRows::SetCell(int row, int column, std::string_view text) {
    Row& target = At(row);
    if (column < target.cellCount) {
        ReplaceCell(row, column, text);
        return;
    }
    if (row != m_openRow) {
        const std::string cells = TakeBytes(row);
        target.begin = m_bytes.size();
        m_bytes += cells;
        m_openRow = row;
    }
    while (target.cellCount < column)
        AppendCellTo(target, {});
    AppendCellTo(target, text);
    CompactWhenWorthwhile();
}

std::string_view CPackedRows::Cell(int row, int column) const {
    const Row& source = At(row);
    if (column >= source.cellCount)
        return {};
    std::string_view cells = std::string_view(m_bytes).substr(source.begin);
    for (int skipped = 0; skipped < column; ++skipped)
        NextCell(cells);
    return NextCell(cells);
}

void CPackedRows::InsertColumn(int index) {
    for (int row = 0; row < Count(); ++row) {
        if (index >= At(row).cellCount)
            continue;
        const std::string taken = TakeBytes(row);
        std::string_view cells = taken;
        Row& target = At(row);
        target.begin = m_bytes.size();
        m_openRow = row;
        const int count = std::exchange(target.cellCount, std::uint16_t{0}) + 1;
        for (int column = 0; column < count; ++column)
            AppendCellTo(target, column == index ? std::string_view() : NextCell(cells));
    }
    CompactWhenWorthwhile();
}

std::string_view CPackedRows::BytesOf(int row) const {
    const std::string_view bytes = std::string_view(m_bytes).substr(At(row).begin);
    std::string_view rest = bytes;
    for (int column = 0; column < At(row).cellCount; ++column)
        NextCell(rest);
    return bytes.substr(0, bytes.size() - rest.size());
}

void CPackedRows::AppendCell(std::string_view text) {
    if (text.size() < kLongCell) {
        m_bytes.push_back(static_cast<char>(text.size()));
    } else {
        text = text.substr(0, std::numeric_limits<std::uint32_t>::max());
        const auto length = static_cast<std::uint32_t>(text.size());
        m_bytes.push_back(static_cast<char>(kLongCell));
        m_bytes.append(reinterpret_cast<const char*>(&length), sizeof length);
    }
    m_bytes.append(text);
}

void CPackedRows::AppendCellTo(Row& row, std::string_view text) {
    AppendCell(text);
    ++row.cellCount;
}

// The cells of a row that is about to be written anew at the buffer's end.
std::string CPackedRows::TakeBytes(int row) {
    std::string taken(BytesOf(row));
    if (row == m_openRow)
        m_bytes.resize(At(row).begin);
    else
        m_unusedBytes += taken.size();
    return taken;
}

void CPackedRows::ReplaceCell(int row, int column, std::string_view text) {
    const std::string taken = TakeBytes(row);
    std::string_view cells = taken;
    Row& target = At(row);
    target.begin = m_bytes.size();
    m_openRow = row;
    const int count = std::exchange(target.cellCount, std::uint16_t{0});
    for (int index = 0; index < count; ++index) {
        const std::string_view old = NextCell(cells);
        AppendCellTo(target, index == column ? text : old);
    }
    CompactWhenWorthwhile();
}

void CPackedRows::CompactWhenWorthwhile() {
    if (m_unusedBytes < kCompactFrom || m_unusedBytes < m_bytes.size() / 2)
        return;
    std::string compact;
    compact.reserve(m_bytes.size() - m_unusedBytes);
    for (int row = 0; row < Count(); ++row) {
        const std::size_t begin = compact.size();
        compact += BytesOf(row);
        At(row).begin = begin;
    }
    m_bytes = std::move(compact);
    m_unusedBytes = 0;
    m_openRow = Count() - 1;
}

}
