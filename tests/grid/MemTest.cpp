#include "grid/UGMem.h"

#include <gtest/gtest.h>

#include <string>

namespace {

void Put(CUGMem &mem, int col, long row, const char *text) {
    CUGCell cell;
    cell.SetText(text);
    ASSERT_EQ(GRID_SUCCESS, mem.SetCell(col, row, &cell));
}

// The texts of a rectangle: cells apart by commas, rows by slashes, "-" where there is none.
std::string Texts(CUGMem &mem, int cols, long rows) {
    std::string all;
    for (long row = 0; row < rows; ++row) {
        for (int col = 0; col < cols; ++col) {
            CUGCell cell;
            all += mem.GetCell(col, row, &cell) == GRID_SUCCESS ? cell.GetText() : "-";
            all += col + 1 < cols ? "," : "";
        }
        all += row + 1 < rows ? "/" : "";
    }
    return all;
}

void PutRows(CUGMem &mem, std::initializer_list<const char *> texts) {
    long row = 0;
    for (const char *text : texts)
        Put(mem, 0, row++, text);
}

TEST(MemTest, AFreshStoreKnowsNoCellAndNoRowCount) {
    CUGMem mem;
    CUGCell cell;
    EXPECT_EQ(GRID_ERROR, mem.GetCell(0, 0, &cell));
    EXPECT_EQ(GRID_NOT_IMPLEMENTED, mem.GetNumRows());
    EXPECT_EQ(0, mem.CountRowNodes());
}

TEST(MemTest, TheFirstSetCellMakesTheNodesUpToIt) {
    CUGMem mem;
    Put(mem, 3, 5, "x");
    EXPECT_EQ(6, mem.CountRowNodes());
    EXPECT_EQ(4, mem.CountColNodes(5));
    CUGCell cell;
    EXPECT_EQ(GRID_ERROR, mem.GetCell(2, 5, &cell)); // the node is there and holds no cell
    EXPECT_EQ(GRID_SUCCESS, mem.GetCell(3, 5, &cell));
    EXPECT_STREQ("x", cell.GetText());
}

TEST(MemTest, ARowInFrontOfRowZeroLeavesRowZeroTheSame) {
    CUGMem mem;
    Put(mem, 0, 0, "zero");
    Put(mem, 0, -1, "heading");
    CUGCell cell, heading;
    EXPECT_EQ(GRID_SUCCESS, mem.GetCell(0, 0, &cell));
    EXPECT_STREQ("zero", cell.GetText());
    EXPECT_EQ(GRID_SUCCESS, mem.GetCell(0, -1, &heading));
    EXPECT_STREQ("heading", heading.GetText());
    EXPECT_EQ(2, mem.CountRowNodes());
}

TEST(MemTest, AColumnInFrontOfColumnZeroBecomesTheHeadOfItsRow) {
    CUGMem mem;
    Put(mem, 0, 0, "a");
    Put(mem, -1, 0, "side");
    EXPECT_EQ(2, mem.CountColNodes(0));
    CUGCell cell;
    EXPECT_EQ(GRID_SUCCESS, mem.GetCell(-1, 0, &cell)); // the cursor stands on it still
    EXPECT_STREQ("side", cell.GetText());
    Put(mem, 0, 1, "b");
    // Another row was visited: the numbers of the row now start at its head.
    CUGCell again;
    EXPECT_EQ(GRID_SUCCESS, mem.GetCell(0, 0, &again));
    EXPECT_STREQ("side", again.GetText());
}

TEST(MemTest, AReadMergesIntoTheLayersBelow) {
    CUGMem mem;
    Put(mem, 0, 0, "stored");
    CUGCell cell;
    cell.SetAlignment(UG_ALIGN_RIGHT);
    cell.SetText("lower");
    mem.GetCell(0, 0, &cell);
    EXPECT_STREQ("stored", cell.GetText());
    EXPECT_EQ(UG_ALIGN_RIGHT, cell.GetAlignment());
}

TEST(MemTest, AWriteReplacesTheStoredCellWhole) {
    CUGMem mem;
    CUGCell coloured;
    coloured.SetTextColor(5);
    mem.SetCell(0, 0, &coloured);
    Put(mem, 0, 0, "text");
    CUGCell cell;
    mem.GetCell(0, 0, &cell);
    EXPECT_EQ(static_cast<COLORREF>(-1), cell.GetTextColor());
}

TEST(MemTest, DeleteRowsLeavesTheRowsAround) {
    CUGMem mem;
    PutRows(mem, {"a", "b", "c", "d", "e"});
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteRows(2, 3));
    EXPECT_EQ("a/b/-", Texts(mem, 1, 3));
    EXPECT_EQ(2, mem.CountRowNodes());
}

