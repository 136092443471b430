// The application: its start, message loop and what it does for everybody.
#include "afxwin.h"
#include "threadstate.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

LRESULT AfxCallWndProc(CWnd *wnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

CWinThread::CWinThread()
    : m_pMainWnd(nullptr), m_nThreadID(::GetCurrentThreadId()), m_msgCur{}, m_lastMouse(-1, -1),
      m_lastMouseMessage(0) {}

CWinThread::~CWinThread() {}

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        while (idle && !::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != 0;
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance() {
    return static_cast<int>(m_msgCur.wParam);
}

BOOL CWinThread::PumpMessage() {
    return AfxPumpMessage(&m_msgCur);
}

BOOL CWinThread::PreTranslateMessage(MSG *msg) {
    CWnd *main = m_pMainWnd;
    if (CWnd::WalkPreTranslateTree(main ? main->m_hWnd : nullptr, msg))
        return TRUE;
    // A window that is not inside the main one may still mean the main one's accelerators.
    if (main && main->m_hWnd) {
        const CWnd *wnd = CWnd::FromHandle(msg->hwnd);
        if (wnd && wnd->GetTopLevelParent() != main)
            return main->PreTranslateMessage(msg);
    }
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG *msg) {
    constexpr UINT kCaretBlink = 0x118;
    if (msg->message == WM_MOUSEMOVE || msg->message == WM_NCMOUSEMOVE) {
        // The system repeats moves to where the mouse is anyway.
        if (m_lastMouse == msg->pt && m_lastMouseMessage == msg->message)
            return FALSE;
        m_lastMouse = msg->pt;
        m_lastMouseMessage = msg->message;
        return TRUE;
    }
    return msg->message != WM_PAINT && msg->message != kCaretBlink;
}

BOOL CWinThread::OnIdle(LONG count) {
    if (count > 0) {
        AfxDeleteTempObjects();
        return FALSE;
    }
    CWnd *main = m_pMainWnd;
    if (main && main->m_hWnd && main->IsWindowVisible()) {
        AfxCallWndProc(main, main->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
        if (main->m_hWnd)
            main->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
    return TRUE;
}

LRESULT CWinThread::ProcessWndProcException(CException *, const MSG *msg) {
    if (msg->message == WM_CREATE)
        return -1;
    // Left invalid, the window would be painted, and fail, for ever.
    if (msg->message == WM_PAINT)
        ::ValidateRect(msg->hwnd, nullptr);
    return 0;
}

BOOL AfxPumpMessage(MSG *current) {
    if (::GetMessage(current, nullptr, 0, 0) <= 0)
        return FALSE;
    CWinThread *thread = AfxGetThread();
    const bool translated =
        thread ? thread->PreTranslateMessage(current) : CWnd::WalkPreTranslateTree(nullptr, current);
    if (!translated) {
        ::TranslateMessage(current);
        ::DispatchMessage(current);
    }
    return TRUE;
}

BOOL AfxPumpThread(MSG *current) {
    CWinThread *thread = AfxGetThread();
    if (!thread)
        return AfxPumpMessage(current);
    const BOOL going = thread->PumpMessage();
    *current = thread->m_msgCur;
    return going;
}

BOOL AfxPumpMessage() {
    MSG message;
    return AfxPumpThread(&message);
}

BOOL AfxIsIdleMessage(MSG *message) {
    CWinThread *thread = AfxGetThread();
    return thread ? thread->IsIdleMessage(message) : TRUE;
}

void AfxPostQuitMessage(int exitCode) {
    ::PostQuitMessage(exitCode);
}

CWinApp::CWinApp(LPCTSTR appName)
    : m_hInstance(::GetModuleHandle(nullptr)), m_lpCmdLine(nullptr), m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(nullptr), m_pszRegistryKey(nullptr), m_pszProfileName(nullptr), m_pszExeName(nullptr),
      m_pRecentFileList(nullptr), m_waitCursorCount(0), m_waitCursorRestore(nullptr) {
    if (appName)
        Replace(m_pszAppName, appName);
    AfxGetModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    delete m_pRecentFileList;
    for (LPCTSTR *text : {&m_pszAppName, &m_pszRegistryKey, &m_pszProfileName, &m_pszExeName})
        std::free(const_cast<char *>(*text));
    if (AfxGetModuleState()->m_pCurrentWinApp == this)
        AfxGetModuleState()->m_pCurrentWinApp = nullptr;
}

void CWinApp::Replace(LPCTSTR &text, LPCTSTR value) {
    char *copy = nullptr;
    if (value && !(copy = ::strdup(value)))
        AfxThrowMemoryException();
    std::free(const_cast<char *>(text));
    text = copy;
}

int CWinApp::Run() {
    // A program that made no window and has no other reason to run ends at once.
    if (!m_pMainWnd)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance() {
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG count) {
    return CWinThread::OnIdle(count);
}

LRESULT CWinApp::ProcessWndProcException(CException *e, const MSG *msg) {
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException)))
        e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL);
    if (msg->message == WM_COMMAND)
        return TRUE;
    return CWinThread::ProcessWndProcException(e, msg);
}

int CWinApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT) {
    HWND disabledTop = nullptr;
    const HWND owner = AfxSafeOwner(nullptr, &disabledTop);
    if ((type & MB_ICONMASK) == 0) {
        const UINT kind = type & MB_TYPEMASK;
        if (kind == MB_OK || kind == MB_OKCANCEL)
            type |= MB_ICONEXCLAMATION;
        else if (kind == MB_YESNO || kind == MB_YESNOCANCEL)
            type |= MB_ICONQUESTION;
    }
    const int answer = ::MessageBox(owner, prompt, m_pszAppName ? m_pszAppName : "", type);
    if (disabledTop)
        ::EnableWindow(disabledTop, TRUE);
    if (answer == 0)
        AfxThrowMemoryException();
    return answer;
}

