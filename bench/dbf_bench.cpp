// dbf_bench TABLE: what the table engine costs on a large table. Workload: open; show 2,000 cells at random
// rows; remove and bring back a million rows; write one cell of 500,000 rows; insert and remove 100,000
// single rows at random places; save to a copy named TABLE.copy.
#include "dbf/Table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>

namespace {

double milliseconds(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char *what, const std::function<void()> &work) {
    std::printf("%-48s %10.2f ms\n", what, milliseconds(work));
    std::fflush(stdout);
}

void measureRows(dbf::Table &table) {
    const dbf::Table::Row rows = table.rowCount();
    const dbf::Table::Row range = std::min<dbf::Table::Row>(rows / 2, 1'000'000);
    std::mt19937_64 random(1);
    report("remove a range of rows", [&] { table.removeRows(rows / 4, range); });
    report("undo it", [&] { table.undo(); });
    report("insert and remove 100,000 single rows", [&] {
        table.beginTransaction();
        for (int i = 0; i < 100'000; ++i) {
            table.insertRows(random() % table.rowCount(), 1);
            table.removeRows(random() % table.rowCount(), 1);
        }
        table.endTransaction();
    });
    report("undo them", [&] { table.undo(); });
}

void measureCells(dbf::Table &table) {
    std::mt19937_64 random(2);
    std::size_t length = 0;
    report("show 2,000 cells at random rows", [&] {
        for (int i = 0; i < 2'000; ++i) {
            length += table.cellText(random() % table.rowCount(), random() % table.columnCount()).size();
        }
    });
    const dbf::Table::Row count = std::min<dbf::Table::Row>(table.rowCount(), 500'000);
    report("write one cell of 500,000 rows", [&] {
        table.beginTransaction();
        for (dbf::Table::Row row = 0; row < count; ++row) {
            table.setCellText(row, 0, "changed");
        }
        table.endTransaction();
    });
    report("undo them", [&] { table.undo(); });
    report("redo them", [&] { table.redo(); });
    std::printf("%zu characters shown\n", length);
}

} // namespace

int main(int argc, char **argv) {
    std::unique_ptr<dbf::Table> table;
    dbf::Result result;
    if (argc != 2) {
        std::fprintf(stderr, "usage: dbf_bench TABLE\n");
        return 2;
    }
    report("open", [&] { result = dbf::Table::open(argv[1], {}, table); });
    if (!result) {
        std::fprintf(stderr, "%s\n", result.message.c_str());
        return 1;
    }
    std::printf("%llu rows, %zu columns\n", static_cast<unsigned long long>(table->rowCount()),
                table->columnCount());
    measureRows(*table);
    measureCells(*table);
    report("save to a copy", [&] { result = table->saveAs(std::string(argv[1]) + ".copy"); });
    std::printf("%s\n", result.message.c_str());
    return result ? 0 : 1;
}
