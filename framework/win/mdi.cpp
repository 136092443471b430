#include "afxwin.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
ON_WM_DESTROY()
ON_UPDATE_COMMAND_UI_RANGE(ID_WINDOW_ARRANGE, ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
ON_COMMAND_EX_RANGE(ID_WINDOW_ARRANGE, ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
ON_WM_CREATE()
ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()

LRESULT AfxCallWndProc(CWnd *wnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

CMDIFrameWnd::CMDIFrameWnd() : m_hWndMDIClient(nullptr) {}

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT &cs) {
    // The client covers everything, so nothing is to be erased behind it.
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT cs, void *) {
    const HMENU popup = GetWindowMenuPopup(::GetMenu(m_hWnd));
    return CreateClient(cs, popup ? CMenu::FromHandle(popup) : nullptr);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT cs, CMenu *windowMenu) {
    constexpr DWORD kAnyChildStyle = 0x0001;
    DWORD style = WS_VISIBLE | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | kAnyChildStyle;
    // Scroll bars that were asked for the frame are the client's.
    style |= static_cast<DWORD>(cs->style) & (WS_HSCROLL | WS_VSCROLL);
    ModifyStyle(WS_HSCROLL | WS_VSCROLL, 0, SWP_NOREDRAW | SWP_FRAMECHANGED);
    CLIENTCREATESTRUCT client{};
    client.hWindowMenu = windowMenu ? windowMenu->m_hMenu : nullptr;
    client.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr, style, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &client);
    return m_hWndMDIClient != nullptr;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU menuBar) {
    for (int i = menuBar ? ::GetMenuItemCount(menuBar) - 1 : -1; i >= 0; i--) {
        const HMENU popup = ::GetSubMenu(menuBar, i);
        for (int item = popup ? ::GetMenuItemCount(popup) - 1 : -1; item >= 0; item--) {
            const UINT id = ::GetMenuItemID(popup, item);
            if (id >= ID_WINDOW_NEW && id <= ID_WINDOW_SPLIT)
                return popup;
        }
    }
    return nullptr;
}

CMDIChildWnd *CMDIFrameWnd::MDIGetActive(BOOL *maximized) const {
    if (!m_hWndMDIClient)
        return nullptr;
    const HWND active = reinterpret_cast<HWND>(
        ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(maximized)));
    CMDIChildWnd *child = DYNAMIC_DOWNCAST(CMDIChildWnd, FromHandlePermanent(active));
    if (!child && maximized)
        *maximized = FALSE;
    // A child that was never shown does not count.
    return child && (child->GetStyle() & WS_VISIBLE) ? child : nullptr;
}

CMenu *CMDIFrameWnd::MDISetMenu(CMenu *frameMenu, CMenu *windowMenu) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(::SendMessage(
        m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(frameMenu ? frameMenu->m_hMenu : nullptr),
        reinterpret_cast<LPARAM>(windowMenu ? windowMenu->m_hMenu : nullptr))));
}

CFrameWnd *CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd *child = MDIGetActive();
    return child ? static_cast<CFrameWnd *>(child) : this;
}

