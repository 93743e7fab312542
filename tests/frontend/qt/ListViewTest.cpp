#include "frontend/qt/ListView.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace qttests {

namespace {

using Rows = std::vector<int>;

constexpr panel::ListColumn kFileColumns[] = {
    {"File name", 120, panel::Alignment::Left}, {"Type", 55, panel::Alignment::Left},
    {"File ID", 44, panel::Alignment::Right},   {"Version", 80, panel::Alignment::Left},
    {"Size (B)", 80, panel::Alignment::Right},  {"Location", 55, panel::Alignment::Left},
    {"Generation", 55, panel::Alignment::Left},
};

class ListViewTest : public testing::Test {
protected:
    ListViewTest() {
        for (const panel::ListColumn& column : kFileColumns) {
            m_list.InsertColumn(panel::kNoRow, column);
        }
        m_list.resize(497, 280);
        m_list.show();
    }

    void Fill(int rows) {
        for (int row = 0; row < rows; ++row) {
            m_list.InsertRow(row, "file" + std::to_string(row));
        }
        m_list.grab();
    }

    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&m_list, key, modifiers);
    }

    QString ToolTipOf(int row, int column) {
        const QPoint place = m_list.visualRect(m_list.model()->index(row, column)).center();
        QHelpEvent event(QEvent::ToolTip, place, m_list.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(m_list.viewport(), &event);
        return QToolTip::text();
    }

    qt::CListView m_list{qt::CListView::Selection::Multiple, nullptr};
};

TEST_F(ListViewTest, HeadingIsMeasuredInTheFontThatItIsShownIn) {
    const QHeaderView& header = *m_list.horizontalHeader();
    QFont bold = header.font();
    bold.setBold(true);
    const int width = QFontMetrics(header.font()).size(0, "File name").width();
    ASSERT_LT(width, QFontMetrics(bold).size(0, "File name").width());
    const int margins = 2 * m_list.style()->pixelMetric(QStyle::PM_HeaderMargin);
    EXPECT_EQ(header.sectionSizeHint(0), width + margins);
}

TEST_F(ListViewTest, FillingReachesTheScreenWithoutEventLoop) {
    QElapsedTimer time;
    time.start();
    while (m_list.model()->rowCount() < 2 && !time.hasExpired(10000)) {
        m_list.InsertRow(m_list.GetRowCount(), "file");
    }
    EXPECT_GE(m_list.model()->rowCount(), 2);
}

TEST_F(ListViewTest, RowsReachTheScreenAtIdle) {
    m_list.InsertRow(0, "first");
    m_list.InsertRow(1, "second");
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_list.model()->rowCount() == 2; }));
}

