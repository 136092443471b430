// Long texts in the file beside the table.
#include "DbfBytes.h"

using namespace dbftest;

namespace {

std::string memoTable(int version, const std::string &pointer) {
    const int width = static_cast<int>(pointer.size());
    return header(version, 1, 1 + width, descriptor("NOTE", 'M', width)) + " " + pointer + '\x1A';
}

std::string padded(std::string block, std::size_t size) {
    block.resize(size, '\0');
    return block;
}

} // namespace

TEST(DbfMemo, ReadsDbase3Text) {
    MemoryFiles files;
    files.files["t.dbt"] = padded(raw("\x02\0\0\0"), 512) + "Hello\x8D\nworld\x1A\x1Ajunk";
    const auto table = openBytes(files, memoTable(0x83, "         1"));
    EXPECT_EQ(table->cellText(0, 0), "Hello\r\nworld");
    EXPECT_FALSE(table->field(0).isEditable());
    EXPECT_EQ(joined(table->openWarnings()), "");
}

TEST(DbfMemo, ReadsDbase3TextWithoutEndMark) {
    MemoryFiles files;
    files.files["t.dbt"] = padded("", 512) + "open end";
    EXPECT_EQ(openBytes(files, memoTable(0x83, "0000000001"))->cellText(0, 0), "open end");
}

TEST(DbfMemo, ReadsDbase4TextOfBlockSizeInHeader) {
    MemoryFiles files;
    std::string head = padded("", 1024);
    head.replace(20, 2, raw("\x00\x04"));
    files.files["t.dbt"] = head + raw("\xFF\xFF\x08\x00\x0D\x00\x00\x00") + "Hello, not this";
    EXPECT_EQ(openBytes(files, memoTable(0x8B, "         1"))->cellText(0, 0), "Hello");
}

TEST(DbfMemo, ReadsFoxProText) {
    MemoryFiles files;
    std::string head = padded("", 512);
    head.replace(6, 2, raw("\x00\x40"));
    files.files["t.fpt"] = head + raw("\0\0\0\x01\0\0\0\x05") + "Hello, not this";
    EXPECT_EQ(openBytes(files, memoTable(0xF5, "         8"))->cellText(0, 0), "Hello");
    EXPECT_EQ(openBytes(files, memoTable(0x30, raw("\x08\0\0\0")))->cellText(0, 0), "Hello");
    EXPECT_EQ(openBytes(files, memoTable(0x30, raw("\0\0\0\0")))->cellText(0, 0), "");
}

TEST(DbfMemo, TranslatesTheText) {
    MemoryFiles files;
    files.files["t.dbt"] = padded("", 512) + "\x81\x1A";
    std::string bytes = memoTable(0x83, "         1");
    bytes[29] = 0x01;
    EXPECT_EQ(openBytes(files, bytes)->cellText(0, 0), "\xFC");
}

TEST(DbfMemo, ShowsNothingForPointersThatLeadNowhere) {
    MemoryFiles files;
    files.files["t.dbt"] = padded("", 512) + "text";
    for (const char *pointer : {"          ", "         0", "         2", "9999999999", "99999999999",
                                "      -1  ", "     1x   ", "4294967296"}) {
        const auto table = openBytes(files, memoTable(0x83, std::string(pointer).substr(0, 10)));
        EXPECT_EQ(table->cellText(0, 0), "") << pointer;
    }
}

TEST(DbfMemo, CutsLengthThatRunsPastTheEnd) {
    MemoryFiles files;
    std::string head = padded("", 64);
    head.replace(6, 2, raw("\x00\x40"));
    files.files["t.fpt"] = head + raw("\0\0\0\x01\xFF\xFF\xFF\xFF") + "abc";
    EXPECT_EQ(openBytes(files, memoTable(0xF5, "         1"))->cellText(0, 0), "abc");
    files.files["t.fpt"] = head + raw("\0\0\0\x01");
    EXPECT_EQ(openBytes(files, memoTable(0xF5, "         1"))->cellText(0, 0), "");
}

