#include "frontend/qt/LogView.h"

#include "frontend/qt/Text.h"
#include "panel/control/View.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace qt {

namespace {

constexpr int kUpdateMs = 40;
// Narrow, since a log of the least size has room for two lines, of which the last is always empty.
constexpr qreal kMarginPixels = 2;

}

CLogView::CLogView(QWidget* parent) : QPlainTextEdit(parent), m_limit(panel::kNoTextLimit) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kMarginPixels);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_sinceUpdate.start();
}

void CLogView::Append(std::string_view text) {
    if (m_limit == panel::kNoTextLimit) {
        m_waiting.append(text);
    } else {
        const std::size_t used = static_cast<std::size_t>(ToQt(GetText()).size());
        const std::size_t room = m_limit - std::min(m_limit, used);
        m_waiting.append(FromQt(ToQt(text).left(static_cast<qsizetype>(room))));
    }
    if (m_sinceUpdate.hasExpired(kUpdateMs)) {
        BringUpToDate();
        viewport()->repaint();
    } else if (!m_updateTimer.isActive()) {
        m_updateTimer.start(kUpdateMs, this);
    }
}

void CLogView::Clear() {
    m_waiting.clear();
    clear();
}

std::string CLogView::GetText() const {
    std::string shown = FromQt(document()->toPlainText().replace(u'\n', QStringLiteral("\r\n")));
    return shown + FromQt(ToQt(m_waiting));
}

void CLogView::paintEvent(QPaintEvent* event) {
    if (!m_waiting.empty()) {
        BringUpToDate();
        viewport()->update();
    }
    QPlainTextEdit::paintEvent(event);
}

void CLogView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    if (textCursor().atEnd()) {
        FollowEnd();
    }
}

void CLogView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_updateTimer.timerId()) {
        BringUpToDate();
        return;
    }
    QPlainTextEdit::timerEvent(event);
}

void CLogView::BringUpToDate() {
    m_updateTimer.stop();
    m_sinceUpdate.restart();
    if (m_waiting.empty()) {
        return;
    }
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(ToQt(std::exchange(m_waiting, {})));
    FollowEnd();
}

void CLogView::FollowEnd() {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    setTextCursor(end);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

}
