// CDbfDataSource: a dBASE or FoxPro table behind the grid. All the work is done by dbf::Table; this class
// speaks the grid's interface and shows no window of its own: what the user is to be told or asked goes
// through the hooks.
#pragma once

#include "dbf/Table.h"
#include "filter/RecordFilter.h"
#include "grid/UGDataSource.h"

#include <functional>
#include <memory>
#include <new>
#include <string>

class CDbfDataSource : public CUGDataSource {
public:
    // Any of them may be empty.
    struct Hooks {
        // Why something was refused or failed, or what was odd about a table just opened.
        std::function<void(const std::string &)> message;
        // Undoing or redoing changed the number of rows; the owner calls the control's OnDataSourceNotify
        // with the message 1.
        std::function<void()> rowsChanged;
        // The table is about to be closed with changes that are not saved. False keeps it open. Empty: the
        // changes are lost.
        std::function<bool(CDbfDataSource &)> mayClose;
        // Somebody else changed the file since it was read. True overwrites it. Empty: it is not overwritten.
        std::function<bool(const std::string &path)> mayOverwrite;
        // A filter is being worked out: records done, and all of them. False stops it. Called every few
        // hundred, and within a record that takes long.
        std::function<bool(std::uint64_t done, std::uint64_t all)> progress;
    };

    // What GetColType answers.
    enum ColType {
        kCharacter = 0,
        kLogical = 1,
        kWholeNumber = 2,
        kDecimalNumber = 3,
        kFloatNumber = 4,
        kBinaryNumber = 5,
        kMemo = 6,
        kDate = 7,
    };

    CDbfDataSource() = default;
    explicit CDbfDataSource(Hooks hooks) : m_hooks(std::move(hooks)) {}

    // The hook that most often needs the source itself, so it can be given once there is one.
    void SetRowsChangedHook(std::function<void()> hook) { m_hooks.rowsChanged = std::move(hook); }

    // Null while no table is open.
    const dbf::Table *GetTable() const { return m_table.get(); }

    // Options ending in "-view " open for viewing only, and "-filter 3" attaches a filter; without that filter
    // nothing is opened. The table's name in them means nothing here.
    int Open(const char *name, const char *options) override;
    int Close(bool force) override;
    int Save() override;
    // With "-filter 3" in the options only the records that pass are written, and remain. The list of filters goes
    // along with the table where there is none yet.
    int SaveAs(const char *name, const char *options) override;

    long GetNumRows() override;
    int GetNumCols() override;
    int GetColName(int col, CString *name) override;
    int GetColType(int col, int *type) override;
    int GetFieldWidth(int col) override;
    int GetFieldDecimals(int col) override;

    int AppendRow() override;
    int InsertRow(long row) override;
    int DeleteRow(long row) override;
    int InsertRows(long row, long count) override;
    // The row -1 means the records that pass the attached filter.
    int DeleteRows(long row, long count) override;

    // Sets the text, and the read-only mark where the field is only shown; column -1 is the record's number. How
    // text is aligned is left to the layers below.
    int GetCell(int col, long row, CUGCell *cell) override;
    int SetCell(int col, long row, CUGCell *cell) override;
    // Compare whole texts, ignoring the case of letters.
    int FindFirst(int col, const char *text, long *row) override;
    int FindNext(int col, const char *text, long *row) override;

    // UGSRC_PATH: value1 points to a pointer to a CString, which receives the path. UGSRC_WRITABLE: see CUGDataSource.
    // UGSRC_PASSES_FILTER costs a look into a bitmap; it is refused without a filter and beyond the last record.
    int GetOption(int option, void *value1, void *value2) override;
    // UGSRC_ATTACH_FILTER evaluates the filter of this number for every record, and tells why it cannot: then the one
    // attached before stays. Rows are never hidden, so that UGSRC_ONLY_FILTERED is only taken note of.
    int SetOption(int option, long value1, long value2) override;

    // Values that are refused in between are told of once, at the end.
    void StartTransaction() override;
    void EndTransaction() override;
    void Undo() override;
    void Redo() override;
    bool CanUndo() override;
    bool CanRedo() override;

private:
    template <class Work> int Guarded(Work work) const;
    template <class Change> int Carry(Change change);
    template <class Step> void Travel(Step step);
    std::unique_ptr<filter::RecordFilter> MakeFilter(dbf::Table &table, int number) const;
    int AttachFilter(int number);
    int AskFilter(long record, int *passes);
    dbf::Result RemovePassing(dbf::Table &table);
    void TakeFiltersAlong(const std::string &from, const std::string &to) const;
    const dbf::Field *FieldAt(int col) const;
    int FindFrom(dbf::Table::Row row, int col, const char *text, long *found);
    void Tell(const std::string &message) const;
    void TellWarnings() const;
    void RefuseValue(const std::string &why);

    Hooks m_hooks;
    std::unique_ptr<dbf::Table> m_table;
    std::unique_ptr<filter::RecordFilter> m_filter; // borrows the table
    int m_filterNumber = -1;
    bool m_inTransaction = false;
    long m_refused = 0;     // values refused in the transaction,
    std::string m_refusal;  // and why the first of them was
    dbf::Table::Row m_findNext = 0; // where FindNext goes on
    const std::string m_lowMemory = "Low memory - cannot carry out operation!";
};

// Runs work that answers a result code. No exception leaves, since the callers stand in window procedures.
template <class Work> int CDbfDataSource::Guarded(Work work) const {
    try {
        return work();
    } catch (const std::bad_alloc &) {
        Tell(m_lowMemory);
    } catch (CMemoryException *e) { // what a failing allocation throws once the framework is loaded
        e->Delete();
        Tell(m_lowMemory);
    }
    return GRID_ERROR;
}