void CWinApp::DoWaitCursor(int code) {
    m_waitCursorCount = std::max(m_waitCursorCount + code, 0);
    if (m_waitCursorCount > 0) {
        const HCURSOR old = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (code > 0 && m_waitCursorCount == 1)
            m_waitCursorRestore = old;
    } else if (code < 0 && m_waitCursorRestore) {
        ::SetCursor(m_waitCursorRestore);
    }
}

void AfxBeginWaitCursor() {
    if (CWinApp *app = AfxGetApp())
        app->DoWaitCursor(1);
}

void AfxEndWaitCursor() {
    if (CWinApp *app = AfxGetApp())
        app->DoWaitCursor(-1);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR name) const {
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

HICON CWinApp::LoadIcon(LPCTSTR name) const {
    return ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

void CWinApp::OnAppExit() {
    if (m_pMainWnd)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int show) {
    AFX_MODULE_STATE *state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = instance;
    state->m_hCurrentResourceHandle = instance;
    CWinApp *app = state->m_pCurrentWinApp;
    if (!app)
        return TRUE;
    app->m_hInstance = instance;
    app->m_lpCmdLine = commandLine;
    app->m_nCmdShow = show;
    char path[MAX_PATH] = "";
    ::GetModuleFileName(instance, path, sizeof path);
    CString name = path;
    name = name.Mid(name.ReverseFind('\\') + 1);
    if (name.ReverseFind('.') > 0)
        name = name.Left(name.ReverseFind('.'));
    if (!app->m_pszExeName)
        CWinApp::Replace(app->m_pszExeName, name);
    if (!app->m_pszAppName) {
        CString title;
        CWinApp::Replace(app->m_pszAppName, title.LoadString(AFX_IDS_APP_TITLE) ? title : name);
    }
    if (!app->m_pszProfileName)
        CWinApp::Replace(app->m_pszProfileName, name + ".INI");
    return TRUE;
}

void AfxWinTerm() {
    AfxDeleteTempObjects();
}

// The start may open windows, and show boxes in which they are closed.
static BOOL StartInstance(CWinApp *app) {
    const AfxHandlerScope atWork;
    return app->InitInstance();
}

int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show) {
    CWinApp *app = AfxGetApp();
    int code = -1;
    if (app && AfxWinInit(instance, previous, commandLine, show) && app->InitApplication()) {
        if (StartInstance(app)) {
            code = app->Run();
        } else {
            if (app->m_pMainWnd)
                app->m_pMainWnd->DestroyWindow();
            code = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return code;
}
