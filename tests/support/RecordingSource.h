// RecordingSource: a table in memory that notes what is asked of it.
#pragma once

#include "grid/UGDataSource.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// Shared by a test with the objects whose calls it wants in one order. It outlives them.
struct CallLog {
    std::vector<std::string> m_calls;
    void Note(const std::string &call);
    // The calls since the last time, apart by blanks.
    std::string Take();
};

class RecordingSource : public CUGDataSource {
public:
    // Fields are named F0, F1, ... and cell (col, row) holds "col.row".
    RecordingSource(CallLog *log, int fields, long rows, const std::string &name = "src");
    ~RecordingSource() override;

    int Open(const char *name, const char *options) override;
    int Close(bool force) override;
    int Save() override;
    int SaveAs(const char *name, const char *options) override;
    long GetNumRows() override { return m_answersRows ? static_cast<long>(m_rows.size()) : -1; }
    int GetNumCols() override { return static_cast<int>(m_fields.size()); }
    int GetColName(int col, CString *name) override;
    int GetColType(int col, int *type) override;
    int AppendRow() override;
    int InsertRow(long row) override;
    int DeleteRow(long row) override;
    // Row -1: the records that pass.
    int DeleteRows(long row, long count) override;
    int GetCell(int col, long row, CUGCell *cell) override;
    int SetCell(int col, long row, CUGCell *cell) override;
    int FindFirst(int col, const char *text, long *row) override;
    int FindNext(int col, const char *text, long *row) override;
    int SetOption(int option, long value1, long value2) override;
    int GetOption(int option, void *value1, void *value2) override;
    int RequestMoreRows(long rowCount, long wanted, long *found) override;
    int GetFieldWidth(int) override { return m_fieldWidth; }
    void StartTransaction() override;
    void EndTransaction() override;
    void Undo() override;
    void Redo() override;
    bool CanUndo() override { return m_canUndo; }
    bool CanRedo() override { return m_canRedo; }

    std::string Text(int col, long row) const { return m_rows.at(row).at(col); }

    std::vector<std::string> m_fields;
    std::vector<std::vector<std::string>> m_rows;
    int m_fieldWidth = 10;
    bool m_canUndo = false;
    bool m_canRedo = false;
    bool m_writable = true;
    bool m_answersRows = true;          // how many there are
    bool m_answersWritable = true;        // whether option 7 is known at all
    std::map<std::string, int> m_results; // by operation's name: what it answers instead, having done nothing
    int m_openTransactions = 0;
    int m_optionsSet = 0;               // SetOption calls
    long m_reads = 0;                     // GetCell calls
    std::vector<long> m_rowsRead;         // of those of cells, not of the side heading
    std::function<void(const std::string &)> m_onCall; // while an operation is at work, with its name
    std::function<bool(long)> m_passes; // whether a record, 1-based, passes the filter; empty: it cannot be told
    std::function<int(int, long)> m_onSetCell; // what writing a column and row answers; empty: success
    std::vector<int> m_types;           // by column; 0 where there is none
    long m_growsBy = -1;                  // rows that RequestMoreRows reports; below 0 it is not supported

private:
    int Done(const std::string &operation, const std::string &arguments);
    int FindFrom(int col, const char *text, long first, long *row);

    CallLog *m_log;
    std::string m_name;
    long m_found = 0;
};
