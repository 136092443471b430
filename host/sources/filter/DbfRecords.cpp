#include "filter/DbfRecords.h"

#include "filter/Utf8.h"

#include <algorithm>
#include <charconv>

namespace filter {
namespace {

bool isNumber(dbf::FieldKind kind) {
    switch (kind) {
    case dbf::FieldKind::number:
    case dbf::FieldKind::floating:
    case dbf::FieldKind::integer:
    case dbf::FieldKind::real:
    case dbf::FieldKind::currency: return true;
    default: return false;
    }
}

bool isNullWhenEmpty(dbf::FieldKind kind) {
    return isNumber(kind) || kind == dbf::FieldKind::date || kind == dbf::FieldKind::dateTime ||
           kind == dbf::FieldKind::logical;
}

template <class Number> bool parse(const std::string &text, Number &number) {
    const char *end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    return parsed.ec == std::errc{} && parsed.ptr == end;
}

// What is no number, such as the stars that stand for an overflow, stays a text.
void readNumber(Value &value) {
    if (parse(value.text, value.whole)) {
        value.kind = Value::Kind::whole;
    } else if (parse(value.text, value.real)) {
        value.kind = Value::Kind::real;
    }
}

} // namespace

DbfRecords::DbfRecords(const dbf::Table &table)
    : m_table(table), m_page(dbf::findCodePage(table.displayCodePage())) {
    for (const dbf::Field &field : table.layout().fields) {
        m_fields.push_back({toUtf8(field.name, m_page), isNumber(field.kind)});
    }
}

void DbfRecords::read(Row row, std::size_t field, Value &value) const {
    const dbf::FieldKind kind = m_table.field(field).kind;
    value.text = m_table.cellText(row, field);
    value.text.resize(std::min(value.text.find('\0'), value.text.size()));
    value.kind = value.text.empty() && isNullWhenEmpty(kind) ? Value::Kind::none : Value::Kind::text;
    if (value.kind == Value::Kind::text && isNumber(kind)) {
        readNumber(value);
    } else if (!value.text.empty()) {
        value.text = toUtf8(value.text, m_page);
        cutUtf8(value.text, kLongestValue);
    }
}

} // namespace filter
