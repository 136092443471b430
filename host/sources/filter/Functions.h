// The functions that an expression may call. Those that serve only to make large values, and those that reach
// beyond the record, are refused; those whose time grows with two texts at once are made here, so that they
// can be stopped.
#pragma once

#include "filter/RecordsTable.h"

#include <string_view>

struct sqlite3;

namespace filter {

// By the name that SQLite gives to a function, also to those that operators stand for.
bool isAllowedFunction(std::string_view name);

// Answers SQLite's result code. `walk` outlives the database.
int addFunctions(sqlite3 *database, Walk &walk);

} // namespace filter
