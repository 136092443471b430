#include "host/HostApp.h"

#include <afxdlgs.h>

#include "editorcore/EditorCore.h"
#include "grid/ValueScope.h"
#include "host/ChildFrame.h"
#include "host/GalleryFrame.h"
#include "host/MainFrame.h"
#include "host/Resource.h"
#include "lookup/LookupOptionsMgr.h"
#include "lookup/LookupRegKey.h"

BEGIN_MESSAGE_MAP(CHostApp, CWinApp)
    ON_COMMAND(ID_FILE_OPEN, OnFileOpen)
    ON_COMMAND(ID_HELP_GALLERY, OnGallery)
    ON_COMMAND(ID_APP_ABOUT, OnAbout)
    ON_COMMAND(ID_LOOKUP_USER_OPTIONS, OnLookupUserOptions)
    ON_COMMAND(ID_LOOKUP_ADMIN_OPTIONS, OnLookupAdminOptions)
END_MESSAGE_MAP()

static CHostApp theApp;

CHostApp *GetHostApp() {
    return &theApp;
}

CHostApp::CHostApp() : CWinApp("Orvane Tables") {}

BOOL CHostApp::InitInstance() {
    SetRegistryKey("Orvane");
    constexpr UINT kRecentFiles = 8;
    LoadStdProfileSettings(kRecentFiles);
    AfxOleInit();
    m_service.Options().Load();
    CLookupRegKey::SetRootRegKey(HKEY_CURRENT_USER, "Software\\Orvane\\Orvane Tables\\Lookups");
    CEditorCore::Initialise(&m_service);
    auto *frame = new CMainFrame;
    if (!frame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    m_pMainWnd = frame;
    frame->RestorePlacement(m_nCmdShow);
    frame->UpdateWindow();
    const CString file = CommandLineFile();
    if (!file.IsEmpty())
        OpenTable(file);
    return TRUE;
}

// With nothing left to do nothing is waited for.
BOOL CHostApp::OnIdle(LONG count) {
    m_service.EndWaitCursor();
    return CWinApp::OnIdle(count);
}

// While a message waits for its answer nothing else is at work.
int CHostApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId) {
    m_service.LongWork().End();
    return CWinApp::DoMessageBox(prompt, type, helpId);
}

// The one argument, with the quotes of a path that holds blanks taken off, as a full path.
CString CHostApp::CommandLineFile() const {
    CString argument(m_lpCmdLine);
    argument.TrimLeft();
    argument.TrimRight();
    if (argument.GetLength() > 1 && argument[0] == '"')
        argument = argument.Mid(1).SpanExcluding("\"");
    if (argument.IsEmpty())
        return argument;
    char full[MAX_PATH];
    const DWORD length = ::GetFullPathNameA(argument, MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? CString(full) : argument;
}

void CHostApp::OnFileOpen() {
    CFileDialog dialog(TRUE, "dbf", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR, kTableFilter, m_pMainWnd);
    if (dialog.DoModal() == IDOK)
        OpenTable(dialog.GetPathName());
}

BOOL CHostApp::OpenRecentFile(LPCTSTR path) {
    return OpenTable(path);
}

bool CHostApp::OpenTable(const char *path) {
    const CUGValueScope<bool> opening(&m_opening, true);
    if (CEditorCore *open = CEditorCore::GetOpenFilesGrid(path)) {
        if (auto *child = DYNAMIC_DOWNCAST(CChildFrame, open->GetParent()))
            child->MDIActivate();
        return true;
    }
    const auto *frame = static_cast<CMainFrame *>(m_pMainWnd);
    BOOL maximized = TRUE; // the first table gets all the room
    CMDIChildWnd *active = frame->MDIGetActive(&maximized);
    auto *child = new CChildFrame;
    if (!child->LoadFrame(IDR_TABLE, WS_CHILD | WS_OVERLAPPEDWINDOW, m_pMainWnd)) {
        AfxMessageBox("Could not create a window for the table!", MB_ICONHAND);
        return false;
    }
    if (!child->LoadTable(path)) {
        child->DestroyWindow();
        return false;
    }
    child->ShowWindow(active == nullptr || maximized ? SW_SHOWMAXIMIZED : SW_SHOW);
    child->MDIActivate();
    child->FocusTable();
    AddToRecentFileList(path);
    return true;
}

bool CHostApp::MayClose(CWnd *window) {
    if (m_service.LongWork().IsAtWork()) {
        m_service.LongWork().StopToClose(window->m_hWnd);
        return false;
    }
    const HWND asking = ::GetLastActivePopup(m_pMainWnd->m_hWnd);
    if (!m_pMainWnd->IsWindowEnabled() || m_opening) {
        ::SetForegroundWindow(asking);
        ::MessageBeep(MB_ICONEXCLAMATION);
        return false;
    }
    return true;
}

void CHostApp::OnGallery() {
    CGalleryFrame::Open(m_pMainWnd);
}

void CHostApp::OnAbout() {
    CDialog(IDD_ABOUT, m_pMainWnd).DoModal();
}

void CHostApp::OnLookupUserOptions() {
    CLookupOptionsMgr().OnUserOptions();
}

void CHostApp::OnLookupAdminOptions() {
    CLookupOptionsMgr().OnAdminOptions();
}
