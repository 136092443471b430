#include "DbfDataSource.h"

#include "grid/UGDefine.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

namespace {

constexpr dbf::Table::Row kMostRows = std::numeric_limits<long>::max();

bool asksForViewing(const char *options) {
    std::string_view text = options ? options : "";
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text.ends_with("-view");
}

// The number behind "-filter ", -1 when there is none.
int filterIn(const char *options) {
    constexpr std::string_view kSwitch = "-filter ";
    const std::string_view text = options ? options : "";
    const std::size_t place = text.rfind(kSwitch);
    int number = -1;
    if (place != std::string_view::npos) {
        std::from_chars(text.data() + place + kSwitch.size(), text.data() + text.size(), number);
    }
    return number;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    const auto lowered = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lowered(x) == lowered(y); });
}

CDbfDataSource::ColType typeOf(const dbf::Field &field) {
    switch (field.kind) {
    case dbf::FieldKind::logical: return CDbfDataSource::kLogical;
    case dbf::FieldKind::number:
        return field.decimals ? CDbfDataSource::kDecimalNumber : CDbfDataSource::kWholeNumber;
    case dbf::FieldKind::floating: return CDbfDataSource::kFloatNumber;
    case dbf::FieldKind::integer:
    case dbf::FieldKind::real:
    case dbf::FieldKind::currency: return CDbfDataSource::kBinaryNumber;
    case dbf::FieldKind::memo:
    case dbf::FieldKind::blob:
    case dbf::FieldKind::varBinary:
    case dbf::FieldKind::raw: return CDbfDataSource::kMemo;
    case dbf::FieldKind::date:
    case dbf::FieldKind::dateTime: return CDbfDataSource::kDate;
    case dbf::FieldKind::character:
    case dbf::FieldKind::varChar: break;
    }
    return CDbfDataSource::kCharacter;
}

// A cell shows one line; a memo's line breaks would be boxes in it.
void putOnOneLine(std::string &text) {
    for (char &c : text) {
        if (static_cast<unsigned char>(c) < ' ') {
            c = ' ';
        }
    }
}

// Characters of the text that stands for a value.
std::size_t shownWidth(const dbf::Field &field) {
    switch (field.kind) {
    case dbf::FieldKind::date: return 10;    // YYYY-MM-DD
    case dbf::FieldKind::integer: return 11; // -2147483648
    case dbf::FieldKind::real: return 20;
    case dbf::FieldKind::currency: return 21; // -922337203685477.5808 and room for a sign
    case dbf::FieldKind::dateTime: return 19; // YYYY-MM-DD HH:MM:SS
    case dbf::FieldKind::memo:
    case dbf::FieldKind::blob: return 10;
    case dbf::FieldKind::varBinary: return 2 * field.width;
    default: return field.width;
    }
}

} // namespace

void CDbfDataSource::Tell(const std::string &message) const {
    if (m_hooks.message) {
        m_hooks.message(message);
    }
}

// Runs a change of the table and tells of its failure.
template <class Change> int CDbfDataSource::Carry(Change change) {
    if (!m_table) {
        return GRID_ERROR;
    }
    return Guarded([&]() -> int {
        const dbf::Result result = change(*m_table);
        if (!result && !result.message.empty()) {
            Tell(result.message);
        }
        return result ? GRID_SUCCESS : GRID_ERROR;
    });
}

const dbf::Field *CDbfDataSource::FieldAt(int col) const {
    const bool exists = m_table && col >= 0 && static_cast<std::size_t>(col) < m_table->columnCount();
    return exists ? &m_table->field(static_cast<std::size_t>(col)) : nullptr;
}

int CDbfDataSource::Open(const char *name, const char *options) {
    return Guarded([&]() -> int {
        dbf::OpenOptions how;
        how.readOnly = asksForViewing(options);
        std::unique_ptr<dbf::Table> table;
        if (const dbf::Result opened = dbf::Table::open(name, how, table); !opened) {
            Tell(opened.message);
            return GRID_ERROR;
        }
        const int number = filterIn(options);
        std::unique_ptr<filter::RecordFilter> filter = number < 0 ? nullptr : MakeFilter(*table, number);
        if (number >= 0 && !filter) {
            return GRID_ERROR;
        }
        m_filter = std::move(filter); // the old one's table is still there
        m_filterNumber = number;
        m_table = std::move(table);
        m_findNext = 0;
        TellWarnings();
        return GRID_SUCCESS;
    });
}

void CDbfDataSource::TellWarnings() const {
    constexpr std::size_t kMostTold = 10; // a message must fit on the screen
    const auto &warnings = m_table->openWarnings();
    std::string odd;
    for (std::size_t i = 0; i < warnings.size() && i < kMostTold; ++i) {
        odd += "\n" + warnings[i];
    }
    if (warnings.size() > kMostTold) {
        odd += "\nand " + std::to_string(warnings.size() - kMostTold) + " more";
    }
    if (!odd.empty()) {
        Tell("\"" + m_table->path() + "\":\n" + odd);
    }
}

