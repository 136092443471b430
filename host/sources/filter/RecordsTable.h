// Records as a virtual table of SQLite, so that SQLite's expressions work on them where they are.
#pragma once

#include "filter/Records.h"

#include <functional>
#include <string>

struct sqlite3;

namespace filter {

// Called now and then with the rows walked so far: after some hundred rows, and after some hundredths of a
// second, within a row too. False stops the walk.
using GoOn = std::function<bool(Row done)>;

// What a statement over the table walks, and how far it has come. The table borrows it.
struct Walk {
    const Records *records = nullptr;
    Row first = 0;
    Row last = 0; // the first row beyond the walk
    Row row = 0;  // where the walk stands; while the statement offers a row, that one
    const GoOn *goOn = nullptr;
    bool stopped = false;    // goOn said so,
    bool failed = false;     // or threw
    std::uint64_t asked = 0; // the ticks() at which it was asked last

    // Asks, and answers whether to go on.
    bool goesOn() noexcept;
    // The same, asking only when it has not been asked for a while.
    bool goesOnInTime() noexcept;
};

// Makes the table, under the name kTableName. Answers SQLite's result code. `walk` outlives the database.
int addRecordsTable(sqlite3 *database, Walk &walk);

extern const char *const kTableName;

} // namespace filter
