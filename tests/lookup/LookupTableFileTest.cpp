#include "LookupExamples.h"
#include "LookupHost.h"
#include "LookupTestSupport.h"
#include "TempFiles.h"

#include <gtest/gtest.h>

namespace {

constexpr const char *kOtherVersion =
    "The lookup table was produced by different version of software!\nRecompile the lookup table.";
constexpr const char *kBad = "Error reading lookup table!";

class LookupTableFileTest : public testing::Test {
protected:
    // "" on success, else the text.
    std::string Load(const std::string &bytes) { return LoadPath(m_files.Make("t.lbn", bytes)); }
    std::string LoadPath(const std::string &path) {
        CString text;
        const bool loaded = m_table.SerializeFile(path.c_str(), text, false);
        EXPECT_EQ(loaded, text.IsEmpty() != 0);
        return std::string(text);
    }
    std::string Stored() {
        const std::string path = m_files.Path("stored.lbn");
        CString text;
        EXPECT_TRUE(m_table.SerializeFile(path.c_str(), text, true)) << text;
        return Hex(TempFiles::Read(path));
    }
    std::string Properties() const {
        return std::string(m_table.m_bCaseSensitive ? "case " : "") + (m_table.m_bAcceptEmptyCells ? "empty " : "") +
               (m_table.m_bEnableValidation ? "validate " : "") + (m_table.m_bSortMenuItems ? "sort" : "");
    }
    void BuildPlain() {
        CMenuTree *alpha = m_table.m_MenuTree.InsertChild("A", "Alpha", 0, true);
        alpha->InsertChild("1", "one", 0, true);
        alpha->InsertChild("2", "two", 1, true);
        AddCodes();
    }
    void BuildShared() {
        CMenuTree &root = m_table.m_MenuTree;
        root.m_bShared = true;
        CMenuList *last = root.NewList();
        root.AddToList(last, root.NewNode("1", "one", 0), true);
        root.AddToList(last, root.NewNode("2", "two", 1), true);
        const int index = root.AddSharedList(last);
        CMenuList *top = root.NewList();
        CMenuTree *alpha = root.NewNode("A", "Alpha", 0);
        alpha->SetSharedChildren(last, index);
        root.AddToList(top, alpha, true);
        root.SetSharedChildren(top, root.AddSharedList(top));
        AddCodes();
    }
    void AddCodes() {
        CStringArray codes;
        for (const char *last : {"1", "2"}) {
            Fill(codes, {"A", last});
            m_table.m_LookupTree.AddCode(true, codes, 0, 0);
        }
    }

    BoxApp m_app;
    LookupHost m_host;
    TempFiles m_files{"lookup"};
    CLookupTableFile m_table;
};

TEST_F(LookupTableFileTest, ANewTable) {
    EXPECT_EQ(Properties(), "case empty validate sort");
    EXPECT_EQ(m_table.m_LastTime, -1);
    EXPECT_EQ(m_table.GetMenuForCode(nullptr), &m_table.m_MenuTree);
}

TEST_F(LookupTableFileTest, WritesThePlainForm) {
    BuildPlain();
    EXPECT_EQ(Stored(), Hex(PlainExample()));
}

TEST_F(LookupTableFileTest, WritesTheSharedForm) {
    BuildShared();
    EXPECT_EQ(Stored(), Hex(SharedExample()));
}

TEST_F(LookupTableFileTest, ReadsThePlainForm) {
    EXPECT_EQ(Load(PlainExample()), "");
    EXPECT_EQ(Properties(), "case empty validate sort");
    EXPECT_EQ(Outline(m_table.m_MenuTree, true), "A:0(1:0 2:1)");
    EXPECT_EQ(Widths(m_table.m_MenuTree), "1,5,6");
    EXPECT_FALSE(m_table.m_MenuTree.m_bShared);
    EXPECT_EQ(m_table.m_MenuTree.GetChild(0)->GetParent(), &m_table.m_MenuTree);
    EXPECT_EQ(TrieText(m_table.m_LookupTree), "A{A}(1*{A|1} 2*{A|2})");
    EXPECT_EQ(Stored(), Hex(PlainExample()));
}

TEST_F(LookupTableFileTest, ReadsTheSharedForm) {
    EXPECT_EQ(Load(SharedExample()), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree, true), "A:0(1:0 2:1)");
    EXPECT_TRUE(m_table.m_MenuTree.m_bShared);
    EXPECT_TRUE(m_table.m_MenuTree.GetChild(0)->m_bShared);
    EXPECT_EQ(m_table.m_MenuTree.GetSharedListCount(), 2);
    EXPECT_EQ(m_table.m_MenuTree.GetChild(0)->m_pChildren, m_table.m_MenuTree.GetSharedList(0));
    EXPECT_EQ(Stored(), Hex(SharedExample()));
}

