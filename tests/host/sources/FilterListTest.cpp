// The list of filters and its file.
#include "AllocationFailure.h"
#include "MemoryFiles.h"
#include "filter/FilterList.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

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
    const std::string refused =
        "The filters in \"staff.@filters\" cannot be read: the file is damaged or no list of filters.";
    for (const std::string &bytes :
         {std::string(), std::string("hello"), std::string(4096, '\0'), bytesOf("CREATE TABLE other(a)"),
          bytesOf("CREATE TABLE filter(number, name, expression)"), // of no version
          bytesOf("CREATE VIEW filter AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) "
                  "SELECT x AS number, '' AS name, '' AS expression FROM n; PRAGMA user_version = 1")}) {
        files.files[kPath] = bytes;
        EXPECT_EQ(stored(files), refused) << bytes.size();
    }
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
