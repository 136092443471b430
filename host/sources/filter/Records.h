// What a filter's expression sees of a table: records with named fields. Text is UTF-8 throughout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace filter {

using Row = std::uint64_t; // from 0

struct Value {
    enum class Kind { none, whole, real, text };

    Kind kind = Kind::none;
    std::int64_t whole = 0;
    double real = 0;
    std::string text;
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
