// Every allocation fails in turn: an operation happens as a whole or not at all, and can be repeated.
#include "AllocationFailure.h"
#include "DbfBytes.h"

#include <functional>

using namespace dbftest;
using dbf::Table;

namespace {

// Runs `change` on a fresh table with the Nth allocation failing, for all N, until it succeeds.
void sweep(const std::function<void(Table &)> &prepare, const std::function<void(Table &)> &change) {
    for (int number = 1;; ++number) {
        MemoryFiles files;
        const auto table = openBytes(files, people());
        prepare(*table);
        const std::string before = shown(*table);
        const bool couldUndo = table->canUndo();
        const bool couldRedo = table->canRedo();
        bool thrown = false;
        allocations::failAt(number);
        try {
            change(*table);
        } catch (const std::bad_alloc &) {
            thrown = true;
        }
        const bool failed = allocations::hasFailed();
        allocations::failAt(0);
        if (!failed) {
            ASSERT_GT(number, 1);
            return;
        }
        ASSERT_TRUE(thrown) << number;
        ASSERT_EQ(shown(*table), before) << number;
        ASSERT_EQ(table->canUndo(), couldUndo);
        ASSERT_EQ(table->canRedo(), couldRedo);
        change(*table);
        const std::string after = shown(*table);
        const bool backwards = table->canUndo();
        backwards ? table->undo() : table->redo();
        ASSERT_NE(shown(*table), after);
        backwards ? table->redo() : table->undo();
        ASSERT_EQ(shown(*table), after);
    }
}

void nothing(Table &) {}

void undoneChanges(Table &table) {
    table.insertRows(1, 2);
    table.setCellText(2, 0, "x");
    table.removeRows(0, 2);
    table.undo();
}

} // namespace

TEST(DbfMemory, SetCellIsAllOrNothing) {
    sweep(nothing,
          [](Table &table) { table.setCellText(1, 0, "a longer text").ok || table.setCellText(1, 0, "b"); });
}

TEST(DbfMemory, InsertIsAllOrNothing) {
    sweep(nothing, [](Table &table) { table.insertRows(1, 2); });
}

TEST(DbfMemory, RemoveIsAllOrNothing) {
    sweep(undoneChanges, [](Table &table) { table.removeRows(1, 1); });
}

TEST(DbfMemory, UndoIsAllOrNothing) {
    const auto removeAndInsert = [](Table &table) {
        table.removeRows(1, 1);
        table.insertRows(1, 3);
        table.removeRows(2, 1);
        table.setCellText(0, 0, "x");
    };
    sweep(removeAndInsert, [](Table &table) { table.undo(); });
}

TEST(DbfMemory, SaveLosesNothing) {
    for (int number = 1;; ++number) {
        MemoryFiles files;
        const auto table = openBytes(files, people());
        table->setCellText(0, 0, "Changed");
        table->removeRows(1, 1);
        const std::string rows = shown(*table);
        allocations::failAt(number);
        try {
            table->save();
        } catch (const std::bad_alloc &) {
        }
        const bool failed = allocations::hasFailed();
        allocations::failAt(0);
        EXPECT_EQ(shown(*table), rows) << number;
        const dbf::Result again = table->save();
        ASSERT_TRUE(again) << number << again.message;
        std::unique_ptr<Table> reopened;
        ASSERT_TRUE(Table::open("t.dbf", options(files), reopened));
        ASSERT_EQ(shown(*reopened), rows) << number;
        if (!failed) {
            return;
        }
    }
}

TEST(DbfMemory, OpenLeavesNothingBehind) {
    for (int number = 1;; ++number) {
        MemoryFiles files;
        files.files["t.dbf"] = people();
        const dbf::OpenOptions how = options(files);
        std::unique_ptr<Table> table;
        allocations::failAt(number);
        try {
            Table::open("t.dbf", how, table);
        } catch (const std::bad_alloc &) {
        }
        const bool failed = allocations::hasFailed();
        allocations::failAt(0);
        EXPECT_EQ(files.mapped(), failed ? 0 : 1);
        if (!failed) {
            return;
        }
    }
}
