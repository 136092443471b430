#include "filter/RecordsTable.h"

#include "filter/Ticks.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <set>

namespace filter {

const char *const kTableName = "records";

namespace {

constexpr Row kRowsPerLook = 256;
constexpr std::uint64_t kTicksPerLook = 20;

struct Table {
    sqlite3_vtab base; // SQLite's part, first
    Walk *walk;
};

struct Cursor {
    sqlite3_vtab_cursor base; // SQLite's part, first
    Walk *walk;
    Value value;
};

Cursor &own(sqlite3_vtab_cursor *cursor) {
    return *reinterpret_cast<Cursor *>(cursor);
}

std::string quoted(const std::string &name) {
    std::string text = "\"";
    for (const char c : name) {
        text += c == '"' ? "\"\"" : std::string(1, c);
    }
    return text + '"';
}

std::string folded(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name;
}

// Damaged tables have fields of the same name or of none; the later ones get a mark, so that all can be declared.
std::string declaration(const Records &records) {
    std::set<std::string> names;
    std::string text;
    for (const Field &field : records.fields()) {
        std::string name = field.name;
        while (!names.insert(folded(name)).second) {
            name += '#';
        }
        text += (text.empty() ? "CREATE TABLE t(" : ", ") + quoted(name) + (field.isNumber ? " NUMERIC" : " TEXT");
    }
    return text + ")";
}

int connect(sqlite3 *database, void *client, int, const char *const *, sqlite3_vtab **made, char **) noexcept {
    try {
        auto *walk = static_cast<Walk *>(client);
        if (const int code = sqlite3_declare_vtab(database, declaration(*walk->records).c_str()); code != SQLITE_OK) {
            return code;
        }
        *made = &(new Table{{}, walk})->base;
        return SQLITE_OK;
    } catch (...) {
        return SQLITE_NOMEM;
    }
}

int disconnect(sqlite3_vtab *table) noexcept {
    delete reinterpret_cast<Table *>(table);
    return SQLITE_OK;
}

// Every record is walked; there is nothing to look a value up in.
int bestIndex(sqlite3_vtab *, sqlite3_index_info *info) noexcept {
    info->estimatedCost = 1e6;
    return SQLITE_OK;
}

int openCursor(sqlite3_vtab *table, sqlite3_vtab_cursor **made) noexcept {
    try {
        *made = &(new Cursor{{}, reinterpret_cast<Table *>(table)->walk, {}})->base;
        return SQLITE_OK;
    } catch (...) {
        return SQLITE_NOMEM;
    }
}

int closeCursor(sqlite3_vtab_cursor *cursor) noexcept {
    delete &own(cursor);
    return SQLITE_OK;
}

int start(sqlite3_vtab_cursor *cursor, int, const char *, int, sqlite3_value **) noexcept {
    Walk &walk = *own(cursor).walk;
    walk.row = walk.first;
    return SQLITE_OK;
}

int next(sqlite3_vtab_cursor *cursor) noexcept {
    Walk &walk = *own(cursor).walk;
    ++walk.row;
    const bool byRows = (walk.row - walk.first) % kRowsPerLook == 0;
    return (byRows ? walk.goesOn() : walk.goesOnInTime()) ? SQLITE_OK : SQLITE_INTERRUPT;
}

int isAtEnd(sqlite3_vtab_cursor *cursor) noexcept {
    const Walk &walk = *own(cursor).walk;
    return walk.row >= walk.last;
}

int column(sqlite3_vtab_cursor *cursor, sqlite3_context *context, int index) noexcept {
    Value &value = own(cursor).value;
    Walk &walk = *own(cursor).walk;
    if (!walk.goesOnInTime()) {
        return SQLITE_INTERRUPT;
    }
    try {
        walk.records->read(walk.row, static_cast<std::size_t>(index), value);
    } catch (...) {
        return SQLITE_NOMEM;
    }
    switch (value.kind) {
    case Value::Kind::none: sqlite3_result_null(context); break;
    case Value::Kind::whole: sqlite3_result_int64(context, value.whole); break;
    case Value::Kind::real: sqlite3_result_double(context, value.real); break;
    case Value::Kind::text:
        sqlite3_result_text64(context, value.text.data(), value.text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        break;
    }
    return SQLITE_OK;
}

int rowId(sqlite3_vtab_cursor *cursor, sqlite3_int64 *id) noexcept {
    *id = static_cast<sqlite3_int64>(own(cursor).walk->row);
    return SQLITE_OK;
}

sqlite3_module recordsModule() {
    sqlite3_module module{};
    module.xCreate = connect;
    module.xConnect = connect;
    module.xBestIndex = bestIndex;
    module.xDisconnect = disconnect;
    module.xDestroy = disconnect;
    module.xOpen = openCursor;
    module.xClose = closeCursor;
    module.xFilter = start;
    module.xNext = next;
    module.xEof = isAtEnd;
    module.xColumn = column;
    module.xRowid = rowId;
    return module;
}

} // namespace

bool Walk::goesOn() noexcept {
    try {
        stopped = stopped || (goOn && *goOn && !(*goOn)(row - first));
    } catch (...) {
        failed = true; // what an allocation throws depends on the framework
    }
    asked = ticks();
    return !stopped && !failed;
}

bool Walk::goesOnInTime() noexcept {
    return ticks() - asked < kTicksPerLook ? !stopped && !failed : goesOn();
}

int addRecordsTable(sqlite3 *database, Walk &walk) {
    static const sqlite3_module module = recordsModule();
    if (const int code = sqlite3_create_module(database, kTableName, &module, &walk); code != SQLITE_OK) {
        return code;
    }
    const std::string make = std::string("CREATE VIRTUAL TABLE temp.") + kTableName + " USING " + kTableName;
    return sqlite3_exec(database, make.c_str(), nullptr, nullptr, nullptr);
}

} // namespace filter
