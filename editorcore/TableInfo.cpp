#include "editorcore/TableInfo.h"

IMPLEMENT_DYNAMIC(CTableInfo, CObject)

namespace {

constexpr int kBlockSize = 10;
constexpr UINT kHashSize = 17;
constexpr int kVersionWithColourSets = 3;
constexpr int kVersionWithFrozenCols = 4;

WORD ReadWord(CArchive &ar) {
    WORD value;
    ar >> value;
    return value;
}

// A heading of size 0 could not be pulled open again.
int ReadHeadingSize(CArchive &ar) {
    const int size = ReadWord(ar);
    return size == 0 ? 1 : size;
}

} // namespace

void CPersistUIntArray::Serialize(CArchive &ar) {
    if (ar.IsStoring()) {
        ar << static_cast<WORD>(GetSize());
        for (int i = 0; i < static_cast<WORD>(GetSize()); ++i)
            ar << static_cast<WORD>(GetAt(i));
        return;
    }
    const int count = ReadWord(ar);
    SetSize(0);
    for (int i = 0; i < count; ++i)
        Add(ReadWord(ar));
}

CTableInfo::CTableInfo() : m_ColourSets(kBlockSize) {
    m_ColourSets.InitHashTable(kHashSize);
}

CTableInfo::CTableInfo(const CTableInfo &other) : CTableInfo() {
    *this = other;
}

CTableInfo &CTableInfo::operator=(const CTableInfo &other) {
    if (this == &other)
        return *this;
    m_nFieldCount = other.m_nFieldCount;
    m_ColPositions = other.m_ColPositions;
    m_DisplayCols = other.m_DisplayCols;
    m_ColWidths = other.m_ColWidths;
    m_nRowHeight = other.m_nRowHeight;
    m_nTopHeadingHeight = other.m_nTopHeadingHeight;
    m_nSideHeadingWidth = other.m_nSideHeadingWidth;
    m_nVersion = other.m_nVersion;
    m_nFrozenCols = other.m_nFrozenCols;
    m_ColourSets.RemoveAll();
    for (POSITION position = other.m_ColourSets.GetStartPosition(); position != nullptr;) {
        CString name;
        CPoint set;
        other.m_ColourSets.GetNextAssoc(position, name, set);
        m_ColourSets.SetAt(name, set);
    }
    return *this;
}

void CTableInfo::Clear() {
    *this = CTableInfo();
}

void CTableInfo::Serialize(CArchive &ar) {
    if (ar.IsStoring())
        Store(ar);
    else
        Load(ar);
}

void CTableInfo::Store(CArchive &ar) {
    ar << static_cast<WORD>(m_nFieldCount);
    m_ColPositions.Serialize(ar);
    m_DisplayCols.Serialize(ar);
    m_ColWidths.Serialize(ar);
    ar << static_cast<WORD>(m_nRowHeight);
    ar << static_cast<WORD>(m_nTopHeadingHeight);
    ar << static_cast<WORD>(m_nSideHeadingWidth);
    ar << static_cast<WORD>(m_ColourSets.GetCount());
    for (POSITION position = m_ColourSets.GetStartPosition(); position != nullptr;) {
        CString name;
        CPoint set;
        m_ColourSets.GetNextAssoc(position, name, set);
        ar << name << static_cast<WORD>(set.x) << static_cast<WORD>(set.y);
    }
    ar << m_nFrozenCols; // four bytes, of which the reader takes two: files in the field depend on both
}

void CTableInfo::Load(CArchive &ar) {
    m_nFieldCount = ReadWord(ar);
    m_ColPositions.Serialize(ar);
    m_DisplayCols.Serialize(ar);
    m_ColWidths.Serialize(ar);
    m_nRowHeight = ReadWord(ar);
    m_nTopHeadingHeight = ReadHeadingSize(ar);
    m_nSideHeadingWidth = ReadHeadingSize(ar);
    m_ColourSets.RemoveAll();
    if (m_nVersion >= kVersionWithColourSets) {
        const int count = ReadWord(ar);
        for (int i = 0; i < count; ++i) {
            CString name;
            ar >> name;
            CPoint set;
            set.x = ReadWord(ar);
            set.y = ReadWord(ar);
            m_ColourSets.SetAt(name, set);
        }
    }
    if (m_nVersion >= kVersionWithFrozenCols)
        m_nFrozenCols = ReadWord(ar);
}
