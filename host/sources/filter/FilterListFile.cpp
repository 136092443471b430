#include "filter/FilterListFile.h"

#include "filter/Utf8.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <string_view>

namespace filter {
namespace {

const char *const kTable =
    "CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, expression TEXT NOT NULL)";
const char *const kRead = "SELECT number, name, expression FROM filter ORDER BY number";
const char *const kWrite = "INSERT INTO filter VALUES(?, ?, ?)";
const char *const kSetVersion = "PRAGMA user_version = 1";
constexpr int kVersion = 1;

const char *const kLowMemory = "there is not enough memory";
const char *const kDamaged = "the file is damaged or no list of filters";
const char *const kSomethingElse = "the file holds something else than one table of filters";
const char *const kOtherVersion = "the list is of another version";
const char *const kOddNumber = "a filter's number is not one of 0 to 2147483647";

constexpr int kMostSteps = 2'000'000; // ten times what the longest list takes

// What reading a list needs; SQLite's own bounds are wider by far.
constexpr struct {
    int limit;
    int value;
} kLimits[] = {{SQLITE_LIMIT_LENGTH, kLargestListFile}, // the checks of values tell more
               {SQLITE_LIMIT_SQL_LENGTH, 1000},
               {SQLITE_LIMIT_COLUMN, 10},
               {SQLITE_LIMIT_EXPR_DEPTH, 10},
               {SQLITE_LIMIT_COMPOUND_SELECT, 10},
               {SQLITE_LIMIT_VDBE_OP, 10'000},
               {SQLITE_LIMIT_FUNCTION_ARG, 1},
               {SQLITE_LIMIT_ATTACHED, 0},
               {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
               {SQLITE_LIMIT_WORKER_THREADS, 0}};

struct Closing {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    void operator()(unsigned char *bytes) const { sqlite3_free(bytes); }
};
using Database = std::unique_ptr<sqlite3, Closing>;
using Statement = std::unique_ptr<sqlite3_stmt, Closing>;

Database openInMemory() {
    sqlite3 *made = nullptr;
    const int code = sqlite3_open_v2(":memory:", &made, SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr);
    Database database(made);
    return code == SQLITE_OK ? std::move(database) : Database();
}

Statement prepare(sqlite3 *database, const char *sql) {
    sqlite3_stmt *made = nullptr;
    sqlite3_prepare_v2(database, sql, -1, &made, nullptr);
    return Statement(made);
}

// The two tables are read and the two pragmas asked; no function is called and nothing else is there.
int authorize(void *, int action, const char *name, const char *, const char *, const char *) noexcept {
    const auto isOneOf = [name](std::string_view one, std::string_view other) {
        return name && (name == one || name == other);
    };
    switch (action) {
    case SQLITE_SELECT: return SQLITE_OK;
    case SQLITE_READ: return isOneOf("filter", "sqlite_master") ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_PRAGMA: return isOneOf("user_version", "quick_check") ? SQLITE_OK : SQLITE_DENY;
    default: return SQLITE_DENY;
    }
}

void restrict(sqlite3 *database) {
    for (const auto &each : kLimits) {
        sqlite3_limit(database, each.limit, each.value);
    }
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_progress_handler(
        database, kMostSteps, [](void *) { return 1; }, nullptr);
    sqlite3_set_authorizer(database, authorize, nullptr);
}

// Fills the database with the bytes of a file.
bool fill(sqlite3 *database, dbf::Bytes bytes) {
    auto *copy = static_cast<unsigned char *>(sqlite3_malloc64(bytes.size()));
    if (!copy) {
        return false;
    }
    std::memcpy(copy, bytes.data(), bytes.size());
    const auto size = static_cast<sqlite3_int64>(bytes.size());
    return sqlite3_deserialize(database, "main", copy, size, size,
                               SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_READONLY) == SQLITE_OK;
}

std::string_view textAt(sqlite3_stmt *row, int column) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(row, column)))
                : std::string_view();
}

// The reason why a database is not one of ours; empty when it is.
std::string refusedSchema(sqlite3 *database) {
    const Statement entry = prepare(database, "SELECT type, name, tbl_name, sql FROM sqlite_schema");
    int code = entry ? sqlite3_step(entry.get()) : SQLITE_ERROR;
    if (code != SQLITE_ROW) {
        return code == SQLITE_DONE ? kSomethingElse : kDamaged;
    }
    const bool ours = textAt(entry.get(), 0) == "table" && textAt(entry.get(), 1) == "filter" &&
                      textAt(entry.get(), 2) == "filter" && textAt(entry.get(), 3) == kTable;
    return ours && sqlite3_step(entry.get()) == SQLITE_DONE ? std::string() : kSomethingElse;
}

std::string refusedVersion(sqlite3 *database) {
    const Statement version = prepare(database, "PRAGMA user_version");
    const bool told = version && sqlite3_step(version.get()) == SQLITE_ROW;
    return told && sqlite3_column_int(version.get(), 0) == kVersion ? std::string() : kOtherVersion;
}

std::string refusedPages(sqlite3 *database) {
    const Statement check = prepare(database, "PRAGMA quick_check(1)");
    const bool told = check && sqlite3_step(check.get()) == SQLITE_ROW;
    return told && textAt(check.get(), 0) == "ok" ? std::string() : kDamaged;
}

bool fitsNumber(std::int64_t number) {
    return number >= 0 && number <= std::numeric_limits<int>::max();
}

std::string refusedText(const char *what, std::int64_t number, bool isText, std::string_view text) {
    const std::string which = std::string("the ") + what + " of filter " + std::to_string(number);
    if (!isText || text.find('\0') != std::string_view::npos) {
        return which + " is no text";
    }
    return text.size() > kLongestListText
               ? which + " has more than " + std::to_string(kLongestListText) + " bytes"
               : std::string();
}

std::string refusedCount(std::size_t filters) {
    return filters > kMostFilters ? "it holds more than " + std::to_string(kMostFilters) + " filters"
                                  : std::string();
}

std::string refusedRow(sqlite3_stmt *row) {
    const std::int64_t number = sqlite3_column_int64(row, 0);
    if (!fitsNumber(number)) {
        return kOddNumber;
    }
    std::string refused;
    for (const auto &[column, what] : {std::pair{1, "name"}, {2, "expression"}}) {
        const bool isText = sqlite3_column_type(row, column) == SQLITE_TEXT;
        if (refused.empty()) {
            refused = refusedText(what, number, isText, isText ? textAt(row, column) : std::string_view());
        }
    }
    return refused;
}

std::string readRows(sqlite3 *database, const dbf::CodePage *page, std::vector<Definition> &filters) {
    const Statement read = prepare(database, kRead);
    int code = read ? sqlite3_step(read.get()) : SQLITE_ERROR;
    for (; code == SQLITE_ROW; code = sqlite3_step(read.get())) {
        std::string refused = refusedRow(read.get());
        if (refused.empty()) {
            refused = refusedCount(filters.size() + 1);
        }
        if (!refused.empty()) {
            return refused;
        }
        filters.push_back({sqlite3_column_int(read.get(), 0), fromUtf8(textAt(read.get(), 1), page),
                           fromUtf8(textAt(read.get(), 2), page)});
    }
    return code == SQLITE_DONE ? std::string() : kDamaged;
}

// Each step trusts what the ones before it have found.
std::string readAll(dbf::Bytes bytes, const dbf::CodePage *page, std::vector<Definition> &filters) {
    std::string refused = bytes.empty() ? kDamaged : refusedSize(bytes.size());
    if (!refused.empty()) {
        return refused;
    }
    const Database database = openInMemory();
    if (!database || !fill(database.get(), bytes)) {
        return kLowMemory;
    }
    restrict(
        database.get()); // filling is a statement of its own; what was filled in is first looked at below
    for (const auto look : {refusedSchema, refusedVersion, refusedPages}) {
        refused = look(database.get());
        if (!refused.empty()) {
            return refused;
        }
    }
    return readRows(database.get(), page, filters);
}

std::string refusedFilter(const Definition &filter, const std::string &name, const std::string &expression) {
    if (!fitsNumber(filter.number)) {
        return kOddNumber;
    }
    const std::string refused = refusedText("name", filter.number, true, name);
    return refused.empty() ? refusedText("expression", filter.number, true, expression) : refused;
}

bool write(sqlite3_stmt *row, int number, const std::string &name, const std::string &expression) {
    sqlite3_bind_int(row, 1, number);
    sqlite3_bind_text64(row, 2, name.data(), name.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    sqlite3_bind_text64(row, 3, expression.data(), expression.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    const bool written = sqlite3_step(row) == SQLITE_DONE;
    sqlite3_reset(row);
    return written;
}

std::string writeRows(sqlite3 *database, const dbf::CodePage *page, const std::vector<Definition> &filters) {
    if (sqlite3_exec(database, kTable, nullptr, nullptr, nullptr) != SQLITE_OK ||
        sqlite3_exec(database, kSetVersion, nullptr, nullptr, nullptr) != SQLITE_OK) {
        return kLowMemory;
    }
    const Statement row = prepare(database, kWrite);
    for (const Definition &filter : filters) {
        const std::string name = toUtf8(filter.name, page);
        const std::string expression = toUtf8(filter.expression, page);
        if (std::string refused = refusedFilter(filter, name, expression); !refused.empty()) {
            return refused;
        }
        if (!row || !write(row.get(), filter.number, name, expression)) {
            return kLowMemory;
        }
    }
    return {};
}

std::string writeAll(const std::vector<Definition> &filters, const dbf::CodePage *page,
                     std::vector<std::uint8_t> &bytes) {
    std::string refused = refusedCount(filters.size());
    if (!refused.empty()) {
        return refused;
    }
    const Database database = openInMemory();
    refused = database ? writeRows(database.get(), page, filters) : kLowMemory;
    if (!refused.empty()) {
        return refused;
    }
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, Closing> made(sqlite3_serialize(database.get(), "main", &size, 0));
    if (!made) {
        return kLowMemory;
    }
    bytes.assign(made.get(), made.get() + size);
    return refusedSize(bytes.size());
}

dbf::Result resultOf(const std::string &refused) {
    return refused.empty() ? dbf::Result::success() : dbf::Result::failure(refused);
}

} // namespace

std::string refusedSize(std::uint64_t bytes) {
    return bytes > kLargestListFile ? "the file is larger than 16 MB" : std::string();
}

dbf::Result readFilters(dbf::Bytes bytes, const dbf::CodePage *page, std::vector<Definition> &filters) {
    std::vector<Definition> read;
    const std::string refused = readAll(bytes, page, read);
    if (refused.empty()) {
        filters = std::move(read);
    }
    return resultOf(refused);
}

dbf::Result writeFilters(const std::vector<Definition> &filters, const dbf::CodePage *page,
                         std::vector<std::uint8_t> &bytes) {
    return resultOf(writeAll(filters, page, bytes));
}

} // namespace filter
