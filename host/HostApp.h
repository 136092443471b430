// CHostApp: the sample host's application object.
#pragma once

#include <afxwin.h>

#include "host/HostService.h"

class CHostApp : public CWinApp {
public:
    CHostApp();
    BOOL InitInstance() override;
    BOOL OnIdle(LONG count) override;
    int DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId) override;
    BOOL OpenRecentFile(LPCTSTR path) override;

    CHostService &Service() { return m_service; }
    // Opens the table in a child window of its own, or brings the one that shows it to the front.
    bool OpenTable(const char *path);

private:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnFileOpen();
    afx_msg void OnGallery();
    afx_msg void OnAbout();
    afx_msg void OnLookupUserOptions();
    afx_msg void OnLookupAdminOptions();

    CString CommandLineFile() const;

    CHostService m_service;
};

CHostApp *GetHostApp();