// The children go while the client still knows them: some systems look at its list once more for each, after it was freed.
void CMDIFrameWnd::OnDestroy() {
    while (const HWND child = ::GetWindow(m_hWndMDIClient, GW_CHILD)) {
        ::SendMessage(m_hWndMDIClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
        if (::GetWindow(m_hWndMDIClient, GW_CHILD) == child)
            break;
    }
    CFrameWnd::OnDestroy();
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (lParam == 0) {
        CMDIChildWnd *child = MDIGetActive();
        if (child && AfxCallWndProc(child, child->m_hWnd, WM_COMMAND, wParam, lParam) != 0)
            return TRUE;
    }
    if (CFrameWnd::OnCommand(wParam, lParam))
        return TRUE;
    // The commands of the list of children, and of a maximized child's system menu, are the system's.
    if (lParam == 0 && (LOWORD(wParam) >= AFX_IDM_FIRST_MDICHILD || (LOWORD(wParam) & 0xF000) == 0xF000)) {
        DefWindowProc(WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    return FALSE;
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) {
    CMDIChildWnd *child = MDIGetActive();
    if (child && child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG *msg) {
    if (CWnd::PreTranslateMessage(msg))
        return TRUE;
    CMDIChildWnd *child = MDIGetActive();
    if (child && child->PreTranslateMessage(msg))
        return TRUE;
    if (m_hAccelTable && ::TranslateAccelerator(m_hWnd, m_hAccelTable, msg))
        return TRUE;
    const bool key = msg->message == WM_KEYDOWN || msg->message == WM_SYSKEYDOWN;
    return key && m_hWndMDIClient && ::TranslateMDISysAccel(m_hWndMDIClient, msg);
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI *cmdUI) {
    cmdUI->Enable(MDIGetActive() != nullptr);
}

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT id) {
    switch (id) {
    case ID_WINDOW_ARRANGE: MDIIconArrange(); return TRUE;
    case ID_WINDOW_CASCADE: MDICascade(MDITILE_SKIPDISABLED); return TRUE;
    case ID_WINDOW_TILE_HORZ: MDITile(MDITILE_HORIZONTAL); return TRUE;
    case ID_WINDOW_TILE_VERT: MDITile(MDITILE_VERTICAL); return TRUE;
    default: return FALSE;
    }
}

CMDIChildWnd::CMDIChildWnd() : m_hMenuShared(nullptr) {}

CMDIChildWnd::~CMDIChildWnd() {
    if (m_hMenuShared)
        ::DestroyMenu(m_hMenuShared);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT &cs) {
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIChildWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect,
                          CMDIFrameWnd *parent, void *createParam) {
    if (!parent)
        parent = DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    if (!parent)
        AfxThrowInvalidArgException();
    CREATESTRUCT cs{};
    cs.lpszClass = className;
    cs.lpszName = windowName;
    cs.style = static_cast<LONG>(style);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = rect.right == 0 && rect.left == CW_USEDEFAULT ? CW_USEDEFAULT : rect.right - rect.left;
    cs.cy = rect.bottom == 0 && rect.top == CW_USEDEFAULT ? CW_USEDEFAULT : rect.bottom - rect.top;
    cs.hwndParent = parent->m_hWnd;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = createParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = cs.lpszName;
    MDICREATESTRUCT mdi{};
    mdi.szClass = cs.lpszClass;
    mdi.szTitle = cs.lpszName;
    mdi.hOwner = cs.hInstance;
    mdi.x = cs.x;
    mdi.y = cs.y;
    mdi.cx = cs.cx;
    mdi.cy = cs.cy;
    mdi.style = static_cast<DWORD>(cs.style);
    mdi.lParam = reinterpret_cast<LPARAM>(cs.lpCreateParams);
    AfxHookWindowCreate(this);
    const HWND wnd = reinterpret_cast<HWND>(
        ::SendMessage(parent->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&mdi)));
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return wnd != nullptr;
}

BOOL CMDIChildWnd::LoadFrame(UINT id, DWORD style, CWnd *parent, void *createParam) {
    m_nIDHelp = id;
    CString full, title;
    if (full.LoadString(id))
        AfxExtractSubString(title, full, 0);
    const LPCTSTR name = MAKEINTRESOURCE(id);
    const HMENU menu = ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
    SetHandles(menu, ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name));
    return Create(IconWndClass(id, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1)), title, style, rectDefault,
                  static_cast<CMDIFrameWnd *>(parent), createParam);
}

void CMDIChildWnd::SetHandles(HMENU menu, HACCEL accelerators) {
    if (m_hMenuShared && m_hMenuShared != menu)
        ::DestroyMenu(m_hMenuShared);
    m_hMenuShared = menu;
    m_hAccelTable = accelerators;
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT cs) {
    // The client hands on what it was asked for, with our own parameter inside.
    const MDICREATESTRUCT *mdi = static_cast<const MDICREATESTRUCT *>(cs->lpCreateParams);
    CREATESTRUCT own = *cs;
    own.lpCreateParams = reinterpret_cast<void *>(mdi->lParam);
    return CFrameWnd::OnCreate(&own);
}

CMDIFrameWnd *CMDIChildWnd::GetMDIFrame() {
    const HWND client = ::GetParent(m_hWnd);
    return static_cast<CMDIFrameWnd *>(FromHandlePermanent(::GetParent(client)));
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (!m_hWnd)
        return FALSE;
    // Destroyed behind the client's back it would stay the active child.
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
    return TRUE;
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG *msg) {
    if (CWnd::PreTranslateMessage(msg))
        return TRUE;
    // Commands start at the frame, which asks the active child first anyway.
    const HACCEL accelerators = GetDefaultAccelerator();
    const bool key = msg->message >= WM_KEYFIRST && msg->message <= WM_KEYLAST;
    return key && accelerators && ::TranslateAccelerator(GetMDIFrame()->m_hWnd, accelerators, msg);
}

void CMDIChildWnd::ActivateFrame(int command) {
    if (command != -1 || !IsWindowVisible())
        ShowWindow(command == -1 ? SW_SHOWNORMAL : command);
    else if (IsIconic())
        MDIRestore();
    MDIActivate();
}

CWnd *CMDIChildWnd::GetMessageBar() {
    return GetMDIFrame()->GetMessageBar();
}

void CMDIChildWnd::OnMDIActivate(BOOL activate, CWnd *activated, CWnd *) {
    CMDIFrameWnd *frame = GetMDIFrame();
    if (!activate && m_pViewActive)
        m_pViewActive->OnActivateView(FALSE, m_pViewActive, m_pViewActive);
    // The frame shows the active child's menu, and its own again when the last child goes.
    HMENU menu = nullptr;
    if (activate)
        menu = m_hMenuShared;
    else if (!activated)
        menu = frame->m_hMenuDefault;
    if (menu) {
        const HMENU popup = frame->GetWindowMenuPopup(menu);
        ::SendMessage(frame->m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(menu),
                      reinterpret_cast<LPARAM>(popup));
        frame->DrawMenuBar();
    }
    if (activate && m_pViewActive)
        m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
    Default();
}
