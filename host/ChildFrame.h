// CChildFrame: a child window with one open table.
#pragma once

#include <afxwin.h>

#include "host/Resource.h"
#include "host/TableEditor.h"

class CChildFrame : public CMDIChildWnd {
    DECLARE_DYNAMIC(CChildFrame)

public:
    bool LoadTable(const char *path);
    // File, table and whether it is modified, in the window's own caption or in the frame's while it is
    // maximised.
    void RefreshTitle();
    void FocusTable() { m_editor.SetFocus(); }
    CTableEditor &Editor() { return m_editor; }
    // Asks about changes that are not saved, as before a close; the table stays open. False when the user wants to stay,
    // or when they could not be saved.
    bool SaveOrDiscard();

protected:
    BOOL PreTranslateMessage(MSG *message) override;
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd *old);
    afx_msg void OnClose();
    afx_msg LRESULT OnCommandsChanged(WPARAM, LPARAM);
    afx_msg LRESULT OnOptionsChanged(WPARAM, LPARAM);
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    afx_msg void OnFileInformation();
    afx_msg void OnEditUndo();
    afx_msg void OnEditRedo();
    afx_msg void OnEditCut();
    afx_msg void OnEditCopy();
    afx_msg void OnEditPaste();
    afx_msg void OnEditBlank();
    afx_msg void OnEditSelectAll();
    afx_msg void OnEditFind();
    afx_msg void OnEditReplace();
    afx_msg void OnEditFindAgain();
    afx_msg void OnRecordGoto();
    afx_msg void OnRecordAppend();
    afx_msg void OnRecordInsert();
    afx_msg void OnRecordDelete();
    afx_msg void OnColumnsHide();
    afx_msg void OnColumnsShow();
    afx_msg void OnColumnsOrder();
    afx_msg void OnColumnsFit();
    afx_msg void OnColumnsReset();
    afx_msg void OnColumnsFreeze();
    afx_msg void OnLookupCompile();
    afx_msg void OnFilterSelect();
    afx_msg void OnFilterEdit();
    afx_msg void OnFilterDefault();
    afx_msg void OnFilterDetach();
    afx_msg void OnFilterUse();
    afx_msg void OnViewAlignment(UINT id);
    afx_msg void OnViewHorizontalLines();
    afx_msg void OnViewVerticalLines();
    afx_msg void OnEnterIsTab();
    afx_msg void OnMode(UINT id);
    afx_msg void OnUpdateSave(CCmdUI *command);
    afx_msg void OnUpdateUndo(CCmdUI *command);
    afx_msg void OnUpdateRedo(CCmdUI *command);
    afx_msg void OnUpdateCut(CCmdUI *command);
    afx_msg void OnUpdateCopy(CCmdUI *command);
    afx_msg void OnUpdatePaste(CCmdUI *command);
    afx_msg void OnUpdateBlank(CCmdUI *command);
    afx_msg void OnUpdateChange(CCmdUI *command);
    afx_msg void OnUpdateDelete(CCmdUI *command);
    afx_msg void OnUpdateFindAgain(CCmdUI *command);
    afx_msg void OnUpdateGoto(CCmdUI *command);
    afx_msg void OnUpdateFilterDetach(CCmdUI *command);
    afx_msg void OnUpdateFilterUse(CCmdUI *command);
    afx_msg void OnUpdateAlignment(CCmdUI *command);
    afx_msg void OnUpdateHorizontalLines(CCmdUI *command);
    afx_msg void OnUpdateVerticalLines(CCmdUI *command);
    afx_msg void OnUpdateColumns(CCmdUI *command);
    afx_msg void OnUpdateFields(CCmdUI *command);
    afx_msg void OnUpdateReset(CCmdUI *command);
    afx_msg void OnUpdateEnterIsTab(CCmdUI *command);
    afx_msg void OnUpdateMode(CCmdUI *command);
    afx_msg void OnUpdateRecordPane(CCmdUI *command);
    afx_msg void OnUpdateFieldPane(CCmdUI *command);
    afx_msg void OnUpdateSelectionPane(CCmdUI *command);
    afx_msg void OnUpdateModePane(CCmdUI *command);
    afx_msg void OnUpdateModifiedPane(CCmdUI *command);
    afx_msg void OnUpdateFilterPane(CCmdUI *command);

private:
    CTableEditor m_editor;
    bool m_sourceWritable = true;
    UINT m_alignment = ID_VIEW_TOP; // the command that set where texts stand in their cells
};
