#include "lookup/LookupPasswordDlgs.h"

#include "resources/ResourceIds.h"

CLookupAdminPasswordDlg::CLookupAdminPasswordDlg(int maxLength, CWnd *parent)
    : CDialog(IDD_LOOKUP_NEW_PASSWORD, parent), m_nMaxLength(maxLength) {}

BOOL CLookupAdminPasswordDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    for (int control : {IDC_LOOKUP_PASSWORD, IDC_LOOKUP_CONFIRM})
        SendDlgItemMessage(control, EM_LIMITTEXT, static_cast<WPARAM>(m_nMaxLength), 0);
    return TRUE;
}

void CLookupAdminPasswordDlg::Refuse(int control, const char *text) {
    GotoDlgCtrl(GetDlgItem(control));
    AfxMessageBox(text, 0, 0);
}

void CLookupAdminPasswordDlg::OnOK() {
    CString password, confirmed;
    GetDlgItemText(IDC_LOOKUP_PASSWORD, password);
    GetDlgItemText(IDC_LOOKUP_CONFIRM, confirmed);
    if (password.IsEmpty()) {
        Refuse(IDC_LOOKUP_PASSWORD, "Please enter a new password.");
    } else if (confirmed.IsEmpty()) {
        Refuse(IDC_LOOKUP_CONFIRM, "Please confirm password.");
    } else if (password != confirmed) {
        Refuse(IDC_LOOKUP_CONFIRM, "Confirmed password is not the same as new password!\nPlease re-enter.");
    } else {
        m_sPassword = password;
        CDialog::OnOK();
    }
}

CLookupOldPasswordDlg::CLookupOldPasswordDlg(int maxLength, CWnd *parent)
    : CDialog(IDD_LOOKUP_OLD_PASSWORD, parent), m_nMaxLength(maxLength) {}

BOOL CLookupOldPasswordDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SendDlgItemMessage(IDC_LOOKUP_PASSWORD, EM_LIMITTEXT, static_cast<WPARAM>(m_nMaxLength), 0);
    return TRUE;
}

void CLookupOldPasswordDlg::DoDataExchange(CDataExchange *dx) {
    CDialog::DoDataExchange(dx);
    DDX_Text(dx, IDC_LOOKUP_PASSWORD, m_sPassword);
}
