// Writing tables: exact bytes, and what is left when an operation on the files fails.
#include "DbfBytes.h"

using namespace dbftest;
using dbf::Table;

namespace {

constexpr const char *kToday = "\x7E\x0B\x15"; // 2026-11-21, the year counted from 1900

std::string withDate(std::string bytes) {
    return bytes.replace(1, 3, kToday);
}

// A table with a memo file, a byte behind the fields' end mark and odd bytes everywhere.
void putMemoTable(MemoryFiles &files) {
    std::string head = header(0x83, 2, 16, descriptor("NAME", 'C', 5) + descriptor("NOTE", 'M', 10));
    head += "extra";
    head.replace(8, 2, little(head.size(), 2));
    files.files["t.dbf"] = head + "*ab\x01 z         1" + "?cdefg         2";
    files.files["t.dbt"] = std::string(512, '\0') + "first\x1A";
}

std::unique_ptr<Table> open(MemoryFiles &files, const std::string &path = "t.dbf") {
    std::unique_ptr<Table> table;
    const dbf::Result result = Table::open(path, options(files), table);
    EXPECT_TRUE(result) << result.message;
    return table;
}

std::string fileNames(const MemoryFiles &files) {
    std::string text;
    for (const auto &[name, bytes] : files.files) {
        text += name + " ";
    }
    return text;
}

} // namespace

TEST(DbfSave, WritesChangedRecordsAndLeavesTheOthersAsTheyWere) {
    MemoryFiles files;
    putMemoTable(files);
    const std::string before = files.files["t.dbf"];
    const auto table = open(files);
    ASSERT_TRUE(table->setCellText(1, 0, "x"));
    ASSERT_TRUE(table->save());
    std::string expected = withDate(before);
    expected.replace(expected.size() - 15, 5, "x    ");
    EXPECT_EQ(files.files["t.dbf"], expected + '\x1A');
    EXPECT_EQ(fileNames(files), "t.dbf t.dbt ");
}

// The worked example of docs/formats-dbf.md.
TEST(DbfSave, WritesTheWorkedExample) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 0, 8, descriptor("PAY", 'N', 7, 2), 0x03));
    ASSERT_TRUE(table->appendRows(1));
    ASSERT_TRUE(table->setCellText(0, 0, "-99.5"));
    ASSERT_TRUE(table->save());
    const std::string expected =
        raw("\x03\x7E\x0B\x15\x01\x00\x00\x00\x41\x00\x08\x00") + std::string(17, '\0') +
        raw("\x03\x00\x00PAY\0\0\0\0\0\0\0\0N\0\0\0\0\x07\x02") + std::string(14, '\0') + "\x0D  -99.50\x1A";
    EXPECT_EQ(files.files["t.dbf"], expected);
    EXPECT_EQ(expected.size(), 74u);
}

TEST(DbfSave, WritesRowsInTheirOrder) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->removeRows(0, 1));
    ASSERT_TRUE(table->insertRows(1, 1));
    ASSERT_TRUE(table->setCellText(1, 0, "New"));
    ASSERT_TRUE(table->appendRows(1));
    ASSERT_TRUE(table->save());
    std::string expected = withDate(people()).substr(0, 161);
    expected[4] = 4;
    expected += "*Bert     -99.9919991231F" + (" New" + std::string(21, ' ')) +
                (" Carla" + std::string(18, ' ') + "?") + std::string(25, ' ') + '\x1A';
    EXPECT_EQ(files.files["t.dbf"], expected);
}

TEST(DbfSave, EmptiesHistoryAndGoesOnWithTheNewFile) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->insertRows(0, 2));
    ASSERT_TRUE(table->setCellText(1, 0, "New"));
    const std::string before = shown(*table);
    ASSERT_TRUE(table->save());
    EXPECT_FALSE(table->canUndo());
    EXPECT_FALSE(table->canRedo());
    EXPECT_EQ(shown(*table), before);
    ASSERT_TRUE(table->setCellText(0, 0, "Again"));
    ASSERT_TRUE(table->removeRows(4, 1));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(shown(*table), "Again,,,\n" + before.substr(4, before.size() - 4 - 9));
    EXPECT_EQ(shown(*open(files)), shown(*table));
    EXPECT_EQ(files.mapped(), 1);
}

