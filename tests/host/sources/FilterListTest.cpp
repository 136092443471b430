// The list of filters and its file.
#include "AllocationFailure.h"
#include "MemoryFiles.h"
#include "filter/FilterList.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>

using filter::FilterList;

namespace {

const char *const kPath = "staff.@filters";

const dbf::CodePage *western() {
    return dbf::findCodePage(1252);
}

std::string shown(const FilterList &list) {
    std::string text;
    for (const filter::Definition &each : list.all()) {
        text += std::to_string(each.number) + " " + each.name + ": " + each.expression + "\n";
    }
    return text;
}

// The list in the file, or why it cannot be read.
std::string stored(MemoryFiles &files) {
    FilterList list;
    const dbf::Result loaded = list.load(kPath, western(), files);
    return loaded ? shown(list) : loaded.message;
}

FilterList two() {
    FilterList list;
    list.put({2, "Young", "AGE < 30"});
    list.put({0, "", "NAME = 'M\xFCller'"});
    return list;
}

std::string bytesOf(const std::string &sql) {
    sqlite3 *database = nullptr;
    sqlite3_open(":memory:", &database);
    sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
    sqlite3_int64 size = 0;
    unsigned char *bytes = sqlite3_serialize(database, "main", &size, 0);
    const std::string text(reinterpret_cast<char *>(bytes), static_cast<std::size_t>(size));
    sqlite3_free(bytes);
    sqlite3_close(database);
    return text;
}

const std::string kTable = "CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, expression TEXT NOT NULL)";

std::string refusal(const std::string &why) {
    return "The filters in \"staff.@filters\" cannot be read: " + why + ".";
}

std::string storedFrom(const std::string &sql) {
    MemoryFiles files;
    files.files[kPath] = bytesOf(sql);
    return stored(files);
}

// The list that holds one filter of these values.
std::string storedWith(const std::string &values) {
    return storedFrom(kTable + ";PRAGMA user_version = 1;INSERT INTO filter VALUES(" + values + ")");
}

} // namespace

TEST(FilterList, StandsBesideTheTable) {
    EXPECT_EQ(FilterList::pathBeside("C:\\data\\staff.dbf"), "C:\\data\\staff.@filters");
    EXPECT_EQ(FilterList::pathBeside("C:\\data.old\\staff"), "C:\\data.old\\staff.@filters");
    EXPECT_EQ(FilterList::pathBeside("staff"), "staff.@filters");
}

TEST(FilterList, KeepsNumbersInOrder) {
    FilterList list = two();
    EXPECT_EQ(list.unusedNumber(), 1);
    list.put({1, "All", "1"});
    EXPECT_EQ(list.unusedNumber(), 3);
    list.put({2, "Old", "AGE > 60"});
    EXPECT_EQ(shown(list), "0 : NAME = 'M\xFCller'\n1 All: 1\n2 Old: AGE > 60\n");
    list.remove(1);
    EXPECT_EQ(list.find(1), nullptr);
    ASSERT_NE(list.find(2), nullptr);
    EXPECT_EQ(list.find(2)->name, "Old");
}

TEST(FilterList, ComesBackFromItsFile) {
    MemoryFiles files;
    EXPECT_EQ(stored(files), "") << "no file holds no filters";
    ASSERT_TRUE(two().save(kPath, western(), files));
    EXPECT_EQ(stored(files), shown(two()));
    EXPECT_EQ(files.files[kPath].substr(0, 15), "SQLite format 3");
    FilterList empty;
    ASSERT_TRUE(empty.save(kPath, western(), files));
    EXPECT_EQ(stored(files), "");
    EXPECT_EQ(files.mapped(), 0);
}

TEST(FilterList, AFileThatIsNoListIsRefusedByName) {
    MemoryFiles files;
    for (const std::string &bytes : {std::string(), std::string("hello"), std::string(4096, '\0')}) {
        files.files[kPath] = bytes;
        EXPECT_EQ(stored(files), refusal("the file is damaged or no list of filters")) << bytes.size();
    }
}

