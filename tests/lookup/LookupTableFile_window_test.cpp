// What only the system's own files show: sharing, and files that must not be written.
#include "CompilerTest.h"

#include <windows.h>

#include <string>
#include <utility>

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

// The table asks for both directions, so whether it loads is whether the user may write. Some may write to everything.
TEST_F(LookupFileSharingTest, AFileThatIsMarkedAsReadOnlyIsLoadedOnlyWhereItMayBeWritten) {
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_READONLY);
    CFile probe;
    const bool writable = probe.Open(m_path.c_str(), CFile::modeReadWrite) != FALSE;
    if (writable)
        probe.Close();
    EXPECT_EQ(Load(), writable ? "A(1 2) B(1 2)" : Refused());
    ::SetFileAttributesA(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Load(), "A(1 2) B(1 2)");
}

// A capital of the code page above ASCII and its small letter; those of ASCII where the page has none.
std::pair<char, char> LetterOfThePage() {
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const char capital = static_cast<char>(byte);
        char small = capital;
        if (!::IsDBCSLeadByte(static_cast<BYTE>(byte)) && ::CharLowerBuffA(&small, 1) == 1 && small != capital)
            return {capital, small};
    }
    return {'C', 'c'};
}

// The fold is the code page's, not only that of ASCII.
TEST_F(LookupFileSharingTest, LettersAboveAsciiAreFolded) {
    const auto [capital, small] = LetterOfThePage();
    m_host.m_onProperties = [](bool *caseSensitive, bool *, bool *, bool *) { *caseSensitive = false; };
    m_source->m_rows[0][0] = std::string(1, capital);
    m_app.m_answers = {IDYES};
    EXPECT_EQ(Compile(), "ok");
    EXPECT_TRUE(m_compiler.IsValidCode((std::string(1, small) + "1").c_str()));
    const CMenuTree &menu = m_compiler.m_MenuTree;
    const int position = menu.FindChild(std::string(1, small).c_str(), false);
    ASSERT_NE(menu.GetChild(position), nullptr);
    EXPECT_EQ(std::string(menu.GetChild(position)->m_sCode), std::string(1, capital));
}

} // namespace
