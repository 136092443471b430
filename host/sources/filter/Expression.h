// A filter's expression, such as  AGE >= 15 and NAME like 'A%' : an SQL expression over the fields of one record.
// SQLite evaluates it. Text is UTF-8.
#pragma once

#include "filter/RecordsTable.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace filter {

// Why an expression cannot be used, as a sentence for the user.
struct Mistake {
    static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

    std::string text;
    std::size_t position = kNowhere; // the byte of the expression at which it was noticed
    bool isLowMemory = false;        // no mistake of the expression's
};

inline constexpr std::size_t kLongestExpression = 100'000; // bytes: more than an edit box takes characters

class Expression {
public:
    enum class Outcome { done, stopped, failed };

    // Null, with the mistake told, when it is none that can be evaluated over these fields. `records` is borrowed.
    static std::unique_ptr<Expression> compile(std::string_view text, const Records &records, Mistake &mistake);
    ~Expression();

    // Calls `passes` for the rows from `first` to before `last` for which the expression is true, in order.
    // `goOn` may be empty. A failure is told in `mistake`.
    Outcome walk(Row first, Row last, const std::function<void(Row)> &passes, const GoOn &goOn, Mistake &mistake);

private:
    struct Database;

    Expression() = default;

    Walk m_walk;
    std::unique_ptr<Database> m_database;
};

// A field's name as an expression takes it, in double quotes where it needs them.
std::string nameInExpression(const std::string &field);

} // namespace filter
