#include "LookupTestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

class LookupTreeTest : public testing::Test {
protected:
    void Add(std::initializer_list<const char *> levels, bool bCaseSensitive = true) {
        CStringArray codes;
        Fill(codes, levels);
        m_tree.AddCode(bCaseSensitive, codes, 0, 0);
    }
    std::string Text() const { return TrieText(m_tree); }
    // "codes" of the list, "-" for none.
    std::string List(const char *code, bool bCaseSensitive = true) {
        CStringArray codes;
        codes.Add("left over");
        return m_tree.GetCodeList(code, bCaseSensitive, codes) ? Joined(codes) : "-" + Joined(codes);
    }

    BoxApp m_app;
    CLookupTree m_tree;
};

TEST_F(LookupTreeTest, OneCodeOfOneLevel) {
    Add({"ab"});
    EXPECT_EQ(Text(), "a(b*{ab})");
}

TEST_F(LookupTreeTest, NodesAndTextsOfCodesLieApart) {
    Add({"ab"});
    const size_t nodes = m_tree.GetPool().GetHeldBytes(), texts = m_tree.GetTextPool().GetHeldBytes();
    EXPECT_GT(nodes, 0u);
    EXPECT_GT(texts, 0u);
    EXPECT_EQ(nodes + texts, m_tree.GetHeldBytes());
    m_tree.Clear();
    EXPECT_EQ(m_tree.GetPool().GetHeldBytes(), 0u);
    EXPECT_EQ(m_tree.GetTextPool().GetHeldBytes(), 0u);
}

TEST_F(LookupTreeTest, ChildrenStandInTheOrderOfTheirBytes) {
    for (const char *code : {"m", "\xE9", "a", "Z", "0", " ", "z"})
        Add({code});
    EXPECT_EQ(Text(), " *{ } 0*{0} Z*{Z} a*{a} m*{m} z*{z} \xE9*{\xE9}");
}

TEST_F(LookupTreeTest, ACaseInsensitiveTreeHasOneNodeForBoth) {
    Add({"b"}, false);
    Add({"AB"}, false);
    Add({"ac"}, false);
    EXPECT_EQ(Text(), "A(B*{AB} c*{ac}) b*{b}");
    EXPECT_TRUE(m_tree.IsCompleteCode("aB", false));
    EXPECT_TRUE(m_tree.IsPartialCode("a", false));
}

TEST_F(LookupTreeTest, EachLevelEndHasTheCodesSoFar) {
    Add({"AB", "12"});
    Add({"AB", "13"});
    EXPECT_EQ(Text(), "A(B{AB}(1(2*{AB|12} 3*{AB|13})))");
    EXPECT_EQ(List("AB"), "AB");
    EXPECT_EQ(List("AB12"), "AB|12");
    EXPECT_EQ(List("AB1"), "-");
    EXPECT_EQ(List("A"), "-");
    EXPECT_EQ(List("AC"), "-");
    EXPECT_EQ(List(""), "-");
}

TEST_F(LookupTreeTest, ANodeThatCodesPassOnTwoWaysHasNoList) {
    Add({"A", "BC"});
    Add({"AB", "C"});
    EXPECT_EQ(Text(), "A{A}(B{AB}(C*~))");
    EXPECT_EQ(List("ABC"), "-");
    // It stays so.
    Add({"AB", "C"});
    EXPECT_EQ(Text(), "A{A}(B{AB}(C*~))");
}

TEST_F(LookupTreeTest, ListsOfACaseInsensitiveTreeAreComparedWithoutCase) {
    Add({"Ab", "C"}, false);
    Add({"aB", "D"}, false);
    EXPECT_EQ(Text(), "A(b{Ab}(C*{Ab|C} D*{aB|D}))");
    Add({"AB", "c"}, true);
    EXPECT_EQ(Text(), "A(B{AB}(c*{AB|c}) b{Ab}(C*{Ab|C} D*{aB|D}))");
}

