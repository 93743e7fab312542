#include "tests/frontend/conformance/ConformanceTest.h"

namespace conformance {

namespace {

using panel::Alignment;
using panel::kNoRow;

class ListTest : public ConformanceTest {
protected:
    std::string Cell(int row, int column) { return View().GetCell(kManyList, row, column); }
    Rows Selected(panel::ControlId list = kManyList) { return View().GetSelectedRows(list); }
};

TEST_F(ListTest, NewListIsEmpty) {
    Show();
    EXPECT_EQ(View().GetRowCount(kManyList), 0);
    EXPECT_EQ(Selected(), Rows{});
    EXPECT_EQ(View().GetSelectionMark(kManyList), kNoRow);
    EXPECT_EQ(View().GetFocusedRow(kManyList), kNoRow);
}

TEST_F(ListTest, ColumnsShowHeadingWidthAndAlignment) {
    Show();
    View().InsertColumn(kManyList, 0, {"File name", 120, Alignment::Left});
    View().InsertColumn(kManyList, 1, {"Size (B)", 80, Alignment::Right});
    const std::vector<ShownColumn> expected = {{"File name", 120, Alignment::Left},
                                               {"Size (B)", 80, Alignment::Right}};
    EXPECT_EQ(User().ShownColumns(kManyList), expected);
}

TEST_F(ListTest, InsertColumnBeforeAnotherOneComesFirst) {
    Show();
    View().InsertColumn(kManyList, 0, {"B", 50, Alignment::Left});
    View().InsertColumn(kManyList, 0, {"A", 40, Alignment::Left});
    const std::vector<ShownColumn> expected = {{"A", 40, Alignment::Left},
                                               {"B", 50, Alignment::Left}};
    EXPECT_EQ(User().ShownColumns(kManyList), expected);
}

TEST_F(ListTest, InsertRowReturnsItsIndexAndShowsTheFirstCell) {
    Show();
    FillList(kManyList, 2);
    EXPECT_EQ(View().InsertRow(kManyList, 2, "third"), 2);
    EXPECT_EQ(View().GetRowCount(kManyList), 3);
    EXPECT_EQ(Cell(2, 0), "third");
    EXPECT_EQ(User().ShownCell(kManyList, 2, 0), "third");
    EXPECT_EQ(Cell(2, 1), "");
}

TEST_F(ListTest, InsertRowBeforeAnotherMovesItDown) {
    Show();
    FillList(kManyList, 2);
    View().SetRowKey(kManyList, 1, 11);
    View().SelectRow(kManyList, 1, true);
    EXPECT_EQ(View().InsertRow(kManyList, 1, "between"), 1);
    EXPECT_EQ(Cell(1, 0), "between");
    EXPECT_EQ(Cell(2, 0), "row 1");
    EXPECT_EQ(Cell(2, 1), "1");
    EXPECT_EQ(View().GetRowKey(kManyList, 1), 0u);
    EXPECT_EQ(View().GetRowKey(kManyList, 2), 11u);
    EXPECT_EQ(Selected(), Rows{2});
}

TEST_F(ListTest, InsertRowBeforeNoRowAppends) {
    Show();
    FillList(kManyList, 2);
    EXPECT_EQ(View().InsertRow(kManyList, 70, "beyond"), 2);
    EXPECT_EQ(View().InsertRow(kManyList, kNoRow, "none"), 3);
    EXPECT_EQ(Cell(2, 0), "beyond");
    EXPECT_EQ(Cell(3, 0), "none");
}

TEST_F(ListTest, SetCellShowsAndReturnsEachCell) {
    Show();
    FillList(kManyList, 3);
    View().SetCell(kManyList, 1, 1, "R&D");
    EXPECT_EQ(Cell(1, 1), "R&D");
    EXPECT_EQ(User().ShownCell(kManyList, 1, 1), "R&D");
    EXPECT_EQ(Cell(0, 1), "0");
    EXPECT_EQ(Cell(2, 1), "2");
}

TEST_F(ListTest, SetCellInAnyOrderAndAgainKeepsTheOthers) {
    Show();
    FillList(kManyList, 3);
    View().InsertColumn(kManyList, 2, {"Third", 40, Alignment::Left});
    View().SetCell(kManyList, 2, 2, "late");
    View().SetCell(kManyList, 0, 2, std::string(300, 'x'));
    View().SetCell(kManyList, 0, 0, "a longer name than before");
    View().SetCell(kManyList, 2, 1, "");
    EXPECT_EQ(Cell(0, 0), "a longer name than before");
    EXPECT_EQ(Cell(0, 1), "0");
    EXPECT_EQ(Cell(0, 2), std::string(300, 'x'));
    EXPECT_EQ(Cell(1, 2), "");
    EXPECT_EQ(Cell(2, 0), "row 2");
    EXPECT_EQ(Cell(2, 1), "");
    EXPECT_EQ(Cell(2, 2), "late");
}

TEST_F(ListTest, InvalidByteOfACellIsShownAsReplacementCharacter) {
    Show();
    FillList(kManyList, 1);
    View().SetCell(kManyList, 0, 1,
                   "v\xFF"
                   "1");
    const std::string expected = std::string("v") + kReplacement + "1";
    EXPECT_EQ(Cell(0, 1), expected);
    EXPECT_EQ(User().ShownCell(kManyList, 0, 1), expected);
}

TEST_F(ListTest, RowsAndColumnsThatAreMissingAreIgnored) {
    Show();
    FillList(kManyList, 2);
    View().SetCell(kManyList, 2, 0, "x");
    View().SetCell(kManyList, kNoRow, 0, "x");
    View().SetCell(kManyList, 0, 2, "x");
    View().SetCell(kManyList, 0, -1, "x");
    View().SetRowKey(kManyList, 2, 5);
    View().SelectRow(kManyList, 2, true);
    View().SetSelectionMark(kManyList, 2);
    View().EnsureRowVisible(kManyList, 2);
    EXPECT_EQ(View().GetRowCount(kManyList), 2);
    EXPECT_EQ(Cell(2, 0), "");
    EXPECT_EQ(Cell(0, 2), "");
    EXPECT_EQ(Cell(0, -1), "");
    EXPECT_EQ(View().GetRowKey(kManyList, 2), 0u);
    EXPECT_EQ(Selected(), Rows{});
    EXPECT_EQ(View().GetSelectionMark(kManyList), kNoRow);
}

TEST_F(ListTest, RowKeysAreKept) {
    Show();
    FillList(kManyList, 3);
    EXPECT_EQ(View().GetRowKey(kManyList, 1), 0u);
    View().SetRowKey(kManyList, 1, 0xFFFFFFFFu);
    View().SetRowKey(kManyList, 2, 0x16021170u);
    EXPECT_EQ(View().GetRowKey(kManyList, 1), 0xFFFFFFFFu);
    EXPECT_EQ(View().GetRowKey(kManyList, 2), 0x16021170u);
    EXPECT_EQ(View().GetRowKey(kManyList, 0), 0u);
}

TEST_F(ListTest, SelectRowAddsToTheSelectionOfManyInListOrder) {
    Show();
    FillList(kManyList, 5);
    View().SelectRow(kManyList, 3, true);
    View().SelectRow(kManyList, 1, true);
    View().SelectRow(kManyList, 4, true);
    EXPECT_EQ(Selected(), (Rows{1, 3, 4}));
    View().SelectRow(kManyList, 3, false);
    EXPECT_EQ(Selected(), (Rows{1, 4}));
}

TEST_F(ListTest, SelectRowReplacesTheSelectionOfOne) {
    Show();
    FillList(kOneList, 5);
    View().SelectRow(kOneList, 3, true);
    View().SelectRow(kOneList, 1, true);
    EXPECT_EQ(Selected(kOneList), Rows{1});
    View().SelectRow(kOneList, 1, false);
    EXPECT_EQ(Selected(kOneList), Rows{});
}

TEST_F(ListTest, SelectRowMovesNeitherMarkNorFocusedRow) {
    Show();
    FillList(kManyList, 5);
    View().SelectRow(kManyList, 3, true);
    EXPECT_EQ(View().GetSelectionMark(kManyList), kNoRow);
    EXPECT_EQ(View().GetFocusedRow(kManyList), kNoRow);
}

TEST_F(ListTest, SelectionMarkIsKeptAndSelectsNothing) {
    Show();
    FillList(kManyList, 5);
    View().SetSelectionMark(kManyList, 2);
    EXPECT_EQ(View().GetSelectionMark(kManyList), 2);
    EXPECT_EQ(View().GetFocusedRow(kManyList), kNoRow);
    EXPECT_EQ(Selected(), Rows{});
}

TEST_F(ListTest, RemoveAllRowsLeavesColumnsOnly) {
    Show();
    FillList(kManyList, 5);
    User().ClickRow(kManyList, 3);
    View().SetRowKey(kManyList, 0, 7);
    View().RemoveAllRows(kManyList);
    EXPECT_EQ(View().GetRowCount(kManyList), 0);
    EXPECT_EQ(Selected(), Rows{});
    EXPECT_EQ(View().GetSelectionMark(kManyList), kNoRow);
    EXPECT_EQ(View().GetFocusedRow(kManyList), kNoRow);
    EXPECT_EQ(User().ShownColumns(kManyList).size(), 2u);
    View().InsertRow(kManyList, 0, "fresh");
    EXPECT_EQ(View().GetRowKey(kManyList, 0), 0u);
    EXPECT_EQ(Cell(0, 1), "");
    EXPECT_EQ(Selected(), Rows{});
}

TEST_F(ListTest, ThousandRowsAreKept) {
    Show();
    FillList(kManyList, 1000);
    EXPECT_EQ(View().GetRowCount(kManyList), 1000);
    EXPECT_EQ(Cell(999, 0), "row 999");
    EXPECT_EQ(User().ShownCell(kManyList, 500, 1), "500");
}

TEST_F(ListTest, EnsureRowVisibleScrollsBothWays) {
    Show();
    FillList(kManyList, 1000);
    EXPECT_TRUE(User().IsRowInSight(kManyList, 0));
    EXPECT_FALSE(User().IsRowInSight(kManyList, 999));
    View().EnsureRowVisible(kManyList, 999);
    EXPECT_TRUE(User().IsRowInSight(kManyList, 999));
    EXPECT_FALSE(User().IsRowInSight(kManyList, 0));
    View().EnsureRowVisible(kManyList, 0);
    EXPECT_TRUE(User().IsRowInSight(kManyList, 0));
}

TEST_F(ListTest, EnsureRowVisibleSelectsNothing) {
    Show();
    FillList(kManyList, 100);
    View().EnsureRowVisible(kManyList, 99);
    EXPECT_EQ(Selected(), Rows{});
    EXPECT_EQ(View().GetFocusedRow(kManyList), kNoRow);
}

TEST_F(ListTest, VerbsOnListNeverCallTheHandler) {
    Show();
    FillList(kManyList, 10);
    View().SelectRow(kManyList, 1, true);
    View().SetSelectionMark(kManyList, 1);
    View().EnsureRowVisible(kManyList, 9);
    View().RemoveAllRows(kManyList);
    EXPECT_EQ(m_handler.events, Events{});
}

TEST_F(ListTest, WhatIsNoListAnswersEmpty) {
    Show();
    for (panel::ControlId id : {kMissing, panel::kNoControl, kField, kLog}) {
        View().InsertColumn(id, 0, {"Heading", 50, Alignment::Left});
        EXPECT_EQ(View().InsertRow(id, 0, "text"), kNoRow) << id;
        View().SetCell(id, 0, 0, "text");
        View().SetRowKey(id, 0, 1);
        View().SelectRow(id, 0, true);
        View().SetSelectionMark(id, 0);
        View().EnsureRowVisible(id, 0);
        EXPECT_EQ(View().GetRowCount(id), 0) << id;
        EXPECT_EQ(View().GetCell(id, 0, 0), "") << id;
        EXPECT_EQ(View().GetRowKey(id, 0), 0u) << id;
        EXPECT_EQ(View().GetSelectedRows(id), Rows{}) << id;
        EXPECT_EQ(View().GetSelectionMark(id), kNoRow) << id;
        EXPECT_EQ(View().GetFocusedRow(id), kNoRow) << id;
        View().RemoveAllRows(id);
    }
    EXPECT_EQ(View().GetText(kField), "initial");
    EXPECT_EQ(View().GetText(kLog), "");
}

}

}