TEST_F(LookupTableFileTest, PropertiesAreStrings) {
    m_table.m_bCaseSensitive = false;
    m_table.m_bEnableValidation = false;
    EXPECT_EQ(Stored(), "04 00 00 00 04 00 01 30 01 31 01 30 01 31 00 00 02 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                        "00 00 00 00 00 00 00 00 ff ff ff ff 00 00 00 00");
}

TEST_F(LookupTableFileTest, ATableWithoutValidationHasNoTrie) {
    BuildPlain();
    m_table.m_bEnableValidation = false;
    const size_t length = PlainExample().size() - ExampleTrie().size();
    EXPECT_EQ(Stored().size(), 3 * length - 1);
    EXPECT_EQ(LoadPath(m_files.Path("stored.lbn")), "");
    EXPECT_EQ(Properties(), "case empty sort");
    EXPECT_EQ(m_table.m_LookupTree.GetChildCount(), 0u);
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
}

TEST_F(LookupTableFileTest, AFileWithTwoPropertiesReadsTheOthersAsTrue) {
    m_table.m_bEnableValidation = m_table.m_bSortMenuItems = false;
    std::string bytes = PlainExample();
    bytes.replace(4, 10, Bytes("02 00 01 30 01 30"));
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Properties(), "validate sort");
    EXPECT_TRUE(m_table.IsValidCode("A1"));
}

TEST_F(LookupTableFileTest, AnEmptyPropertyKeepsTheValueAndOthersThanOneAreFalse) {
    m_table.m_bAcceptEmptyCells = false;
    std::string bytes = PlainExample();
    bytes.replace(4, 10, Bytes("06 00 02 31 31 00 01 31 01 32 00 03 61 62 63"));
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Properties(), "validate ");
}

TEST_F(LookupTableFileTest, ReservedNumbersAreDropped) {
    std::string bytes = PlainExample();
    bytes.replace(14, 2, Bytes("02 00 01 00 00 00 02 00 00 00"));
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
    EXPECT_EQ(Stored(), Hex(PlainExample()));
}

TEST_F(LookupTableFileTest, AnotherFileVersionIsRefused) {
    for (char version : {3, 5, 0}) {
        std::string bytes = PlainExample();
        bytes[0] = version;
        m_host.m_waits.clear();
        EXPECT_EQ(Load(bytes), kOtherVersion);
        EXPECT_EQ(m_host.m_waits, "-1");
    }
}

TEST_F(LookupTableFileTest, AMenuVersionOfThreeIsRefusedInTheSameWords) {
    std::string bytes = PlainExample();
    bytes[16] = 3;
    EXPECT_EQ(Load(bytes), kOtherVersion);
}

TEST_F(LookupTableFileTest, AMenuOfVersionOneIsPlainWithoutSayingSo) {
    std::string bytes = PlainExample();
    bytes.replace(16, 8, Bytes("01 00 00 00"));
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
    EXPECT_EQ(Stored(), Hex(PlainExample()));
}

TEST_F(LookupTableFileTest, AnyNumberAboveZeroMeansSharedLists) {
    std::string bytes = SharedExample();
    bytes[20] = 7;
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Stored(), Hex(SharedExample()));
    bytes = PlainExample();
    bytes.replace(20, 4, Bytes("FF FF FF FF"));
    EXPECT_EQ(Load(bytes), "");
}

TEST_F(LookupTableFileTest, WideStringsComeBackInTheSingleByteForm) {
    std::string bytes = PlainExample();
    const size_t alpha = bytes.find("\x05" "Alpha");
    bytes.replace(alpha, 6, Bytes("FF FE FF 05 41 00 6C 00 70 00 68 00 61 00"));
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Stored(), Hex(PlainExample()));
}

TEST_F(LookupTableFileTest, NullsInTextsArePreserved) {
    std::string bytes = PlainExample();
    bytes[bytes.find("Alpha") + 2] = '\0';
    EXPECT_EQ(Load(bytes), "");
    EXPECT_EQ(Stored(), Hex(bytes));
}

TEST_F(LookupTableFileTest, CharactersAboveAsciiAreSignExtended) {
    CStringArray codes;
    Fill(codes, {"\xE9"});
    m_table.m_LookupTree.AddCode(true, codes, 0, 0);
    const std::string bytes = Stored();
    EXPECT_NE(bytes.find("03 e9 ff 01 00 01 e9 00 00 00 00"), std::string::npos) << bytes;
    EXPECT_EQ(LoadPath(m_files.Path("stored.lbn")), "");
    EXPECT_TRUE(m_table.IsValidCode("\xE9"));
}

