#include "EditHistory.h"

#include <algorithm>

namespace dbf {
namespace {

// Like reserve for `more` further elements, but growing by factors, so that many small steps stay cheap.
template <class T> void makeRoomIn(std::vector<T> &items, std::size_t more) {
    if (items.capacity() - items.size() < more) {
        items.reserve(std::max(items.size() + more, items.capacity() * 2));
    }
}

} // namespace

void EditHistory::beginTransaction() {
    if (depth_++ == 0) {
        open_ = false;
    }
}

void EditHistory::endTransaction() {
    if (depth_ > 0 && --depth_ == 0) {
        open_ = false;
    }
}

void EditHistory::clear() {
    groups_.clear();
    next_.reset();
    done_ = 0;
    open_ = false;
}

EditHistory::Group &EditHistory::current() {
    if (open_) {
        return *groups_.back();
    }
    if (!next_) {
        next_ = std::make_unique<Group>();
    }
    return *next_;
}

void EditHistory::makeRoom(std::size_t bytes) {
    Group &group = current();
    makeRoomIn(groups_, 1);
    makeRoomIn(group.steps, 2);
    if (bytes > 0) {
        makeRoomIn(group.bytes, bytes);
    } else {
        makeRoomIn(group.rows, 1);
    }
}

// The group that takes the next step. What could be redone ends here.
EditHistory::Group &EditHistory::openGroup() noexcept {
    if (!open_) {
        groups_.resize(done_);
        groups_.push_back(std::move(next_));
        ++done_;
        open_ = true;
    }
    return *groups_.back();
}

void EditHistory::noteBytes(std::uint64_t record, std::size_t offset, const std::uint8_t *before,
                            std::size_t width) noexcept {
    Group &group = openGroup();
    group.steps.push_back({Kind::bytes, static_cast<std::uint16_t>(offset), static_cast<std::uint16_t>(width),
                           record, group.bytes.size()});
    group.bytes.insert(group.bytes.end(), before, before + width);
}

void EditHistory::noteRows(Kind kind, std::uint64_t row, std::uint64_t count,
                           RecordOrder::Piece piece) noexcept {
    Group &group = openGroup();
    group.steps.push_back({kind, 0, 0, row, group.rows.size()});
    group.rows.push_back({count, std::move(piece)});
}

void EditHistory::undone() noexcept {
    --done_;
    open_ = false;
}

void EditHistory::redone() noexcept {
    ++done_;
    open_ = false;
}

} // namespace dbf
