#include "RecordOrder.h"

#include <algorithm>

namespace dbf {

struct RecordOrder::Node {
    Record first = 0;
    Row count = 0;
    Row total = 0; // rows of this node and of both subtrees
    std::uint32_t priority = 0;
    Node *left = nullptr;
    Node *right = nullptr;
};

// A change splits at two places at most, or at one place with a node of its own.
static constexpr std::size_t kNodesPerOperation = 2;

// By way of the other constructor, so that the destructor runs when memory fails in here.
RecordOrder::RecordOrder(Row count) : RecordOrder() {
    insert(0, 0, count);
}

RecordOrder::RecordOrder(RecordOrder &&other) noexcept {
    *this = std::move(other);
}

RecordOrder &RecordOrder::operator=(RecordOrder &&other) noexcept {
    std::swap(root_, other.root_);
    std::swap(spares_, other.spares_);
    std::swap(spareCount_, other.spareCount_);
    cachedCount_ = 0;
    other.cachedCount_ = 0;
    return *this;
}

RecordOrder::~RecordOrder() {
    destroy(root_);
    while (spares_) {
        delete std::exchange(spares_, spares_->right);
    }
}

RecordOrder::Row RecordOrder::total(const Node *node) {
    return node ? node->total : 0;
}

void RecordOrder::destroy(Node *node) noexcept {
    if (node) {
        destroy(node->left);
        destroy(node->right);
        delete node;
    }
}

void RecordOrder::update(Node *node) noexcept {
    node->total = total(node->left) + node->count + total(node->right);
}

std::uint32_t RecordOrder::nextPriority() noexcept {
    seed_ ^= seed_ << 13;
    seed_ ^= seed_ >> 17;
    seed_ ^= seed_ << 5;
    return seed_;
}

RecordOrder::Node *RecordOrder::spareNode(Record first, Row count) noexcept {
    Node *node = std::exchange(spares_, spares_->right);
    --spareCount_;
    *node = {first, count, count, nextPriority(), nullptr, nullptr};
    return node;
}

void RecordOrder::reserve(std::size_t operations) {
    while (spareCount_ < operations * kNodesPerOperation) {
        Node *node = new Node;
        node->right = std::exchange(spares_, node);
        ++spareCount_;
    }
}

RecordOrder::Node *RecordOrder::merge(Node *left, Node *right) noexcept {
    if (!left || !right) {
        return left ? left : right;
    }
    if (left->priority >= right->priority) {
        left->right = merge(left->right, right);
        update(left);
        return left;
    }
    right->left = merge(left, right->left);
    update(right);
    return right;
}

// The first `rows` rows and the others; a run begins there.
std::pair<RecordOrder::Node *, RecordOrder::Node *> RecordOrder::split(Node *node, Row rows) noexcept {
    if (!node) {
        return {nullptr, nullptr};
    }
    const Row before = total(node->left);
    if (rows <= before) {
        const auto [low, high] = split(node->left, rows);
        node->left = high;
        update(node);
        return {low, node};
    }
    const auto [low, high] = split(node->right, rows - before - node->count);
    node->right = low;
    update(node);
    return {node, high};
}

// Makes a run begin at `row`, with a spare node where one goes across it. The new run comes in like any other: one that
// stayed in its old run's place would have a priority that does not fit there, and the tree would grow into a list.
void RecordOrder::cutAt(Row row) noexcept {
    if (row == 0 || row >= size()) {
        return;
    }
    const Record record = at(row);
    const Row count = cachedRow_ + cachedCount_ - row;
    if (cachedRow_ == row) {
        return;
    }
    shortenRunAt(row, count);
    const auto [low, high] = split(root_, row);
    root_ = merge(merge(low, spareNode(record, count)), high);
    cachedCount_ = 0;
}

// Takes the last `count` rows off the run that holds `row`.
void RecordOrder::shortenRunAt(Row row, Row count) noexcept {
    Node *node = root_;
    for (;;) {
        node->total -= count;
        const Row before = total(node->left);
        if (row < before) {
            node = node->left;
        } else if (row - before < node->count) {
            node->count -= count;
            return;
        } else {
            row -= before + node->count;
            node = node->right;
        }
    }
}

RecordOrder::Record RecordOrder::at(Row row) const {
    if (row - cachedRow_ < cachedCount_) {
        return cachedFirst_ + (row - cachedRow_);
    }
    const Node *node = root_;
    Row start = 0; // the row at which the subtree of `node` begins
    for (;;) {
        const Row runStart = start + total(node->left);
        if (row < runStart) {
            node = node->left;
        } else if (row - runStart < node->count) {
            cachedRow_ = runStart;
            cachedCount_ = node->count;
            cachedFirst_ = node->first;
            return node->first + (row - runStart);
        } else {
            start = runStart + node->count;
            node = node->right;
        }
    }
}

std::size_t RecordOrder::runs() const {
    std::size_t count = 0;
    for (Row row = 0; row < size(); row = cachedRow_ + cachedCount_) {
        at(row);
        ++count;
    }
    return count;
}

std::size_t RecordOrder::depthOf(const Node *node) {
    return node ? 1 + std::max(depthOf(node->left), depthOf(node->right)) : 0;
}

bool RecordOrder::endsRunBefore(Row row, Record record) const {
    return row > 0 && at(row - 1) + 1 == record && cachedRow_ + cachedCount_ == row;
}

void RecordOrder::lengthenRunBefore(Row row, Row count) noexcept {
    Node *node = root_;
    for (;;) {
        node->total += count;
        const Row before = total(node->left);
        if (row <= before) {
            node = node->left;
        } else if (row - before <= node->count) {
            node->count += count;
            return;
        } else {
            row -= before + node->count;
            node = node->right;
        }
    }
}

void RecordOrder::insert(Row row, Record first, Row count) {
    if (count == 0) {
        return;
    }
    reserve(1);
    // Rows appended one by one stay one run.
    if (endsRunBefore(row, first)) {
        lengthenRunBefore(row, count);
    } else {
        cutAt(row);
        const auto [low, high] = split(root_, row);
        root_ = merge(merge(low, spareNode(first, count)), high);
    }
    cachedCount_ = 0;
}

RecordOrder::Piece RecordOrder::take(Row row, Row count) {
    reserve(1);
    cutAt(row);
    cutAt(row + count);
    const auto [low, rest] = split(root_, row);
    const auto [taken, high] = split(rest, count);
    root_ = merge(low, high);
    cachedCount_ = 0;
    return Piece(taken);
}

void RecordOrder::put(Row row, Piece piece) {
    reserve(1);
    cutAt(row);
    const auto [low, high] = split(root_, row);
    root_ = merge(merge(low, std::exchange(piece.root_, nullptr)), high);
    cachedCount_ = 0;
}

} // namespace dbf
