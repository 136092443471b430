// The dialogs of the editor's own commands. Their templates stand in the library: show them under CResourceScope.
#pragma once

#include <afxwin.h>

// How many records to insert or delete. The number is what the user typed; what it may be is the caller's to say.
class ORVANE_API CInsertRecordsDlg : public CDialog {
public:
    // With "Delete" in the title a line warns that the operation cannot be undone. Both texts are copied.
    CInsertRecordsDlg(const char *title, const char *prompt, CWnd *parent);

    long m_nRecords = 1;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange *dx) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnSpin(NMHDR *header, LRESULT *result);

private:
    CString m_strTitle;
    CString m_strPrompt;
};

// What to do about very much undo data: IDYES, IDNO or IDCANCEL of CEditorCore::DisplayNoUndoMessage.
class ORVANE_API CLargeUndoOptionDlg : public CDialog {
public:
    explicit CLargeUndoOptionDlg(CWnd *parent);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnCancelPrevious() { EndDialog(IDYES); }
    afx_msg void OnStoreAnyway() { EndDialog(IDNO); }
};
