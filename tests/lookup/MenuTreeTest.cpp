#include "LookupTestSupport.h"

#include <gtest/gtest.h>

namespace {

class MenuTreeTest : public testing::Test {
protected:
    CMenuTree *Insert(CMenuTree &parent, const char *code, const char *description = "", bool bCaseSensitive = true) {
        return parent.InsertChild(code, description, m_order++, bCaseSensitive);
    }

    BoxApp m_app;
    CMenuTree m_root;
    int m_order = 0;
};

TEST_F(MenuTreeTest, ANewTreeIsEmpty) {
    EXPECT_EQ(m_root.GetChildCount(), 0);
    EXPECT_FALSE(m_root.HasChildren());
    EXPECT_EQ(m_root.m_nSourceOrder, -1);
    EXPECT_EQ(m_root.m_nSharedIndex, -1);
    EXPECT_EQ(m_root.GetChild(0), nullptr);
    EXPECT_EQ(m_root.GetNextChild(), nullptr);
    EXPECT_EQ(m_root.FindChild("A", true), -1);
    EXPECT_EQ(m_root.GetHeldBytes(), 0u);
}

TEST_F(MenuTreeTest, ChildrenAreSortedAndRememberTheirSource) {
    for (const char *code : {"M", "C", "X", "A", "N", "Z", "B"})
        Insert(m_root, code);
    EXPECT_EQ(Outline(m_root, true), "A:3 B:6 C:1 M:0 N:4 X:2 Z:5");
    EXPECT_EQ(m_root.GetChild(0)->GetParent(), &m_root);
    EXPECT_EQ(m_root.GetChild(-1), nullptr);
    EXPECT_EQ(m_root.GetChild(7), nullptr);
}

TEST_F(MenuTreeTest, FindChildGivesThePlaceOrTheInsertionPoint) {
    for (const char *code : {"B", "D", "F"})
        Insert(m_root, code);
    EXPECT_EQ(m_root.FindChild("A", true), 0);
    EXPECT_EQ(m_root.FindChild("B", true), 0);
    EXPECT_EQ(m_root.FindChild("C", true), 1);
    EXPECT_EQ(m_root.FindChild("D", true), 1);
    EXPECT_EQ(m_root.FindChild("E", true), 2);
    EXPECT_EQ(m_root.FindChild("F", true), 2);
    EXPECT_EQ(m_root.FindChild("G", true), 3);
}

TEST_F(MenuTreeTest, TheSearchProbesTheLowerMiddleOfAnEvenRange) {
    for (int i = 0; i < 4; ++i)
        Insert(m_root, "A");
    EXPECT_EQ(m_root.FindChild("A", true), 1);
    // Each new one went in front of the equal that its search met.
    EXPECT_EQ(Outline(m_root, true), "A:2 A:3 A:1 A:0");
}

TEST_F(MenuTreeTest, TwoEqualCodesAreBothKept) {
    Insert(m_root, "A", "first");
    Insert(m_root, "A", "second");
    EXPECT_EQ(Outline(m_root, true), "A:1 A:0");
}

TEST_F(MenuTreeTest, CaseCountsOnlyInACaseSensitiveTree) {
    Insert(m_root, "b");
    Insert(m_root, "A");
    Insert(m_root, "B");
    EXPECT_EQ(Outline(m_root), "A B b");
    CMenuTree folded;
    Insert(folded, "b", "", false);
    Insert(folded, "a", "", false);
    Insert(folded, "AB", "", false);
    Insert(folded, "ab", "", false);
    EXPECT_EQ(Outline(folded), "a ab AB b");
    EXPECT_EQ(folded.FindChild("B", false), 3);
}

TEST_F(MenuTreeTest, BytesAboveAsciiStandBehindIt) {
    Insert(m_root, "\xE9");
    Insert(m_root, "z");
    EXPECT_EQ(Outline(m_root), "z \xE9");
}

TEST_F(MenuTreeTest, ACodeThatBeginsWithAnExclamationMarkHasNoDisplayCode) {
    CMenuTree *none = Insert(m_root, "!none", "nothing");
    EXPECT_STREQ(none->m_sCode, "!none");
    EXPECT_STREQ(none->GetCode(), "");
    EXPECT_EQ(Widths(m_root), "0,7,7");
    // It sorts in front of a blank, which stands before '!'.
    Insert(m_root, " ");
    EXPECT_EQ(Outline(m_root), "!none  ");
    EXPECT_EQ(m_root.FindChild("!other", true), 0);
}

TEST_F(MenuTreeTest, TheDisplayCodeIsTheCodeUnlessItBeginsWithAnExclamationMark) {
    EXPECT_STREQ(CMenuTree::DisplayCode("AB!"), "AB!");
    EXPECT_STREQ(CMenuTree::DisplayCode("!AB"), "");
    EXPECT_STREQ(CMenuTree::DisplayCode(""), "");
    EXPECT_EQ(Insert(m_root, "AB!")->GetCodeLength(), 3);
    EXPECT_EQ(Insert(m_root, "!AB")->GetCodeLength(), 0);
}

TEST_F(MenuTreeTest, AListIsMadeOfPartsInTheOrderThatTheyCome) {
    CMenuList *list = m_root.NewList();
    EXPECT_EQ(list->FindCode("A", true), -1);
    for (const char *code : {"B", "D"}) {
        CMenuTree *node = m_root.AppendNew(list);
        node->SetCode(code, 1);
        node->SetDescription("text and more", 4);
        EXPECT_STREQ(node->m_sCode, code);
        EXPECT_STREQ(node->m_sDescription, "text");
    }
    CTreePool pool;
    CMenuTree *first = m_root.NewNode("A", "", 0);
    list->Reserve(pool, 3);
    list->InsertAt(pool, 0, first);
    EXPECT_EQ(list->GetAt(0), first);
    bool found = false;
    EXPECT_EQ(list->FindCode("D", true, &found), 2);
    EXPECT_TRUE(found);
    EXPECT_EQ(list->FindCode("C", true, &found), 2);
    EXPECT_FALSE(found);
}

TEST_F(MenuTreeTest, WidthsAreTheLongestOfTheChildren) {
    Insert(m_root, "AAAA", "x");
    Insert(m_root, "B", "long one");
    Insert(m_root, "CC", "seven..");
    EXPECT_EQ(Widths(m_root), "4,8,9");
    Insert(*m_root.GetChild(0), "12345", "");
    EXPECT_EQ(Widths(m_root), "4,8,9");
    EXPECT_EQ(Widths(*m_root.GetChild(0)), "5,0,5");
}

TEST_F(MenuTreeTest, TheIteratorGoesOnceThrough) {
    Insert(m_root, "A");
    Insert(m_root, "B");
    EXPECT_STREQ(m_root.GetNextChild()->GetCode(), "A");
    EXPECT_STREQ(m_root.GetNextChild()->GetCode(), "B");
    EXPECT_EQ(m_root.GetNextChild(), nullptr);
    EXPECT_EQ(m_root.GetNextChild(), nullptr);
    m_root.ResetIterator();
    EXPECT_STREQ(m_root.GetNextChild()->GetCode(), "A");
}

TEST_F(MenuTreeTest, FindPathGoesDownTheCodes) {
    CMenuTree *a = Insert(m_root, "A");
    CMenuTree *one = Insert(*a, "1");
    CStringArray codes;
    EXPECT_EQ(m_root.FindPath(codes, true), &m_root);
    Fill(codes, {"A"});
    EXPECT_EQ(m_root.FindPath(codes, true), a);
    Fill(codes, {"a", "1"});
    EXPECT_EQ(m_root.FindPath(codes, true), nullptr);
    EXPECT_EQ(m_root.FindPath(codes, false), one);
    Fill(codes, {"A", "2"});
    EXPECT_EQ(m_root.FindPath(codes, true), nullptr);
    Fill(codes, {"A", "1", "x"});
    EXPECT_EQ(m_root.FindPath(codes, true), nullptr);
}

TEST_F(MenuTreeTest, TheFullCodeLeavesOutNoCode) {
    CMenuTree *none = Insert(*Insert(m_root, "AB"), "!");
    CMenuTree *leaf = Insert(*none, "12");
    Insert(*none, "!x");
    CString text = ">";
    leaf->GetFullCode(text);
    EXPECT_STREQ(text, ">AB12");
    text.Empty();
    none->GetFullCode(text, 0);
    EXPECT_STREQ(text, "AB"); // the child "!x" adds nothing
    text.Empty();
    none->GetFullCode(text, 1);
    EXPECT_STREQ(text, "AB12");
    text.Empty();
    none->GetFullCode(text, 2);
    EXPECT_STREQ(text, "AB");
    text.Empty();
    m_root.GetFullCode(text, 0);
    EXPECT_STREQ(text, "AB");
}

// Only the code "!" itself stands for none; one that begins so has no display code, and yet is part of what is below it.
TEST_F(MenuTreeTest, TheFullCodeHasCodesThatOnlyBeginWithAnExclamationMark) {
    CMenuTree *begins = Insert(*Insert(m_root, "AB"), "!x");
    CMenuTree *leaf = Insert(*begins, "12");
    CString text;
    leaf->GetFullCode(text);
    EXPECT_STREQ(text, "AB!x12");
    text.Empty();
    begins->GetFullCode(text, 0);
    EXPECT_STREQ(text, "AB!x12");
}

TEST_F(MenuTreeTest, CollectPathsGoesDownToEachLeafWithTheRawCodes) {
    CMenuTree *a = Insert(m_root, "A");
    Insert(*a, "2");
    Insert(*Insert(*a, "!"), "x");
    CArray<CStringArrayEx> paths;
    a->CollectPaths(CStringArrayEx(), paths);
    ASSERT_EQ(paths.GetSize(), 2);
    EXPECT_EQ(Joined(paths[0]), "A|!|x");
    EXPECT_EQ(Joined(paths[1]), "A|2");
    CStringArrayEx above;
    Fill(above, {"up"});
    paths.RemoveAll();
    a->GetChild(1)->CollectPaths(above, paths);
    ASSERT_EQ(paths.GetSize(), 1);
    EXPECT_EQ(Joined(paths[0]), "up|2");
}

class SharedMenuTreeTest : public MenuTreeTest {
protected:
    CMenuList *List(std::initializer_list<const char *> codes, CMenuList *below, int belowIndex) {
        CMenuList *list = m_root.NewList();
        for (const char *code : codes) {
            CMenuTree *node = m_root.NewNode(code, "dd", 0);
            node->m_bShared = true;
            if (below != nullptr)
                node->SetSharedChildren(below, belowIndex);
            m_root.AddToList(list, node, true);
        }
        return list;
    }
    void Build() {
        CMenuList *last = List({"333", "1"}, nullptr, -1);
        const int lastIndex = m_root.AddSharedList(last);
        CMenuList *top = List({"B", "A"}, last, lastIndex);
        m_root.SetSharedChildren(top, m_root.AddSharedList(top));
    }
};

TEST_F(SharedMenuTreeTest, NodesShareTheListOfTheNextLevel) {
    Build();
    EXPECT_EQ(Outline(m_root), "A(1 333) B(1 333)");
    EXPECT_EQ(m_root.GetSharedListCount(), 2);
    EXPECT_EQ(m_root.GetChild(0)->GetChild(1), m_root.GetChild(1)->GetChild(1));
    EXPECT_EQ(m_root.GetChild(0)->m_nSharedIndex, 0);
    EXPECT_EQ(m_root.m_nSharedIndex, 1);
    EXPECT_EQ(m_root.GetChild(0)->GetParent(), nullptr);
}

TEST_F(SharedMenuTreeTest, MorePathsThanMemoryHoldsAreNotGathered) {
    CMenuList *below = nullptr;
    int index = -1;
    for (int level = 0; level < 60; ++level) {
        below = List({"A", "B"}, below, index);
        index = m_root.AddSharedList(below);
    }
    m_root.SetSharedChildren(below, index);
    CArray<CStringArrayEx> paths;
    EXPECT_THROW(m_root.CollectPaths(CStringArrayEx(), paths), CMemoryException *);
    EXPECT_EQ(0, paths.GetSize());
}

TEST_F(SharedMenuTreeTest, ANodeHasTheWidthsOfItsListAndTheRootThoseOfAll) {
    Build();
    EXPECT_EQ(Widths(*m_root.GetChild(0)), "3,2,5");
    EXPECT_EQ(Widths(m_root), "3,2,5");
    EXPECT_EQ(Widths(*m_root.GetChild(0)->GetChild(0)), "0,0,0");
}

TEST_F(SharedMenuTreeTest, ANodeWithSharedChildrenRefusesAnother) {
    Build();
    EXPECT_EQ(Insert(*m_root.GetChild(0), "2"), nullptr);
    EXPECT_EQ(Outline(m_root), "A(1 333) B(1 333)");
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(SharedMenuTreeTest, ClearFreesTheListsOnlyWhenAskedTo) {
    Build();
    m_root.Clear(false);
    EXPECT_FALSE(m_root.HasChildren());
    EXPECT_EQ(Widths(m_root), "0,0,0");
    EXPECT_EQ(m_root.GetSharedListCount(), 2);
    m_root.Clear(true);
    EXPECT_EQ(m_root.GetSharedListCount(), 0);
    EXPECT_EQ(m_root.GetHeldBytes(), 0u);
}

TEST_F(MenuTreeTest, ClearEmptiesATreeThatCanBeFilledAgain) {
    Insert(*Insert(m_root, "A"), "B");
    m_root.GetNextChild();
    m_root.Clear(true);
    EXPECT_EQ(Outline(m_root), "");
    EXPECT_EQ(m_root.m_nIterator, -1);
    EXPECT_EQ(m_root.GetHeldBytes(), 0u);
    Insert(m_root, "C");
    EXPECT_EQ(Outline(m_root), "C");
}

TEST_F(MenuTreeTest, LongTextsAreKeptWhole) {
    const std::string code(300, 'c'), description(70000, 'd');
    Insert(m_root, code.c_str(), description.c_str());
    EXPECT_EQ(m_root.GetChild(0)->m_sCode.GetLength(), 300);
    EXPECT_EQ(std::string(m_root.GetChild(0)->m_sCode), code);
    EXPECT_EQ(std::string(m_root.GetChild(0)->m_sDescription), description);
    EXPECT_EQ(Widths(m_root), "300,70000,70300");
}

TEST_F(MenuTreeTest, ManyChildrenInAnyOrderAreSorted) {
    for (int i = 0; i < 5000; ++i)
        Insert(m_root, std::to_string(10000 + i * 7919 % 5000).c_str());
    for (int i = 0; i < 5000; ++i)
        ASSERT_STREQ(m_root.GetChild(i)->GetCode(), std::to_string(10000 + i).c_str());
}

} // namespace
