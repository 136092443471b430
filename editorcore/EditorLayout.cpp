#include "editorcore/EditorLayout.h"

#include "grid/UGDataSource.h"

#include <vector>

IMPLEMENT_DYNAMIC(CEditorLayout, CObject)

namespace {

constexpr int kBlockSize = 10;
constexpr UINT kHashSize = 17;
constexpr int kVersion = 4;
constexpr int kVersionWithXParms = 2;

} // namespace

CEditorLayout::CEditorLayout(CEditorCore *editor) : m_Tables(kBlockSize), m_pEditor(editor) {
    m_Tables.InitHashTable(kHashSize);
}

void CEditorLayout::Reset() {
    m_bTableFound = false;
    m_TableInfo.Clear();
}

void CEditorLayout::ForgetFile() {
    Reset();
    m_Tables.RemoveAll();
    m_strLastXParmsSet.Empty();
}

void CEditorLayout::Serialize(CArchive &ar) {
    if (ar.IsStoring())
        Store(ar);
    else
        Load(ar);
}

// After a write the working copy is gone: whoever goes on with the table reads straight after.
void CEditorLayout::Store(CArchive &ar) {
    ar << kVersion << m_strLastXParmsSet;
    m_Tables.SetAt(m_strTableName, m_TableInfo);
    ar << static_cast<int>(m_Tables.GetCount());
    for (POSITION position = m_Tables.GetStartPosition(); position != nullptr;) {
        CString key;
        CTableInfo info;
        m_Tables.GetNextAssoc(position, key, info);
        ar << key;
        info.Serialize(ar);
    }
    Reset();
}

void CEditorLayout::Load(CArchive &ar) {
    int version, count;
    ar >> version;
    if (version >= kVersionWithXParms)
        ar >> m_strLastXParmsSet;
    m_Tables.RemoveAll();
    ar >> count;
    for (int i = 0; i < count; ++i) {
        CString key;
        ar >> key;
        CTableInfo info;
        info.m_nVersion = version;
        info.Serialize(ar);
        m_Tables.SetAt(key, info);
    }
    m_strTableName.MakeUpper();
    m_bTableFound = m_Tables.Lookup(m_strTableName, m_TableInfo) != FALSE;
}

int CEditorLayout::GetDataSrcField(int gridCol) const {
    const CUIntArray &shown = m_TableInfo.m_DisplayCols;
    return gridCol >= 0 && gridCol < shown.GetSize() ? static_cast<int>(shown.GetAt(gridCol)) : -1;
}

int CEditorLayout::GetGridField(int field) const {
    const CUIntArray &shown = m_TableInfo.m_DisplayCols;
    for (int col = 0; col < shown.GetSize(); ++col) {
        if (static_cast<int>(shown.GetAt(col)) == field)
            return col;
    }
    return -1;
}

int CEditorLayout::SetColWidth(int gridCol, int width) {
    CUIntArray &widths = m_TableInfo.m_ColWidths;
    const int field = GetDataSrcField(gridCol);
    if (gridCol >= widths.GetSize() || field < 0 || field >= widths.GetSize())
        return gridCol;
    widths.SetAt(field, static_cast<UINT>(width));
    return field;
}

void CEditorLayout::RemoveDisplayCol(int gridCol) {
    CUIntArray &shown = m_TableInfo.m_DisplayCols;
    if (gridCol >= 0 && gridCol < shown.GetSize() && gridCol <= m_TableInfo.m_ColPositions.GetSize())
        shown.RemoveAt(gridCol);
}

void CEditorLayout::InsertDisplayCol(int gridCol, int field) {
    CUIntArray &shown = m_TableInfo.m_DisplayCols;
    if (gridCol < 0 || gridCol > shown.GetSize())
        return;
    shown.InsertAt(gridCol, static_cast<UINT>(field));
}

void CEditorLayout::SetDisplayOrder(const CUIntArray &fields, int fieldCount) {
    if (fields.GetSize() > fieldCount)
        return;
    CUIntArray &positions = m_TableInfo.m_ColPositions;
    if (positions.GetSize() != fieldCount)
        positions.SetSize(fieldCount);
    m_TableInfo.m_DisplayCols = fields;
    CUIntArray old;
    old.Copy(positions);
    positions.Copy(fields);
    if (fields.GetSize() == fieldCount)
        return;
    for (int i = 0; i < old.GetSize(); ++i) {
        if (IsFieldHidden(static_cast<int>(old.GetAt(i))))
            positions.InsertAt(i <= positions.GetSize() ? i : positions.GetSize(), old.GetAt(i));
    }
}

void CEditorLayout::RestoreOrder(const CUIntArray &shown, const CUIntArray &positions) {
    m_TableInfo.m_DisplayCols.Copy(shown);
    m_TableInfo.m_ColPositions.Copy(positions);
}

void CEditorLayout::SyncToFieldCount(int count) {
    CUIntArray &positions = m_TableInfo.m_ColPositions;
    if (positions.GetSize() > count)
        positions.SetSize(count);
    while (positions.GetSize() < count)
        positions.Add(static_cast<UINT>(positions.GetSize()));
    CUIntArray &shown = m_TableInfo.m_DisplayCols;
    for (int col = static_cast<int>(shown.GetSize()) - 1; col >= 0; --col) {
        if (static_cast<int>(shown.GetAt(col)) >= count)
            shown.RemoveAt(col);
    }
    if (m_TableInfo.m_ColWidths.GetSize() < count)
        m_TableInfo.m_ColWidths.SetSize(count);
}

void CEditorLayout::CompletePositions(int count) {
    CUIntArray whole;
    std::vector<bool> placed(static_cast<size_t>(count), false);
    const auto place = [&](UINT field) {
        if (field < placed.size() && !placed[field]) {
            placed[field] = true;
            whole.Add(field);
        }
    };
    CUIntArray &positions = m_TableInfo.m_ColPositions;
    for (int i = 0; i < positions.GetSize(); ++i)
        place(positions.GetAt(i));
    for (int field = 0; field < count; ++field)
        place(static_cast<UINT>(field));
    positions.Copy(whole);
}

void CEditorLayout::AttachColourSet(const char *name, CPoint set) {
    m_TableInfo.m_ColourSets.SetAt(name, set);
}

void CEditorLayout::DetachColourSet(const char *name) {
    m_TableInfo.m_ColourSets.RemoveKey(name);
}

CPoint CEditorLayout::GetColourSet(const char *name) const {
    CPoint set;
    return m_TableInfo.m_ColourSets.Lookup(name, set) ? set : CPoint(-1, -1);
}

void CEditorLayout::GetColourSetsByField(CUGDataSource *source, CArray<CPoint, CPoint &> &sets) const {
    CPoint none(-1, -1);
    const int fields = source->GetNumCols();
    sets.SetSize(0);
    for (int field = 0; field < fields; ++field)
        sets.Add(none);
    for (POSITION position = m_TableInfo.m_ColourSets.GetStartPosition(); position != nullptr;) {
        CString stored, name;
        CPoint set;
        m_TableInfo.m_ColourSets.GetNextAssoc(position, stored, set);
        for (int field = 0; field < fields; ++field) {
            if (source->GetColName(field, &name) == GRID_SUCCESS && name.CompareNoCase(stored) == 0)
                sets.SetAt(field, set);
        }
    }
}
