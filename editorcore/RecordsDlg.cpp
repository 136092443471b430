#include "editorcore/RecordsDlg.h"

#include "resources/ResourceIds.h"

#include <afxcmn.h>

#include <cstdlib>

BEGIN_MESSAGE_MAP(CInsertRecordsDlg, CDialog)
    ON_NOTIFY(UDN_DELTAPOS, IDC_RECORDS_SPIN, OnSpin)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CLargeUndoOptionDlg, CDialog)
    ON_BN_CLICKED(IDC_UNDO_CANCEL_PREVIOUS, OnCancelPrevious)
    ON_BN_CLICKED(IDC_UNDO_STORE_ANYWAY, OnStoreAnyway)
END_MESSAGE_MAP()

CInsertRecordsDlg::CInsertRecordsDlg(const char *title, const char *prompt, CWnd *parent)
    : CDialog(IDD_INSERT_RECORDS, parent), m_strTitle(title), m_strPrompt(prompt) {}

BOOL CInsertRecordsDlg::OnInitDialog() {
    constexpr WPARAM kMostDigits = 9;
    CDialog::OnInitDialog();
    SetWindowText(m_strTitle);
    SetDlgItemText(IDC_RECORDS_PROMPT, m_strPrompt);
    // The limit goes to the label, not to the edit box: users paste longer numbers, and they are taken.
    SendDlgItemMessage(IDC_RECORDS_PROMPT, EM_LIMITTEXT, kMostDigits, 0);
    GetDlgItem(IDC_RECORDS_NO_UNDO)->ShowWindow(m_strTitle.Find("Delete") >= 0 ? SW_SHOW : SW_HIDE);
    return TRUE;
}

void CInsertRecordsDlg::DoDataExchange(CDataExchange *dx) {
    CDialog::DoDataExchange(dx);
    DDX_Text(dx, IDC_RECORDS_COUNT, m_nRecords);
}

// The up arrow comes with a negative delta.
void CInsertRecordsDlg::OnSpin(NMHDR *header, LRESULT *result) {
    CString text;
    GetDlgItemText(IDC_RECORDS_COUNT, text);
    const long count = std::atol(text) - reinterpret_cast<NMUPDOWN *>(header)->iDelta;
    if (count >= 0) {
        text.Format("%ld", count);
        SetDlgItemText(IDC_RECORDS_COUNT, text);
    } else {
        m_nRecords = 0;
    }
    *result = 0;
}

CLargeUndoOptionDlg::CLargeUndoOptionDlg(CWnd *parent) : CDialog(IDD_LARGE_UNDO, parent) {}
