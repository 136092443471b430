#include "afxwin.h"
#include "threadstate.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_CLOSE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_ACTIVATE()
ON_WM_ENABLE()
ON_WM_INITMENUPOPUP()
ON_WM_MENUSELECT()
ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const RECT CFrameWnd::rectDefault = {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

namespace {

// The difference wraps: from the default's left to its right it is the default again.
int Extent(LONG from, LONG to) {
    return static_cast<int>(static_cast<DWORD>(to) - static_cast<DWORD>(from));
}

bool IsOwnedBy(HWND wnd, HWND owner) {
    while (wnd && wnd != owner)
        wnd = ::GetWindow(wnd, GW_OWNER);
    return wnd == owner;
}

// More top-level windows than one frame will ever own.
constexpr int kMostModalWindows = 256;

} // namespace

CFrameWnd::CFrameWnd()
    : m_bAutoMenuEnable(TRUE), m_hAccelTable(nullptr), m_pViewActive(nullptr), m_nIDHelp(0),
      m_nIDTracking(kIdleMessage), m_nIDLastMessage(0), m_hMenuDefault(nullptr), m_cModalStack(0),
      m_disabledCount(0), m_disabledByOwner(FALSE), m_inLayout(FALSE) {}

CFrameWnd::~CFrameWnd() {}

void CFrameWnd::PostNcDestroy() {
    AfxDeleteAfterHandlers(this);
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT &cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect, CWnd *parent,
                       LPCTSTR menuName, DWORD exStyle, void *createParam) {
    HMENU menu = nullptr;
    if (menuName) {
        menu = ::LoadMenu(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (!menu) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = windowName;
    if (CreateEx(exStyle, className, windowName, style, rect.left, rect.top, Extent(rect.left, rect.right),
                 Extent(rect.top, rect.bottom), parent ? parent->m_hWnd : nullptr, menu, createParam))
        return TRUE;
    if (menu)
        ::DestroyMenu(menu);
    return FALSE;
}

LPCTSTR CFrameWnd::IconWndClass(UINT id, HBRUSH background) {
    const LPCTSTR name = MAKEINTRESOURCE(id);
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW), background,
                               icon ? icon : ::LoadIcon(nullptr, IDI_APPLICATION));
}

BOOL CFrameWnd::LoadFrame(UINT id, DWORD style, CWnd *parent, void *createParam) {
    m_nIDHelp = id;
    CString full, title;
    if (full.LoadString(id))
        AfxExtractSubString(title, full, 0);
    const bool mdi = IsKindOf(RUNTIME_CLASS(CMDIFrameWnd));
    const LPCTSTR className = IconWndClass(id, mdi ? nullptr : reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if (!Create(className, title, style, rectDefault, parent, MAKEINTRESOURCE(id), 0, createParam))
        return FALSE;
    m_hMenuDefault = ::GetMenu(m_hWnd);
    LoadAccelTable(MAKEINTRESOURCE(id));
    if (!createParam)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR name) {
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    return m_hAccelTable != nullptr;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT cs) {
    if (CWnd::OnCreate(cs) == -1)
        return -1;
    if (!OnCreateClient(cs, cs->lpCreateParams))
        return -1;
    PostMessage(WM_SETMESSAGESTRING, kIdleMessage);
    RecalcLayout();
    return 0;
}

void CFrameWnd::OnDestroy() {
    // The menu that the window was made with goes with the window, whichever it shows now.
    if (m_hMenuDefault && ::GetMenu(m_hWnd) != m_hMenuDefault)
        ::SetMenu(m_hWnd, m_hMenuDefault);
    m_pViewActive = nullptr;
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

void CFrameWnd::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_inLayout)
        return;
    m_inLayout = TRUE;
    AFX_SIZEPARENTPARAMS layout{};
    GetClientRect(&layout.rect);
    HWND pane = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (::GetDlgCtrlID(child) == AFX_IDW_PANE_FIRST)
            pane = child;
        else if (FromHandlePermanent(child))
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    // What the bars leave belongs to the contents.
    const CRect rest(layout.rect);
    if (pane)
        ::SetWindowPos(pane, nullptr, rest.left, rest.top, std::max(rest.Width(), 0),
                       std::max(rest.Height(), 0), SWP_NOZORDER | SWP_NOACTIVATE);
    m_inLayout = FALSE;
}

void CFrameWnd::OnSetFocus(CWnd *old) {
    if (m_pViewActive)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(old);
}

void CFrameWnd::OnActivate(UINT state, CWnd *other, BOOL minimized) {
    CWnd::OnActivate(state, other, minimized);
    if (m_pViewActive && !minimized)
        m_pViewActive->OnActivateView(state != WA_INACTIVE, m_pViewActive, m_pViewActive);
}

void CFrameWnd::SetActiveView(CView *view, BOOL notify) {
    CView *old = m_pViewActive;
    if (view == old)
        return;
    m_pViewActive = nullptr;
    if (old && notify)
        old->OnActivateView(FALSE, view, old);
    m_pViewActive = view;
    if (view && notify)
        view->OnActivateView(TRUE, view, old);
}

void CFrameWnd::ActivateFrame(int command) {
    if (command == -1)
        command = IsWindowVisible() ? (IsIconic() ? SW_RESTORE : -1) : SW_SHOWNORMAL;
    if (command != -1)
        ShowWindow(command);
    BringWindowToTop();
}

void CFrameWnd::OnUpdateFrameTitle(BOOL) {
    CString shown;
    GetWindowText(shown);
    if (shown != m_strTitle)
        SetWindowText(m_strTitle);
}

BOOL CFrameWnd::PreTranslateMessage(MSG *msg) {
    if (CWnd::PreTranslateMessage(msg))
        return TRUE;
    const HACCEL accelerators = GetDefaultAccelerator();
    return accelerators && ::TranslateAccelerator(m_hWnd, accelerators, msg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) {
    if (m_pViewActive && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp *app = AfxGetApp();
    return app && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CFrameWnd::OnInitMenuPopup(CMenu *menu, UINT, BOOL systemMenu) {
    if (systemMenu)
        return;
    CCmdUI state;
    state.m_pMenu = menu;
    state.m_nIndexMax = menu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++) {
        const int index = static_cast<int>(state.m_nIndex);
        state.m_nID = menu->GetMenuItemID(index);
        if (state.m_nID == 0)
            continue;
        if (state.m_nID == UINT(-1)) {
            // A popup is updated in the name of its first command.
            state.m_pSubMenu = menu->GetSubMenu(index);
            state.m_nID = state.m_pSubMenu ? state.m_pSubMenu->GetMenuItemID(0) : 0;
            if (state.m_nID != 0 && state.m_nID != UINT(-1))
                state.DoUpdate(this, FALSE);
        } else {
            state.m_pSubMenu = nullptr;
            state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        }
        // The handler may have taken items away or put some in.
        const UINT count = menu->GetMenuItemCount();
        if (count < state.m_nIndexMax) {
            state.m_nIndex -= std::min(state.m_nIndexMax - count, state.m_nIndex);
            while (state.m_nIndex < count &&
                   menu->GetMenuItemID(static_cast<int>(state.m_nIndex)) == state.m_nID)
                state.m_nIndex++;
        }
        state.m_nIndexMax = count;
    }
}

void CFrameWnd::OnMenuSelect(UINT item, UINT flags, HMENU menu) {
    if (flags == 0xFFFF && !menu)
        m_nIDTracking = kIdleMessage;
    else if (item == 0 || (flags & (MF_SEPARATOR | MF_POPUP | MF_MENUBREAK | MF_MENUBARBREAK)))
        m_nIDTracking = 0;
    else
        m_nIDTracking = item;
    if (m_nIDTracking != m_nIDLastMessage)
        SetMessageText(m_nIDTracking);
}

void CFrameWnd::GetMessageString(UINT id, CString &text) const {
    CString full;
    text.Empty();
    // What follows the line break is the tool tip.
    if (full.LoadString(id))
        AfxExtractSubString(text, full, 0);
}

CWnd *CFrameWnd::GetMessageBar() {
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::SetMessageText(LPCTSTR text) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(text));
}

void CFrameWnd::SetMessageText(UINT id) {
    SendMessage(WM_SETMESSAGESTRING, id);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM id, LPARAM text) {
    const UINT last = m_nIDLastMessage;
    if (CWnd *bar = GetMessageBar()) {
        CString message;
        if (text)
            message = reinterpret_cast<LPCTSTR>(text);
        else if (id != 0)
            GetMessageString(static_cast<UINT>(id), message);
        bar->SetWindowText(message);
    }
    m_nIDLastMessage = static_cast<UINT>(id);
    m_nIDTracking = static_cast<UINT>(id);
    return last;
}

LRESULT CFrameWnd::OnPopMessageString(WPARAM id, LPARAM text) {
    return SendMessage(WM_SETMESSAGESTRING, id, text);
}

BOOL CFrameWnd::OnBarCheck(UINT id) {
    const HWND bar = ::GetDlgItem(m_hWnd, static_cast<int>(id));
    if (!bar)
        return FALSE;
    ::ShowWindow(bar, ::GetWindowLong(bar, GWL_STYLE) & WS_VISIBLE ? SW_HIDE : SW_SHOWNA);
    RecalcLayout();
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI *cmdUI) {
    const HWND bar = ::GetDlgItem(m_hWnd, static_cast<int>(cmdUI->m_nID));
    if (bar)
        cmdUI->SetCheck((::GetWindowLong(bar, GWL_STYLE) & WS_VISIBLE) != 0);
    else
        cmdUI->ContinueRouting();
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI *cmdUI) {
    const int key = cmdUI->m_nID == ID_INDICATOR_CAPS  ? VK_CAPITAL
                    : cmdUI->m_nID == ID_INDICATOR_NUM ? VK_NUMLOCK
                                                       : VK_SCROLL;
    cmdUI->Enable((::GetKeyState(key) & 1) != 0);
}

void CFrameWnd::BeginModalState() {
    if (m_cModalStack++ > 0)
        return;
    m_disabled.RemoveAll();
    // Collected first and in a block made beforehand: nothing may be thrown through the system's enumeration.
    m_disabled.SetSize(kMostModalWindows);
    m_disabledCount = 0;
    const auto collect = [](HWND wnd, LPARAM self) -> BOOL {
        CFrameWnd *frame = reinterpret_cast<CFrameWnd *>(self);
        if (::IsWindowEnabled(wnd) && FromHandlePermanent(wnd) &&
            IsOwnedBy(wnd, frame->GetTopLevelParent()->m_hWnd))
            frame->m_disabled[frame->m_disabledCount++] = wnd;
        return frame->m_disabledCount < kMostModalWindows;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(this));
    m_disabled.SetSize(m_disabledCount);
    for (int i = 0; i < m_disabled.GetSize(); i++)
        ::EnableWindow(static_cast<HWND>(m_disabled[i]), FALSE);
}

void CFrameWnd::OnEnable(BOOL enable) {
    CWnd::OnEnable(enable);
    // A message box or modal dialog disables its owner only; what else the frame owns goes along with it.
    if (GetStyle() & WS_CHILD)
        return;
    if (!enable && !InModalState()) {
        m_disabledByOwner = TRUE;
        BeginModalState();
    } else if (enable && m_disabledByOwner) {
        m_disabledByOwner = FALSE;
        EndModalState();
    }
}

void CFrameWnd::EndModalState() {
    if (m_cModalStack == 0 || --m_cModalStack > 0)
        return;
    for (int i = 0; i < m_disabled.GetSize(); i++)
        if (::IsWindow(static_cast<HWND>(m_disabled[i])))
            ::EnableWindow(static_cast<HWND>(m_disabled[i]), TRUE);
    m_disabled.RemoveAll();
}
