// Opening tables: what their bytes show as, and what is refused or warned of.
#include "DbfBytes.h"

using namespace dbftest;

TEST(DbfOpen, ShowsTheCellsOfPlainTable) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    EXPECT_EQ(shown(*table), "Anna,1200.50,1972-02-29,T\n"
                             "*Bert,-99.99,1999-12-31,F\n"
                             "Carla,,,\n");
    EXPECT_EQ(joined(table->openWarnings()), "");
    EXPECT_TRUE(table->isWritable());
    EXPECT_EQ(table->findColumn("born"), 2u);
    EXPECT_EQ(table->findColumn("none"), table->columnCount());
}

TEST(DbfOpen, AnswersNothingForCellsThatDoNotExist) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    EXPECT_EQ(table->cellText(3, 0), "");
    EXPECT_EQ(table->cellText(0, 4), "");
    EXPECT_FALSE(table->isMarkedDeleted(3));
    EXPECT_TRUE(table->recordBytes(3).empty());
}

TEST(DbfOpen, HandlesTableWithoutRecordsAndWithoutEndMark) {
    MemoryFiles files;
    EXPECT_EQ(openBytes(files, header(0x03, 0, 5, descriptor("A", 'C', 4)))->rowCount(), 0u);
    EXPECT_EQ(shown(*openBytes(files, header(0x03, 1, 5, descriptor("A", 'C', 4)) + " abcd")), "abcd\n");
}

TEST(DbfOpen, AcceptsEveryKnownVersion) {
    for (const int version : {0x03, 0x83, 0x8B, 0x43, 0x63, 0xCB, 0xF5, 0xFB, 0x30, 0x31, 0x32}) {
        EXPECT_EQ(refusal(header(version, 0, 5, descriptor("A", 'C', 4))), "") << version;
    }
}

TEST(DbfOpen, KeepsMessageOfMissingFile) {
    MemoryFiles files;
    std::unique_ptr<dbf::Table> table;
    EXPECT_EQ(dbf::Table::open("none.dbf", options(files), table).message, "Cannot open \"none.dbf\"");
}

TEST(DbfOpen, RefusesEmptyFile) {
    EXPECT_EQ(refusal(""), "Cannot open \"t.dbf\": the header is cut short (0 bytes)");
}

TEST(DbfOpen, RefusesShortHeader) {
    EXPECT_EQ(refusal(people().substr(0, 31)), "Cannot open \"t.dbf\": the header is cut short (31 bytes)");
}

TEST(DbfOpen, RefusesUnknownVersion) {
    std::string bytes = people();
    bytes[0] = '\x04';
    EXPECT_EQ(refusal(bytes), "Cannot open \"t.dbf\": not a table of a known kind (version byte 04)");
}

TEST(DbfOpen, RefusesEncryptedTable) {
    std::string bytes = people();
    bytes[15] = 1;
    EXPECT_EQ(refusal(bytes), "Cannot open \"t.dbf\": the table is encrypted");
}

TEST(DbfOpen, RefusesHeaderLengthThatIsTooSmall) {
    EXPECT_EQ(refusal(fixedPart(0x03, 0, 32, 5) + '\x0D'),
              "Cannot open \"t.dbf\": the header length 32 is too small");
}

TEST(DbfOpen, RefusesHeaderLengthBeyondFile) {
    EXPECT_EQ(refusal(people().substr(0, 100)),
              "Cannot open \"t.dbf\": the header length 161 exceeds the file's 100 bytes");
}

TEST(DbfOpen, RefusesFieldsWithoutEndMark) {
    const std::string bytes = fixedPart(0x03, 0, 96, 9) + descriptor("A", 'C', 4) + descriptor("B", 'C', 4);
    EXPECT_EQ(refusal(bytes), "Cannot open \"t.dbf\": the list of fields has no end mark");
}