TEST_F(LookupTreeTest, ALevelWithoutCodeMayBeLeftOutOrTyped) {
    Add({"A", "!", "B"});
    EXPECT_EQ(Text(), "A{A}(!{A}(B*{A|B}) B*{A|B})");
    EXPECT_TRUE(m_tree.IsCompleteCode("AB", true));
    EXPECT_TRUE(m_tree.IsCompleteCode("A!B", true));
    EXPECT_FALSE(m_tree.IsCompleteCode("A!", true));
}

// The list leaves the "!" out, so it never equals the codes of a second path.
TEST_F(LookupTreeTest, ASecondPathBehindALevelWithoutCodeEndsTheList) {
    Add({"A", "!", "B"});
    Add({"A", "!", "C"});
    EXPECT_EQ(Text(), "A{A}(!~(B*{A|B} C*{A|C}) B*{A|B} C*{A|C})");
}

TEST_F(LookupTreeTest, TheLastLevelWithoutCodeIsCompleteOnlyWhenTyped) {
    Add({"A", "!"});
    EXPECT_EQ(Text(), "A{A}(!*{A})");
    EXPECT_FALSE(m_tree.IsCompleteCode("A", true));
    EXPECT_TRUE(m_tree.IsCompleteCode("A!", true));
}

TEST_F(LookupTreeTest, SeveralLevelsWithoutCodeGiveEveryCombination) {
    Add({"!", "!", "A"});
    EXPECT_EQ(Text(), "!(!(A*{A}) A*~) A*{A}");
}

TEST_F(LookupTreeTest, ACodeThatOnlyBeginsWithAnExclamationMarkIsSpelt) {
    Add({"!x", "B"});
    EXPECT_EQ(Text(), "!(x{!x}(B*{!x|B}))");
}

TEST_F(LookupTreeTest, AnEmptyNextCodeStopsTheWalk) {
    Add({"A", "", "B"});
    EXPECT_EQ(Text(), "A{A}");
    Add({""});
    EXPECT_EQ(Text(), "A{A}");
}

TEST_F(LookupTreeTest, AddingCanBeginInTheMiddleOfACode) {
    CStringArray codes;
    Fill(codes, {"AB", "CD"});
    m_tree.AddCode(true, codes, 1, 1);
    EXPECT_EQ(Text(), "D*{AB|CD}");
    m_tree.AddCode(true, codes, 2, 0);
    m_tree.AddCode(true, codes, 0, 2);
    EXPECT_EQ(Text(), "D*{AB|CD}");
}

TEST_F(LookupTreeTest, TheEmptyCodeIsPartialAndComplete) {
    EXPECT_TRUE(m_tree.IsPartialCode("", true));
    EXPECT_TRUE(m_tree.IsCompleteCode("", true));
    EXPECT_FALSE(m_tree.IsPartialCode("A", true));
    EXPECT_FALSE(m_tree.IsCompleteCode("A", true));
}

TEST_F(LookupTreeTest, TypingOnGoesOnFromTheLastNode) {
    Add({"ABC"});
    EXPECT_TRUE(m_tree.IsPartialCode("A", true));
    const CLookupNode *a = m_tree.m_pLastNode;
    EXPECT_EQ(a, m_tree.GetChild(0));
    EXPECT_TRUE(m_tree.IsPartialCode("AB", true));
    EXPECT_EQ(m_tree.m_pLastNode, a->GetChild(0));
    EXPECT_STREQ(m_tree.m_sLastCode, "AB");
    // What fails leaves it.
    EXPECT_FALSE(m_tree.IsPartialCode("ABX", true));
    EXPECT_STREQ(m_tree.m_sLastCode, "AB");
    EXPECT_TRUE(m_tree.IsPartialCode("AB", true));
    EXPECT_FALSE(m_tree.IsCompleteCode("AB", true));
    EXPECT_TRUE(m_tree.IsCompleteCode("ABC", true));
    // Going back begins at the root.
    EXPECT_TRUE(m_tree.IsPartialCode("A", true));
    EXPECT_EQ(m_tree.m_pLastNode, a);
    EXPECT_FALSE(m_tree.IsPartialCode("B", true));
}

