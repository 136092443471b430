// CLookupPropertiesDlg: the properties that a lookup table is compiled with.
#pragma once

#include <afxwin.h>

struct CLookupProperties {
    bool m_caseSensitive = true;
    bool m_acceptEmptyCells = true;
    bool m_enableValidation = true;
    bool m_sortMenuItems = true;
};

class CLookupPropertiesDlg : public CDialog {
public:
    CLookupPropertiesDlg(const CLookupProperties &properties, CWnd *parent);

    // Shows the dialog with what was chosen last, or with `properties` the first time. False, and nothing
    // changed, when it is cancelled.
    static bool Ask(CLookupProperties &properties, CWnd *parent);

    CLookupProperties m_properties; // as chosen, once the dialog has ended with IDOK

protected:
    void DoDataExchange(CDataExchange *exchange) override;
};
