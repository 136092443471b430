// Moving the current cell and the view, and the update that tells of it.
#include "grid/UGCtrl.h"

#include <algorithm>

// The row is one that the current cell can go to. GRID_ERROR also for the row where it is; an empty table has none.
int CUGCtrl::VerifyCurrentRow(long row) {
    CUGAxis &rows = m_GI.m_rows;
    if (row == rows.m_current && rows.m_count > 0)
        return GRID_ERROR;
    if (row >= rows.m_count) {
        const long past = row - rows.m_count + 1;
        long found = 0;
        m_GI.CurrentSource()->RequestMoreRows(rows.m_count, past, &found);
        OnHitBottom(rows.m_count, past, found);
        return row < rows.m_count ? GRID_SUCCESS : GRID_ERROR;
    }
    if (row < 0) {
        OnHitTop(rows.m_count, row);
        return GRID_ERROR;
    }
    return GRID_SUCCESS;
}

int CUGCtrl::VerifyTopRow(long row) {
    CUGAxis &rows = m_GI.m_rows;
    if (row == rows.m_leading)
        return GRID_ERROR;
    if (row > rows.m_maxLeading) {
        long found = 0;
        m_GI.CurrentSource()->RequestMoreRows(rows.m_count, row - rows.m_count + 1, &found);
        OnHitBottom(rows.m_count, row - rows.m_maxLeading, found);
        return row <= rows.m_maxLeading ? GRID_SUCCESS : GRID_ERROR;
    }
    if (row < 0) {
        OnHitTop(rows.m_count, row);
        return GRID_ERROR;
    }
    return GRID_SUCCESS;
}

// The target is in range: goes there unless vetoed, or the table shrank while the question was asked.
int CUGCtrl::MoveTo(int col, long row) {
    const int oldCol = GetCurrentCol();
    const long oldRow = GetCurrentRow();
    if (col == oldCol && row == oldRow)
        return GRID_SUCCESS;
    if (!OnCanMove(oldCol, oldRow, col, row))
        return GRID_REFUSED;
    if (col >= std::max(m_GI.m_cols.m_count, 1L) || row >= std::max(m_GI.m_rows.m_count, 1L))
        return GRID_ERROR;
    m_GI.m_cols.m_current = col;
    m_GI.m_rows.m_current = row;
    UpdateState();
    return GRID_SUCCESS;
}

int CUGCtrl::GotoCell(int col, long row) {
    if (!m_GI.m_cols.Contains(col))
        return GRID_ERROR;
    if ((row != GetCurrentRow() || m_GI.m_rows.m_count == 0) && VerifyCurrentRow(row) != GRID_SUCCESS)
        return GRID_ERROR;
    if (col == GetCurrentCol() && row == GetCurrentRow())
        return GRID_SUCCESS;
    int startCol, endCol;
    long startRow, endRow;
    GetJoinRange(col, row, &startCol, &startRow, &endCol, &endRow);
    return MoveTo(startCol, startRow);
}

// A step of one axis to a cell of the table. From within a joined block it goes past the block, and stays where the
// block reaches the end of the table; a block that it comes to is entered at its origin.
int CUGCtrl::StepTo(int col, long row) {
    const int fromCol = GetCurrentCol();
    const long fromRow = GetCurrentRow();
    if (col == fromCol && row == fromRow)
        return GRID_SUCCESS;
    CUGCell cell;
    GetCell(col, row, &cell);
    UGJoin join = JoinAt(cell, col, row);
    if (join.Contains(fromCol, fromRow)) {
        if (col != fromCol)
            col = col > fromCol ? join.right + 1 : join.left - 1;
        else
            row = row > fromRow ? join.bottom + 1 : join.top - 1;
        if (row != fromRow && VerifyCurrentRow(row) != GRID_SUCCESS)
            return GRID_SUCCESS;
        if (!m_GI.m_cols.Contains(col))
            return GRID_SUCCESS;
        cell.ClearAll();
        GetCell(col, row, &cell);
        join = JoinAt(cell, col, row);
    }
    return MoveTo(join.left, join.top);
}

