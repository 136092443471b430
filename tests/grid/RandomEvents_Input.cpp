// Keys, mouse and focus as random events.
#include "RandomEvents.h"

#include <algorithm>
#include <utility>

CPoint RandomEvents::PointInCells() {
    CRect current;
    if (m_random.OneIn(3) &&
        m_grid.GetCellRect(m_grid.GetCurrentCol(), m_grid.GetCurrentRow(), &current) == GRID_SUCCESS) {
        // Where boxes and buttons are.
        const int x = m_random.OneIn(2) ? current.left + 6 : current.right - 8;
        return CPoint(x, current.top + m_random.Below(std::max<int>(current.Height(), 1)));
    }
    return CPoint(m_random.Between(-5, m_grid.m_GI.m_cols.m_extent + 5),
                  m_random.Between(-5, m_grid.m_GI.m_rows.m_extent + 5));
}

std::unique_ptr<HeldKeys> RandomEvents::Modifiers() {
    switch (m_random.Below(8)) {
    case 0:
    case 1: m_text += " shift"; return std::make_unique<HeldKeys>(std::initializer_list<int>{VK_SHIFT});
    case 2: m_text += " ctrl"; return std::make_unique<HeldKeys>(std::initializer_list<int>{VK_CONTROL});
    case 3:
        m_text += " shift ctrl";
        return std::make_unique<HeldKeys>(std::initializer_list<int>{VK_SHIFT, VK_CONTROL});
    default: return nullptr;
    }
}

// Where keys go: the edit or the list while open, else the cells.
HWND RandomEvents::Target() {
    if (m_grid.List() != nullptr)
        return m_grid.List();
    return m_grid.Edit() != nullptr ? m_grid.Edit() : m_grid.Cells();
}

void RandomEvents::Key() {
    constexpr UINT kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_PRIOR, VK_NEXT, VK_HOME,
                              VK_END,  VK_TAB,   VK_RETURN, VK_ESCAPE, VK_SPACE, VK_F2,   VK_DELETE};
    const UINT key = m_random.Of(kKeys);
    Say("key %u", key);
    const auto held = Modifiers();
    SendKey(Target(), key);
}

void RandomEvents::Character() {
    constexpr char kCharacters[] = {'a', '1', '9', ' ', '-', 'K', '\x08', '\xE4', '0', '5'};
    const UINT character = static_cast<BYTE>(m_random.Of(kCharacters));
    Say("character %u", character);
    SendChar(Target(), character);
}

void RandomEvents::TypedEdit() {
    constexpr UINT kEnds[] = {VK_RETURN, VK_TAB, VK_UP, VK_DOWN, VK_ESCAPE};
    const UINT end = m_random.Of(kEnds);
    Say("edit ended with %u", end);
    const auto held = Modifiers();
    m_grid.StartEdit(m_random.OneIn(2) ? '4' : 0);
    for (const char *text : {"12", "3"}) {
        if (m_grid.Edit() != nullptr)
            TypeText(m_grid.Edit(), text);
    }
    if (m_grid.Edit() != nullptr)
        SendKey(m_grid.Edit(), end);
}

void RandomEvents::EditCommand() {
    switch (m_random.Below(4)) {
    case 0:
        Say("start of an edit");
        m_grid.StartEdit();
        break;
    case 1:
        Say("edit goes on");
        if (m_grid.Edit() != nullptr)
            m_grid.EditContinue(m_random.Between(-2, 2), m_random.Between(-2, 2));
        break;
    case 2: {
        const int suppress = m_random.OneIn(4);
        Say("suppress finish %d", suppress);
        // What the flag held open ends with it, as hosts do it.
        m_grid.SetSuppressFinishOnFocusLoss(suppress);
        if (!suppress && m_grid.Edit() != nullptr && ::GetFocus() != m_grid.Edit()) {
            ::SetFocus(m_grid.Edit());
            m_host.SetFocus();
        }
        break;
    }
    default:
        Say("text into the edit");
        if (m_grid.Edit() != nullptr)
            ::SetWindowTextA(m_grid.Edit(), "98-7654321");
    }
}

void RandomEvents::LeftClick() {
    const CPoint at = PointInCells();
    Say("click %ld,%ld", at.x, at.y);
    const auto held = Modifiers();
    ClickLeft(m_grid.Cells(), at.x, at.y);
}