TEST(MemTest, DeletingTheOnlyRowEmptiesTheStore) {
    CUGMem mem;
    Put(mem, 0, 0, "a");
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteRow(0));
    EXPECT_EQ(0, mem.CountRowNodes());
    Put(mem, 0, 0, "b");
    EXPECT_EQ("b", Texts(mem, 1, 1));
}

TEST(MemTest, InsertAndDeleteAtAMissingRowSucceedAndDoNothing) {
    CUGMem mem;
    EXPECT_EQ(GRID_SUCCESS, mem.InsertRow(3));
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteRow(3));
    Put(mem, 0, 0, "a");
    EXPECT_EQ(GRID_SUCCESS, mem.InsertRow(3));
    EXPECT_EQ(1, mem.CountRowNodes());
}

TEST(MemTest, InsertRowsPutsEmptyRowsBefore) {
    CUGMem mem;
    PutRows(mem, {"a", "b"});
    EXPECT_EQ(GRID_SUCCESS, mem.InsertRows(1, 2));
    EXPECT_EQ("a/-/-/b", Texts(mem, 1, 4));
    EXPECT_EQ(GRID_SUCCESS, mem.InsertRow(0));
    EXPECT_EQ("-/a/-/-/b", Texts(mem, 1, 5));
}

TEST(MemTest, AppendsSucceedAndDoNothing) {
    CUGMem mem;
    EXPECT_EQ(GRID_SUCCESS, mem.AppendRow());
    EXPECT_EQ(GRID_SUCCESS, mem.AppendCol());
    EXPECT_EQ(0, mem.CountRowNodes());
}

TEST(MemTest, InsertColShiftsEveryRowThatReachesThere) {
    CUGMem mem;
    EXPECT_EQ(GRID_ERROR, mem.InsertCol(0));
    Put(mem, 0, 0, "a");
    Put(mem, 1, 0, "b");
    Put(mem, 0, 1, "c");
    EXPECT_EQ(GRID_SUCCESS, mem.InsertCol(1));
    EXPECT_EQ("a,-,b/c,-,-", Texts(mem, 3, 2));
    EXPECT_EQ(GRID_SUCCESS, mem.InsertCol(0));
    EXPECT_EQ("-,a,-,b/-,c,-,-", Texts(mem, 4, 2));
}

TEST(MemTest, DeleteCellMovesTheCellsToItsRightUp) {
    CUGMem mem;
    Put(mem, 0, 0, "a");
    Put(mem, 1, 0, "b");
    Put(mem, 2, 0, "c");
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteCell(1, 0));
    EXPECT_EQ("a,c,-", Texts(mem, 3, 1));
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteCell(0, 0));
    EXPECT_EQ("c,-,-", Texts(mem, 3, 1));
    EXPECT_EQ(GRID_ERROR, mem.DeleteCell(5, 0));
}

TEST(MemTest, TheColumnDeleteOfTheInterfaceIsNotThereAndTheStoresOwnIs) {
    CUGMem mem;
    Put(mem, 0, 0, "a");
    Put(mem, 1, 0, "b");
    Put(mem, 0, 1, "c");
    CUGDataSource &source = mem;
    EXPECT_EQ(GRID_NOT_IMPLEMENTED, source.DeleteCol(0));
    EXPECT_EQ(GRID_SUCCESS, mem.DeleteColumnCells(0));
    EXPECT_EQ("b,-/-,-", Texts(mem, 2, 2));
    EXPECT_EQ(1, mem.CountColNodes(1)); // the last node of its row stays, empty
}