TEST(DbfSave, WritesTableWithoutRecords) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->removeRows(0, 3));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(files.files["t.dbf"].substr(4, 4) + files.files["t.dbf"].substr(160), raw("\0\0\0\0\x0D\x1A"));
    EXPECT_EQ(table->rowCount(), 0u);
    ASSERT_TRUE(table->appendRows(1));
}

TEST(DbfSave, DoesNotOverwriteWhatSomebodyElseWrote) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->setCellText(0, 0, "Mine"));
    files.touch("t.dbf");
    EXPECT_EQ(table->save().message,
              "\"t.dbf\" was changed by another program since it was opened; it is not "
              "overwritten");
    EXPECT_EQ(files.files["t.dbf"], people());
    EXPECT_TRUE(table->canUndo());
    EXPECT_TRUE(table->save(true));
    EXPECT_EQ(files.files["t.dbf"].substr(162, 4), "Mine");
    ASSERT_TRUE(table->setCellText(0, 0, "Again"));
    EXPECT_TRUE(table->save());
}

TEST(DbfSaveAs, CopiesMemoFileAndGoesOnWithTheNewName) {
    MemoryFiles files;
    putMemoTable(files);
    const std::string before = files.files["t.dbf"];
    const auto table = open(files);
    ASSERT_TRUE(table->setCellText(1, 0, "x"));
    ASSERT_TRUE(table->saveAs("new.dbf"));
    EXPECT_EQ(fileNames(files), "new.dbf new.dbt t.dbf t.dbt ");
    EXPECT_EQ(files.files["new.dbt"], files.files["t.dbt"]);
    EXPECT_EQ(files.files["t.dbf"], before);
    EXPECT_EQ(table->path(), "new.dbf");
    EXPECT_EQ(table->cellText(0, 1), "first");
    ASSERT_TRUE(table->setCellText(0, 0, "y"));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(files.files["t.dbf"], before);
}

TEST(DbfSaveAs, WritesOnlyTheRowsAskedFor) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->saveAs("t.dbf", [](Table::Row row) { return row != 1; }));
    EXPECT_EQ(shown(*table), "Anna,1200.50,1972-02-29,T\nCarla,,,\n");
    EXPECT_EQ(files.files["t.dbf"].substr(4, 4), raw("\x02\0\0\0"));
}

TEST(DbfSaveAs, WorksForTableOpenForViewing) {
    MemoryFiles files;
    files.files["t.dbf"] = people();
    dbf::OpenOptions viewing = options(files);
    viewing.readOnly = true;
    std::unique_ptr<Table> table;
    ASSERT_TRUE(Table::open("t.dbf", viewing, table));
    ASSERT_TRUE(table->saveAs("copy.dbf"));
    EXPECT_EQ(files.files["copy.dbf"], withDate(people()));
}

// Makes every operation on the files fail in turn, once or from then on, until the save succeeds. The file is
// the old one or the new one, whole; the rows shown and, after a failure, the changes are still there.
TEST(DbfSaveFailure, LeavesOldOrNewFileWhole) {
    for (const bool lasting : {false, true}) {
        for (int operation = 1;; ++operation) {
            MemoryFiles files;
            const auto table = openBytes(files, people());
            ASSERT_TRUE(table->setCellText(0, 0, "Changed"));
            ASSERT_TRUE(table->removeRows(1, 1));
            const std::string rows = shown(*table);
            files.failAt(operation, lasting);
            const dbf::Result saved = table->save();
            const bool failed = files.hasFailed();
            files.failAt(0);
            if (!failed) {
                ASSERT_TRUE(saved);
                EXPECT_EQ(operation, 6); // create, write, flush, replace, map
                break;
            }
            ASSERT_FALSE(saved);
            EXPECT_FALSE(saved.message.empty());
            const bool isNew = files.files["t.dbf"] != people();
            EXPECT_EQ(isNew, operation == 5) << operation;
            EXPECT_EQ(shown(*open(files)), isNew ? rows : shown(*openBytes(files, people())));
            ASSERT_TRUE(table->save() || isNew);
            EXPECT_EQ(shown(*open(files)), rows);
            EXPECT_EQ(shown(*table), rows);
        }
    }
}

