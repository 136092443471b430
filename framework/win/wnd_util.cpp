// CWnd: geometry, relatives, text and the modal loop.
#include "afxwin.h"
#include "threadstate.h"

void CWnd::GetWindowText(CString &text) const {
    const int length = GetWindowTextLength();
    const int got = ::GetWindowText(m_hWnd, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer(got < length ? got : -1);
}

int CWnd::GetDlgItemText(int id, CString &text) const {
    text.Empty();
    if (const HWND item = ::GetDlgItem(m_hWnd, id)) {
        const int length = ::GetWindowTextLength(item);
        ::GetWindowText(item, text.GetBufferSetLength(length), length + 1);
        text.ReleaseBuffer();
    }
    return text.GetLength();
}

void CWnd::SetFont(CFont *font, BOOL redraw) {
    SendMessage(WM_SETFONT, font ? reinterpret_cast<WPARAM>(font->m_hObject) : 0, MAKELPARAM(redraw, 0));
}

namespace {

BOOL ChangeStyle(HWND wnd, int which, DWORD remove, DWORD add, UINT positionFlags) {
    const DWORD old = static_cast<DWORD>(::GetWindowLong(wnd, which));
    const DWORD changed = (old & ~remove) | add;
    if (changed == old)
        return FALSE;
    ::SetWindowLong(wnd, which, static_cast<LONG>(changed));
    if (positionFlags)
        ::SetWindowPos(wnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | positionFlags);
    return TRUE;
}

// The parent of a child, the owner of a popup.
HWND ParentOwner(HWND wnd) {
    return ::GetWindowLong(wnd, GWL_STYLE) & WS_CHILD ? ::GetParent(wnd) : ::GetWindow(wnd, GW_OWNER);
}

} // namespace

BOOL CWnd::ModifyStyle(HWND wnd, DWORD remove, DWORD add, UINT positionFlags) {
    return ChangeStyle(wnd, GWL_STYLE, remove, add, positionFlags);
}

BOOL CWnd::ModifyStyleEx(HWND wnd, DWORD remove, DWORD add, UINT positionFlags) {
    return ChangeStyle(wnd, GWL_EXSTYLE, remove, add, positionFlags);
}

void CWnd::ClientToScreen(LPRECT rect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(rect), 2);
}

void CWnd::ScreenToClient(LPRECT rect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(rect), 2);
}

void CWnd::CalcWindowRect(LPRECT clientRect, UINT) {
    ::AdjustWindowRectEx(clientRect, GetStyle(), ::GetMenu(m_hWnd) && !(GetStyle() & WS_CHILD), GetExStyle());
}