TEST(FilterList, AFileThatHoldsAnythingElseIsRefused) {
    for (const std::string &sql :
         {std::string("CREATE TABLE other(a)"), std::string("CREATE TABLE filter(number, name, expression)"),
          std::string("CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, "
                      "expression TEXT AS (upper(name)) NOT NULL); INSERT INTO filter(number, name) VALUES(1, 'a')"),
          std::string("CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, expression TEXT NOT NULL "
                      "CHECK(length(expression) > 0)); INSERT INTO filter VALUES(1, 'a', 'b')"),
          std::string("CREATE VIEW filter AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) "
                      "SELECT x AS number, '' AS name, '' AS expression FROM n"),
          kTable + ";CREATE TABLE more(a)", kTable + ";CREATE VIEW more AS SELECT 1",
          kTable + ";CREATE INDEX more ON filter(name)",
          kTable + ";CREATE TRIGGER more AFTER INSERT ON filter BEGIN DELETE FROM filter; END"}) {
        EXPECT_EQ(storedFrom(sql + ";PRAGMA user_version = 1"),
                  refusal("the file holds something else than one table of filters"))
            << sql;
    }
}

TEST(FilterList, AListOfAnotherVersionIsRefused) {
    EXPECT_EQ(storedFrom(kTable), refusal("the list is of another version"));
    EXPECT_EQ(storedFrom(kTable + ";PRAGMA user_version = 2"), refusal("the list is of another version"));
    EXPECT_EQ(storedWith("1, 'a', 'b'"), "1 a: b\n");
}

TEST(FilterList, NumbersThatNoFilterCanHaveAreRefused) {
    const std::string refused = refusal("a filter's number is not one of 0 to 2147483647");
    EXPECT_EQ(storedWith("2147483647, 'a', 'b'"), "2147483647 a: b\n");
    EXPECT_EQ(storedWith("2147483648, 'a', 'b'"), refused);
    EXPECT_EQ(storedWith("4294967297, 'a', 'b'"), refused) << "it is not taken for 1";
    EXPECT_EQ(storedWith("-1, 'a', 'b'"), refused);
}

TEST(FilterList, WhatIsNoTextIsRefused) {
    EXPECT_EQ(storedWith("3, x'41', 'b'"), refusal("the name of filter 3 is no text"));
    EXPECT_EQ(storedWith("3, 'a', x'41'"), refusal("the expression of filter 3 is no text"));
    EXPECT_EQ(storedWith("3, 'a' || char(0) || 'c', 'b'"), refusal("the name of filter 3 is no text"));
    EXPECT_EQ(storedWith("3, 'a', 'b' || char(0)"), refusal("the expression of filter 3 is no text"));
    EXPECT_EQ(storedWith("3, 17, 4.5"), "3 17: 4.5\n") << "the column makes texts of numbers";
}