TEST(DbfSaveFailure, LeavesTableAndMemoFileOfTheTargetTogether) {
    for (const bool lasting : {false, true}) {
        for (int operation = 1;; ++operation) {
            MemoryFiles files;
            files.files["n.dbf"] = "old table";
            files.files["n.dbt"] = "old memo";
            putMemoTable(files);
            const auto table = open(files);
            const std::string rows = shown(*table);
            files.failAt(operation, lasting);
            const dbf::Result saved = table->saveAs("n.dbf");
            const bool failed = files.hasFailed();
            files.failAt(0);
            const bool oldTable = files.files["n.dbf"] == "old table";
            if (!failed) {
                ASSERT_TRUE(saved);
                EXPECT_EQ(fileNames(files), "n.dbf n.dbt t.dbf t.dbt ");
                break;
            }
            // The old memo file may not have been given its name back; it is then under the one told.
            const auto at = saved.message.find("is now named \"");
            const std::string name = at == std::string::npos
                                         ? "n.dbt"
                                         : saved.message.substr(at + 14, std::string("n.dbt.tmp1").size());
            EXPECT_TRUE(lasting || name == "n.dbt");
            const std::string memo = files.files[name];
            EXPECT_EQ(memo == "old memo", oldTable)
                << operation << (lasting ? " lasting " : " ") << saved.message;
            EXPECT_EQ(files.files.count("t.dbf") + files.files.count("t.dbt"), 2u);
            if (oldTable) {
                ASSERT_TRUE(table->setCellText(0, 0, "q")); // takes hold of the file again
                table->undo();
                EXPECT_EQ(shown(*table), rows);
            }
        }
    }
}

TEST(DbfSaveFailure, LeavesNoFilesBehind) {
    for (int operation = 1; operation <= 4; ++operation) {
        MemoryFiles files;
        const auto table = openBytes(files, people());
        files.failAt(operation);
        ASSERT_FALSE(table->save());
        EXPECT_EQ(fileNames(files), "t.dbf ");
    }
}

TEST(DbfSaveFailure, KeepsWhatWasWrittenWhenTheOldFileIsLost) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->setCellText(0, 0, "Changed"));
    files.failAt(4, true); // neither replaces nor maps again
    const dbf::Result saved = table->save();
    files.failAt(0);
    EXPECT_EQ(saved.message, "Cannot replace \"t.dbf\"; what was to be saved is in \"t.dbf.tmp1\"");
    EXPECT_EQ(shown(*open(files, "t.dbf.tmp1")).substr(0, 7), "Changed");
    EXPECT_EQ(files.files["t.dbf"], people());
}

// What is shown then are the records from before, and a value would go into another one.
TEST(DbfSaveFailure, TakesNoChangeByTheRowsOfBeforeWhenOtherRecordsWereSaved) {
    constexpr int kMostOperations = 40;
    for (int operation = 1; operation < kMostOperations; ++operation) {
        MemoryFiles files;
        const auto table =
            openBytes(files, header(0x03, 3, 3, descriptor("A", 'C', 2)) + " aa bb cc");
        files.failAt(operation);
        const dbf::Result saved = table->saveAs("u.dbf", [](Table::Row row) { return row > 0; });
        files.failAt(0);
        if (saved.message.find("is saved, but") == std::string::npos) {
            ASSERT_FALSE(saved) << "it never came up";
            continue;
        }
        const dbf::Result first = table->setCellText(1, 0, "x");
        EXPECT_FALSE(first);
        EXPECT_NE(first.message.find("u.dbf"), std::string::npos) << first.message;
        EXPECT_EQ(table->rowCount(), 2u);
        EXPECT_FALSE(table->canUndo());
        EXPECT_TRUE(table->setCellText(1, 0, "x"));
        return;
    }
    FAIL() << "it never came up";
}
