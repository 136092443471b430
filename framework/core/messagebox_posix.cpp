#include <afxwin.h>

#include "report.h"

namespace {

CWinApp *g_app = nullptr;

} // namespace

CWinApp::CWinApp() {
    g_app = this;
}

CWinApp::~CWinApp() {
    if (g_app == this)
        g_app = nullptr;
}

int CWinApp::DoMessageBox(LPCTSTR text, UINT type, UINT helpId) {
    return ReportToUser(text, type, helpId);
}

CWinApp *AfxGetApp() {
    return g_app;
}

int AfxMessageBox(LPCTSTR text, UINT type, UINT helpId) {
    return g_app != nullptr ? g_app->DoMessageBox(text, type, helpId) : ReportToUser(text, type, helpId);
}
