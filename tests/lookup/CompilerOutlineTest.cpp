// Tables compiled from an indented outline.
#include "CompilerTest.h"

namespace {

class CompilerOutlineTest : public CompilerTest {
protected:
    // "ok code|description column" or "no code|description column: text".
    std::string Parse(const std::vector<const char *> &row, int previous, bool strictly = false, int columns = 6) {
        Open(columns, {row});
        CString code = "x", description = "x", text = "x";
        int column = previous;
        const bool parsed = strictly ? m_compiler.ParseStrictly(0, columns, code, description, column, text)
                                     : m_compiler.ParseRow(0, columns, code, description, column, text);
        return (parsed ? "ok " : "no ") + std::string(code) + "|" + std::string(description) + " " +
               std::to_string(column) + (text.IsEmpty() ? "" : ": " + std::string(text));
    }
};

TEST_F(CompilerOutlineTest, ParseRowTakesTheFirstTwoTexts) {
    EXPECT_EQ(Parse({"A", "a"}, 0), "ok A|a 0");
    EXPECT_EQ(Parse({"", "", "B", "b"}, 0), "ok B|b 2");
    EXPECT_EQ(Parse({"", "", "B", "b"}, 4), "ok B|b 2");
}

TEST_F(CompilerOutlineTest, ParseRowAcceptsADescriptionApart) {
    EXPECT_EQ(Parse({"A", "", "", "d"}, 0), "ok A|d 0");
}

TEST_F(CompilerOutlineTest, ParseRowWithOddColumns) {
    EXPECT_EQ(Parse({"A"}, 4, false, 3), "no | 4: File must have an even number of columns!");
}

TEST_F(CompilerOutlineTest, ParseRowOfABlankRow) {
    EXPECT_EQ(Parse({}, 2), "ok | -1");
    EXPECT_EQ(Parse({}, 2, true), "no | -1: Blank row (row 0) found.");
}

TEST_F(CompilerOutlineTest, ParseRowWithItsFirstTextInAnOddColumn) {
    EXPECT_EQ(Parse({"", "x"}, 0), "no x| 1: First text found (column 6, row 0) must be in an even numbered field!\n"
                                   "(missing Code?)");
    EXPECT_EQ(Parse({"", "x", "y"}, 0), "no x|y 1: First text found (column 6, row 0) must be in an even numbered "
                                        "field!\n(missing Code?)");
    EXPECT_EQ(Parse({"", "x", "y", "z"}, 0), "no x|y 1: First text found (column 3, row 0) must be in an even "
                                             "numbered field!\n(missing Code?)");
}

TEST_F(CompilerOutlineTest, ParseRowWithAThirdText) {
    EXPECT_EQ(Parse({"A", "a", "", "", "x"}, 0), "no A|a 4: Third cell with text in it found (column 4)!\n\n"
                                                "Can only have text in two adjacent columns!");
}

TEST_F(CompilerOutlineTest, ParseRowWithoutDescription) {
    EXPECT_EQ(Parse({"", "", "A"}, 0), "ok A| 2");
    EXPECT_EQ(Parse({"", "", "A"}, 0, true), "no A| 3: Expected description at cell (-1, 0).");
}

TEST_F(CompilerOutlineTest, ParseRowFindsAGapOnlyWithADescription) {
    EXPECT_EQ(Parse({"", "", "", "", "A", "a"}, 0), "no A|a 2: Gap at column 2 detected.");
    EXPECT_EQ(Parse({"", "", "", "", "A"}, 0), "ok A| 4");
    EXPECT_EQ(Parse({"", "", "", "", "A", "a"}, 2), "ok A|a 4");
}

TEST_F(CompilerOutlineTest, ParseRowThatCannotBeRead) {
    Open(4, {{"A", "a"}});
    m_source->m_unreadable = {{2, 0}};
    CString code, description, text;
    int column = 0;
    EXPECT_FALSE(m_compiler.ParseRow(0, 4, code, description, column, text));
    EXPECT_EQ(column, 2);
    EXPECT_STREQ(text, "Could not get text at cell col 2, row 0!");
}

TEST_F(CompilerOutlineTest, TwoFieldsAreOneLevel) {
    EXPECT_EQ(Compile(2, {{"C", "c"}, {"A", "a"}, {"", ""}, {"B", ""}}), "ok");
    EXPECT_EQ(Menu(true), "A:1 B:2 C:0");
    EXPECT_EQ(Trie(), "A*{A} B*{B} C*{C}");
    EXPECT_FALSE(m_compiler.m_MenuTree.m_bShared);
}

TEST_F(CompilerOutlineTest, TextInOnlyTheFirstPairOfTheFirstRow) {
    EXPECT_EQ(Compile(4, {{"A", "a"}, {"", "", "1", "one"}, {"B", "b"}, {"", "", "2", "two"}}), "ok");
    EXPECT_EQ(Menu(), "A(1) B(2)");
    EXPECT_EQ(Trie(), "A{A}(1*{A|1}) B{B}(2*{B|2})");
    EXPECT_TRUE(m_compiler.IsValidCode("A1"));
    EXPECT_FALSE(m_compiler.IsValidCode("A"));
    EXPECT_FALSE(m_compiler.IsValidCode("A2"));
}

TEST_F(CompilerOutlineTest, RowsGoUpByAnyNumberOfLevels) {
    EXPECT_EQ(Compile(6, {{"A", "a"},
                          {"", "", "1", "x"},
                          {"", "", "", "", "p", "x"},
                          {"", "", "", "", "q", "x"},
                          {"B", "b"},
                          {"", "", "2", "x"},
                          {"", "", "", "", "r", "x"},
                          {"", "", "3", "x"}}),
              "ok");
    EXPECT_EQ(Menu(true), "A:0(1:0(p:0 q:1)) B:1(2:0(r:0) 3:1)");
}

TEST_F(CompilerOutlineTest, OrdersStartOverUnderEachParent) {
    EXPECT_EQ(Compile(4, {{"A", ""}, {"", "", "2", ""}, {"", "", "1", ""}, {"B", ""}, {"", "", "9", ""}}), "ok");
    EXPECT_EQ(Menu(true), "A:0(1:1 2:0) B:1(9:0)");
}

TEST_F(CompilerOutlineTest, TextInColumnsZeroAndThreeIsCodeAndDescription) {
    EXPECT_EQ(Compile(4, {{"A", "", "", "deep"}}), "ok");
    EXPECT_STREQ(m_compiler.m_MenuTree.GetChild(0)->m_sDescription, "deep");
}

TEST_F(CompilerOutlineTest, AGapIsDetectedInARowWithADescription) {
    EXPECT_EQ(Compile(6, {{"A", "a"}, {"", "", "", "", "B", "b"}}), "(2,1) Gap at column 2 detected.");
    EXPECT_FALSE(HasTable());
    EXPECT_EQ(m_host.m_waits, "1 -1");
}

TEST_F(CompilerOutlineTest, WithoutADescriptionTheGapIsOneLevelDown) {
    EXPECT_EQ(Compile(6, {{"A", "a"}, {"", "", "", "", "B"}}), "ok");
    EXPECT_EQ(Menu(), "A(B)");
}

TEST_F(CompilerOutlineTest, UpBeyondTheRootEndsWithoutAText) {
    EXPECT_EQ(Compile(6, {{"A", "a"}, {"", "", "", "", "B"}, {"C", "c"}}), "(-1,-1) ");
}

TEST_F(CompilerOutlineTest, UpToTheRootAfterAGap) {
    EXPECT_EQ(Compile(6, {{"A", "a"}, {"", "", "", "", "B"}, {"", "", "C", "c"}}), "ok");
    EXPECT_EQ(Menu(), "A(B) C");
}

TEST_F(CompilerOutlineTest, AFirstRowBelowTheFirstLevelIsRefused) {
    const std::string tail = " must be in the first field!\n(missing parent?)";
    EXPECT_EQ(Compile(4, {{"", "", "1", "one"}}), "(2,0) First code found (column 2, row 0)" + tail);
    EXPECT_EQ(Compile(6, {{}, {"", "", "", "", "1"}}), "(4,1) First code found (column 4, row 1)" + tail);
}

TEST_F(CompilerOutlineTest, RowsThatCannotBeParsedGiveTheirCell) {
    EXPECT_EQ(Compile(4, {{"A", "a"}, {"", "x"}}),
              "(1,1) First text found (column 4, row 1) must be in an even numbered field!\n(missing Code?)");
    EXPECT_EQ(Compile(4, {{"A", "a"}, {"B", "b", "", "x"}}),
              "(3,1) Third cell with text in it found (column 3)!\n\nCan only have text in two adjacent columns!");
    Open(4, {{"A", "a"}, {"B", "b"}});
    m_source->m_unreadable = {{3, 1}};
    EXPECT_EQ(Compile(), "(3,1) Could not get text at cell col 3, row 1!");
}

TEST_F(CompilerOutlineTest, TheFirstRowsReadFailuresAreIgnoredWhileLevelsAreCounted) {
    Open(4, {{"A", "a", "1", "one"}, {"B", "b"}});
    m_source->m_unreadable = {{2, 0}};
    EXPECT_EQ(Compile(), "(2,0) Could not get text at cell col 2, row 0!");
    EXPECT_FALSE(m_compiler.m_MenuTree.m_bShared);
}

TEST_F(CompilerOutlineTest, TwoEqualCodesAreBothKept) {
    EXPECT_EQ(Compile(2, {{"A", "first"}, {"A", "second"}}), "ok");
    EXPECT_EQ(Menu(true), "A:1 A:0");
    EXPECT_TRUE(m_compiler.IsValidCode("A"));
}

TEST_F(CompilerOutlineTest, CaseInsensitiveTablesSortBothCasesAsEqual) {
    m_host.m_onProperties = [](bool *caseSensitive, bool *, bool *, bool *) { *caseSensitive = false; };
    EXPECT_EQ(Compile(2, {{"ab", ""}, {"AB", ""}, {"aa", ""}}), "ok");
    EXPECT_EQ(Menu(true), "aa:2 AB:1 ab:0");
    EXPECT_EQ(Trie(), "a(a*{aa} B*{AB})");
}

TEST_F(CompilerOutlineTest, NoCodeAtALevelIsAnItemThatAddsNothing) {
    EXPECT_EQ(Compile(4, {{"A", "a"}, {"", "", "!", "none"}, {"", "", "1", "one"}, {"!", "no group"}, {"", "", "9", ""}}),
              "ok");
    EXPECT_EQ(Menu(), "!(9) A(! 1)");
    EXPECT_TRUE(m_compiler.IsValidCode("9"));
    EXPECT_TRUE(m_compiler.IsValidCode("A1"));
    EXPECT_FALSE(m_compiler.IsValidCode("A"));
    CString text;
    m_compiler.m_MenuTree.GetChild(0)->GetFullCode(text, 0);
    EXPECT_STREQ(text, "9");
    EXPECT_STREQ(m_compiler.m_MenuTree.GetChild(1)->GetChild(0)->m_sDescription, "none");
}

} // namespace