TEST(DbfMemo, HandsOutTheBeginningOfALongText) {
    MemoryFiles files;
    const std::string text = std::string(65'535, 'a') + "bc" + std::string(100'000, 'd');
    const std::string beginning = text.substr(0, 65'536);
    const std::string length = raw("\x00\x02\x86\xA1");
    std::string head = padded("", 512);
    head.replace(6, 2, raw("\x02\x00"));
    files.files["t.dbt"] = padded("", 512) + text + "\x1A";
    EXPECT_EQ(openBytes(files, memoTable(0x83, "         1"))->cellText(0, 0), beginning);
    files.files["t.dbt"] = padded("", 512) + raw("\xFF\xFF\x08\x00") + std::string(length.rbegin(), length.rend()) + text;
    EXPECT_EQ(openBytes(files, memoTable(0x8B, "         1"))->cellText(0, 0), beginning);
    files.files.erase("t.dbt");
    files.files["t.fpt"] = head + raw("\0\0\0\x01") + length + text;
    EXPECT_EQ(openBytes(files, memoTable(0xF5, "         1"))->cellText(0, 0), beginning);
}

TEST(DbfMemo, ALongTextIsNeverWrittenBackCut) {
    MemoryFiles files;
    const std::string memo = padded("", 512) + std::string(100'000, 'a') + "\x1A";
    files.files["t.dbt"] = memo;
    const auto table = openBytes(files, memoTable(0x83, "         1"));
    const std::string shown = table->cellText(0, 0);
    EXPECT_LT(shown.size(), 100'000u);
    EXPECT_EQ(table->setCellText(0, 0, shown + "b").message, "Field NOTE cannot be changed here");
    EXPECT_FALSE(table->canUndo());
    ASSERT_TRUE(table->save());
    EXPECT_EQ(files.files["t.dbt"], memo);
    ASSERT_TRUE(table->saveAs("other.dbf"));
    EXPECT_EQ(files.files["other.dbt"], memo);
}

TEST(DbfMemo, OpensTableWithoutItsMemoFile) {
    MemoryFiles files;
    const auto table = openBytes(files, memoTable(0x83, "         1"));
    EXPECT_EQ(table->cellText(0, 0), "");
    EXPECT_EQ(joined(table->openWarnings()),
              "The memo file of \"t.dbf\" is missing; long texts are not shown\n");
}

TEST(DbfMemo, OpensTableWithDamagedMemoFile) {
    MemoryFiles files;
    files.files["t.fpt"] = "short";
    EXPECT_EQ(joined(openBytes(files, memoTable(0xF5, "         1"))->openWarnings()),
              "The memo file \"t.fpt\" is cut short; long texts are not shown\n");
    files.files["t.fpt"] = padded("", 512);
    EXPECT_EQ(joined(openBytes(files, memoTable(0xF5, "         1"))->openWarnings()),
              "The memo file \"t.fpt\" states a block size of 0; long texts are not shown\n");
}

TEST(DbfMemo, FindsMemoFileInCapitals) {
    MemoryFiles files;
    files.files["T.DBF"] = memoTable(0x83, "         1");
    files.files["T.DBT"] = padded("", 512) + "text\x1A";
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open("T.DBF", options(files), table));
    EXPECT_EQ(table->cellText(0, 0), "text");
}

TEST(DbfMemo, NamesWhatIsNoText) {
    MemoryFiles files;
    files.files["t.dbt"] = padded("", 512);
    const auto table =
        openBytes(files, header(0x8B, 1, 21, descriptor("G", 'G', 10) + descriptor("B", 'B', 10)) + " " +
                             "         1" + "          ");
    EXPECT_EQ(shown(*table), "(object),\n");
}

TEST(DbfMemo, LeavesPointerOfNewRecordEmpty) {
    MemoryFiles files;
    files.files["t.fpt"] = padded(raw("\0\0\0\x08\0\0\0\x40"), 512);
    const auto table = openBytes(files, memoTable(0x30, raw("\x08\0\0\0")));
    ASSERT_TRUE(table->appendRows(1));
    const dbf::Bytes bytes = table->recordBytes(1);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), raw(" \0\0\0\0"));
}
