#include "grid/UGSelectionList.h"

#include "grid/UGDefine.h"

#include <gtest/gtest.h>

#include <string>

namespace {

CUGSelectionList List(UGSelectMode mode) {
    CUGSelectionList list;
    list.SetMode(mode);
    return list;
}

// The enumerated cells, with (9,9) as the current one.
std::string Selected(CUGSelectionList &list) {
    std::string all;
    int col;
    long row;
    for (int result = list.EnumFirst(9, 9, &col, &row); result == GRID_SUCCESS;
         result = list.EnumNext(&col, &row))
        all += "(" + std::to_string(col) + "," + std::to_string(row) + ")";
    return all;
}

std::string Bounds(const CUGSelectionList &list) {
    int left, right;
    long top, bottom;
    if (!list.GetBounds(&left, &top, &right, &bottom))
        return "none";
    return std::to_string(left) + "," + std::to_string(top) + ".." + std::to_string(right) + "," +
           std::to_string(bottom);
}

TEST(SelectionListTest, OffSelectsNothing) {
    CUGSelectionList list;
    list.StartBlock(1, 1);
    EXPECT_FALSE(list.IsSelected(1, 1));
    EXPECT_EQ("(9,9)", Selected(list));
    int col = 5;
    long row = 5;
    EXPECT_EQ(GRID_SUCCESS, list.GetCurrentBlock(&col, &row, &col, &row));
    EXPECT_EQ(5, col);
}

TEST(SelectionListTest, ABlockIsExtendedInAnyDirection) {
    auto list = List(UG_SELECT_CELLS);
    list.StartBlock(2, 3);
    EXPECT_EQ(GRID_SUCCESS, list.ExtendBlock(1, 2));
    EXPECT_EQ("(1,2)(2,2)(1,3)(2,3)", Selected(list));
    EXPECT_EQ(GRID_SUCCESS, list.ExtendBlock(3, 3));
    EXPECT_EQ("(2,3)(3,3)", Selected(list));
}

TEST(SelectionListTest, ExtendingWithoutABlockFails) {
    auto list = List(UG_SELECT_CELLS);
    EXPECT_EQ(GRID_ERROR, list.ExtendBlock(1, 1));
    int col;
    long row;
    EXPECT_EQ(GRID_ERROR, list.GetCurrentBlock(&col, &row, &col, &row));
}

TEST(SelectionListTest, ALaterDeselectingBlockWins) {
    auto list = List(UG_SELECT_CELLS);
    list.StartBlock(0, 0);
    list.ExtendBlock(2, 0);
    list.ToggleCell(1, 0);
    EXPECT_EQ("(0,0)(2,0)", Selected(list));
    list.ToggleCell(1, 0); // the one-cell block is turned over in place
    EXPECT_EQ("(0,0)(1,0)(2,0)", Selected(list));
    EXPECT_EQ(2u, list.GetBlocks().size());
}

TEST(SelectionListTest, ABlockAddedByToggleIsOpenAndLast) {
    auto list = List(UG_SELECT_CELLS);
    list.StartBlock(0, 0);
    list.ToggleCell(4, 4);
    int left, right;
    long top, bottom;
    ASSERT_EQ(GRID_SUCCESS, list.GetCurrentBlock(&left, &top, &right, &bottom));
    EXPECT_EQ(4, left);
    EXPECT_EQ(GRID_SUCCESS, list.ExtendBlock(5, 4));
    EXPECT_EQ("(0,0)(4,4)(5,4)", Selected(list));
}

TEST(SelectionListTest, RowModeReportsColumnZeroAndForcesColumnOne) {
    auto list = List(UG_SELECT_ROWS);
    list.StartBlock(7, 2);
    list.ExtendBlock(8, 3);
    EXPECT_EQ("(0,2)(0,3)", Selected(list));
    EXPECT_EQ(1, list.GetBlocks().front().startCol);
    EXPECT_TRUE(list.IsSelected(100, 3));
    EXPECT_FALSE(list.IsSelected(1, 4));
    list.ToggleCell(5, 3);
    EXPECT_EQ("(0,2)", Selected(list));
}

TEST(SelectionListTest, EnumerationWithoutBlocksGivesTheCurrentCell) {
    auto list = List(UG_SELECT_CELLS);
    EXPECT_EQ("(9,9)", Selected(list));
    int col;
    long row;
    EXPECT_EQ(GRID_ERROR, list.EnumNext(&col, &row));
}

TEST(SelectionListTest, BoundsHoldWhatIsSelectedAndNotWhatWasTakenOut) {
    auto list = List(UG_SELECT_CELLS);
    EXPECT_EQ("none", Bounds(list));
    list.StartBlock(1, 1);
    list.ExtendBlock(3, 2);
    EXPECT_EQ("1,1..3,2", Bounds(list));
    list.ToggleCell(1, 1);
    list.ToggleCell(1, 2);
    EXPECT_EQ("2,1..3,2", Bounds(list));
    list.ToggleCell(8, 8);
    EXPECT_EQ("2,1..8,8", Bounds(list));
}

TEST(SelectionListTest, ClearingClosesTheOpenBlock) {
    auto list = List(UG_SELECT_CELLS);
    list.StartBlock(1, 1);
    list.ClearAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(GRID_ERROR, list.ExtendBlock(2, 2));
    EXPECT_EQ(UG_SELECT_CELLS, list.GetMode());
}

} // namespace
