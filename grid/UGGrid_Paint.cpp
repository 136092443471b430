// Painting the cells. The state block is read directly and one scratch cell serves all; nothing of a cell is
// kept from one paint to the next.
#include "grid/CellDrawScope.h"
#include "grid/UGCtrl.h"
#include "grid/ValueScope.h"

#include <algorithm>

void CUGGrid::DrawAll(CDC *dc, const RECT &clip) {
    HGDIOBJ oldFont = nullptr;
    if (m_GI->m_defaultFont != nullptr)
        oldFont = ::SelectObject(dc->GetSafeHdc(), m_GI->m_defaultFont);
    dc->SetBkMode(OPAQUE);
    m_ctrl->OnDrawSetup(dc, UG_SECTION_GRID);
    RECT box;
    const bool simple = ::GetClipBox(dc->GetSafeHdc(), &box) == SIMPLEREGION;
    Pass pass{dc, clip, simple, {}};
    const CUGAxis &rows = m_GI->m_rows;
    int bottom = 0;
    long lastDrawn = -1;
    if (m_GI->m_cols.m_count > 0) {
        for (long row = rows.m_leading; row < rows.m_count && bottom < rows.m_extent && !rows.AllHidden(); ++row) {
            const int top = bottom;
            bottom = static_cast<int>(rows.EndOf(top, row));
            lastDrawn = row;
            if (bottom > clip.top && top < clip.bottom && bottom > top)
                DrawRow(pass, row, top, bottom);
        }
    }
    const CUGAxis &cols = m_GI->m_cols;
    const long lastCol = cols.LastVisible();
    const long right = lastCol < 0 || lastDrawn < 0 ? 0 : cols.PositionOf(lastCol + 1);
    FillBeyond(dc, static_cast<int>(right), bottom);
    DrawFocusFrame(dc);
    if (oldFont != nullptr)
        ::SelectObject(dc->GetSafeHdc(), oldFont);
    RequestRowsBelow(lastDrawn);
}

// A source that grows on demand fills up while its end is in view.
void CUGGrid::RequestRowsBelow(long lastDrawn) {
    if (lastDrawn >= 0 && lastDrawn == m_GI->m_rows.m_count - 2)
        m_ctrl->VerifyCurrentRow(m_GI->m_rows.m_count);
}

void CUGGrid::DrawRow(Pass &pass, long row, int top, int bottom) {
    const CUGAxis &cols = m_GI->m_cols;
    int right = 0;
    for (long col = cols.m_leading; col < cols.m_count && right < cols.m_extent; ++col) {
        const int left = right;
        right = static_cast<int>(cols.EndOf(left, col));
        const RECT rect = {left, top, right, bottom};
        if (right > left && right > pass.clip.left && left < pass.clip.right &&
            (pass.simpleClip || ::RectVisible(pass.dc->GetSafeHdc(), &rect)))
            DrawCell(pass, static_cast<int>(col), row, rect);
    }
}

// The cell that was read is one of a block: false where the block is drawn already, otherwise its origin with the
// block's rectangle, and the origin's cell.
bool CUGGrid::BeginJoin(Pass &pass, int *col, long *row, RECT *rect) {
    UGJoin join{};
    if (!m_ctrl->GetJoinOrigin(m_cell, *col, *row, &join.left, &join.top))
        return true;
    const auto isIts = [&](const UGJoin &drawn) {
        return drawn.left == join.left && drawn.top == join.top && drawn.Contains(*col, *row);
    };
    if (std::any_of(pass.joinsDrawn.rbegin(), pass.joinsDrawn.rend(), isIts))
        return false;
    join = m_ctrl->JoinAt(m_cell, *col, *row);
    pass.joinsDrawn.push_back(join);
    *rect = m_ctrl->JoinRect(join);
    if (join.left == *col && join.top == *row)
        return true;
    *col = join.left;
    *row = join.top;
    m_cell.ClearAll();
    m_ctrl->GetCell(*col, *row, &m_cell);
    return true;
}

void CUGGrid::DrawCell(Pass &pass, int col, long row, RECT rect) {
    m_cell.ClearAll();
    m_ctrl->GetCell(col, row, &m_cell);
    if (m_cell.IsJoined() && !BeginJoin(pass, &col, &row, &rect))
        return;
    const bool currentRow = row == m_GI->m_rows.m_current;
    const bool isCell = currentRow && col == m_GI->m_cols.m_current;
    const bool current = m_GI->m_rowHighlight ? currentRow : isCell;
    const bool selected = m_GI->m_multiSelect ? !isCell && m_GI->m_selection.IsSelected(col, row)
                                              : m_GI->m_rowHighlight && currentRow;
    CUGCellType *type = m_ctrl->GetCellType(m_cell.GetCellType());
    const CUGCellDrawScope within(pass.dc, rect);
    type->DrawBorder(pass.dc, &rect, &m_cell);
    const CUGValueScope<int> paintCol(&m_GI->m_paintCol, col);
    const CUGValueScope<long> paintRow(&m_GI->m_paintRow, row);
    type->OnDraw(pass.dc, &rect, &m_cell, selected, current);
}

// What no cell covers has the back colour of the headings.
void CUGGrid::FillBeyond(CDC *dc, int right, int bottom) {
    const COLORREF back = m_GI->m_headingDefault.GetBackColor();
    const int width = m_GI->m_cols.m_extent;
    const int height = m_GI->m_rows.m_extent;
    if (right < width)
        dc->FillSolidRect(right, 0, width - right, height, back);
    if (bottom < height)
        dc->FillSolidRect(0, bottom, width, height - bottom, back);
}

void CUGGrid::DrawFocusFrame(CDC *dc) {
    RECT rect;
    if (!(m_GI->m_currentCellStyle & 1) ||
        m_ctrl->GetCellRect(m_ctrl->GetCurrentCol(), m_ctrl->GetCurrentRow(), &rect) != GRID_SUCCESS)
        return;
    if (rect.right <= 0 || rect.bottom <= 0 || !::RectVisible(dc->GetSafeHdc(), &rect))
        return;
    DrawFocusFrame(dc, rect);
}

void CUGGrid::DrawFocusFrame(CDC *dc, RECT rect) {
    // The frame lies inside the grid lines. It inverts, so it is drawn only where the cell was drawn with it:
    // a cell repaints as a whole, and the clip region leaves the rest alone.
    rect.right -= 1;
    rect.bottom -= 1;
    dc->SetTextColor(0);
    dc->SetBkColor(RGB(255, 255, 255));
    // In a cell too small for it a frame would turn inside out and leave lines in the cells around.
    for (int frame = 0; frame < 2 && rect.left < rect.right && rect.top < rect.bottom; ++frame) {
        dc->DrawFocusRect(&rect);
        ::InflateRect(&rect, -1, -1);
    }
}
