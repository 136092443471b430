// CMap, a hash map; part of afxtempl.h.
#pragma once

#include "afxtempl_list.h"
#include <limits>

// The default hash of integers and pointers; specialised for other types of keys.
template <class ARG_KEY> inline UINT AFXAPI HashKey(ARG_KEY key) {
    return static_cast<UINT>(((DWORD_PTR)key) >> 4);
}

template <> inline UINT AFXAPI HashKey<LPCSTR>(LPCSTR key) {
    UINT hash = 0;
    while (*key)
        hash = (hash << 5) + hash + static_cast<UINT>(*key++);
    return hash;
}
template <> inline UINT AFXAPI HashKey<LPSTR>(LPSTR key) {
    return HashKey<LPCSTR>(key);
}
template <> inline UINT AFXAPI HashKey<const CString &>(const CString &key) {
    return HashKey<LPCSTR>(key);
}
template <> inline UINT AFXAPI HashKey<CString &>(CString &key) {
    return HashKey<LPCSTR>(key);
}
template <> inline UINT AFXAPI HashKey<CString>(CString key) {
    return HashKey<LPCSTR>(key);
}

// Iteration visits the hash values modulo the table size in ascending order, and within one of them the
// newest key first.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject {
public:
    struct CPair {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY initKey) : key(initKey), value() {}
    };

    explicit CMap(int = 10) {}
    ~CMap() override { RemoveAll(); }

    int GetCount() const { return m_count; }
    int GetSize() const { return m_count; }
    bool IsEmpty() const { return m_count == 0; }

    BOOL Lookup(ARG_KEY key, VALUE &value) const;
    CPair *PLookup(ARG_KEY key) { return FindEntry(key, Bucket(key)); }
    const CPair *PLookup(ARG_KEY key) const { return FindEntry(key, Bucket(key)); }
    // Makes a value-initialised entry for a new key.
    VALUE &operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE value) { (*this)[key] = value; }
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(First(0)); }
    // The position becomes null with the last entry.
    void GetNextAssoc(POSITION &position, KEY &key, VALUE &value) const;
    const CPair *PGetFirstAssoc() const { return First(0); }
    const CPair *PGetNextAssoc(const CPair *pair) const { return Next(static_cast<const Entry *>(pair)); }

    UINT GetHashTableSize() const { return m_tableSize; }
    // Only on an empty map. With allocNow FALSE the table is allocated with the first entry.
    void InitHashTable(UINT size, BOOL allocNow = TRUE);

private:
    struct Entry : CPair {
        explicit Entry(ARG_KEY key) : CPair(key) {}
        Entry *next = nullptr;
        UINT bucket = 0;
    };

    UINT Bucket(ARG_KEY key) const { return HashKey<ARG_KEY>(key) % m_tableSize; }
    Entry *FindEntry(ARG_KEY key, UINT bucket) const;
    Entry *First(UINT bucket) const;
    Entry *Next(const Entry *entry) const { return entry->next ? entry->next : First(entry->bucket + 1); }

    static constexpr UINT kDefaultTableSize = 17;

    Entry **m_table = nullptr;
    UINT m_tableSize = kDefaultTableSize;
    int m_count = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT size, BOOL allocNow) {
    if (m_count != 0 || size == 0)
        AfxThrowInvalidArgException();
    Entry **table = allocNow ? new Entry *[size]() : nullptr;
    delete[] m_table;
    m_table = table;
    m_tableSize = size;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FindEntry(ARG_KEY key, UINT bucket) const -> Entry * {
    if (!m_table)
        return nullptr;
    for (Entry *entry = m_table[bucket]; entry; entry = entry->next)
        if (CompareElements(&entry->key, &key))
            return entry;
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::First(UINT bucket) const -> Entry * {
    for (; m_table && bucket < m_tableSize; bucket++)
        if (m_table[bucket])
            return m_table[bucket];
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE &value) const {
    const Entry *entry = FindEntry(key, Bucket(key));
    if (!entry)
        return FALSE;
    value = entry->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE &CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key) {
    const UINT bucket = Bucket(key);
    if (Entry *entry = FindEntry(key, bucket))
        return entry->value;
    if (!m_table)
        m_table = new Entry *[m_tableSize]();
    Entry *entry = new Entry(key);
    entry->bucket = bucket;
    entry->next = m_table[bucket];
    m_table[bucket] = entry;
    m_count++;
    return entry->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key) {
    if (!m_table)
        return FALSE;
    for (Entry **link = &m_table[Bucket(key)]; *link; link = &(*link)->next)
        if (CompareElements(&(*link)->key, &key)) {
            Entry *entry = *link;
            *link = entry->next;
            delete entry;
            m_count--;
            return TRUE;
        }
    return FALSE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll() {
    for (Entry *entry = First(0); entry;) {
        Entry *next = Next(entry);
        delete entry;
        entry = next;
    }
    delete[] m_table;
    m_table = nullptr;
    m_count = 0;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION &position, KEY &key, VALUE &value) const {
    const Entry *entry = reinterpret_cast<const Entry *>(position);
    if (!entry)
        AfxThrowInvalidArgException();
    key = entry->key;
    value = entry->value;
    position = reinterpret_cast<POSITION>(Next(entry));
}
