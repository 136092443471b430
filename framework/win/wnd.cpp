// CWnd: handles, the window procedure, creation and subclassing.
#include "afxwin.h"
#include "handlemap.h"
#include "threadstate.h"

#include <exception>
#include <functional>
#include <set>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

void AfxRevokeDropTarget(COleDropTarget *target);

namespace {

auto &WndMap() {
    static auto &map = *new HandleMap<CWnd, HWND, &CWnd::m_hWnd>;
    return map;
}

// A C++ exception that is none of the framework's, in its clothes, so that one path reports both.
class CForeignException : public CException {
public:
    explicit CForeignException(LPCSTR text) : CException(FALSE), m_text(text) {}
    BOOL GetErrorMessage(LPSTR buffer, UINT capacity, UINT *helpContext) const override {
        if (helpContext)
            *helpContext = 0;
        lstrcpyn(buffer, m_text, static_cast<int>(capacity));
        return TRUE;
    }

private:
    LPCSTR m_text;
};

// What a message answers when its handler failed.
LRESULT FailedMessage(CException *e, const MSG &message) {
    try {
        if (CWinThread *thread = AfxGetThread())
            return thread->ProcessWndProcException(e, &message);
    } catch (CException *second) {
        // Even the report failed; there is nobody left to tell.
        second->Delete();
    }
    if (message.message == WM_CREATE)
        return -1;
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr);
    return 0;
}

bool IsImeWindow(HWND wnd) {
    char name[16];
    return ::GetClassName(wnd, name, sizeof name) > 0 && lstrcmpi(name, "IME") == 0;
}

LRESULT CALLBACK CreateHook(int code, WPARAM wParam, LPARAM lParam) {
    ThreadState &state = AfxThreadState();
    CWnd *wnd = state.windowToCreate;
    const HWND created = reinterpret_cast<HWND>(wParam);
    if (code != HCBT_CREATEWND || !wnd || IsImeWindow(created))
        return ::CallNextHookEx(state.createHook, code, wParam, lParam);
    // When this fails, refusing the window is the only way out: the system would not survive the exception.
    // The object stays noted, so that its maker learns that it has no window.
    bool attached = false;
    try {
        // Windows that PreSubclassWindow makes are its own affair.
        state.windowToCreate = nullptr;
        wnd->SubclassWindow(created);
        attached = true;
    } catch (CException *e) {
        e->Delete();
    } catch (const std::exception &) {
    }
    if (!attached) {
        wnd->Detach();
        state.windowToCreate = wnd;
        return 1;
    }
    return ::CallNextHookEx(state.createHook, code, wParam, lParam);
}

} // namespace

ThreadState &AfxThreadState() {
    static ThreadState state;
    return state;
}

// The system ends the fault of a window procedure that it called itself, and goes on as if that had returned. What of it
// is left in the chain lies below the present one on the stack.
AfxHandlerScope::AfxHandlerScope() : m_outer(AfxThreadState().handler) {
    while (m_outer != nullptr && std::less<>()(m_outer, this))
        m_outer = m_outer->m_outer;
    AfxThreadState().handler = this;
}

AfxHandlerScope::~AfxHandlerScope() {
    ThreadState &state = AfxThreadState();
    state.handler = m_outer;
    if (m_outer != nullptr)
        return;
    // A destructor may end further windows.
    for (std::vector<CWnd *> doomed; !state.doomed.empty(); doomed.clear()) {
        doomed.swap(state.doomed);
        for (CWnd *wnd : doomed)
            delete wnd;
    }
}

void AfxDeleteAfterHandlers(CWnd *wnd) {
    const AfxHandlerScope atOnceWithoutOne;
    AfxThreadState().doomed.push_back(wnd);
}

void AfxDeleteTempObjects() {
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    CWnd::DeleteTempMap();
}

// Friend of CWnd, hence not in the unnamed namespace. The one place where exceptions end: none may pass
// through the system's own frames.
LRESULT AfxCallWndProc(CWnd *wnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    ThreadState &state = AfxThreadState();
    const AfxHandlerScope atWork;
    const MSG outer = state.lastSentMessage;
    const MSG inner = {hWnd, message, wParam, lParam, 0, {0, 0}};
    state.lastSentMessage = inner;
    LRESULT result = 0;
    try {
        result = wnd->WindowProc(message, wParam, lParam);
    } catch (CException *e) {
        result = FailedMessage(e, inner);
        e->Delete();
    } catch (const std::bad_alloc &) {
        CMemoryException e(FALSE);
        result = FailedMessage(&e, inner);
    } catch (const std::exception &error) {
        CForeignException e(error.what());
        result = FailedMessage(&e, inner);
    } catch (...) {
        CForeignException e("An unknown error has occurred.");
        result = FailedMessage(&e, inner);
    }
    state.lastSentMessage = outer;
    return result;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd *wnd = CWnd::FromHandlePermanent(hWnd);
    if (!wnd)
        return ::DefWindowProc(hWnd, message, wParam, lParam);
    return AfxCallWndProc(wnd, hWnd, message, wParam, lParam);
}