TEST(FilterList, NamesExpressionsAndListsHaveBounds) {
    EXPECT_EQ(storedWith("1, '', replace(hex(zeroblob(50000)), '0', 'a')").size(), 100'005u);
    for (const char *length : {"50001", "600000", "3000000"}) {
        const std::string text = "replace(hex(zeroblob(" + std::string(length) + ")), '0', 'a')";
        EXPECT_EQ(storedWith("1, '', " + text), refusal("the expression of filter 1 has more than 100000 bytes")) << length;
        EXPECT_EQ(storedWith("1, " + text + ", ''"), refusal("the name of filter 1 has more than 100000 bytes")) << length;
    }
    const std::string many = kTable + ";PRAGMA user_version = 1;WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 "
                             "FROM n) INSERT INTO filter SELECT x, '', '1' FROM n LIMIT ";
    EXPECT_EQ(storedFrom(many + "5000").substr(0, 10), "1 : 1\n2 : ");
    EXPECT_EQ(storedFrom(many + "5001"), refusal("it holds more than 5000 filters"));
    EXPECT_EQ(storedFrom(kTable + ";PRAGMA user_version = 1;CREATE TABLE t(a);INSERT INTO t VALUES(zeroblob(17000000));"
                                  "DROP TABLE t"),
              refusal("the file is larger than 16 MB"));
}

TEST(FilterList, FiltersOutOfOrderAreRefused) {
    MemoryFiles files;
    files.files[kPath] = bytesOf(kTable + ";PRAGMA user_version = 1;INSERT INTO filter VALUES(1, 'a', 'b'), (2, 'c', 'd')");
    std::string &bytes = files.files[kPath];
    std::swap(bytes[4096 + 8], bytes[4096 + 10]); // where the two rows begin in their page
    std::swap(bytes[4096 + 9], bytes[4096 + 11]);
    EXPECT_EQ(stored(files), refusal("the file is damaged or no list of filters"));
}

TEST(FilterList, NothingOfARefusedListIsUsed) {
    MemoryFiles files;
    FilterList list = two();
    files.files[kPath] = bytesOf(kTable + ";PRAGMA user_version = 1;INSERT INTO filter VALUES(1, 'a', 'b'), (2, 'c', x'00')");
    const std::string before = files.files[kPath];
    EXPECT_FALSE(list.load(kPath, western(), files));
    EXPECT_EQ(shown(list), "");
    EXPECT_EQ(files.files[kPath], before);
}

TEST(FilterList, AListThatCouldNotBeReadIsNotWritten) {
    MemoryFiles files;
    ASSERT_TRUE(two().save(kPath, western(), files));
    const auto refused = [&](const filter::Definition &definition) {
        FilterList list;
        list.put(definition);
        const dbf::Result saved = list.save(kPath, western(), files);
        EXPECT_EQ(stored(files), shown(two()));
        return saved.message;
    };
    const std::string cannot = "The filters cannot be stored in \"staff.@filters\": ";
    EXPECT_EQ(refused({7, "", std::string(100'001, '1')}), cannot + "the expression of filter 7 has more than 100000 bytes.");
    EXPECT_EQ(refused({7, std::string(50'000, '\x80'), ""}), cannot + "the name of filter 7 has more than 100000 bytes.")
        << "three bytes each";
    EXPECT_EQ(refused({-7, "", ""}), cannot + "a filter's number is not one of 0 to 2147483647.");
    EXPECT_EQ(refused({7, "", std::string(1, '\0')}), cannot + "the expression of filter 7 is no text.");
    FilterList many, large;
    for (int number = 0; number <= 5000; ++number) {
        many.put({number, "", "1"});
    }
    for (int number = 0; number < 170; ++number) {
        large.put({number, "", std::string(100'000, '1')});
    }
    EXPECT_EQ(many.save(kPath, western(), files).message, cannot + "it holds more than 5000 filters.");
    EXPECT_EQ(large.save(kPath, western(), files).message, cannot + "the file is larger than 16 MB.");
    EXPECT_EQ(stored(files), shown(two()));
}

TEST(FilterList, AnUnusedNumberIsFoundInOneWalk) {
    FilterList list;
    EXPECT_EQ(list.unusedNumber(), 1);
    for (int number = 0; number < 200'000; ++number) {
        list.put({number == 150'000 ? 0 : number, "", ""});
    }
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(list.unusedNumber(), 150'000);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(1));
}

TEST(FilterList, DamageAnywhereIsRefusedOrRead) {
    MemoryFiles files;
    ASSERT_TRUE(two().save(kPath, western(), files));
    const std::string good = files.files[kPath];
    for (std::size_t length = 0; length < good.size(); length += 61) {
        files.files[kPath] = good.substr(0, length);
        EXPECT_NE(stored(files), shown(two())) << length;
    }
    for (std::size_t at = 0; at < good.size(); at += 7) {
        files.files[kPath] = good;
        files.files[kPath][at] = static_cast<char>(~good[at]);
        stored(files); // must come back
    }
}

TEST(FilterList, AFailedSaveLeavesTheOldFile) {
    MemoryFiles files;
    ASSERT_TRUE(two().save(kPath, western(), files));
    for (int step = 1;; ++step) {
        files.failAt(step);
        const dbf::Result saved = FilterList().save(kPath, western(), files);
        const bool failed = files.hasFailed();
        files.failAt(0);
        if (!failed) {
            ASSERT_GT(step, 2);
            break;
        }
        EXPECT_FALSE(saved) << step;
        EXPECT_EQ(stored(files), shown(two())) << step;
        EXPECT_EQ(files.files.size(), 1u) << "a temporary file was left behind";
    }
}
