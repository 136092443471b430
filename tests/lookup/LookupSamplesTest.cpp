// The sample sources, as the build compiled them.
#include "lookup/LookupTableFile.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

std::unique_ptr<CLookupTableFile> Load(const char *name) {
    auto table = std::make_unique<CLookupTableFile>();
    CString errorText;
    const std::string path = std::string(ORVANE_LOOKUP_SAMPLES) + "/" + name + ".lbn";
    EXPECT_TRUE(table->SerializeFile(path.c_str(), errorText, false)) << errorText.GetString();
    return table;
}

// "code description" of the items of the menu for a code.
std::string Menu(CLookupTableFile &table, const char *code, int count) {
    CMenuTree *menu = table.GetMenuForCode(code);
    std::string text;
    for (int i = 0; i < count && i < menu->GetChildCount(); ++i)
        text += std::string(menu->GetChild(i)->m_sCode) + " " + std::string(menu->GetChild(i)->m_sDescription) + "\n";
    return text;
}

} // namespace

TEST(LookupSamples, OccupationsAreAnOutlineOfFourLevels) {
    const auto table = Load("occupations");
    EXPECT_EQ(table->m_MenuTree.GetChildCount(), 10);
    EXPECT_EQ(Menu(*table, nullptr, 2), "0 Armed forces occupations\n1 Managers\n");
    EXPECT_EQ(Menu(*table, "251", 2), "1 Systems analysts\n2 Software developers\n");
    EXPECT_TRUE(table->IsValidCode("2512"));
    EXPECT_FALSE(table->IsValidCode("251"));
    EXPECT_TRUE(table->IsValidPartialCode("251"));
    EXPECT_FALSE(table->IsValidPartialCode("255"));
    EXPECT_FALSE(table->m_MenuTree.m_bShared);
}

TEST(LookupSamples, CountriesAreOneLevel) {
    const auto table = Load("countries");
    EXPECT_EQ(table->m_MenuTree.GetChildCount(), 249);
    EXPECT_TRUE(table->IsValidCode("DE"));
    EXPECT_FALSE(table->IsValidCode("de")) << "the tables are case sensitive";
    EXPECT_FALSE(table->IsValidCode("XX"));
    EXPECT_TRUE(table->IsValidPartialCode("X") == false);
}

TEST(LookupSamples, LevelAndFieldOfEducationCombineFreely) {
    const auto table = Load("education");
    EXPECT_EQ(table->m_MenuTree.GetSharedListCount(), 2);
    EXPECT_EQ(table->m_MenuTree.GetChildCount(), 10);
    for (const char *code : {"000", "606", "899", "06"}) // the last one without a level
        EXPECT_TRUE(table->IsValidCode(code)) << code;
    EXPECT_FALSE(table->IsValidCode("911"));
    EXPECT_EQ(Menu(*table, "6", 1), "00 Generic programmes\n");
}
