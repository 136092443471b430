// Changing cells and rows, undoing and redoing.
#include "DbfBytes.h"

#include <chrono>
#include <random>

using namespace dbftest;
using dbf::Table;

namespace {

// The message of a refusal, or the bytes of the record after success.
std::string afterSetting(Table &table, std::size_t column, const std::string &text) {
    const dbf::Result result = table.setCellText(0, column, text);
    const dbf::Bytes bytes = table.recordBytes(0);
    return result ? std::string(bytes.begin(), bytes.end()) : result.message;
}

std::string names(const Table &table) {
    std::string text;
    for (Table::Row row = 0; row < table.rowCount(); ++row) {
        text += table.cellText(row, 0) + ";";
    }
    return text;
}

std::string manyRows(std::uint32_t count, int width) {
    return header(0x03, count, width + 1, descriptor("A", 'C', width)) +
           std::string(static_cast<std::size_t>(count) * static_cast<std::size_t>(width + 1), ' ');
}

} // namespace

TEST(DbfSetCell, WritesCharactersPaddedWithBlanks) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    EXPECT_EQ(afterSetting(*table, 0, "Al"), " Al      1200.5019720229T");
    EXPECT_EQ(afterSetting(*table, 0, " b  "), "  b      1200.5019720229T");
    EXPECT_EQ(afterSetting(*table, 0, "12345678   "), " 123456781200.5019720229T");
    EXPECT_EQ(afterSetting(*table, 0, ""), "         1200.5019720229T");
    EXPECT_EQ(afterSetting(*table, 0, "123456789"),
              "Field NAME: \"123456789\" has 9 characters, the field holds 8");
    EXPECT_EQ(table->cellText(0, 0), "");
}

TEST(DbfSetCell, WritesNumbersWithTheDecimalsOfTheField) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto set = [&](const std::string &text) {
        const std::string after = afterSetting(*table, 1, text);
        return after.size() == 25 ? after.substr(9, 7) : after;
    };
    EXPECT_EQ(set("1"), "   1.00");
    EXPECT_EQ(set(" -2.5 "), "  -2.50");
    EXPECT_EQ(set("+0003.1400"), "   3.14");
    EXPECT_EQ(set(".5"), "   0.50");
    EXPECT_EQ(set("5."), "   5.00");
    EXPECT_EQ(set("-0"), "   0.00");
    EXPECT_EQ(set("9999.99"), "9999.99");
    EXPECT_EQ(set("-999.99"), "-999.99");
    EXPECT_EQ(set("0.29"), "   0.29");
    EXPECT_EQ(set(""), "       ");
    EXPECT_EQ(set("10000"),
              "Field PAY: \"10000\" has too many digits, the field holds 7 characters, 2 of them decimals");
    EXPECT_EQ(set("-1000"),
              "Field PAY: \"-1000\" has too many digits, the field holds 7 characters, 2 of them decimals");
    EXPECT_EQ(set("1.005"), "Field PAY: \"1.005\" has too many decimals, the field has 2");
    for (const char *text : {"x", "1e3", "1,5", "--1", "1.2.3", "-", ".", "0x10", "1 2", "nan"}) {
        EXPECT_EQ(set(text), "Field PAY: \"" + std::string(text) + "\" is not a number");
    }
}

TEST(DbfSetCell, KeepsEveryDigitOfLongNumber) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 21, descriptor("N", 'N', 20)) + std::string(21, ' '));
    EXPECT_EQ(afterSetting(*table, 0, "12345678901234567891"), " 12345678901234567891");
}

TEST(DbfSetCell, LeavesOutZeroBeforePointWhereSpaceIsShort) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 1, 4, descriptor("F", 'F', 3, 2)) + std::string(4, ' '));
    EXPECT_EQ(afterSetting(*table, 0, "0.5"), " .50");
}

TEST(DbfSetCell, ChecksDates) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto set = [&](const std::string &text) {
        const std::string after = afterSetting(*table, 2, text);
        return after.size() == 25 ? after.substr(16, 8) : after;
    };
    EXPECT_EQ(set("2000-02-29"), "20000229");
    EXPECT_EQ(set("20240229"), "20240229");
    EXPECT_EQ(set(" "), "        ");
    for (const char *text : {"1900-02-29", "2023-02-29", "2023-04-31", "2023-13-01", "2023-00-10",
                             "0000-01-01", "2023-1-1", "01.02.2003", "2023/01/01", "today"}) {
        EXPECT_EQ(set(text), "Field BORN: \"" + std::string(text) + "\" is not a date (YYYY-MM-DD)");
    }
}