TEST(MemTest, EmptyAnswersMinusOneAlsoOnSuccess) {
    CUGMem mem;
    EXPECT_EQ(GRID_NOT_IMPLEMENTED, mem.Empty());
    Put(mem, 2, 2, "x");
    EXPECT_EQ(GRID_NOT_IMPLEMENTED, mem.Empty());
    EXPECT_EQ(0, mem.CountRowNodes());
}

TEST(MemTest, FindGoesForwardsIgnoringCaseAndEndsAtTheLastRow) {
    CUGMem mem;
    PutRows(mem, {"ann", "bob", "Ann", "cid", "ANN"});
    long row = -1;
    EXPECT_EQ(GRID_SUCCESS, mem.FindFirst(0, "ann", &row));
    EXPECT_EQ(0, row);
    EXPECT_EQ(GRID_SUCCESS, mem.FindNext(0, "ann", &row));
    EXPECT_EQ(2, row);
    EXPECT_EQ(GRID_SUCCESS, mem.FindNext(0, "ann", &row));
    EXPECT_EQ(4, row);
    EXPECT_EQ(GRID_ERROR, mem.FindNext(0, "ann", &row));
    EXPECT_EQ(GRID_ERROR, mem.FindFirst(1, "ann", &row));
}

TEST(MemTest, FindCountsFromTheFirstRowNode) {
    CUGMem mem;
    PutRows(mem, {"a", "b"});
    Put(mem, 0, -1, "heading");
    long row = -1;
    EXPECT_EQ(GRID_SUCCESS, mem.FindFirst(0, "b", &row));
    EXPECT_EQ(2, row); // one row node stands in front of row 0
}

TEST(MemTest, SortIsStableAndMissingCellsGoLast) {
    CUGMem mem;
    const char *const keys[] = {"b", nullptr, "a", "b", "a"};
    for (long row = 0; row < 5; ++row) {
        Put(mem, 1, row, std::to_string(row).c_str());
        if (keys[row] != nullptr)
            Put(mem, 0, row, keys[row]);
    }
    EXPECT_EQ(GRID_SUCCESS, mem.SortByCol(0));
    EXPECT_EQ("a,2/a,4/b,0/b,3/-,1", Texts(mem, 2, 5));
}

TEST(MemTest, SortByGoesOnToTheNextColumnOnATie) {
    CUGMem mem;
    const char *const rows[][2] = {{"b", "2"}, {"a", "2"}, {"b", "1"}, {"a", "1"}};
    for (long row = 0; row < 4; ++row) {
        Put(mem, 0, row, rows[row][0]);
        Put(mem, 1, row, rows[row][1]);
    }
    int cols[] = {0, 1};
    EXPECT_EQ(GRID_SUCCESS, mem.SortBy(cols, 2));
    EXPECT_EQ("a,1/a,2/b,1/b,2", Texts(mem, 2, 4));
}

TEST(MemTest, SortOfNothingFails) {
    CUGMem mem;
    EXPECT_EQ(GRID_ERROR, mem.SortByCol(0));
}

TEST(MemTest, SortAsksTheEvaluator) {
    CUGMem mem;
    PutRows(mem, {"a", "c", "b"});
    mem.SetSortEvaluator([](CUGCtrl *, CUGCell *a, CUGCell *b) { return UGCompareCells(b, a); });
    EXPECT_EQ(GRID_SUCCESS, mem.SortByCol(0));
    EXPECT_EQ("c/b/a", Texts(mem, 1, 3));
}

TEST(MemTest, CompareCellsPutsAMissingFirstArgumentFirst) {
    CUGCell a;
    EXPECT_EQ(-1, UGCompareCells(nullptr, &a));
    EXPECT_EQ(1, UGCompareCells(&a, nullptr));
}

} // namespace
