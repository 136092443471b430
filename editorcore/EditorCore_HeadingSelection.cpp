// Whole columns and rows, selected by their headings: clicked, dragged with the mouse beyond the cells, extended by
// keys.
#include "editorcore/AutoScroll.h"
#include "editorcore/EditorCore.h"
#include "grid/PaintingScope.h"

#include <algorithm>

namespace {

constexpr int kNoSelection = 0, kColumns = 1, kRows = 2; // m_nHeadingSelectMode
constexpr int kNoneReached = -10;                        // m_nLastAutoScrollCol and its fellow
constexpr DWORD kIdleWaitMs = 20;

bool IsDown(int key) {
    return (::GetKeyState(key) & 0x8000) != 0;
}

} // namespace

void CEditorCore::SelectColumns(int firstCol, int lastCol) {
    m_nHeadingSelectMode = kColumns;
    CUGCtrl::ClearSelections();
    const auto [low, high] = std::minmax(firstCol, lastCol);
    SelectRange(low, 0, high, LastRowIndex());
}

void CEditorCore::SelectRows(long firstRow, long lastRow) {
    m_nHeadingSelectMode = kRows;
    CUGCtrl::ClearSelections();
    const auto [low, high] = std::minmax(firstRow, lastRow);
    SelectRange(0, low, GetNumberCols() - 1, high);
}

void CEditorCore::CancelSelectionMode(bool clear) {
    m_nSelectAnchorCol = m_nSelectAnchorRow = -1;
    if (clear) {
        ClearSelections();
        RedrawAll();
        EnableMultiSelect(1);
    }
    m_nHeadingSelectMode = kNoSelection;
}

// --- Clicks

// The mouse goes from the pressed heading to the editor, unless a question that came up meanwhile has taken it: the
// button may be up by now.
void CEditorCore::DragHeadingSelection() {
    const CWnd *holder = CWnd::GetCapture();
    if (holder == &m_topHdg || holder == &m_sideHdg)
        SetCapture();
}

void CEditorCore::OnTH_LClicked(int col, int updn) {
    if (updn == 0 || col < 0)
        return;
    if (IsInEditMode())
        SaveEditContents();
    DragHeadingSelection();
    if (col != GetCurrentCol())
        GotoCell(col, GetCurrentRow());
    ClearSelections();
    if (m_nHeadingSelectMode == kColumns && IsDown(VK_SHIFT)) {
        SelectColumns(m_nSelectAnchorCol, col);
    } else {
        SelectColumns(col, col);
        m_nSelectAnchorCol = col;
        m_nLastAutoScrollCol = kNoneReached;
    }
    RedrawAll();
}

void CEditorCore::OnSH_LClicked(long row, int updn) {
    if (updn == 0 || row < 0)
        return;
    if (IsInEditMode())
        SaveEditContents();
    DragHeadingSelection();
    ClearSelections();
    if (m_nHeadingSelectMode == kRows && IsDown(VK_SHIFT)) {
        SelectRows(m_nSelectAnchorRow, row);
    } else {
        GotoCell(0, row);
        SelectRows(row, row);
        m_nSelectAnchorRow = static_cast<int>(row);
        m_nLastAutoScrollRow = kNoneReached;
    }
    RedrawAll();
}

// The whole table. The extended mode is put off while the current cell moves, so that nothing of it is selected, and
// back on for the block.
void CEditorCore::OnCB_LClicked(int updn) {
    if (updn == 0)
        return;
    if (IsInEditMode())
        SaveEditContents();
    ForgetHeadingSelection();
    EnableMultiSelect(0);
    GotoCell(0, 0);
    EnableMultiSelect(1);
    SelectRange(0, 0, GetNumberCols() - 1, LastRowIndex());
    RedrawAll();
}

// --- Dragging

// Along the selection's axis the point is reckoned in the cells' coordinates, across it as it comes.
void CEditorCore::OnMouseMove(UINT flags, CPoint point) {
    if (!(flags & MK_LBUTTON) && CWnd::GetCapture() == this)
        ::ReleaseCapture(); // the release went to another window
    if (m_nHeadingSelectMode == kNoSelection || !(flags & MK_LBUTTON))
        return;
    const bool columns = m_nHeadingSelectMode == kColumns;
    point.Offset(columns ? -GetSH_Width() : 0, columns ? 0 : -GetTH_Height());
    int col;
    long row;
    const bool hit = GetCellFromPoint(point.x, point.y, &col, &row) == GRID_SUCCESS;
    if (!hit) {
        DoAutoScroll(point);
        return;
    }
    if (columns ? col == m_nLastAutoScrollCol : row == m_nLastAutoScrollRow)
        return;
    CPaintingScope quiet(this);
    CUGCtrl::ClearSelections();
    if (columns) {
        m_nLastAutoScrollCol = col;
        GotoCol(col);
        SelectColumns(m_nSelectAnchorCol, col);
    } else {
        m_nLastAutoScrollRow = static_cast<int>(row);
        GotoRow(row);
        SelectRows(m_nSelectAnchorRow, row);
    }
}

