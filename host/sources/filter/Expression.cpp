#include "filter/Expression.h"

#include "filter/Functions.h"
#include "filter/Ticks.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <utility>

namespace filter {
namespace {

constexpr int kLongestText = 2 * kLongestValue; // bytes that a value may grow to while it is reckoned with
constexpr int kLongestPattern = 1000;           // bytes; a long one takes a fifth of a second on a long text
constexpr int kDeepest = 200;
constexpr int kMostArguments = 100;
constexpr int kStepsPerLook = 1000;

const char *const kLowMemory = "Low memory - cannot carry out operation!";
const char *const kOneRecordOnly = "A filter looks at one record at a time; it cannot hold a SELECT or a record's place.";

struct Limits {
    int selects = 0;           // of the statement being prepared
    bool rowIdIsField = false; // there is a field of this name
};

// Nothing but this one table is read, by one SELECT.
int authorize(void *client, int action, const char *, const char *column, const char *,
              const char *) noexcept {
    auto &limits = *static_cast<Limits *>(client);
    switch (action) {
    case SQLITE_FUNCTION: return column && isAllowedFunction(column) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_SELECT: return ++limits.selects == 1 ? SQLITE_OK : SQLITE_DENY;
    // A record's place is no property of the record: it changes with what is inserted before it.
    case SQLITE_READ:
        return !limits.rowIdIsField && std::string_view(column ? column : "") == "ROWID" ? SQLITE_DENY : SQLITE_OK;
    default: return SQLITE_DENY;
    }
}

bool isRowId(const Field &field) {
    return sqlite3_stricmp(field.name.c_str(), "rowid") == 0;
}

// The text between the first and the last double quote of a message, or behind its colon.
std::string named(const std::string &message) {
    const std::size_t first = message.find('"');
    const std::size_t last = message.rfind('"');
    if (first != std::string::npos && last > first) {
        return message.substr(first + 1, last - first - 1);
    }
    const std::size_t colon = message.find(": ");
    return colon == std::string::npos ? std::string() : message.substr(colon + 2);
}

std::string sentence(std::string message) {
    if (!message.empty()) {
        message[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(message[0])));
    }
    return message + ".";
}

std::string unknownField(const std::string &name, std::string_view text, std::size_t position) {
    std::string told = "There is no field \"" + name + "\".";
    if (position < text.size() && text[position] == '"') {
        told += " Texts stand in single quotes.";
    }
    return told;
}

// SQLite's words in those of somebody who filters records.
std::string explained(const std::string &message, std::string_view text, std::size_t position) {
    const auto begins = [&](std::string_view words) { return message.starts_with(words); };
    if (begins("no such column")) {
        return unknownField(named(message), text, position);
    }
    if (begins("no such function")) {
        return "There is no function \"" + named(message) + "\".";
    }
    if (begins("incomplete input")) {
        return "The expression is not complete.";
    }
    if (begins("near \"")) {
        return "\"" + named(message) + "\" is not expected here.";
    }
    if (begins("unrecognized token")) {
        std::string token = named(message);
        token.erase(token.find_last_not_of(" \r\n") + 1);
        return token.starts_with('\'') ? "The text that begins with " + token + " has no closing quote."
                                       : "\"" + token + "\" cannot be read.";
    }
    if (begins("not authorized to use function")) {
        return "The function \"" + named(message) + "\" cannot be used in a filter.";
    }
    if (begins("not authorized") || begins("access to")) {
        return kOneRecordOnly;
    }
    return sentence(message);
}

} // namespace

struct Expression::Database {
    ~Database() {
        sqlite3_finalize(statement);
        sqlite3_close(handle);
    }

    bool open(Walk &walk);
    bool prepare(const std::string &before, std::string_view text, const std::string &after, Mistake &mistake);

    sqlite3 *handle = nullptr;
    sqlite3_stmt *statement = nullptr;
    Limits limits;
};

bool Expression::Database::open(Walk &walk) {
    if (sqlite3_open_v2(":memory:", &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr) !=
            SQLITE_OK ||
        addRecordsTable(handle, walk) != SQLITE_OK || addFunctions(handle, walk) != SQLITE_OK) {
        return false;
    }
    const auto look = [](void *client) { return static_cast<Walk *>(client)->goesOnInTime() ? 0 : 1; };
    sqlite3_progress_handler(handle, kStepsPerLook, look, &walk);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kLongestText);
    sqlite3_limit(handle, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, kLongestPattern);
    sqlite3_limit(handle, SQLITE_LIMIT_EXPR_DEPTH, kDeepest);
    sqlite3_limit(handle, SQLITE_LIMIT_FUNCTION_ARG, kMostArguments);
    const std::vector<Field> &fields = walk.records->fields();
    limits.rowIdIsField = std::any_of(fields.begin(), fields.end(), isRowId);
    return sqlite3_set_authorizer(handle, authorize, &limits) == SQLITE_OK;
}

