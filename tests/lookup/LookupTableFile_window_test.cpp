// What only the system's own files show: sharing, and files that must not be written.
#include "CompilerTest.h"

#include <windows.h>

namespace {

class LookupFileSharingTest : public CompilerTest {
protected:
    void SetUp() override {
        Open(4, {{"A", "Alpha", "1", "one"}, {"B", "Beta", "2", "two"}});
        ASSERT_EQ(Compile(), "ok");
        m_path = m_files.Path("table.lbn");
    }
    std::string Load() {
        CLookupTableFile table;
        CString text;
        return table.SerializeFile(m_path.c_str(), text, false) ? Outline(table.m_MenuTree) : std::string(text);
    }
    std::string Refused() const { return "Could not open file '" + m_path + "'!"; }

    std::string m_path;
};

TEST_F(LookupFileSharingTest, WhatWasCompiledIsLoaded) {
    EXPECT_EQ(Load(), "A(1 2) B(1 2)");
    // And again: nothing keeps it open.
    EXPECT_EQ(Load(), "A(1 2) B(1 2)");
}

TEST_F(LookupFileSharingTest, AFileThatIsOpenElsewhereIsRefused) {
    {
        CFile reader(m_path.c_str(), CFile::modeRead | CFile::shareDenyNone | CFile::typeBinary);
        EXPECT_EQ(Load(), Refused());
        m_app.m_answers = {IDYES};
        EXPECT_EQ(Compile(), "(-1,-1) " + Refused());
    }
    EXPECT_EQ(Load(), "A(1 2) B(1 2)");
}

TEST_F(LookupFileSharingTest, AFileWithoutWritePermissionCannotBeLoaded) {
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_READONLY);
    CFile probe;
    if (probe.Open(m_path.c_str(), CFile::modeReadWrite)) {
        probe.Close();
        ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
        GTEST_SKIP() << "this user may write to files that are marked as read only";
    }
    EXPECT_EQ(Load(), Refused());
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Load(), "A(1 2) B(1 2)");
}

// The fold is the code page's, not only that of ASCII.
TEST_F(LookupFileSharingTest, LettersAboveAsciiAreFolded) {
    if (::GetACP() != 1252)
        GTEST_SKIP() << "the machine's code page is not 1252";
    m_host.m_onProperties = [](bool *caseSensitive, bool *, bool *, bool *) { *caseSensitive = false; };
    m_source->m_rows[0][0] = "\xC9";
    m_app.m_answers = {IDYES};
    EXPECT_EQ(Compile(), "ok");
    EXPECT_TRUE(m_compiler.IsValidCode("\xE9" "1"));
    EXPECT_EQ(m_compiler.m_MenuTree.FindChild("\xE9", false), 1);
}

} // namespace
