#include "grid/UGAxis.h"

#include <gtest/gtest.h>

namespace {

CUGAxis Individual(std::vector<int> sizes, int extent) {
    CUGAxis axis;
    axis.m_count = static_cast<long>(sizes.size());
    axis.m_sizes = std::move(sizes);
    axis.m_defaultSize = 20;
    axis.m_extent = extent;
    return axis;
}

CUGAxis Uniform(long count, int size, int extent) {
    CUGAxis axis;
    axis.m_count = count;
    axis.m_uniform = true;
    axis.m_defaultSize = size;
    axis.m_extent = extent;
    return axis;
}

TEST(AxisTest, TheHitWalkSkipsHiddenOnes) {
    CUGAxis axis = Individual({10, 0, 20}, 100);
    int start = -1;
    EXPECT_EQ(0, axis.At(9, &start));
    EXPECT_EQ(0, start);
    EXPECT_EQ(2, axis.At(10, &start));
    EXPECT_EQ(10, start);
    EXPECT_EQ(-1, axis.At(30));
}

TEST(AxisTest, TheHitWalkBeginsAtTheLeadingOne) {
    CUGAxis axis = Individual({10, 20, 30}, 100);
    axis.m_leading = 1;
    EXPECT_EQ(1, axis.At(0));
    EXPECT_EQ(2, axis.At(20));
    EXPECT_EQ(-10, axis.PositionOf(0));
    EXPECT_EQ(20, axis.PositionOf(2));
}

TEST(AxisTest, MaximumLeadingIsZeroWhenAllFit) {
    EXPECT_EQ(0, Uniform(5, 20, 100).ComputeMaxLeading());
    EXPECT_EQ(1, Uniform(5, 20, 99).ComputeMaxLeading());
    EXPECT_EQ(0, Uniform(0, 20, 99).ComputeMaxLeading());
}

TEST(AxisTest, MaximumLeadingIsTheLastWhenNotEvenThatFits) {
    EXPECT_EQ(4, Uniform(5, 20, 10).ComputeMaxLeading());
}

TEST(AxisTest, BringingIntoViewScrollsNoFurtherThanNeeded) {
    CUGAxis axis = Uniform(100, 20, 100);
    axis.m_current = 7;
    EXPECT_EQ(3, axis.LeadingForCurrent(1));
    axis.m_leading = 5;
    EXPECT_EQ(5, axis.LeadingForCurrent(1));
    axis.m_leading = 9;
    EXPECT_EQ(7, axis.LeadingForCurrent(1));
}

TEST(AxisTest, WhereAllFitTheFirstOneLeads) {
    CUGAxis axis = Individual({10, 20, 30}, 100);
    axis.m_current = 2;
    EXPECT_EQ(0, axis.LeadingForCurrent(1));
}

TEST(AxisTest, AViewScrolledAwayOnPurposeStays) {
    CUGAxis axis = Uniform(100, 20, 100);
    axis.m_leading = 9;
    axis.m_current = axis.m_last = 7;
    EXPECT_EQ(9, axis.LeadingForCurrent(1));
}

TEST(AxisTest, WithoutMarginAPartlyVisibleOneIsEnough) {
    CUGAxis axis = Uniform(100, 20, 90);
    axis.m_current = 4; // its last 10 pixels are out of view
    EXPECT_EQ(1, axis.LeadingForCurrent(1));
    EXPECT_EQ(0, axis.LeadingForCurrent(0));
}

TEST(AxisTest, OneLargerThanTheViewComesFirst) {
    CUGAxis axis = Individual({20, 20, 500, 20}, 100);
    axis.m_current = 2;
    EXPECT_EQ(2, axis.LeadingForCurrent(1));
}

TEST(AxisTest, APageKeepsTheOldOneInView) {
    CUGAxis axis = Uniform(100, 20, 100);
    EXPECT_EQ(4, axis.PageForward(0));
    EXPECT_EQ(6, axis.PageBack(10));
    EXPECT_EQ(0, axis.PageBack(2));
}

TEST(AxisTest, APageGoesAtLeastOneStep) {
    CUGAxis axis = Uniform(100, 200, 100);
    EXPECT_EQ(1, axis.PageForward(0));
    EXPECT_EQ(9, axis.PageBack(10));
    EXPECT_EQ(100, axis.PageForward(99));
}

TEST(AxisTest, AnEdgeIsWithinTheToleranceOnBothSides) {
    CUGAxis axis = Individual({50, 50}, 200);
    EXPECT_EQ(-1, axis.EdgeAt(47, 3));
    EXPECT_EQ(0, axis.EdgeAt(48, 3));
    EXPECT_EQ(0, axis.EdgeAt(52, 3));
    EXPECT_EQ(-1, axis.EdgeAt(53, 3));
    EXPECT_EQ(1, axis.EdgeAt(102, 3));
}

TEST(AxisTest, AnEdgeResolvesToTheNarrowOneBehindIt) {
    CUGAxis axis = Individual({50, 2, 50}, 200);
    int start = 0;
    EXPECT_EQ(1, axis.EdgeAt(50, 3, &start));
    EXPECT_EQ(50, start);
    CUGAxis hidden = Individual({50, 0, 0, 50}, 200);
    EXPECT_EQ(2, hidden.EdgeAt(51, 3));
}

TEST(AxisTest, LastVisibleMayBeCut) {
    EXPECT_EQ(4, Uniform(100, 20, 100).LastVisible());
    EXPECT_EQ(5, Uniform(100, 20, 101).LastVisible());
    EXPECT_EQ(-1, Uniform(0, 20, 101).LastVisible());
    EXPECT_EQ(2, Uniform(3, 20, 1000).LastVisible());
}

TEST(AxisTest, ClampHoldsTheCursorsInRange) {
    CUGAxis axis = Uniform(10, 20, 100);
    axis.m_current = 12;
    axis.m_leading = 11;
    EXPECT_TRUE(axis.ClampToCount());
    EXPECT_EQ(9, axis.m_current);
    EXPECT_EQ(9, axis.m_leading);
    EXPECT_FALSE(axis.ClampToCount());
    axis.m_current = -1;
    EXPECT_TRUE(axis.ClampToCount());
    EXPECT_EQ(0, axis.m_current);
    axis.m_count = 0;
    axis.m_last = 4;
    EXPECT_FALSE(axis.ClampToCount()); // there is none that it could have moved to
    EXPECT_EQ(0, axis.m_leading + axis.m_current + axis.m_last + axis.m_lastLeading);
}

TEST(AxisTest, TenMillionRowsAreNotWalked) {
    CUGAxis axis = Uniform(10000000, 20, 1000);
    axis.m_current = 9999999;
    EXPECT_EQ(9999950, axis.ComputeMaxLeading());
    EXPECT_EQ(9999950, axis.LeadingForCurrent(1));
    axis.m_leading = 9999950;
    EXPECT_EQ(980, axis.PositionOf(9999999));
}

TEST(AxisTest, ThereIsNoPageInAnEmptyAxis) {
    CUGAxis axis = Individual({}, 100);
    EXPECT_EQ(-1, axis.PageBack(0));
    EXPECT_EQ(1, axis.PageForward(0));
}

TEST(AxisTest, PositionsFarAwayDoNotOverflow) {
    CUGAxis axis = Uniform(10000000, 1000, 100);
    EXPECT_EQ(kFarPx, axis.PositionOf(9999999));
    axis.m_leading = 9999999;
    EXPECT_EQ(-kFarPx, axis.PositionOf(0));
    CUGAxis wide = Individual({2147483647, 2147483647, 2147483647}, 100);
    EXPECT_EQ(kFarPx, wide.PositionOf(3));
    EXPECT_EQ(0, wide.At(99));
    EXPECT_EQ(0, wide.LastVisible());
}

TEST(AxisTest, ManyOfNoSizeAreNotWalked) {
    CUGAxis axis = Uniform(2000000000, 0, 100);
    EXPECT_EQ(0, axis.ComputeMaxLeading());
    EXPECT_EQ(-1, axis.At(0));
    EXPECT_EQ(1999999999, axis.LastVisible());
    EXPECT_EQ(1999999999, axis.EdgeAt(2, 3));
    EXPECT_EQ(-1, axis.EdgeAt(3, 3));
    EXPECT_EQ(1999999999, axis.PageForward(5));
    EXPECT_EQ(0, axis.PageBack(7));
    EXPECT_EQ(0, axis.LeadingForCurrent(1));
}

} // namespace
