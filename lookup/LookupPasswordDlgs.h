// The dialogs of the administrator's password. Their templates stand in the library: show them under
// CResourceScope.
#pragma once

#include <afxwin.h>

// Asks for a new password, twice.
class ORVANE_API CLookupAdminPasswordDlg : public CDialog {
public:
    // Passwords have up to `maxLength` characters.
    explicit CLookupAdminPasswordDlg(int maxLength, CWnd *parent = nullptr);

    CString m_sPassword; // as typed, once the dialog has ended with IDOK
    int m_nMaxLength;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    void Refuse(int control, const char *text);
};

// Asks for the current password.
class ORVANE_API CLookupOldPasswordDlg : public CDialog {
public:
    explicit CLookupOldPasswordDlg(int maxLength, CWnd *parent = nullptr);

    CString m_sPassword; // as typed, once the dialog has ended with IDOK
    int m_nMaxLength;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange *dx) override;
};
