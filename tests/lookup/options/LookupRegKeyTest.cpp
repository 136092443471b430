#include "TestRegistry.h"

#include "lookup/LookupRegKey.h"
#include "lookup/RegistryKey.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

namespace {

class OpenRegKey : public CLookupRegKey {
public:
    using CLookupRegKey::GetDefWidth;
    using CLookupRegKey::GetFileName;
    using CLookupRegKey::GetKeyPath;
    using CLookupRegKey::GetOption;
    using CLookupRegKey::SetDefWidth;
    using CLookupRegKey::SetOption;

    std::string KeyPathOf(const char *path) const {
        CString key("unchanged");
        const bool made = GetKeyPath(path, key);
        return (made ? "" : "false ") + std::string(key.GetString());
    }
};

class LookupRegKeyTest : public testing::Test {
protected:
    LookupRegKeyTest() { CLookupRegKey::SetRootRegKey(m_registry.Root(), m_registry.Path()); }
    ~LookupRegKeyTest() override { CLookupRegKey::SetRootRegKey(nullptr, ""); }

    CRegistryKey Raw(const char *key) const { return CRegistryKey(m_registry.Root(), m_registry.Below(key)); }
    std::string Number(const char *key, const char *name) const {
        DWORD value = 0;
        return Raw(key).ReadNumber(name, &value) ? std::to_string(value) : "none";
    }
    std::string Text(const char *key, const char *name) const {
        CString text;
        return Raw(key).ReadText(name, text) ? text.GetString() : "none";
    }

    TestRegistry m_registry;
    OpenRegKey m_key;
};

// No folder that any machine has: the file is never looked for.
constexpr const char *kLink = "C:\\data\\staff.lk";

struct Option {
    const char *name;
    const char *key;
    DWORD bit;
    bool (CLookupRegKey::*set)(bool);
    bool (CLookupRegKey::*is)() const;
};

constexpr Option kOptions[] = {
    {"logon", "\\Admin", 0x02, &CLookupRegKey::SetAdminLoggonState, &CLookupRegKey::IsAdminLoggon},
    {"strict", "\\Admin", 0x04, &CLookupRegKey::SetStrictMode, &CLookupRegKey::IsInStrictMode},
    {"case", "\\Admin", 0x08, &CLookupRegKey::SetCaseSensitive, &CLookupRegKey::IsCaseSensitive},
    {"lock", "\\Admin", 0x10, &CLookupRegKey::SetLockAllFiles, &CLookupRegKey::IsLockingAllFiles},
    {"partial", "\\Admin", 0x20, &CLookupRegKey::SetAllowPartialCodes,
     &CLookupRegKey::IsAllowingPartialCodes},
    {"validate", "\\Admin", 0x40, &CLookupRegKey::SetValidateLookupFields,
     &CLookupRegKey::IsValidatingLookupFields},
    {"key", "\\User", 0x02, &CLookupRegKey::SetValidateOnKey, &CLookupRegKey::IsValidateOnKey},
    {"menus", "\\User", 0x04, &CLookupRegKey::SetResolveSubMenus, &CLookupRegKey::IsResolvingSubMenus},
    {"beep", "\\User", 0x20, &CLookupRegKey::SetBeepOnInvalidCode, &CLookupRegKey::IsBeepingOnInvalidCode},
};

TEST_F(LookupRegKeyTest, AKeyIsOpenWhereItHasARootAndTellsWhatItHolds) {
    CRegistryKey key(m_registry.Root(), m_registry.Below("\\Some"));
    EXPECT_TRUE(key.IsOpen());
    EXPECT_FALSE(key.Has("value"));
    EXPECT_TRUE(key.WriteNumber("value", 5));
    EXPECT_TRUE(key.Has("value"));
    EXPECT_TRUE(key.Delete("value"));
    EXPECT_FALSE(key.Has("value"));
    const CRegistryKey none(nullptr, "Some");
    EXPECT_FALSE(none.IsOpen());
    EXPECT_FALSE(none.Has("value"));
}

} // namespace

