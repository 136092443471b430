// Sizing by mouse: the layout follows what the grid has already done.
#include "editorcore/EditorCore.h"

int CEditorCore::OnCanSizeCol(int col) {
    GetColWidth(col, &m_nSizeBefore);
    return 1;
}

int CEditorCore::OnCanSizeRow(long row) {
    GetRowHeight(row, &m_nSizeBefore);
    return 1;
}

int CEditorCore::OnCanSizeTopHdg() {
    m_nHeadingHeightBefore = GetTH_Height();
    return 1;
}

int CEditorCore::OnCanSizeSideHdg() {
    m_nSizeBefore = GetSH_Width();
    return 1;
}

// Headings cannot collapse: there would be nothing left to pull open.
int CEditorCore::OnTopHdgSizing(int *size) {
    if (*size < 1)
        *size = 1;
    return 1;
}

int CEditorCore::OnSideHdgSizing(int *size) {
    return OnTopHdgSizing(size);
}

void CEditorCore::OnColSized(int col, int *width) {
    if (m_pLayout == nullptr)
        return;
    if (col != -1) {
        m_pLayout->SetColWidth(col, *width);
        return;
    }
    m_pLayout->SetTopHeadingHeight(GetTH_Height());
    m_pLayout->SetSideHeadingWidth(GetSH_Width());
}

void CEditorCore::OnRowSized(long, int *height) {
    if (m_pLayout != nullptr)
        m_pLayout->SetRowHeight(*height);
}
