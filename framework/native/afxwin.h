// The application object and its message box for the native build, so that window-free sources include <afxwin.h>
// everywhere.
//
// Differences from the framework's header: nothing else is declared. The box of an application that does not
// override DoMessageBox is a line on standard error, answered with IDOK.
#pragma once

#include <afx.h>

#define MB_OK 0x00000000
#define MB_YESNO 0x00000004
#define MB_ICONHAND 0x00000010
#define MB_ICONQUESTION 0x00000020
#define MB_ICONINFORMATION 0x00000040
#define IDOK 1
#define IDYES 6
#define IDNO 7

class CWinApp {
public:
    // The object becomes the application, as long as it lives.
    CWinApp();
    virtual ~CWinApp();
    CWinApp(const CWinApp &) = delete;
    CWinApp &operator=(const CWinApp &) = delete;

    virtual int DoMessageBox(LPCTSTR text, UINT type, UINT helpId);
};

// Null while there is none.
CWinApp *AfxGetApp();
int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
