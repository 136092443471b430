#include "grid/UGGridInfo.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(GridInfoTest, TheStateBlockStartsAsHostsExpect) {
    CUGGridInfo info;
    EXPECT_EQ(100, info.m_cols.m_defaultSize);
    EXPECT_EQ(20, info.m_rows.m_defaultSize);
    EXPECT_EQ(2, info.m_userSizingMode);
    EXPECT_EQ(20, info.m_topHeadingHeight);
    EXPECT_EQ(50, info.m_sideHeadingWidth);
    EXPECT_EQ(1, info.m_currentCellStyle);
    EXPECT_EQ(1, info.m_colTranslationEnabled);
    EXPECT_EQ(1, info.m_scrollMargin);
    EXPECT_EQ(0, info.m_gridDefault.GetDataType());
    EXPECT_EQ(12, info.m_gridDefault.GetBorder());
    EXPECT_EQ(1, info.m_gridDefault.GetAlignment());
    EXPECT_EQ(0, info.m_gridDefault.GetReadOnly());
    EXPECT_EQ(36, info.m_headingDefault.GetAlignment());
    EXPECT_EQ(8192, info.m_headingDefault.GetBorder());
}

TEST(GridInfoTest, NewColumnsCopyTheDefaultsAndLaterChangesDoNotReachThem) {
    CUGGridInfo info;
    info.m_cornerHeading.SetText("model");
    info.ResizeColumns(2);
    info.m_gridDefault.SetAlignment(UG_ALIGN_RIGHT);
    info.ResizeColumns(3);
    EXPECT_EQ(UG_ALIGN_LEFT, info.m_colDefaults[1]->GetAlignment());
    EXPECT_EQ(UG_ALIGN_RIGHT, info.m_colDefaults[2]->GetAlignment());
    EXPECT_STREQ("model", info.m_colHeadings[2]->GetText());
    EXPECT_EQ(100, info.m_cols.SizeOf(2));
}

TEST(GridInfoTest, KeptColumnsKeepWidthAndHeading) {
    CUGGridInfo info;
    info.ResizeColumns(3);
    info.SetColWidth(0, 33);
    info.m_colHeadings[0]->SetText("first");
    info.ResizeColumns(1);
    info.ResizeColumns(2);
    int width;
    EXPECT_EQ(GRID_SUCCESS, info.GetColWidth(0, &width));
    EXPECT_EQ(33, width);
    EXPECT_STREQ("first", info.m_colHeadings[0]->GetText());
    EXPECT_EQ(GRID_ERROR, info.GetColWidth(2, &width));
    EXPECT_EQ(GRID_ERROR, info.SetColWidth(0, -1));
}

TEST(GridInfoTest, SixtyFourThousandRowsGoOverToUniformHeights) {
    CUGGridInfo info;
    info.ResizeRows(63999);
    EXPECT_FALSE(info.m_rows.m_uniform);
    EXPECT_EQ(GRID_SUCCESS, info.SetRowHeight(5, 99));
    info.ResizeRows(64000);
    EXPECT_TRUE(info.m_rows.m_uniform);
    info.ResizeRows(10);
    int height;
    EXPECT_EQ(GRID_SUCCESS, info.GetRowHeight(5, &height));
    EXPECT_EQ(20, height); // uniform for good
}

TEST(GridInfoTest, IndividualHeightsComeBackAt64001RowsAndNotAt64002) {
    CUGGridInfo info;
    info.ResizeRows(64002);
    EXPECT_EQ(GRID_ERROR, info.SetUniformRowHeight(0));
    EXPECT_TRUE(info.m_rows.m_uniform);
    info.ResizeRows(64001);
    EXPECT_EQ(GRID_SUCCESS, info.SetUniformRowHeight(0));
    EXPECT_FALSE(info.m_rows.m_uniform);
    EXPECT_EQ(GRID_SUCCESS, info.SetUniformRowHeight(1));
    EXPECT_TRUE(info.m_rows.m_uniform);
}

TEST(GridInfoTest, InUniformModeAHeightIsEveryRowsHeight) {
    CUGGridInfo info;
    info.ResizeRows(10);
    info.SetUniformRowHeight(1);
    EXPECT_EQ(GRID_SUCCESS, info.SetRowHeight(3, 31));
    int height;
    EXPECT_EQ(GRID_SUCCESS, info.GetRowHeight(9, &height));
    EXPECT_EQ(31, height);
    EXPECT_EQ(GRID_ERROR, info.GetRowHeight(10, &height));
}

std::string Sizes(const CUGGridInfo &info) {
    return "col=" + std::to_string(info.m_cols.m_defaultSize) + " row=" + std::to_string(info.m_rows.m_defaultSize) +
           " top=" + std::to_string(info.m_topHeadingHeight) + " side=" + std::to_string(info.m_sideHeadingWidth);
}

TEST(GridInfoTest, TheDefaultSizesFollowTheResolution) {
    CUGGridInfo usual, fine;
    usual.ScaleDefaults(96);
    fine.ScaleDefaults(144);
    EXPECT_EQ("col=100 row=20 top=20 side=50", Sizes(usual));
    EXPECT_EQ("col=150 row=30 top=30 side=75", Sizes(fine));
}

TEST(GridInfoTest, SizesThatWereSetAreKept) {
    CUGGridInfo info;
    info.m_rows.m_defaultSize = 12;
    info.m_sideHeadingWidth = 0;
    info.ScaleDefaults(144);
    info.FitDefaultsToText(40, 16);
    EXPECT_EQ("col=150 row=12 top=30 side=0", Sizes(info));
}

TEST(GridInfoTest, RowsThatHaveTheDefaultHeightGrowWithIt) {
    CUGGridInfo info;
    info.ResizeRows(3);
    info.SetRowHeight(1, 12);
    info.FitDefaultsToText(30, 16);
    EXPECT_EQ((std::vector<int>{32, 12, 32}), info.m_rows.m_sizes);
}

TEST(GridInfoTest, DefaultRowAndHeadingGrowToTheirTextAndDoNotShrink) {
    CUGGridInfo info;
    info.FitDefaultsToText(16, 16);
    EXPECT_EQ("col=100 row=20 top=20 side=50", Sizes(info));
    info.FitDefaultsToText(30, 25);
    EXPECT_EQ("col=100 row=32 top=27 side=50", Sizes(info));
}

} // namespace
