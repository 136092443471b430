// Cell texts, columns and fields, read-only cells, and ids of cell types.
#include "editorcore/EditorCore.h"
#include "lookup/ValidatingCellType.h"

bool CEditorCore::GetCellText(int col, long row, CString *text) {
    CEdit *edit = GetEditControl();
    if (edit != nullptr && col == GetCurrentCol() && row == GetCurrentRow()) {
        edit->GetWindowText(*text);
        return true;
    }
    CUGCell cell;
    if (GetCell(col, row, &cell) != GRID_SUCCESS)
        return false;
    cell.GetText(text);
    return !text->IsEmpty();
}

bool CEditorCore::GetDataSrcCellText(int col, long row, CString *text) {
    return GetCellText(GetDataColNumber(col), row, text);
}

// Null unless the id is of a cell type that validates.
COrvaneValidatingCellType *CEditorCore::ValidatingType(int id) {
    return IsValidatingCell(id) ? dynamic_cast<COrvaneValidatingCellType *>(GetCellType(id)) : nullptr;
}

int CEditorCore::QuickSetText(int col, long row, const char *text) {
    const int result = CUGCtrl::QuickSetText(col, row, text);
    if (m_ValidatingCellTypes.GetSize() > 0) {
        CUGCell cell;
        GetCell(col, row, &cell);
        if (COrvaneValidatingCellType *type = ValidatingType(cell.GetCellType()))
            type->OnSetText(col, row, nullptr);
    }
    return result;
}

// A text that is invalid has been written by the time it is checked.
int CEditorCore::SetDataSrcCell(CUGDataSource *source, CUGCell *cell, int field, long row) {
    const int result = source->SetCell(field, row, cell);
    CString name;
    source->GetColName(field, &name);
    COrvaneValidatingCellType *type = ValidatingType(m_pColCellTypes->GetCellType(name));
    if (result == GRID_SUCCESS && type != nullptr && !type->IsTextValid(cell->GetText()))
        type->DoInvalidCodeAction(field, row, cell->GetText(), true);
    return result;
}

void CEditorCore::GetColName(int gridCol, CString &name) {
    CUGCell cell;
    if (GetCell(gridCol, -1, &cell) == GRID_SUCCESS)
        cell.GetText(&name);
    else
        name.Empty();
}

int CEditorCore::GetDataSrcField(int gridCol) const {
    return m_pLayout != nullptr ? m_pLayout->GetDataSrcField(gridCol) : -1;
}

int CEditorCore::GetGridField(int field) const {
    return m_pLayout != nullptr ? m_pLayout->GetGridField(field) : -1;
}

void CEditorCore::GetCurCellRect(CRect *rect) {
    rect->SetRectEmpty();
    CUGCtrl::GetCellRect(GetCurrentCol(), GetCurrentRow(), rect);
    // Cells are reckoned from the cell area, which begins behind the headings.
    rect->OffsetRect(GetSH_Width(), GetTH_Height());
    ClientToScreen(rect);
}

void CEditorCore::SetCellAsReadOnly(int field, long row) {
    if (field == -1 && row == -1)
        return;
    m_ReadOnlyCols.Add(field);
    m_ReadOnlyRows.Add(row);
}

bool CEditorCore::IsDataSrcCellReadOnly(int field, long row) {
    if (field == -1 || row == -1 || m_ReadOnlyCols.GetSize() != m_ReadOnlyRows.GetSize())
        return false;
    for (int i = static_cast<int>(m_ReadOnlyCols.GetSize()) - 1; i >= 0; --i) {
        const bool fieldNamed = m_ReadOnlyCols[i] == field && (m_ReadOnlyRows[i] == -1 || m_ReadOnlyRows[i] == row);
        const bool rowNamed = m_ReadOnlyRows[i] == row && (m_ReadOnlyCols[i] == -1 || m_ReadOnlyCols[i] == field);
        if (fieldNamed || rowNamed)
            return true;
    }
    return false;
}

int CEditorCore::GetNewCellTypeId(int kind) {
    constexpr int kValidating = 2;
    if (kind == kValidating)
        m_ValidatingCellTypes.Add(m_nNextCellTypeId);
    return m_nNextCellTypeId++;
}

bool CEditorCore::IsValidatingCell(int id) {
    for (int i = static_cast<int>(m_ValidatingCellTypes.GetSize()) - 1; i >= 0; --i) {
        if (m_ValidatingCellTypes[i] == id)
            return true;
    }
    return false;
}

int CEditorCore::RemoveCellType(long id) {
    for (int i = static_cast<int>(m_ValidatingCellTypes.GetSize()) - 1; i >= 0; --i) {
        if (m_ValidatingCellTypes[i] == id)
            m_ValidatingCellTypes.RemoveAt(i);
    }
    return CUGCtrl::RemoveCellType(id);
}