// Only the cached node is looked at: a tree whose cache was put elsewhere answers from there.
TEST_F(LookupTreeTest, AHitDoesNotStartAtTheRoot) {
    Add({"AX"});
    Add({"BY"});
    m_tree.m_sLastCode = "A";
    m_tree.m_pLastNode = m_tree.GetChild(1);
    EXPECT_TRUE(m_tree.IsPartialCode("AY", true));
    m_tree.m_sLastCode = "never added";
    EXPECT_TRUE(m_tree.IsPartialCode("never added", true));
}

TEST_F(LookupTreeTest, TheCacheComparesWithoutCaseInACaseInsensitiveTree) {
    Add({"abc"}, false);
    EXPECT_TRUE(m_tree.IsPartialCode("AB", false));
    EXPECT_TRUE(m_tree.IsPartialCode("aBC", false));
    EXPECT_STREQ(m_tree.m_sLastCode, "aBC");
}

TEST_F(LookupTreeTest, AddingForgetsTheSearch) {
    Add({"AB"});
    EXPECT_TRUE(m_tree.IsPartialCode("A", true));
    Add({"A0"});
    EXPECT_EQ(m_tree.m_pLastNode, nullptr);
    EXPECT_TRUE(m_tree.IsCompleteCode("A0", true));
    m_tree.Clear();
    EXPECT_EQ(m_tree.m_pLastNode, nullptr);
    EXPECT_FALSE(m_tree.IsPartialCode("A", true));
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(m_tree.GetHeldBytes(), 0u);
}

TEST_F(LookupTreeTest, GetCodeListLeavesTheCache) {
    Add({"AB"});
    EXPECT_EQ(List("AB"), "AB");
    EXPECT_EQ(m_tree.m_pLastNode, nullptr);
}

TEST_F(LookupTreeTest, LongCodesAndManyLevels) {
    const std::string code(40000, 'x');
    Add({code.c_str()});
    EXPECT_TRUE(m_tree.IsCompleteCode(code.c_str(), true));
    EXPECT_EQ(List(code.c_str()), code);
    CStringArray levels;
    std::string full;
    for (int i = 0; i < 1000; ++i) {
        levels.Add(std::to_string(i).c_str());
        full += std::to_string(i);
    }
    m_tree.AddCode(true, levels, 0, 0);
    EXPECT_TRUE(m_tree.IsCompleteCode(full.c_str(), true));
    CStringArray codes;
    EXPECT_TRUE(m_tree.GetCodeList(full.c_str(), true, codes));
    EXPECT_EQ(codes.GetSize(), 1000);
}

// Against a set, with every character, so that nodes of all sizes move.
TEST_F(LookupTreeTest, RandomCodesAreFoundAndOthersNot) {
    std::mt19937 random(5);
    const auto make = [&] {
        std::string code(1 + random() % 3, ' ');
        for (char &c : code)
            c = static_cast<char>(1 + random() % 255);
        return code == "!" ? "?" : code;
    };
    std::set<std::string> codes;
    for (int i = 0; i < 20000; ++i) {
        const std::string code = make();
        codes.insert(code);
        Add({code.c_str()});
    }
    for (int i = 0; i < 20000; ++i) {
        const std::string code = make();
        ASSERT_EQ(m_tree.IsCompleteCode(code.c_str(), true), codes.count(code) == 1) << i;
    }
    for (const std::string &code : codes)
        ASSERT_TRUE(m_tree.IsCompleteCode(code.c_str(), true));
    EXPECT_EQ(m_tree.GetChildCount(), 255u);
}

} // namespace
