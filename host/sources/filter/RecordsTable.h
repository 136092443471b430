// Records as a virtual table of SQLite, so that SQLite's expressions work on them where they are.
#pragma once

#include "filter/Records.h"

#include <functional>
#include <string>

struct sqlite3;

namespace filter {

// Called now and then with the rows walked so far; false stops the walk.
using GoOn = std::function<bool(Row done)>;

// What a statement over the table walks, and how far it has come. The table borrows it.
struct Walk {
    const Records *records = nullptr;
    Row first = 0;
    Row last = 0; // the first row beyond the walk
    Row row = 0;  // where the walk stands; while the statement offers a row, that one
    const GoOn *goOn = nullptr;
    bool stopped = false; // goOn said so
};

// Makes the table, under the name kTableName. Answers SQLite's result code. `walk` outlives the database.
int addRecordsTable(sqlite3 *database, Walk &walk);

extern const char *const kTableName;

} // namespace filter
