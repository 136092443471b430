#include "Table.h"

#include "DisplayCodePage.h"
#include "FieldText.h"

#include <algorithm>

namespace dbf {
namespace {

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

} // namespace

Result Table::open(const std::string &path, const OpenOptions &options, std::unique_ptr<Table> &table) {
    std::unique_ptr<Table> opened(new Table);
    opened->files_ = options.files ? options.files : &systemFiles();
    opened->today_ = options.today;
    opened->readOnly_ = options.readOnly;
    opened->displayCodePage_ = options.displayCodePage ? options.displayCodePage : processCodePage();
    if (Result loaded = opened->load(path); !loaded) {
        return loaded;
    }
    table = std::move(opened);
    return Result::success();
}

// Starts afresh with what is in a file. On failure nothing has changed.
Result Table::load(const std::string &path) {
    std::unique_ptr<TableFile> file;
    if (Result opened = TableFile::open(*files_, path, displayCodePage_, file); !opened) {
        return opened;
    }
    RecordOrder order(file->layout().records);
    RecordOverlay overlay(file->layout().recordLength);
    std::string name = path;
    writable_ = !readOnly_ && files_->isWritable(path);
    path_.swap(name);
    adopt(std::move(file), std::move(order), std::move(overlay));
    return Result::success();
}

void Table::adopt(std::unique_ptr<TableFile> file, RecordOrder order, RecordOverlay overlay) noexcept {
    file_ = std::move(file);
    order_ = std::move(order);
    overlay_ = std::move(overlay);
    nextRecord_ = file_->layout().records;
    history_.clear();
    if (watcher_) {
        watcher_->recordsRenumbered();
    }
}

// Takes hold of the file again that a save had to let go of and could not open afterwards.
Result Table::ensureOpen() {
    if (reopen_.empty()) {
        return file_->reattach();
    }
    Result loaded = load(std::string(reopen_));
    if (loaded) {
        reopen_.clear();
    }
    return loaded;
}

const std::uint8_t *Table::record(std::uint64_t number) const {
    if (const std::uint8_t *changed = overlay_.find(number)) {
        return changed;
    }
    return number < layout().records ? file_->record(number) : file_->blankRecord();
}

std::size_t Table::findColumn(std::string_view name) const {
    const auto found =
        std::find_if(layout().fields.begin(), layout().fields.end(),
                     [&](const Field &candidate) { return equalIgnoringCase(candidate.name, name); });
    return static_cast<std::size_t>(found - layout().fields.begin());
}

std::string Table::cellText(Row row, std::size_t column) const {
    if (row >= rowCount() || column >= columnCount()) {
        return {};
    }
    return fieldText(layout().fields[column], record(order_.at(row)), file_->memo(), file_->translator());
}

bool Table::isMarkedDeleted(Row row) const {
    return row < rowCount() && record(order_.at(row))[0] == kDeletedMark;
}

Bytes Table::recordBytes(Row row) const {
    return row < rowCount() ? Bytes(record(order_.at(row)), layout().recordLength) : Bytes();
}

} // namespace dbf
