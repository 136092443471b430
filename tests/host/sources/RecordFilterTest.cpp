// Which records pass, kept up to date while the table changes.
#include "filter/RecordFilter.h"
#include "AllocationFailure.h"
#include "DbfBytes.h"
#include "SlowFilter.h"

#include <chrono>
#include <random>

using namespace dbftest;
using filter::RecordFilter;

namespace {

std::unique_ptr<RecordFilter> attach(dbf::Table &table, const std::string &expression) {
    std::string message;
    auto made = RecordFilter::attach(table, expression, {}, message);
    EXPECT_EQ(message, "");
    return made;
}

// One character a row: + passes, - fails, ? cannot be evaluated.
std::string passing(RecordFilter &filter, const dbf::Table &table) {
    std::string text;
    for (dbf::Table::Row row = 0; row < table.rowCount(); ++row) {
        bool known = false;
        const bool passes = filter.passes(row, known);
        text += known ? passes ? '+' : '-' : '?';
    }
    return text;
}

} // namespace

TEST(RecordFilter, FollowsEditsUndoAndRedo) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto filter = attach(*table, "PAY > 0");
    EXPECT_EQ(passing(*filter, *table), "+--");
    ASSERT_TRUE(table->setCellText(1, 1, "5"));
    EXPECT_EQ(passing(*filter, *table), "++-");
    table->undo();
    EXPECT_EQ(passing(*filter, *table), "+--");
    table->redo();
    EXPECT_EQ(passing(*filter, *table), "++-");
}

TEST(RecordFilter, FollowsRowsThatComeAndGo) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto filter = attach(*table, "NAME like 'a%'");
    ASSERT_TRUE(table->insertRows(0, 2));
    EXPECT_EQ(passing(*filter, *table), "--+--");
    ASSERT_TRUE(table->setCellText(1, 0, "Arno"));
    EXPECT_EQ(passing(*filter, *table), "-++--");
    ASSERT_TRUE(table->removeRows(0, 2));
    EXPECT_EQ(passing(*filter, *table), "+--");
    table->undo();
    EXPECT_EQ(passing(*filter, *table), "+--") << "one group: all of it is undone";
    table->redo();
    ASSERT_TRUE(table->appendRows(100));
    EXPECT_EQ(passing(*filter, *table), "+--" + std::string(100, '-'));
}

TEST(RecordFilter, GoesOnAfterASave) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto filter = attach(*table, "PAY > 0");
    ASSERT_TRUE(table->insertRows(0, 1));
    ASSERT_TRUE(table->removeRows(2, 1));
    ASSERT_TRUE(table->save());
    EXPECT_EQ(passing(*filter, *table), "-+-");
    ASSERT_TRUE(table->setCellText(0, 1, "1"));
    EXPECT_EQ(passing(*filter, *table), "++-");
}

TEST(RecordFilter, ChangesOfAnyKindAgreeWithAFreshFilter) {
    MemoryFiles files;
    const auto table = openBytes(files, people());
    const auto filter = attach(*table, "PAY >= 50");
    std::mt19937 random(71);
    for (int step = 0; step < 400; ++step) {
        const auto below = [&](std::uint64_t limit) { return random() % (limit ? limit : 1); };
        switch (random() % 8) {
        case 0: table->insertRows(below(table->rowCount() + 1), 1 + below(4)); break;
        case 1: if (table->rowCount() > 4) table->removeRows(below(table->rowCount() - 2), 2); break;
        case 2: table->undo(); break;
        case 3: table->redo(); break;
        case 4: table->beginTransaction(); table->endTransaction(); break;
        case 5: if (step % 50 == 0) table->save(); break;
        default: table->setCellText(below(table->rowCount()), 1, std::to_string(below(100)));
        }
        std::string expected;
        for (dbf::Table::Row row = 0; row < table->rowCount(); ++row) {
            const std::string pay = table->cellText(row, 1);
            expected += !pay.empty() && std::stod(pay) >= 50 ? '+' : '-';
        }
        ASSERT_EQ(passing(*filter, *table), expected) << step;
    }
}

TEST(RecordFilter, FollowsATableThatBeginsWithoutRecords) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 0, 4, descriptor("A", 'N', 3)));
    const auto filter = attach(*table, "A > 0");
    EXPECT_EQ(passing(*filter, *table), "");
    ASSERT_TRUE(table->insertRows(0, 2));
    ASSERT_TRUE(table->setCellText(1, 0, "7"));
    EXPECT_EQ(passing(*filter, *table), "-+");
}

TEST(RecordFilter, ARecordThatCannotBeEvaluatedIsUnknown) {
    MemoryFiles files;
    const auto wide = openBytes(files, header(0x03, 2, 11, descriptor("N", 'N', 10)) + "          1" + "          2");
    const auto overflows = attach(*wide, "abs(-9223372036854775798 - N) > 9223372036854775799");
    EXPECT_EQ(passing(*overflows, *wide), "-+");
    ASSERT_TRUE(wide->setCellText(0, 0, "10"));
    EXPECT_EQ(passing(*overflows, *wide), "?+");
    EXPECT_EQ(passing(*overflows, *wide), "?+");
    ASSERT_TRUE(wide->setCellText(0, 0, "3"));
    EXPECT_EQ(passing(*overflows, *wide), "++");
}

TEST(RecordFilter, ARecordThatTakesLongIsGivenUpOnce) {
    MemoryFiles files;
    const auto table = openBytes(files, slowRecord(files));
    const auto filter = attach(*table, "N = 1 and (" + slowExpression() + ")");
    EXPECT_EQ(passing(*filter, *table), "-");
    ASSERT_TRUE(table->setCellText(0, 1, "1"));
    auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(passing(*filter, *table), "?");
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(2));
    begun = std::chrono::steady_clock::now();
    EXPECT_EQ(passing(*filter, *table), "?");
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::milliseconds(50))
        << "each paint asks again";
    ASSERT_TRUE(table->setCellText(0, 1, "2"));
    EXPECT_EQ(passing(*filter, *table), "-");
}

TEST(RecordFilter, AttachingIsAllOrNothingWhenMemoryFails) {
    for (int number = 1;; ++number) {
        MemoryFiles files;
        const auto table = openBytes(files, people());
        std::unique_ptr<RecordFilter> filter;
        std::string message;
        allocations::failAt(number);
        try {
            filter = RecordFilter::attach(*table, "PAY > 0", {}, message);
        } catch (const std::bad_alloc &) {
        }
        const bool failed = allocations::hasFailed();
        allocations::failAt(0);
        ASSERT_TRUE(table->setCellText(0, 1, "1")) << "nobody watches any more";
        if (!failed) {
            ASSERT_TRUE(filter);
            break;
        }
        if (!filter && !message.empty()) {
            EXPECT_EQ(message, "Low memory - cannot carry out operation!");
        }
    }
}

TEST(RecordFilter, TellsOfProgressAndStops) {
    MemoryFiles files;
    const auto table = openBytes(files, header(0x03, 600, 2, descriptor("A", 'C', 1)) + std::string(1200, ' '));
    std::string message;
    std::string seen;
    EXPECT_TRUE(RecordFilter::attach(*table, "1", [&](filter::Row done) { seen += std::to_string(done) + " "; return true; }, message));
    EXPECT_EQ(seen, "256 512 ");
    EXPECT_FALSE(RecordFilter::attach(*table, "1", [](filter::Row) { return false; }, message));
    EXPECT_EQ(message, "");
}
