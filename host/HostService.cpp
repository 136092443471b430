#include "host/HostService.h"

#include <afxdlgs.h>

#include "editorcore/EditorCore.h"
#include "host/ChildFrame.h"
#include "host/FieldListDlg.h"
#include "host/FileInformation.h"
#include "host/FilterListDlg.h"
#include "host/LookupAdminDlg.h"
#include "host/LookupOptionsDlg.h"
#include "host/LookupPropertiesDlg.h"
#include "host/MainFrame.h"
#include "host/Resource.h"
#include "host/sources/DbfDataSource.h"

#include <algorithm>

namespace {

// The editor whose commands the menus serve; null when no table's window is in front.
CTableEditor *ActiveEditor() {
    auto *frame = DYNAMIC_DOWNCAST(CMainFrame, AfxGetMainWnd());
    auto *child = frame != nullptr ? DYNAMIC_DOWNCAST(CChildFrame, frame->MDIGetActive()) : nullptr;
    return child != nullptr ? &child->Editor() : nullptr;
}

const dbf::Table *ActiveTable() {
    CTableEditor *editor = ActiveEditor();
    auto *source = editor != nullptr ? dynamic_cast<CDbfDataSource *>(editor->GetCurrentDataSrc(true)) : nullptr;
    return source != nullptr ? source->GetTable() : nullptr;
}

} // namespace

CHostService::CHostService() : m_findDlg([]() -> CWnd * { return ActiveEditor(); }) {}

void CHostService::SetEditorTitle(const char *, const char *, CEditorCore *editor) {
    if (auto *child = DYNAMIC_DOWNCAST(CChildFrame, editor->GetParent()))
        child->RefreshTitle();
}

// The key that leaves the table: on to the next window.
void CHostService::OnGridHotKey() {
    if (auto *frame = DYNAMIC_DOWNCAST(CMainFrame, AfxGetMainWnd()))
        frame->MDINext();
}

bool CHostService::LoadXParmsSet(const char *, CMap<CString, const char *, CExecuteInfo, CExecuteInfo &> *) {
    return false; // no sets are kept beside the files
}

void CHostService::GetAppTitle(CString &title) {
    title = AfxGetAppName();
}

// Asked for every cell.
int CHostService::CheckAbort() {
    return m_longWork.Step() ? 0 : 1;
}

int CHostService::AskToSave(const char *path) {
    CString text;
    text.Format("Save the changes to %s?", static_cast<const char *>(NameOf(path)));
    return AfxMessageBox(text, MB_YESNOCANCEL | MB_ICONQUESTION);
}

bool CHostService::MayClose(CDbfDataSource &source) {
    switch (AskToSave(PathOf(source))) {
    case IDYES: return source.Save() == GRID_SUCCESS;
    case IDNO: return true;
    default: return false;
    }
}

bool CHostService::MayOverwrite(const std::string &path) {
    CString text;
    text.Format("%s was changed by another program since it was opened.\n\nOverwrite it with what you have here?",
                path.c_str());
    return AfxMessageBox(text, MB_YESNO | MB_ICONEXCLAMATION | MB_DEFBUTTON2) == IDYES;
}

CUGDataSource *CHostService::CreateDataSource(const char *) {
    CDbfDataSource::Hooks hooks;
    hooks.message = [](const std::string &text) { AfxMessageBox(text.c_str(), MB_ICONEXCLAMATION); };
    hooks.mayClose = MayClose;
    hooks.mayOverwrite = MayOverwrite;
    hooks.progress = [this](std::uint64_t done, std::uint64_t all) { return m_longWork.StepTo(done, all); };
    try {
        auto *source = new CDbfDataSource(hooks);
        source->SetRowsChangedHook([source] {
            if (source->m_ctrl != nullptr)
                source->m_ctrl->OnDataSourceNotify(0, 1, 0);
        });
        return source;
    } catch (CMemoryException *e) {
        e->Delete();
        AfxMessageBox("Out of memory!", MB_ICONHAND);
        return nullptr;
    }
}

void CHostService::ShowFileInformation(CUGDataSource *source) {
    CFileInformationDlg(source, AfxGetMainWnd()).DoModal();
}

bool CHostService::PromptSaveAs(CString &name, bool *useFiltered, bool filterAttached) {
    CFileDialog dialog(FALSE, "dbf", name, OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR, kTableFilter, AfxGetMainWnd());
    if (filterAttached)
        dialog.AddCheckButton(IDC_FILTERED_ONLY, "Filtered &records only", *useFiltered);
    if (dialog.DoModal() != IDOK)
        return false;
    name = dialog.GetPathName();
    BOOL checked = FALSE;
    dialog.GetCheckButtonState(IDC_FILTERED_ONLY, checked);
    *useFiltered = filterAttached && checked;
    return true;
}

// The dialogs about fields begin at the current one.
bool CHostService::PromptFieldOrder(CStringArray *names) {
    CTableEditor *editor = ActiveEditor();
    const int current = editor != nullptr ? editor->GetCurrentCol() : 0;
    return CFieldOrderDlg(names, current, AfxGetMainWnd()).DoModal() == IDOK;
}

