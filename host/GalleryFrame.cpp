#include "host/GalleryFrame.h"

#include "host/Resource.h"

IMPLEMENT_DYNAMIC(CGalleryFrame, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CGalleryFrame, CMDIChildWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_COMMAND(ID_EDIT_COPY, OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_PANE_RECORD, OnUpdateCellPane)
    ON_UPDATE_COMMAND_UI(ID_PANE_FIELD, OnUpdateTextPane)
END_MESSAGE_MAP()

void CGalleryFrame::Open(CWnd *frame) {
    const HWND client = static_cast<CMDIFrameWnd *>(frame)->m_hWndMDIClient;
    for (HWND child = ::GetWindow(client, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (auto *open = DYNAMIC_DOWNCAST(CGalleryFrame, CWnd::FromHandlePermanent(child))) {
            open->MDIActivate();
            return;
        }
    }
    auto *gallery = new CGalleryFrame;
    if (!gallery->LoadFrame(IDR_GALLERY, WS_CHILD | WS_OVERLAPPEDWINDOW, frame)) {
        AfxMessageBox("Could not create a window for the gallery!", MB_ICONHAND);
        return;
    }
    gallery->ShowWindow(SW_SHOWMAXIMIZED);
    gallery->MDIActivate();
    gallery->m_grid.SetFocus();
}

int CGalleryFrame::OnCreate(LPCREATESTRUCT create) {
    if (CMDIChildWnd::OnCreate(create) == -1)
        return -1;
    return m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST) ? 0 : -1;
}

void CGalleryFrame::OnSize(UINT type, int cx, int cy) {
    CMDIChildWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED && m_grid.GetSafeHwnd() != nullptr)
        m_grid.MoveWindow(0, 0, cx, cy);
}

void CGalleryFrame::OnSetFocus(CWnd *) {
    m_grid.SetFocus();
}

void CGalleryFrame::OnEditCopy() {
    m_grid.CopyCurrentText();
}

void CGalleryFrame::OnUpdateCellPane(CCmdUI *command) {
    command->Enable();
    command->SetText(m_grid.DescribeCurrentCell());
}

void CGalleryFrame::OnUpdateTextPane(CCmdUI *command) {
    command->Enable();
    command->SetText("Text: " + m_grid.CurrentText().SpanExcluding("\n"));
}
