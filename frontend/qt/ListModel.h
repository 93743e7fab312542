#pragma once

#include "frontend/common/PackedRows.h"
#include "panel/control/View.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QString>

#include <vector>

namespace qt {

/// The content of a list.
///
/// Rows appended and cells set are not told to the views at once, since telling costs far more than
/// storing: Announce() tells all of them together, and rowCount() speaks of the announced rows
/// only. Everything else sees each change immediately. Rows and columns handed in must exist.
class CListModel final : public QAbstractTableModel {
public:
    const common::CPackedRows& Rows() const { return m_rows; }

    /// Adds a column before column `index`, which may be the count.
    void AddColumn(int index, const panel::ListColumn& column, const QFont& headingFont);
    /// Adds a row with that first cell before row `index`, which may be the count.
    void AddRow(int index, std::string_view text);
    void SetCell(int row, int column, std::string_view text);
    void SetKey(int row, std::uint32_t key) { m_rows.SetKey(row, key); }
    void RemoveAllRows();

    /// Tells the views what has changed since the last time.
    void Announce();
    /// Whether Announce() has anything to tell.
    bool HasNews() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Column {
        QString heading;
        Qt::Alignment alignment;
        QFont font;
    };

    void ForgetNews();

    common::CPackedRows m_rows;
    std::vector<Column> m_columns;
    int m_announcedRows = 0;
    // Announced rows with cells that have changed; none when the first is beyond the last.
    int m_firstChanged = 0;
    int m_lastChanged = panel::kNoRow;
};

}