int CUGCtrl::GotoRow(long row) {
    CUGAxis &rows = m_GI.m_rows;
    if (m_GI.m_cols.m_count < 1)
        return GRID_ERROR;
    if (rows.m_count < 1)
        row = std::min(row, 0L); // the first row is the next one there could be
    if (VerifyCurrentRow(row) != GRID_SUCCESS)
        row = std::clamp(row, 0L, std::max(rows.m_count - 1, 0L));
    return rows.m_count < 1 ? GRID_ERROR : StepTo(GetCurrentCol(), row);
}

int CUGCtrl::GotoCol(int col) {
    const CUGAxis &cols = m_GI.m_cols;
    if (cols.m_count < 1 || m_GI.m_rows.m_count < 1)
        return GRID_ERROR;
    return StepTo(static_cast<int>(std::clamp(static_cast<long>(col), 0L, cols.m_count - 1)), GetCurrentRow());
}

namespace {

// The target of a move of the current row or column; -2 for an unknown selector.
long MoveTarget(const CUGAxis &axis, int how) {
    switch (how) {
    case UG_MOVE_BACK: return axis.m_current - 1;
    case UG_MOVE_FORWARD: return axis.m_current + 1;
    case UG_MOVE_PAGE_BACK: return std::max(axis.PageBack(axis.m_current), 0L);
    case UG_MOVE_PAGE_FORWARD: return axis.PageForward(axis.m_current);
    case UG_MOVE_FIRST: return 0;
    case UG_MOVE_LAST: return axis.m_count - 1;
    default: return -2;
    }
}

bool IsMove(int how) {
    return how >= UG_MOVE_BACK && how <= UG_MOVE_LAST;
}

} // namespace

int CUGCtrl::MoveCurrentRow(int how) {
    return IsMove(how) ? GotoRow(MoveTarget(m_GI.m_rows, how)) : GRID_BAD_ARGUMENT;
}

int CUGCtrl::MoveCurrentCol(int how) {
    if (!IsMove(how))
        return GRID_BAD_ARGUMENT;
    // A page to the right begins only behind the first column: from there it stays, as hosts expect.
    if (how == UG_MOVE_PAGE_FORWARD && GetCurrentCol() == 0)
        return GRID_SUCCESS;
    return GotoCol(static_cast<int>(MoveTarget(m_GI.m_cols, how)));
}

namespace {

long ViewTarget(const CUGAxis &axis, int how) {
    switch (how) {
    case UG_MOVE_BACK: return axis.m_leading - 1;
    case UG_MOVE_FORWARD: return axis.m_leading + 1;
    case UG_MOVE_PAGE_BACK: return std::max(axis.PageBack(axis.m_leading), 0L);
    case UG_MOVE_PAGE_FORWARD: return std::min(axis.PageForward(axis.m_leading), axis.m_maxLeading);
    case UG_MOVE_FIRST: return 0;
    default: return axis.m_maxLeading;
    }
}

} // namespace

int CUGCtrl::MoveViewTo(int leftCol, long topRow) {
    if (!OnCanViewMove(GetLeftCol(), GetTopRow(), leftCol, topRow))
        return GRID_REFUSED;
    m_GI.m_cols.m_leading = leftCol;
    m_GI.m_rows.m_leading = topRow;
    HoldLeadingInRange(); // the table may have shrunk meanwhile
    UpdateState();
    return GRID_SUCCESS;
}

int CUGCtrl::MoveTopRow(int how) {
    if (!IsMove(how))
        return GRID_ERROR;
    const long target = ViewTarget(m_GI.m_rows, how);
    if (VerifyTopRow(target) != GRID_SUCCESS)
        return GRID_ERROR;
    return MoveViewTo(GetLeftCol(), target);
}

int CUGCtrl::MoveLeftCol(int how) {
    if (!IsMove(how))
        return GRID_ERROR;
    const long target = ViewTarget(m_GI.m_cols, how);
    if (target < 0 || target > m_GI.m_cols.m_maxLeading)
        return GRID_ERROR;
    return MoveViewTo(static_cast<int>(target), GetTopRow());
}

