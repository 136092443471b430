// Keys and mouse in the cell area.
#include "grid/ButtonWatch.h"
#include "grid/UGCtrl.h"

#include "grid/UGDragScroll.h"
#include "grid/UGDrawRules.h"
#include "grid/ValueScope.h"

#include <algorithm>

void CUGGrid::OnSetFocus(CWnd *old) {
    CWnd::OnSetFocus(old);
}

UINT CUGGrid::OnGetDlgCode() {
    return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB;
}

namespace {

struct KeyMove {
    UINT key;
    bool ctrl;
    int (CUGCtrl::*move)(int how);
    int how;
};

constexpr KeyMove kKeyMoves[] = {
    {VK_LEFT, false, &CUGCtrl::MoveCurrentCol, UG_MOVE_BACK},
    {VK_LEFT, true, &CUGCtrl::MoveCurrentCol, UG_MOVE_BACK},
    {VK_RIGHT, false, &CUGCtrl::MoveCurrentCol, UG_MOVE_FORWARD},
    {VK_RIGHT, true, &CUGCtrl::MoveCurrentCol, UG_MOVE_FORWARD},
    {VK_UP, false, &CUGCtrl::MoveCurrentRow, UG_MOVE_BACK},
    {VK_UP, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_BACK},
    {VK_DOWN, false, &CUGCtrl::MoveCurrentRow, UG_MOVE_FORWARD},
    {VK_DOWN, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_FORWARD},
    {VK_PRIOR, false, &CUGCtrl::MoveCurrentRow, UG_MOVE_PAGE_BACK},
    {VK_PRIOR, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_PAGE_BACK},
    {VK_NEXT, false, &CUGCtrl::MoveCurrentRow, UG_MOVE_PAGE_FORWARD},
    {VK_NEXT, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_PAGE_FORWARD},
    {VK_HOME, false, &CUGCtrl::MoveCurrentCol, UG_MOVE_FIRST},
    {VK_HOME, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_FIRST},
    {VK_END, false, &CUGCtrl::MoveCurrentCol, UG_MOVE_LAST},
    {VK_END, true, &CUGCtrl::MoveCurrentRow, UG_MOVE_LAST},
};

} // namespace

void CUGGrid::OnKeyDown(UINT key, UINT, UINT) {
    const int processed = m_ctrl->FocusedType()->OnKeyDown(&key);
    m_ctrl->OnKeyDown(&key, processed);
    const bool ctrl = (::GetKeyState(VK_CONTROL) & 0x8000) != 0;
    for (const KeyMove &entry : kKeyMoves) {
        if (entry.key == key && entry.ctrl == ctrl) {
            const CUGValueScope<int> byKey(&m_GI->m_moveType, UG_MOVED_BY_KEY);
            (m_ctrl->*entry.move)(entry.how);
            break;
        }
    }
}

void CUGGrid::OnKeyUp(UINT key, UINT, UINT) {
    m_ctrl->OnKeyUp(&key, 0);
}

void CUGGrid::OnChar(UINT key, UINT, UINT) {
    const int processed = m_ctrl->FocusedType()->OnCharDown(&key);
    m_ctrl->OnCharDown(&key, processed);
}

// The cell that the mouse names becomes current without the view scrolling under the pointer.
void CUGGrid::GoByMouse(int moveType, int col, long row) {
    const CUGValueScope<int> type(&m_GI->m_moveType, moveType);
    const CUGValueScope<int> margin(&m_GI->m_scrollMargin, 0);
    m_ctrl->GotoCell(col, row);
}

// What a cell's type paints in, and so what it takes clicks in: the cell without its border.
RECT CUGGrid::TypeArea(int col, long row, RECT rect) {
    CUGCell cell;
    m_ctrl->GetCell(col, row, &cell);
    UGShrinkByBorder(&rect, cell.GetBorder(), m_GI->m_3dBorderWidth);
    return rect;
}

int CUGGrid::PressOnType(int col, long row, const RECT &rect, POINT *point) {
    if (col != m_ctrl->GetCurrentCol() || row != m_ctrl->GetCurrentRow())
        return 0;
    CUGCellType *type = m_ctrl->FocusedType();
    RECT area = TypeArea(col, row, rect);
    const int processed = type->OnLClicked(col, row, 1, &area, point);
    if (processed == UGCT_HANDLED)
        m_tracker = type;
    return processed;
}

