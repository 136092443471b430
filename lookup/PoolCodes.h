// CPoolCodes: the level codes of one path, packed in a tree's pool: their number, then for each its length, its
// characters and a null. Numbers take a byte below 128.
#pragma once

#include <afxcoll.h>

#include <cstddef>

class CTreePool;

class ORVANE_API CPoolCodes {
public:
    CPoolCodes() = default; // none
    explicit CPoolCodes(const char *packed) : m_pPacked(packed) {}
    // The first `count` of the codes, "!" left out; none if nothing is left. Throws CMemoryException.
    CPoolCodes(CTreePool &pool, const CStringArray &codes, int count);

    const char *GetPacked() const { return m_pPacked; }
    int GetCount() const;
    // Replaces what is in the array. Throws CMemoryException.
    void CopyTo(CStringArray &codes) const;
    // Whether these are the first `count` of the codes.
    bool AreFirstOf(const CStringArray &codes, int count, bool bCaseSensitive) const;

    // Goes through the codes.
    class ORVANE_API Reader {
    public:
        explicit Reader(const CPoolCodes &codes);
        bool IsAtEnd() const { return m_left == 0; }
        // The code at hand, which a null ends, and its length.
        const char *Take(int *length);

    private:
        const char *m_at;
        int m_left;
    };

    // The bytes of a number as it is packed; returns how many, at most 5.
    static size_t PackNumber(unsigned number, char *bytes);

private:
    const char *m_pPacked = nullptr;
};
