#include "host/MainFrame.h"

#include "host/ChildFrame.h"
#include "host/HostApp.h"
#include "host/OptionsDlg.h"
#include "host/Resource.h"

#include <vector>

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_DROPFILES()
    ON_COMMAND(ID_VIEW_OPTIONS, OnViewOptions)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PANE_RECORD, ID_PANE_FILTER, OnUpdateEmptyPane)
END_MESSAGE_MAP()

namespace {

const char *const kSection = "Frame";

struct Pane {
    UINT id;
    int widthPx; // at 96 dots an inch
};

constexpr Pane kPanes[] = {
    {ID_SEPARATOR, 0}, {ID_PANE_RECORD, 190}, {ID_PANE_SELECTION, 120}, {ID_PANE_FIELD, 260}, {ID_PANE_MODE, 90}, {ID_PANE_MODIFIED, 80}, {ID_PANE_FILTER, 130}};

} // namespace

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT &create) {
    create.cx = ::GetSystemMetrics(SM_CXSCREEN) * 3 / 4;
    create.cy = ::GetSystemMetrics(SM_CYSCREEN) * 3 / 4;
    return CMDIFrameWnd::PreCreateWindow(create);
}

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CMDIFrameWnd::OnCreate(create) == -1)
        return -1;
    UINT ids[std::size(kPanes)];
    for (size_t i = 0; i < std::size(kPanes); ++i)
        ids[i] = kPanes[i].id;
    if (!m_statusBar.Create(this) || !m_statusBar.SetIndicators(ids, std::size(kPanes)))
        return -1;
    CClientDC dc(this);
    const int dotsPerInch = dc.GetDeviceCaps(LOGPIXELSX);
    for (size_t i = 1; i < std::size(kPanes); ++i)
        m_statusBar.SetPaneInfo(static_cast<int>(i), kPanes[i].id, SBPS_NORMAL,
                                ::MulDiv(kPanes[i].widthPx, dotsPerInch, 96));
    m_statusBar.SetPaneInfo(0, ID_SEPARATOR, SBPS_NOBORDERS | SBPS_STRETCH, 0);
    DragAcceptFiles(TRUE);
    return 0;
}

bool CMainFrame::CloseTables() {
    while (CMDIChildWnd *child = MDIGetActive()) {
        const HWND window = child->m_hWnd;
        child->SendMessage(WM_CLOSE, 0, 0);
        if (::IsWindow(window))
            return false; // the user keeps it open
    }
    return true;
}

// The session ends without any of its windows being closed, so that nothing more is saved then than the user wants now.
BOOL CMainFrame::OnQueryEndSession() {
    if (!GetHostApp()->MayClose(this))
        return FALSE;
    std::vector<HWND> tables;
    for (HWND child = ::GetWindow(m_hWndMDIClient, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        tables.push_back(child);
    for (const HWND table : tables) {
        auto *child = DYNAMIC_DOWNCAST(CChildFrame, CWnd::FromHandlePermanent(table));
        if (child != nullptr && !child->SaveOrDiscard())
            return FALSE;
    }
    return TRUE;
}

void CMainFrame::OnClose() {
    if (!GetHostApp()->MayClose(this) || !CloseTables())
        return;
    SavePlacement();
    AfxGetApp()->SaveStdProfileSettings();
    CMDIFrameWnd::OnClose();
}

void CMainFrame::SavePlacement() {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (::GetWindowPlacement(m_hWnd, &placement))
        AfxGetApp()->WriteProfileBinary(kSection, "Placement", reinterpret_cast<BYTE *>(&placement),
                                        sizeof placement);
}

// Whether the registry's bytes are a placement in which the user can take hold of the window. Where no display is any
// more, the system's own place is better.
static bool ReadPlacement(const BYTE *data, UINT bytes, WINDOWPLACEMENT *placement) {
    constexpr LONG kLeastPx = 100, kMostPx = 32767;
    if (bytes != sizeof *placement)
        return false;
    std::memcpy(placement, data, sizeof *placement);
    placement->length = sizeof *placement;
    placement->flags = 0;
    if (placement->showCmd != SW_SHOWMAXIMIZED)
        placement->showCmd = SW_SHOWNORMAL;
    const RECT &place = placement->rcNormalPosition;
    for (const LONG edge : {place.left, place.top, place.right, place.bottom}) {
        if (edge < -kMostPx || edge > kMostPx)
            return false;
    }
    const RECT caption = {place.left, place.top, place.right, place.top + ::GetSystemMetrics(SM_CYCAPTION)};
    return place.right - place.left >= kLeastPx && place.bottom - place.top >= kLeastPx &&
           ::MonitorFromRect(&caption, MONITOR_DEFAULTTONULL) != nullptr;
}

void CMainFrame::RestorePlacement(int show) {
    BYTE *data = nullptr;
    UINT bytes = 0;
    WINDOWPLACEMENT placement;
    if (AfxGetApp()->GetProfileBinary(kSection, "Placement", &data, &bytes)) {
        if (ReadPlacement(data, bytes, &placement)) {
            ::SetWindowPlacement(m_hWnd, &placement);
            show = static_cast<int>(placement.showCmd);
        }
        delete[] data;
    }
    ShowWindow(show);
}

void CMainFrame::OnDropFiles(HDROP drop) {
    SetActiveWindow();
    const UINT count = ::DragQueryFileA(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        CString path;
        const UINT length = ::DragQueryFileA(drop, i, nullptr, 0);
        ::DragQueryFileA(drop, i, path.GetBuffer(static_cast<int>(length)), length + 1);
        path.ReleaseBuffer();
        if (!path.IsEmpty())
            GetHostApp()->OpenTable(path);
    }
    ::DragFinish(drop);
}

void CMainFrame::OnViewOptions() {
    if (COptionsDlg(GetHostApp()->Service().Options(), this).DoModal() == IDOK)
        SendMessageToDescendants(kMsgOptionsChanged, 0, 0);
}

// With no table open the panes are empty; an active child answers before the frame is asked.
void CMainFrame::OnUpdateEmptyPane(CCmdUI *command) {
    command->SetText("");
}
