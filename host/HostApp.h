// CHostApp: the sample host's application object.
#pragma once

#include <afxwin.h>

#include "host/HostService.h"

class CChildFrame;

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
    // Whether a window may be closed now. While something is asked it may not, and what asks comes forward; long work
    // is stopped first, and the window closed after it; while a table opens it waits.
    bool MayClose(CWnd *window);

private:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnFileOpen();
    afx_msg void OnGallery();
    afx_msg void OnAbout();
    afx_msg void OnLookupUserOptions();
    afx_msg void OnLookupAdminOptions();

    BOOL Start();
    static void LoadLibrariesFromSafeFolders();
    // The whole of it, however long.
    CString CommandLineFile() const;
    CChildFrame *FindOpenTable(const char *path) const;

    CHostService m_service;
    bool m_opening = false; // a table
};

CHostApp *GetHostApp();