int CDbfDataSource::Close(bool force) {
    if (m_table && m_table->canUndo() && !force && m_hooks.mayClose && !m_hooks.mayClose(*this)) {
        return GRID_ERROR;
    }
    m_filter.reset();
    m_table.reset();
    return GRID_SUCCESS;
}

int CDbfDataSource::Save() {
    return Carry([this](dbf::Table &table) {
        if (!table.canUndo()) {
            return dbf::Result::success(); // the file holds everything already
        }
        const bool overwrite =
            table.isForeign() && m_hooks.mayOverwrite && m_hooks.mayOverwrite(table.path());
        return table.save(overwrite);
    });
}

int CDbfDataSource::SaveAs(const char *name, const char *options) {
    return Carry([=, this](dbf::Table &table) {
        const int number = filterIn(options);
        if (number >= 0 && (!m_filter || number != m_filterNumber) && AttachFilter(number) != GRID_SUCCESS) {
            return dbf::Result::failure({}); // told already
        }
        const std::string before = table.path();
        const bool overwrite =
            before == name && table.isForeign() && m_hooks.mayOverwrite && m_hooks.mayOverwrite(before);
        dbf::Table::RowPredicate keep;
        if (number >= 0) {
            keep = [this](dbf::Table::Row row) {
                bool known = false;
                return m_filter->passes(row, known) || !known;
            };
        }
        const dbf::Result saved = table.saveAs(name, keep, overwrite);
        if (saved) {
            Guarded([&]() -> int {
                TakeFiltersAlong(before, name);
                return GRID_SUCCESS;
            });
        }
        return saved;
    });
}

long CDbfDataSource::GetNumRows() {
    return m_table ? static_cast<long>(std::min(m_table->rowCount(), kMostRows)) : GRID_NOT_IMPLEMENTED;
}

int CDbfDataSource::GetNumCols() {
    return m_table ? static_cast<int>(m_table->columnCount()) : GRID_NOT_IMPLEMENTED;
}

int CDbfDataSource::GetColName(int col, CString *name) {
    const dbf::Field *field = FieldAt(col);
    if (!field) {
        return GRID_ERROR;
    }
    *name = field->name.c_str();
    return GRID_SUCCESS;
}

int CDbfDataSource::GetColType(int col, int *type) {
    const dbf::Field *field = FieldAt(col);
    if (!field) {
        return GRID_ERROR;
    }
    *type = typeOf(*field);
    return GRID_SUCCESS;
}

int CDbfDataSource::GetFieldWidth(int col) {
    const dbf::Field *field = FieldAt(col);
    return field ? static_cast<int>(shownWidth(*field)) : 0;
}

int CDbfDataSource::GetFieldDecimals(int col) {
    const dbf::Field *field = FieldAt(col);
    if (!field) {
        return GRID_NOT_IMPLEMENTED;
    }
    switch (field->kind) {
    case dbf::FieldKind::currency: return 4;
    case dbf::FieldKind::number:
    case dbf::FieldKind::floating:
    case dbf::FieldKind::real: return field->decimals;
    default: return 0;
    }
}

int CDbfDataSource::AppendRow() {
    return m_table ? InsertRows(GetNumRows(), 1) : GRID_ERROR;
}

int CDbfDataSource::InsertRow(long row) {
    return InsertRows(row, 1);
}

int CDbfDataSource::DeleteRow(long row) {
    return DeleteRows(row, 1);
}

int CDbfDataSource::InsertRows(long row, long count) {
    if (count < 1) {
        return GRID_SUCCESS;
    }
    return Carry([=](dbf::Table &table) {
        const auto more = static_cast<dbf::Table::Row>(count);
        if (row < 0 || table.rowCount() + more > kMostRows) {
            return dbf::Result::failure("The rows cannot be inserted");
        }
        return table.insertRows(static_cast<dbf::Table::Row>(row), more);
    });
}

int CDbfDataSource::DeleteRows(long row, long count) {
    if (row >= 0 && count < 1) {
        return GRID_SUCCESS;
    }
    return Carry([=, this](dbf::Table &table) {
        if (row < 0) {
            return RemovePassing(table);
        }
        return table.removeRows(static_cast<dbf::Table::Row>(row), static_cast<dbf::Table::Row>(count));
    });
}