void CUGGrid::HoldMouse() {
    SetCapture();
    m_captured = true;
}

// The press is over without its release having come: the button that it pressed in a cell comes up, as when the
// pointer leaves it, and acts no more.
void CUGGrid::LetMouseGo() {
    CPoint outside(-1, -1);
    if (CUGCellType *tracker = std::exchange(m_tracker, nullptr))
        tracker->OnMouseMove(&outside, MK_LBUTTON);
    m_captured = false;
    if (GetSafeHwnd() != nullptr && GetCapture() == this)
        ReleaseCapture();
}

void CUGGrid::OnLButtonDown(UINT, CPoint point) {
    const CUGButtonWatch button;
    SetFocus(); // ends an edit, which may ask the user
    if (GetSafeHwnd() == nullptr)
        return;
    m_tracker = nullptr;
    m_dragStarted = false;
    int col;
    long row;
    RECT rect{};
    int processed = 0;
    if (m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row, &rect) == GRID_SUCCESS) {
        GoByMouse(UG_MOVED_BY_CLICK, col, row);
        m_ctrl->GetCellRect(col, row, &rect);
        processed = PressOnType(col, row, rect, &point);
    } else {
        col = -1;
        row = -1;
    }
    m_ctrl->OnLClicked(col, row, 1, &rect, &point, processed);
    if (GetSafeHwnd() == nullptr || m_dragStarted)
        m_tracker = nullptr;
    else if (button.CameUp())
        LetMouseGo();
    else
        HoldMouse();
}

void CUGGrid::OnLButtonUp(UINT, CPoint point) {
    if (!m_captured)
        return;
    m_captured = false;
    int col;
    long row;
    RECT rect{};
    int processed = 0;
    CUGCellType *tracker = std::exchange(m_tracker, nullptr);
    if (m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row, &rect) == GRID_SUCCESS) {
        if (tracker == nullptr)
            GoByMouse(UG_MOVED_BY_DRAG, col, row);
        m_ctrl->BringCurrentIntoView();
        m_ctrl->GetCellRect(col, row, &rect);
    }
    CUGCellType *type = tracker != nullptr ? tracker : m_ctrl->FocusedType();
    RECT area = TypeArea(col, row, rect);
    processed = type->OnLClicked(col, row, 0, &area, &point);
    m_ctrl->OnLClicked(col, row, 0, &rect, &point, processed);
    if (GetCapture() == this)
        ReleaseCapture();
}

void CUGGrid::OnLButtonDblClk(UINT, CPoint point) {
    const CUGButtonWatch button;
    int col;
    long row;
    RECT rect{};
    int processed = 0;
    m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row, &rect);
    if (col >= 0 && col == m_ctrl->GetCurrentCol() && row == m_ctrl->GetCurrentRow()) {
        CUGCellType *type = m_ctrl->FocusedType();
        RECT area = TypeArea(col, row, rect);
        processed = type->OnDClicked(col, row, &area, &point);
        // A button that was pressed by it is released with the mouse's button.
        if (processed == UGCT_HANDLED && GetSafeHwnd() != nullptr) {
            HoldMouse();
            m_tracker = type;
        }
    }
    m_ctrl->OnDClicked(col, row, &rect, &point, processed);
    if (m_captured && button.CameUp())
        LetMouseGo();
}

void CUGGrid::OnRButtonDown(UINT, CPoint point) {
    SetFocus();
    if (GetSafeHwnd() == nullptr)
        return;
    int col;
    long row;
    RECT rect{};
    int processed = 0;
    if (m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row, &rect) == GRID_SUCCESS) {
        GoByMouse(UG_MOVED_BY_CLICK, col, row);
        m_ctrl->GetCellRect(col, row, &rect);
        if (col == m_ctrl->GetCurrentCol() && row == m_ctrl->GetCurrentRow()) {
            RECT area = TypeArea(col, row, rect);
            processed = m_ctrl->FocusedType()->OnRClicked(col, row, 1, &area, &point);
        }
    }
    m_ctrl->OnRClicked(col, row, 1, &rect, &point, processed);
    if (GetSafeHwnd() == nullptr)
        return;
    CPoint screen = point;
    ClientToScreen(&screen);
    m_ctrl->ShowPopupMenu(col, row, UG_SECTION_GRID, screen);
}

