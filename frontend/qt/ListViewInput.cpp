// The mouse and the keyboard of CListView.

#include "frontend/qt/KeyCodes.h"
#include "frontend/qt/ListView.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace qt {

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
    selectionModel()->select(RowsBetween(m_mark.row(), currentIndex().row()),
                             change | QItemSelectionModel::Rows);
}

void CListView::keyPressEvent(QKeyEvent* event) {
    const QPointer<const CListView> self(this);
    TellKey(ToVirtualKey(event->key(), event->modifiers()));
    if (!self) {
        return;
    }
    // The toolkit would select every row, but which keys do that is for the list's owner to say.
    if (event->matches(QKeySequence::SelectAll)) {
        return;
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

// A box that the listener shows may live to see the end of the list, and of the listener with it.
void CListView::TellKey(std::uint16_t virtualKey) const {
    if (m_keyListener && virtualKey != kNoVirtualKey) {
        const std::function<void(std::uint16_t)> listener = m_keyListener;
        listener(virtualKey);
    }
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
        const std::function<void(QPoint)> listener = m_rightClickListener;
        listener(event->globalPos());
    }
}

bool CListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QTableView::viewportEvent(event);
    }
    ShowWholeCell(static_cast<const QHelpEvent&>(*event));
    return true;
}

// Column widths are given, so a text may well be cut.
void CListView::ShowWholeCell(const QHelpEvent& event) const {
    const QModelIndex cell = indexAt(event.pos());
    const QString text = cell.data().toString();
    const bool isCut = sizeHintForIndex(cell).width() > visualRect(cell).width();
    QToolTip::showText(event.globalPos(), isCut ? Qt::convertFromPlainText(text) : QString(),
                       viewport());
}

}
