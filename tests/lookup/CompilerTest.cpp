// What both ways of compiling have in common: sources, questions, the file.
#include "CompilerTest.h"

#include "LookupExamples.h"

namespace {

TEST_F(CompilerTest, WithoutASource) {
    EXPECT_EQ(Compile(), "(-1,-1) No data source attached!");
}

TEST_F(CompilerTest, AttachAsksForThePathAndDetachForgetsIt) {
    Open(2, {{"A", "a"}});
    EXPECT_TRUE(m_compiler.m_bAttached);
    EXPECT_STREQ(m_compiler.m_sSourcePath, m_files.Path("table.dat").c_str());
    m_compiler.DetachDataSource();
    EXPECT_FALSE(m_compiler.m_bAttached);
    EXPECT_EQ(m_compiler.m_pDataSource, nullptr);
    EXPECT_STREQ(m_compiler.m_sSourcePath, "");
    m_compiler.DetachDataSource();
    EXPECT_EQ(Compile(), "(-1,-1) No data source attached!");
}

// Else its table would be written over that of the source before.
TEST_F(CompilerTest, ASourceThatTellsNoPathDoesNotGetTheLastOnes) {
    Open(2, {{"A", "a"}});
    CUGDataSource other;
    m_compiler.AttachDataSource(&other);
    EXPECT_STREQ(m_compiler.m_sSourcePath, "");
    m_compiler.DetachDataSource();
}

TEST_F(CompilerTest, TheFirstChecksAreToBeHadAlone) {
    CString text;
    EXPECT_FALSE(m_compiler.CheckDataSource(text));
    EXPECT_STREQ(text, "No data source attached!");
    Open(2, {});
    EXPECT_FALSE(m_compiler.CheckDataSource(text));
    EXPECT_STREQ(text, "File has no data!");
    Open(2, {{"A", "a"}});
    EXPECT_TRUE(m_compiler.CheckDataSource(text));
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(CompilerTest, AFileWithoutFieldsOrRecords) {
    EXPECT_EQ(Compile(0, {{}}), "(-1,-1) File has no data!");
    EXPECT_EQ(Compile(2, {}), "(-1,-1) File has no data!");
    EXPECT_EQ(m_app.Take(), "");
    EXPECT_EQ(m_host.m_propertyQuestions, 0);
}

TEST_F(CompilerTest, AFileOfOneFieldIsRefused) {
    const std::string text = "(-1,-1) File must have an even number of fields!\n\nEach lookup level needs to have a "
                             "'Code' and\na 'Description' field.";
    EXPECT_EQ(Compile(1, {{"A"}}), text);
    EXPECT_EQ(Compile(3, {{"A", "a", "B"}}), text);
}

TEST_F(CompilerTest, TheTableStandsBesideTheSource) {
    CString name;
    const auto nameOf = [&](const char *path) {
        TextSource source(path, 2, {});
        m_compiler.AttachDataSource(&source);
        name = "before";
        m_compiler.GetLookupFileName(name);
        m_compiler.DetachDataSource();
        return std::string(name);
    };
    EXPECT_EQ(nameOf("C:\\data\\codes.dat"), "codes.lbn");
    EXPECT_EQ(nameOf("C:\\data\\codes.old.dat"), "codes.old.lbn");
    // Without a folder, or with the separator as the first character, the caller's name stays.
    EXPECT_EQ(nameOf("codes.dat"), "before");
    EXPECT_EQ(nameOf("\\codes.dat"), "before");
    EXPECT_EQ(nameOf("C:\\data\\codes"), "codes.lbn");
    EXPECT_EQ(nameOf(".dat"), "before");
    EXPECT_EQ(nameOf("C:\\data.old\\codes.dat"), "codes.lbn");
    EXPECT_EQ(nameOf("C:\\data.old\\codes"), "data.lbn"); // the last dot is the folder's
}

TEST_F(CompilerTest, CompilesAndStores) {
    EXPECT_EQ(Compile(4, {{"A", "Alpha"}, {"", "", "1", "one"}, {"", "", "2", "two"}}), "ok");
    EXPECT_EQ(Menu(true), "A:0(1:0 2:1)");
    EXPECT_EQ(Hex(TempFiles::Read(m_files.Path("table.lbn"))), Hex(PlainExample()));
    EXPECT_EQ(m_host.m_waits, "1 -1");
    EXPECT_EQ(m_app.Take(), "");
}

TEST_F(CompilerTest, TheSameCodesAsIndependentLevels) {
    EXPECT_EQ(Compile(4, {{"A", "Alpha", "1", "one"}, {"", "", "2", "two"}}), "ok");
    EXPECT_EQ(Hex(TempFiles::Read(m_files.Path("table.lbn"))), Hex(SharedExample()));
    EXPECT_EQ(m_host.m_waits, "1 -1");
}

TEST_F(CompilerTest, NoToOverwriteLeavesTreesAndFileAsTheyWere) {
    EXPECT_EQ(Compile(2, {{"A", "a"}}), "ok");
    const std::string path = m_files.Path("table.lbn"), before = TempFiles::Read(path);
    m_source->m_rows[0][0] = "B";
    m_host.m_waits.clear();
    m_app.m_answers = {IDNO};
    EXPECT_EQ(Compile(), "(-1,-1) ");
    EXPECT_EQ(m_app.Take(), "File '" + path + "' exists!\n\nOverwrite?|36");
    EXPECT_EQ(Menu(), "A");
    EXPECT_EQ(Trie(), "A*{A}");
    EXPECT_EQ(TempFiles::Read(path), before);
    EXPECT_EQ(m_host.m_propertyQuestions, 1);
    EXPECT_EQ(m_host.m_waits, "");
}

TEST_F(CompilerTest, YesToOverwriteReplacesThem) {
    EXPECT_EQ(Compile(2, {{"A", "a"}}), "ok");
    m_source->m_rows[0][0] = "B";
    m_app.m_answers = {IDYES};
    EXPECT_EQ(Compile(), "ok");
    EXPECT_EQ(Menu(), "B");
    EXPECT_EQ(Outline(Loaded()->m_MenuTree), "B");
}

TEST_F(CompilerTest, CancelledPropertiesEndItWithoutAWord) {
    Open(2, {{"A", "a"}});
    m_host.m_propertyAnswer = false;
    m_host.m_onProperties = [](bool *caseSensitive, bool *, bool *, bool *) { *caseSensitive = false; };
    EXPECT_EQ(Compile(), "(-1,-1) ");
    EXPECT_EQ(m_app.Take(), "");
    EXPECT_FALSE(HasTable());
    EXPECT_EQ(m_host.m_waits, "");
    EXPECT_TRUE(m_compiler.m_bCaseSensitive);
}

TEST_F(CompilerTest, ThePropertiesAreTheHostsToChange) {
    Open(2, {{"b", ""}, {"A", ""}, {"B", ""}});
    m_compiler.m_bSortMenuItems = false;
    m_host.m_onProperties = [](bool *caseSensitive, bool *acceptEmpty, bool *validate, bool *sort) {
        EXPECT_TRUE(*caseSensitive && *acceptEmpty && *validate && !*sort);
        *caseSensitive = *acceptEmpty = false;
    };
    EXPECT_EQ(Compile(), "ok");
    EXPECT_EQ(Menu(), "A B b");
    const auto table = Loaded();
    EXPECT_FALSE(table->m_bCaseSensitive || table->m_bAcceptEmptyCells || table->m_bSortMenuItems);
    EXPECT_TRUE(table->IsValidCode("a"));
}

TEST_F(CompilerTest, WithValidationOffThereIsNoTrie) {
    Open(2, {{"A", "a"}});
    m_host.m_onProperties = [](bool *, bool *, bool *validate, bool *) { *validate = false; };
    EXPECT_EQ(Compile(), "ok");
    EXPECT_EQ(Trie(), "");
    EXPECT_EQ(m_host.m_abortChecks, 0);
    EXPECT_EQ(TempFiles::Read(m_files.Path("table.lbn")).size(), 16u + 8 + 22 + 24);
}

TEST_F(CompilerTest, AbortStoresNothing) {
    Open(4, {{"A", "", "1", ""}, {"B", "", "2", ""}});
    m_host.m_abortAt = 3;
    EXPECT_EQ(Compile(), "(-1,-1) ");
    EXPECT_EQ(m_host.m_abortChecks, 3);
    EXPECT_EQ(Trie(), "A{A}(1*{A|1} 2*{A|2})");
    EXPECT_FALSE(HasTable());
    EXPECT_EQ(m_host.m_waits, "1 -1");
    m_host.m_abortAt = 0;
    EXPECT_EQ(Compile(), "ok");
    EXPECT_EQ(m_host.m_abortChecks, 7); // one a path
}

TEST_F(CompilerTest, ATableThatCannotBeStoredIsAFailureWithItsText) {
    std::filesystem::create_directory(m_files.Path("table.lbn"));
    Open(2, {{"A", "a"}});
    m_app.m_answers = {IDYES};
    EXPECT_EQ(Compile(), "(-1,-1) Could not open file '" + m_files.Path("table.lbn") + "'!");
}

TEST_F(CompilerTest, AnOldLongerTableLeavesItsTailBehind) {
    m_files.Make("table.lbn", std::string(300, 'x'));
    m_app.m_answers = {IDYES};
    EXPECT_EQ(Compile(2, {{"A", "a"}}), "ok");
    EXPECT_EQ(TempFiles::Read(m_files.Path("table.lbn")).size(), 300u);
    EXPECT_TRUE(Loaded()->IsValidCode("A"));
}

TEST_F(CompilerTest, GetCellTextNamesTheCell) {
    Open(2, {{"A", "a"}});
    m_source->m_unreadable = {{1, 0}};
    CString text, error;
    EXPECT_TRUE(m_compiler.GetCellText(0, 0, text, error));
    EXPECT_STREQ(text, "A");
    EXPECT_FALSE(m_compiler.GetCellText(1, 0, text, error));
    EXPECT_STREQ(error, "Could not get text at cell col 1, row 0!");
}

} // namespace