TEST_F(ListViewTest, ChangedCellIsAnnouncedAtIdle) {
    Fill(3);
    bool isTold = false;
    QObject::connect(m_list.model(), &QAbstractItemModel::dataChanged, &m_list,
                     [&](const QModelIndex& first, const QModelIndex& last) {
                         isTold = first.row() == 1 && last.row() == 1;
                     });
    m_list.SetCell(1, 6, "QX1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return isTold; }));
}

TEST_F(ListViewTest, SelectingEachRowInTurnMakesOneRange) {
    Fill(20000);
    for (int row = 0; row < 20000; ++row) {
        m_list.SelectRow(row, true);
    }
    EXPECT_EQ(m_list.GetSelectedRows().size(), 20000u);
    EXPECT_EQ(m_list.selectionModel()->selection().size(), 1);
}

TEST_F(ListViewTest, DeselectAfterSelectingInTurnLeavesTheRest) {
    Fill(5);
    for (int row = 0; row < 4; ++row) {
        m_list.SelectRow(row, true);
    }
    m_list.SelectRow(2, false);
    EXPECT_EQ(m_list.GetSelectedRows(), (Rows{0, 1, 3}));
}

TEST_F(ListViewTest, ShiftWithArrowExtendsFromTheMark) {
    Fill(10);
    PressKey(Qt::Key_End);
    m_list.SetSelectionMark(5);
    PressKey(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(m_list.GetSelectedRows(), (Rows{5, 6, 7, 8}));
    EXPECT_EQ(m_list.GetSelectionMark(), 5);
    EXPECT_EQ(m_list.GetFocusedRow(), 8);
}

TEST_F(ListViewTest, ControlWithArrowMovesTheFocusedRowOnly) {
    Fill(10);
    PressKey(Qt::Key_Home);
    PressKey(Qt::Key_Down);
    PressKey(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(m_list.GetFocusedRow(), 2);
    EXPECT_EQ(m_list.GetSelectedRows(), Rows{1});
    EXPECT_EQ(m_list.GetSelectionMark(), 1);
}

TEST_F(ListViewTest, ControlWithSpaceTogglesTheRowAndMarksIt) {
    Fill(10);
    PressKey(Qt::Key_Home);
    PressKey(Qt::Key_Down);
    PressKey(Qt::Key_Down, Qt::ControlModifier);
    PressKey(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(m_list.GetSelectedRows(), (Rows{1, 2}));
    EXPECT_EQ(m_list.GetSelectionMark(), 2);
}

TEST_F(ListViewTest, SelectAllShortcutIsAKeyLikeAnyOther) {
    std::vector<int> keys;
    m_list.SetKeyListener([&](std::uint16_t key) { keys.push_back(key); });
    Fill(10);
    m_list.SelectRow(3, true);
    PressKey(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(keys, (std::vector<int>{0x11, 'A'})) << "Control and the letter";
    EXPECT_EQ(m_list.GetSelectedRows(), Rows{3});
}

TEST_F(ListViewTest, LeftAndRightKeepTheRow) {
    Fill(10);
    PressKey(Qt::Key_End);
    PressKey(Qt::Key_Left);
    PressKey(Qt::Key_Right);
    EXPECT_EQ(m_list.GetFocusedRow(), 9);
    EXPECT_EQ(m_list.GetSelectedRows(), Rows{9});
}

TEST_F(ListViewTest, SelectionHasTheSameColoursWithoutFocus) {
    const QPalette colours = m_list.palette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        EXPECT_EQ(colours.color(QPalette::Inactive, role), colours.color(QPalette::Active, role));
    }
}

TEST_F(ListViewTest, HeaderCannotBeClickedAndAlignsAsItsCells) {
    Fill(1);
    const QAbstractItemModel& model = *m_list.model();
    EXPECT_FALSE(m_list.horizontalHeader()->sectionsClickable());
    for (int column = 0; column < 7; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                  model.index(0, column).data(Qt::TextAlignmentRole));
        EXPECT_EQ(m_list.columnWidth(column), kFileColumns[column].widthPixels);
    }
}

TEST_F(ListViewTest, VerticalScrollBarBringsNoHorizontalOne) {
    Fill(100);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_list.verticalScrollBar()->isVisible(); }));
    EXPECT_FALSE(m_list.horizontalScrollBar()->isVisible());
    m_list.resize(400, 280);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_list.horizontalScrollBar()->isVisible(); }));
}

TEST_F(ListViewTest, LastHeadingIsWholeAboveTheScrollBar) {
    Fill(100);
    const QWidget& bar = *m_list.verticalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }));
    const QHeaderView& header = *m_list.horizontalHeader();
    EXPECT_LT(m_list.viewport()->width(), 489);
    EXPECT_GE(header.viewport()->width(), 489) << "the sum of the columns";
    EXPECT_GT(bar.mapTo(&m_list, QPoint()).y(), header.geometry().bottom());
    EXPECT_FALSE(bar.visibleRegion().isEmpty());
}

TEST_F(ListViewTest, ToolTipShowsTheWholeOfACutTextOnly) {
    Fill(2);
    m_list.SetCell(1, 0, "a<b>name</b>that-is-too-long-for-its-column");
    EXPECT_EQ(ToolTipOf(0, 0), QString());
    EXPECT_TRUE(
        ToolTipOf(1, 0).contains("a&lt;b&gt;name&lt;/b&gt;that-is-too-long-for-its-column"));
}

TEST_F(ListViewTest, HeadingsFitTheirColumns) {
    for (int column = 0; column < 7; ++column) {
        const QAbstractItemModel& model = *m_list.model();
        const auto font = model.headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>();
        EXPECT_LT(QFontMetrics(font).horizontalAdvance(kFileColumns[column].heading),
                  kFileColumns[column].widthPixels);
    }
}

}

}
