// A dBASE or FoxPro table, open for reading and changing.
//
// The file is mapped, not read: opening costs the same for a thousand and for ten million records. Changes
// stand in memory, above the file, until save() writes a new file and puts it in the place of the old one in
// one step. Every record of the file is a row, those marked deleted too; removing a row takes the record out
// of the table with the next save.
//
// Rows and columns count from 0. Text goes in and out in the display code page. Nothing here throws, except
// std::bad_alloc, after which everything is as it was before the call.
#pragma once

#include "EditHistory.h"
#include "RecordOrder.h"
#include "RecordOverlay.h"
#include "TableFile.h"
#include "Today.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dbf {

struct OpenOptions {
    FileStore *files = nullptr;    // null: the real file system; must outlive the table
    int displayCodePage = 0;       // 0: that of the process
    bool readOnly = false;         // refuse every change and save()
    Date (*today)() = &dbf::today; // the date of last update that saving writes
};

// Told of what happens to records, which are known by numbers of their own: see Table::recordNumber.
class RecordWatcher {
public:
    // The record holds other values now.
    virtual void recordChanged(std::uint64_t record) noexcept = 0;
    // The table was saved or read anew: no number means what it meant before.
    virtual void recordsRenumbered() noexcept = 0;

protected:
    ~RecordWatcher() = default;
};

class Table {
public:
    using Row = std::uint64_t;
    using RowPredicate = std::function<bool(Row)>;

    // Nothing is written. What is damaged but can be used is opened, and openWarnings() tells of it.
    static Result open(const std::string &path, const OpenOptions &options, std::unique_ptr<Table> &table);

    const std::string &path() const { return path_; }
    const std::vector<std::string> &openWarnings() const { return file_->warnings(); }
    // False when opened for viewing only or when the file may not be written.
    bool isWritable() const { return writable_; }

    Row rowCount() const { return order_.size(); }
    std::size_t columnCount() const { return layout().fields.size(); }
    const Layout &layout() const { return file_->layout(); }
    const Field &field(std::size_t column) const { return layout().fields[column]; }
    // The column of a name, ignoring the case of ASCII letters; columnCount() when there is none.
    std::size_t findColumn(std::string_view name) const;

    // The code page of all text.
    int displayCodePage() const { return displayCodePage_; }

    // The record in a row below rowCount(). It keeps its number wherever rows are inserted and removed, when it is
    // removed and brought back too, until the table is saved. The number is below recordNumberLimit().
    std::uint64_t recordNumber(Row row) const { return order_.at(row); }
    std::uint64_t recordNumberLimit() const { return nextRecord_; }
    // One at a time; borrowed.
    void watch(RecordWatcher *watcher) { watcher_ = watcher; }
    void unwatch(const RecordWatcher *watcher) { watcher_ = watcher_ == watcher ? nullptr : watcher_; }

    // Empty for a row or column that does not exist. Of a memo the first kLongestMemoText bytes; memos cannot be set,
    // so that a text that is shown in part is never written.
    std::string cellText(Row row, std::size_t column) const;
    bool isMarkedDeleted(Row row) const;
    // The record as it would be saved, the deleted flag first; empty for a row that does not exist.
    Bytes recordBytes(Row row) const;

    // Refused with a message for the user when the text does not fit the field; the old value stays. Setting
    // the text that is shown already does nothing, so characters that the display cannot show survive it.
    Result setCellText(Row row, std::size_t column, std::string_view text);
    // New rows are blank. `row` is at most rowCount().
    Result insertRows(Row row, Row count);
    Result appendRows(Row count) { return insertRows(rowCount(), count); }
    Result removeRows(Row row, Row count);

    // See EditHistory for what a group is. undo() and redo() do nothing when there is nothing to do.
    void beginTransaction() { history_.beginTransaction(); }
    void endTransaction() { history_.endTransaction(); }
    bool canUndo() const { return history_.canUndo(); }
    bool canRedo() const { return history_.canRedo(); }
    void undo();
    void redo();

    // Writes the table to its file. Rows keep their places; the history is emptied, so that a table has
    // something to undo exactly while it is modified. After a failure the old file and all changes are still
    // there. A file that somebody else changed since it was read is only overwritten when told so.
    Result save(bool overwriteForeign = false);
    // Has the file on the disk been changed by somebody else since it was read?
    bool isForeign() const;
    // Writes the table to another file, with its memo file, and goes on with that file. With a predicate only
    // the rows for which it is true are written and remain; it is asked twice for each row and must answer
    // the same both times.
    Result saveAs(const std::string &path, const RowPredicate &keep = {}, bool overwriteForeign = false);

private:
    struct SaveJob;

    Table() = default;
    void adopt(std::unique_ptr<TableFile> file, RecordOrder order, RecordOverlay overlay) noexcept;
    Result load(const std::string &path);
    Result ensureOpen();
    const std::uint8_t *record(std::uint64_t number) const;
    Result prepareChange();
    void tellChanged(std::uint64_t number) const noexcept;
    void changeBytes(std::uint64_t number, std::size_t offset, const void *bytes, std::size_t width) noexcept;
    void applyBytes(EditHistory::Group &group, const EditHistory::Step &step) noexcept;

    std::vector<std::uint8_t> headerFor(Row count) const;
    Result writeRecords(FileWriter &writer, const RowPredicate &keep) const;
    Result writeTable(SaveJob &job, const RowPredicate &keep) const;
    Result writeMemo(SaveJob &job) const;
    Result replaceAndReopen(SaveJob &job);
    Result saveTo(const std::string &path, const RowPredicate &keep, bool overwriteForeign);

    FileStore *files_ = nullptr;
    Date (*today_)() = nullptr;
    int displayCodePage_ = 0;
    bool readOnly_ = false;
    bool writable_ = false;
    std::string path_;
    std::unique_ptr<TableFile> file_;
    std::string reopen_; // a file that was saved and could not be opened then; empty when all is well

    // Records below layout().records are those of the file, the ones from there on are new. A new one without
    // bytes of its own is blank.
    RecordOrder order_;
    RecordOverlay overlay_;
    std::uint64_t nextRecord_ = 0;
    RecordWatcher *watcher_ = nullptr;
    EditHistory history_;
};

} // namespace dbf
