#include "filter/RecordFilter.h"

#include "filter/Ticks.h"
#include "filter/Utf8.h"

#include <algorithm>

namespace filter {
namespace {

constexpr std::uint64_t kTicksForOne = 500;

} // namespace

std::unique_ptr<RecordFilter> RecordFilter::attach(dbf::Table &table, const std::string &expression,
                                                   const GoOn &goOn, std::string &message) {
    std::unique_ptr<RecordFilter> made(new RecordFilter(table));
    Mistake mistake;
    made->m_expression =
        Expression::compile(toUtf8(expression, dbf::findCodePage(table.displayCodePage())), made->m_records, mistake);
    if (!made->m_expression) {
        message = mistake.text;
        return nullptr;
    }
    if (!made->evaluateAll(goOn, message)) {
        return nullptr;
    }
    table.watch(made.get());
    return made;
}

RecordFilter::~RecordFilter() {
    m_table.unwatch(this);
}

bool RecordFilter::evaluateAll(const GoOn &goOn, std::string &message) {
    const Row rows = m_table.rowCount();
    makeRoom(m_table.recordNumberLimit());
    for (Row row = 0; row < rows; ++row) {
        setState(m_table.recordNumber(row), kFails);
    }
    Mistake mistake;
    const auto outcome = m_expression->walk(
        0, rows, [this](Row row) { setState(m_table.recordNumber(row), kPasses); }, goOn, mistake);
    message = mistake.text;
    return outcome == Expression::Outcome::done;
}

// A paint asks for one record after another, and nobody can stop it.
RecordFilter::State RecordFilter::evaluate(Row row) {
    const std::uint64_t begun = ticks();
    const auto inTime = [begun](Row) { return ticks() - begun < kTicksForOne; };
    State state = kFails;
    Mistake mistake;
    const auto outcome = m_expression->walk(
        row, row + 1, [&state](Row) { state = kPasses; }, inTime, mistake);
    return outcome == Expression::Outcome::done ? state : mistake.isLowMemory ? kUnknown : kGivenUp;
}

bool RecordFilter::passes(Row row, bool &known) {
    const std::uint64_t record = m_table.recordNumber(row);
    State state = stateOf(record);
    if (state == kUnknown) {
        state = evaluate(row);
        makeRoom(record + 1);
        setState(record, state);
    }
    known = state == kPasses || state == kFails;
    return state == kPasses;
}

RecordFilter::State RecordFilter::stateOf(std::uint64_t record) const noexcept {
    const std::uint64_t word = record / kStatesPerWord;
    return word < m_states.size()
               ? static_cast<State>(m_states[word] >> record % kStatesPerWord * kStateBits & 3)
               : kUnknown;
}

void RecordFilter::setState(std::uint64_t record, State state) noexcept {
    const std::uint64_t shift = record % kStatesPerWord * kStateBits;
    std::uint64_t &word = m_states[record / kStatesPerWord];
    word = (word & ~(std::uint64_t{3} << shift)) | std::uint64_t{state} << shift;
}

// For the records below `records`.
void RecordFilter::makeRoom(std::uint64_t records) {
    const std::uint64_t words = (records + kStatesPerWord - 1) / kStatesPerWord;
    if (words > m_states.size()) {
        m_states.resize(words);
    }
}

void RecordFilter::recordChanged(std::uint64_t record) noexcept {
    if (record / kStatesPerWord < m_states.size()) {
        setState(record, kUnknown);
    }
}

void RecordFilter::recordsRenumbered() noexcept {
    std::fill(m_states.begin(), m_states.end(), 0);
}

} // namespace filter
