// CArray, a growing array; part of afxtempl.h.
#pragma once

#include "afxexcept.h"
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

template <class TYPE, class ARG_TYPE = const TYPE &> class CArray : public CObject {
public:
    CArray() = default;
    ~CArray() override { RemoveAll(); }

    int GetSize() const { return m_size; }
    int GetCount() const { return m_size; }
    int GetUpperBound() const { return m_size - 1; }
    bool IsEmpty() const { return m_size == 0; }
    // New elements are value-initialised. growBy is the least number of elements by which the block grows;
    // -1 leaves it as it is and 0, the default, means an eighth of the size.
    void SetSize(int newSize, int growBy = -1);
    void FreeExtra() { Reallocate(m_size); }
    void RemoveAll() { SetSize(0); }

    TYPE &ElementAt(int index) { return m_data[Checked(index)]; }
    const TYPE &ElementAt(int index) const { return m_data[Checked(index)]; }
    TYPE &GetAt(int index) { return ElementAt(index); }
    const TYPE &GetAt(int index) const { return ElementAt(index); }
    TYPE &operator[](int index) { return ElementAt(index); }
    const TYPE &operator[](int index) const { return ElementAt(index); }
    void SetAt(int index, ARG_TYPE element) { ElementAt(index) = element; }
    // Null while the array has no block.
    TYPE *GetData() { return m_data; }
    const TYPE *GetData() const { return m_data; }

    void SetAtGrow(int index, ARG_TYPE element);
    // Both give the index of the first new element.
    int Add(ARG_TYPE element);
    int Append(const CArray &source);
    void Copy(const CArray &source);
    void InsertAt(int index, ARG_TYPE element, int count = 1);
    void InsertAt(int start, CArray *source);
    void RemoveAt(int index, int count = 1);

private:
    static constexpr int kMostElements =
        static_cast<int>(std::numeric_limits<int>::max() / sizeof(TYPE) < std::size_t(std::numeric_limits<int>::max())
                             ? std::numeric_limits<int>::max() / sizeof(TYPE)
                             : std::numeric_limits<int>::max());

    int Checked(int index) const {
        if (index < 0 || index >= m_size)
            AfxThrowInvalidArgException();
        return index;
    }
    void Reallocate(int capacity);
    void Reserve(int size);
    void Open(int index, int count);

    TYPE *m_data = nullptr;
    int m_size = 0;
    int m_capacity = 0;
    int m_growBy = 0;
};

// Moves the elements to a block of exactly the capacity, which is at least their number.
template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::Reallocate(int capacity) {
    if (capacity == m_capacity)
        return;
    TYPE *fresh = nullptr;
    if (capacity > 0) {
        if (capacity > kMostElements)
            AfxThrowMemoryException();
        fresh = static_cast<TYPE *>(::operator new(sizeof(TYPE) * static_cast<std::size_t>(capacity)));
        try {
            if constexpr (std::is_nothrow_move_constructible_v<TYPE> || !std::is_copy_constructible_v<TYPE>)
                std::uninitialized_move_n(m_data, m_size, fresh);
            else
                std::uninitialized_copy_n(m_data, m_size, fresh);
        } catch (...) {
            ::operator delete(fresh);
            throw;
        }
    }
    std::destroy_n(m_data, m_size);
    ::operator delete(m_data);
    m_data = fresh;
    m_capacity = capacity;
}

// Makes room for that many elements, and for some more when the block has to grow.
template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::Reserve(int size) {
    if (size <= m_capacity)
        return;
    int growBy = m_growBy > 0 ? m_growBy : m_size / 8;
    if (m_growBy == 0)
        growBy = growBy < 4 ? 4 : (growBy > 1024 ? 1024 : growBy);
    // The first block is exactly what was asked for.
    const int grown = m_capacity == 0 ? size : (m_capacity > kMostElements - growBy ? size : m_capacity + growBy);
    Reallocate(grown < size ? size : grown);
}

template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::SetSize(int newSize, int growBy) {
    if (newSize < 0)
        AfxThrowInvalidArgException();
    if (growBy >= 0)
        m_growBy = growBy;
    if (newSize > m_size) {
        Reserve(newSize);
        std::uninitialized_value_construct_n(m_data + m_size, newSize - m_size);
        m_size = newSize;
        return;
    }
    std::destroy_n(m_data + newSize, m_size - newSize);
    m_size = newSize;
    if (newSize == 0)
        Reallocate(0);
}

template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::SetAtGrow(int index, ARG_TYPE element) {
    if (index < 0)
        AfxThrowInvalidArgException();
    if (index < m_size) {
        m_data[index] = element;
        return;
    }
    // The argument may refer to an element that is about to move.
    TYPE copy(element);
    SetSize(index + 1);
    m_data[index] = std::move(copy);
}

template <class TYPE, class ARG_TYPE> int CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE element) {
    if (m_size == m_capacity) {
        TYPE copy(element);
        Reserve(m_size + 1);
        ::new (static_cast<void *>(m_data + m_size)) TYPE(std::move(copy));
    } else {
        ::new (static_cast<void *>(m_data + m_size)) TYPE(element);
    }
    return m_size++;
}

template <class TYPE, class ARG_TYPE> int CArray<TYPE, ARG_TYPE>::Append(const CArray &source) {
    if (this == &source)
        AfxThrowInvalidArgException();
    const int first = m_size;
    if (source.m_size > kMostElements - m_size)
        AfxThrowMemoryException();
    Reserve(m_size + source.m_size);
    std::uninitialized_copy_n(source.m_data, source.m_size, m_data + m_size);
    m_size += source.m_size;
    return first;
}

template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::Copy(const CArray &source) {
    if (this == &source)
        return;
    CArray fresh;
    fresh.Append(source);
    std::swap(m_data, fresh.m_data);
    std::swap(m_size, fresh.m_size);
    std::swap(m_capacity, fresh.m_capacity);
}

// Shifts the elements from index on and leaves value-initialised ones in the gap.
template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::Open(int index, int count) {
    const int oldSize = m_size;
    if (count > kMostElements - (index > oldSize ? index : oldSize))
        AfxThrowMemoryException();
    SetSize((index > oldSize ? index : oldSize) + count);
    for (int i = oldSize - 1; i >= index; i--)
        m_data[i + count] = std::move(m_data[i]);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(int index, ARG_TYPE element, int count) {
    if (index < 0 || count < 0)
        AfxThrowInvalidArgException();
    if (count == 0)
        return;
    TYPE copy(element);
    Open(index, count);
    for (int i = index; i < index + count; i++)
        m_data[i] = copy;
}

template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::InsertAt(int start, CArray *source) {
    if (start < 0 || !source || source == this)
        AfxThrowInvalidArgException();
    if (source->m_size == 0)
        return;
    Open(start, source->m_size);
    for (int i = 0; i < source->m_size; i++)
        m_data[start + i] = source->m_data[i];
}

template <class TYPE, class ARG_TYPE> void CArray<TYPE, ARG_TYPE>::RemoveAt(int index, int count) {
    if (index < 0 || count < 0 || index > m_size || count > m_size - index)
        AfxThrowInvalidArgException();
    // With nothing removed the elements would be moved onto themselves.
    if (count == 0)
        return;
    for (int i = index + count; i < m_size; i++)
        m_data[i - count] = std::move(m_data[i]);
    std::destroy_n(m_data + m_size - count, count);
    m_size -= count;
}
