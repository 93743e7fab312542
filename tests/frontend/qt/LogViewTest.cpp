#include "frontend/qt/LogView.h"

#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <gtest/gtest.h>

namespace qttests {

namespace {

class LogViewTest : public testing::Test {
protected:
    LogViewTest() {
        m_log.resize(400, 78);
        m_log.show();
    }

    void AppendLines(int count) {
        for (int line = 0; line < count; ++line) {
            m_log.Append("line " + std::to_string(line) + "\r\n");
        }
        m_log.grab();
    }

    bool IsAtEnd() const {
        return m_log.verticalScrollBar()->value() == m_log.verticalScrollBar()->maximum();
    }

    qt::CLogView m_log{nullptr};
};

TEST_F(LogViewTest, TextNotYetShownIsReturned) {
    m_log.Append("first\r\n");
    m_log.Append("second\r\n");
    EXPECT_EQ(m_log.GetText(), "first\r\nsecond\r\n");
}

TEST_F(LogViewTest, LinesReachTheScreenWithoutEventLoop) {
    QElapsedTimer time;
    time.start();
    while (m_log.blockCount() < 2 && !time.hasExpired(10000)) {
        m_log.Append("line\r\n");
    }
    EXPECT_GE(m_log.blockCount(), 2);
}

TEST_F(LogViewTest, LinesReachTheScreenAtIdle) {
    m_log.Append("first\r\n");
    m_log.Append("second\r\n");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_log.blockCount() == 3; }));
    EXPECT_EQ(m_log.document()->firstBlock().text(), QStringLiteral("first"));
}

TEST_F(LogViewTest, AppendFollowsTheEndAndDropsTheSelection) {
    AppendLines(100);
    m_log.selectAll();
    m_log.verticalScrollBar()->setValue(0);
    AppendLines(1);
    EXPECT_TRUE(IsAtEnd());
    EXPECT_FALSE(m_log.textCursor().hasSelection());
}

TEST_F(LogViewTest, AppendKeepsTheSelectedText) {
    AppendLines(2);
    m_log.selectAll();
    m_log.Append("third\r\n");
    m_log.grab();
    EXPECT_EQ(m_log.GetText(), "line 0\r\nline 1\r\nthird\r\n");
}

TEST_F(LogViewTest, ScrollBarIsThereWithoutAnyText) {
    EXPECT_TRUE(m_log.verticalScrollBar()->isVisible());
    EXPECT_FALSE(m_log.horizontalScrollBar()->isVisible());
}

TEST_F(LogViewTest, ResizeKeepsTheEndInSight) {
    AppendLines(100);
    m_log.resize(400, 300);
    m_log.resize(200, 60);
    m_log.grab();
    EXPECT_TRUE(IsAtEnd());
}

TEST_F(LogViewTest, LowestLogShowsTheLastLine) {
    m_log.resize(400, 35);
    AppendLines(10);
    const QRectF last = m_log.cursorRect(QTextCursor(m_log.document()->lastBlock().previous()));
    EXPECT_GE(last.top(), 0);
}

TEST_F(LogViewTest, LimitRefusesWhatExceedsIt) {
    m_log.SetLimit(5);
    m_log.Append("ab\xC3\xA4");
    m_log.Append("defg");
    EXPECT_EQ(m_log.GetText(), "ab\xC3\xA4"
                               "de");
}

TEST_F(LogViewTest, ClearDropsWhatIsNotYetShown) {
    AppendLines(2);
    m_log.Append("waiting\r\n");
    m_log.Clear();
    EXPECT_EQ(m_log.GetText(), "");
}

TEST_F(LogViewTest, TextCanBeSelectedButNotTyped) {
    AppendLines(2);
    QTest::keyClicks(&m_log, QStringLiteral("typed"));
    EXPECT_EQ(m_log.GetText(), "line 0\r\nline 1\r\n");
    QTest::keyClick(&m_log, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(m_log.textCursor().hasSelection());
}

}

}