int CDbfDataSource::GetCell(int col, long row, CUGCell *cell) {
    if (!m_table || row < 0 || static_cast<dbf::Table::Row>(row) >= m_table->rowCount()) {
        return GRID_ERROR;
    }
    if (col == -1) { // the side heading: the record's number
        return Guarded([&]() -> int { return cell->SetText(std::to_string(row + 1).c_str()); });
    }
    const dbf::Field *field = FieldAt(col);
    if (!field) {
        return GRID_ERROR;
    }
    return Guarded([&]() -> int {
        std::string text = m_table->cellText(static_cast<dbf::Table::Row>(row), static_cast<std::size_t>(col));
        if (field->kind == dbf::FieldKind::memo) {
            putOnOneLine(text);
        }
        if (!text.empty()) { // an empty text is no property to merge
            cell->SetText(text.c_str());
        }
        if (!field->isEditable()) {
            cell->SetReadOnly(1);
        }
        return GRID_SUCCESS;
    });
}

int CDbfDataSource::SetCell(int col, long row, CUGCell *cell) {
    if (col < 0 || row < 0) {
        return GRID_ERROR;
    }
    if (!m_table) {
        return GRID_ERROR;
    }
    return Guarded([&]() -> int {
        const dbf::Result result = m_table->setCellText(static_cast<dbf::Table::Row>(row),
                                                        static_cast<std::size_t>(col), cell->GetText());
        if (!result) {
            RefuseValue(result.message);
        }
        return result ? GRID_SUCCESS : GRID_ERROR;
    });
}

// A paste of many values can have as many refused: one message for all of them is enough.
void CDbfDataSource::RefuseValue(const std::string &why) {
    if (!m_inTransaction) {
        Tell(why);
    } else if (++m_refused == 1) {
        m_refusal = why;
    }
}

int CDbfDataSource::FindFrom(dbf::Table::Row row, int col, const char *text, long *found) {
    if (!FieldAt(col)) {
        return GRID_ERROR;
    }
    const dbf::Table::Row rows = std::min(m_table->rowCount(), kMostRows);
    for (; row < rows; ++row) {
        if (equalIgnoringCase(m_table->cellText(row, static_cast<std::size_t>(col)), text)) {
            *found = static_cast<long>(row);
            m_findNext = row + 1;
            return GRID_SUCCESS;
        }
    }
    m_findNext = rows;
    return GRID_ERROR;
}

int CDbfDataSource::FindFirst(int col, const char *text, long *row) {
    return Guarded([&] { return FindFrom(0, col, text, row); });
}

int CDbfDataSource::FindNext(int col, const char *text, long *row) {
    return Guarded([&] { return FindFrom(m_findNext, col, text, row); });
}

int CDbfDataSource::GetOption(int option, void *value1, void *value2) {
    if (!m_table) {
        return GRID_ERROR;
    }
    switch (option) {
    case UGSRC_PATH:
        return Guarded([&]() -> int {
            **static_cast<CString **>(value1) = m_table->path().c_str();
            return GRID_SUCCESS;
        });
    case UGSRC_WRITABLE: *static_cast<int *>(value1) = m_table->isWritable() ? 1 : 0; return GRID_SUCCESS;
    case UGSRC_PASSES_FILTER:
        return AskFilter(*static_cast<const long *>(value1), static_cast<int *>(value2));
    default: return GRID_NOT_IMPLEMENTED;
    }
}

int CDbfDataSource::SetOption(int option, long value1, long) {
    if (!m_table) {
        return GRID_ERROR;
    }
    switch (option) {
    case UGSRC_ATTACH_FILTER: return AttachFilter(static_cast<int>(value1));
    case UGSRC_DETACH_FILTER: m_filter.reset(); return GRID_SUCCESS;
    case UGSRC_ONLY_FILTERED: return GRID_SUCCESS;
    default: return GRID_NOT_IMPLEMENTED;
    }
}

void CDbfDataSource::StartTransaction() {
    if (m_table) {
        m_table->beginTransaction();
        m_inTransaction = true;
        m_refused = 0;
    }
}

void CDbfDataSource::EndTransaction() {
    if (m_table) {
        m_table->endTransaction();
    }
    m_inTransaction = false;
    const long refused = std::exchange(m_refused, 0);
    if (refused == 1) {
        Tell(m_refusal);
    } else if (refused > 1) {
        Guarded([&]() -> int {
            Tell(m_refusal + "\n\n" + std::to_string(refused) + " values were left out.");
            return GRID_SUCCESS;
        });
    }
}

// Undoes or redoes a group.
template <class Step> void CDbfDataSource::Travel(Step step) {
    const long rows = GetNumRows();
    Carry([&](dbf::Table &table) {
        step(table);
        return dbf::Result::success();
    });
    if (GetNumRows() != rows && m_hooks.rowsChanged) {
        m_hooks.rowsChanged();
    }
}

void CDbfDataSource::Undo() {
    Travel([](dbf::Table &table) { table.undo(); });
}

void CDbfDataSource::Redo() {
    Travel([](dbf::Table &table) { table.redo(); });
}

bool CDbfDataSource::CanUndo() {
    return m_table && m_table->canUndo();
}

bool CDbfDataSource::CanRedo() {
    return m_table && m_table->canRedo();
}