TEST_F(LookupTableFileTest, AnEmptyFileIsLeftInPlace) {
    const std::string path = m_files.Make("t.lbn", "");
    EXPECT_EQ(LoadPath(path), "The file '" + path + "' is empty!");
    EXPECT_TRUE(TempFiles::Exists(path));
    EXPECT_EQ(m_host.m_waits, "");
}

TEST_F(LookupTableFileTest, AMissingFileIsNotCreated) {
    const std::string path = m_files.Path("none.lbn");
    EXPECT_EQ(LoadPath(path), "The file '" + path + "' does not exist!");
    EXPECT_FALSE(TempFiles::Exists(path));
}

TEST_F(LookupTableFileTest, AFileThatCannotBeOpenedLeavesTheTableAsItWas) {
    BuildPlain();
    EXPECT_NE(LoadPath(m_files.Path("none.lbn")), "");
    EXPECT_NE(LoadPath(m_files.Path("")), "");
    EXPECT_NE(Load(""), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
    EXPECT_TRUE(m_table.IsValidCode("A1"));
}

TEST_F(LookupTableFileTest, AFolderCannotBeOpened) {
    const std::string path = m_files.Path("");
    CString text;
    EXPECT_FALSE(m_table.SerializeFile(path.c_str(), text, true));
    EXPECT_STREQ(text, ("Could not open file '" + path + "'!").c_str());
}

TEST_F(LookupTableFileTest, ALargerOldFileKeepsItsTail) {
    const std::string path = m_files.Make("stored.lbn", std::string(500, 'x'));
    BuildPlain();
    const std::string example = PlainExample();
    EXPECT_EQ(Stored(), Hex(example + std::string(500 - example.size(), 'x')));
    EXPECT_EQ(LoadPath(path), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
}

TEST_F(LookupTableFileTest, ALoadReplacesBothTrees) {
    BuildPlain();
    m_table.m_MenuTree.InsertChild("Z", "", 1, true);
    EXPECT_EQ(Load(SharedExample()), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
    EXPECT_EQ(Load(PlainExample()), "");
    EXPECT_FALSE(m_table.m_MenuTree.m_bShared);
    EXPECT_EQ(m_table.m_MenuTree.GetSharedListCount(), 0);
}

TEST_F(LookupTableFileTest, CodesAreValidatedAsTheTableSays) {
    EXPECT_EQ(Load(PlainExample()), "");
    EXPECT_TRUE(m_table.IsValidCode("A1"));
    EXPECT_FALSE(m_table.IsValidCode("A"));
    EXPECT_FALSE(m_table.IsValidCode("a1"));
    EXPECT_TRUE(m_table.IsValidPartialCode("A"));
    EXPECT_TRUE(m_table.IsValidPartialCode(""));
    EXPECT_TRUE(m_table.IsValidCode(nullptr));
    EXPECT_FALSE(m_table.IsValidPartialCode("B"));
    m_table.m_bCaseSensitive = false;
    EXPECT_TRUE(m_table.IsValidCode("a1"));
}

TEST_F(LookupTableFileTest, TheMenuOfACodeIsTheNodeOfItsLevelsElseTheRoot) {
    EXPECT_EQ(Load(PlainExample()), "");
    CMenuTree &root = m_table.m_MenuTree;
    EXPECT_EQ(m_table.GetMenuForCode("A"), root.GetChild(0));
    EXPECT_EQ(m_table.GetMenuForCode("A2"), root.GetChild(0)->GetChild(1));
    EXPECT_EQ(m_table.GetMenuForCode("A3"), &root);
    EXPECT_EQ(m_table.GetMenuForCode(""), &root);
    EXPECT_EQ(m_table.GetMenuForCode("x"), &root);
    // A list whose codes the menu does not know.
    CStringArray codes;
    Fill(codes, {"B"});
    m_table.m_LookupTree.AddCode(true, codes, 0, 0);
    EXPECT_EQ(m_table.GetMenuForCode("B"), &root);
}

class LookupReloadTest : public LookupTableFileTest {
protected:
    void SetUp() override {
        m_path = m_files.Make("t.lbn", PlainExample());
        ASSERT_EQ(LoadPath(m_path), "");
    }
    bool Check() { return m_table.CheckForModification(m_path.c_str()); }
    std::string Question() const {
        return "The lookup table '" + m_path + "' has been modified.\n\nWould you like to reload it?|36";
    }
    std::string m_path;
};

TEST_F(LookupReloadTest, AnUnchangedOrOlderFileIsNotNoticed) {
    EXPECT_TRUE(Check());
    TempFiles::Age(m_path, -100);
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(LookupReloadTest, WithoutATimeOrAFileThereIsNoQuestion) {
    TempFiles::Age(m_path, 100);
    m_table.m_LastTime = -1;
    EXPECT_TRUE(Check());
    m_table.m_LastTime = 0;
    EXPECT_TRUE(m_table.CheckForModification(m_files.Path("none.lbn").c_str()));
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(LookupReloadTest, YesReloads) {
    std::string bytes = PlainExample();
    bytes[bytes.find("Alpha") - 2] = 'B'; // the menu's code
    m_files.Make("t.lbn", bytes);
    TempFiles::Age(m_path, 100);
    m_app.m_answers = {IDYES};
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), Question());
    EXPECT_EQ(Outline(m_table.m_MenuTree), "B(1 2)");
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(LookupReloadTest, NoKeepsTheOldContentUntilTheFileChangesAgain) {
    TempFiles::Age(m_path, 100);
    m_app.m_answers = {IDNO};
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), Question());
    EXPECT_EQ(Outline(m_table.m_MenuTree), "A(1 2)");
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), "");
    TempFiles::Age(m_path, 1);
    m_app.m_answers = {IDNO};
    EXPECT_TRUE(Check());
    EXPECT_EQ(m_app.Take(), Question());
}

