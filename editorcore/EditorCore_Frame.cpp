// The editor's life: settings shared by all, construction, set-up and destruction.
#include "editorcore/EditorCore.h"
#include "editorcore/QuietAppInterface.h"
#include "editorcore/QuietEditorOptions.h"

#include "lookup/LookupTableFile.h"
#include "lookup/LookupOptionsMgr.h"

IMPLEMENT_DYNAMIC(CEditorCore, CUGOrvaneCtrlInterfaceLayer)

BEGIN_MESSAGE_MAP(CEditorCore, CUGOrvaneCtrlInterfaceLayer)
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

namespace {

constexpr COLORREF kGridLineColour = 0xC0C0C0;

// Stands in where no host was given, so that nothing has to ask for one.
class CNoHost : public CQuietAppInterface {
public:
    CVEditorOptions *GetEditorOptions() override { return &m_options; }

private:
    CQuietEditorOptions m_options;
};

CVAppInterface *NoHost() {
    static CNoHost host;
    return &host;
}

} // namespace

CVAppInterface *CEditorCore::ms_pAppInterface = nullptr;
bool CEditorCore::ms_bInitCalled = false;
bool CEditorCore::ms_bEnterKeyIsTab = false;
int CEditorCore::ms_nMaxDisplayColWidth = 10;
LOGFONTA CEditorCore::ms_lfCellFont = {};
LOGFONTA CEditorCore::ms_lfHeadingFont = {};
CFont *CEditorCore::ms_pCellFont = nullptr;
CFont *CEditorCore::ms_pHeadingFont = nullptr;
CArray<CEditorCore *, CEditorCore *> CEditorCore::m_InstanceList;

void CEditorCore::Initialise(CVAppInterface *host) {
    CVEditorOptions *options = host != nullptr ? host->GetEditorOptions() : nullptr;
    ms_bInitCalled = options != nullptr;
    ms_pAppInterface = ms_bInitCalled ? host : NoHost();
    if (!ms_bInitCalled) {
        AfxMessageBox("The host gives no editor options: no editor can be used.", MB_ICONHAND, 0);
        return;
    }
    CLookupTableFile::SetAppInterface(host);
    options->GetCellFont(&ms_lfCellFont);
    options->GetHeadingFont(&ms_lfHeadingFont);
    ms_nMaxDisplayColWidth = options->GetMaxDisplayColWidth();
    ms_bEnterKeyIsTab = options->IsEnterKeyTab();
    CLookupOptionsMgr::InitialSetAllOptions(host);
}

void CEditorCore::SetEnterKey(bool isTab) {
    ms_bEnterKeyIsTab = isTab;
    if (ms_bInitCalled)
        ms_pAppInterface->GetEditorOptions()->SetEnterKeyTab(isTab);
}

bool CEditorCore::ToggleEnterKey() {
    SetEnterKey(!ms_bEnterKeyIsTab);
    return ms_bEnterKeyIsTab;
}

CEditorCore::CEditorCore() {
    m_grid.m_edit.m_listener = this;
    if (!ms_bInitCalled) {
        ms_pAppInterface = NoHost();
        AfxMessageBox("The editor cannot be used: CEditorCore::Initialise was not called with a host that gives editor "
                      "options.",
                      MB_ICONHAND, 0);
        m_bConstructFailed = true;
    }
    try {
        MakeParts();
    } catch (CMemoryException *e) {
        e->Delete();
        DeleteParts();
        ReportOutOfMemory();
        m_bConstructFailed = true;
    }
}

void CEditorCore::MakeParts() {
    CVEditorOptions *options = ms_pAppInterface->GetEditorOptions();
    m_pCommandList = new CCommandListMgr(options->GetUndoLevels());
    m_pLayout = new CEditorLayout(this);
    m_pColCellTypes = new CColumnCellTypeMap(this);
    m_InstanceList.Add(this);
}

void CEditorCore::DeleteParts() {
    delete m_pLayout;
    m_pLayout = nullptr;
    delete m_pCommandList;
    m_pCommandList = nullptr;
    delete m_pColCellTypes;
    m_pColCellTypes = nullptr;
}

void CEditorCore::ReportOutOfMemory() {
    AfxMessageBox("Out of memory!", MB_ICONHAND, 0);
}

