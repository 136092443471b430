// How many rows and columns there are, and how large they and the headings are.
#include "grid/UGCtrl.h"

#include <algorithm>

int CUGCtrl::SetNumberRows(long rows, int redraw) {
    if (rows < 0)
        return GRID_ERROR;
    m_GI.ResizeRows(rows);
    const bool moved = m_GI.m_rows.ClampToCount();
    LeaveLostCells();
    if (moved)
        UpdateState();
    AdjustAxes();
    if (redraw)
        RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetNumberCols(int cols, int redraw) {
    if (cols < 0)
        return GRID_ERROR;
    m_GI.ResizeColumns(cols);
    const bool moved = m_GI.m_cols.ClampToCount();
    LeaveLostCells();
    if (moved)
        UpdateState();
    AdjustAxes();
    if (redraw)
        RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetColWidth(int col, int width) {
    const int result = m_GI.SetColWidth(col, width);
    if (result == GRID_SUCCESS) {
        AdjustAxes();
        RedrawAll();
    }
    return result;
}

int CUGCtrl::SetRowHeight(long row, int height) {
    const int result = m_GI.SetRowHeight(row, height);
    if (result == GRID_SUCCESS) {
        AdjustAxes();
        RedrawAll();
    }
    return result;
}

int CUGCtrl::SetDefaultRowHeight(int height) {
    if (height < 0)
        return GRID_ERROR;
    m_GI.m_rows.m_defaultSize = height;
    AdjustAxes();
    RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetUniformRowHeight(int flag) {
    const int result = m_GI.SetUniformRowHeight(flag);
    AdjustAxes();
    RedrawAll();
    return result;
}

int CUGCtrl::SetTH_Height(int height) {
    if (height < 0)
        return GRID_ERROR;
    m_GI.m_topHeadingHeight = height;
    AdjustComponents();
    return GRID_SUCCESS;
}

int CUGCtrl::SetSH_Width(int width) {
    if (width < 0)
        return GRID_ERROR;
    m_GI.m_sideHeadingWidth = width;
    AdjustComponents();
    return GRID_SUCCESS;
}

int CUGCtrl::SetLockedColumns(int count) {
    if (count < 0 || count > m_GI.m_cols.m_count)
        return GRID_ERROR;
    m_GI.m_lockedCols = count;
    RedrawAll();
    return GRID_SUCCESS;
}

// Reckons the largest leading row and column anew; where a bar comes or goes the windows are laid out again. Both
// axes, since a bar that goes gives its room to the other one, whose bar may then go too.
void CUGCtrl::AdjustAxes() {
    if (m_grid.GetSafeHwnd() == nullptr) {
        for (CUGAxis *axis : {&m_GI.m_cols, &m_GI.m_rows})
            axis->m_maxLeading = axis->ComputeMaxLeading();
        HoldLeadingInRange();
        return;
    }
    if (m_GI.m_adjusting)
        return;
    CRect client;
    GetClientRect(&client);
    if (FitAxes(client.Width(), client.Height())) {
        AdjustComponents();
        return;
    }
    HoldLeadingInRange();
    m_vScroll.UpdateRange();
    m_hScroll.UpdateRange();
    PlaceEdit();
}

void CUGCtrl::HoldLeadingInRange() {
    for (CUGAxis *axis : {&m_GI.m_cols, &m_GI.m_rows})
        axis->m_leading = std::min(axis->m_leading, axis->m_maxLeading);
}

// After the table shrank: an edit of a cell that is gone ends, unwritten, and a table without cells has none
// that a type could act on.
void CUGCtrl::LeaveLostCells() {
    if (GetEditControl() != nullptr &&
        (!m_GI.m_cols.Contains(m_GI.m_editCol) || !m_GI.m_rows.Contains(m_GI.m_editRow)))
        CancelEdit();
    if (m_GI.m_cols.m_count == 0 || m_GI.m_rows.m_count == 0)
        FocusedType();
}
