#include "frontend/qt/ListView.h"

#include "frontend/qt/Font.h"
#include "frontend/qt/ListHeader.h"
#include "frontend/qt/Text.h"

#include <QHeaderView>
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

CListView::CListView(Selection selection, QWidget* parent)
    : QTableView(parent), m_aboveScrollBar(*new QWidget) {
    setModel(&m_model);
    setSelectionMode(selection == Selection::Single ? SingleSelection : ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    SetUpLook();
    m_sinceUpdate.start();
}

void CListView::SetUpLook() {
    setHorizontalHeader(new CListHeader(this));
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    addScrollBarWidget(&m_aboveScrollBar, Qt::AlignTop);
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
    return HasCell(row, column) ? FromQt(ToQt(m_model.Rows().Cell(row, column))) : std::string();
}

void CListView::SetRowKey(int row, std::uint32_t key) {
    if (HasRow(row)) {
        m_model.SetKey(row, key);
    }
}

std::uint32_t CListView::GetRowKey(int row) const {
    return HasRow(row) ? m_model.Rows().Key(row) : 0;
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
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
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

std::optional<panel::Point> CListView::GetRowPosition(int row) {
    if (!HasRow(row)) {
        return std::nullopt;
    }
    BringUpToDate();
    const QPoint inRows(columnViewportPosition(0), rowViewportPosition(row));
    const QPoint place = viewport()->mapTo(this, inRows);
    return panel::Point{place.x(), place.y()};
}

// From the corner that positions of rows are relative to, so with the frame above and to the left.
panel::Size CListView::GetClientSize() const {
    const QRect rows = viewport()->geometry();
    return {rows.x() + rows.width(), rows.y() + rows.height()};
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
    SpreadHeader();
}

// The heading of the last column must not be cut by the scroll bar, so that the bar begins below
// the header, which reaches over it.
void CListView::SpreadHeader() {
    QRect place = horizontalHeader()->geometry();
    m_aboveScrollBar.setFixedHeight(place.height());
    place.setRight(width() - 1 - frameWidth());
    horizontalHeader()->setGeometry(place);
    horizontalHeader()->raise();
}

void CListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_updateTimer.timerId()) {
        BringUpToDate();
        return;
    }
    QTableView::timerEvent(event);
}

bool CListView::HasCell(int row, int column) const {
    return HasRow(row) && column >= 0 && column < m_model.columnCount();
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
