#include "afxwin.h"
#include "threadstate.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_WM_CTLCOLOR()
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

namespace {

// The window belongs to our own procedure from its creation on, so the system's one has nothing to decide.
INT_PTR CALLBACK DialogProc(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

// The head of an extended template, which the system's headers do not declare.
#pragma pack(push, 1)
struct ExtendedTemplate {
    WORD version;
    WORD signature; // 0xFFFF
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
};
#pragma pack(pop)

// Whether the template leaves the place open: at the origin, and without a style that says where.
bool WantsCentring(const DLGTEMPLATE *dialogTemplate) {
    ExtendedTemplate extended;
    DLGTEMPLATE plain;
    std::memcpy(&extended, dialogTemplate, sizeof extended);
    std::memcpy(&plain, dialogTemplate, sizeof plain);
    const bool isExtended = extended.signature == 0xFFFF;
    const DWORD style = isExtended ? extended.style : plain.style;
    const int x = isExtended ? extended.x : plain.x;
    const int y = isExtended ? extended.y : plain.y;
    return x == 0 && y == 0 && !(style & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN | WS_CHILD | WS_VISIBLE));
}

const DLGTEMPLATE *LoadTemplate(HINSTANCE module, LPCTSTR name) {
    const HRSRC resource = ::FindResource(module, name, RT_DIALOG);
    const HGLOBAL memory = resource ? ::LoadResource(module, resource) : nullptr;
    return memory ? static_cast<const DLGTEMPLATE *>(::LockResource(memory)) : nullptr;
}

} // namespace

CDialog::CDialog()
    : m_nIDHelp(0), m_lpszTemplateName(nullptr), m_lpDialogTemplate(nullptr), m_pParentWnd(nullptr),
      m_centre(FALSE) {}

CDialog::CDialog(LPCTSTR templateName, CWnd *parent) : CDialog() {
    m_lpszTemplateName = templateName;
    m_pParentWnd = parent;
    if (IS_INTRESOURCE(templateName))
        m_nIDHelp = LOWORD(reinterpret_cast<DWORD_PTR>(templateName));
}

CDialog::CDialog(UINT templateId, CWnd *parent) : CDialog(MAKEINTRESOURCE(templateId), parent) {}

CDialog::~CDialog() {
    if (m_hWnd)
        CDialog::DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR templateName, CWnd *parent) {
    m_lpszTemplateName = templateName;
    const HINSTANCE module = AfxFindResourceHandle(templateName, RT_DIALOG);
    return CreateIndirect(LoadTemplate(module, templateName), parent, module);
}

BOOL CDialog::CreateIndirect(const DLGTEMPLATE *dialogTemplate, CWnd *parent, HINSTANCE module) {
    if (!parent)
        parent = AfxGetMainWnd();
    return CreateFromTemplate(dialogTemplate, parent ? parent->m_hWnd : nullptr,
                              module ? module : AfxGetInstanceHandle());
}

BOOL CDialog::InitModalIndirect(const DLGTEMPLATE *dialogTemplate, CWnd *parent) {
    m_lpDialogTemplate = dialogTemplate;
    m_pParentWnd = parent;
    return dialogTemplate != nullptr;
}

BOOL CDialog::CreateFromTemplate(const DLGTEMPLATE *dialogTemplate, HWND parent, HINSTANCE module) {
    if (!dialogTemplate)
        return FALSE;
    // Templates name the common controls by class.
    ::InitCommonControls();
    m_centre = WantsCentring(dialogTemplate);
    AfxHookWindowCreate(this);
    const HWND wnd = ::CreateDialogIndirect(module, dialogTemplate, parent, DialogProc);
    // A dialog that was destroyed while it was initialised has been through PostNcDestroy.
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return wnd != nullptr;
}

HWND CDialog::ModalParent(HWND *disabledTop) {
    return AfxSafeOwner(m_pParentWnd ? m_pParentWnd->m_hWnd : nullptr, disabledTop);
}

