#include "host/ChildFrame.h"

#include "host/FileInformation.h"
#include "host/HostApp.h"
#include "host/MainFrame.h"
#include "host/Resource.h"

IMPLEMENT_DYNAMIC(CChildFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CChildFrame, CMDIChildWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_CLOSE()
    ON_MESSAGE(kMsgCommandsChanged, OnCommandsChanged)
    ON_MESSAGE(kMsgOptionsChanged, OnOptionsChanged)
    ON_COMMAND(ID_FILE_CLOSE, OnFileClose)
    ON_COMMAND(ID_FILE_SAVE, OnFileSave)
    ON_COMMAND(ID_FILE_SAVE_AS, OnFileSaveAs)
    ON_COMMAND(ID_FILE_INFORMATION, OnFileInformation)
    ON_COMMAND(ID_EDIT_UNDO, OnEditUndo)
    ON_COMMAND(ID_EDIT_REDO, OnEditRedo)
    ON_COMMAND(ID_EDIT_CUT, OnEditCut)
    ON_COMMAND(ID_EDIT_COPY, OnEditCopy)
    ON_COMMAND(ID_EDIT_PASTE, OnEditPaste)
    ON_COMMAND(ID_EDIT_BLANK, OnEditBlank)
    ON_COMMAND(ID_EDIT_SELECT_ALL, OnEditSelectAll)
    ON_COMMAND(ID_EDIT_FIND, OnEditFind)
    ON_COMMAND(ID_EDIT_REPLACE, OnEditReplace)
    ON_COMMAND(ID_EDIT_REPEAT, OnEditFindAgain)
    ON_COMMAND(ID_RECORD_GOTO, OnRecordGoto)
    ON_COMMAND(ID_RECORD_APPEND, OnRecordAppend)
    ON_COMMAND(ID_RECORD_INSERT, OnRecordInsert)
    ON_COMMAND(ID_RECORD_DELETE, OnRecordDelete)
    ON_COMMAND(ID_COLUMNS_HIDE, OnColumnsHide)
    ON_COMMAND(ID_COLUMNS_SHOW, OnColumnsShow)
    ON_COMMAND(ID_COLUMNS_ORDER, OnColumnsOrder)
    ON_COMMAND(ID_COLUMNS_FIT, OnColumnsFit)
    ON_COMMAND(ID_COLUMNS_RESET, OnColumnsReset)
    ON_COMMAND(ID_COLUMNS_FREEZE, OnColumnsFreeze)
    ON_COMMAND(ID_LOOKUP_COMPILE, OnLookupCompile)
    ON_COMMAND(ID_FILTER_SELECT, OnFilterSelect)
    ON_COMMAND(ID_FILTER_EDIT, OnFilterEdit)
    ON_COMMAND(ID_FILTER_DEFAULT, OnFilterDefault)
    ON_COMMAND(ID_FILTER_DETACH, OnFilterDetach)
    ON_COMMAND(ID_FILTER_USE, OnFilterUse)
    ON_COMMAND_RANGE(ID_VIEW_TOP, ID_VIEW_BOTTOM, OnViewAlignment)
    ON_COMMAND(ID_VIEW_HORIZONTAL_LINES, OnViewHorizontalLines)
    ON_COMMAND(ID_VIEW_VERTICAL_LINES, OnViewVerticalLines)
    ON_COMMAND(ID_ENTER_IS_TAB, OnEnterIsTab)
    ON_COMMAND_RANGE(ID_MODE_NORMAL, ID_MODE_VERIFY, OnMode)
    ON_UPDATE_COMMAND_UI(ID_FILE_SAVE, OnUpdateSave)
    ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, OnUpdateUndo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, OnUpdateRedo)
    ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, OnUpdateCut)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, OnUpdateCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, OnUpdatePaste)
    ON_UPDATE_COMMAND_UI(ID_EDIT_BLANK, OnUpdateBlank)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPLACE, OnUpdateChange)
    ON_UPDATE_COMMAND_UI(ID_EDIT_REPEAT, OnUpdateFindAgain)
    ON_UPDATE_COMMAND_UI(ID_RECORD_GOTO, OnUpdateGoto)
    ON_UPDATE_COMMAND_UI(ID_RECORD_APPEND, OnUpdateChange)
    ON_UPDATE_COMMAND_UI(ID_RECORD_INSERT, OnUpdateChange)
    ON_UPDATE_COMMAND_UI(ID_RECORD_DELETE, OnUpdateDelete)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_HIDE, OnUpdateColumns)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_FIT, OnUpdateColumns)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_ORDER, OnUpdateColumns)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_FREEZE, OnUpdateColumns)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_SHOW, OnUpdateFields)
    ON_UPDATE_COMMAND_UI(ID_LOOKUP_COMPILE, OnUpdateFields)
    ON_UPDATE_COMMAND_UI(ID_FILTER_SELECT, OnUpdateFields)
    ON_UPDATE_COMMAND_UI(ID_FILTER_EDIT, OnUpdateFields)
    ON_UPDATE_COMMAND_UI(ID_FILTER_DEFAULT, OnUpdateFields)
    ON_UPDATE_COMMAND_UI(ID_FILTER_DETACH, OnUpdateFilterDetach)
    ON_UPDATE_COMMAND_UI(ID_FILTER_USE, OnUpdateFilterUse)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_TOP, ID_VIEW_BOTTOM, OnUpdateAlignment)
    ON_UPDATE_COMMAND_UI(ID_VIEW_HORIZONTAL_LINES, OnUpdateHorizontalLines)
    ON_UPDATE_COMMAND_UI(ID_VIEW_VERTICAL_LINES, OnUpdateVerticalLines)
    ON_UPDATE_COMMAND_UI(ID_COLUMNS_RESET, OnUpdateReset)
    ON_UPDATE_COMMAND_UI(ID_ENTER_IS_TAB, OnUpdateEnterIsTab)
    ON_UPDATE_COMMAND_UI_RANGE(ID_MODE_NORMAL, ID_MODE_VERIFY, OnUpdateMode)
    ON_UPDATE_COMMAND_UI(ID_PANE_RECORD, OnUpdateRecordPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_FIELD, OnUpdateFieldPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_SELECTION, OnUpdateSelectionPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_MODE, OnUpdateModePane)
    ON_UPDATE_COMMAND_UI(ID_PANE_MODIFIED, OnUpdateModifiedPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_FILTER, OnUpdateFilterPane)
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

