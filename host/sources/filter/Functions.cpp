#include "filter/Functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

namespace filter {
namespace {

// Sorted. What is not here makes texts of any length out of short ones, tells of the database, or is of no
// use on a record.
constexpr std::string_view kAllowed[] = {"abs",       "char",         "coalesce",     "concat",
                                         "concat_ws", "current_date", "current_time", "current_timestamp",
                                         "date",      "datetime",     "glob",         "if",
                                         "ifnull",    "iif",          "instr",        "julianday",
                                         "length",    "like",         "likelihood",   "likely",
                                         "lower",     "ltrim",        "max",          "min",
                                         "nullif",    "octet_length", "random",       "replace",
                                         "round",     "rtrim",        "sign",         "strftime",
                                         "substr",    "substring",    "time",         "timediff",
                                         "trim",      "typeof",       "unicode",      "unixepoch",
                                         "unlikely",  "upper"};

enum Ends { kFront = 1, kBack = 2 };

struct Trimming {
    const char *name;
    std::intptr_t ends;
};
constexpr Trimming kTrimmings[] = {{"ltrim", kFront}, {"rtrim", kBack}, {"trim", kFront | kBack}};

// The text of an argument; one of NULL, or for which memory fails, has no address.
std::string_view textOf(sqlite3_value *value) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                : std::string_view();
}

bool areAllThere(const std::string_view *first, const std::string_view *last) {
    return std::all_of(first, last, [](std::string_view text) { return text.data() != nullptr; });
}

void answer(sqlite3_context *context, std::string_view text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

std::string replaced(std::string_view text, std::string_view sought, std::string_view other) {
    std::string made;
    std::size_t from = 0;
    for (std::size_t at = text.find(sought); at != std::string_view::npos && made.size() <= kLongestValue;
         at = text.find(sought, from)) {
        made.append(text, from, at - from).append(other);
        from = at + sought.size();
    }
    return made.append(text, from, std::string_view::npos);
}

// Nothing grows beyond the length of a value, so that one step of an expression costs no more than another.
void replace(sqlite3_context *context, int, sqlite3_value **values) noexcept {
    const std::array texts = {textOf(values[0]), textOf(values[1]), textOf(values[2])};
    if (!areAllThere(texts.begin(), texts.end())) {
        return;
    }
    if (!static_cast<Walk *>(sqlite3_user_data(context))->goesOnInTime()) {
        sqlite3_result_error_code(context, SQLITE_INTERRUPT);
        return;
    }
    try {
        const std::string made =
            texts[1].empty() ? std::string(texts[0]) : replaced(texts[0], texts[1], texts[2]);
        if (made.size() > std::max(kLongestValue, texts[0].size())) {
            sqlite3_result_error(context, "the function \"replace\" makes a text that is too long", -1);
        } else {
            answer(context, made);
        }
    } catch (...) {
        sqlite3_result_error_nomem(context);
    }
}

bool continues(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

std::string_view firstCharacter(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && continues(text[length])) {
        ++length;
    }
    return text.substr(0, length);
}

std::string_view lastCharacter(std::string_view text) {
    std::size_t at = text.size() - 1;
    while (at > 0 && continues(text[at])) {
        --at;
    }
    return text.substr(at);
}

std::vector<std::string_view> charactersOf(std::string_view text) {
    std::vector<std::string_view> characters;
    for (; !text.empty(); text.remove_prefix(characters.back().size())) {
        characters.push_back(firstCharacter(text));
    }
    std::sort(characters.begin(), characters.end());
    return characters;
}

std::string_view trimmed(std::string_view text, const std::vector<std::string_view> &characters,
                         std::intptr_t ends) {
    const auto goes = [&](std::string_view one) {
        return std::binary_search(characters.begin(), characters.end(), one);
    };
    while ((ends & kFront) != 0 && !text.empty() && goes(firstCharacter(text))) {
        text.remove_prefix(firstCharacter(text).size());
    }
    while ((ends & kBack) != 0 && !text.empty() && goes(lastCharacter(text))) {
        text.remove_suffix(lastCharacter(text).size());
    }
    return text;
}

// SQLite's own tries each character of the set at each place, which takes minutes where both are long.
void trim(sqlite3_context *context, int, sqlite3_value **values) noexcept {
    const std::array texts = {textOf(values[0]), textOf(values[1])};
    if (!areAllThere(texts.begin(), texts.end())) {
        return;
    }
    try {
        const auto ends = reinterpret_cast<std::intptr_t>(sqlite3_user_data(context));
        answer(context, trimmed(texts[0], charactersOf(texts[1]), ends));
    } catch (...) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

bool isAllowedFunction(std::string_view name) {
    return std::binary_search(std::begin(kAllowed), std::end(kAllowed), name);
}

int addFunctions(sqlite3 *database, Walk &walk) {
    constexpr int kHow = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    int code =
        sqlite3_create_function_v2(database, "replace", 3, kHow, &walk, replace, nullptr, nullptr, nullptr);
    for (const Trimming &each : kTrimmings) {
        if (code == SQLITE_OK) {
            code =
                sqlite3_create_function_v2(database, each.name, 2, kHow, reinterpret_cast<void *>(each.ends),
                                           trim, nullptr, nullptr, nullptr);
        }
    }
    return code;
}

} // namespace filter
