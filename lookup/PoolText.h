// CPoolText: a text of a tree, in the tree's pool. It takes a pointer in the node and one byte more than a terminated
// text in the pool, or five for long texts. Copies refer to the same characters; none outlives the pool's content.
#pragma once

#include <afx.h>

class CTreePool;

class ORVANE_API CPoolText {
public:
    CPoolText(); // empty
    // Throws CMemoryException. Nulls among the characters are kept.
    CPoolText(CTreePool &pool, LPCSTR text, unsigned length);

    operator LPCSTR() const { return m_pText; }
    int GetLength() const;
    bool IsEmpty() const { return m_pText[-1] == '\0'; }
    // The character at the index, or the closing null.
    char GetAt(int index) const { return m_pText[index]; }
    CString GetString() const { return CString(m_pText, GetLength()); }

private:
    const char *m_pText; // its length stands in front
};
