#include "grid/UGPlacing.h"

#include "grid/UGDefine.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Told(const RECT &rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + ".." + std::to_string(rect.right) + "," +
           std::to_string(rect.bottom);
}

std::string Hint(LONG x, LONG y, short alignment) {
    const RECT parent = {0, 0, 500, 300};
    return Told(UGPlaceHint(POINT{x, y}, SIZE{80, 20}, alignment, parent));
}

TEST(PlacingTest, AHintHangsOnItsPointAsTheAlignmentSays) {
    EXPECT_EQ("200,100..280,120", Hint(200, 100, 0));
    EXPECT_EQ("120,90..200,110", Hint(200, 100, UG_ALIGN_RIGHT | UG_ALIGN_VCENTER));
    EXPECT_EQ("160,80..240,100", Hint(200, 100, UG_ALIGN_HCENTER | UG_ALIGN_BOTTOM));
}

TEST(PlacingTest, AHintIsShiftedIntoItsParent) {
    EXPECT_EQ("420,280..500,300", Hint(490, 295, 0));
    EXPECT_EQ("0,0..80,20", Hint(10, 5, UG_ALIGN_RIGHT | UG_ALIGN_BOTTOM));
    const RECT small = {0, 0, 50, 10};
    EXPECT_EQ("0,0..80,20", Told(UGPlaceHint(POINT{20, 5}, SIZE{80, 20}, 0, small)));
}

std::string List(LONG top, int count) {
    const RECT cell = {100, top, 200, top + 20};
    return Told(UGPlaceList(cell, 300, 15, count, 2));
}

TEST(PlacingTest, AListIsAsHighAsItsItemsBelowItsCell) {
    EXPECT_EQ("100,60..200,107", List(40, 3));
    EXPECT_EQ("100,60..200,77", List(40, 0)); // as for one
}

TEST(PlacingTest, AListWithoutRoomBelowStandsAbove) {
    EXPECT_EQ("100,213..200,260", List(260, 3));
    EXPECT_EQ("100,0..200,260", List(260, 100));
}

TEST(PlacingTest, AListIsCutWhereThereIsMoreRoom) {
    EXPECT_EQ("100,60..200,300", List(40, 100));
    EXPECT_EQ("100,0..200,17", Told(UGPlaceList(RECT{100, -20, 200, 0}, 5, 15, 3, 2))); // one item at least
}

std::string Corner(int fromBottom, int fromRight, bool height, bool width) {
    const UGCornerZone zone(fromBottom, fromRight);
    std::string all;
    all += zone.AsksHeight() ? "h" : "";
    all += zone.AsksWidth() ? "w" : "";
    all += ">";
    all += zone.SizesHeight(height, width) ? "h" : "";
    all += zone.SizesWidth(height, width) ? "w" : "";
    return all;
}

TEST(PlacingTest, TheCornersEdgesSizeTheirHeading) {
    EXPECT_EQ("h>h", Corner(5, 30, true, true));
    EXPECT_EQ(">", Corner(6, 30, true, true));
    EXPECT_EQ("w>w", Corner(15, 5, true, true));
    EXPECT_EQ(">", Corner(15, 6, true, true));
}

TEST(PlacingTest, WithinEightOfBothEdgesBothAreSizedWhenBothMayBe) {
    EXPECT_EQ("hw>hw", Corner(8, 8, true, true));
    EXPECT_EQ("hw>hw", Corner(3, 8, true, true));
    EXPECT_EQ("hw>", Corner(8, 8, true, false));
    EXPECT_EQ("hw>h", Corner(3, 8, true, false));
    EXPECT_EQ("hw>w", Corner(3, 3, false, true));
    EXPECT_EQ("w>w", Corner(9, 4, true, true));
}

} // namespace