TEST_F(LookupRegKeyTest, EveryOptionHasItsBit) {
    for (const Option &option : kOptions) {
        SCOPED_TRACE(option.name);
        Raw(option.key).Delete("Options");
        EXPECT_FALSE((m_key.*option.is)()) << "nothing is stored";
        EXPECT_TRUE((m_key.*option.set)(true));
        EXPECT_EQ(std::to_string(option.bit | 1), Number(option.key, "Options"));
        EXPECT_TRUE((m_key.*option.is)());
        int on = 0;
        for (const Option &other : kOptions)
            on += std::string(other.key) == option.key && (m_key.*other.is)();
        EXPECT_EQ(1, on) << "and no other one";
        EXPECT_TRUE((m_key.*option.set)(false));
        EXPECT_FALSE((m_key.*option.is)());
    }
}

TEST_F(LookupRegKeyTest, SetOptionOnAFreshKeyWritesTheMaskWithBitZeroSet) {
    EXPECT_TRUE(m_key.SetOption("\\Fresh", 0x08, true));
    EXPECT_EQ("9", Number("\\Fresh", "Options"));
    EXPECT_TRUE(m_key.SetOption("\\Cleared", 0x08, false));
    EXPECT_EQ("1", Number("\\Cleared", "Options"));
}

TEST_F(LookupRegKeyTest, SetOptionKeepsTheOtherBits) {
    Raw("\\User").WriteNumber("Options", 0xFFFF0000);
    m_key.SetOption("\\User", 0x20, true);
    EXPECT_EQ(std::to_string(0xFFFF0020u), Number("\\User", "Options"))
        << "bit 0 comes with a new value only";
    m_key.SetOption("\\User", 0x80000000, false);
    EXPECT_EQ(std::to_string(0x7FFF0020u), Number("\\User", "Options"));
}

TEST_F(LookupRegKeyTest, OptionsOfAnotherTypeAreNotThere) {
    Raw("\\User").WriteText("Options", "255");
    EXPECT_FALSE(m_key.GetOption("\\User", 0x02));
}

TEST_F(LookupRegKeyTest, WithoutARootNothingIsStoredAndNothingFails) {
    CLookupRegKey::SetRootRegKey(nullptr, "");
    CString text("as it was");
    UINT code = 0, description = 0;
    for (const Option &option : kOptions) {
        EXPECT_FALSE((m_key.*option.set)(true)) << option.name;
        EXPECT_FALSE((m_key.*option.is)()) << option.name;
    }
    EXPECT_FALSE(m_key.SetAdminPassword("x"));
    EXPECT_FALSE(m_key.GetAdminPassword(text));
    EXPECT_FALSE(m_key.SetInvalidCodeAction(2));
    EXPECT_EQ(-1, m_key.GetInvalidCodeAction());
    EXPECT_FALSE(m_key.SetReplaceString("x"));
    EXPECT_FALSE(m_key.GetReplaceString(text));
    EXPECT_FALSE(m_key.GetPreppendString(text));
    EXPECT_FALSE(m_key.GetLookupWorkingFolder(text));
    EXPECT_STREQ("as it was", text);
    m_key.GetDefaultFieldWidths(&code, &description);
    EXPECT_EQ(5u, code);
    EXPECT_EQ(15u, description);
    EXPECT_FALSE(m_key.AddLinkFile(kLink, true));
    EXPECT_FALSE(m_key.RemoveLinkFile(kLink));
    EXPECT_FALSE(m_key.IsLinkFileInRegistry(kLink));
    EXPECT_FALSE(m_key.IsLinkFileLocked(kLink));
}

