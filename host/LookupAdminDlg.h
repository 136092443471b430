// CLookupAdminDlg: the administrator's lookup options. Without a logon they can be seen and not changed.
#pragma once

#include <afxwin.h>

class CLookupOptionsMgr;

class CLookupAdminDlg : public CDialog {
public:
    CLookupAdminDlg(CLookupOptionsMgr &manager, CWnd *parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnLogOn();
    afx_msg void OnLogOff();
    afx_msg void OnSetPassword();

private:
    // What is stored, in the boxes; and what the logon allows.
    void ShowOptions();
    void ShowLogon();

    CLookupOptionsMgr &m_manager;
};
