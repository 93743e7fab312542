#include "frontend/common/PackedRows.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

class PackedRowsTest : public testing::Test {
protected:
    PackedRowsTest() {
        for (int column = 0; column < kColumns; ++column) {
            m_rows.InsertColumn(column);
        }
    }

    void FillInOrder(int rows, int columns) {
        for (int row = 0; row < rows; ++row) {
            m_rows.Insert(row, CellText(row, 0));
            for (int column = 1; column < columns; ++column) {
                m_rows.SetCell(row, column, CellText(row, column));
            }
        }
    }

    static std::string CellText(int row, int column) {
        return "r" + std::to_string(row) + "c" + std::to_string(column);
    }

    static constexpr int kColumns = 7;
    common::CPackedRows m_rows;
};

TEST_F(PackedRowsTest, CellsSetInOrderAreReadBack) {
    FillInOrder(3, 7);
    EXPECT_EQ(m_rows.Count(), 3);
    EXPECT_EQ(m_rows.Cell(0, 0), "r0c0");
    EXPECT_EQ(m_rows.Cell(1, 6), "r1c6");
    EXPECT_EQ(m_rows.Cell(2, 3), "r2c3");
}

TEST_F(PackedRowsTest, CellNeverSetIsEmpty) {
    m_rows.Insert(0, "name");
    m_rows.SetCell(0, 3, "third");
    EXPECT_EQ(m_rows.Cell(0, 1), "");
    EXPECT_EQ(m_rows.Cell(0, 2), "");
    EXPECT_EQ(m_rows.Cell(0, 3), "third");
    EXPECT_EQ(m_rows.Cell(0, 4), "");
}

TEST_F(PackedRowsTest, SetCellOfNoRowOrColumnDoesNothing) {
    m_rows.SetCell(-1, 0, "no row");
    m_rows.SetCell(0, 0, "no row");
    FillInOrder(2, kColumns);
    for (const int row : {-1, 2}) {
        m_rows.SetCell(row, 0, "no row");
    }
    for (const int column : {-1, kColumns}) {
        m_rows.SetCell(1, column, "no column");
    }
    m_rows.InsertColumn(kColumns);
    EXPECT_EQ(m_rows.Count(), 2);
    EXPECT_EQ(m_rows.Cell(0, 0), "r0c0");
    EXPECT_EQ(m_rows.Cell(1, 6), "r1c6");
    EXPECT_EQ(m_rows.Cell(1, 7), "");
}

TEST_F(PackedRowsTest, FirstColumnFindsCellsThatWereThereBefore) {
    common::CPackedRows rows;
    rows.Insert(0, "before");
    rows.InsertColumn(0);
    EXPECT_EQ(rows.Cell(0, 0), "before");
}

TEST_F(PackedRowsTest, CellsAroundTheLengthMarkAreReadBack) {
    const std::size_t lengths[] = {0, 1, 254, 255, 256, 65536, 70000};
    int row = 0;
    for (std::size_t length : lengths) {
        m_rows.Insert(row, std::string(length, 'a'));
        m_rows.SetCell(row++, 1, "after");
    }
    row = 0;
    for (std::size_t length : lengths) {
        EXPECT_EQ(m_rows.Cell(row, 0), std::string(length, 'a'));
        EXPECT_EQ(m_rows.Cell(row++, 1), "after") << length;
    }
}

TEST_F(PackedRowsTest, FillingInOrderTakesTextAndOneByteACell) {
    m_rows.Insert(0, "12345");
    m_rows.SetCell(0, 1, "678");
    EXPECT_EQ(m_rows.TextBytes(), 10u);
}

TEST_F(PackedRowsTest, ReplacingOverAndOverDoesNotGrowForEver) {
    FillInOrder(100, 3);
    const std::string text(1000, 'x');
    for (int round = 0; round < 10'000; ++round) {
        m_rows.SetCell(round % 100, 1, text);
    }
    EXPECT_LT(m_rows.TextBytes(), 500'000u);
    EXPECT_EQ(m_rows.Cell(7, 0), "r7c0");
    EXPECT_EQ(m_rows.Cell(7, 1), text);
    EXPECT_EQ(m_rows.Cell(7, 2), "r7c2");
}

TEST_F(PackedRowsTest, InsertColumnMovesLaterCellsAside) {
    FillInOrder(3, 2);
    m_rows.InsertColumn(1);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(m_rows.Cell(row, 0), CellText(row, 0));
        EXPECT_EQ(m_rows.Cell(row, 1), "");
        EXPECT_EQ(m_rows.Cell(row, 2), CellText(row, 1));
    }
}

TEST_F(PackedRowsTest, InsertInTheMiddleKeepsKeysAndSelectionWithTheirRows) {
    FillInOrder(2, 2);
    m_rows.SetKey(1, 42);
    m_rows.SetSelected(1, true);
    m_rows.Insert(1, "between");
    m_rows.SetCell(0, 1, "changed");
    EXPECT_EQ(m_rows.Key(1), 0u);
    EXPECT_FALSE(m_rows.IsSelected(1));
    EXPECT_EQ(m_rows.Key(2), 42u);
    EXPECT_TRUE(m_rows.IsSelected(2));
    EXPECT_EQ(m_rows.Cell(0, 1), "changed");
    EXPECT_EQ(m_rows.Cell(1, 0), "between");
    EXPECT_EQ(m_rows.Cell(2, 1), "r1c1");
}

TEST_F(PackedRowsTest, ClearLeavesNothingOfTheRowsBefore) {
    FillInOrder(3, 3);
    m_rows.SetKey(0, 42);
    m_rows.SetSelected(0, true);
    m_rows.Clear();
    EXPECT_EQ(m_rows.Count(), 0);
    EXPECT_EQ(m_rows.TextBytes(), 0u);
    m_rows.Insert(0, "new");
    EXPECT_EQ(m_rows.Cell(0, 0), "new");
    EXPECT_EQ(m_rows.Cell(0, 1), "");
    EXPECT_EQ(m_rows.Key(0), 0u);
    EXPECT_FALSE(m_rows.IsSelected(0));
}

TEST_F(PackedRowsTest, RandomChangesMatchAPlainTable) {
    constexpr unsigned kSeed = 20'240;
    SCOPED_TRACE("seed " + std::to_string(kSeed));
    std::mt19937 random(kSeed);
    std::vector<std::vector<std::string>> table;
    for (int step = 0; step < 20'000; ++step) {
        const std::string text(random() % 8 == 0 ? random() % 600 : random() % 12, 'a' + step % 26);
        if (table.empty() || random() % 10 == 0) {
            const auto index = random() % (table.size() + 1);
            table.insert(table.begin() + static_cast<std::ptrdiff_t>(index), {text, "", "", ""});
            m_rows.Insert(static_cast<int>(index), text);
        } else {
            const auto row = random() % table.size();
            const auto column = random() % 4;
            table[row][column] = text;
            m_rows.SetCell(static_cast<int>(row), static_cast<int>(column), text);
        }
    }
    for (int row = 0; row < m_rows.Count(); ++row) {
        for (int column = 0; column < 4; ++column) {
            ASSERT_EQ(m_rows.Cell(row, column),
                      table[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
        }
    }
}

}
