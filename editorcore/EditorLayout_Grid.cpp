// The layout on its way to the grid and back.
#include "editorcore/EditorCore.h"

// The number of fields decides: a source with one more or less throws the whole layout away.
bool CEditorLayout::FitsSource(CUGDataSource *source) {
    const int count = source->GetNumCols();
    if (!m_bTableFound || count != m_TableInfo.m_nFieldCount)
        return false;
    m_pEditor->SetTH_Height(m_TableInfo.m_nTopHeadingHeight);
    m_pEditor->SetSH_Width(m_TableInfo.m_nSideHeadingWidth);
    if (m_TableInfo.m_nRowHeight > 0) // a height of 0 would show no record at all
        m_pEditor->SetDefaultRowHeight(m_TableInfo.m_nRowHeight);
    SyncToFieldCount(count);
    if (count < 1)
        return true;
    if (m_TableInfo.m_ColPositions.GetSize() != count || m_TableInfo.m_ColWidths.GetSize() != count)
        return false;
    CompletePositions(count);
    return true;
}

bool CEditorLayout::ApplyToGrid(CUGDataSource *source) {
    if (!FitsSource(source))
        return false;
    CUGCtrl *grid = m_pEditor;
    if (source->GetNumCols() < 1) {
        Reset();
        grid->SetNumberCols(0, 0);
        grid->SetNumberRows(0, 0);
        grid->RedrawAll();
        return true;
    }
    if (const long rows = source->GetNumRows(); rows >= 0)
        grid->SetNumberRows(rows, 0);
    const CUIntArray &shown = m_TableInfo.m_DisplayCols;
    grid->SetNumberCols(static_cast<int>(shown.GetSize()), 0);
    CString name;
    for (int col = 0; col < shown.GetSize(); ++col) {
        const int field = static_cast<int>(shown.GetAt(col));
        grid->SetColWidth(col, static_cast<int>(m_TableInfo.m_ColWidths.GetAt(field)));
        source->GetColName(field, &name);
        m_pEditor->QuickSetText(col, -1, name);
        m_pEditor->SetColTranslation(col, field);
    }
    grid->RedrawAll();
    return true;
}

void CEditorLayout::CaptureFromGrid() {
    CUGCtrl *grid = m_pEditor;
    grid->GetRowHeight(0, &m_TableInfo.m_nRowHeight);
    m_TableInfo.m_nTopHeadingHeight = grid->GetTH_Height();
    m_TableInfo.m_nSideHeadingWidth = grid->GetSH_Width();
    const int cols = grid->GetNumberCols();
    m_TableInfo.m_ColWidths.SetSize(cols);
    m_TableInfo.m_ColPositions.SetSize(cols);
    m_TableInfo.m_DisplayCols.SetSize(cols);
    for (int col = 0; col < cols; ++col) {
        int width = 0;
        grid->GetColWidth(col, &width);
        m_TableInfo.m_ColWidths.SetAt(col, static_cast<UINT>(width));
        m_TableInfo.m_ColPositions.SetAt(col, static_cast<UINT>(col));
        m_TableInfo.m_DisplayCols.SetAt(col, static_cast<UINT>(col));
    }
    m_TableInfo.m_nFieldCount = cols;
}
