// Text between the code page of a file and that of the display.
#include "DbfBytes.h"

using namespace dbftest;

namespace {

std::string oneCell(const std::string &bytes, int driver) {
    std::string text = bytes;
    text.resize(8, ' ');
    return header(0x03, 1, 9, descriptor("A", 'C', 8), driver) + " " + text + '\x1A';
}

} // namespace

TEST(DbfCodePage, ShowsFilesOfOtherPages) {
    MemoryFiles files;
    EXPECT_EQ(openBytes(files, oneCell("\x81\x94\xE1", 0x01))->cellText(0, 0), "\xFC\xF6\xDF"); // 437: u o ss
    EXPECT_EQ(openBytes(files, oneCell("\x81\x94\xE1", 0x02))->cellText(0, 0), "\xFC\xF6\xDF"); // 850
    EXPECT_EQ(openBytes(files, oneCell("\x81\x94\xE1", 0x64))->cellText(0, 0), "\xFC\xF6\xDF"); // 852
    EXPECT_EQ(openBytes(files, oneCell("\x81\x94\x91", 0x66))->cellText(0, 0), "\xFC\xF6\xE6"); // 865
    EXPECT_EQ(openBytes(files, oneCell("\xFC\xF6\x80", 0x03))->cellText(0, 0), "\xFC\xF6\x80"); // 1252
    EXPECT_EQ(openBytes(files, oneCell("\xFC\xF6\x80", 0x57))->cellText(0, 0), "\xFC\xF6\x80");
    EXPECT_EQ(openBytes(files, oneCell("\xFC\xF6\x81", 0x00))->cellText(0, 0), "\xFC\xF6\x81");
    EXPECT_EQ(openBytes(files, oneCell("\xE9\x8A", 0xC8))->cellText(0, 0), "\xE9\x8A"); // 1250
    EXPECT_EQ(openBytes(files, oneCell("\xFE\xDD", 0xCA))->cellText(0, 0), "??");       // 1254
    EXPECT_EQ(openBytes(files, oneCell("a\x80", 0x65))->cellText(0, 0), "a?");          // 866
}

TEST(DbfCodePage, ShowsCyrillicOnCyrillicDisplay) {
    MemoryFiles files;
    files.files["t.dbf"] = oneCell("\x8C\xA8\xE0", 0x65); // 866
    dbf::OpenOptions cyrillic = options(files);
    cyrillic.displayCodePage = 1251;
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open("t.dbf", cyrillic, table));
    EXPECT_EQ(table->cellText(0, 0), "\xCC\xE8\xF0"); // 1251
    ASSERT_TRUE(table->setCellText(0, 0, "\xE4\xE0"));
    EXPECT_EQ(table->recordBytes(0)[1], 0xA4);
    EXPECT_EQ(table->recordBytes(0)[2], 0xA0);
}

TEST(DbfCodePage, WritesInThePageOfTheFile) {
    MemoryFiles files;
    const auto table = openBytes(files, oneCell("", 0x01));
    ASSERT_TRUE(table->setCellText(0, 0, "\xFC\xF6\xDF"));
    const dbf::Bytes bytes = table->recordBytes(0);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), " \x81\x94\xE1     ");
}

TEST(DbfCodePage, RefusesCharacterThatFileCannotHold) {
    MemoryFiles files;
    const auto table = openBytes(files, oneCell("old", 0x01));
    EXPECT_EQ(table->setCellText(0, 0, "12\x80").message, // the euro sign
              "Field A: \"12\x80\" has a character, number 3, that the file's code page lacks");
    EXPECT_EQ(table->cellText(0, 0), "old");
}

TEST(DbfCodePage, KeepsCharactersThatCannotBeShown) {
    MemoryFiles files;
    const auto table = openBytes(files, oneCell("\xB0\xB1", 0x01));
    EXPECT_EQ(table->cellText(0, 0), "??");
    EXPECT_TRUE(table->setCellText(0, 0, "??"));
    EXPECT_FALSE(table->canUndo());
    EXPECT_EQ(table->recordBytes(0)[1], 0xB0);
}

TEST(DbfCodePage, TakesBytesAsTheyAreForUnknownDriver) {
    MemoryFiles files;
    for (const int driver : {0xEE, 0x13}) {
        const auto table = openBytes(files, oneCell("\x81\xFC", driver));
        EXPECT_EQ(table->cellText(0, 0), "\x81\xFC");
        EXPECT_EQ(joined(table->openWarnings()),
                  "The table's code page (language driver " + std::to_string(driver) +
                      ") is not known; its characters are shown as if they were of this system's page\n");
    }
}

TEST(DbfCodePage, LetsOnlyAsciiThroughToDisplayOfUnknownPage) {
    MemoryFiles files;
    files.files["t.dbf"] = oneCell("a\x81", 0x01);
    dbf::OpenOptions wide = options(files);
    wide.displayCodePage = 65001;
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open("t.dbf", wide, table));
    EXPECT_EQ(table->cellText(0, 0), "a?");
    EXPECT_TRUE(table->setCellText(0, 0, "plain"));
    EXPECT_FALSE(table->setCellText(0, 0, "\xC3\xBC"));
}

TEST(DbfCodePage, LeavesBinaryCharactersAlone) {
    MemoryFiles files;
    const auto table =
        openBytes(files, header(0x30, 1, 3, descriptor("A", 'C', 2, 0, 4), 0x01) + " \x81\x82" + '\x1A');
    EXPECT_EQ(table->cellText(0, 0), "\x81\x82");
}

TEST(DbfCodePage, TranslatesFieldNames) {
    MemoryFiles files;
    EXPECT_EQ(openBytes(files, header(0x03, 0, 2, descriptor("GR\x99", 'C', 1), 0x01))->field(0).name,
              "GR\xD6");
}
