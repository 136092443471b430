#include "grid/UGCell.h"

#include "grid/UGDefine.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

CUGCell FullCell() {
    CUGCell cell;
    cell.SetText("text");
    cell.SetMask("99");
    cell.SetLabelText("label");
    cell.SetTextColor(0x112233);
    cell.SetBackColor(0x223344);
    cell.SetHTextColor(0x334455);
    cell.SetHBackColor(0x445566);
    cell.SetAlignment(UG_ALIGN_RIGHT);
    cell.SetBorder(UG_BDR_LTHIN);
    cell.SetReadOnly(1);
    cell.SetCellType(7);
    cell.SetCellTypeEx(4);
    cell.SetMaxLength(12);
    cell.SetColTranslation(3);
    cell.SetDataSrcIndex(2);
    cell.SetJoin(true, 1, 2);
    cell.SetExtraMemory("bytes", 5);
    return cell;
}

std::string Describe(const CUGCell &cell) {
    char text[300];
    std::snprintf(text, sizeof text,
                  "%s|%s|%s type=%d c=%x/%x/%x/%x al=%d bd=%d ro=%d ct=%d/%d max=%d tr=%d src=%d join=%d extra=%d",
                  cell.GetText(), cell.GetMask(), cell.GetLabelText(), cell.GetDataType(),
                  static_cast<unsigned>(cell.GetTextColor()), static_cast<unsigned>(cell.GetBackColor()),
                  static_cast<unsigned>(cell.GetHTextColor()), static_cast<unsigned>(cell.GetHBackColor()),
                  cell.GetAlignment(), cell.GetBorder(), cell.GetReadOnly(), cell.GetCellType(),
                  cell.GetCellTypeEx(), cell.GetMaxLength(), cell.GetColTranslation(), cell.GetDataSrcIndex(),
                  cell.IsJoined(), cell.GetExtraMemoryLength());
    return text;
}

const char *const kClear = "|| type=-1 c=ffffffff/ffffffff/ffffffff/ffffffff al=-1 bd=-1 ro=-1 ct=-1/-1 max=-1 "
                           "tr=-1 src=-1 join=0 extra=0";
const char *const kFull = "text|99|label type=-1 c=112233/223344/334455/445566 al=2 bd=1 ro=1 ct=7/4 max=12 tr=3 "
                          "src=2 join=1 extra=5";

TEST(CellTest, ANewCellIsClear) {
    EXPECT_EQ(kClear, Describe(CUGCell()));
}

TEST(CellTest, ClearAllPutsEverySentinelBack) {
    CUGCell cell = FullCell();
    EXPECT_EQ(kFull, Describe(cell));
    EXPECT_EQ(GRID_SUCCESS, cell.ClearAll());
    EXPECT_EQ(kClear, Describe(cell));
}

TEST(CellTest, MergeFromAClearedCellChangesNothing) {
    CUGCell cell = FullCell();
    CUGCell clear;
    cell.MergeFrom(&clear);
    EXPECT_EQ(kFull, Describe(cell));
}

TEST(CellTest, MergeTakesOnlyWhatIsSet) {
    CUGCell cell = FullCell();
    CUGCell layer;
    layer.SetText("over");
    layer.SetAlignment(0);
    layer.SetReadOnly(0);
    cell.MergeFrom(&layer);
    EXPECT_STREQ("over", cell.GetText());
    EXPECT_STREQ("label", cell.GetLabelText());
    EXPECT_EQ(0, cell.GetAlignment());
    EXPECT_EQ(0, cell.GetReadOnly());
    EXPECT_EQ(0x112233u, cell.GetTextColor());
}

TEST(CellTest, AnEmptyTextNeverBlanksALowerLayer) {
    CUGCell cell, layer;
    cell.SetText("lower");
    layer.SetText("");
    cell.MergeFrom(&layer);
    EXPECT_STREQ("lower", cell.GetText());
}

TEST(CellTest, AColourWithTheTopBitSetCountsAsNotSet) {
    CUGCell cell, layer;
    cell.SetTextColor(5);
    layer.SetTextColor(0x80000001);
    cell.MergeFrom(&layer);
    EXPECT_EQ(5u, cell.GetTextColor());
}

TEST(CellTest, CopyFromAClearedCellResetsPropertiesAndKeepsTheNumberFields) {
    CUGCell cell = FullCell();
    cell.SetNumberDecimals(4);
    CUGCell clear;
    cell.CopyFrom(&clear);
    EXPECT_EQ(kClear, Describe(cell));
    EXPECT_EQ(4, cell.GetNumberDecimals());
}

TEST(CellTest, CopyTakesTheNumberWithASetDataType) {
    CUGCell source, destination;
    source.SetNumberDecimals(3);
    source.SetNumber(2);
    destination.CopyFrom(&source);
    EXPECT_EQ(3, destination.GetNumberDecimals());
    EXPECT_STREQ("2.000", destination.GetText());
}

TEST(CellTest, ExtraDataIsNeverShared) {
    CUGCell source = FullCell();
    CUGCell copy(source);
    ASSERT_NE(source.GetExtraMemory(), copy.GetExtraMemory());
    EXPECT_EQ(0, std::memcmp("bytes", copy.GetExtraMemory(), 5));
    CUGCell without;
    copy.MergeFrom(&without);
    EXPECT_EQ(5, copy.GetExtraMemoryLength());
    copy.CopyFrom(&without);
    EXPECT_EQ(nullptr, copy.GetExtraMemory());
}

TEST(CellTest, SetNumberWritesAFixedPointTextWithTheDecimals) {
    CUGCell cell;
    EXPECT_EQ(GRID_SUCCESS, cell.SetNumber(1.5));
    EXPECT_STREQ("1.50", cell.GetText());
    EXPECT_EQ(UGCELL_DATA_NUMBER, cell.GetDataType());
    EXPECT_EQ(1.5, cell.GetNumber());
}

TEST(CellTest, GetNumberReadsTheTextAndLettersAreZero) {
    CUGCell cell;
    cell.SetNumber(1.5);
    cell.SetText("abc");
    EXPECT_EQ(0, cell.GetNumber());
}

TEST(CellTest, ANumberLongerThanTheBufferIsCut) {
    CUGCell cell;
    cell.SetNumber(1e200);
    EXPECT_EQ(99, cell.GetTextLength());
}

TEST(CellTest, TheJoinIsTakenByAMergeAndKeptByAnUnjoinedLayer) {
    CUGCell cell, joined, plain;
    joined.SetJoin(false, 4, 9);
    cell.MergeFrom(&joined);
    cell.MergeFrom(&plain);
    EXPECT_TRUE(cell.IsJoined());
    EXPECT_FALSE(cell.IsJoinOrigin());
    EXPECT_EQ(4, cell.GetJoinOriginCol());
    EXPECT_EQ(9, cell.GetJoinOriginRow());
}

} // namespace
