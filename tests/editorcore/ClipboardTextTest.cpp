#include "editorcore/ClipboardText.h"

#include "editorcore/AutoScroll.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// "col.row=text" of every field.
std::string Fields(const char *text) {
    std::string all;
    for (ClipboardText::Reader reader(text); reader.Next();) {
        all += std::to_string(reader.m_col) + "." + std::to_string(reader.m_row) + "=" +
               std::string(reader.m_begin, reader.m_end) + " ";
    }
    return all;
}

std::string Size(const char *text) {
    const ClipboardText::Size size = ClipboardText::Measure(text);
    return std::to_string(size.cols) + "x" + std::to_string(size.rows);
}

TEST(ClipboardText, FieldsInOrder) {
    EXPECT_EQ("0.0=a 1.0=b 0.1=c 1.1=d ", Fields("a\tb\r\nc\td"));
    EXPECT_EQ("", Fields(""));
}

TEST(ClipboardText, EveryKindOfLineEnd) {
    EXPECT_EQ("0.0=a 0.1=b 0.2=c 0.3=d ", Fields("a\rb\nc\r\nd"));
    EXPECT_EQ("0.0=a 0.1= 0.2=b ", Fields("a\n\rb"));
}

TEST(ClipboardText, ALineBreakAtTheVeryEndAddsNothing) {
    EXPECT_EQ("0.0=x ", Fields("x\r\n"));
    EXPECT_EQ("0.0=x ", Fields("x\t"));
}

TEST(ClipboardText, EmptyFieldsAreFields) {
    EXPECT_EQ("0.0= 1.0=a 0.1= 0.2=b ", Fields("\ta\r\n\r\nb"));
}

TEST(ClipboardText, ATextThatEndsInALineBreakCountsARowMore) {
    EXPECT_EQ("1x2", Size("x\r\n"));
    EXPECT_EQ("1x1", Size(""));
    EXPECT_EQ("3x1", Size("a\tb\tc"));
    EXPECT_EQ("2x1", Size("a\tb\rc\td\te")); // lone CR ends the first line and counts no row
    EXPECT_EQ("1x3", Size("a\nb\tc\nd"));
}

TEST(AutoScroll, TheStepGrowsWithTheSquareOfTheDistance) {
    EXPECT_EQ(0, UGRowsPastEdge(0, 100));
    EXPECT_EQ(0, UGRowsPastEdge(100, 100));
    EXPECT_EQ(1, UGRowsPastEdge(119, 100));
    EXPECT_EQ(1, UGRowsPastEdge(120, 100));
    EXPECT_EQ(9, UGRowsPastEdge(160, 100));
    EXPECT_EQ(-1, UGRowsPastEdge(-1, 100));
    EXPECT_EQ(-4, UGRowsPastEdge(-40, 100));
}

TEST(AutoScroll, ColumnsCountInWiderUnits) {
    EXPECT_EQ(1, UGColsPastEdge(149, 100));
    EXPECT_EQ(4, UGColsPastEdge(200, 100));
    EXPECT_EQ(-1, UGColsPastEdge(-49, 100));
    EXPECT_EQ(-9, UGColsPastEdge(-150, 100));
}

} // namespace