void CHostService::PromptFieldVisibility(CStringArray &names, CArray<bool, bool> &shown) {
    CTableEditor *editor = ActiveEditor();
    if (editor == nullptr)
        return;
    CUIntArray positions;
    editor->GetVirtualColPostions(positions);
    const int field = editor->GetDataSrcField(editor->GetCurrentCol());
    int current = 0;
    for (int i = 0; i < positions.GetSize(); ++i) {
        if (static_cast<int>(positions.GetAt(i)) == field)
            current = i;
    }
    if (CFieldVisibilityDlg(names, shown, current, AfxGetMainWnd()).DoModal() == IDOK)
        editor->ShowChosenFields(shown);
}

bool CHostService::PromptXParms(CStringArray &, CStringArray &, CArray<bool, bool> &, CString, const char *,
                                CArray<CFieldStatus, CFieldStatus &> *, CString &,
                                CArray<CExecuteInfo *, CExecuteInfo *> &) {
    return false;
}

void CHostService::ShowFindDialog(bool inMultipleSelection, CWnd *, UINT message) {
    m_findDlg.Show(false, inMultipleSelection, message, AfxGetMainWnd());
}

void CHostService::ShowReplaceDialog(bool inMultipleSelection, CWnd *, UINT message) {
    m_findDlg.Show(true, inMultipleSelection, message, AfxGetMainWnd());
}

void CHostService::GetDefaultFieldWidths(UINT *code, UINT *description) {
    CHostLookupOptions options;
    options.Load();
    *code = options.m_codeWidth;
    *description = options.m_descriptionWidth;
}

void CHostService::SetDefaultFieldWidths(UINT code, UINT description) {
    CHostLookupOptions options;
    options.m_codeWidth = code;
    options.m_descriptionWidth = description;
    options.SaveWidths();
}

bool CHostService::EditLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                             bool *sortMenuItems) {
    CLookupProperties properties{*caseSensitive, *acceptEmptyCells, *enableValidation, *sortMenuItems};
    if (!CLookupPropertiesDlg::Ask(properties, AfxGetMainWnd()))
        return false;
    *caseSensitive = properties.m_caseSensitive;
    *acceptEmptyCells = properties.m_acceptEmptyCells;
    *enableValidation = properties.m_enableValidation;
    *sortMenuItems = properties.m_sortMenuItems;
    return true;
}

void CHostService::GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                    bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                    CString *replaceString, CString *prependString) {
    CHostLookupOptions options;
    options.Load();
    *validate = options.m_validate;
    *validateOnKey = options.m_validateOnKey;
    *resolveSubMenus = options.m_resolveSubMenus;
    *allowPartialCodes = options.m_allowPartialCodes;
    *beepOnInvalid = options.m_beepOnInvalid;
    *invalidAction = options.m_invalidAction;
    *replaceString = options.m_replaceString;
    *prependString = options.m_prependString;
}

bool CHostService::EditLookupUserOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                         bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                         CString *replaceString, CString *prependString, UINT *codeWidth,
                                         UINT *descriptionWidth) {
    CHostLookupOptions stored;
    stored.Load();
    CLookupOptionsDlg dialog(stored, AfxGetMainWnd());
    if (dialog.DoModal() != IDOK)
        return false;
    dialog.m_options.Save();
    GetLookupOptions(validate, validateOnKey, resolveSubMenus, allowPartialCodes, beepOnInvalid, invalidAction,
                     replaceString, prependString);
    *invalidAction = LookupAction::ForDialog(dialog.m_options.m_invalidAction);
    *codeWidth = dialog.m_options.m_codeWidth;
    *descriptionWidth = dialog.m_options.m_descriptionWidth;
    return true;
}

void CHostService::EditLookupAdminOptions(CLookupOptionsMgr *manager) {
    CLookupAdminDlg(*manager, AfxGetMainWnd()).DoModal();
}

bool CHostService::EditFilter(int number, const char *) {
    const dbf::Table *table = ActiveTable();
    return table != nullptr && CFilterListDlg::EditOne(*table, number, AfxGetMainWnd());
}

bool CHostService::SelectFilter(int *filterNumber) {
    const dbf::Table *table = ActiveTable();
    if (table == nullptr)
        return false;
    CFilterListDlg dialog(*table, ActiveEditor()->GetFilter(), AfxGetMainWnd());
    if (!dialog.Load() || dialog.DoModal() != IDOK)
        return false;
    *filterNumber = dialog.GetChosen();
    return true;
}

void CHostService::DoWaitCursor(int step) {
    const bool waited = m_waits > 0;
    m_waits = std::max(m_waits + step, 0);
    AfxGetApp()->DoWaitCursor(step);
    // After a question the library takes up the cursor again, having ended it before.
    if ((m_waits > 0 && !waited) || (step == 0 && !m_longWork.IsAtWork()))
        m_longWork.Begin();
    else if (step < 0 && m_waits == 0)
        m_longWork.End();
}

void CHostService::EndWaitCursor() {
    while (m_waits > 0)
        DoWaitCursor(-1);
    m_longWork.End();
}

// In the status bar: it comes with work that was asked for, and nobody wants to answer it.
void CHostService::ShowMessage(const char *text) {
    if (auto *frame = DYNAMIC_DOWNCAST(CMainFrame, AfxGetMainWnd()))
        frame->SetMessageText(text);
}
