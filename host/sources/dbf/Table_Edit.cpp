// Changing a table in memory, undoing and redoing.
#include "Table.h"

#include "FieldText.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace dbf {
namespace {

// The header counts records in four bytes.
constexpr std::uint64_t kMostRecords = std::numeric_limits<std::uint32_t>::max();

} // namespace

// May the table be changed now?
Result Table::prepareChange() {
    if (readOnly_) {
        return Result::failure("\"" + path_ + "\" was opened for viewing only");
    }
    if (!writable_) {
        return Result::failure("\"" + path_ + "\" may not be written");
    }
    const Row shown = rowCount();
    if (Result open = ensureOpen(); !open) {
        return open;
    }
    if (rowCount() != shown) {
        return Result::failure("\"" + path_ + "\" was saved with other records than are shown, and is open again only now. "
                               "Nothing was changed");
    }
    return Result::success();
}

Result Table::setCellText(Row row, std::size_t column, std::string_view text) {
    if (Result editable = prepareChange(); !editable) {
        return editable;
    }
    if (row >= rowCount() || column >= columnCount()) {
        return Result::failure("There is no such cell");
    }
    const Field &target = layout().fields[column];
    const std::uint64_t number = order_.at(row);
    const std::uint8_t *old = record(number);
    if (fieldText(target, old, file_->memo(), file_->translator()) == text) {
        return Result::success();
    }
    std::string bytes;
    if (Result encoded = encodeField(target, text, file_->translator(), bytes); !encoded) {
        return encoded;
    }
    const bool wasNull = target.null.isSet(old);
    if (!wasNull && std::memcmp(old + target.offset, bytes.data(), target.width) == 0) {
        return Result::success();
    }
    history_.makeRoom(target.width + 1);
    old = overlay_.own(number, old);
    if (wasNull) {
        const auto flags = static_cast<std::uint8_t>(old[target.null.byte] & ~target.null.mask);
        changeBytes(number, target.null.byte, &flags, 1);
    }
    changeBytes(number, target.offset, bytes.data(), target.width);
    return Result::success();
}

void Table::tellChanged(std::uint64_t number) const noexcept {
    if (watcher_) {
        watcher_->recordChanged(number);
    }
}

// Changes a record that has bytes of its own, the history having room.
void Table::changeBytes(std::uint64_t number, std::size_t offset, const void *bytes,
                        std::size_t width) noexcept {
    std::uint8_t *place = overlay_.own(number, nullptr) + offset;
    history_.noteBytes(number, offset, place, width);
    std::memcpy(place, bytes, width);
    tellChanged(number);
}

Result Table::insertRows(Row row, Row count) {
    if (Result editable = prepareChange(); !editable) {
        return editable;
    }
    if (row > rowCount()) {
        return Result::failure("There is no such row");
    }
    if (count > kMostRecords - rowCount()) {
        return Result::failure("A table cannot hold so many records");
    }
    if (count == 0) {
        return Result::success();
    }
    history_.makeRoom(0);
    order_.insert(row, nextRecord_, count);
    nextRecord_ += count;
    history_.noteRows(EditHistory::Kind::rowsInserted, row, count, {});
    return Result::success();
}

Result Table::removeRows(Row row, Row count) {
    if (Result editable = prepareChange(); !editable) {
        return editable;
    }
    if (row > rowCount() || count > rowCount() - row) {
        return Result::failure("There are no such rows");
    }
    if (count == 0) {
        return Result::success();
    }
    history_.makeRoom(0);
    history_.noteRows(EditHistory::Kind::rowsRemoved, row, count, order_.take(row, count));
    return Result::success();
}

// Exchanges the bytes of the record and those kept in the history.
void Table::applyBytes(EditHistory::Group &group, const EditHistory::Step &step) noexcept {
    std::uint8_t *place = overlay_.own(step.target, nullptr) + step.offset;
    std::swap_ranges(place, place + step.width, group.bytes.data() + step.position);
    tellChanged(step.target);
}

void Table::undo() {
    if (!canUndo()) {
        return;
    }
    EditHistory::Group &group = history_.toUndo();
    order_.reserve(group.rows.size()); // nothing can fail halfway
    for (auto step = group.steps.rbegin(); step != group.steps.rend(); ++step) {
        if (step->kind == EditHistory::Kind::bytes) {
            applyBytes(group, *step);
            continue;
        }
        EditHistory::Rows &rows = group.rows[step->position];
        if (step->kind == EditHistory::Kind::rowsInserted) {
            rows.piece = order_.take(step->target, rows.count);
        } else {
            order_.put(step->target, std::move(rows.piece));
        }
    }
    history_.undone();
}

void Table::redo() {
    if (!canRedo()) {
        return;
    }
    EditHistory::Group &group = history_.toRedo();
    order_.reserve(group.rows.size());
    for (const EditHistory::Step &step : group.steps) {
        if (step.kind == EditHistory::Kind::bytes) {
            applyBytes(group, step);
            continue;
        }
        EditHistory::Rows &rows = group.rows[step.position];
        if (step.kind == EditHistory::Kind::rowsInserted) {
            order_.put(step.target, std::move(rows.piece));
        } else {
            rows.piece = order_.take(step.target, rows.count);
        }
    }
    history_.redone();
}

} // namespace dbf
