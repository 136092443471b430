#include "grid/UGSelectionList.h"

#include "grid/UGDefine.h"

#include <gtest/gtest.h>

#include "SeededRandom.h"

#include <algorithm>
#include <limits>
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

TEST(SelectionListTest, OnlyABlockOfThatOneCellIsTurnedOver) {
    for (int col : {0, 2}) { // the ends of a block of one row
        auto list = List(UG_SELECT_CELLS);
        list.StartBlock(0, 0);
        list.ExtendBlock(2, 0);
        list.ToggleCell(col, 0);
        EXPECT_EQ(col == 0 ? "(1,0)(2,0)" : "(0,0)(1,0)", Selected(list));
    }
    for (long row : {0L, 2L}) {
        auto list = List(UG_SELECT_CELLS);
        list.StartBlock(0, 0);
        list.ExtendBlock(0, 2);
        list.ToggleCell(0, row);
        EXPECT_EQ(row == 0 ? "(0,1)(0,2)" : "(0,0)(0,1)", Selected(list));
    }
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

TEST(SelectionListTest, ABlockThatIsStartedAgainIsTheOneThereIs) {
    auto list = List(UG_SELECT_CELLS);
    for (int i = 0; i < 100; ++i)
        list.StartBlock(2, 0);
    EXPECT_EQ(1u, list.GetBlocks().size());
    list.ToggleCell(2, 0);
    EXPECT_EQ("", Selected(list));
    list.StartBlock(2, 0); // turned over it is another
    EXPECT_EQ("(2,0)", Selected(list));
    list.ExtendBlock(2, 1);
    list.StartBlock(2, 0);
    int left, right;
    long top, bottom;
    list.GetCurrentBlock(&left, &top, &right, &bottom);
    EXPECT_EQ(0, bottom);
}

constexpr long kManyRows = 1000000000; // times its columns more than 32 bits hold, and than anything could walk
constexpr int kManyCols = 20;

// What can be selected without any cell being so: a walk through the cells would not end.
TEST(SelectionListTest, ALargeTableIsSearchedByItsBlocks) {
    auto list = List(UG_SELECT_CELLS);
    list.StartBlock(0, 0);
    list.ExtendBlock(kManyCols - 1, kManyRows - 1);
    list.StartBlock(kManyCols - 1, kManyRows - 1);
    list.ExtendBlock(0, 1);
    list.ToggleCell(0, 1); // the second corner's own cell, which the last block holds
    EXPECT_EQ("0,0..19,999999999", Bounds(list));
    int col;
    long row;
    ASSERT_EQ(GRID_SUCCESS, list.EnumFirst(9, 9, &col, &row));
    EXPECT_EQ(GRID_SUCCESS, list.EnumNext(&col, &row));
}

TEST(SelectionListTest, WhatALargeBlockTakesOutIsSteppedOver) {
    for (UGSelectMode mode : {UG_SELECT_CELLS, UG_SELECT_ROWS}) {
        auto list = List(mode);
        list.ToggleCell(3, 5);
        list.StartBlock(3, kManyRows - 1);
        list.ToggleCell(3, kManyRows - 1);
        list.StartBlock(3, kManyRows - 2);
        EXPECT_EQ(mode == UG_SELECT_ROWS ? "(0,5)(0,999999998)" : "(3,5)(3,999999998)", Selected(list));
        EXPECT_EQ(mode == UG_SELECT_ROWS ? "0,5..0,999999998" : "3,5..3,999999998", Bounds(list));
    }
}

TEST(SelectionListTest, TheLastRowAndColumnThatNumbersHoldAreReached) {
    auto list = List(UG_SELECT_CELLS);
    constexpr int kLastCol = std::numeric_limits<int>::max();
    constexpr long kLastRow = std::numeric_limits<long>::max();
    list.StartBlock(kLastCol - 1, kLastRow);
    list.ExtendBlock(kLastCol, kLastRow);
    const std::string row = std::to_string(kLastRow);
    EXPECT_EQ("(2147483646," + row + ")(2147483647," + row + ")", Selected(list));
    EXPECT_EQ("2147483646," + row + "..2147483647," + row, Bounds(list));
}

// The definition: a cell is as the last block says that contains it, and the answers follow from the cells.
class ByCells {
public:
    explicit ByCells(const CUGSelectionList &list) : m_list(list) {}
    bool Is(int col, long row) const {
        bool selected = false;
        for (const auto &block : m_list.GetBlocks()) {
            if (block.Contains(col, row, m_list.GetMode()))
                selected = block.selected;
        }
        return selected;
    }
    std::string Selected() const {
        std::string all;
        const bool rows = m_list.GetMode() == UG_SELECT_ROWS;
        for (long row = 0; row < kRows; ++row) {
            for (int col = 0; col < (rows ? 1 : kCols); ++col)
                all += Is(col, row) ? "(" + std::to_string(col) + "," + std::to_string(row) + ")" : "";
        }
        return all;
    }
    std::string Bounds() const {
        int left = kCols, right = -1;
        long top = kRows, bottom = -1;
        const bool rows = m_list.GetMode() == UG_SELECT_ROWS;
        for (long row = 0; row < kRows; ++row) {
            for (int col = 0; col < (rows ? 1 : kCols); ++col) {
                if (!Is(col, row))
                    continue;
                left = std::min(left, col), right = std::max(right, col);
                top = std::min(top, row), bottom = row;
            }
        }
        return right < 0 ? "none"
                         : std::to_string(left) + "," + std::to_string(top) + ".." + std::to_string(right) + "," +
                               std::to_string(bottom);
    }

    static constexpr int kCols = 7;
    static constexpr long kRows = 9;

private:
    const CUGSelectionList &m_list;
};

TEST(SelectionListTest, RandomBlocksAnswerAsTheirCellsDo) {
    SeededRandom random(20261121);
    for (int round = 0; round < 3000; ++round) {
        auto list = List(random.Below(4) == 0 ? UG_SELECT_ROWS : UG_SELECT_CELLS);
        const int steps = 1 + static_cast<int>(random.Below(12));
        for (int step = 0; step < steps; ++step) {
            const int col = static_cast<int>(random.Below(ByCells::kCols));
            const long row = static_cast<long>(random.Below(ByCells::kRows));
            switch (random.Below(3)) {
            case 0: list.StartBlock(col, row); break;
            case 1: list.ExtendBlock(col, row); break;
            default: list.ToggleCell(col, row); break;
            }
        }
        const ByCells cells(list);
        if (list.IsEmpty())
            continue;
        ASSERT_EQ(cells.Selected(), Selected(list)) << "round " << round;
        ASSERT_EQ(cells.Bounds(), Bounds(list)) << "round " << round;
    }
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