int CUGCtrl::SetTopRow(long row) {
    if (row == GetTopRow())
        return GRID_SUCCESS;
    return VerifyTopRow(row) == GRID_SUCCESS ? MoveViewTo(GetLeftCol(), row) : GRID_ERROR;
}

int CUGCtrl::SetLeftCol(int col) {
    if (col == GetLeftCol())
        return GRID_SUCCESS;
    if (col < 0 || col > m_GI.m_cols.m_maxLeading)
        return GRID_ERROR;
    return MoveViewTo(col, GetTopRow());
}

void CUGCtrl::BringCurrentIntoView() {
    m_GI.m_rows.m_leading = m_GI.m_rows.LeadingForCurrent(m_GI.m_scrollMargin);
    m_GI.m_cols.m_leading = m_GI.m_cols.LeadingForCurrent(m_GI.m_scrollMargin);
    UpdateState();
}

void CUGCtrl::UpdateState() {
    CUGAxis &cols = m_GI.m_cols;
    CUGAxis &rows = m_GI.m_rows;
    const int lastCol = static_cast<int>(cols.m_last);
    const long lastRow = rows.m_last;
    const bool rowChanged = rows.m_current != lastRow;
    const bool colChanged = cols.m_current != lastCol;
    if (rowChanged)
        rows.m_leading = rows.LeadingForCurrent(m_GI.m_scrollMargin);
    if (colChanged)
        cols.m_leading = cols.LeadingForCurrent(m_GI.m_scrollMargin);
    // Noted before it is told: a notification that begins an edit comes here again, and would be told of the same change.
    rows.m_last = rows.m_current;
    cols.m_last = cols.m_current;
    if (rowChanged)
        OnRowChange(lastRow, rows.m_current);
    if (colChanged)
        OnColChange(lastCol, GetCurrentCol());
    if (rowChanged || colChanged)
        OnCellChange(lastCol, GetCurrentCol(), lastRow, rows.m_current);
    if (rows.m_leading != rows.m_lastLeading)
        OnTopRowChange(rows.m_lastLeading, rows.m_leading);
    if (cols.m_leading != cols.m_lastLeading)
        OnLeftColChange(static_cast<int>(cols.m_lastLeading), GetLeftCol());
    if (rowChanged || colChanged) {
        if (m_GI.m_multiSelect)
            UpdateSelection(lastCol, lastRow);
        UpdateFocusedType(lastCol, lastRow);
    }
    RepaintViews();
    PlaceEdit();
    rows.m_lastLeading = rows.m_leading;
    cols.m_lastLeading = cols.m_leading;
}

void CUGCtrl::UpdateFocusedType(int lastCol, long lastRow) {
    GetCellType(m_GI.m_currentCell.GetCellType())->OnKillFocus(lastCol, lastRow, &m_GI.m_currentCell);
    m_GI.m_currentCell.ClearAll();
    GetCell(GetCurrentCol(), GetCurrentRow(), &m_GI.m_currentCell);
    GetCellType(m_GI.m_currentCell.GetCellType())
        ->OnSetFocus(GetCurrentCol(), GetCurrentRow(), &m_GI.m_currentCell);
    m_typeFocused = true;
}

// The type that keys and clicks on the current cell go to. The cell is read again: nothing has moved since the
// table was filled, or the cell has been given another type.
CUGCellType *CUGCtrl::FocusedType() {
    const int col = GetCurrentCol();
    const long row = GetCurrentRow();
    const bool exists = m_GI.m_cols.Contains(col) && m_GI.m_rows.Contains(row);
    CUGCell now;
    if (exists)
        GetCell(col, row, &now);
    CUGCellType *type = GetCellType(now.GetCellType());
    CUGCellType *before = GetCellType(m_GI.m_currentCell.GetCellType());
    const bool changes = !m_typeFocused || !exists || type != before;
    if (changes && m_typeFocused)
        before->OnKillFocus(col, row, &m_GI.m_currentCell);
    m_GI.m_currentCell = now;
    m_typeFocused = exists;
    if (changes && exists)
        type->OnSetFocus(col, row, &m_GI.m_currentCell);
    return type;
}
