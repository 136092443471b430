// Selecting cells: by operation, and as the current cell moves.
#include "grid/UGCtrl.h"

namespace {

bool IsDown(int key) {
    return (::GetKeyState(key) & 0x8000) != 0;
}

} // namespace

void CUGCtrl::UpdateSelection(int lastCol, long lastRow) {
    CUGSelectionList &list = m_GI.m_selection;
    const int col = GetCurrentCol();
    const long row = GetCurrentRow();
    const int type = m_GI.m_moveType;
    const bool shift = IsDown(VK_SHIFT) && (type == UG_MOVED_BY_KEY || type == UG_MOVED_BY_CLICK);
    if (type == UG_MOVED_BY_DRAG || shift) {
        m_grid.InvalidateSelection();
        if (list.IsEmpty()) // an edit has used the block up: it begins again where the move does
            list.StartBlock(lastCol, lastRow);
        if (list.ExtendBlock(col, row) != GRID_SUCCESS)
            list.StartBlock(col, row);
        m_grid.InvalidateSelection();
    } else if (type == UG_MOVED_BY_CLICK && IsDown(VK_CONTROL)) {
        list.ToggleCell(col, row);
        m_grid.InvalidateSelection();
    } else {
        ClearSelections();
        list.StartBlock(col, row);
    }
}

void CUGCtrl::ClearSelections() {
    m_grid.InvalidateSelection();
    m_GI.m_selection.ClearAll();
}

int CUGCtrl::SelectRange(int col1, long row1, int col2, long row2) {
    m_GI.m_selection.StartBlock(col1, row1);
    const int result = m_GI.m_selection.ExtendBlock(col2, row2);
    m_grid.InvalidateSelection();
    return result;
}

int CUGCtrl::EnumFirstSelected(int *col, long *row) {
    return m_GI.m_selection.EnumFirst(GetCurrentCol(), GetCurrentRow(), col, row);
}

int CUGCtrl::EnumNextSelected(int *col, long *row) {
    return m_GI.m_selection.EnumNext(col, row);
}

int CUGCtrl::GetCurrentSelection(int *left, long *top, int *right, long *bottom) {
    return m_GI.m_selection.GetCurrentBlock(left, top, right, bottom);
}

bool CUGCtrl::IsInMultipleSelection() {
    int col;
    long row;
    return EnumFirstSelected(&col, &row) == GRID_SUCCESS && EnumNextSelected(&col, &row) == GRID_SUCCESS;
}

int CUGCtrl::EnableMultiSelect(int enable) {
    m_GI.m_multiSelect = enable != 0;
    if (enable) {
        m_GI.m_selection.SetMode(m_GI.m_rowHighlight ? UG_SELECT_ROWS : UG_SELECT_CELLS);
        m_GI.m_selection.StartBlock(GetCurrentCol(), GetCurrentRow());
    } else {
        ClearSelections();
        m_GI.m_selection.SetMode(UG_SELECT_OFF);
    }
    return GRID_SUCCESS;
}

int CUGCtrl::EnableRowHighlight(int mode) {
    m_GI.m_rowHighlight = mode;
    if (m_GI.m_multiSelect)
        m_GI.m_selection.SetMode(mode ? UG_SELECT_ROWS : UG_SELECT_CELLS);
    RedrawAll();
    return GRID_SUCCESS;
}
