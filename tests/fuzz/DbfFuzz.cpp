#include "DbfFuzz.h"

#include "../host/sources/MemoryFiles.h"
#include "dbf/Table.h"

#include <algorithm>
#include <cstdlib>

namespace {

void require(bool truth) {
    if (!truth) {
        std::abort();
    }
}

std::string contents(const dbf::Table &table) {
    std::string text;
    for (dbf::Table::Row row = 0; row < std::min<dbf::Table::Row>(table.rowCount(), 20); ++row) {
        text += table.isMarkedDeleted(row) ? '*' : ' ';
        for (std::size_t column = 0; column < std::min<std::size_t>(table.columnCount(), 40); ++column) {
            text += table.cellText(row, column) + '\n';
        }
    }
    return text;
}

void change(dbf::Table &table) {
    table.beginTransaction();
    for (std::size_t column = 0; column < std::min<std::size_t>(table.columnCount(), 40); ++column) {
        for (const char *text : {"1", "2024-02-29", "T", "\xFC x", ""}) {
            table.setCellText(0, column, text);
        }
    }
    table.insertRows(0, 2);
    table.removeRows(table.rowCount() - 1, 1);
    table.setCellText(1, 0, "1");
    table.endTransaction();
}

} // namespace

void exerciseTable(const std::uint8_t *bytes, std::size_t size) {
    if (size < 2) {
        return;
    }
    MemoryFiles files;
    const std::size_t memo = std::min<std::size_t>(bytes[0] | bytes[1] << 8, size - 2);
    const std::string all(reinterpret_cast<const char *>(bytes) + 2, size - 2);
    files.files["t.dbf"] = all.substr(memo);
    files.files["t.dbt"] = files.files["t.fpt"] = all.substr(0, memo);

    dbf::OpenOptions options;
    options.files = &files;
    options.displayCodePage = 1252;
    std::unique_ptr<dbf::Table> table;
    const dbf::Result opened = dbf::Table::open("t.dbf", options, table);
    require(files.files["t.dbf"] == all.substr(memo));
    if (!opened) {
        require(!opened.message.empty());
        return;
    }
    const std::string before = contents(*table);
    change(*table);
    const std::string after = contents(*table);
    table->undo();
    require(contents(*table) == before);
    table->redo();
    require(contents(*table) == after);
    require(table->save().ok);
    require(contents(*table) == after);
    std::unique_ptr<dbf::Table> again;
    require(dbf::Table::open("t.dbf", options, again).ok);
    require(contents(*again) == after);
    require(again->rowCount() == table->rowCount());
}
