// Settings of the control's conduct, its redrawing, and the device contexts it lends.
#include "grid/UGCtrl.h"

#include <algorithm>

namespace {

int StoreUpTo(int *setting, int value, int limit) {
    if (value < 0 || value > limit)
        return GRID_ERROR;
    *setting = value;
    return GRID_SUCCESS;
}

} // namespace

int CUGCtrl::SetCurrentCellStyle(int style) {
    const int result = StoreUpTo(&m_GI.m_currentCellStyle, style, 3);
    RedrawAll();
    return result;
}

int CUGCtrl::SetVScrollMode(int mode) {
    const int result = StoreUpTo(&m_GI.m_vScrollMode, mode, 2);
    if (result == GRID_SUCCESS && m_vScroll.GetSafeHwnd() != nullptr)
        m_vScroll.UpdateRange();
    return result;
}

int CUGCtrl::SetHScrollMode(int mode) {
    return StoreUpTo(&m_GI.m_hScrollMode, mode, 1);
}

int CUGCtrl::SetBallisticMode(int mode) {
    return StoreUpTo(&m_GI.m_ballisticMode, mode, 3);
}

int CUGCtrl::SetBallisticDelay(int milliseconds) {
    m_GI.m_ballisticDelay = milliseconds < 0 ? 0 : milliseconds;
    return GRID_SUCCESS;
}

int CUGCtrl::SetUserSizingMode(int mode) {
    return StoreUpTo(&m_GI.m_userSizingMode, mode, 2);
}

int CUGCtrl::EnableColTranslation(int enable) {
    if (m_GI.m_colTranslationEnabled != (enable != 0))
        LeaveEditedCell(kAnyColumn);
    m_GI.m_colTranslationEnabled = enable != 0;
    return GRID_SUCCESS;
}

int CUGCtrl::EnablePainting(int enable) {
    m_GI.m_paintingEnabled = enable != 0;
    if (enable) {
        RedrawAll();
        m_vScroll.UpdateRange(); // the bars stood still as well
        m_hScroll.UpdateRange();
    }
    return GRID_SUCCESS;
}

int CUGCtrl::EnablePopupMenu(int enable) {
    m_GI.m_popupMenuEnabled = enable != 0;
    return GRID_SUCCESS;
}

int CUGCtrl::EnableScrollHints(int vertical, int horizontal) {
    m_GI.m_vScrollHint = vertical != 0;
    m_GI.m_hScrollHint = horizontal != 0;
    return GRID_SUCCESS;
}

int CUGCtrl::SetSuppressFinishOnFocusLoss(int suppress) {
    m_GI.m_suppressFinish = suppress;
    return GRID_SUCCESS;
}

int CUGCtrl::Set3DBorderWidth(int width) {
    if (width < 0)
        return GRID_ERROR;
    m_GI.m_3dBorderWidth = width;
    return GRID_SUCCESS;
}

int CUGCtrl::SetDoubleBuffer(int enable) {
    m_grid.SetDoubleBuffer(enable != 0);
    return GRID_SUCCESS;
}

int CUGCtrl::SetDefaultFont(CFont *font) {
    const HFONT before = m_GI.m_defaultFont;
    m_GI.m_defaultFont = font != nullptr ? static_cast<HFONT>(font->GetSafeHandle()) : nullptr;
    // An open box must not keep a font that its owner may be about to delete.
    CEdit *edit = GetEditControl();
    if (edit != nullptr && reinterpret_cast<HFONT>(edit->SendMessage(WM_GETFONT, 0, 0)) == before)
        edit->SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(m_GI.m_defaultFont), TRUE);
    m_hint.SetFont(font);
    RedrawAll();
    return GRID_SUCCESS;
}

void CUGCtrl::RedrawAll() {
    PlaceEdit();
    if (m_grid.GetSafeHwnd() == nullptr || !m_GI.m_paintingEnabled)
        return;
    m_grid.Invalidate(FALSE);
    m_topHdg.Invalidate(FALSE);
    m_sideHdg.Invalidate(FALSE);
    m_cornerBtn.Invalidate(FALSE);
}

void CUGCtrl::RedrawCell(int col, long row) {
    if (m_grid.GetSafeHwnd() == nullptr)
        return;
    RECT rect;
    if (row < 0 || col < 0) {
        RedrawAll();
    } else if (GetCellRect(col, row, &rect) == GRID_SUCCESS) {
        m_grid.InvalidateRect(&rect, FALSE);
        if (col < m_GI.m_lockedCols)
            m_sideHdg.Invalidate(FALSE);
    }
}

void CUGCtrl::RedrawRow(long row) {
    if (m_grid.GetSafeHwnd() == nullptr || !m_GI.m_rows.Contains(row))
        return;
    const long top = m_GI.m_rows.PositionOf(row);
    const long bottom = m_GI.m_rows.EndOf(top, row);
    const RECT cells = {0, top, m_GI.m_cols.m_extent, bottom};
    const RECT heading = {0, top, m_GI.m_sideHeadingWidth, bottom};
    m_grid.InvalidateRect(&cells, FALSE);
    m_sideHdg.InvalidateRect(&heading, FALSE);
}

void CUGCtrl::RedrawCol(int col) {
    if (m_grid.GetSafeHwnd() == nullptr || !m_GI.m_cols.Contains(col))
        return;
    const long left = m_GI.m_cols.PositionOf(col);
    const long right = m_GI.m_cols.EndOf(left, col);
    const RECT cells = {left, 0, right, m_GI.m_rows.m_extent};
    const RECT heading = {left, 0, right, m_GI.m_topHeadingHeight};
    m_grid.InvalidateRect(&cells, FALSE);
    m_topHdg.InvalidateRect(&heading, FALSE);
    if (col < m_GI.m_lockedCols) {
        m_sideHdg.Invalidate(FALSE);
        m_cornerBtn.Invalidate(FALSE);
    }
}

void CUGCtrl::Update() {
    RedrawAll();
    UpdateState();
    UpdateWindow();
}

CDC *CUGCtrl::GetGridDC() {
    return m_grid.GetDC();
}

int CUGCtrl::ReleaseGridDC(CDC *dc) {
    return m_grid.ReleaseDC(dc) ? GRID_SUCCESS : GRID_ERROR;
}

CDC *CUGCtrl::GetTopHeadingDC() {
    return m_topHdg.GetDC();
}

int CUGCtrl::ReleaseTopHeadingDC(CDC *dc) {
    return m_topHdg.ReleaseDC(dc) ? GRID_SUCCESS : GRID_ERROR;
}

int CUGCtrl::SetTabWidth(int width) {
    m_GI.m_tabWidth = std::max(width, 0);
    AdjustComponents();
    return GRID_SUCCESS;
}
