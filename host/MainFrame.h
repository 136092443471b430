// CMainFrame: the host's frame window, with one child window a table.
#pragma once

#include <afxext.h>
#include <afxwin.h>

// What the open and save-as dialogs offer.
constexpr const char *kTableFilter = "Tables (*.dbf)|*.dbf|All files (*.*)|*.*||";

// To every window below the frame: the options are others now.
constexpr UINT kMsgOptionsChanged = WM_APP + 1;

class CMainFrame : public CMDIFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)

public:
    // Shows the window where it stood when the host was last closed.
    void RestorePlacement(int show);

protected:
    BOOL PreCreateWindow(CREATESTRUCT &create) override;
    DECLARE_MESSAGE_MAP()
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg void OnViewOptions();
    afx_msg void OnUpdateEmptyPane(CCmdUI *command);

private:
    bool CloseTables();
    void SavePlacement();

    CStatusBar m_statusBar;
};
