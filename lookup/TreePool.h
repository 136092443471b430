// CTreePool: the memory of one tree. A tree of a million nodes is a few hundred blocks, and goes without a visit to
// each node: what lies in a pool has no destructor of its own.
#pragma once

#include <cstddef>

class ORVANE_API CTreePool {
public:
    CTreePool() = default;
    ~CTreePool() { Clear(); }
    CTreePool(const CTreePool &) = delete;
    CTreePool &operator=(const CTreePool &) = delete;

    // Memory for objects, aligned to 8 bytes. Throws CMemoryException, the pool then being as it was.
    void *Allocate(size_t bytes);
    // Gives back what Allocate gave for that many bytes; never fails.
    void Release(void *memory, size_t bytes);
    // Memory for characters, without alignment; it stays until Clear.
    char *AllocateText(size_t bytes);
    void Clear();
    // What the pool holds, in use or not.
    size_t GetHeldBytes() const { return m_held; }

private:
    static constexpr size_t kAlignment = 8;
    static constexpr size_t kLargest = 1024;          // bytes; larger memory is a block of its own
    static constexpr size_t kFirstBlock = 1024;       // each block is twice the one before,
    static constexpr size_t kLargestBlock = 1 << 20;  // up to this
    struct alignas(16) Block {
        Block *previous, *next;
        size_t bytes;
    };
    struct Free {
        Free *next;
    };

    Block *AddBlock(size_t bytes);
    void RemoveBlock(Block *block);
    void StartBlock();

    Block *m_blocks = nullptr;
    char *m_at = nullptr; // the free part of the block that is being filled
    char *m_end = nullptr;
    size_t m_nextBlock = kFirstBlock;
    size_t m_held = 0;
    Free *m_free[kLargest / kAlignment + 1] = {}; // released memory by size
};
