#include "editorcore/ColumnCellTypeMap.h"

#include "editorcore/EditorCore.h"

namespace {

constexpr int kBlockSize = 10;
constexpr UINT kHashSize = 17;

} // namespace

CColumnCellTypeMap::CColumnCellTypeMap(CEditorCore *editor) : m_pEditor(editor), m_Types(kBlockSize) {
    m_Types.InitHashTable(kHashSize);
}

int CColumnCellTypeMap::DefaultType() {
    CUGCell cell;
    m_pEditor->GetGridDefault(&cell);
    return cell.GetCellType();
}

int CColumnCellTypeMap::GetCellType(const char *name) {
    CString key(name);
    key.MakeLower();
    int id;
    return m_Types.Lookup(key, id) ? id : DefaultType();
}

void CColumnCellTypeMap::GiveToColumn(int col, int id) {
    CUGCell cell;
    m_pEditor->GetColDefault(col, &cell);
    cell.SetCellType(id);
    m_pEditor->SetColDefault(col, &cell);
}

void CColumnCellTypeMap::SetCellType(const char *name, int id) {
    CString lower(name), upper(name), heading;
    lower.MakeLower();
    upper.MakeUpper();
    m_Types.SetAt(lower, id);
    for (int col = 0; col < m_pEditor->CUGCtrl::GetNumberCols(); ++col) {
        m_pEditor->GetColName(col, heading);
        CString lowerHeading(heading), upperHeading(heading);
        lowerHeading.MakeLower();
        upperHeading.MakeUpper();
        if (lowerHeading == lower || upperHeading == upper) {
            GiveToColumn(col, id);
            m_pEditor->RedrawCol(col);
            return;
        }
    }
}

void CColumnCellTypeMap::Apply() {
    CString heading;
    for (int col = 0; col < m_pEditor->CUGCtrl::GetNumberCols(); ++col) {
        m_pEditor->GetColName(col, heading);
        GiveToColumn(col, GetCellType(heading));
    }
}