void CUGGrid::OnRButtonUp(UINT, CPoint point) {
    int col;
    long row;
    RECT rect{};
    m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row, &rect);
    m_ctrl->OnRClicked(col, row, 0, &rect, &point, 0);
}

void CUGGrid::OnMouseMove(UINT flags, CPoint point) {
    if (!m_captured || GetCapture() != this)
        return;
    if (!(flags & MK_LBUTTON)) {
        LetMouseGo(); // the release went elsewhere
        return;
    }
    if (m_tracker != nullptr) {
        m_tracker->OnMouseMove(&point, flags);
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (client.PtInRect(point))
        DragTo(point);
    else if (!m_dragScrolling)
        DragScroll(point);
}

void CUGGrid::DragTo(CPoint point) {
    int col;
    long row;
    if (m_ctrl->GetCellFromPoint(point.x, point.y, &col, &row) == GRID_SUCCESS)
        GoByMouse(UG_MOVED_BY_DRAG, col, row);
}

// Scrolls while the pointer stays outside; ends with the next move or release of the mouse, which stays in the
// queue for its own handler.
void CUGGrid::DragScroll(CPoint point) {
    const CUGValueScope<bool> scrolling(&m_dragScrolling, true);
    const CUGButtonWatch button;
    MSG message;
    const HWND window = m_hWnd;
    while (::IsWindow(window)) {
        if (::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            if (message.message == WM_MOUSEMOVE || message.message == WM_LBUTTONUP ||
                message.message == WM_QUIT)
                break;
            if (::PeekMessageA(&message, nullptr, message.message, message.message, PM_REMOVE)) {
                ::TranslateMessage(&message);
                ::DispatchMessageA(&message);
            }
            if (::GetCapture() != window)
                break;
            continue;
        }
        const bool stepped = DragStep(point);
        if (!::IsWindow(window) || ::GetCapture() != window)
            break;
        if (button.CameUp()) {
            LetMouseGo();
            break;
        }
        if (!stepped)
            ::WaitMessage();
    }
}

// One step of the drag scrolling, each axis by itself; false when it led nowhere.
bool CUGGrid::DragStep(CPoint point) {
    const CUGAxis &cols = m_GI->m_cols, &rows = m_GI->m_rows;
    const long col = cols.m_current, row = rows.m_current;
    const UGDragStep across = UGDragStepOf(point.x, cols.m_extent, cols.m_defaultSize / 2, m_GI->m_ballisticMode, false);
    const UGDragStep down = UGDragStepOf(point.y, rows.m_extent, rows.m_defaultSize, m_GI->m_ballisticMode, true);
    const CUGValueScope<int> byDrag(&m_GI->m_moveType, UG_MOVED_BY_DRAG);
    if (across.m_steps != 0)
        m_ctrl->GotoCol(static_cast<int>(UGDragTarget(col, across.m_steps)));
    if (down.m_steps != 0)
        m_ctrl->GotoRow(UGDragTarget(row, down.m_steps));
    if (cols.m_current == col && rows.m_current == row)
        return false;
    UpdateWindow();
    if (across.m_waits || down.m_waits)
        ::Sleep(m_GI->m_ballisticDelay);
    return true;
}

BOOL CUGGrid::OnMouseWheel(UINT, short delta, CPoint) {
    TurnWheel(delta);
    return TRUE;
}

void CUGGrid::TurnWheel(int delta) {
    UINT lines = 3;
    ::SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    m_wheelRest += delta;
    const int notches = m_wheelRest / WHEEL_DELTA;
    m_wheelRest -= notches * WHEEL_DELTA;
    const bool back = notches > 0;
    const bool pages = lines == WHEEL_PAGESCROLL;
    const int steps = std::abs(notches) * (pages ? 1 : static_cast<int>(lines));
    for (int i = 0; i < steps; ++i)
        m_ctrl->m_vScroll.HandleScroll(pages ? (back ? SB_PAGEUP : SB_PAGEDOWN) : (back ? SB_LINEUP : SB_LINEDOWN));
}

// Whoever took the mouse keeps the release of the button to itself: nothing waits for it any more.
void CUGGrid::OnCaptureChanged(CWnd *next) {
    if (next != this) {
        m_captured = false;
        m_tracker = nullptr;
    }
    CWnd::OnCaptureChanged(next);
}
