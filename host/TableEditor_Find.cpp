// Searching on in the cells that were selected when the search began.
#include "host/TableEditor.h"

#include "editorcore/MemoryGuard.h"
#include "editorcore/WaitCursorScope.h"

// True where the selection that a search asks for has been used up by one before it.
bool CTableEditor::SearchesBlock(const CFindReplaceData &data) {
    if (data.GetDirection() != kSearchSelection)
        return false;
    int left, right;
    long top, bottom;
    if (GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS ||
        (left == right && top == bottom && m_block.bottom >= 0))
        return m_block.bottom >= 0;
    m_block = {left, right, top, bottom, false};
    return false;
}

LRESULT CTableEditor::OnFindNext(WPARAM wParam, LPARAM unused) {
    const CFindReplaceData *data = CFindReplaceData::FromMessage(wParam);
    if (data == nullptr)
        return 0;
    if (!SearchesBlock(*data))
        return COrvaneEditor::OnFindNext(wParam, unused);
    if (!RunInMemory([&] {
            m_FindData = *data;
            GoOnInBlock();
        }))
        ReportOutOfMemory();
    return 0;
}

void CTableEditor::FindAgain() {
    if (CanFindAgain() && m_FindData.GetDirection() == kSearchSelection)
        OnFindNext(reinterpret_cast<WPARAM>(&m_FindData), 0);
    else
        OnFindAgain();
}

// Column by column, as a search in the selection goes.
bool CTableEditor::NextInBlock(int *col, long *row) const {
    if (++*row > m_block.bottom) {
        *row = m_block.top;
        ++*col;
    }
    return *col <= m_block.right;
}

// From the current cell on, where that is in the block; true with the current cell on a match.
bool CTableEditor::FindInBlock(const CFindReplaceData &data, bool *stopped) {
    const CWaitCursorScope wait(GetAppInterface());
    SaveEditContents();
    CString find;
    data.GetFindString(find);
    m_block.right = std::min(m_block.right, GetNumberCols() - 1);
    m_block.bottom = std::min(m_block.bottom, GetNumberRows() - 1);
    int col = GetCurrentCol();
    long row = GetCurrentRow();
    const bool inside = col >= m_block.left && col <= m_block.right && row >= m_block.top && row <= m_block.bottom;
    if (m_block.fromStart || !inside) {
        col = m_block.left;
        row = m_block.top - 1;
    }
    m_block.fromStart = false;
    for (bool match = false; NextInBlock(&col, &row);) {
        *stopped = AbortOperation() || !IsMatchWithCellText(col, row, find, data.IsMatchingCase(), &match);
        if (*stopped)
            return false;
        if (match)
            return GotoCell(col, row) == GRID_SUCCESS;
    }
    return false;
}

void CTableEditor::GoOnInBlock() {
    bool stopped = false;
    if (FindInBlock(m_FindData, &stopped) || stopped)
        return;
    m_block.fromStart = true;
    AfxMessageBox("The selected cells have been searched to their end.");
}
