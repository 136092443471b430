// The in-cell edit: starting it and moving on to the next cell.
#include "grid/UGCtrl.h"

#include "grid/UGDrawRules.h"
#include "grid/ValueScope.h"

#include <algorithm>

CEdit *CUGCtrl::GetEditControl() {
    return m_grid.m_edit.GetSafeHwnd() != nullptr ? &m_grid.m_edit : nullptr;
}

void CUGCtrl::DestroyEdit() {
    if (m_grid.m_edit.GetSafeHwnd() != nullptr) {
        m_grid.m_edit.m_active = false;
        m_grid.m_edit.DestroyWindow();
    }
}

void CUGCtrl::CloseList() {
    if (m_openList != nullptr)
        m_openList->Cancel();
}

// Called before the column of the edit, or of a list, shows something else. The edit's owner may write what was typed.
void CUGCtrl::LeaveEditedCell(int col) {
    const bool any = col == kAnyColumn;
    const bool edited = GetEditControl() != nullptr && (any || m_GI.m_editCol == col);
    const bool listed = m_openList != nullptr && (any || *m_openList->m_col == col);
    if (edited && m_grid.m_edit.m_listener != nullptr)
        m_grid.m_edit.m_listener->EditLosesCell();
    if (edited || listed)
        CancelEdit();
}

void CUGCtrl::CancelEdit() {
    CloseList();
    if (m_grid.m_edit.GetSafeHwnd() == nullptr)
        return;
    const bool hadFocus = ::GetFocus() == m_grid.m_edit.m_hWnd;
    DestroyEdit();
    if (hadFocus)
        m_grid.SetFocus();
}

int CUGCtrl::StartEdit() {
    return StartEdit(0);
}

int CUGCtrl::StartEdit(int key) {
    const int col = GetCurrentCol();
    const long row = GetCurrentRow();
    CUGCell cell;
    if (m_grid.GetSafeHwnd() == nullptr || !m_GI.m_cols.Contains(col) || !m_GI.m_rows.Contains(row))
        return GRID_ERROR;
    GetCell(col, row, &cell);
    RECT shown{};
    GetCellRect(col, row, &shown);
    if (cell.GetReadOnly() == 1 || shown.right <= shown.left)
        return GRID_ERROR; // in a column of no width nobody would see what is typed
    ClearSelections();
    CUGCellType *type = GetCellType(cell.GetCellType());
    if (!type->CanTextEdit())
        return GRID_ERROR;
    DestroyEdit();
    // A view that was scrolled away from the current cell comes back: the box must be seen.
    m_GI.m_cols.m_leading = std::min(m_GI.m_cols.m_leading, m_GI.m_cols.m_current);
    m_GI.m_rows.m_leading = std::min(m_GI.m_rows.m_leading, m_GI.m_rows.m_current);
    BringCurrentIntoView();
    m_grid.UpdateWindow();
    RECT rect;
    GetCellRect(col, row, &rect);
    UGShrinkByBorder(&rect, cell.GetBorder(), m_GI.m_3dBorderWidth);
    type->GetEditArea(&rect);
    DWORD style = WS_CHILD | ES_AUTOHSCROLL;
    OnSetupEditWindow(col, row, &rect, &cell, &style, 0);
    CUGEdit &edit = m_grid.m_edit;
    if (!edit.Open(style, rect, &m_grid, cell, m_GI.m_defaultFont))
        return GRID_ERROR;
    if (!OnEditStart(col, row, &edit)) {
        DestroyEdit();
        return GRID_ERROR;
    }
    m_GI.m_editCol = col;
    m_GI.m_editRow = row;
    RECT cellRect;
    if (GetCellRect(col, row, &cellRect) == GRID_SUCCESS)
        edit.m_inset = CPoint(rect.left - cellRect.left, rect.top - cellRect.top);
    edit.Show(key);
    return GRID_SUCCESS;
}

// An edit that stays open while the view scrolls or sizes change stays with its cell.
void CUGCtrl::PlaceEdit() {
    RECT cell;
    if (GetEditControl() == nullptr || GetCellRect(m_GI.m_editCol, m_GI.m_editRow, &cell) != GRID_SUCCESS)
        return;
    // Windows stand within 16 bits; further out than any screen is far enough.
    constexpr LONG kOutOfSightPx = 10000;
    CPoint wanted = CPoint(cell.left, cell.top) + m_grid.m_edit.m_inset;
    wanted.x = std::clamp(wanted.x, -kOutOfSightPx, kOutOfSightPx);
    wanted.y = std::clamp(wanted.y, -kOutOfSightPx, kOutOfSightPx);
    CRect now;
    m_grid.m_edit.GetWindowRect(&now);
    m_grid.ScreenToClient(&now);
    if (now.TopLeft() != wanted)
        ::SetWindowPos(m_grid.m_edit.m_hWnd, nullptr, wanted.x, wanted.y, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Wraps a column beyond the ends to the next or previous row and holds the row in range.
bool CUGCtrl::WrapEditCell(int *col, long *row) {
    const int cols = GetNumberCols();
    if (cols < 1 || GetNumberRows() < 1)
        return false;
    if (*col >= cols) {
        *col = 0;
        ++*row;
    } else if (*col < 0) {
        *col = cols - 1;
        --*row;
    }
    *row = std::clamp(*row, 0L, GetNumberRows() - 1);
    return true;
}

// The same, and on past columns of no width, in the direction of the step. False where there is no cell to edit.
bool CUGCtrl::FindEditCell(int dx, int *col, long *row) {
    for (int tried = 0; tried <= GetNumberCols(); ++tried) {
        if (!WrapEditCell(col, row))
            return false;
        if (m_GI.m_cols.SizeOf(*col) > 0)
            return true;
        *col += dx < 0 ? -1 : 1;
    }
    return false;
}

int CUGCtrl::EditContinue(int dx, int dy) {
    int col = m_GI.m_editCol + dx;
    long row = m_GI.m_editRow + dy;
    if (!FindEditCell(dx, &col, &row)) {
        col = m_GI.m_editCol;
        row = m_GI.m_editRow;
    }
    if (!OnEditContinue(GetCurrentCol(), GetCurrentRow(), &col, &row) || !FindEditCell(dx, &col, &row)) {
        DestroyEdit();
        m_grid.SetFocus();
        return GRID_ERROR;
    }
    {
        const CUGValueScope<int> byProgram(&m_GI.m_moveType, UG_MOVED_BY_PROGRAM);
        GotoCell(col, row);
    }
    if (StartEdit() == GRID_SUCCESS)
        return GRID_SUCCESS;
    // The next cell takes no edit: the box of the last one, which is written, must not stay and take keys.
    DestroyEdit();
    m_grid.SetFocus();
    return GRID_ERROR;
}