TEST_F(LookupRegKeyTest, ThePasswordIsStoredAsGiven) {
    CString stored("as it was");
    EXPECT_FALSE(m_key.GetAdminPassword(stored));
    EXPECT_STREQ("as it was", stored);
    EXPECT_TRUE(m_key.SetAdminPassword("\xD1\x01 z"));
    EXPECT_EQ("\xD1\x01 z", Text("\\Admin", "Passwrd"));
    EXPECT_TRUE(m_key.GetAdminPassword(stored));
    EXPECT_STREQ("\xD1\x01 z", stored);
}

TEST_F(LookupRegKeyTest, ThePasswordsBufferHas260Bytes) {
    CString stored;
    m_key.SetAdminPassword(CString('p', 259));
    EXPECT_TRUE(m_key.GetAdminPassword(stored));
    EXPECT_EQ(259, stored.GetLength());
    m_key.SetAdminPassword(CString('q', 260));
    EXPECT_FALSE(m_key.GetAdminPassword(stored)) << "with its null it has 261";
    EXPECT_EQ(CString('p', 259), stored);
}

TEST_F(LookupRegKeyTest, TheActionIsZeroWhereNoneIsStored) {
    EXPECT_EQ(0, m_key.GetInvalidCodeAction());
    EXPECT_TRUE(m_key.SetInvalidCodeAction(3));
    EXPECT_EQ("3", Number("\\User", "Invalid Action"));
    EXPECT_EQ(3, m_key.GetInvalidCodeAction());
}

TEST_F(LookupRegKeyTest, GetReplaceStringOnAnAbsentValueLeavesThePassedStringAsItWas) {
    CString text("as it was");
    EXPECT_FALSE(m_key.GetReplaceString(text));
    EXPECT_FALSE(m_key.GetPreppendString(text));
    EXPECT_STREQ("as it was", text);
}

TEST_F(LookupRegKeyTest, ReplaceAndPrependStringsHaveValuesOfTheirOwn) {
    CString replace, prepend;
    EXPECT_TRUE(m_key.SetReplaceString("unknown"));
    EXPECT_TRUE(m_key.SetPreppendString("?"));
    EXPECT_EQ("unknown", Text("\\User", "Replace String"));
    EXPECT_EQ("?", Text("\\User", "Preppend String"));
    EXPECT_TRUE(m_key.GetReplaceString(replace));
    EXPECT_TRUE(m_key.GetPreppendString(prepend));
    EXPECT_STREQ("unknown", replace);
    EXPECT_STREQ("?", prepend);
    EXPECT_TRUE(m_key.SetReplaceString(""));
    EXPECT_TRUE(m_key.GetReplaceString(replace));
    EXPECT_STREQ("", replace) << "an empty text is one too";
    EXPECT_TRUE(m_key.SetReplaceString(CString('x', 5000)));
    EXPECT_TRUE(m_key.GetReplaceString(replace));
    EXPECT_EQ(5000, replace.GetLength());
}

TEST_F(LookupRegKeyTest, FieldWidthsThatAreAbsentOrZeroReadAs5And15) {
    UINT code = 0, description = 0;
    m_key.GetDefaultFieldWidths(&code, &description);
    EXPECT_EQ(5u, code);
    EXPECT_EQ(15u, description);
    EXPECT_TRUE(m_key.SetDefaultFieldWidths(0, 0));
    m_key.GetDefaultFieldWidths(&code, &description);
    EXPECT_EQ(5u, code);
    EXPECT_EQ(15u, description);
    EXPECT_TRUE(m_key.SetDefaultFieldWidths(7, 42));
    EXPECT_EQ("7", Number("\\User", "DefCodeFldWidth"));
    EXPECT_EQ("42", Number("\\User", "DefDescFldWidth"));
    m_key.GetDefaultFieldWidths(&code, &description);
    EXPECT_EQ(7u, code);
    EXPECT_EQ(42u, description);
}

