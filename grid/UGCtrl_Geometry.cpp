// Where cells stand and which cell is at a point, joined blocks included.
#include "grid/UGCtrl.h"

#include <algorithm>

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

namespace {

// The last one of [first, axis' count) that belongs to a run beginning at `first`. In view it is followed one by one;
// what is out of view is taken to be of one piece, so that a long run costs no more than the view and a few looks.
template <class Belongs> long EndOfRun(const CUGAxis &axis, long first, const Belongs &belongs) {
    long end = first;
    if (end < axis.m_leading && belongs(axis.m_leading))
        end = axis.m_leading;
    if (end >= axis.m_leading) {
        const long inView = axis.LastVisible();
        while (end < inView) {
            if (!belongs(end + 1))
                return end;
            ++end;
        }
    }
    const long last = axis.m_count - 1;
    long long step = 1;
    const auto goes = [&] { return step <= last - end && belongs(static_cast<long>(end + step)); };
    for (; goes(); step *= 2)
        end += static_cast<long>(step);
    for (; step > 0; step /= 2) {
        if (goes())
            end += static_cast<long>(step);
    }
    return end;
}

} // namespace

// The block reaches as far as its neighbours to the right and below name the same origin. A cell that names an
// origin which knows of no block, or whose block does not reach it, stands alone: nothing else would paint it.
UGJoin CUGCtrl::JoinAt(const CUGCell &read, int col, long row) {
    const UGJoin alone{col, row, col, row};
    UGJoin join = alone;
    if (!GetJoinOrigin(read, col, row, &join.left, &join.top))
        return alone;
    CUGCell cell;
    const auto belongs = [&](int c, long r) {
        return GetCell(c, r, &cell) != GRID_ERROR && cell.IsJoined() && cell.GetJoinOriginCol() == join.left &&
               cell.GetJoinOriginRow() == join.top;
    };
    const bool isOrigin = col == join.left && row == join.top;
    if (!isOrigin && !belongs(join.left, join.top))
        return alone;
    join.right = static_cast<int>(EndOfRun(
        m_GI.m_cols, join.left, [&](long c) { return belongs(static_cast<int>(c), join.top); }));
    join.bottom = EndOfRun(m_GI.m_rows, join.top, [&](long r) { return belongs(join.left, r); });
    return join.Contains(col, row) ? join : alone;
}

RECT CUGCtrl::JoinRect(const UGJoin &join) const {
    RECT rect;
    rect.left = m_GI.m_cols.PositionOf(join.left);
    rect.top = m_GI.m_rows.PositionOf(join.top);
    rect.right = rect.left + m_GI.m_cols.Span(join.left, join.right + 1L);
    rect.bottom = rect.top + m_GI.m_rows.Span(join.top, join.bottom + 1);
    return rect;
}

void CUGCtrl::GetJoinRange(int col, long row, int *startCol, long *startRow, int *endCol, long *endRow) {
    CUGCell cell;
    GetCell(col, row, &cell);
    const UGJoin join = JoinAt(cell, col, row);
    *startCol = join.left;
    *startRow = join.top;
    *endCol = join.right;
    *endRow = join.bottom;
}

int CUGCtrl::GetCellRect(int col, long row, RECT *rect) {
    if (!m_GI.m_cols.Contains(col) || !m_GI.m_rows.Contains(row))
        return GRID_ERROR;
    CUGCell cell;
    GetCell(col, row, &cell);
    *rect = JoinRect(JoinAt(cell, col, row));
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
