#include "host/ChildFrame.h"

#include "host/FileInformation.h"
#include "host/HostApp.h"
#include "host/Resource.h"

IMPLEMENT_DYNAMIC(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_MESSAGE(kMsgCommandsChanged, OnCommandsChanged)
    ON_COMMAND(ID_FILE_CLOSE, OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, OnFileSaveAs)
    ON_COMMAND(ID_FILE_INFORMATION, OnFileInformation)
    ON_COMMAND(ID_EDIT_UNDO, OnEditUndo)
    ON_COMMAND(ID_EDIT_REDO, OnEditRedo)
    ON_COMMAND(ID_EDIT_BLANK, OnEditBlank)
    ON_COMMAND(ID_RECORD_APPEND, OnRecordAppend)
    ON_COMMAND(ID_ENTER_IS_TAB, OnEnterIsTab)
    ON_COMMAND_RANGE(ID_MODE_NORMAL, ID_MODE_VERIFY, OnMode)
    ON_UPDATE_COMMAND_UI(ID_FILE_SAVE, OnUpdateSave)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, OnUpdateUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, OnUpdateRedo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_BLANK, OnUpdateChange)
    ON_UPDATE_COMMAND_UI(ID_RECORD_APPEND, OnUpdateChange)
    ON_UPDATE_COMMAND_UI(ID_ENTER_IS_TAB, OnUpdateEnterIsTab)
    ON_UPDATE_COMMAND_UI_RANGE(ID_MODE_NORMAL, ID_MODE_VERIFY, OnUpdateMode)
    ON_UPDATE_COMMAND_UI(ID_PANE_RECORD, OnUpdateRecordPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_FIELD, OnUpdateFieldPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_MODE, OnUpdateModePane)
    ON_UPDATE_COMMAND_UI(ID_PANE_MODIFIED, OnUpdateModifiedPane)
END_MESSAGE_MAP()

int CChildFrame::OnCreate(LPCREATESTRUCT create) {
    if (CMDIChildWnd::OnCreate(create) == -1)
        return -1;
    return m_editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST) ? 0 : -1;
}

void CChildFrame::OnSize(UINT type, int cx, int cy) {
    CMDIChildWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED && m_editor.GetSafeHwnd() != nullptr)
        m_editor.MoveWindow(0, 0, cx, cy);
}

void CChildFrame::OnSetFocus(CWnd *) {
    FocusTable();
}

bool CChildFrame::LoadTable(const char *path) {
    CWaitCursor wait;
    if (!m_editor.LoadData(path, nullptr, kEditNormal, ""))
        return false;
    m_sourceWritable = !m_editor.IsGridReadOnly();
    m_editor.UpdateTitle();
    return true;
}

void CChildFrame::OnClose() {
    if (m_editor.CloseDataSource(false))
        CMDIChildWnd::OnClose();
}

void CChildFrame::RefreshTitle() {
    CString title = NameOf(m_editor.GetFilePath());
    if (!m_editor.GetTableName().IsEmpty())
        title += " - " + m_editor.GetTableName();
    if (m_editor.IsFileModified())
        title += " *";
    if (title == GetTitle())
        return;
    SetTitle(title);
    SetWindowText(title);
    OnUpdateFrameTitle(TRUE);
}

// The menus ask when they open, the panes when there is nothing else to do.
LRESULT CChildFrame::OnCommandsChanged(WPARAM, LPARAM) {
    RefreshTitle();
    return 0;
}

void CChildFrame::OnFileClose() {
    PostMessage(WM_CLOSE, 0, 0);
}

void CChildFrame::OnFileSave() {
    m_editor.OnSave(-1);
}

void CChildFrame::OnFileSaveAs() {
    CString name(m_editor.GetFilePath());
    bool filtered = false;
    if (GetHostApp()->Service().PromptSaveAs(name, &filtered, false) && m_editor.OnSaveAs(name, filtered, -1))
        AfxGetApp()->AddToRecentFileList(name);
}

void CChildFrame::OnFileInformation() {
    if (CUGDataSource *source = m_editor.GetCurrentDataSrc(true))
        GetHostApp()->Service().ShowFileInformation(source);
}

void CChildFrame::OnEditUndo() {
    m_editor.Undo();
    m_editor.RedrawAll();
}

void CChildFrame::OnEditRedo() {
    m_editor.Redo();
    m_editor.RedrawAll();
}

void CChildFrame::OnEditBlank() {
    m_editor.OnCut(false);
}

void CChildFrame::OnRecordAppend() {
    m_editor.SaveEditContents();
    m_editor.OnAppendRow(0);
}

void CChildFrame::OnEnterIsTab() {
    CEditorCore::ToggleEnterKey();
}

void CChildFrame::OnMode(UINT id) {
    m_editor.SaveEditContents();
    m_editor.SetEditMode(static_cast<int>(id - ID_MODE_NORMAL));
}

void CChildFrame::OnUpdateSave(CCmdUI *command) {
    command->Enable(m_editor.IsFileModified());
}

void CChildFrame::OnUpdateUndo(CCmdUI *command) {
    command->Enable(m_editor.CanUndo());
}

void CChildFrame::OnUpdateRedo(CCmdUI *command) {
    command->Enable(m_editor.CanRedo());
}

void CChildFrame::OnUpdateChange(CCmdUI *command) {
    command->Enable(!m_editor.IsGridReadOnly());
}

void CChildFrame::OnUpdateEnterIsTab(CCmdUI *command) {
    command->SetCheck(CEditorCore::IsEnterKeyTab());
}

void CChildFrame::OnUpdateMode(CCmdUI *command) {
    const int mode = static_cast<int>(command->m_nID - ID_MODE_NORMAL);
    command->Enable(m_sourceWritable || mode == kEditReadOnly);
    command->SetRadio(m_editor.GetEditMode() == mode);
}

void CChildFrame::OnUpdateRecordPane(CCmdUI *command) {
    CString text;
    const long rows = m_editor.GetNumberRows();
    if (rows > 0)
        text.Format("Record %ld of %ld", m_editor.GetCurrentRow() + 1, rows);
    else
        text = "No records";
    command->Enable();
    command->SetText(text);
}

void CChildFrame::OnUpdateFieldPane(CCmdUI *command) {
    CUGDataSource *source = m_editor.GetCurrentDataSrc(false);
    const int field = m_editor.GetDataSrcField(m_editor.GetCurrentCol());
    command->Enable();
    command->SetText(source != nullptr && field >= 0 ? DescribeField(source, field) : CString());
}

void CChildFrame::OnUpdateModePane(CCmdUI *command) {
    const char *const names[] = {"Normal", "Read only", "Verify"};
    command->Enable();
    command->SetText(names[m_editor.GetEditMode()]);
}

void CChildFrame::OnUpdateModifiedPane(CCmdUI *command) {
    command->Enable();
    command->SetText(m_editor.IsFileModified() ? "Modified" : "");
    RefreshTitle(); // a value that was refused leaves no change behind, and nobody else tells of that
}
