// Tables compiled from independent levels.
#include "CompilerTest.h"

namespace {

class CompilerLevelsTest : public CompilerTest {};

TEST_F(CompilerLevelsTest, TextInBothPairsOfTheFirstRow) {
    EXPECT_EQ(Compile(4, {{"B", "b", "2", "two"}, {"A", "a", "1", "one"}, {"", "", "333", "t"}}), "ok");
    EXPECT_EQ(Menu(true), "A:1(1:1 2:0 333:2) B:0(1:1 2:0 333:2)");
    EXPECT_EQ(Trie(), "A{A}(1*{A|1} 2*{A|2} 3(3(3*{A|333}))) B{B}(1*{B|1} 2*{B|2} 3(3(3*{B|333})))");
    EXPECT_TRUE(m_compiler.m_MenuTree.m_bShared);
    EXPECT_EQ(m_compiler.m_MenuTree.GetSharedListCount(), 2);
    EXPECT_EQ(Widths(m_compiler.m_MenuTree), "3,3,4");
    EXPECT_EQ(Widths(*m_compiler.m_MenuTree.GetChild(0)), "3,3,4");
}

TEST_F(CompilerLevelsTest, TwoLevelsOfAThousandCodesAreTwoLists) {
    TextSource::Rows rows;
    std::vector<std::string> codes;
    for (int i = 0; i < 1000; ++i)
        codes.push_back(std::to_string(1000 + i));
    for (const std::string &code : codes)
        rows.push_back({code.c_str(), "first", code.c_str(), "second"});
    EXPECT_EQ(Compile(4, rows), "ok");
    EXPECT_EQ(m_host.m_abortChecks, 1000000);
    const auto table = Loaded();
    CMenuTree &root = table->m_MenuTree;
    ASSERT_EQ(root.GetSharedListCount(), 2);
    EXPECT_EQ(root.GetSharedList(0)->GetSize(), 1000);
    EXPECT_EQ(root.m_pChildren, root.GetSharedList(1));
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(root.GetChild(i)->m_pChildren, root.GetSharedList(0));
    EXPECT_TRUE(table->IsValidCode("10001999"));
    EXPECT_FALSE(table->IsValidCode("10002000"));
    EXPECT_EQ(table->GetMenuForCode("1000"), root.GetChild(0));
    // The menu section: two lists of 1,000 records of 22 bytes and the texts.
    table->m_bEnableValidation = false;
    CString text;
    const std::string path = m_files.Path("menu.lbn");
    EXPECT_TRUE(table->SerializeFile(path.c_str(), text, true)) << text;
    EXPECT_EQ(TempFiles::Read(path).size(), 16u + 8 + 4 + 8 + 1000 * (22 + 4 + 5) + 1000 * (22 + 4 + 6) + 22);
}

TEST_F(CompilerLevelsTest, AStrayCodeInTheLastPair) {
    EXPECT_EQ(Compile(4, {{"A", "a", "1", "one"}, {"B", "b"}, {"C", "c", "3", "three"}}),
              "(2,2) Unexpected text found at cell 2, 2!");
    EXPECT_FALSE(HasTable());
}

TEST_F(CompilerLevelsTest, AStrayCodeInAnEarlierPairNamesTheLastPairsColumn) {
    EXPECT_EQ(Compile(6, {{"A", "a", "1", "one", "x", ""}, {"", "", "2"}, {"C", "c"}}),
              "(4,2) Unexpected text found at cell 4, 2!");
}

TEST_F(CompilerLevelsTest, AStrayDescriptionIsNotLookedAt) {
    EXPECT_EQ(Compile(4, {{"A", "a", "1", "one"}, {"", "", "", "stray"}}), "ok");
}

TEST_F(CompilerLevelsTest, WhatCannotBeReadBehindTheEndIsPassedOver) {
    Open(4, {{"A", "a", "1", "one"}, {"B", "b"}, {"C", "c"}});
    m_source->m_unreadable = {{2, 2}};
    EXPECT_EQ(Compile(), "ok");
    EXPECT_EQ(Menu(), "A(1) B(1) C(1)");
}

TEST_F(CompilerLevelsTest, AFailedReadEndsItWithItsText) {
    for (const auto &cell : {std::pair<int, long>{3, 0}, {1, 1}, {2, 1}}) {
        Open(4, {{"A", "a", "1", "one"}, {"B", "b", "2", "two"}});
        m_source->m_unreadable = {cell};
        EXPECT_EQ(Compile(), "(-1,-1) Could not get text at cell col " + std::to_string(cell.first) + ", row " +
                                 std::to_string(cell.second) + "!");
        EXPECT_FALSE(HasTable());
    }
    EXPECT_EQ(m_host.m_waits, "1 -1 1 -1 1 -1");
    // What was built so far goes with the next compile.
    EXPECT_EQ(Compile(2, {{"A", "a"}}), "ok");
    EXPECT_FALSE(m_compiler.m_MenuTree.m_bShared);
    EXPECT_EQ(m_compiler.m_MenuTree.GetSharedListCount(), 0);
}

TEST_F(CompilerLevelsTest, DuplicatesAreKeptInFrontOfTheirEquals) {
    EXPECT_EQ(Compile(4, {{"A", "", "1", "first"}, {"A", "", "1", "second"}}), "ok");
    EXPECT_EQ(Menu(true), "A:1(1:1 1:0) A:0(1:1 1:0)");
}

TEST_F(CompilerLevelsTest, ALevelWithoutCodesIsNoLevel) {
    EXPECT_EQ(Compile(6, {{"A", "a", "1", "one"}}), "ok");
    EXPECT_EQ(Menu(), "A(1)");
    EXPECT_EQ(m_compiler.m_MenuTree.GetSharedListCount(), 3);
    EXPECT_TRUE(m_compiler.IsValidCode("A1"));
    EXPECT_EQ(Outline(Loaded()->m_MenuTree), "A(1)");
}

TEST_F(CompilerLevelsTest, AnEmptyFirstLevelGivesAnEmptyTable) {
    EXPECT_EQ(Compile(6, {{"", "", "1", "one", "x", ""}}), "ok");
    EXPECT_EQ(Menu(), "");
    EXPECT_EQ(Trie(), "");
}

TEST_F(CompilerLevelsTest, NoCodeAtALevelMayBeLeftOut) {
    EXPECT_EQ(Compile(4, {{"A", "", "1", ""}, {"!", "none", "2", ""}}), "ok");
    EXPECT_EQ(Menu(), "!(1 2) A(1 2)");
    EXPECT_TRUE(m_compiler.IsValidCode("1"));
    EXPECT_TRUE(m_compiler.IsValidCode("A2"));
}

} // namespace
