#include "RecordingSource.h"

#include <cstring>
#include <utility>

// Never throws: where memory is made to run out the log is not what is under test.
void CallLog::Note(const std::string &call) {
    try {
        m_calls.push_back(call);
    } catch (CMemoryException *e) {
        e->Delete();
    }
}

std::string CallLog::Take() {
    std::string all;
    for (const std::string &call : std::exchange(m_calls, {})) {
        if (!all.empty())
            all += " ";
        all += call;
    }
    return all;
}

RecordingSource::RecordingSource(CallLog *log, int fields, long rows, const std::string &name)
    : m_log(log), m_name(name) {
    for (int col = 0; col < fields; ++col)
        m_fields.push_back("F" + std::to_string(col));
    for (long row = 0; row < rows; ++row) {
        m_rows.emplace_back();
        for (int col = 0; col < fields; ++col)
            m_rows.back().push_back(std::to_string(col) + "." + std::to_string(row));
    }
}

RecordingSource::~RecordingSource() {
    m_log->Note(m_name + ".delete");
}

// Notes the call; nonzero when the script lets it fail.
int RecordingSource::Done(const std::string &operation, const std::string &arguments) {
    m_log->Note(m_name + "." + operation + "(" + arguments + ")");
    if (m_onCall)
        m_onCall(operation);
    const auto result = m_results.find(operation);
    return result != m_results.end() ? result->second : GRID_SUCCESS;
}

int RecordingSource::Open(const char *name, const char *options) {
    return Done("Open", std::string(name) + "," + options);
}

int RecordingSource::Close(bool force) {
    return Done("Close", force ? "1" : "0");
}

int RecordingSource::Save() {
    return Done("Save", "");
}

int RecordingSource::SaveAs(const char *name, const char *options) {
    return Done("SaveAs", std::string(name) + "," + options);
}

int RecordingSource::GetColName(int col, CString *name) {
    if (col < 0 || col >= GetNumCols())
        return GRID_ERROR;
    *name = m_fields[col].c_str();
    return GRID_SUCCESS;
}

int RecordingSource::GetColType(int col, int *type) {
    *type = col >= 0 && static_cast<size_t>(col) < m_types.size() ? m_types[static_cast<size_t>(col)] : 0;
    return GRID_SUCCESS;
}

int RecordingSource::AppendRow() {
    const int result = Done("AppendRow", "");
    if (result == GRID_SUCCESS)
        m_rows.emplace_back(m_fields.size());
    return result;
}

int RecordingSource::InsertRow(long row) {
    const int result = Done("InsertRow", std::to_string(row));
    if (result == GRID_SUCCESS)
        m_rows.insert(m_rows.begin() + row, std::vector<std::string>(m_fields.size()));
    return result;
}

int RecordingSource::DeleteRow(long row) {
    const int result = Done("DeleteRow", std::to_string(row));
    if (result == GRID_SUCCESS)
        m_rows.erase(m_rows.begin() + row);
    return result;
}

int RecordingSource::DeleteRows(long row, long count) {
    if (row >= 0)
        return CUGDataSource::DeleteRows(row, count);
    const int result = Done("DeleteRows", std::to_string(row) + "," + std::to_string(count));
    for (long record = GetNumRows(); result == GRID_SUCCESS && record > 0; --record) {
        if (m_passes && m_passes(record))
            m_rows.erase(m_rows.begin() + record - 1);
    }
    return result;
}

int RecordingSource::GetCell(int col, long row, CUGCell *cell) {
    ++m_reads;
    if (col >= 0)
        m_rowsRead.push_back(row);
    if (col < 0 || col >= GetNumCols() || row < 0 || row >= GetNumRows())
        return GRID_ERROR;
    const auto result = m_results.find("GetCell");
    if (result != m_results.end())
        return result->second;
    cell->SetText(m_rows[row][col].c_str());
    return GRID_SUCCESS;
}

int RecordingSource::SetCell(int col, long row, CUGCell *cell) {
    const std::string where = std::to_string(col) + "," + std::to_string(row);
    int result = Done("SetCell", where + "," + cell->GetText());
    if (result == GRID_SUCCESS && m_onSetCell)
        result = m_onSetCell(col, row);
    if (result == GRID_SUCCESS && row < GetNumRows() && col < GetNumCols())
        m_rows[row][col] = cell->GetText();
    return result;
}

int RecordingSource::FindFrom(int col, const char *text, long first, long *row) {
    for (long i = first; i < GetNumRows(); ++i) {
        if (m_rows[i][col] == text) {
            *row = m_found = i;
            return GRID_SUCCESS;
        }
    }
    return GRID_ERROR;
}

int RecordingSource::FindFirst(int col, const char *text, long *row) {
    Done("FindFirst", std::to_string(col) + "," + text);
    return FindFrom(col, text, 0, row);
}

int RecordingSource::FindNext(int col, const char *text, long *row) {
    Done("FindNext", std::to_string(col) + "," + text);
    return FindFrom(col, text, m_found + 1, row);
}

int RecordingSource::SetOption(int option, long value1, long) {
    ++m_optionsSet;
    return Done("SetOption", std::to_string(option) + "," + std::to_string(value1));
}

int RecordingSource::GetOption(int option, void *value1, void *value2) {
    constexpr int kTestRecord = 2;
    if (option == kTestRecord) { // asked too often to be noted
        if (!m_passes)
            return GRID_NOT_IMPLEMENTED;
        *static_cast<int *>(value2) = m_passes(*static_cast<long *>(value1)) ? 1 : 0;
        return GRID_SUCCESS;
    }
    const int result = Done("GetOption", std::to_string(option));
    if (option != UGSRC_WRITABLE || !m_answersWritable)
        return GRID_NOT_IMPLEMENTED;
    *static_cast<int *>(value1) = m_writable ? 1 : 0;
    return result;
}

int RecordingSource::RequestMoreRows(long rowCount, long wanted, long *found) {
    Done("RequestMoreRows", std::to_string(rowCount) + "," + std::to_string(wanted));
    if (m_growsBy < 0)
        return GRID_NOT_IMPLEMENTED;
    *found = m_growsBy;
    return GRID_SUCCESS;
}

void RecordingSource::StartTransaction() {
    Done("StartTransaction", "");
    ++m_openTransactions;
}

void RecordingSource::EndTransaction() {
    --m_openTransactions;
    Done("EndTransaction", "");
}

void RecordingSource::Undo() {
    Done("Undo", "");
}

void RecordingSource::Redo() {
    Done("Redo", "");
}
