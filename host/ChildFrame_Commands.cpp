// The commands of a table's window: what they do, when they can be had, and what the status bar tells.
#include "host/ChildFrame.h"

#include "host/FileInformation.h"
#include "host/HostApp.h"
#include "host/Resource.h"

void CChildFrame::OnFileClose() {
    PostMessage(WM_CLOSE, 0, 0);
}

void CChildFrame::OnFileSave() {
    m_editor.OnSave();
}

void CChildFrame::OnFileSaveAs() {
    const CString before = m_editor.GetFilePath();
    m_editor.OnSaveAs();
    if (m_editor.GetFilePath() != before)
        AfxGetApp()->AddToRecentFileList(m_editor.GetFilePath());
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

void CChildFrame::OnEditCut() {
    m_editor.SelectCurrentIfNothing();
    m_editor.OnCut(true);
}

void CChildFrame::OnEditCopy() {
    m_editor.SelectCurrentIfNothing();
    m_editor.OnCopy();
}

void CChildFrame::OnEditPaste() {
    m_editor.OnPaste();
}

void CChildFrame::OnEditBlank() {
    m_editor.SelectCurrentIfNothing();
    m_editor.OnCut(false);
}

void CChildFrame::OnEditSelectAll() {
    m_editor.SelectAll();
}

void CChildFrame::OnEditFind() {
    m_editor.OnFind();
}

void CChildFrame::OnEditReplace() {
    m_editor.OnFindReplace();
}

void CChildFrame::OnEditFindAgain() {
    m_editor.FindAgain();
}

void CChildFrame::OnRecordGoto() {
    m_editor.SaveEditContents();
    m_editor.OnGotoRecord();
}

void CChildFrame::OnRecordAppend() {
    m_editor.SaveEditContents();
    m_editor.OnAppendRow(0);
}

void CChildFrame::OnRecordInsert() {
    m_editor.SaveEditContents();
    m_editor.OnInsertRows();
}

void CChildFrame::OnRecordDelete() {
    m_editor.SaveEditContents();
    m_editor.OnDeleteRows();
}

void CChildFrame::OnColumnsHide() {
    m_editor.SaveEditContents();
    m_editor.OnHideCols();
}

void CChildFrame::OnColumnsShow() {
    m_editor.SaveEditContents();
    m_editor.OnUnHideCols();
}

void CChildFrame::OnColumnsOrder() {
    m_editor.SaveEditContents();
    m_editor.OnOrderCols(nullptr);
}

void CChildFrame::OnColumnsFit() {
    m_editor.SaveEditContents();
    m_editor.BestFitCols();
}

void CChildFrame::OnColumnsReset() {
    m_editor.SaveEditContents();
    m_editor.ShowFieldsOfFile();
}

void CChildFrame::OnColumnsFreeze() {
    m_editor.SaveEditContents();
    m_editor.OnLockColumns();
}

void CChildFrame::OnLookupCompile() {
    m_editor.SaveEditContents();
    m_editor.CompileLookupTable();
}

void CChildFrame::OnFilterSelect() {
    m_editor.SaveEditContents();
    m_editor.OnSelectAttachFilter();
}

void CChildFrame::OnFilterEdit() {
    m_editor.SaveEditContents();
    m_editor.OnEditFilter();
}

void CChildFrame::OnFilterDefault() {
    m_editor.SaveEditContents();
    m_editor.OnAttachDefaultFilter();
}

void CChildFrame::OnFilterDetach() {
    m_editor.OnDetachFilter();
}

void CChildFrame::OnFilterUse() {
    m_editor.SetUseFilteredRecords(!m_editor.GetUseFilteredRecords());
}

// The vertical alignment goes with the grid's own horizontal one, so that the fields' is set again.
void CChildFrame::OnViewAlignment(UINT id) {
    constexpr char kWhere[] = {'t', 'm', 'b'};
    m_alignment = id;
    m_editor.VerticallyAlignGridField(kWhere[id - ID_VIEW_TOP]);
    m_editor.SetTextAlignment();
    m_editor.RedrawAll();
}

void CChildFrame::OnViewHorizontalLines() {
    m_editor.SetIsShowingHorizLines(!m_editor.IsShowingHorizLines());
}

void CChildFrame::OnViewVerticalLines() {
    m_editor.SetIsShowingVerticleLines(!m_editor.IsShowingVerticleLines());
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

// The library's answers do not ask whether there is a cell to take from.
void CChildFrame::OnUpdateCut(CCmdUI *command) {
    command->Enable(m_editor.CanCut() && m_editor.IsOperationsValid() && m_editor.CanHideCols());
}

void CChildFrame::OnUpdateCopy(CCmdUI *command) {
    command->Enable(m_editor.CanCopy() && m_editor.IsOperationsValid() && m_editor.CanHideCols());
}

void CChildFrame::OnUpdatePaste(CCmdUI *command) {
    command->Enable(m_editor.CanPaste() && m_editor.CanHideCols());
}

void CChildFrame::OnUpdateBlank(CCmdUI *command) {
    command->Enable(!m_editor.IsGridReadOnly() && !m_editor.IsInEditMode() && m_editor.IsOperationsValid());
}

void CChildFrame::OnUpdateDelete(CCmdUI *command) {
    command->Enable(!m_editor.IsGridReadOnly() && m_editor.IsOperationsValid());
}

void CChildFrame::OnUpdateColumns(CCmdUI *command) {
    command->Enable(m_editor.CanHideCols());
}

void CChildFrame::OnUpdateFields(CCmdUI *command) {
    command->Enable(m_editor.IsDataSrcOpen());
}

void CChildFrame::OnUpdateReset(CCmdUI *command) {
    command->Enable(m_editor.IsDataSrcOpen() && !m_editor.ShowsFieldsOfFile());
}

void CChildFrame::OnUpdateChange(CCmdUI *command) {
    command->Enable(!m_editor.IsGridReadOnly());
}

void CChildFrame::OnUpdateFindAgain(CCmdUI *command) {
    command->Enable(m_editor.CanFindAgain());
}

void CChildFrame::OnUpdateGoto(CCmdUI *command) {
    command->Enable(m_editor.IsOperationsValid());
}

void CChildFrame::OnUpdateFilterDetach(CCmdUI *command) {
    command->Enable(m_editor.IsFilterAttached());
}

void CChildFrame::OnUpdateFilterUse(CCmdUI *command) {
    command->Enable(m_editor.IsFilterAttached());
    command->SetCheck(m_editor.GetUseFilteredRecords());
}

void CChildFrame::OnUpdateAlignment(CCmdUI *command) {
    command->SetRadio(command->m_nID == m_alignment);
}

void CChildFrame::OnUpdateHorizontalLines(CCmdUI *command) {
    command->SetCheck(m_editor.IsShowingHorizLines());
}

void CChildFrame::OnUpdateVerticalLines(CCmdUI *command) {
    command->SetCheck(m_editor.IsShowingVerticleLines());
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

void CChildFrame::OnUpdateSelectionPane(CCmdUI *command) {
    command->Enable();
    command->SetText(m_editor.DescribeSelection());
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

void CChildFrame::OnUpdateFilterPane(CCmdUI *command) {
    CString text;
    if (m_editor.GetFilter() == kDefaultFilter)
        text = "Default filter";
    else if (m_editor.IsFilterAttached())
        text.Format("Filter %d", m_editor.GetFilter());
    if (m_editor.IsFilterAttached() && m_editor.GetUseFilteredRecords())
        text += ", in use";
    command->Enable();
    command->SetText(text);
}
