#include "grid/UGDrawRules.h"

#include "grid/UGDefine.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Shrunk(int style, int frameWidth = 1) {
    RECT rect = {0, 0, 100, 50};
    UGShrinkByBorder(&rect, style, frameWidth);
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) + "," +
           std::to_string(rect.bottom);
}

std::string Placed(int alignment) {
    const RECT rect = {10, 20, 110, 60};
    const UGTextPlace place = UGPlaceText(rect, alignment, 12);
    return std::to_string(place.x) + "," + std::to_string(place.y) + " " + std::to_string(place.horizontal);
}

TEST(DrawRulesTest, ABorderTakesItsWidestLineOffEachSide) {
    EXPECT_EQ("0,0,100,50", Shrunk(0));
    EXPECT_EQ("0,0,100,50", Shrunk(-1));
    EXPECT_EQ("1,0,100,50", Shrunk(1));
    EXPECT_EQ("0,1,100,50", Shrunk(2));
    EXPECT_EQ("0,0,99,49", Shrunk(UG_BDR_RTHIN | UG_BDR_BTHIN));
    EXPECT_EQ("2,2,98,48", Shrunk(16 | 32 | 64 | 128));
    EXPECT_EQ("3,3,97,47", Shrunk(256 | 512 | 1024 | 2048));
    EXPECT_EQ("3,0,100,50", Shrunk(1 | 16 | 256));
    EXPECT_EQ("2,2,98,48", Shrunk(UG_BDR_RAISED, 2));
    EXPECT_EQ("3,2,98,48", Shrunk(UG_BDR_RECESSED | 256, 2));
}

TEST(DrawRulesTest, TextStandsInAllNinePlaces) {
    EXPECT_EQ("13,21 -1", Placed(UG_ALIGN_LEFT));
    EXPECT_EQ("107,21 1", Placed(UG_ALIGN_RIGHT));
    EXPECT_EQ("60,21 0", Placed(UG_ALIGN_HCENTER));
    EXPECT_EQ("13,34 -1", Placed(UG_ALIGN_LEFT | UG_ALIGN_VCENTER));
    EXPECT_EQ("107,34 1", Placed(UG_ALIGN_RIGHT | UG_ALIGN_VCENTER));
    EXPECT_EQ("60,34 0", Placed(UG_ALIGN_HCENTER | UG_ALIGN_VCENTER));
    EXPECT_EQ("13,47 -1", Placed(UG_ALIGN_LEFT | UG_ALIGN_BOTTOM));
    EXPECT_EQ("107,47 1", Placed(UG_ALIGN_RIGHT | UG_ALIGN_BOTTOM));
    EXPECT_EQ("60,47 0", Placed(UG_ALIGN_HCENTER | UG_ALIGN_BOTTOM));
    EXPECT_EQ("13,21 -1", Placed(-1));
}

TEST(DrawRulesTest, TextIsShortenedWhenItNeedsMoreThanTheCellAndSixPixels) {
    const RECT rect = {0, 0, 50, 20};
    EXPECT_FALSE(UGNeedsEllipsis(rect, 44));
    EXPECT_TRUE(UGNeedsEllipsis(rect, 45));
}

TEST(DrawRulesTest, LengthsGrowWithTheResolution) {
    EXPECT_EQ(20, UGScaleToDpi(20, 96));
    EXPECT_EQ(30, UGScaleToDpi(20, 144));
    EXPECT_EQ(40, UGScaleToDpi(20, 192));
    EXPECT_EQ(27, UGScaleToDpi(18, 144));
    EXPECT_EQ(23, UGScaleToDpi(18, 120)); // rounded
    EXPECT_EQ(18, UGScaleToDpi(18, 0));   // a device that does not know
}

TEST(DrawRulesTest, ALineIsNeverLowerThanItsTextNeeds) {
    EXPECT_EQ(20, UGLineHeight(20, 96, 16));
    EXPECT_EQ(18, UGLineHeight(18, 96, 16));
    EXPECT_EQ(30, UGLineHeight(20, 144, 23));
    EXPECT_EQ(42, UGLineHeight(20, 96, 40)); // a margin above and the grid line below
}

TEST(DrawRulesTest, APrintedFontKeepsItsProportionToTheRow) {
    EXPECT_EQ(-13, UGPrintFontHeight(-13, 20, 20, 100));
    EXPECT_EQ(-98, UGPrintFontHeight(-13, 150, 20, 100));
    EXPECT_EQ(49, UGPrintFontHeight(13, 150, 20, 50));
    EXPECT_EQ(26, UGPrintFontHeight(13, 150, 0, 200)); // no row to compare with
    EXPECT_EQ(-1, UGPrintFontHeight(-13, 1, 100, 100));
    EXPECT_EQ(1, UGPrintFontHeight(13, 0, 20, 100));
}

} // namespace
