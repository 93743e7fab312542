#include "frontend/qt/ListModel.h"

#include "frontend/qt/Text.h"

#include <algorithm>

namespace qt {

namespace {

Qt::Alignment ToQt(panel::Alignment alignment) {
    return Qt::AlignVCenter |
           (alignment == panel::Alignment::Right ? Qt::AlignRight : Qt::AlignLeft);
}

}

void CListModel::AddColumn(int index, const panel::ListColumn& column, const QFont& headingFont) {
    Announce();
    beginInsertColumns({}, index, index);
    m_rows.InsertColumn(index);
    m_columns.insert(m_columns.begin() + index,
                     Column{qt::ToQt(column.heading), ToQt(column.alignment), headingFont});
    endInsertColumns();
}

void CListModel::AddRow(int index, std::string_view text) {
    const bool isAppended = index == m_rows.Count();
    if (!isAppended) {
        Announce();
        beginInsertRows({}, index, index);
    }
    m_rows.Insert(index, text);
    if (!isAppended) {
        ++m_announcedRows;
        endInsertRows();
    }
}

void CListModel::SetCell(int row, int column, std::string_view text) {
    m_rows.SetCell(row, column, text);
    if (row >= m_announcedRows) {
        return;
    }
    m_firstChanged = m_lastChanged == panel::kNoRow ? row : std::min(m_firstChanged, row);
    m_lastChanged = std::max(m_lastChanged, row);
}

void CListModel::RemoveAllRows() {
    beginResetModel();
    m_rows.Clear();
    m_announcedRows = 0;
    ForgetNews();
    endResetModel();
}

void CListModel::Announce() {
    if (m_lastChanged != panel::kNoRow && columnCount() > 0) {
        emit dataChanged(index(m_firstChanged, 0), index(m_lastChanged, columnCount() - 1));
    }
    ForgetNews();
    if (m_announcedRows < m_rows.Count()) {
        beginInsertRows({}, m_announcedRows, m_rows.Count() - 1);
        m_announcedRows = m_rows.Count();
        endInsertRows();
    }
}

bool CListModel::HasNews() const {
    return m_lastChanged != panel::kNoRow || m_announcedRows < m_rows.Count();
}

int CListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_announcedRows;
}

int CListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant CListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return qt::ToQt(m_rows.Cell(index.row(), index.column()));
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(m_columns[static_cast<std::size_t>(index.column())].alignment);
    }
    return {};
}

QVariant CListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Column& column = m_columns[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return column.heading;
    case Qt::TextAlignmentRole:
        return QVariant(column.alignment);
    case Qt::FontRole:
        return column.font;
    default:
        return {};
    }
}

void CListModel::ForgetNews() {
    m_firstChanged = 0;
    m_lastChanged = panel::kNoRow;
}

}