TEST(DbfSetCell, TakesTheUsualLettersForLogicals) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    std::string stored;
    for (const char *text : {"F", "T", "n", "y", "0", "1", "N", "Y", "f", "t", "", "?"}) {
        stored += afterSetting(*table, 3, text).substr(24);
    }
    EXPECT_EQ(stored, "FTFTFTFTFT  ");
    EXPECT_EQ(afterSetting(*table, 3, "yes"), "Field ACTIVE: \"yes\" is not T or F");
}

TEST(DbfSetCell, DoesNothingForTheTextShown) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    EXPECT_TRUE(table->setCellText(0, 1, "1200.50"));
    EXPECT_TRUE(table->setCellText(0, 1, "1200.5"));
    EXPECT_TRUE(table->setCellText(2, 3, ""));
    EXPECT_FALSE(table->canUndo());
    EXPECT_EQ(table->recordBytes(2)[24], '?');
}

TEST(DbfSetCell, RefusesFieldsThatAreOnlyShown) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x30, 1, 5, descriptor("I", 'I', 4)) + raw(" \x01\0\0\0"));
    EXPECT_EQ(afterSetting(*table, 0, "2"), "Field I cannot be changed here");
}

TEST(DbfSetCell, RefusesEverythingInTableOpenForViewing) {
    MemoryFiles files;
    files.files["t.dbf"] = people();
    dbf::OpenOptions viewing = options(files);
    viewing.readOnly = true;
    std::unique_ptr<Table> table;
    ASSERT_TRUE(Table::open("t.dbf", viewing, table));
    EXPECT_FALSE(table->isWritable());
    const std::string why = "\"t.dbf\" was opened for viewing only";
    EXPECT_EQ(table->setCellText(0, 0, "x").message, why);
    EXPECT_EQ(table->insertRows(0, 1).message, why);
    EXPECT_EQ(table->removeRows(0, 1).message, why);
    EXPECT_EQ(table->save().message, why);
    files.readOnly.insert("t.dbf");
    EXPECT_EQ(openBytes(files, people())->setCellText(0, 0, "x").message, "\"t.dbf\" may not be written");
}

TEST(DbfRows, RefusesPlacesThatDoNotExist) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    EXPECT_FALSE(table->insertRows(4, 1));
    EXPECT_FALSE(table->removeRows(3, 1));
    EXPECT_FALSE(table->removeRows(1, ~0ull));
    EXPECT_FALSE(table->insertRows(0, ~0ull));
    EXPECT_FALSE(table->insertRows(0, 0xFFFFFFFF));
    EXPECT_TRUE(table->insertRows(0, 0xFFFFFFFF - 3));
    EXPECT_FALSE(table->setCellText(0xFFFFFFFF, 0, "x"));
    EXPECT_TRUE(table->removeRows(0, 0) && table->insertRows(0, 0));
}

TEST(DbfRows, MakesNewRowsBlank) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    ASSERT_TRUE(table->insertRows(1, 2));
    ASSERT_TRUE(table->appendRows(1));
    EXPECT_EQ(shown(*table),
              "Anna,1200.50,1972-02-29,T\n,,,\n,,,\n*Bert,-99.99,1999-12-31,F\nCarla,,,\n,,,\n");
    const dbf::Bytes bytes = table->recordBytes(1);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), std::string(25, ' '));
}

TEST(DbfUndo, GathersChangesOutsideTransactionsUntilTheNextBoundary) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    table->setCellText(0, 0, "a");
    table->setCellText(1, 0, "b");
    table->undo();
    EXPECT_EQ(names(*table), "Anna;Bert;Carla;");
    EXPECT_FALSE(table->canUndo());
    table->redo();
    EXPECT_EQ(names(*table), "a;b;Carla;");
}

TEST(DbfUndo, BeginsNewGroupAfterEmptyTransaction) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    for (const char *text : {"a", "b", "c"}) {
        table->beginTransaction();
        table->endTransaction();
        table->setCellText(0, 0, text);
        table->setCellText(1, 0, text);
    }
    table->undo();
    EXPECT_EQ(names(*table), "b;b;Carla;");
    table->undo();
    EXPECT_EQ(names(*table), "a;a;Carla;");
    table->redo();
    table->redo();
    EXPECT_EQ(names(*table), "c;c;Carla;");
    EXPECT_FALSE(table->canRedo());
}