TEST_F(LookupReloadTest, AFailedReloadIsToldAndFalse) {
    m_files.Make("t.lbn", "xxxxx");
    TempFiles::Age(m_path, 100);
    m_app.m_answers = {IDYES};
    EXPECT_FALSE(Check());
    EXPECT_EQ(m_app.Take(), Question() + "\n" + kOtherVersion + "|16");
}

TEST_F(LookupReloadTest, StoringRemembersTheClock) {
    const LONGLONG before = CTime::GetCurrentTime().GetTime();
    Stored();
    EXPECT_GE(m_table.m_LastTime, before);
    EXPECT_LE(m_table.m_LastTime, CTime::GetCurrentTime().GetTime());
}

// Damage.

TEST_F(LookupTableFileTest, AFileCutAnywhereIsRefused) {
    for (const std::string &whole : {PlainExample(), SharedExample()}) {
        for (size_t length = 1; length < whole.size(); ++length) {
            m_host.m_waits.clear();
            ASSERT_EQ(Load(whole.substr(0, length)), kBad) << length;
            ASSERT_EQ(m_host.m_waits, "-1");
            ASSERT_FALSE(m_table.m_MenuTree.HasChildren());
            ASSERT_EQ(m_table.m_LookupTree.GetChildCount(), 0u);
        }
    }
}

std::string Long(int value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(static_cast<unsigned>(value) >> shift);
    return bytes;
}

std::string SharedNode(int index) {
    return Long(index) + std::string(2, '\0') + std::string(16, '\0');
}

std::string SharedFile(const std::string &lists) {
    return ExampleFront() + Bytes("02 00 00 00 01 00 00 00") + lists + ExampleTrie();
}

TEST_F(LookupTableFileTest, AListIndexPastTheTableIsDamage) {
    EXPECT_EQ(Load(SharedFile(Long(0) + SharedNode(0))), kBad);
    EXPECT_EQ(Load(SharedFile(Long(1) + Long(0) + SharedNode(1))), kBad);
    EXPECT_EQ(Load(SharedFile(Long(1) + Long(0) + SharedNode(0))), "");
}

TEST_F(LookupTableFileTest, ListsThatContainEachOtherAreDamage) {
    EXPECT_EQ(Load(SharedFile(Long(1) + Long(1) + SharedNode(0) + SharedNode(-1))), kBad);
    EXPECT_EQ(Load(SharedFile(Long(2) + Long(1) + Long(1) + SharedNode(1) + SharedNode(0) + SharedNode(1))), kBad);
    // Any order without a circle is none.
    EXPECT_EQ(Load(SharedFile(Long(2) + Long(1) + Long(1) + SharedNode(1) + SharedNode(-1) + SharedNode(0))), "");
    EXPECT_EQ(Outline(m_table.m_MenuTree), "()");
}

TEST_F(LookupTableFileTest, CountsBelowZeroAreNone) {
    EXPECT_EQ(Load(SharedFile(Long(-1) + SharedNode(-5))), "");
    EXPECT_EQ(m_table.m_MenuTree.m_nSharedIndex, -1);
    EXPECT_EQ(Load(SharedFile(Long(1) + Long(-7) + SharedNode(0))), "");
    std::string bytes = PlainExample();
    bytes.replace(bytes.size() - 4, 4, Long(-1));
    EXPECT_EQ(Load(bytes), "");
    bytes = ExampleFront() + Bytes("02 00 00 00 00 00 00 00") + std::string(18, '\0') + Long(-2) + ExampleTrie();
    EXPECT_EQ(Load(bytes), "");
    EXPECT_FALSE(m_table.m_MenuTree.HasChildren());
}

