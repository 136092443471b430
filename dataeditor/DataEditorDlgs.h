// The dialogs of the data editor's own commands. Their templates stand in the library: show them under CResourceScope.
#pragma once

#include <afxwin.h>

// Asks before a replacement. DoModal answers kYes, kNo, IDCANCEL or kAll.
class ORVANE_API CYesNoCancelAllDlg : public CDialog {
public:
    static constexpr int kYes = 1014, kNo = 1004, kAll = 1010;

    CYesNoCancelAllDlg(const char *message, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnYes() { EndDialog(kYes); }
    afx_msg void OnNo() { EndDialog(kNo); }
    afx_msg void OnAll() { EndDialog(kAll); }
    afx_msg void OnCancelButton() { OnCancel(); }

private:
    CString m_strMessage;
};

// How many fields to freeze at the left.
class ORVANE_API CLockColumns : public CDialog {
public:
    CLockColumns(int lockedCols, int cols, CWnd *parent);

    int m_nLockedCols; // 0 to m_nMaxCols
    int m_nMaxCols;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnSpin(NMHDR *header, LRESULT *result);

private:
    int Limited(int count) const;
};