TEST(DbfOpen, RefusesTableWithoutFields) {
    EXPECT_EQ(refusal(header(0x03, 0, 1, "")), "Cannot open \"t.dbf\": the table has no fields");
}

// The length of the header, of two bytes, allows no more.
TEST(DbfOpen, OpensTableOfMostFieldsPossible) {
    std::string descriptors;
    for (int i = 0; i < 2046; ++i) {
        descriptors += descriptor("F" + std::to_string(i), 'C', 32);
    }
    MemoryFiles files;
    const auto table =
        openBytes(files, header(0x03, 1, 1 + 2046 * 32, descriptors) + std::string(65473, ' '));
    EXPECT_EQ(table->columnCount(), 2046u);
    ASSERT_TRUE(table->setCellText(0, 2045, "last"));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(files.files["t.dbf"].substr(65505 + 65473 - 32, 4), "last");
}

TEST(DbfOpen, RefusesRecordLengthThatDoesNotFitFields) {
    EXPECT_EQ(refusal(header(0x03, 0, 6, descriptor("A", 'C', 4))),
              "Cannot open \"t.dbf\": the record length 6 does not fit the fields, which take 5 bytes");
    EXPECT_EQ(refusal(header(0x03, 0, 0, descriptor("A", 'C', 4))),
              "Cannot open \"t.dbf\": the record length 0 does not fit the fields, which take 5 bytes");
}

TEST(DbfOpen, RefusesFieldWithoutWidth) {
    EXPECT_EQ(refusal(header(0x03, 0, 5, descriptor("A", 'C', 4) + descriptor("B", 'C', 0))),
              "Cannot open \"t.dbf\": field 2 (B) has no width");
}

TEST(DbfOpen, RefusesTypeThatIsNoLetter) {
    EXPECT_EQ(refusal(header(0x03, 0, 5, descriptor("A", '\x01', 4))),
              "Cannot open \"t.dbf\": field 1 (A) has the impossible type byte 01");
}

TEST(DbfOpen, ShowsFieldOfUnknownTypeAsItIs) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 5, descriptor("A", 'X', 4)) + raw(" a\x01 b"));
    EXPECT_EQ(shown(*table), "a. b\n");
    EXPECT_FALSE(table->field(0).isEditable());
    EXPECT_EQ(joined(table->openWarnings()), "Field 1 (A) is of the unknown type X and cannot be changed\n");
}

TEST(DbfOpen, OpensWholeRecordsOfCutFile) {
    MemoryFiles files;
    const auto table = openBytes(files, people().substr(0, 161 + 25 + 24));
    EXPECT_EQ(shown(*table), "Anna,1200.50,1972-02-29,T\n");
    EXPECT_EQ(joined(table->openWarnings()),
              "The header speaks of 3 records, but only 1 are whole in the file\n");
}

TEST(DbfOpen, OpensTableWithAbsurdCount) {
    MemoryFiles files;
    std::string bytes = people();
    bytes.replace(4, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(openBytes(files, bytes)->rowCount(), 3u);
}

TEST(DbfOpen, TellsOfBytesBehindLastRecord) {
    MemoryFiles files;
    std::string bytes = people();
    bytes[4] = 1;
    const auto table = openBytes(files, bytes);
    EXPECT_EQ(table->rowCount(), 1u);
    EXPECT_EQ(joined(table->openWarnings()),
              "Behind the last of 1 records the file goes on; what stands there is "
              "not shown and not kept on saving\n");
}

TEST(DbfOpen, GivesEveryFieldNameOfItsOwn) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 0, 5,
                                               descriptor("A", 'C', 1) + descriptor("A", 'C', 1) +
                                                   descriptor("", 'C', 1) + descriptor("A_2", 'C', 1)));
    EXPECT_EQ(table->field(0).name + " " + table->field(1).name + " " + table->field(2).name + " " +
                  table->field(3).name,
              "A A_3 FIELD_3 A_2");
    EXPECT_EQ(joined(table->openWarnings()), "Field 2 has the name of another, A; it is shown as A_3\n"
                                             "Field 3 has no name; it is shown as FIELD_3\n");
}