CEditorCore::~CEditorCore() {
    m_grid.m_edit.m_listener = nullptr;
    CancelEdit();
    if (m_bLayoutValid && m_bAutoSaveLayout)
        Serialize(true);
    DeleteParts();
    DropSource();
    for (int i = 0; i < m_InstanceList.GetSize(); ++i) {
        if (m_InstanceList.GetAt(i) == this) {
            m_InstanceList.RemoveAt(i);
            break;
        }
    }
    if (m_InstanceList.GetSize() == 0) {
        delete ms_pCellFont;
        ms_pCellFont = nullptr;
        delete ms_pHeadingFont;
        ms_pHeadingFont = nullptr;
    }
    m_GI.m_paintingEnabled = 0;
    m_GridLinePen.DeleteObject();
    if (GetSafeHwnd() != nullptr)
        DestroyWindow();
}

// The source goes without being asked: nobody is left who could heed a refusal.
void CEditorCore::DropSource() {
    NoteChange(&TableState::tables);
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source != nullptr) {
        if (m_bDataSrcOpen && m_pSourceWork == nullptr)
            source->Close(false);
        RemoveDataSource(m_nDataSrcIndex);
        m_GI.m_currentSource = 0;
    }
    if (m_pSourceWork != nullptr)
        m_pSourceWork->editorGone = true; // the work that is under way deletes the source
    if (m_pSourceWork == nullptr || m_pSourceWork->source == nullptr)
        delete source;
    m_bDataSrcOpen = false;
    m_pSource = nullptr;
    m_nDataSrcIndex = -1;
}

void CEditorCore::OnDestroy() {
    if (m_bDataSrcOpen)
        CloseDataSource(false);
    CUGOrvaneCtrlInterfaceLayer::OnDestroy();
}

void CEditorCore::MakeSharedFont(CFont **font, const LOGFONTA &description) {
    if (*font != nullptr)
        return;
    *font = new CFont;
    if (!(*font)->CreateFontIndirect(&description)) {
        delete *font;
        *font = nullptr;
    }
}

void CEditorCore::OnSetup() {
    EnableMultiSelect(1);
    EnableColTranslation(1);
    SetCurrentCellStyle(2);
    SetBallisticMode(3);
    SetVScrollMode(1);
    SetHScrollMode(1);
    SetUniformRowHeight(1);
    if (ms_bInitCalled) {
        MakeSharedFont(&ms_pCellFont, ms_lfCellFont);
        MakeSharedFont(&ms_pHeadingFont, ms_lfHeadingFont);
    }
    SetDefaultFont(ms_pCellFont);
    CUGCell cell;
    GetHeadingDefault(&cell);
    cell.SetFont(ms_pHeadingFont);
    SetHeadingDefault(&cell);
    GetGridDefault(&cell);
    m_clrDefaultBack = static_cast<int>(cell.GetBackColor());
    m_clrDefaultText = static_cast<int>(cell.GetTextColor());
    m_nDefaultBorderStyle = cell.GetBorder();
    m_bGridLinePenMade = m_GridLinePen.CreatePen(PS_SOLID, 1, kGridLineColour) != FALSE;
    if (m_bGridLinePenMade) {
        CVEditorOptions *options = ms_pAppInterface->GetEditorOptions();
        cell.SetBorderColor(&m_GridLinePen);
        cell.SetTextColor(options->GetCellTextColour());
        cell.SetHBackColor(options->GetCellHighlightColour());
        SetGridDefault(&cell);
    }
}

bool CEditorCore::RecPassesFilter(long) {
    return true;
}

bool CEditorCore::IsUsingFilteredRecords() {
    return false;
}

void CEditorCore::ReservedEditorOperation1() {}

bool CEditorCore::IsFilterAttached() {
    return false;
}

void CEditorCore::ReservedEditorOperation2() {}

void CEditorCore::SetCustomOptions() {}

void CEditorCore::OnParentActivate(int, CView *, CView *) {}

void CEditorCore::SetTextAlignment() {}

void CEditorCore::SetEditorCoreOptions(int undoLevels, int maxDisplayColWidth, bool enterKeyIsTab) {
    if (m_pCommandList != nullptr)
        m_pCommandList->SetMaxCommands(undoLevels);
    ms_nMaxDisplayColWidth = maxDisplayColWidth;
    ms_bEnterKeyIsTab = enterKeyIsTab;
}

void CEditorCore::PostCommandsChanged() {
    if (CWnd *parent = GetParent())
        parent->PostMessage(kMsgCommandsChanged, 0, 0);
}
