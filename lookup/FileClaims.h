// CFileClaims: what counts in a file promise. Each promised record takes bytes of its own in the file, so a count that,
// together with what is still promised, exceeds the rest of the file is damage, and is found before memory is taken
// for it.
#pragma once

#include "lookup/Archive.h"

class CFileClaims {
public:
    CFileClaims(CArchive &ar, unsigned leastBytesEach) : m_ar(ar), m_leastBytesEach(leastBytesEach) {}

    // Reads a count, below 0 as none. Throws CArchiveException.
    int ReadCount() {
        int count;
        m_ar >> count;
        if (count <= 0)
            return 0;
        m_open += static_cast<unsigned>(count);
        if (m_open > m_ar.BytesLeft() / m_leastBytesEach)
            AfxThrowArchiveException(CArchiveException::endOfFile, m_ar.GetFile()->GetFilePath());
        return count;
    }
    // A promised record is about to be read.
    void Take() { --m_open; }

private:
    CArchive &m_ar;
    unsigned m_leastBytesEach;
    ULONGLONG m_open = 0; // records
};