TEST(DbfUndo, TakesOutermostTransactionAsOneGroup) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    table->setCellText(0, 0, "before");
    table->beginTransaction();
    table->setCellText(0, 0, "a");
    table->beginTransaction();
    table->removeRows(1, 1);
    table->endTransaction();
    table->insertRows(0, 1);
    table->endTransaction();
    table->setCellText(0, 0, "after");
    EXPECT_EQ(names(*table), "after;a;Carla;");
    table->undo();
    EXPECT_EQ(names(*table), ";a;Carla;");
    table->undo();
    EXPECT_EQ(names(*table), "before;Bert;Carla;");
    table->undo();
    EXPECT_EQ(names(*table), "Anna;Bert;Carla;");
    EXPECT_FALSE(table->canUndo());
}

TEST(DbfUndo, IgnoresEndWithoutBeginning) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    table->endTransaction();
    table->beginTransaction();
    table->setCellText(0, 0, "a");
    table->endTransaction();
    table->setCellText(0, 0, "b");
    table->undo();
    EXPECT_EQ(names(*table), "a;Bert;Carla;");
}

TEST(DbfUndo, DropsWhatWasUndoneWithTheNextChange) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    table->insertRows(0, 2);
    table->undo();
    EXPECT_TRUE(table->canRedo());
    EXPECT_FALSE(table->setCellText(0, 1, "x")); // a refused change is none
    EXPECT_TRUE(table->canRedo());
    table->setCellText(0, 0, "a");
    EXPECT_FALSE(table->canRedo());
    table->redo();
    EXPECT_EQ(names(*table), "a;Bert;Carla;");
}

TEST(DbfUndo, AgreesWithSnapshotsThroughRandomChanges) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&](std::uint64_t n) { return random() % n; };
        MemoryFiles files;
        const auto table = openBytes(files, people());
        std::vector<std::string> states{shown(*table)};
        std::size_t current = 0;
        for (int step = 0; step < 150; ++step) {
            const std::uint64_t what = below(4);
            if (what == 0 && current > 0) {
                ASSERT_TRUE(table->canUndo());
                table->undo();
                --current;
            } else if (what == 1 && current + 1 < states.size()) {
                ASSERT_TRUE(table->canRedo());
                table->redo();
                ++current;
            } else {
                table->beginTransaction();
                const std::string before = shown(*table);
                for (std::uint64_t i = 0, n = 1 + below(6); i < n; ++i) {
                    const Table::Row row = below(table->rowCount() + 1);
                    switch (below(3)) {
                    case 0: table->insertRows(row, 1 + below(3)); break;
                    case 1: table->removeRows(row, below(table->rowCount() - row + 1) % 4); break;
                    default: table->setCellText(row, below(2), std::to_string(below(100)));
                    }
                }
                table->endTransaction();
                const bool changed = table->canUndo() && !table->canRedo() &&
                                     (states.size() == current + 1 || shown(*table) != before);
                if (shown(*table) != before) {
                    states.resize(current + 1);
                    states.push_back(shown(*table));
                    ++current;
                } else if (changed) {
                    break; // changes that cancel out make a group that this model cannot see
                }
            }
            ASSERT_EQ(shown(*table), states[current]) << "seed " << seed << " step " << step;
        }
    }
}

TEST(DbfUndo, TakesMillionRowsBackAtOnce) {
    MemoryFiles files;
    const auto table = openBytes(files, manyRows(1'200'000, 4));
    table->setCellText(1'100'000, 0, "deep");
    table->beginTransaction();
    table->endTransaction();
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(table->removeRows(100'000, 1'000'000));
    EXPECT_EQ(table->cellText(100'000, 0), "deep");
    table->undo();
    table->redo();
    table->undo();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
    EXPECT_EQ(table->cellText(1'100'000, 0), "deep");
    EXPECT_EQ(table->rowCount(), 1'200'000u);
}

TEST(DbfUndo, TakesManyCellWritesBackInOneStep) {
    MemoryFiles files;
    const auto table = openBytes(files, manyRows(50'000, 8));
    table->beginTransaction();
    for (Table::Row row = 0; row < 50'000; ++row) {
        ASSERT_TRUE(table->setCellText(row, 0, std::to_string(row)));
    }
    table->endTransaction();
    EXPECT_EQ(table->cellText(49'999, 0), "49999");
    table->undo();
    EXPECT_EQ(table->cellText(49'999, 0) + table->cellText(1, 0), "");
    table->redo();
    EXPECT_EQ(table->cellText(49'999, 0), "49999");
}
