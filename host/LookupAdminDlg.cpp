#include "host/LookupAdminDlg.h"

#include "host/Resource.h"
#include "lookup/LookupOptionsMgr.h"

BEGIN_MESSAGE_MAP(CLookupAdminDlg, CDialog)
ON_BN_CLICKED(IDC_LOOKUP_LOG_ON, OnLogOn)
ON_BN_CLICKED(IDC_LOOKUP_LOG_OFF, OnLogOff)
ON_BN_CLICKED(IDC_LOOKUP_SET_PASSWORD, OnSetPassword)
END_MESSAGE_MAP()

CLookupAdminDlg::CLookupAdminDlg(CLookupOptionsMgr &manager, CWnd *parent)
    : CDialog(IDD_LOOKUP_ADMIN, parent), m_manager(manager) {}

BOOL CLookupAdminDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    ShowOptions();
    ShowLogon();
    GotoDlgCtrl(GetDlgItem(m_manager.IsAdminLoggon() ? IDC_LOOKUP_STRICT : IDC_LOOKUP_LOG_ON));
    return FALSE;
}

void CLookupAdminDlg::ShowOptions() {
    CheckDlgButton(IDC_LOOKUP_STRICT, m_manager.IsInStrictMode());
    CheckDlgButton(IDC_LOOKUP_LOCK_ALL, m_manager.IsLockingAllFiles());
}

void CLookupAdminDlg::ShowLogon() {
    const bool on = m_manager.IsAdminLoggon();
    SetDlgItemText(IDC_LOOKUP_LOGON_STATE, on ? "You are logged on as administrator."
                                              : "Log on as administrator to change these options.");
    for (int id : {IDC_LOOKUP_STRICT, IDC_LOOKUP_LOCK_ALL, IDC_LOOKUP_SET_PASSWORD, IDC_LOOKUP_LOG_OFF})
        GetDlgItem(id)->EnableWindow(on);
    GetDlgItem(IDC_LOOKUP_LOG_ON)->EnableWindow(!on);
}

// The focus goes on from the button that is greyed: it would keep the keys to itself.
void CLookupAdminDlg::OnLogOn() {
    m_manager.DoAdminLoggon();
    if (!m_manager.IsAdminLoggon())
        return;
    ShowLogon();
    GotoDlgCtrl(GetDlgItem(IDC_LOOKUP_STRICT));
}

// What was changed and not yet stored goes with the logon.
void CLookupAdminDlg::OnLogOff() {
    m_manager.DoAdminLoggoff();
    if (m_manager.IsAdminLoggon())
        return;
    ShowOptions();
    ShowLogon();
    GotoDlgCtrl(GetDlgItem(IDC_LOOKUP_LOG_ON));
}

void CLookupAdminDlg::OnSetPassword() {
    m_manager.OnSetAdminPassword();
}

void CLookupAdminDlg::OnOK() {
    if (m_manager.IsAdminLoggon()) {
        m_manager.SetStrictMode(IsDlgButtonChecked(IDC_LOOKUP_STRICT) != 0);
        m_manager.SetLockAllFiles(IsDlgButtonChecked(IDC_LOOKUP_LOCK_ALL) != 0);
    }
    CDialog::OnOK();
}
