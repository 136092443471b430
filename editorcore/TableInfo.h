// CTableInfo: how one table was last looked at, as it stands in a layout file.
#pragma once

#include "lookup/Archive.h"

#include <afxcoll.h>
#include <afxtempl.h>
#include <atltypes.h>

// An array whose stored form is a word with the number of elements, then that many words: values and count are
// cut to 16 bits on writing and widened without sign on reading.
class ORVANE_API CPersistUIntArray : public CUIntArray {
public:
    CPersistUIntArray() = default;
    CPersistUIntArray(const CPersistUIntArray &other) : CUIntArray() { Copy(other); }
    CPersistUIntArray &operator=(const CPersistUIntArray &other) {
        Copy(other);
        return *this;
    }
    CPersistUIntArray &operator=(const CUIntArray &other) {
        Copy(other);
        return *this;
    }
    void Serialize(CArchive &ar);
};

class ORVANE_API CTableInfo : public CObject {
    DECLARE_DYNAMIC(CTableInfo)

public:
    CTableInfo();
    CTableInfo(const CTableInfo &other);
    CTableInfo &operator=(const CTableInfo &other);

    void Clear();
    // Reading goes by m_nVersion, which the caller puts in first.
    void Serialize(CArchive &ar) override;

    int m_nFieldCount = 0;            // fields of the source when the layout was taken
    CPersistUIntArray m_ColPositions; // the full ordering of the fields, hidden ones included
    CPersistUIntArray m_DisplayCols;  // grid column i shows field m_DisplayCols[i]
    CPersistUIntArray m_ColWidths;    // pixels by field, not by grid column
    int m_nRowHeight = 0;             // pixels
    int m_nTopHeadingHeight = 0;      // pixels
    int m_nSideHeadingWidth = 0;      // pixels
    CMap<CString, const char *, CPoint, CPoint &> m_ColourSets; // field name to the set's two numbers
    int m_nVersion = 0;               // of the file it was read from; 0 in memory
    int m_nFrozenCols = 0;            // fields frozen at the left

private:
    void Store(CArchive &ar);
    void Load(CArchive &ar);
};
