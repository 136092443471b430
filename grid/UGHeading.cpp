#include "grid/UGHeading.h"

#include "grid/ButtonWatch.h"
#include "grid/CellDrawScope.h"
#include "grid/UGCtrl.h"

#include <utility>

IMPLEMENT_DYNAMIC(CUGHeading, CWnd)

BEGIN_MESSAGE_MAP(CUGHeading, CWnd)
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

// No class cursor: the pointer's shape is set as it moves over edges.
BOOL CUGHeading::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, nullptr, nullptr, nullptr);
    return CWnd::PreCreateWindow(create);
}

BOOL CUGHeading::OnEraseBkgnd(CDC *) {
    return TRUE;
}

void CUGHeading::OnPaint() {
    if (m_GI->m_paintingEnabled && Axis().m_leading != m_shownLeading) {
        // The table shrank under the view: all of it stands elsewhere, not only what is to be painted.
        m_shownLeading = Axis().m_leading;
        Invalidate(FALSE);
    }
    CPaintDC dc(this);
    if (!m_GI->m_paintingEnabled)
        return;
    HGDIOBJ oldFont = nullptr;
    if (m_GI->m_defaultFont != nullptr)
        oldFont = ::SelectObject(dc.GetSafeHdc(), m_GI->m_defaultFont);
    m_ctrl->OnDrawSetup(&dc, DrawSection());
    const CUGAxis &axis = Axis();
    long end = 0;
    const bool drawn = HasParts() && !axis.AllHidden();
    for (long index = axis.m_leading; drawn && index < axis.m_count && end < axis.m_extent; ++index) {
        const long begin = end;
        end = axis.EndOf(begin, index);
        const RECT rect = Strip(begin, end);
        if (end > begin && ::RectVisible(dc.GetSafeHdc(), &rect))
            DrawOne(&dc, index, begin, end);
    }
    if (end < axis.m_extent) {
        const RECT rest = Strip(end, axis.m_extent);
        dc.FillSolidRect(&rest, m_GI->m_headingDefault.GetBackColor());
    }
    if (oldFont != nullptr)
        ::SelectObject(dc.GetSafeHdc(), oldFont);
}

void CUGHeading::DrawHeadingCell(CDC *dc, int col, long row, RECT rect) {
    if (rect.right <= rect.left || rect.bottom <= rect.top)
        return;
    m_cell.ClearAll();
    m_ctrl->GetCell(col, row, &m_cell);
    CUGCellType *type = m_ctrl->GetCellType(m_cell.GetCellType());
    const CUGCellDrawScope within(dc, rect);
    type->DrawBorder(dc, &rect, &m_cell);
    type->OnDraw(dc, &rect, &m_cell, 0, 0);
}

void CUGHeading::ShowMove() {
    if (Axis().m_leading == m_shownLeading)
        return;
    m_shownLeading = Axis().m_leading;
    Invalidate(FALSE);
    UpdateWindow();
}

void CUGHeading::LookForEdge(CPoint point) {
    m_canSize = false;
    m_sizeIndex = -1;
    if (m_GI->m_userSizingMode > 0) {
        const long index = Axis().EdgeAt(Along(point), kEdgeTolerancePx);
        if (index >= 0 && CanSize(index)) {
            m_canSize = true;
            m_sizeIndex = index;
        }
    }
    ::SetCursor(::LoadCursorA(nullptr, m_canSize ? SizeCursor() : IDC_ARROW));
}

void CUGHeading::DragEdge(CPoint point) {
    if (!Axis().Contains(m_sizeIndex))
        return; // the table shrank meanwhile
    int size = std::max(m_startSize + Along(point) - m_startPosition, 0);
    Sizing(m_sizeIndex, &size);
    if (size == Axis().SizeOf(m_sizeIndex))
        return;
    StoreSize(m_sizeIndex, size);
    Invalidate(FALSE);
    if (m_GI->m_userSizingMode == 2)
        m_ctrl->m_grid.Invalidate(FALSE);
    m_ctrl->PlaceEdit();
}

void CUGHeading::OnMouseMove(UINT flags, CPoint point) {
    if (!(flags & MK_LBUTTON) && GetCapture() == this)
        ReleaseCapture(); // the release of the button went elsewhere, and ends the sizing here
    if (m_resizing)
        DragEdge(point);
    else
        LookForEdge(point);
}

void CUGHeading::OnLButtonDown(UINT, CPoint point) {
    const CUGButtonWatch button;
    m_ctrl->m_grid.SetFocus(); // ends an edit, which may ask the user
    if (GetSafeHwnd() == nullptr)
        return;
    if (!button.CameUp())
        SetCapture();
    LookForEdge(point);
    if (m_canSize) {
        if (GetCapture() != this)
            return;
        m_resizing = true;
        m_startSize = Axis().SizeOf(m_sizeIndex);
        m_startPosition = Along(point);
        return;
    }
    LClicked(Axis().At(Along(point)), 1);
    // The notification may have given the mouse to the control.
    const HWND holder = ::GetCapture();
    if (button.CameUp() && holder != nullptr && (holder == m_hWnd || holder == m_ctrl->m_hWnd))
        ::ReleaseCapture();
}

void CUGHeading::OnLButtonUp(UINT, CPoint point) {
    const bool resizing = std::exchange(m_resizing, false);
    if (GetCapture() == this)
        ReleaseCapture();
    if (!resizing) {
        LClicked(Axis().At(Along(point)), 0);
        return;
    }
    m_ctrl->AdjustAxes();
    m_ctrl->RedrawAll();
    if (!Axis().Contains(m_sizeIndex))
        return;
    const int shown = Axis().SizeOf(m_sizeIndex);
    int size = shown;
    Sized(m_sizeIndex, &size);
    if (Axis().Contains(m_sizeIndex))
        StoreSize(m_sizeIndex, size);
    m_ctrl->AdjustAxes();
    if (size != shown)
        m_ctrl->RedrawAll();
}

// Whoever took the mouse keeps the release of the button to itself: the edge stays where it is. Other sizes are
// in the table since, so its end is reckoned as after a release.
void CUGHeading::OnCaptureChanged(CWnd *next) {
    if (next != this && std::exchange(m_resizing, false)) {
        m_ctrl->AdjustAxes();
        m_ctrl->RedrawAll();
    }
    CWnd::OnCaptureChanged(next);
}

void CUGHeading::OnLButtonDblClk(UINT, CPoint point) {
    DClicked(Axis().At(Along(point)));
}

void CUGHeading::OnRButtonDown(UINT, CPoint point) {
    const long index = Axis().At(Along(point));
    RClicked(index, 1);
    CPoint screen = point;
    ClientToScreen(&screen);
    PopupMenu(index, screen);
}

void CUGHeading::OnRButtonUp(UINT, CPoint point) {
    RClicked(Axis().At(Along(point)), 0);
}
