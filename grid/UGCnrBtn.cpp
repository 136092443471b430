#include "grid/UGCnrBtn.h"

#include "grid/ButtonWatch.h"
#include "grid/CellDrawScope.h"
#include "grid/PaintingScope.h"
#include "grid/UGCtrl.h"
#include "grid/UGPlacing.h"

#include <utility>

IMPLEMENT_DYNAMIC(CUGCnrBtn, CWnd)

BEGIN_MESSAGE_MAP(CUGCnrBtn, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

BOOL CUGCnrBtn::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, nullptr, nullptr, nullptr);
    return CWnd::PreCreateWindow(create);
}

BOOL CUGCnrBtn::OnEraseBkgnd(CDC *) {
    return TRUE;
}

// As the side heading: the locked columns' headings from the right, then the corner's own cell.
void CUGCnrBtn::OnPaint() {
    CPaintDC dc(this);
    if (!m_GI->m_paintingEnabled)
        return;
    HGDIOBJ oldFont = nullptr;
    if (m_GI->m_defaultFont != nullptr)
        oldFont = ::SelectObject(dc.GetSafeHdc(), m_GI->m_defaultFont);
    RECT rect = {0, 0, m_GI->m_sideHeadingWidth, m_GI->m_topHeadingHeight};
    for (int col = m_GI->m_lockedCols - 1; col >= -1; --col) {
        rect.left = col >= 0 ? rect.right - m_GI->m_cols.SizeOf(col) : 0;
        RECT area = rect;
        rect.right = rect.left;
        if (area.right <= area.left)
            continue;
        m_cell.ClearAll();
        m_ctrl->GetCell(col, -1, &m_cell);
        CUGCellType *type = m_ctrl->GetCellType(m_cell.GetCellType());
        const CUGCellDrawScope within(&dc, area);
        type->DrawBorder(&dc, &area, &m_cell);
        type->OnDraw(&dc, &area, &m_cell, 0, 0);
    }
    if (oldFont != nullptr)
        ::SelectObject(dc.GetSafeHdc(), oldFont);
}

void CUGCnrBtn::LookForEdge(CPoint point) {
    const UGCornerZone zone(m_GI->m_topHeadingHeight - point.y, m_GI->m_sideHeadingWidth - point.x);
    const bool height = zone.AsksHeight() && m_ctrl->OnCanSizeTopHdg();
    const bool width = zone.AsksWidth() && m_ctrl->OnCanSizeSideHdg();
    m_sizeHeight = zone.SizesHeight(height, width);
    m_sizeWidth = zone.SizesWidth(height, width);
    LPCSTR cursor = IDC_ARROW;
    if (m_sizeHeight && m_sizeWidth)
        cursor = IDC_SIZENWSE;
    else if (m_sizeHeight)
        cursor = IDC_SIZENS;
    else if (m_sizeWidth)
        cursor = IDC_SIZEWE;
    ::SetCursor(::LoadCursorA(nullptr, cursor));
}

void CUGCnrBtn::Drag(CPoint point) {
    {
        const CPaintingScope quiet(m_ctrl);
        if (m_sizeHeight) {
            int height = std::max<int>(point.y, 0);
            m_ctrl->OnTopHdgSizing(&height);
            m_ctrl->SetTH_Height(height);
        }
        if (m_sizeWidth) {
            int width = std::max<int>(point.x, 0);
            m_ctrl->OnSideHdgSizing(&width);
            m_ctrl->SetSH_Width(width);
        }
    }
    UpdateWindow();
    m_ctrl->m_topHdg.UpdateWindow();
    m_ctrl->m_sideHdg.UpdateWindow();
    m_ctrl->m_grid.UpdateWindow();
}

void CUGCnrBtn::OnMouseMove(UINT flags, CPoint point) {
    if (!(flags & MK_LBUTTON) && GetCapture() == this)
        ReleaseCapture(); // the release of the button went elsewhere, and ends the sizing here
    if (m_resizing)
        Drag(point);
    else
        LookForEdge(point);
}

void CUGCnrBtn::OnLButtonDown(UINT, CPoint point) {
    const CUGButtonWatch button;
    LookForEdge(point);
    if (GetSafeHwnd() == nullptr || button.CameUp())
        return;
    SetCapture();
    m_resizing = m_sizeHeight || m_sizeWidth;
    if (m_resizing)
        return;
    m_ctrl->OnCB_LClicked(1);
    if (button.CameUp() && GetSafeHwnd() != nullptr && GetCapture() == this)
        ReleaseCapture();
}

void CUGCnrBtn::OnLButtonUp(UINT, CPoint) {
    const bool resizing = std::exchange(m_resizing, false);
    if (GetCapture() == this)
        ReleaseCapture();
    if (!resizing) {
        m_ctrl->OnCB_LClicked(0);
        return;
    }
    m_ctrl->Update();
    int width = -1; // the sizes stand in the control already; no column was dragged
    m_ctrl->OnColSized(-1, &width);
}

void CUGCnrBtn::OnCaptureChanged(CWnd *next) {
    if (next != this)
        m_resizing = false;
    CWnd::OnCaptureChanged(next);
}

void CUGCnrBtn::OnLButtonDblClk(UINT, CPoint) {
    m_ctrl->OnCB_DClicked();
}

void CUGCnrBtn::OnRButtonDown(UINT, CPoint) {
    m_ctrl->OnCB_RClicked(1);
}

void CUGCnrBtn::OnRButtonUp(UINT, CPoint) {
    m_ctrl->OnCB_RClicked(0);
}
