// What was changed, in groups that are undone and redone as one.
//
// A group ends where a transaction begins or ends (the outermost one, when they are nested) and where
// something is undone or redone; the next change then begins a new group. Changes outside any transaction
// gather in one group until then, and an empty transaction is nothing but such a boundary. There is no limit
// to the number of groups.
#pragma once

#include "RecordOrder.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace dbf {

class EditHistory {
public:
    enum class Kind : std::uint8_t { bytes, rowsInserted, rowsRemoved };

    struct Step {
        Kind kind;
        std::uint16_t offset;   // bytes: where in the record
        std::uint16_t width;    // bytes: how many
        std::uint64_t target;   // bytes: the record; rows: the first row
        std::uint64_t position; // bytes: where in Group::bytes; rows: index into Group::rows
    };
    struct Rows {
        std::uint64_t count = 0;
        RecordOrder::Piece piece; // the rows themselves while they are out of the table
    };
    struct Group {
        std::vector<Step> steps;
        std::vector<std::uint8_t> bytes; // what the record held before; after undoing, what it held then
        std::vector<Rows> rows;
    };

    void beginTransaction();
    void endTransaction(); // one without a beginning is ignored

    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < groups_.size(); }
    void clear();

    // Makes room for one step of rows (`bytes` 0), or for two of together at most `bytes` bytes, so that the
    // change can then be made and noted without failing. May throw std::bad_alloc, and changes nothing that
    // can be seen.
    void makeRoom(std::size_t bytes);
    void noteBytes(std::uint64_t record, std::size_t offset, const std::uint8_t *before,
                   std::size_t width) noexcept;
    void noteRows(Kind kind, std::uint64_t row, std::uint64_t count, RecordOrder::Piece piece) noexcept;

    // The group to undo or redo next; valid while canUndo or canRedo. The caller applies it and says so.
    Group &toUndo() { return *groups_[done_ - 1]; }
    Group &toRedo() { return *groups_[done_]; }
    void undone() noexcept;
    void redone() noexcept;

private:
    Group &current();
    Group &openGroup() noexcept;

    std::vector<std::unique_ptr<Group>> groups_;
    std::size_t done_ = 0;        // groups before this are done, those from it on are undone
    std::unique_ptr<Group> next_; // made ready while no group is open
    bool open_ = false;           // the last group done takes further changes
    int depth_ = 0;               // of nested transactions
};

} // namespace dbf
