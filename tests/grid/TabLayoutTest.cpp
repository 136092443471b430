#include "grid/UGTabLayout.h"

#include <gtest/gtest.h>

namespace {

// Tabs of 50 pixels each: 32 of text and 18 of slopes and margin.
UGTabLayout Tabs(int count, int room) {
    UGTabLayout layout;
    for (int i = 0; i < count; ++i)
        layout.Add("tab", 10 + i, 32);
    layout.SetRoom(room);
    return layout;
}

std::string Ids(const UGTabLayout &layout) {
    std::string all;
    for (const auto &tab : layout.Tabs())
        all += std::to_string(tab.id) + " ";
    return all;
}

TEST(TabLayoutTest, ATabIsAsWideAsItsTextItsSlopesAndItsMargin) {
    const UGTabLayout layout = Tabs(3, 500);
    EXPECT_EQ(32 + 7 + 2 + 9, layout.Tabs()[0].width);
    EXPECT_EQ(0, layout.LeftOf(0));
    EXPECT_EQ(100, layout.LeftOf(2));
}

TEST(TabLayoutTest, TheScrollRangeIsWhatTheTabsAndFivePixelsExceedTheRoomBy) {
    EXPECT_EQ(0, Tabs(3, 155).MaxScroll());
    EXPECT_EQ(1, Tabs(3, 154).MaxScroll());
    EXPECT_EQ(55, Tabs(3, 100).MaxScroll());
    EXPECT_EQ(0, Tabs(0, 0).MaxScroll());
}

TEST(TabLayoutTest, ScrollingIsHeldInItsRange) {
    UGTabLayout layout = Tabs(3, 100);
    layout.SetScroll(1000);
    EXPECT_EQ(55, layout.Scroll());
    EXPECT_EQ(-55, layout.LeftOf(0));
    layout.SetScroll(-1);
    EXPECT_EQ(0, layout.Scroll());
    layout.SetScroll(50);
    layout.SetRoom(140);
    EXPECT_EQ(15, layout.Scroll());
}

TEST(TabLayoutTest, ATabIsBroughtIntoViewWithFivePixelsLeftAndFifteenRight) {
    UGTabLayout layout = Tabs(10, 200);
    layout.BringIntoView(5);
    EXPECT_EQ(300 + 15 - 200, layout.Scroll());
    layout.BringIntoView(4);
    EXPECT_EQ(115, layout.Scroll()); // in view already
    layout.BringIntoView(1);
    EXPECT_EQ(45, layout.Scroll());
    layout.BringIntoView(0);
    EXPECT_EQ(0, layout.Scroll());
    layout.BringIntoView(9);
    EXPECT_EQ(layout.MaxScroll(), layout.Scroll());
}

TEST(TabLayoutTest, InANarrowBarTheLeftEndOfTheTabShows) {
    UGTabLayout layout = Tabs(10, 20);
    layout.BringIntoView(5);
    EXPECT_EQ(245, layout.Scroll());
}

TEST(TabLayoutTest, AHitFindsTheTabUnderThePointer) {
    UGTabLayout layout = Tabs(3, 100);
    EXPECT_EQ(0, layout.HitTest(0));
    EXPECT_EQ(0, layout.HitTest(49));
    EXPECT_EQ(1, layout.HitTest(50));
    EXPECT_EQ(-1, layout.HitTest(150));
    EXPECT_EQ(-1, layout.HitTest(-1));
    layout.SetScroll(55);
    EXPECT_EQ(1, layout.HitTest(0));
}

TEST(TabLayoutTest, TabsAreAddedDeletedAndSelectedById) {
    UGTabLayout layout = Tabs(3, 500);
    EXPECT_EQ(1, layout.Add("again", 11, 5));
    EXPECT_EQ(1, layout.Add("beyond", 20, 5, 4));
    EXPECT_EQ(0, layout.Add("front", 20, 5, 0));
    EXPECT_EQ("20 10 11 12 ", Ids(layout));
    EXPECT_EQ(1, layout.Current()); // the same tab as before
    EXPECT_EQ(0, layout.Select(12));
    EXPECT_EQ(3, layout.Current());
    EXPECT_EQ(1, layout.Select(99));
    EXPECT_EQ(0, layout.Delete(10));
    EXPECT_EQ(2, layout.Current());
    EXPECT_EQ(0, layout.Delete(12));
    EXPECT_EQ(1, layout.Current());
    EXPECT_EQ(1, layout.Delete(12));
    EXPECT_EQ("20 11 ", Ids(layout));
}

TEST(TabLayoutTest, ThirtyTwoTabsAreTheMost) {
    UGTabLayout layout = Tabs(32, 500);
    EXPECT_EQ(1, layout.Add("one more", 99, 5));
    EXPECT_EQ(0, layout.Delete(10));
    EXPECT_EQ(0, layout.Add("one more", 99, 5));
}

TEST(TabLayoutTest, TheShapeSlopesSevenPixelsAtTheLeftAndTwoAtTheRight) {
    POINT corners[4];
    Tabs(3, 500).Corners(1, 16, corners);
    EXPECT_EQ(50, corners[0].x);
    EXPECT_EQ(100, corners[1].x);
    EXPECT_EQ(98, corners[2].x);
    EXPECT_EQ(57, corners[3].x);
    EXPECT_EQ(0, corners[0].y);
    EXPECT_EQ(15, corners[2].y);
}

} // namespace