TEST_F(LookupRegKeyTest, TheWorkingFolderMustBeThereToBeTold) {
    const std::string folder = std::filesystem::temp_directory_path().string();
    CString read("as it was");
    EXPECT_FALSE(m_key.GetLookupWorkingFolder(read));
    EXPECT_TRUE(m_key.SetLookupWorkingFolder((folder + "/no such folder").c_str()));
    EXPECT_FALSE(m_key.GetLookupWorkingFolder(read));
    EXPECT_STREQ("as it was", read);
    EXPECT_TRUE(m_key.SetLookupWorkingFolder(folder.c_str()));
    EXPECT_EQ(folder, Text("\\User", "Working Folder"));
    EXPECT_TRUE(m_key.GetLookupWorkingFolder(read));
    EXPECT_STREQ(folder.c_str(), read);
}

TEST_F(LookupRegKeyTest, AFileIsNoWorkingFolder) {
    CString read;
    m_key.SetLookupWorkingFolder(ORVANE_SAMPLES "/staff.dbf");
    EXPECT_FALSE(m_key.GetLookupWorkingFolder(read));
    m_key.SetLookupWorkingFolder("");
    EXPECT_FALSE(m_key.GetLookupWorkingFolder(read));
}

TEST_F(LookupRegKeyTest, EveryTablePropertyHasItsBit) {
    const std::string stored[] = {"1", "2", "4", "8"};
    for (size_t i = 0; i < std::size(stored); ++i) {
        EXPECT_TRUE(m_key.SetLookupTableProperties(i == 0, i == 1, i == 2, i == 3));
        EXPECT_EQ(stored[i], Number("\\User", "Lookup Props"));
        bool read[4] = {true, true, true, true};
        EXPECT_TRUE(m_key.GetLookupTableProperties(&read[0], &read[1], &read[2], &read[3]));
        for (size_t j = 0; j < std::size(stored); ++j)
            EXPECT_EQ(i == j, read[j]) << i << " " << j;
    }
}

TEST_F(LookupRegKeyTest, TablePropertiesThatAreAbsentLeaveTheArgumentsAsTheyWere) {
    bool caseSensitive = true, acceptEmpty = false, validate = true, sort = false;
    EXPECT_FALSE(m_key.GetLookupTableProperties(&caseSensitive, &acceptEmpty, &validate, &sort));
    EXPECT_TRUE(caseSensitive && !acceptEmpty && validate && !sort);
}

TEST_F(LookupRegKeyTest, OnlyTheLowByteOfThePropertiesCounts) {
    bool caseSensitive, acceptEmpty, validate, sort;
    Raw("\\User").WriteNumber("Lookup Props", 0xFFFFFF05);
    EXPECT_TRUE(m_key.GetLookupTableProperties(&caseSensitive, &acceptEmpty, &validate, &sort));
    EXPECT_TRUE(caseSensitive && !acceptEmpty && validate && !sort);
}

TEST_F(LookupRegKeyTest, ADefaultWidthThatIsStoredReadsAsMinusOne) {
    EXPECT_EQ(0, m_key.GetDefaultNewCodeFieldWidth());
    EXPECT_EQ(0, m_key.GetDefaultNewDescFieldWidth());
    EXPECT_TRUE(m_key.SetDefaultNewCodeFieldWidth(7));
    EXPECT_EQ("7", Number("\\User", "DefCodeWith"));
    EXPECT_EQ(-1, m_key.GetDefaultNewCodeFieldWidth());
    EXPECT_EQ(0, m_key.GetDefaultNewDescFieldWidth());
    EXPECT_TRUE(m_key.SetDefaultNewDescFieldWidth(30));
    EXPECT_EQ("30", Number("\\User", "DefDescWith"));
    EXPECT_EQ(-1, m_key.GetDefaultNewDescFieldWidth());
}

TEST_F(LookupRegKeyTest, WidthsByName) {
    UINT width = 3;
    EXPECT_FALSE(m_key.GetDefWidth("Any", &width));
    EXPECT_EQ(3u, width);
    EXPECT_TRUE(m_key.SetDefWidth("Any", 0));
    EXPECT_TRUE(m_key.GetDefWidth("Any", &width)) << "0 is a width here";
    EXPECT_EQ(0u, width);
}

