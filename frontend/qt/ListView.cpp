#include "frontend/qt/ListView.h"

#include "frontend/qt/Font.h"
#include "frontend/qt/KeyCodes.h"
#include "frontend/qt/Text.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace qt {

namespace {

constexpr int kUpdateMs = 40;
constexpr int kRowPaddingPixels = 4;
constexpr int kToleratedExcessPixels = 12;
constexpr auto kWholeRows = QItemSelectionModel::Rows;

}

CListView::CListView(Selection selection, QWidget* parent) : QTableView(parent) {
    setModel(&m_model);
    setSelectionMode(selection == Selection::Single ? SingleSelection : ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    SetUpLook();
    m_sinceUpdate.start();
}

void CListView::SetUpLook() {
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPaddingPixels);
    QPalette colours = palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    }
    setPalette(colours);
}

void CListView::SetKeyListener(std::function<void(std::uint16_t)> listener) {
    m_keyListener = std::move(listener);
}

void CListView::SetRightClickListener(std::function<void(QPoint)> listener) {
    m_rightClickListener = std::move(listener);
}

void CListView::InsertColumn(int index, const panel::ListColumn& column) {
    const int count = m_model.columnCount();
    const int place = index < 0 || index > count ? count : index;
    const int room = column.widthPixels - 2 * style()->pixelMetric(QStyle::PM_HeaderMargin);
    m_model.AddColumn(place, column,
                      FitFont(horizontalHeader()->font(), ToQt(column.heading), room));
    setColumnWidth(place, column.widthPixels);
}

int CListView::InsertRow(int index, std::string_view text) {
    const int place = HasRow(index) ? index : GetRowCount();
    ApplySelection();
    m_model.AddRow(place, text);
    ScheduleUpdate();
    return place;
}

void CListView::SetCell(int row, int column, std::string_view text) {
    if (HasCell(row, column)) {
        m_model.SetCell(row, column, text);
        StartTimer();
    }
}

std::string CListView::GetCell(int row, int column) const {
    return HasCell(row, column) ? FromQt(ToQt(m_model.Rows().GetCell(row, column))) : std::string();
}

void CListView::SetRowKey(int row, std::uint32_t key) {
    if (HasRow(row)) {
        m_model.SetKey(row, key);
    }
}

std::uint32_t CListView::GetRowKey(int row) const {
    return HasRow(row) ? m_model.Rows().GetKey(row) : 0;
}

void CListView::RemoveAllRows() {
    m_firstToSelect = panel::kNoRow;
    m_mark = QModelIndex();
    m_model.RemoveAllRows();
}

void CListView::SelectRow(int row, bool selected) {
    if (!HasRow(row)) {
        return;
    }
    const bool isSingle = selectionMode() == SingleSelection;
    if (selected && !isSingle && m_firstToSelect != panel::kNoRow && row == m_lastToSelect + 1) {
        m_lastToSelect = row;
        return;
    }
    ApplySelection();
    if (selected && !isSingle) {
        m_firstToSelect = m_lastToSelect = row;
        viewport()->update();
        return;
    }
    BringUpToDate();
    const auto command =
        selected ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Deselect;
    selectionModel()->select(m_model.index(row, 0), command | kWholeRows);
}

std::vector<int> CListView::GetSelectedRows() {
    ApplySelection();
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::ranges::sort(rows);
    const auto repeated = std::ranges::unique(rows);
    rows.erase(repeated.begin(), repeated.end());
    return rows;
}

void CListView::SetSelectionMark(int row) {
    if (HasRow(row)) {
        BringUpToDate();
        m_mark = m_model.index(row, 0);
    }
}

int CListView::GetFocusedRow() const {
    return currentIndex().isValid() ? currentIndex().row() : panel::kNoRow;
}

void CListView::EnsureRowVisible(int row) {
    if (HasRow(row)) {
        BringUpToDate();
        scrollTo(m_model.index(row, 0));
    }
}