void CDialog::RunModal(const DLGTEMPLATE *dialogTemplate, HWND parent, HINSTANCE module) {
    if (!CreateFromTemplate(dialogTemplate, parent, module))
        return;
    // OnInitDialog may have ended the dialog already.
    if (m_nFlags & WF_CONTINUEMODAL)
        RunModalLoop(GetStyle() & DS_NOIDLEMSG ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
    // Hidden before the parent is enabled: else another program's window would come to the front.
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

INT_PTR CDialog::DoModal() {
    HINSTANCE module = AfxGetResourceHandle();
    const DLGTEMPLATE *dialogTemplate = m_lpDialogTemplate;
    if (m_lpszTemplateName) {
        module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        dialogTemplate = LoadTemplate(module, m_lpszTemplateName);
    }
    if (!dialogTemplate)
        return -1;
    HWND disabledTop = nullptr;
    const HWND parent = ModalParent(&disabledTop);
    const bool disable = parent && parent != ::GetDesktopWindow() && ::IsWindowEnabled(parent);
    if (disable)
        ::EnableWindow(parent, FALSE);
    // The main frame is disabled even for the dialog of a window that it does not own.
    CWnd *main = AfxGetMainWnd();
    const HWND frame = disable && main && main->IsKindOf(RUNTIME_CLASS(CFrameWnd)) && main->IsWindowEnabled()
                           ? main->m_hWnd
                           : nullptr;
    if (frame)
        ::EnableWindow(frame, FALSE);
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    try {
        RunModal(dialogTemplate, parent, module);
    } catch (CException *e) {
        e->Delete();
        m_nModalResult = -1;
    }
    m_nFlags &= ~WF_CONTINUEMODAL;
    if (frame)
        ::EnableWindow(frame, TRUE);
    if (disable)
        ::EnableWindow(parent, TRUE);
    if (disabledTop)
        ::EnableWindow(disabledTop, TRUE);
    if (parent && m_hWnd && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(parent);
    DestroyWindow();
    return m_nModalResult;
}

void CDialog::EndDialog(int result) {
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(result);
    ::EndDialog(m_hWnd, result);
}

void CDialog::OnOK() {
    if (UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::OnInitDialog() {
    if (!UpdateData(FALSE)) {
        EndDialog(-1);
        return FALSE;
    }
    return TRUE;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    // A handler that moved or showed the dialog itself has its way; otherwise it is centred on its owner.
    CRect before, after;
    GetWindowRect(&before);
    const BOOL setFocus = OnInitDialog();
    if (!m_hWnd)
        return setFocus;
    GetWindowRect(&after);
    if (m_centre && !(GetStyle() & WS_VISIBLE) && before == after)
        CenterWindow();
    return setFocus;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

HBRUSH CDialog::OnCtlColor(CDC *dc, CWnd *control, UINT type) {
    return CWnd::OnCtlColor(dc, control, type);
}

BOOL CDialog::PreTranslateMessage(MSG *msg) {
    if (CWnd::PreTranslateMessage(msg))
        return TRUE;
    // A field of several lines would keep Escape to itself.
    if (msg->message == WM_KEYDOWN && (msg->wParam == VK_ESCAPE || msg->wParam == VK_CANCEL)) {
        char name[16];
        const bool multiLine = ::GetClassName(msg->hwnd, name, sizeof name) > 0 && lstrcmpi(name, "EDIT") == 0 &&
                               (::GetWindowLong(msg->hwnd, GWL_STYLE) & ES_MULTILINE);
        const HWND cancel = ::GetDlgItem(m_hWnd, IDCANCEL);
        if (multiLine && (!cancel || ::IsWindowEnabled(cancel))) {
            SendMessage(WM_COMMAND, IDCANCEL);
            return TRUE;
        }
    }
    return PreTranslateInput(msg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    // What controls report is the dialog's own affair; real commands go on to the owner and the application.
    if ((nCode != CN_COMMAND && nCode != CN_UPDATE_COMMAND_UI) || !(nID & 0x8000) || nID >= 0xF000)
        return FALSE;
    CWnd *owner = GetParent();
    if (owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinThread *thread = AfxGetThread();
    return thread ? thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) : FALSE;
}