// The selection stays a heading's, for clicks and arrows with Shift.
void CEditorCore::OnLButtonUp(UINT, CPoint) {
    if (CWnd::GetCapture() == this)
        ::ReleaseCapture();
}

void CEditorCore::SelectToCurrent() {
    CUGCtrl::ClearSelections();
    if (m_nHeadingSelectMode == kRows)
        SelectRange(0, m_nSelectAnchorRow, GetNumberCols() - 1, GetCurrentRow());
    else
        SelectRange(m_nSelectAnchorCol, 0, GetCurrentCol(), LastRowIndex());
}

void CEditorCore::AutoScrollRows(int y, int height) {
    const long step = UGRowsPastEdge(y, height);
    if (step == 0)
        return;
    GotoRow(std::clamp(GetCurrentRow() + step, 0L, std::max(LastRowIndex(), 0L)));
    ::Sleep(0);
}

// False when a jump ends where it began.
bool CEditorCore::AutoScrollCols(int x, int width) {
    const long step = UGColsPastEdge(x, width);
    if (step == 0)
        return true;
    const int target =
        std::clamp(GetCurrentCol() + static_cast<int>(step), 0, std::max(GetNumberCols() - 1, 0));
    if (target == GetCurrentCol())
        return false;
    GotoCol(target);
    ::Sleep(0);
    return true;
}

namespace {

enum class Pumped { Moved, Released, Nothing };

// Handles what waits, up to the message that ends the step: the next move, which is left for the window, or the
// release.
Pumped PumpDragMessages() {
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (message.message == WM_MOUSEMOVE)
            return Pumped::Moved;
        if (message.message == WM_LBUTTONUP)
            return Pumped::Released;
        if (message.message == WM_QUIT || ::GetMessageA(&message, nullptr, 0, 0) <= 0)
            return Pumped::Released; // left for the loop that it is meant for
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    return Pumped::Nothing;
}

} // namespace

// Scrolls on while the mouse is held beyond the cells, the faster the further.
void CEditorCore::DoAutoScroll(POINT point) {
    int col;
    long row;
    if (m_nHeadingSelectMode == kNoSelection ||
        GetCellFromPoint(point.x, point.y, &col, &row) == GRID_SUCCESS)
        return;
    const bool rows = m_nHeadingSelectMode == kRows;
    CRect cells;
    m_grid.GetClientRect(&cells);
    for (;;) {
        const long before = rows ? GetCurrentRow() : GetCurrentCol();
        {
            CPaintingScope quiet(this);
            if (rows)
                AutoScrollRows(point.y, cells.Height());
            else if (!AutoScrollCols(point.x, cells.Width()))
                return;
            SelectToCurrent();
        }
        RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        const long now = rows ? GetCurrentRow() : GetCurrentCol();
        const long last = rows ? LastRowIndex() : GetNumberCols() - 1;
        if (now >= last || now <= 0)
            return;
        if (PumpDragMessages() != Pumped::Nothing || CWnd::GetCapture() != this)
            return;
        if (now == before)
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, kIdleWaitMs, QS_ALLINPUT); // nothing moves: do not spin
    }
}

// --- Keys

// One step along the axis, with the selection from the anchor to there.
void CEditorCore::ExtendHeadingSelection(int step) {
    CPaintingScope quiet(this);
    if (m_nHeadingSelectMode == kColumns) {
        GotoCol(GetCurrentCol() + step);
        SelectColumns(m_nSelectAnchorCol, GetCurrentCol());
    } else {
        GotoRow(GetCurrentRow() + step);
        SelectRows(m_nSelectAnchorRow, GetCurrentRow());
    }
}

// Up and Down in column mode count as Right: both take in one column more, and users of long standing rely on it.
void CEditorCore::HeadingSelectionKey(UINT *key, bool shift, bool control) {
    if (*key == VK_SHIFT || *key == VK_CONTROL)
        return;
    const bool columns = m_nHeadingSelectMode == kColumns;
    const bool vertical = *key == VK_UP || *key == VK_DOWN;
    const bool horizontal = *key == VK_LEFT || *key == VK_RIGHT;
    if (shift && (vertical || (horizontal && columns))) {
        const bool back = *key == (columns ? VK_LEFT : VK_UP);
        const long now = columns ? GetCurrentCol() : GetCurrentRow();
        const long last = columns ? GetNumberCols() - 1 : LastRowIndex();
        if (back ? now > 0 : now < last)
            ExtendHeadingSelection(back ? -1 : 1);
        *key = static_cast<UINT>(-1);
    } else if (!control) {
        CancelSelectionMode(false);
        ClearSelections();
        RedrawAll();
    }
}
