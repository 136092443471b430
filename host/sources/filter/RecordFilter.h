// Which records of a table an expression is true for. Each record is evaluated once; one that was changed since,
// by an edit, an undo or a redo, once more when it is next asked for.
#pragma once

#include "filter/DbfRecords.h"
#include "filter/Expression.h"

#include <memory>
#include <string>
#include <vector>

namespace filter {

class RecordFilter final : private dbf::RecordWatcher {
public:
    // Null with a message for the user, an empty one when goOn stopped it. `expression` is in the display code page.
    // The table is borrowed, outlives the filter and has no other watcher.
    static std::unique_ptr<RecordFilter> attach(dbf::Table &table, const std::string &expression, const GoOn &goOn,
                                                std::string &message);
    ~RecordFilter();

    // Does the record in this row, below the table's rowCount(), pass? `known` is false when it could not be
    // evaluated, or not in half a second; such a record is tried again after the next change of it.
    bool passes(Row row, bool &known);

private:
    // Two bits a record, by record number.
    enum State : std::uint64_t { kUnknown = 0, kFails = 1, kPasses = 2, kGivenUp = 3 };
    static constexpr std::uint64_t kStateBits = 2;
    static constexpr std::uint64_t kStatesPerWord = 32;

    explicit RecordFilter(dbf::Table &table) : m_table(table), m_records(table) {}
    bool evaluateAll(const GoOn &goOn, std::string &message);
    State evaluate(Row row);
    State stateOf(std::uint64_t record) const noexcept;
    void setState(std::uint64_t record, State state) noexcept;
    void makeRoom(std::uint64_t record);

    void recordChanged(std::uint64_t record) noexcept override;
    void recordsRenumbered() noexcept override;

    dbf::Table &m_table;
    DbfRecords m_records;
    std::unique_ptr<Expression> m_expression;
    std::vector<std::uint64_t> m_states;
};

} // namespace filter
