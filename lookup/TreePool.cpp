#include "lookup/TreePool.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <new>

namespace {

size_t RoundUp(size_t bytes, size_t alignment) {
    return (bytes + alignment - 1) & ~(alignment - 1);
}

} // namespace

CTreePool::Block *CTreePool::AddBlock(size_t bytes) {
    Block *block = new (::operator new(sizeof(Block) + bytes)) Block{nullptr, m_blocks, bytes};
    if (m_blocks != nullptr)
        m_blocks->previous = block;
    m_blocks = block;
    m_held += sizeof(Block) + bytes;
    return block;
}

void CTreePool::RemoveBlock(Block *block) {
    (block->previous != nullptr ? block->previous->next : m_blocks) = block->next;
    if (block->next != nullptr)
        block->next->previous = block->previous;
    m_held -= sizeof(Block) + block->bytes;
    ::operator delete(block);
}

void CTreePool::StartBlock() {
    Block *block = AddBlock(m_nextBlock);
    m_at = reinterpret_cast<char *>(block + 1);
    m_end = m_at + m_nextBlock;
    m_nextBlock = std::min(2 * m_nextBlock, kLargestBlock);
}

void *CTreePool::Allocate(size_t bytes) {
    bytes = RoundUp(std::max<size_t>(bytes, 1), kAlignment);
    if (bytes > kLargest)
        return AddBlock(bytes) + 1;
    if (Free *&free = m_free[bytes / kAlignment]; free != nullptr) {
        void *memory = free;
        free = free->next;
        return memory;
    }
    if (m_at != nullptr)
        m_at += (kAlignment - reinterpret_cast<std::uintptr_t>(m_at) % kAlignment) % kAlignment;
    if (m_at == nullptr || m_at > m_end || static_cast<size_t>(m_end - m_at) < bytes)
        StartBlock();
    void *memory = m_at;
    m_at += bytes;
    return memory;
}

void CTreePool::Release(void *memory, size_t bytes) {
    if (memory == nullptr)
        return;
    bytes = RoundUp(std::max<size_t>(bytes, 1), kAlignment);
    if (bytes > kLargest) {
        RemoveBlock(static_cast<Block *>(memory) - 1);
        return;
    }
    Free *&free = m_free[bytes / kAlignment];
    free = new (memory) Free{free};
}

char *CTreePool::AllocateText(size_t bytes) {
    if (bytes > kLargest)
        return reinterpret_cast<char *>(AddBlock(bytes) + 1);
    if (m_at == nullptr || m_at > m_end || static_cast<size_t>(m_end - m_at) < bytes)
        StartBlock();
    char *memory = m_at;
    m_at += bytes;
    return memory;
}

void CTreePool::Clear() {
    while (m_blocks != nullptr)
        RemoveBlock(m_blocks);
    m_at = m_end = nullptr;
    m_nextBlock = kFirstBlock;
    std::fill(std::begin(m_free), std::end(m_free), nullptr);
}
