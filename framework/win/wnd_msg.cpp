// CWnd: the way of a message to its handler, notifications and their reflection.
#include "afxwin.h"
#include "dispatch.h"
#include "threadstate.h"

LRESULT AfxCallWndProc(CWnd *wnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_DELETEITEM()
ON_WM_COMPAREITEM()
ON_WM_VKEYTOITEM()
ON_WM_CHARTOITEM()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_PARENTNOTIFY()
ON_WM_SETCURSOR()
ON_WM_SYSCOLORCHANGE()
ON_MESSAGE(WM_DISPLAYCHANGE, &CWnd::OnDisplayChange)
END_MESSAGE_MAP()

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    LRESULT answer = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        if (result)
            *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        if (!reinterpret_cast<const NMHDR *>(lParam)->hwndFrom || !OnNotify(wParam, lParam, &answer))
            return FALSE;
        if (result)
            *result = answer;
        return TRUE;
    }
    // The system has one message for each kind of control, the maps one for all.
    AFX_CTLCOLOR color{};
    UINT mapped = message;
    if (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        color = {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
        mapped = WM_CTLCOLOR;
        lParam = reinterpret_cast<LPARAM>(&color);
    }
    const AFX_MSGMAP_ENTRY *entry = AfxDispatcher::Find(GetMessageMap(), mapped);
    if (!entry || !AfxDispatcher::Call(this, *entry, wParam, lParam, &answer))
        return FALSE;
    if (result)
        *result = answer;
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    int code = HIWORD(wParam);
    if (control) {
        // While data is exchanged the controls change by our own doing.
        if (AfxThreadState().notificationsLockedOut == m_hWnd)
            return TRUE;
        if (ReflectLastMsg(control))
            return TRUE;
        return id == 0 ? FALSE : OnCmdMsg(id, code, nullptr, nullptr);
    }
    if (id == 0)
        return FALSE;
    // A menu or accelerator may choose a command that its handler would not offer now.
    CTestCmdUI state;
    state.m_nID = id;
    OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
    if (!state.m_bEnabled)
        return TRUE;
    return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT *result) {
    NMHDR *header = reinterpret_cast<NMHDR *>(lParam);
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom)) & 0xFFFF;
    if (AfxThreadState().notificationsLockedOut == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(header->hwndFrom, result))
        return TRUE;
    AFX_NOTIFY notify = {result, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(static_cast<WORD>(header->code), WM_NOTIFY)), &notify,
                    nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND child, LRESULT *result) {
    CWnd *wnd = FromHandlePermanent(child);
    return wnd ? wnd->SendChildNotifyLastMsg(result) : FALSE;
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT *result) {
    const MSG message = AfxThreadState().lastSentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    LRESULT answer = 0;
    LRESULT *target = result ? result : &answer;
    switch (message) {
    case WM_COMMAND:
        return OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_COMMAND + WM_REFLECT_BASE)), nullptr,
                        nullptr);
    case WM_NOTIFY: {
        NMHDR *header = reinterpret_cast<NMHDR *>(lParam);
        AFX_NOTIFY notify = {target, header};
        return OnCmdMsg(
            0, static_cast<int>(MAKELONG(static_cast<WORD>(header->code), WM_NOTIFY + WM_REFLECT_BASE)),
            &notify, nullptr);
    }
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC: {
        AFX_CTLCOLOR color = {m_hWnd, reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
        return OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), target) &&
               *target;
    }
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM: return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, target);
    default: return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC *, CWnd *control, UINT) {
    LRESULT result = 0;
    if (control && ReflectLastMsg(control->m_hWnd, &result))
        return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item) {
    if (item->CtlType == ODT_MENU) {
        if (CMenu *menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(item->hwndItem))) {
            menu->DrawItem(item);
            return;
        }
    } else if (ReflectLastMsg(item->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT item) {
    if (item->CtlType != ODT_MENU) {
        const HWND child = ::GetDlgItem(m_hWnd, static_cast<int>(item->CtlID));
        if (child && ReflectLastMsg(child))
            return;
    }
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT item) {
    if (!ReflectLastMsg(item->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT item) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(item->hwndItem, &result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox *list, UINT) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(list->m_hWnd, &result) ? result : Default());
}

int CWnd::OnCharToItem(UINT, CListBox *list, UINT) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(list->m_hWnd, &result) ? result : Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar *bar) {
    if (!bar || !ReflectLastMsg(bar->m_hWnd))
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar *bar) {
    if (!bar || !ReflectLastMsg(bar->m_hWnd))
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const UINT event = LOWORD(message);
    if ((event == WM_CREATE || event == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}

BOOL CWnd::OnSetCursor(CWnd *, UINT hitTest, UINT message) {
    // A click into a window that a modal one disabled brings the modal one forward.
    if (hitTest == static_cast<UINT>(HTERROR) &&
        (message == WM_LBUTTONDOWN || message == WM_MBUTTONDOWN || message == WM_RBUTTONDOWN)) {
        const HWND popup = ::GetLastActivePopup(GetTopLevelParent()->m_hWnd);
        if (popup && popup != ::GetForegroundWindow() && ::IsWindowEnabled(popup)) {
            ::SetForegroundWindow(popup);
            return TRUE;
        }
    }
    return static_cast<BOOL>(Default());
}

LRESULT CWnd::OnDisplayChange(WPARAM, LPARAM) {
    // Only top-level windows are told by the system.
    if (!(GetStyle() & WS_CHILD)) {
        const MSG *message = GetCurrentMessage();
        SendMessageToDescendants(message->message, message->wParam, message->lParam, TRUE, TRUE);
    }
    return Default();
}

void CWnd::OnSysColorChange() {
    // Only top-level windows are told by the system.
    if (!(GetStyle() & WS_CHILD))
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    Default();
}

BOOL CWnd::PreTranslateMessage(MSG *) {
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG msg) {
    // Only input can mean something to a dialog; the rest is not shown to it, because that costs.
    const bool key = msg->message >= WM_KEYFIRST && msg->message <= WM_KEYLAST;
    const bool mouse = (msg->message >= WM_MOUSEFIRST && msg->message <= WM_MBUTTONDBLCLK) ||
                       (msg->message >= WM_NCMOUSEMOVE && msg->message <= WM_NCMBUTTONDBLCLK);
    return key || mouse ? IsDialogMessage(msg) : FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG *msg) {
    for (HWND wnd = msg->hwnd; wnd; wnd = ::GetParent(wnd)) {
        CWnd *object = FromHandlePermanent(wnd);
        if (object && object->PreTranslateMessage(msg))
            return TRUE;
        if (wnd == stop)
            break;
    }
    return FALSE;
}

void CWnd::SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                    BOOL onlyPermanent) {
    for (HWND child = ::GetTopWindow(wnd); child;) {
        // The message may end its window; the walk goes on with the neighbour known before.
        const HWND next = ::GetWindow(child, GW_HWNDNEXT);
        CWnd *object = FromHandlePermanent(child);
        if (!onlyPermanent)
            ::SendMessage(child, message, wParam, lParam);
        else if (object)
            AfxCallWndProc(object, child, message, wParam, lParam);
        if (deep && ::IsWindow(child))
            SendMessageToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
        child = next && ::IsWindow(next) ? next : nullptr;
    }
}