TEST_F(LookupTableFileTest, CountsThatTheFileCannotHoldAreDamage) {
    const std::string front = ExampleFront();
    EXPECT_EQ(Load(SharedFile(Long(0x7FFFFFFF))), kBad);
    EXPECT_EQ(Load(SharedFile(Long(1) + Long(0x7FFFFFFF))), kBad);
    EXPECT_EQ(Load(SharedFile(Long(3) + Long(0x60000000) + Long(0x60000000) + Long(0x60000000))), kBad);
    EXPECT_EQ(Load(front + Bytes("02 00 00 00 00 00 00 00") + std::string(18, '\0') + Long(0x7FFFFFFF)), kBad);
    EXPECT_EQ(Load(Bytes("04 00 00 00 FF FF FF FF FF 7F")), kBad);
    EXPECT_EQ(Load(Bytes("04 00 00 00 04 00 FF FF FF FF FF FF 7F")), kBad);
    EXPECT_EQ(Load(Bytes("04 00 00 00 00 00 FF FF FF FF FF 7F")), kBad);
    // In the trie: level codes, and children.
    const std::string menu = front + Bytes("02 00 00 00 00 00 00 00") + std::string(22, '\0');
    EXPECT_EQ(Load(menu + Bytes("01 00 00 FF FF FF FF FF 7F")), kBad);
    EXPECT_EQ(Load(menu + Bytes("01 00 00 00 00 FF FF FF 7F")), kBad);
}

TEST_F(LookupTableFileTest, ANodeHasAChildForEachCharacterAtMost) {
    const auto bytes = [](int children) {
        std::string trie = Bytes("01 00 00 00 00") + Long(children);
        for (int i = 0; i < children; ++i)
            trie += std::string{3, static_cast<char>(i), 0} + std::string(6, '\0');
        return ExampleFront() + Bytes("02 00 00 00 00 00 00 00") + std::string(22, '\0') + trie;
    };
    EXPECT_EQ(Load(bytes(256)), "");
    EXPECT_EQ(m_table.m_LookupTree.GetChildCount(), 256u);
    EXPECT_TRUE(m_table.IsValidCode("\x01"));
    EXPECT_TRUE(m_table.IsValidCode("\xFF"));
    EXPECT_EQ(Load(bytes(257)), kBad);
}

// Nesting is as deep as the file is long: nothing here may stand on the stack.
TEST_F(LookupTableFileTest, DeepNestingIsReadAndWritten) {
    constexpr int kDeep = 200000;
    const std::string front = ExampleFront() + Bytes("02 00 00 00 00 00 00 00");
    const std::string node = std::string(18, '\0') + Long(1);
    std::string menu;
    for (int i = 0; i < kDeep; ++i)
        menu += node;
    menu += std::string(22, '\0');
    std::string trie;
    for (int i = 0; i < kDeep; ++i)
        trie += Bytes("01 41 00 00 00") + Long(1);
    trie += Bytes("03 41 00 00 00 00 00 00 00");
    const std::string bytes = front + menu + trie;
    EXPECT_EQ(Load(bytes), "");
    CMenuTree *deepest = &m_table.m_MenuTree;
    while (deepest->HasChildren())
        deepest = deepest->GetChild(0);
    CString text;
    deepest->GetFullCode(text);
    EXPECT_STREQ(text, "");
    EXPECT_TRUE(m_table.IsValidCode(std::string(kDeep, 'A').c_str()));
    CArray<CStringArrayEx> paths;
    m_table.m_MenuTree.CollectPaths(CStringArrayEx(), paths);
    ASSERT_EQ(paths.GetSize(), 1);
    EXPECT_EQ(paths[0].GetSize(), kDeep + 1);
    CString error;
    const std::string path = m_files.Path("deep.lbn");
    EXPECT_TRUE(m_table.SerializeFile(path.c_str(), error, true));
    EXPECT_TRUE(TempFiles::Read(path) == bytes);
    // Many counts, one in the other, each of all that is left.
    std::string greedy = front;
    for (int i = 0; i < 1000; ++i)
        greedy += std::string(18, '\0') + Long(22 * (1000 - i) / 22);
    EXPECT_EQ(Load(greedy), kBad);
}

} // namespace
