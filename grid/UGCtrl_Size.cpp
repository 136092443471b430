// How many rows and columns there are, and how large they and the headings are.
#include "grid/UGCtrl.h"

int CUGCtrl::SetNumberRows(long rows, int redraw) {
    if (rows < 0)
        return GRID_ERROR;
    m_GI.ResizeRows(rows);
    if (m_GI.m_rows.ClampToCount())
        UpdateState();
    AdjustAxis(m_GI.m_rows);
    if (redraw)
        RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetNumberCols(int cols, int redraw) {
    if (cols < 0)
        return GRID_ERROR;
    m_GI.ResizeColumns(cols);
    if (m_GI.m_cols.ClampToCount())
        UpdateState();
    AdjustAxis(m_GI.m_cols);
    if (redraw)
        RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetColWidth(int col, int width) {
    const int result = m_GI.SetColWidth(col, width);
    if (result == GRID_SUCCESS) {
        AdjustAxis(m_GI.m_cols);
        RedrawAll();
    }
    return result;
}

int CUGCtrl::SetRowHeight(long row, int height) {
    const int result = m_GI.SetRowHeight(row, height);
    if (result == GRID_SUCCESS) {
        AdjustAxis(m_GI.m_rows);
        RedrawAll();
    }
    return result;
}

int CUGCtrl::SetDefaultRowHeight(int height) {
    if (height < 0)
        return GRID_ERROR;
    m_GI.m_rows.m_defaultSize = height;
    AdjustAxis(m_GI.m_rows);
    RedrawAll();
    return GRID_SUCCESS;
}

int CUGCtrl::SetUniformRowHeight(int flag) {
    const int result = m_GI.SetUniformRowHeight(flag);
    AdjustAxis(m_GI.m_rows);
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

// Reckons the largest leading row or column anew; where a bar comes or goes the windows are laid out again.
void CUGCtrl::AdjustAxis(CUGAxis &axis) {
    const long before = axis.m_maxLeading;
    axis.m_maxLeading = axis.ComputeMaxLeading();
    if (axis.m_leading > axis.m_maxLeading)
        axis.m_leading = axis.m_maxLeading;
    if (!m_GI.m_adjusting && (before > 0) != (axis.m_maxLeading > 0))
        AdjustComponents();
    if (m_vScroll.GetSafeHwnd() != nullptr) {
        m_vScroll.UpdateRange();
        m_hScroll.UpdateRange();
    }
}
