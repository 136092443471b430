// CHostLookupOptions: what the host keeps of the lookup options, in the registry below the application's own
// key.
#pragma once

#include <afxwin.h>

#include "host/LookupAction.h"

struct CHostLookupOptions {
    bool m_validate = true;
    bool m_validateOnKey = true;
    bool m_resolveSubMenus = true;
    bool m_allowPartialCodes = false;
    bool m_beepOnInvalid = true;
    int m_invalidAction = LookupAction::kReject;
    CString m_replaceString;
    CString m_prependString;
    UINT m_codeWidth = 5; // characters
    UINT m_descriptionWidth = 15;

    // Reads what is stored; the defaults stand in for what is not.
    void Load();
    void Save() const;
    void SaveWidths() const;
};