void CWnd::CenterWindow(CWnd *alternateOwner) {
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND center = alternateOwner ? alternateOwner->m_hWnd : ParentOwner(m_hWnd);
    // An invisible or minimised owner shows nothing to be the middle of.
    if (!child && center && (!::IsWindowVisible(center) || ::IsIconic(center)))
        center = nullptr;
    CRect window, area, around;
    GetWindowRect(&window);
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(center, &around);
        ::MapWindowPoints(center, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&around), 2);
    } else {
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfo(::MonitorFromWindow(center ? center : m_hWnd, MONITOR_DEFAULTTOPRIMARY), &monitor);
        area = monitor.rcWork;
        if (center)
            ::GetWindowRect(center, &around);
        else
            around = area;
    }
    int left = (around.left + around.right - window.Width()) / 2;
    int top = (around.top + around.bottom - window.Height()) / 2;
    // The top left corner has the last word: it carries the caption.
    left = std::max<int>(std::min<int>(left, area.right - window.Width()), area.left);
    top = std::max<int>(std::min<int>(top, area.bottom - window.Height()), area.top);
    SetWindowPos(nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int CWnd::GetScrollLimit(int bar) {
    int least = 0, most = 0;
    GetScrollRange(bar, &least, &most);
    SCROLLINFO info{};
    if (GetScrollInfo(bar, &info, SIF_PAGE) && info.nPage > 1)
        most -= static_cast<int>(info.nPage) - 1;
    return most;
}

CPoint CWnd::GetCaretPos() {
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

CFrameWnd *CWnd::GetParentFrame() const {
    for (HWND wnd = m_hWnd ? ParentOwner(m_hWnd) : nullptr; wnd; wnd = ParentOwner(wnd))
        if (CFrameWnd *frame = DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(wnd)))
            return frame;
    return nullptr;
}

CFrameWnd *CWnd::GetTopLevelFrame() const {
    const CWnd *self = this;
    CFrameWnd *frame = self->IsKindOf(RUNTIME_CLASS(CFrameWnd))
                           ? static_cast<CFrameWnd *>(const_cast<CWnd *>(self))
                           : GetParentFrame();
    while (frame) {
        CFrameWnd *outer = frame->GetParentFrame();
        if (!outer)
            break;
        frame = outer;
    }
    return frame;
}

CWnd *CWnd::GetTopLevelParent() const {
    HWND wnd = m_hWnd;
    while (const HWND parent = wnd ? ParentOwner(wnd) : nullptr)
        wnd = parent;
    return FromHandle(wnd);
}

CWnd *CWnd::GetTopLevelOwner() const {
    HWND wnd = m_hWnd;
    while (const HWND owner = wnd ? ::GetWindow(wnd, GW_OWNER) : nullptr)
        wnd = owner;
    return FromHandle(wnd);
}

CWnd *CWnd::GetParentOwner() const {
    HWND parent = m_hWnd;
    while (parent && ::GetWindowLong(parent, GWL_STYLE) & WS_CHILD)
        parent = ::GetParent(parent);
    return FromHandle(parent);
}

CWnd *CWnd::GetDescendantWindow(HWND wnd, int id, BOOL onlyPermanent) {
    // Direct children come first: of two windows with the identifier the nearer one is meant.
    if (const HWND child = ::GetDlgItem(wnd, id)) {
        if (::GetTopWindow(child))
            if (CWnd *deeper = GetDescendantWindow(child, id, onlyPermanent))
                return deeper;
        if (!onlyPermanent)
            return FromHandle(child);
        if (CWnd *object = FromHandlePermanent(child))
            return object;
    }
    for (HWND child = ::GetTopWindow(wnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (CWnd *found = GetDescendantWindow(child, id, onlyPermanent))
            return found;
    return nullptr;
}

int CWnd::GetCheckedRadioButton(int first, int last) const {
    for (int id = first; id <= last; id++)
        if (IsDlgButtonChecked(id))
            return id;
    return 0;
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type) {
    return ::MessageBox(m_hWnd, text, caption ? caption : AfxGetAppName(), type);
}

void CWnd::UpdateDialogControls(CCmdTarget *target, BOOL disableIfNoHandler) {
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd *control = FromHandle(child);
        CCmdUI state;
        state.m_pOther = control;
        state.m_nID = static_cast<UINT>(::GetDlgCtrlID(child)) & 0xFFFF;
        if (state.m_nID == 0xFFFF)
            continue;
        // Only buttons mean commands; a field without a handler stays usable.
        const bool button = (::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
        const LONG kind = ::GetWindowLong(child, GWL_STYLE) & 0xF;
        const bool command = button && (kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON);
        state.DoUpdate(target, disableIfNoHandler && command);
    }
}

namespace {

void ShowNow(CWnd *wnd) {
    wnd->ShowWindow(SW_SHOWNORMAL);
    wnd->UpdateWindow();
}

} // namespace

int CWnd::RunModalLoop(DWORD flags) {
    const HWND parent = ::GetParent(m_hWnd);
    bool show = (flags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    bool idle = true;
    LONG idleCount = 0;
    MSG next;
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    while (ContinueModal()) {
        while (idle && ContinueModal() && !::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            if (show)
                ShowNow(this);
            show = false;
            if (!(flags & MLF_NOIDLEMSG) && parent && idleCount == 0)
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            idle = !(flags & MLF_NOKICKIDLE) && SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) != 0;
        }
        do {
            if (!ContinueModal())
                break;
            MSG current;
            if (!AfxPumpThread(&current)) {
                // The quit message is the outer loop's as well.
                AfxPostQuitMessage(static_cast<int>(current.wParam));
                m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
                return m_nModalResult = -1;
            }
            // A key may want the window on the screen before the queue is ever empty.
            if (show && current.message == WM_SYSKEYDOWN) {
                ShowNow(this);
                show = false;
            }
            if (AfxIsIdleMessage(&current)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

void CWnd::EndModalLoop(int result) {
    m_nModalResult = result;
    if (m_nFlags & WF_CONTINUEMODAL) {
        m_nFlags &= ~WF_CONTINUEMODAL;
        // Wakes the loop, which may be waiting for a message.
        PostMessage(WM_NULL);
    }
}
