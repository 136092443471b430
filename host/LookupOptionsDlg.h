// CLookupOptionsDlg: the lookup options of the user.
#pragma once

#include <afxwin.h>

#include "host/LookupOptions.h"

class CLookupOptionsDlg : public CDialog {
public:
    CLookupOptionsDlg(const CHostLookupOptions &options, CWnd *parent);

    CHostLookupOptions m_options; // as chosen, once the dialog has ended with IDOK

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange *exchange) override;
    DECLARE_MESSAGE_MAP()
    afx_msg void OnChange() { EnableWhatCounts(); }

private:
    void EnableWhatCounts();
};
