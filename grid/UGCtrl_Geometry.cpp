// Where cells stand and which cell is at a point, joined blocks included.
#include "grid/UGCtrl.h"

bool CUGCtrl::GetJoinOrigin(const CUGCell &cell, int col, long row, int *originCol, long *originRow) const {
    if (!cell.IsJoined())
        return false;
    const int left = cell.GetJoinOriginCol();
    const long top = cell.GetJoinOriginRow();
    if (left < 0 || left > col || top < 0 || top > row)
        return false;
    *originCol = left;
    *originRow = top;
    return true;
}

// The block reaches as far as its neighbours to the right and below name the same origin. A cell that names an
// origin which knows of no block, or whose block does not reach it, stands alone: nothing else would paint it.
void CUGCtrl::GetJoinRange(int col, long row, int *startCol, long *startRow, int *endCol, long *endRow) {
    CUGCell cell;
    GetCell(col, row, &cell);
    *startCol = *endCol = col;
    *startRow = *endRow = row;
    if (!GetJoinOrigin(cell, col, row, startCol, startRow))
        return;
    const int left = *endCol = *startCol;
    const long top = *endRow = *startRow;
    const auto belongs = [&](int c, long r) {
        return GetCell(c, r, &cell) != GRID_ERROR && cell.IsJoined() && cell.GetJoinOriginCol() == left &&
               cell.GetJoinOriginRow() == top;
    };
    const bool begins = belongs(left, top);
    while (begins && *endCol + 1 < m_GI.m_cols.m_count && belongs(*endCol + 1, top))
        ++*endCol;
    while (begins && *endRow + 1 < m_GI.m_rows.m_count && belongs(left, *endRow + 1))
        ++*endRow;
    if (col > *endCol || row > *endRow) {
        *startCol = *endCol = col;
        *startRow = *endRow = row;
    }
}

int CUGCtrl::GetCellRect(int col, long row, RECT *rect) {
    if (!m_GI.m_cols.Contains(col) || !m_GI.m_rows.Contains(row))
        return GRID_ERROR;
    int startCol, endCol;
    long startRow, endRow;
    GetJoinRange(col, row, &startCol, &startRow, &endCol, &endRow);
    rect->left = m_GI.m_cols.PositionOf(startCol);
    rect->top = m_GI.m_rows.PositionOf(startRow);
    rect->right = rect->left + m_GI.m_cols.Span(startCol, endCol + 1L);
    rect->bottom = rect->top + m_GI.m_rows.Span(startRow, endRow + 1);
    return GRID_SUCCESS;
}

int CUGCtrl::GetCellFromPoint(int x, int y, int *col, long *row, RECT *rect) {
    *col = -1;
    *row = -1;
    if (x < 0 || x > m_GI.m_cols.m_extent || y < 0 || y > m_GI.m_rows.m_extent)
        return GRID_ERROR;
    const long foundCol = m_GI.m_cols.At(x);
    const long foundRow = m_GI.m_rows.At(y);
    if (foundCol < 0 || foundRow < 0)
        return GRID_ERROR;
    *col = static_cast<int>(foundCol);
    *row = foundRow;
    int endCol;
    long endRow;
    GetJoinRange(static_cast<int>(foundCol), foundRow, col, row, &endCol, &endRow);
    if (rect != nullptr)
        GetCellRect(*col, *row, rect);
    return GRID_SUCCESS;
}
