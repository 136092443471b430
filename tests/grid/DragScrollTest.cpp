#include "grid/UGDragScroll.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int kRowPx = 20;
constexpr int kHalfColPx = 50;
constexpr long kExtent = 100;

// The steps for pointers further and further outside, "w" where the scrolling waits behind the step.
std::string Steps(std::initializer_list<long> positions, int unit, int mode, bool rows) {
    std::string all;
    for (long position : positions) {
        const UGDragStep step = UGDragStepOf(position, kExtent, unit, mode, rows);
        all += std::to_string(step.m_steps) + (step.m_waits ? "w " : " ");
    }
    return all;
}

TEST(DragScrollTest, InsideThereIsNoStep) {
    for (int mode = 0; mode <= 3; ++mode)
        EXPECT_EQ("0 0 0 ", Steps({0, 50, 99}, kRowPx, mode, true)) << mode;
}

TEST(DragScrollTest, RowsStepByTheDistanceInRowsByMode) {
    const auto outside = {100L, 119L, 120L, 160L, -19L, -20L, -60L};
    EXPECT_EQ("1w 1w 1w 1w -1w -1w -1w ", Steps(outside, kRowPx, 0, true));
    EXPECT_EQ("1w 1w 1 3 -1w -1 -3 ", Steps(outside, kRowPx, 1, true));
    EXPECT_EQ("1w 1w 1 9 -1w -1 -9 ", Steps(outside, kRowPx, 2, true));
    EXPECT_EQ("1w 1w 1 27 -1w -1 -27 ", Steps(outside, kRowPx, 3, true));
}

TEST(DragScrollTest, ColumnsStepByTheDistanceInHalfColumnsAndNeverByTheCube) {
    const auto outside = {100L, 149L, 150L, 250L, -49L, -50L, -150L};
    EXPECT_EQ("1w 1w 1w 1w -1w -1w -1w ", Steps(outside, kHalfColPx, 0, false));
    EXPECT_EQ("1w 1w 1 3 -1w -1 -3 ", Steps(outside, kHalfColPx, 1, false));
    EXPECT_EQ("1w 1w 1 9 -1w -1 -9 ", Steps(outside, kHalfColPx, 2, false));
    EXPECT_EQ("1w 1w 1 9 -1w -1 -9 ", Steps(outside, kHalfColPx, 3, false));
}

TEST(DragScrollTest, AUnitOfNothingDividesNothing) {
    EXPECT_EQ("-1w 1w ", Steps({-60, 160}, 0, 2, true));
}

TEST(DragScrollTest, AStepThatCannotBeToldIsTheFarthest) {
    EXPECT_EQ("1073741823 -1073741823 ", Steps({100000, -100000}, 1, 3, true));
    EXPECT_EQ(2147483646, UGDragTarget(2000000000, 1073741823));
    EXPECT_EQ(-1073741823, UGDragTarget(0, -1073741823));
}

TEST(DragScrollTest, TheTargetIsCountedFromTheCurrentOne) {
    EXPECT_EQ(8, UGDragTarget(5, 3));
    EXPECT_EQ(-4, UGDragTarget(5, -9));
}

} // namespace
