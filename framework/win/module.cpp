// Module state, resources of modules and message boxes.
#include "afxwin.h"
#include "threadstate.h"

namespace {

AFX_MODULE_STATE *g_setState = nullptr;

AFX_MODULE_STATE &ProcessState() {
    static AFX_MODULE_STATE state = {nullptr, ::GetModuleHandle(nullptr), ::GetModuleHandle(nullptr)};
    return state;
}

} // namespace

AFX_MODULE_STATE *AfxGetModuleState() {
    return g_setState ? g_setState : &ProcessState();
}

AFX_MODULE_STATE *AfxSetModuleState(AFX_MODULE_STATE *state) {
    AFX_MODULE_STATE *previous = AfxGetModuleState();
    g_setState = state;
    return previous;
}

CWinApp *AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWinThread *AfxGetThread() {
    return AfxGetApp();
}

CWnd *AfxGetMainWnd() {
    CWinThread *thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AfxGetAppName() {
    const CWinApp *app = AfxGetApp();
    return app && app->m_pszAppName ? app->m_pszAppName : "";
}

HINSTANCE AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AfxSetResourceHandle(HINSTANCE module) {
    AfxGetModuleState()->m_hCurrentResourceHandle = module;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type) {
    const HINSTANCE resources = AfxGetResourceHandle();
    if (::FindResource(resources, name, type))
        return resources;
    const HINSTANCE program = AfxGetInstanceHandle();
    return program != resources && ::FindResource(program, name, type) ? program : resources;
}

// Sixteen strings share one resource, numbered from one.
HINSTANCE AfxFindStringModule(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(id / 16 + 1), RT_STRING);
}

int ReportToUser(LPCSTR text, UINT type, UINT helpContext) {
    return AfxMessageBox(text, type, helpContext);
}

int AfxMessageBox(LPCTSTR text, UINT type, UINT helpId) {
    if (CWinApp *app = AfxGetApp())
        return app->DoMessageBox(text, type, helpId);
    return ::MessageBox(nullptr, text, nullptr, type | MB_TASKMODAL);
}

int AfxMessageBox(UINT textId, UINT type, UINT helpId) {
    CString text;
    text.LoadString(textId);
    return AfxMessageBox(static_cast<LPCTSTR>(text), type, helpId == UINT(-1) ? textId : helpId);
}

void AfxFormatString1(CString &result, UINT id, LPCTSTR text) {
    AfxFormatString2(result, id, text, nullptr);
}

void AfxFormatString2(CString &result, UINT id, LPCTSTR first, LPCTSTR second) {
    const LPCSTR texts[] = {first, second};
    CString format;
    format.LoadString(id);
    AfxFormatStrings(result, format, texts, second ? 2 : 1);
}

HWND AfxSafeOwner(HWND parent, HWND *disabledTop) {
    HWND owner = parent;
    if (!owner)
        if (const CWnd *main = AfxGetMainWnd())
            owner = main->m_hWnd;
    while (owner && ::GetWindowLong(owner, GWL_STYLE) & WS_CHILD)
        owner = ::GetParent(owner);
    HWND top = owner;
    while (top) {
        const HWND above = ::GetParent(top);
        if (!above)
            break;
        top = above;
    }
    if (!parent && owner)
        owner = ::GetLastActivePopup(owner);
    if (disabledTop) {
        const bool disable = top && top != owner && ::IsWindowEnabled(top);
        *disabledTop = disable ? top : nullptr;
        if (disable)
            ::EnableWindow(top, FALSE);
    }
    return owner;
}
