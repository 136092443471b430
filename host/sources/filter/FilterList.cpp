#include "filter/FilterList.h"

#include "filter/Utf8.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

namespace filter {
namespace {

const char *const kMake = "CREATE TABLE filter(number INTEGER PRIMARY KEY, name TEXT NOT NULL, expression TEXT NOT NULL);"
                          "PRAGMA user_version = 1";
const char *const kRead = "SELECT number, name, expression FROM filter WHERE number >= 0 ORDER BY number";
const char *const kWrite = "INSERT INTO filter VALUES(?, ?, ?)";
const char *const kVersion = "1";

struct Closing {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
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

constexpr int kMostSteps = 10'000'000; // far more than any list takes; a file made to keep SQLite busy takes more

bool answers(sqlite3 *database, const char *question, std::string_view answer) {
    const Statement statement = prepare(database, question);
    if (!statement || sqlite3_step(statement.get()) != SQLITE_ROW) {
        return false;
    }
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0));
    return text && text == answer;
}

bool isSound(sqlite3 *database) {
    sqlite3_progress_handler(database, kMostSteps, [](void *) { return 1; }, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    return answers(database, "PRAGMA quick_check(1)", "ok") && answers(database, "PRAGMA user_version", kVersion) &&
           answers(database, "SELECT type FROM sqlite_schema WHERE name = 'filter'", "table");
}

std::string textAt(sqlite3_stmt *row, int column, const dbf::CodePage *page) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
    return text ? fromUtf8(text, page) : std::string();
}

bool readAll(sqlite3 *database, const dbf::CodePage *page, std::vector<Definition> &filters) {
    const Statement read = prepare(database, kRead);
    int code = read ? sqlite3_step(read.get()) : SQLITE_ERROR;
    for (; code == SQLITE_ROW; code = sqlite3_step(read.get())) {
        filters.push_back({sqlite3_column_int(read.get(), 0), textAt(read.get(), 1, page), textAt(read.get(), 2, page)});
    }
    return code == SQLITE_DONE;
}

bool writeAll(sqlite3 *database, const dbf::CodePage *page, const std::vector<Definition> &filters) {
    if (sqlite3_exec(database, kMake, nullptr, nullptr, nullptr) != SQLITE_OK) {
        return false;
    }
    const Statement write = prepare(database, kWrite);
    return write && std::all_of(filters.begin(), filters.end(), [&](const Definition &filter) {
        const std::string name = toUtf8(filter.name, page);
        const std::string expression = toUtf8(filter.expression, page);
        sqlite3_bind_int(write.get(), 1, filter.number);
        sqlite3_bind_text64(write.get(), 2, name.data(), name.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        sqlite3_bind_text64(write.get(), 3, expression.data(), expression.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        const bool written = sqlite3_step(write.get()) == SQLITE_DONE;
        sqlite3_reset(write.get());
        return written;
    });
}

dbf::Result writeFile(dbf::Bytes bytes, const std::string &path, dbf::FileStore &files) {
    std::unique_ptr<dbf::FileWriter> writer;
    if (dbf::Result made = files.createBeside(path, writer); !made) {
        return made;
    }
    const std::string temporary = writer->path();
    dbf::Result done = writer->write(bytes);
    if (done) {
        done = writer->flush();
    }
    writer.reset();
    if (done) {
        done = files.replace(temporary, path);
    }
    if (!done) {
        files.remove(temporary);
    }
    return done;
}

} // namespace

std::string FilterList::pathBeside(const std::string &table) {
    const std::size_t folder = table.find_last_of("\\/");
    const std::size_t dot = table.rfind('.');
    const bool hasExtension = dot != std::string::npos && (folder == std::string::npos || dot > folder);
    return table.substr(0, hasExtension ? dot : table.size()) + ".@filters";
}

dbf::Result FilterList::load(const std::string &path, const dbf::CodePage *page, dbf::FileStore &files) {
    m_filters.clear();
    dbf::FileStamp stamp;
    if (!files.stat(path, stamp)) {
        return dbf::Result::success();
    }
    std::unique_ptr<dbf::MappedFile> file;
    if (dbf::Result mapped = files.map(path, file, stamp); !mapped) {
        return mapped;
    }
    const Database database = openInMemory();
    std::vector<Definition> filters;
    const bool read = database && !file->bytes().empty() && fill(database.get(), file->bytes()) &&
                      isSound(database.get()) && readAll(database.get(), page, filters);
    if (!read) {
        return dbf::Result::failure("The filters in \"" + path + "\" cannot be read: the file is damaged or no list of filters.");
    }
    m_filters = std::move(filters);
    return dbf::Result::success();
}

dbf::Result FilterList::save(const std::string &path, const dbf::CodePage *page, dbf::FileStore &files) const {
    const Database database = openInMemory();
    if (!database || !writeAll(database.get(), page, m_filters)) {
        return dbf::Result::failure("Low memory - cannot carry out operation!");
    }
    sqlite3_int64 size = 0;
    struct Freeing {
        void operator()(unsigned char *bytes) const { sqlite3_free(bytes); }
    };
    const std::unique_ptr<unsigned char, Freeing> bytes(sqlite3_serialize(database.get(), "main", &size, 0));
    if (!bytes) {
        return dbf::Result::failure("Low memory - cannot carry out operation!");
    }
    return writeFile({bytes.get(), static_cast<std::size_t>(size)}, path, files);
}

const Definition *FilterList::find(int number) const {
    const auto found = std::find_if(m_filters.begin(), m_filters.end(),
                                    [=](const Definition &filter) { return filter.number == number; });
    return found == m_filters.end() ? nullptr : &*found;
}

void FilterList::put(Definition filter) {
    const auto place = std::lower_bound(m_filters.begin(), m_filters.end(), filter.number,
                                        [](const Definition &each, int number) { return each.number < number; });
    if (place != m_filters.end() && place->number == filter.number) {
        *place = std::move(filter);
    } else {
        m_filters.insert(place, std::move(filter));
    }
}

void FilterList::remove(int number) {
    std::erase_if(m_filters, [=](const Definition &filter) { return filter.number == number; });
}

int FilterList::unusedNumber() const {
    int number = 1;
    while (find(number)) {
        ++number;
    }
    return number;
}

} // namespace filter
