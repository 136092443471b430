#include "grid/UGScrollRange.h"

#include <gtest/gtest.h>

namespace {

TEST(ScrollRangeTest, AMaximumOf1000KeepsFactorsOfOne) {
    const auto range = UGScrollRange::Vertical(1000, 400, 20, false);
    EXPECT_EQ(20, range.m_page);
    EXPECT_EQ(1019, range.m_max);
    EXPECT_EQ(1000, range.BarPosition(1000));
    EXPECT_EQ(7, range.AxisPosition(7));
}

TEST(ScrollRangeTest, AMaximumOf1001GoesOverToTheScaledBar) {
    const auto range = UGScrollRange::Vertical(1001, 400, 20, false);
    EXPECT_EQ(1, range.m_page);
    EXPECT_EQ(1000, range.m_max);
    EXPECT_EQ(999, range.BarPosition(1000)); // truncated
    EXPECT_EQ(1001, range.AxisPosition(1000));
}

TEST(ScrollRangeTest, TheEndsOfAScaledBarAreTheEndsOfTheTable) {
    const auto range = UGScrollRange::Vertical(9999950, 1000, 20, false);
    EXPECT_EQ(0, range.AxisPosition(0));
    EXPECT_EQ(9999950, range.AxisPosition(1000));
    EXPECT_EQ(50, range.Percent(500, 9999950));
}

TEST(ScrollRangeTest, TheSpringModeHasItsThumbInTheMiddle) {
    const auto range = UGScrollRange::Vertical(5000, 400, 20, true);
    EXPECT_EQ(2, range.m_max);
    EXPECT_EQ(1, range.BarPosition(1));
}

TEST(ScrollRangeTest, NothingIsDividedByNothing) {
    EXPECT_EQ(1, UGScrollRange::Vertical(10, 400, 0, false).m_page);
    EXPECT_EQ(0, UGScrollRange::Vertical(0, 400, 20, false).Percent(0, 0));
    EXPECT_EQ(1, UGScrollRange::Horizontal(3, 400, 0).m_page);
}

TEST(ScrollRangeTest, TheHorizontalBarIsNeverScaled) {
    const auto range = UGScrollRange::Horizontal(2000, 500, 100);
    EXPECT_EQ(2004, range.m_max);
    EXPECT_EQ(1, range.BarPosition(1));
}

TEST(ScrollRangeTest, InAViewSmallerThanOneStepTheBarStillReachesTheEnd) {
    EXPECT_EQ(7, UGScrollRange::Horizontal(7, 60, 100).m_max);
    EXPECT_EQ(1, UGScrollRange::Horizontal(7, 60, 100).m_page);
    EXPECT_EQ(7, UGScrollRange::Vertical(7, 5, 20, false).m_max);
}

} // namespace
