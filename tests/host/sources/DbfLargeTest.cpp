// Ten million records: opening costs nothing that grows with them, nor does changing the order.
#include "DbfBytes.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

using namespace dbftest;

namespace {

constexpr std::uint32_t kRecords = 10'000'000;

long peakKilobytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

TEST(DbfLarge, OpensAndChangesTenMillionRecordsAtOnce) {
    const std::string path = testing::TempDir() + "large.dbf";
    const std::string head = header(0x03, kRecords, 21, descriptor("A", 'C', 20));
    std::ofstream(path, std::ios::binary) << head;
    std::filesystem::resize_file(path, head.size() + 21ull * kRecords); // a hole in the file, read as zeros

    const long before = peakKilobytes();
    const auto start = std::chrono::steady_clock::now();
    std::unique_ptr<dbf::Table> table;
    ASSERT_TRUE(dbf::Table::open(path, {}, table));
    ASSERT_TRUE(table->insertRows(kRecords / 2, 1));
    ASSERT_TRUE(table->setCellText(kRecords / 2, 0, "middle"));
    ASSERT_TRUE(table->removeRows(0, kRecords / 4));
    EXPECT_EQ(table->cellText(kRecords / 4, 0), "middle");
    table->undo();
    const auto spent = std::chrono::steady_clock::now() - start;
    EXPECT_LT(spent, std::chrono::milliseconds(100));
    EXPECT_LT(peakKilobytes() - before, 4096);
    EXPECT_EQ(table->rowCount(), kRecords);
    EXPECT_EQ(table->cellText(kRecords - 1, 0), "");
    table.reset();
    std::remove(path.c_str());
}

TEST(DbfLarge, WritesHundredThousandCellsInOneTransaction) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 100'000, 21, descriptor("A", 'N', 20, 2)) +
                                            std::string(2'100'000, ' '));
    const auto start = std::chrono::steady_clock::now();
    table->beginTransaction();
    for (dbf::Table::Row row = 0; row < 100'000; ++row) {
        ASSERT_TRUE(table->setCellText(row, 0, "12.5"));
    }
    table->endTransaction();
    // A tenth of a second and less without the checks of this build.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    table->undo();
    EXPECT_FALSE(table->canUndo());
}