TEST_F(LookupRegKeyTest, TheKeyOfAFolderIsJoinedWithoutASeparator) {
    const std::string links = std::string(m_registry.Path()) + "\\Lookup Links";
    EXPECT_EQ(links + "C:\\data", m_key.KeyPathOf("C:\\data\\staff.lk"));
    EXPECT_EQ(links + "\\\\server\\share", m_key.KeyPathOf("\\\\server\\share\\staff.lk"));
    EXPECT_EQ(links + "\\staff.lk", m_key.KeyPathOf("\\staff.lk")) << "the last backslash at position 0";
    EXPECT_EQ(links + "staff.lk", m_key.KeyPathOf("staff.lk")) << "no backslash";
    EXPECT_EQ(links + "C:", m_key.KeyPathOf("C:\\"));
    EXPECT_EQ("false unchanged", m_key.KeyPathOf(""));
    EXPECT_EQ("false unchanged", m_key.KeyPathOf(nullptr));
}

TEST_F(LookupRegKeyTest, TheNameOfALinkFile) {
    EXPECT_STREQ("staff.lk", OpenRegKey::GetFileName("C:\\data\\staff.lk"));
    EXPECT_STREQ("staff.lk", OpenRegKey::GetFileName("\\staff.lk"));
    EXPECT_EQ(nullptr, OpenRegKey::GetFileName("C:\\data\\"));
    EXPECT_EQ(nullptr, OpenRegKey::GetFileName("staff.lk"));
    EXPECT_EQ(nullptr, OpenRegKey::GetFileName(""));
    EXPECT_EQ(nullptr, OpenRegKey::GetFileName(nullptr));
}

TEST_F(LookupRegKeyTest, LinkFilesAreLockedByName) {
    EXPECT_FALSE(m_key.IsLinkFileInRegistry(kLink));
    EXPECT_FALSE(m_key.IsLinkFileLocked(kLink));
    EXPECT_TRUE(m_key.LockLinks(kLink));
    EXPECT_TRUE(m_key.IsLinkFileLocked(kLink));
    BYTE state = 0;
    EXPECT_TRUE(Raw("\\Lookup LinksC:\\data").ReadByte("staff.lk", &state));
    EXPECT_EQ(1, state);
    EXPECT_FALSE(m_key.IsLinkFileLocked("C:\\data\\other.lk"));
    EXPECT_FALSE(m_key.IsLinkFileLocked("C:\\other\\staff.lk"));
    EXPECT_TRUE(m_key.UnLockLinks(kLink));
    EXPECT_TRUE(m_key.IsLinkFileInRegistry(kLink));
    EXPECT_FALSE(m_key.IsLinkFileLocked(kLink));
    EXPECT_TRUE(Raw("\\Lookup LinksC:\\data").ReadByte("staff.lk", &state));
    EXPECT_EQ(0, state);
    EXPECT_TRUE(m_key.RemoveLinkFile(kLink));
    EXPECT_FALSE(m_key.IsLinkFileInRegistry(kLink));
    EXPECT_FALSE(m_key.RemoveLinkFile(kLink));
}

TEST_F(LookupRegKeyTest, AnyStateButZeroIsALock) {
    Raw("\\Lookup LinksC:\\data").WriteByte("staff.lk", 200);
    EXPECT_TRUE(m_key.IsLinkFileLocked("c:\\DATA\\STAFF.LK")) << "names do not know case";
}

TEST_F(LookupRegKeyTest, APathWithoutAFileNameIsNoLinkFile) {
    for (const char *path : {"", "staff.lk", "C:\\data\\"}) {
        EXPECT_FALSE(m_key.AddLinkFile(path, true)) << path;
        EXPECT_FALSE(m_key.IsLinkFileInRegistry(path)) << path;
        EXPECT_FALSE(m_key.IsLinkFileLocked(path)) << path;
        EXPECT_FALSE(m_key.RemoveLinkFile(path)) << path;
    }
}
