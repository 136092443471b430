// What a filter's expression sees of a table: records with named fields. Text is UTF-8 throughout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace filter {

using Row = std::uint64_t; // from 0

// Bytes of a value's text. What an expression does with a record is to take a time that nobody notices.
inline constexpr std::size_t kLongestValue = 65'536;

struct Value {
    enum class Kind { none, whole, real, text };

    Kind kind = Kind::none;
    std::int64_t whole = 0;
    double real = 0;
    std::string text; // kLongestValue bytes at most
};

struct Field {
    std::string name;
    bool isNumber; // texts are taken for numbers when they are compared with it
};

class Records {
public:
    virtual ~Records() = default;

    virtual const std::vector<Field> &fields() const = 0;
    virtual Row count() const = 0;
    // `row` is below count(). Keeps the capacity of value.text.
    virtual void read(Row row, std::size_t field, Value &value) const = 0;
};

} // namespace filter
