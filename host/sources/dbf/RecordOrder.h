// Which record stands in which row.
//
// Records are known by numbers that never change. The rows are runs of consecutive numbers, kept in a
// randomly balanced tree, so that ten million untouched records are one run, and rows come in and go out in
// the middle in logarithmic time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace dbf {

class RecordOrder {
    struct Node;

public:
    using Row = std::uint64_t;
    using Record = std::uint64_t;

    // Rows that were taken out, in order. Owns them.
    class Piece {
    public:
        Piece() = default;
        Piece(Piece &&other) noexcept : root_(std::exchange(other.root_, nullptr)) {}
        Piece &operator=(Piece &&other) noexcept {
            std::swap(root_, other.root_);
            return *this;
        }
        ~Piece() { destroy(root_); }

        Row size() const { return total(root_); }

    private:
        friend class RecordOrder;
        explicit Piece(Node *root) : root_(root) {}
        Node *root_ = nullptr;
    };

    RecordOrder() = default;
    // The records 0 to count - 1 in this order.
    explicit RecordOrder(Row count);
    RecordOrder(RecordOrder &&other) noexcept;
    RecordOrder &operator=(RecordOrder &&other) noexcept;
    ~RecordOrder();

    Row size() const { return total(root_); }
    // The record in a row below size(). Rows asked for one after the other cost next to nothing.
    Record at(Row row) const;
    // How many runs the order consists of.
    std::size_t runs() const;
    // How many nodes lie one above the other at most: a small multiple of the logarithm of runs().
    std::size_t depth() const { return depthOf(root_); }

    // The next `operations` changes cannot fail for want of memory. Each change else either happens or throws
    // std::bad_alloc and leaves everything as it was.
    void reserve(std::size_t operations);
    // Puts the records first, first + 1, ... before `row`, which is at most size().
    void insert(Row row, Record first, Row count);
    // Takes out rows; row + count is at most size().
    Piece take(Row row, Row count);
    // Puts rows taken out before `row`, which is at most size().
    void put(Row row, Piece piece);

private:
    static Row total(const Node *node);
    static void destroy(Node *node) noexcept;
    static void update(Node *node) noexcept;
    static Node *merge(Node *left, Node *right) noexcept;
    std::pair<Node *, Node *> split(Node *node, Row rows) noexcept;
    void cutAt(Row row) noexcept;
    void shortenRunAt(Row row, Row count) noexcept;
    static std::size_t depthOf(const Node *node);
    bool endsRunBefore(Row row, Record record) const;
    void lengthenRunBefore(Row row, Row count) noexcept;
    Node *spareNode(Record first, Row count) noexcept;
    std::uint32_t nextPriority() noexcept;

    Node *root_ = nullptr;
    Node *spares_ = nullptr; // linked through the right child
    std::size_t spareCount_ = 0;
    std::uint32_t seed_ = 2463534242u;

    // The run found last.
    mutable Row cachedRow_ = 0;
    mutable Row cachedCount_ = 0;
    mutable Record cachedFirst_ = 0;
};

} // namespace dbf