void AfxHookWindowCreate(CWnd *wnd) {
    ThreadState &state = AfxThreadState();
    if (!state.createHook)
        state.createHook = ::SetWindowsHookEx(WH_CBT, CreateHook, nullptr, ::GetCurrentThreadId());
    if (!state.createHook)
        AfxThrowMemoryException();
    state.windowToCreate = wnd;
}

BOOL AfxUnhookWindowCreate() {
    ThreadState &state = AfxThreadState();
    const BOOL created = state.windowToCreate == nullptr;
    state.windowToCreate = nullptr;
    if (state.createHook) {
        ::UnhookWindowsHookEx(state.createHook);
        state.createHook = nullptr;
    }
    return created;
}

CWnd::CWnd()
    : m_hWnd(nullptr), m_pDropTarget(nullptr), m_nFlags(0), m_nModalResult(0), m_hWndOwner(nullptr),
      m_pfnSuper(nullptr) {}

CWnd::~CWnd() {
    // The derived parts are gone already, so the last messages find only what CWnd itself does.
    if (m_hWnd)
        CWnd::DestroyWindow();
    ThreadState &state = AfxThreadState();
    if (state.windowToCreate == this)
        state.windowToCreate = nullptr;
}

CWnd *CWnd::FromHandle(HWND wnd) {
    return WndMap().Find(wnd, RUNTIME_CLASS(CWnd));
}

CWnd *CWnd::FromHandlePermanent(HWND wnd) {
    return WndMap().Permanent(wnd);
}

void CWnd::DeleteTempMap() {
    WndMap().DeleteTemporary();
}

BOOL CWnd::Attach(HWND wnd) {
    if (!wnd)
        return FALSE;
    WndMap().SetPermanent(wnd, this);
    m_hWnd = wnd;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND wnd = m_hWnd;
    if (wnd && WndMap().Permanent(wnd) == this)
        WndMap().Remove(wnd);
    m_hWnd = nullptr;
    return wnd;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT &cs) {
    if (!cs.lpszClass)
        cs.lpszClass =
            AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect,
                    CWnd *parent, UINT id, void *createParam) {
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, parent ? parent->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), createParam);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU idOrMenu, void *createParam) {
    CREATESTRUCT cs{};
    cs.dwExStyle = exStyle;
    cs.lpszClass = className;
    cs.lpszName = windowName;
    cs.style = static_cast<LONG>(style);
    cs.x = x;
    cs.y = y;
    cs.cx = width;
    cs.cy = height;
    cs.hwndParent = parent;
    cs.hMenu = idOrMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = createParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND wnd =
        ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                         cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // A window that failed before its first message was never seen by its object, which still has to go.
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return wnd != nullptr;
}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect, CWnd *parent, UINT id,
                  void *createParam) {
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id, createParam);
}

BOOL CWnd::SubclassWindow(HWND wnd) {
    if (!Attach(wnd))
        return FALSE;
    PreSubclassWindow();
    const WNDPROC old = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (old != &AfxWndProc)
        *GetSuperWndProcAddr() = old;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd *parent) {
    const HWND control = ::GetDlgItem(parent->m_hWnd, static_cast<int>(id));
    return control ? SubclassWindow(control) : FALSE;
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC *super = GetSuperWndProcAddr();
    ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd)
        return FALSE;
    const HWND wnd = m_hWnd;
    const bool own = FromHandlePermanent(wnd) == this;
    const BOOL destroyed = ::DestroyWindow(wnd);
    // Our own window detached itself with its last message, which may have deleted the object, too. Another's
    // window, or one that was never subclassed, still has to be forgotten.
    if (!own)
        m_hWnd = nullptr;
    else if (WndMap().Permanent(wnd) == this)
        Detach();
    return destroyed;
}

void CWnd::OnNcDestroy() {
    if (CWinThread *thread = AfxGetThread(); thread && thread->m_pMainWnd == this) {
        // The program ends with its main window.
        AfxPostQuitMessage(0);
        thread->m_pMainWnd = nullptr;
    }
    // A modal loop of this window has nothing left to wait for.
    m_nFlags &= ~WF_CONTINUEMODAL;
    if (m_pDropTarget)
        AfxRevokeDropTarget(m_pDropTarget);
    const LONG_PTR before = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    WNDPROC *super = GetSuperWndProcAddr();
    if (*super && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == before)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    Detach();
    PostNcDestroy();
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    return super ? ::CallWindowProc(super, m_hWnd, message, wParam, lParam)
                 : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG &message = AfxThreadState().lastSentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG *CWnd::GetCurrentMessage() {
    return &AfxThreadState().lastSentMessage;
}

BOOL AfxRegisterClass(WNDCLASS *windowClass) {
    WNDCLASS existing;
    return ::GetClassInfo(windowClass->hInstance, windowClass->lpszClassName, &existing) ||
           ::RegisterClass(windowClass);
}

LPCTSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor, HBRUSH background, HICON icon) {
    // The names are kept for good: windows refer to them as long as the process lives.
    static auto &names = *new std::set<CString>;
    const HINSTANCE instance = AfxGetInstanceHandle();
    CString name;
    name.Format("Orvane:%p:%x:%p:%p:%p", static_cast<void *>(instance), classStyle,
                static_cast<void *>(cursor), static_cast<void *>(background), static_cast<void *>(icon));
    WNDCLASS windowClass{};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return *names.insert(name).first;
}
