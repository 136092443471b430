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

// Nothing that goes wrong at the start leaves it: what there is of a frame stays, and says why.
BOOL CHostApp::InitInstance() {
    LoadLibrariesFromSafeFolders();
    try {
        return Start();
    } catch (CException *e) {
        e->ReportError(MB_ICONHAND);
        e->Delete();
    } catch (const std::exception &error) {
        AfxMessageBox(error.what(), MB_ICONHAND);
    }
    return m_pMainWnd != nullptr;
}

BOOL CHostApp::Start() {
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

// Tables lie in folders that others can write to, and such a folder may be the current one: no library is taken from
// there.
void CHostApp::LoadLibrariesFromSafeFolders() {
    ::SetDllDirectoryA("");
    ::SetSearchPathMode(BASE_SEARCH_PATH_ENABLE_SAFE_SEARCHMODE | BASE_SEARCH_PATH_PERMANENT);
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
    CString full;
    const DWORD room = ::GetFullPathNameA(argument, 0, nullptr, nullptr);
    const DWORD length = room > 0 ? ::GetFullPathNameA(argument, room, full.GetBuffer(static_cast<int>(room)), nullptr) : 0;
    full.ReleaseBuffer(length < room ? static_cast<int>(length) : 0);
    return full.IsEmpty() ? argument : full;
}

void CHostApp::OnFileOpen() {
    CFileDialog dialog(TRUE, "dbf", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR, kTableFilter, m_pMainWnd);
    if (dialog.DoModal() == IDOK)
        OpenTable(dialog.GetPathName());
}

BOOL CHostApp::OpenRecentFile(LPCTSTR path) {
    return OpenTable(path);
}

// Cut short it would name another file.
static bool IsPathShortEnough(const char *path) {
    constexpr int kShown = 60;
    const CString whole(path);
    if (whole.GetLength() < MAX_PATH)
        return true;
    CString text;
    text.Format("The path '%s...' has %d characters. Tables are opened by paths of up to %d.",
                static_cast<const char *>(whole.Left(kShown)), whole.GetLength(), MAX_PATH - 1);
    AfxMessageBox(text, MB_ICONEXCLAMATION);
    return false;
}

// The look of the editors ends at one whose file is gone; the windows are all looked at.
CChildFrame *CHostApp::FindOpenTable(const char *path) const {
    const CEditorCore *open = CEditorCore::GetOpenFilesGrid(path);
    const auto *frame = static_cast<const CMainFrame *>(m_pMainWnd);
    for (HWND child = ::GetWindow(frame->m_hWndMDIClient, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        auto *table = DYNAMIC_DOWNCAST(CChildFrame, CWnd::FromHandlePermanent(child));
        if (table != nullptr && (&table->Editor() == open || table->Editor().GetFilePath().CompareNoCase(path) == 0))
            return table;
    }
    return nullptr;
}

bool CHostApp::OpenTable(const char *path) {
    const CUGValueScope<bool> opening(&m_opening, true);
    if (!IsPathShortEnough(path))
        return false;
    if (CChildFrame *open = FindOpenTable(path)) {
        open->MDIActivate();
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
