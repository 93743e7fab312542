#include "frontend/qt/PackedRows.h"

#include <gtest/gtest.h>

#include <string>

namespace qttests {

namespace {

class PackedRowsTest : public testing::Test {
protected:
    PackedRowsTest() {
        m_rows.InsertColumn(0);
        m_rows.InsertColumn(1);
    }

    void Append(const std::string& first, const std::string& second) {
        const int row = m_rows.GetRowCount();
        m_rows.InsertRow(row);
        m_rows.SetCell(row, 0, first);
        m_rows.SetCell(row, 1, second);
    }

    qt::CPackedRows m_rows;
};

TEST_F(PackedRowsTest, CellsKeepTheirTexts) {
    Append("a", "b");
    Append("", "a longer text");
    EXPECT_EQ(m_rows.GetCell(0, 0), "a");
    EXPECT_EQ(m_rows.GetCell(0, 1), "b");
    EXPECT_EQ(m_rows.GetCell(1, 0), "");
    EXPECT_EQ(m_rows.GetCell(1, 1), "a longer text");
}

TEST_F(PackedRowsTest, InsertRowMovesRowsAndKeysDown) {
    Append("a", "b");
    m_rows.SetKey(0, 7);
    m_rows.InsertRow(0);
    EXPECT_EQ(m_rows.GetCell(0, 0), "");
    EXPECT_EQ(m_rows.GetKey(0), 0u);
    EXPECT_EQ(m_rows.GetCell(1, 1), "b");
    EXPECT_EQ(m_rows.GetKey(1), 7u);
}

TEST_F(PackedRowsTest, InsertColumnMovesCellsOfEachRow) {
    Append("a", "b");
    Append("c", "d");
    m_rows.InsertColumn(1);
    EXPECT_EQ(m_rows.GetColumnCount(), 3);
    EXPECT_EQ(m_rows.GetCell(1, 0), "c");
    EXPECT_EQ(m_rows.GetCell(1, 1), "");
    EXPECT_EQ(m_rows.GetCell(1, 2), "d");
}

TEST_F(PackedRowsTest, RewritingOneCellForeverKeepsTheOthers) {
    Append("first", "kept");
    Append("second", "as well");
    for (int count = 0; count < 10000; ++count) {
        m_rows.SetCell(0, 0, std::string(100, 'x') + std::to_string(count));
    }
    EXPECT_EQ(m_rows.GetCell(0, 0), std::string(100, 'x') + "9999");
    EXPECT_EQ(m_rows.GetCell(0, 1), "kept");
    EXPECT_EQ(m_rows.GetCell(1, 0), "second");
    EXPECT_EQ(m_rows.GetCell(1, 1), "as well");
}

TEST_F(PackedRowsTest, ClearLeavesColumnsOnly) {
    Append("a", "b");
    m_rows.Clear();
    EXPECT_EQ(m_rows.GetRowCount(), 0);
    EXPECT_EQ(m_rows.GetColumnCount(), 2);
    Append("c", "d");
    EXPECT_EQ(m_rows.GetCell(0, 1), "d");
}

}

}