// A list is made of rows: where a table goes from cell to cell, it goes to the ends or scrolls.
QModelIndex CListView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int column = std::max(0, currentIndex().column());
    switch (action) {
    case MoveHome:
        return m_model.index(0, column);
    case MoveEnd:
        return m_model.index(m_model.rowCount() - 1, column);
    case MoveLeft:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
        return currentIndex();
    case MoveRight:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

// The toolkit extends a selection from the row that the user touched last; ours starts at the mark,
// which programs move as well.
void CListView::setSelection(const QRect& rectangle, QItemSelectionModel::SelectionFlags command) {
    const bool isRange = command.testFlag(QItemSelectionModel::Current);
    if (!isRange || state() == DragSelectingState || !currentIndex().isValid()) {
        QTableView::setSelection(rectangle, command);
        return;
    }
    if (!m_mark.isValid()) {
        m_mark = m_model.index(currentIndex().row(), 0);
    }
    const auto change =
        m_extendsSelection ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect;
    selectionModel()->select(RowsBetween(m_mark.row(), currentIndex().row()), change | kWholeRows);
}

void CListView::keyPressEvent(QKeyEvent* event) {
    const std::uint16_t virtualKey = ToVirtualKey(event->key(), event->modifiers());
    if (m_keyListener && virtualKey != kNoVirtualKey) {
        m_keyListener(virtualKey);
    }
    ApplySelection();
    BringUpToDate();
    const int rowBefore = GetFocusedRow();
    if (!m_mark.isValid()) {
        SetSelectionMark(rowBefore);
    }
    m_extendsSelection = event->modifiers().testFlag(Qt::ControlModifier);
    QTableView::keyPressEvent(event);
    MoveMarkAfterKey(*event, rowBefore);
}

void CListView::MoveMarkAfterKey(const QKeyEvent& event, int rowBefore) {
    const bool isToggle = event.key() == Qt::Key_Space;
    const bool isPlain = !(event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier));
    if (isToggle || (isPlain && GetFocusedRow() != rowBefore)) {
        SetSelectionMark(GetFocusedRow());
    }
}

void CListView::mousePressEvent(QMouseEvent* event) {
    ApplySelection();
    BringUpToDate();
    const QModelIndex pressed = indexAt(event->position().toPoint());
    const bool wasSelected = selectionModel()->isSelected(pressed);
    m_extendsSelection = event->modifiers().testFlag(Qt::ControlModifier);
    QTableView::mousePressEvent(event);
    const bool keepsMark = event->modifiers().testFlag(Qt::ShiftModifier) ||
                           (event->button() != Qt::LeftButton && wasSelected);
    if (!keepsMark && pressed.isValid()) {
        SetSelectionMark(pressed.row());
    }
}

// The menu key arrives here too, with the keyboard as its reason; it is told as a key.
void CListView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse && m_rightClickListener) {
        m_rightClickListener(event->globalPos());
    }
}

void CListView::paintEvent(QPaintEvent* event) {
    ApplySelection();
    BringUpToDate();
    QTableView::paintEvent(event);
}

// Columns that a vertical scroll bar pushes a few pixels out of sight are no reason to lose a row
// to a horizontal one.
void CListView::updateGeometries() {
    const int excess = horizontalHeader()->length() - viewport()->width();
    setHorizontalScrollBarPolicy(excess <= kToleratedExcessPixels ? Qt::ScrollBarAlwaysOff
                                                                  : Qt::ScrollBarAsNeeded);
    QTableView::updateGeometries();
}

void CListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_updateTimer.timerId()) {
        BringUpToDate();
        return;
    }
    QTableView::timerEvent(event);
}

bool CListView::HasCell(int row, int column) const {
    return HasRow(row) && column >= 0 && column < m_model.Rows().GetColumnCount();
}

void CListView::ScheduleUpdate() {
    if (m_sinceUpdate.hasExpired(kUpdateMs)) {
        BringUpToDate();
        viewport()->repaint();
    } else {
        StartTimer();
    }
}

void CListView::StartTimer() {
    if (!m_updateTimer.isActive()) {
        m_updateTimer.start(kUpdateMs, this);
    }
}

void CListView::BringUpToDate() {
    m_updateTimer.stop();
    m_sinceUpdate.restart();
    if (m_model.HasNews()) {
        m_model.Announce();
        executeDelayedItemsLayout();
    }
}

void CListView::ApplySelection() {
    if (m_firstToSelect == panel::kNoRow) {
        return;
    }
    BringUpToDate();
    const int first = std::exchange(m_firstToSelect, panel::kNoRow);
    selectionModel()->select(RowsBetween(first, m_lastToSelect),
                             QItemSelectionModel::Select | kWholeRows);
}

QItemSelection CListView::RowsBetween(int first, int last) const {
    const auto [top, bottom] = std::minmax(first, last);
    return {m_model.index(top, 0), m_model.index(bottom, m_model.columnCount() - 1)};
}

}