bool Expression::Database::prepare(const std::string &before, std::string_view text, const std::string &after,
                                   Mistake &mistake) {
    const std::string sql = before + std::string(text) + after;
    sqlite3_finalize(std::exchange(statement, nullptr));
    limits.selects = 0;
    const char *rest = nullptr;
    const int code = sqlite3_prepare_v2(handle, sql.c_str(), static_cast<int>(sql.size()), &statement, &rest);
    if (code == SQLITE_OK && rest == sql.c_str() + sql.size()) {
        return true;
    }
    if (code == SQLITE_OK) { // a semicolon, and something behind it
        const std::size_t end = static_cast<std::size_t>(rest - sql.c_str());
        mistake = {"\";\" is not expected here.", std::min(end - before.size() - 1, text.size())};
        return false;
    }
    if (code == SQLITE_NOMEM) {
        mistake = {kLowMemory, Mistake::kNowhere, true};
        return false;
    }
    const int offset = sqlite3_error_offset(handle);
    const bool inside = offset >= 0 && static_cast<std::size_t>(offset) >= before.size();
    const std::size_t position = inside ? static_cast<std::size_t>(offset) - before.size() : Mistake::kNowhere;
    mistake.text = explained(sqlite3_errmsg(handle), text, position);
    mistake.position = position == Mistake::kNowhere ? position : std::min(position, text.size());
    return false;
}

Expression::~Expression() = default;

std::unique_ptr<Expression> Expression::compile(std::string_view text, const Records &records, Mistake &mistake) {
    if (std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isspace(c) != 0; })) {
        mistake = {"The expression is empty.", Mistake::kNowhere};
        return nullptr;
    }
    if (const std::size_t zero = text.find('\0'); zero != std::string_view::npos) {
        mistake = {"The expression holds a character that cannot be read.", zero};
        return nullptr;
    }
    if (text.size() > kLongestExpression) {
        mistake = {"The expression has more than " + std::to_string(kLongestExpression) + " bytes.",
                   Mistake::kNowhere};
        return nullptr;
    }
    std::unique_ptr<Expression> made(new Expression);
    made->m_walk.records = &records;
    made->m_database = std::make_unique<Database>();
    if (!made->m_database->open(made->m_walk)) {
        mistake = {kLowMemory, Mistake::kNowhere, true};
        return nullptr;
    }
    // Bare, so that its end is where the user's text ends and a mistake is named as the user made it; then in
    // brackets, which a clause of another kind behind the expression does not survive.
    const std::string select = std::string("SELECT 1 FROM ") + kTableName + " WHERE ";
    Database &database = *made->m_database;
    if (!database.prepare(select, text, "\n", mistake) || !database.prepare(select + "(", text, "\n)", mistake)) {
        return nullptr;
    }
    if (sqlite3_bind_parameter_count(database.statement) > 0) {
        const std::string name = sqlite3_bind_parameter_name(database.statement, 1)
                                     ? sqlite3_bind_parameter_name(database.statement, 1)
                                     : "?";
        mistake = {"\"" + name + "\" stands for no value.", text.find(name)};
        return nullptr;
    }
    return made;
}

Expression::Outcome Expression::walk(Row first, Row last, const std::function<void(Row)> &passes, const GoOn &goOn,
                                     Mistake &mistake) {
    m_walk.first = m_walk.row = first;
    m_walk.last = last;
    m_walk.goOn = &goOn;
    m_walk.stopped = m_walk.failed = false;
    m_walk.asked = ticks();
    sqlite3_stmt *statement = m_database->statement;
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_reset)> begun(statement, sqlite3_reset); // `passes` may throw
    int code = sqlite3_step(statement);
    for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
        passes(m_walk.row);
    }
    m_walk.goOn = nullptr;
    if (code != SQLITE_DONE && !m_walk.stopped) {
        const bool isLowMemory = code == SQLITE_NOMEM || m_walk.failed;
        mistake = {isLowMemory ? kLowMemory : sentence(sqlite3_errmsg(m_database->handle)), Mistake::kNowhere,
                   isLowMemory};
    }
    return code == SQLITE_DONE ? Outcome::done : m_walk.stopped ? Outcome::stopped : Outcome::failed;
}

std::string nameInExpression(const std::string &field) {
    const auto isPlain = [](unsigned char c) { return c < 0x80 && (std::isalnum(c) != 0 || c == '_'); };
    const bool plain = !field.empty() && std::isdigit(static_cast<unsigned char>(field[0])) == 0 &&
                       std::all_of(field.begin(), field.end(), isPlain) &&
                       sqlite3_keyword_check(field.c_str(), static_cast<int>(field.size())) == 0;
    if (plain) {
        return field;
    }
    std::string text = "\"";
    for (const char c : field) {
        text += c == '"' ? "\"\"" : std::string(1, c);
    }
    return text + '"';
}

} // namespace filter
