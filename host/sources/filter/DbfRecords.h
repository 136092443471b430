// A table's records as a filter sees them. Numbers are numbers, empty ones and empty dates are NULL, dates are
// texts YYYY-MM-DD, and everything else is the text that the grid shows, up to its first zero byte and as far as a value
// goes. Only the line breaks of memos, for which the grid shows blanks, are as they are.
#pragma once

#include "dbf/Table.h"
#include "filter/Records.h"

namespace filter {

class DbfRecords final : public Records {
public:
    // The table is borrowed.
    explicit DbfRecords(const dbf::Table &table);

    const std::vector<Field> &fields() const override { return m_fields; }
    Row count() const override { return m_table.rowCount(); }
    void read(Row row, std::size_t field, Value &value) const override;

private:
    const dbf::Table &m_table;
    const dbf::CodePage *m_page;
    std::vector<Field> m_fields;
};

} // namespace filter
