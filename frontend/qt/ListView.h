#pragma once

#include "frontend/qt/ListModel.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPersistentModelIndex>
#include <QTableView>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QHelpEvent;

namespace qt {

/// A list in report view. Its verbs are those of panel::IView, with the same rules for rows and
/// columns that do not exist.
///
/// Rows and cells reach the screen at most every 40 ms while a listing is being filled, also when
/// no event loop runs meanwhile.
class CListView final : public QTableView {
public:
    enum class Selection { Single, Multiple };

    CListView(Selection selection, QWidget* parent);

    /// Called with the key before the list handles it. The list may end inside this call and the
    /// next one's.
    void SetKeyListener(std::function<void(std::uint16_t virtualKey)> listener);
    /// Called with the place on the screen after the list has adjusted its selection.
    void SetRightClickListener(std::function<void(QPoint screen)> listener);

    void InsertColumn(int index, const panel::ListColumn& column);
    int InsertRow(int index, std::string_view text);
    void SetCell(int row, int column, std::string_view text);
    std::string GetCell(int row, int column) const;
    void SetRowKey(int row, std::uint32_t key);
    std::uint32_t GetRowKey(int row) const;
    void RemoveAllRows();
    int GetRowCount() const { return m_model.Rows().Count(); }

    void SelectRow(int row, bool selected);
    std::vector<int> GetSelectedRows();
    void SetSelectionMark(int row);
    int GetSelectionMark() const { return m_mark.isValid() ? m_mark.row() : panel::kNoRow; }
    int GetFocusedRow() const;
    void EnsureRowVisible(int row);
    std::optional<panel::Point> GetRowPosition(int row);
    panel::Size GetClientSize() const;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rectangle, QItemSelectionModel::SelectionFlags command) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    bool viewportEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool HasRow(int row) const { return row >= 0 && row < GetRowCount(); }
    bool HasCell(int row, int column) const;
    void SetUpLook();
    void SpreadHeader();
    void ShowWholeCell(const QHelpEvent& event) const;
    void ScheduleUpdate();
    void StartTimer();
    void BringUpToDate();
    void ApplySelection();
    void TellKey(std::uint16_t virtualKey) const;
    void MoveMarkAfterKey(const QKeyEvent& event, int rowBefore);
    QItemSelection RowsBetween(int first, int last) const;

    CListModel m_model;
    QWidget& m_aboveScrollBar;
    QPersistentModelIndex m_mark;
    bool m_extendsSelection = false; // a range is added to what is selected, by Ctrl with Shift
    // Rows that SelectRow was called for in ascending order, not yet in the selection model, whose
    // cost grows with the number of its ranges; none when the first is kNoRow.
    int m_firstToSelect = panel::kNoRow;
    int m_lastToSelect = panel::kNoRow;
    QBasicTimer m_updateTimer;
    QElapsedTimer m_sinceUpdate;
    std::function<void(std::uint16_t)> m_keyListener;
    std::function<void(QPoint)> m_rightClickListener;
};

}