// With an edit box open these keys are the box's, whatever is held down with them.
BOOL CChildFrame::PreTranslateMessage(MSG *message) {
    const bool boxKey = message->message == WM_KEYDOWN && m_editor.IsInEditMode() &&
                        (message->wParam == VK_INSERT || message->wParam == VK_DELETE || message->wParam == 'H');
    return boxKey ? FALSE : CMDIChildWnd::PreTranslateMessage(message);
}

bool CChildFrame::LoadTable(const char *path) {
    CWaitCursor wait;
    if (!m_editor.LoadData(path, nullptr, kNoFilter, kEditNormal, nullptr))
        return false;
    m_sourceWritable = !m_editor.IsGridReadOnly();
    m_editor.UpdateTitle();
    return true;
}

void CChildFrame::OnClose() {
    if (GetHostApp()->MayClose(this) && m_editor.CloseDataSource(false))
        CMDIChildWnd::OnClose();
}

bool CChildFrame::SaveOrDiscard() {
    m_editor.SaveEditContents();
    if (!m_editor.IsFileModified())
        return true;
    const int answer = CHostService::AskToSave(m_editor.GetFilePath());
    if (answer == IDYES)
        m_editor.OnSave();
    return answer == IDNO || (answer == IDYES && !m_editor.IsFileModified());
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

LRESULT CChildFrame::OnOptionsChanged(WPARAM, LPARAM) {
    m_editor.SetTextAlignment();
    m_editor.RedrawAll();
    return 0;
}