TEST(DbfOpen, TakesDecimalsOfLongCharacterFieldAsHighByte) {
    MemoryFiles files;
    const std::string text(600, 'x');
    const auto table =
        openBytes(files, header(0x03, 1, 601, descriptor("A", 'C', 600 % 256, 600 / 256)) + " " + text);
    EXPECT_EQ(table->field(0).width, 600u);
    EXPECT_EQ(table->cellText(0, 0), text);
}

TEST(DbfOpen, IgnoresDecimalsOfShortCharacterField) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 5, descriptor("A", 'C', 4, 7)) + " abcd");
    EXPECT_EQ(shown(*table), "abcd\n");
}

TEST(DbfOpen, ShowsOddContentsOfFields) {
    MemoryFiles files;
    const auto table =
        openBytes(files, header(0x03, 2, 22,
                                descriptor("N", 'N', 4) + descriptor("D", 'D', 8) + descriptor("C", 'C', 8) +
                                    descriptor("L", 'L', 1)) +
                             raw(" ****19990230ab\0\0\0\0\0\0y") + raw(" 12  00000000  ab    n"));
    EXPECT_EQ(shown(*table), "****,19990230,ab,T\n12,00000000,  ab,F\n");
}

TEST(DbfOpen, ShowsBinaryFieldsOfVisualFoxPro) {
    MemoryFiles files;
    const std::string record = raw(" \xFE\xFF\xFF\xFF")                  // -2
                               + raw("\x00\x00\x00\x00\x00\x00\xF8\x3F") // 1.5
                               + raw("\xC7\xCF\xFF\xFF\xFF\xFF\xFF\xFF") // -12345 ten-thousandths
                               + raw("\x8C\x3D\x25\x00\x6F\x1E\x5B\x02") // 2440588, 39,525,999 ms
                               + raw("ab\0\x02") + raw("\x01\x02\x03\x04") + raw("\x05");
    const auto table = openBytes(files, header(0x30, 1, 1 + 4 + 8 + 8 + 8 + 4 + 4 + 1,
                                               descriptor("I", 'I', 4) + descriptor("B", 'B', 8, 2) +
                                                   descriptor("Y", 'Y', 8, 4) + descriptor("T", 'T', 8) +
                                                   descriptor("V", 'V', 4) + descriptor("Q", 'Q', 4) +
                                                   descriptor("_NullFlags", '0', 1, 0, 5)) +
                                            record);
    EXPECT_EQ(shown(*table), "-2,1.50,-1.2345,1970-01-01 10:58:46,ab,01020304,05\n");
    for (std::size_t column = 0; column < table->columnCount(); ++column) {
        EXPECT_FALSE(table->field(column).isEditable());
    }
}

TEST(DbfOpen, ShowsNullAsNothingAndTakesValueForIt) {
    MemoryFiles files;
    const std::string descriptors =
        descriptor("A", 'C', 2) + descriptor("B", 'C', 2, 0, 2) + descriptor("_NullFlags", '0', 1, 0, 5);
    const auto table = openBytes(files, header(0x30, 1, 6, descriptors) + raw(" aabb\x01"));
    EXPECT_EQ(shown(*table), "aa,,01\n");
    EXPECT_TRUE(table->setCellText(0, 1, "bb"));
    EXPECT_EQ(shown(*table), "aa,bb,00\n");
    table->undo();
    EXPECT_EQ(shown(*table), "aa,,01\n");
}

TEST(DbfOpen, WarnsOfIndex) {
    MemoryFiles files;
    std::string bytes = people();
    bytes[28] = 1;
    const auto table = openBytes(files, bytes);
    EXPECT_EQ(table->openWarnings().size(), 1u);
    ASSERT_TRUE(table->save());
    EXPECT_EQ(files.files["t.dbf"][28], 0);
}