void RandomEvents::DoubleClick() {
    const CPoint at = PointInCells();
    Say("double click %ld,%ld", at.x, at.y);
    ClickLeft(m_grid.Cells(), at.x, at.y);
    ::SendMessageA(m_grid.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    ReleaseLeft(m_grid.Cells(), at.x, at.y);
}

void RandomEvents::RightClick() {
    const CPoint at = PointInCells();
    Say("right click %ld,%ld", at.x, at.y);
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

void RandomEvents::PressOnly() {
    const CPoint at = PointInCells();
    Say("press %ld,%ld", at.x, at.y);
    PressLeft(m_grid.Cells(), at.x, at.y);
}

void RandomEvents::MoveOnly() {
    const CRect inside(0, 0, std::max(m_grid.m_GI.m_cols.m_extent, 1), std::max(m_grid.m_GI.m_rows.m_extent, 1));
    const CPoint at(m_random.Below(inside.right), m_random.Below(inside.bottom));
    Say("move %ld,%ld", at.x, at.y);
    // A pointer outside of cells without any room would scroll, and nobody would end it.
    if (m_grid.m_GI.m_cols.m_extent > 0 && m_grid.m_GI.m_rows.m_extent > 0)
        MoveMouse(m_grid.Cells(), at.x, at.y, m_random.OneIn(5) ? 0 : MK_LBUTTON);
}

void RandomEvents::ReleaseOnly() {
    const CPoint at = PointInCells();
    Say("release %ld,%ld", at.x, at.y);
    ReleaseLeft(m_grid.Cells(), at.x, at.y);
}

void RandomEvents::Drag() {
    PressOnly();
    const std::string from = m_text;
    const int steps = m_random.Between(1, 3);
    for (int i = 0; i < steps; ++i)
        MoveOnly();
    if (!m_random.OneIn(8))
        ReleaseOnly();
    m_text = "drag from " + from;
}

// Always above or below: every step along rows asks for a move or hits an end, which is counted, so that the
// end of the drag depends on no time.
void RandomEvents::DragOutside() {
    const CPoint from = PointInCells();
    const int x = m_random.Of({-40, 20, m_grid.m_GI.m_cols.m_extent + 120});
    const int y = m_random.Of({-70, m_grid.m_GI.m_rows.m_extent + 90});
    HoldOutside(from, x, y, m_random.Between(1, 4));
}

// To one side only. Where the row ends there nothing is told, so the pointer goes where there is a column left.
void RandomEvents::DragAcross() {
    const CPoint from = PointInCells();
    const int beyond = m_random.Of({10, 60, 160}), steps = m_random.Between(1, 4);
    m_grid.m_dragsAcross = true;
    HoldOutside(from, m_random.OneIn(2) ? -beyond : m_grid.m_GI.m_cols.m_extent + beyond, 0, steps);
    m_grid.m_dragsAcross = false;
}

void RandomEvents::HoldOutside(CPoint from, int x, int y, int steps) {
    const int mode = m_random.Below(4);
    Say("drag outside from %ld,%ld to %d,%d in mode %d", from.x, from.y, x, y, mode);
    const CUGAxis &cols = m_grid.m_GI.m_cols, &rows = m_grid.m_GI.m_rows;
    const bool across = m_grid.m_dragsAcross;
    if (rows.m_count == 0 || cols.m_count == 0)
        return;
    // Columns 1 and 2 are joined in places: where the row ends with them nothing is told either.
    constexpr long kEndsWithBlock = 3;
    if (across && (cols.m_count < 2 || cols.m_count == kEndsWithBlock || rows.m_extent == 0))
        return;
    const bool vetoing = std::exchange(m_grid.m_vetoing, false);
    m_grid.SetBallisticMode(mode);
    PressLeft(m_grid.Cells(), from.x, from.y);
    if (across && cols.m_current == (x < 0 ? 0 : cols.m_count - 1))
        x = x < 0 ? cols.m_extent + 60 : -60;
    m_grid.m_dragStepsLeft = steps;
    MoveMouse(m_grid.Cells(), x, y, MK_LBUTTON);
    m_grid.m_dragStepsLeft = 0;
    m_grid.m_vetoing = vetoing;
    PumpAll();
    ReleaseLeft(m_grid.Cells(), from.x, from.y);
}

void RandomEvents::ListInput() {
    Say("list input");
    if (m_grid.List() == nullptr) {
        HeldKeys ctrl({VK_CONTROL});
        SendKey(Target(), VK_DOWN);
    } else if (m_random.OneIn(2)) {
        ClickLeft(m_grid.List(), 5, m_random.Below(40));
    } else {
        SendKey(m_grid.List(), m_random.Of({UINT(VK_DOWN), UINT(VK_RETURN), UINT(VK_ESCAPE)}));
    }
}

void RandomEvents::HeadingClick() {
    const bool top = m_random.OneIn(2);
    const int x = m_random.Below(400), y = m_random.Below(250);
    Say("%s heading click %d,%d", top ? "top" : "side", x, y);
    const HWND heading = top ? m_grid.TopHeading() : m_grid.SideHeading();
    switch (m_random.Below(4)) {
    case 0: ::SendMessageA(heading, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y)); break;
    case 1: ::SendMessageA(heading, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(x, y)); break;
    case 2: MoveMouse(heading, x, y, 0); break;
    default: ClickLeft(heading, x, y);
    }
}

void RandomEvents::HeadingDrag() {
    const bool top = m_random.OneIn(2);
    const CUGAxis &axis = top ? m_grid.m_GI.m_cols : m_grid.m_GI.m_rows;
    const long index = axis.m_leading + m_random.Below(4);
    if (!axis.Contains(index))
        return Say("no edge to drag");
    const int edge = static_cast<int>(axis.PositionOf(index) + axis.SizeOf(index)) + m_random.Between(-3, 3);
    const int by = m_random.Between(-120, 60);
    const HWND heading = top ? m_grid.TopHeading() : m_grid.SideHeading();
    const auto point = [&](int along) { return top ? CPoint(along, 5) : CPoint(5, along); };
    const CPoint from = point(edge), to = point(edge + by);
    const bool shrinks = m_random.OneIn(10), leaves = m_random.OneIn(10);
    Say("%s edge of %ld dragged by %d%s%s", top ? "top" : "side", index, by, shrinks ? ", table shrinks" : "",
        leaves ? ", mouse lost" : "");
    PressLeft(heading, from.x, from.y);
    MoveMouse(heading, to.x, to.y, MK_LBUTTON);
    if (shrinks) {
        m_grid.SetNumberRows(1);
        m_grid.SetNumberCols(1);
        MoveMouse(heading, to.x, to.y, MK_LBUTTON);
    }
    if (leaves)
        ::ReleaseCapture();
    else
        ReleaseLeft(heading, to.x, to.y);
}

void RandomEvents::CornerClick() {
    const int x = m_random.Below(60), y = m_random.Below(25);
    Say("corner click %d,%d", x, y);
    switch (m_random.Below(3)) {
    case 0: ::SendMessageA(m_grid.Corner(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y)); break;
    case 1: ::SendMessageA(m_grid.Corner(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(x, y)); break;
    default: ClickLeft(m_grid.Corner(), x, y);
    }
}

void RandomEvents::CornerDrag() {
    const int x = m_grid.GetSH_Width() - m_random.Below(10), y = m_grid.GetTH_Height() - m_random.Below(10);
    const int toX = m_random.Between(-10, 90), toY = m_random.Between(-10, 50);
    Say("corner dragged from %d,%d to %d,%d", x, y, toX, toY);
    PressLeft(m_grid.Corner(), x, y);
    MoveMouse(m_grid.Corner(), toX, toY, MK_LBUTTON);
    if (m_random.OneIn(10))
        ::ReleaseCapture();
    else
        ReleaseLeft(m_grid.Corner(), toX, toY);
}

void RandomEvents::Wheel() {
    const int delta = m_random.Of({-240, -120, -40, 40, 120, 240});
    Say("wheel %d", delta);
    ::SendMessageA(m_grid.Cells(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
}

void RandomEvents::BarCommand() {
    const bool vertical = m_random.OneIn(2);
    const int code = m_random.Of({SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_TOP, SB_BOTTOM, SB_ENDSCROLL});
    Say("%s bar command %d", vertical ? "vertical" : "horizontal", code);
    ::SendMessageA(m_grid.m_hWnd, vertical ? WM_VSCROLL : WM_HSCROLL, code,
                   reinterpret_cast<LPARAM>(vertical ? m_grid.VBar() : m_grid.HBar()));
}

void RandomEvents::BarThumb() {
    const bool vertical = m_random.OneIn(2);
    const HWND bar = vertical ? m_grid.VBar() : m_grid.HBar();
    int least = 0, most = 0;
    ::GetScrollRange(bar, SB_CTL, &least, &most);
    const int position = m_random.Between(0, std::max(most, 0));
    Say("%s thumb to %d of %d", vertical ? "vertical" : "horizontal", position, most);
    for (int code : {SB_THUMBTRACK, SB_THUMBPOSITION, SB_ENDSCROLL}) {
        ::SetScrollPos(bar, SB_CTL, position, FALSE);
        ::SendMessageA(m_grid.m_hWnd, vertical ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(code, position),
                       reinterpret_cast<LPARAM>(bar));
    }
}

void RandomEvents::TabInput() {
    switch (m_random.Below(5)) {
    case 0: {
        const int width = m_random.Of({0, 0, 60, 150, 900});
        Say("tab width %d", width);
        m_grid.SetTabWidth(width);
        break;
    }
    case 1: {
        const int id = m_random.Below(6);
        Say("tab %d comes", id);
        m_grid.AddTab("Tab", id);
        break;
    }
    case 2: {
        const int id = m_random.Below(6);
        Say("tab %d goes", id);
        m_grid.DeleteTab(id);
        break;
    }
    default: {
        const int x = m_random.Below(200);
        Say("tab click %d", x);
        ClickLeft(m_grid.Tab(), x, 5);
    }
    }
}

void RandomEvents::Focus() {
    Say("focus");
    switch (m_random.Below(3)) {
    case 0: m_host.SetFocus(); break;
    case 1: m_grid.SetFocus(); break;
    default: ::SetFocus(m_grid.Cells());
    }
}

void RandomEvents::Capture() {
    Say("mouse lost");
    ::ReleaseCapture();
}
