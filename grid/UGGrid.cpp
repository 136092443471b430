// What the cell area does with its window: painting messages, and showing a move.
#include "grid/UGGrid.h"

#include "grid/UGCtrl.h"

#include <algorithm>
#include <cstdlib>

IMPLEMENT_DYNAMIC(CUGGrid, CWnd)

BEGIN_MESSAGE_MAP(CUGGrid, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

BOOL CUGGrid::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, nullptr);
    create.style |= WS_CLIPCHILDREN;
    return CWnd::PreCreateWindow(create);
}

// Every pixel is painted by a cell or by the filling beyond them.
BOOL CUGGrid::OnEraseBkgnd(CDC *) {
    return TRUE;
}

void CUGGrid::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    m_buffer.DeleteObject();
    m_bufferSize = CSize(0, 0);
}

void CUGGrid::SetDoubleBuffer(bool on) {
    m_doubleBuffer = on;
    m_buffer.DeleteObject();
    m_bufferSize = CSize(0, 0);
}

// The view may have changed without a move: a table that shrank takes its leading row along. What stands on the
// screen then fits nowhere, and shifting it later would only carry it along.
void CUGGrid::SyncShown() {
    if (m_shownLeft == m_GI->m_cols.m_leading && m_shownTop == m_GI->m_rows.m_leading)
        return;
    m_shownLeft = static_cast<int>(m_GI->m_cols.m_leading);
    m_shownTop = m_GI->m_rows.m_leading;
    Invalidate(FALSE);
}

void CUGGrid::OnPaint() {
    if (m_GI->m_paintingEnabled)
        SyncShown();
    CPaintDC dc(this);
    if (!m_GI->m_paintingEnabled)
        return;
    if (m_doubleBuffer)
        PaintBuffered(&dc, dc.m_ps.rcPaint);
    else
        DrawAll(&dc, dc.m_ps.rcPaint);
}

void CUGGrid::PaintBuffered(CDC *dc, const RECT &clip) {
    CRect client;
    GetClientRect(&client);
    if (m_bufferSize != client.Size()) {
        m_buffer.DeleteObject();
        m_buffer.CreateCompatibleBitmap(dc, client.Width(), client.Height());
        m_bufferSize = client.Size();
    }
    CDC memory;
    if (m_buffer.GetSafeHandle() == nullptr || !memory.CreateCompatibleDC(dc)) {
        DrawAll(dc, clip);
        return;
    }
    CBitmap *old = memory.SelectObject(&m_buffer);
    DrawAll(&memory, clip);
    dc->BitBlt(clip.left, clip.top, clip.right - clip.left, clip.bottom - clip.top, &memory, clip.left, clip.top,
               SRCCOPY);
    memory.SelectObject(old);
}

void CUGGrid::InvalidateCurrent(int col, long row) {
    if (m_GI->m_rowHighlight) {
        m_ctrl->RedrawRow(row);
        if (row >= m_GI->m_rows.m_leading && row <= m_GI->m_rows.LastVisible())
            InvalidateCells(m_GI->m_cols.m_leading, row, m_GI->m_cols.LastVisible(), row);
        return;
    }
    RECT rect;
    if (m_ctrl->GetCellRect(col, row, &rect) == GRID_SUCCESS)
        InvalidateRect(&rect, FALSE);
}

// Visible cells, with the joined blocks that reach out of them: a block is drawn as one, by its origin's state.
void CUGGrid::InvalidateCells(long left, long top, long right, long bottom) {
    CRect all(m_GI->m_cols.PositionOf(left), m_GI->m_rows.PositionOf(top), m_GI->m_cols.PositionOf(right + 1),
              m_GI->m_rows.PositionOf(bottom + 1));
    for (long row = top; row <= bottom; ++row) {
        const bool edge = row == top || row == bottom;
        for (long col = left; col <= right; col += edge || col == right ? 1 : std::max(right - left, 1L)) {
            CRect cell;
            if (m_ctrl->GetCellRect(static_cast<int>(col), row, &cell) == GRID_SUCCESS)
                all.UnionRect(CRect(all), cell);
        }
    }
    InvalidateRect(&all, FALSE);
}

bool CUGGrid::ScrollImage(int dx, int dy) {
    if (std::abs(dx) >= m_GI->m_cols.m_extent || std::abs(dy) >= m_GI->m_rows.m_extent)
        return false;
    ScrollWindowEx(dx, dy, nullptr, nullptr, nullptr, nullptr, SW_INVALIDATE);
    return true;
}

void CUGGrid::ShowMove() {
    const CUGAxis &cols = m_GI->m_cols;
    const CUGAxis &rows = m_GI->m_rows;
    const bool scrolled = cols.m_leading != m_shownLeft || rows.m_leading != m_shownTop;
    const bool moved = cols.m_current != m_shownCol || rows.m_current != m_shownRow;
    if (scrolled) {
        if (m_edit.GetSafeHwnd() != nullptr && ::GetFocus() == m_edit.m_hWnd)
            SetFocus(); // an open edit ends before its cell moves away under it
        // A far jump is not summed up: beyond the extent the distance does not matter.
        const long beyond = cols.m_extent + rows.m_extent + 1;
        const bool close = std::labs(rows.m_leading - m_shownTop) < beyond && cols.Contains(m_shownLeft) &&
                          rows.Contains(m_shownTop);
        const long dx = close ? cols.PositionOf(m_shownLeft) : beyond;
        const long dy = close ? rows.PositionOf(m_shownTop) : beyond;
        if ((dx != 0 && dy != 0) || !ScrollImage(static_cast<int>(dx), static_cast<int>(dy)))
            Invalidate(FALSE);
    }
    if (moved && cols.Contains(m_shownCol) && rows.Contains(m_shownRow))
        InvalidateCurrent(m_shownCol, m_shownRow);
    if (moved && cols.m_count > 0 && rows.m_count > 0)
        InvalidateCurrent(m_ctrl->GetCurrentCol(), m_ctrl->GetCurrentRow());
    m_shownCol = static_cast<int>(cols.m_current);
    m_shownRow = rows.m_current;
    m_shownLeft = static_cast<int>(cols.m_leading);
    m_shownTop = rows.m_leading;
    if (scrolled || moved)
        UpdateWindow();
}

void CUGGrid::InvalidateSelection() {
    if (GetSafeHwnd() == nullptr || !m_GI->m_paintingEnabled)
        return;
    const long topRow = m_GI->m_rows.m_leading, bottomRow = m_GI->m_rows.LastVisible();
    const long leftCol = m_GI->m_cols.m_leading, rightCol = m_GI->m_cols.LastVisible();
    for (const CUGSelectionList::Block &block : m_GI->m_selection.GetBlocks()) {
        const bool rows = m_GI->m_selection.GetMode() == UG_SELECT_ROWS;
        const long left = rows ? leftCol : std::max<long>(block.left, leftCol);
        const long right = rows ? rightCol : std::min<long>(block.right, rightCol);
        const long top = std::max(block.top, topRow);
        const long bottom = std::min(block.bottom, bottomRow);
        if (left > right || top > bottom)
            continue;
        InvalidateCells(left, top, right, bottom);
    }
}
