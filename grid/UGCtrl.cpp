// Bringing the control up, laying its windows out, and its messages.
#include "grid/UGCtrl.h"
#include "grid/ValueScope.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CUGCtrl, CWnd)

BEGIN_MESSAGE_MAP(CUGCtrl, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_WM_ERASEBKGND()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr int kFirstMenuCommand = 1000; // popup menu items from here on reach OnMenuCommand

int EvaluateThroughControl(CUGCtrl *ctrl, CUGCell *a, CUGCell *b) {
    return ctrl->OnSortEvaluate(a, b);
}

} // namespace

CUGCtrl::CUGCtrl() {
    ReadSystemColours();
    m_GI.m_vScrollWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    m_GI.m_hScrollHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    m_mem.SetSortEvaluator(EvaluateThroughControl);
    AddDataSource(&m_mem);
    m_builtInTypes.push_back(std::make_unique<CUGCellType>(0));
    m_builtInTypes.push_back(std::make_unique<CUGCheckBoxType>());
    m_builtInTypes.push_back(std::make_unique<CUGDropListType>());
    m_builtInTypes.push_back(std::make_unique<CUGArrowType>());
    m_builtInTypes.push_back(std::make_unique<CUGAutoFontType>());
    m_builtInTypes.push_back(std::make_unique<CUGProgressType>());
    m_builtInTypes.push_back(std::make_unique<CUGSpinButtonType>());
    for (const auto &type : m_builtInTypes)
        AddCellType(type.get());
    m_grid.m_ctrl = m_topHdg.m_ctrl = m_sideHdg.m_ctrl = m_cornerBtn.m_ctrl = this;
    m_vScroll.m_ctrl = m_hScroll.m_ctrl = m_tab.m_ctrl = m_dropTarget.m_ctrl = this;
    m_grid.m_GI = m_topHdg.m_GI = m_sideHdg.m_GI = m_cornerBtn.m_GI = &m_GI;
    m_vScroll.m_GI = m_hScroll.m_GI = m_tab.m_GI = &m_GI;
}

CUGCtrl::~CUGCtrl() {
    if (GetSafeHwnd() != nullptr)
        DestroyWindow();
}

void CUGCtrl::ReadSystemColours() {
    m_GI.SetDefaultColours(::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW),
                           ::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT),
                           ::GetSysColor(COLOR_BTNFACE));
}

int CUGCtrl::TextHeight(HFONT font) {
    CClientDC dc(this);
    HGDIOBJ old = font != nullptr ? ::SelectObject(dc.GetSafeHdc(), font) : nullptr;
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(dc.GetSafeHdc(), &metrics);
    if (old != nullptr)
        ::SelectObject(dc.GetSafeHdc(), old);
    return static_cast<int>(metrics.tmHeight);
}

BOOL CUGCtrl::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, nullptr);
    create.style |= WS_CLIPCHILDREN;
    return CWnd::PreCreateWindow(create);
}

BOOL CUGCtrl::CreateGrid(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create(nullptr, nullptr, style | WS_CHILD, rect, parent, id);
}

int CUGCtrl::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1)
        return -1;
    if (CWnd *parent = GetParent())
        m_GI.m_defaultFont = reinterpret_cast<HFONT>(::SendMessageA(parent->m_hWnd, WM_GETFONT, 0, 0));
    CClientDC dc(this);
    m_GI.ScaleDefaults(dc.GetDeviceCaps(LOGPIXELSY));
    if (!CreateChildren())
        return -1;
    m_dropTarget.Register(&m_grid); // fails without OLE: then nothing can be dropped
    if (m_popupMenu.GetSafeHmenu() == nullptr) // a window made anew has the menu as it was filled
        m_popupMenu.CreatePopupMenu();
    OnSetup();
    const HFONT heading = m_GI.m_headingDefault.GetFontHandle();
    m_GI.FitDefaultsToText(TextHeight(m_GI.m_defaultFont),
                           TextHeight(heading != nullptr ? heading : m_GI.m_defaultFont));
    AdjustComponents();
    return 0;
}

bool CUGCtrl::CreateChildren() {
    const CRect nowhere(0, 0, 0, 0);
    // Hint and drop list lie above the cells, which must not paint over them.
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
    return m_grid.Create(nullptr, nullptr, kStyle, nowhere, this, kGridChildId) &&
           m_topHdg.Create(nullptr, nullptr, kStyle, nowhere, this, kTopHeadingChildId) &&
           m_sideHdg.Create(nullptr, nullptr, kStyle, nowhere, this, kSideHeadingChildId) &&
           m_cornerBtn.Create(nullptr, nullptr, kStyle, nowhere, this, kCornerChildId) &&
           m_vScroll.Create(WS_CHILD | SBS_VERT, nowhere, this, kVScrollChildId) &&
           m_hScroll.Create(WS_CHILD | SBS_HORZ, nowhere, this, kHScrollChildId) &&
           m_hint.Create(nullptr, nullptr, WS_CHILD | WS_CLIPSIBLINGS, nowhere, this, kHintChildId) &&
           m_tab.Create(nullptr, nullptr, WS_CHILD, nowhere, this, kTabChildId);
}

// Sets the extents of the cell area for a client area of this size and says whether they changed.
bool CUGCtrl::FitAxes(int width, int height) {
    const int wide = std::max(width - m_GI.m_sideHeadingWidth, 0);
    const int high = std::max(height - m_GI.m_topHeadingHeight, 0);
    bool vertical = false;
    bool horizontal = false;
    // A bar takes room from the other axis, which can make the other bar needed: at most two rounds settle it.
    for (int round = 0; round < 3; ++round) {
        m_GI.m_cols.m_extent = std::max(wide - (vertical ? m_GI.m_vScrollWidth : 0), 0);
        m_GI.m_rows.m_extent = std::max(high - (horizontal ? m_GI.m_hScrollHeight : 0), 0);
        m_GI.m_cols.m_maxLeading = m_GI.m_cols.ComputeMaxLeading();
        m_GI.m_rows.m_maxLeading = m_GI.m_rows.ComputeMaxLeading();
        vertical = vertical || m_GI.m_rows.m_maxLeading > 0;
        horizontal = horizontal || m_GI.m_cols.m_maxLeading > 0 || m_GI.m_tabWidth > 0;
    }
    const bool changed = vertical != m_GI.m_vScrollShown || horizontal != m_GI.m_hScrollShown;
    m_GI.m_vScrollShown = vertical;
    m_GI.m_hScrollShown = horizontal;
    return changed;
}

// In a client area that is too small for them the bars come first and the headings get what is left.
void CUGCtrl::PlaceChildren(int width, int height) {
    const int right = std::max(width - (m_GI.m_vScrollShown ? m_GI.m_vScrollWidth : 0), 0);
    const int barTop = std::max(height - (m_GI.m_hScrollShown ? m_GI.m_hScrollHeight : 0), 0);
    const int side = std::min(m_GI.m_sideHeadingWidth, right);
    const int top = std::min(m_GI.m_topHeadingHeight, barTop);
    const int cellsX = m_GI.m_cols.m_extent;
    const int cellsY = m_GI.m_rows.m_extent;
    m_cornerBtn.MoveWindow(0, 0, side, top);
    m_topHdg.MoveWindow(side, 0, cellsX, top);
    m_sideHdg.MoveWindow(0, top, side, cellsY);
    m_grid.MoveWindow(side, top, cellsX, cellsY);
    if (m_GI.m_vScrollShown)
        m_vScroll.MoveWindow(right, 0, width - right, barTop);
    if (m_GI.m_hScrollShown) {
        const int tabs = std::min(m_GI.m_tabWidth, right);
        m_hScroll.MoveWindow(tabs, barTop, right - tabs, height - barTop);
        m_tab.MoveWindow(0, barTop, tabs, height - barTop);
    }
    m_vScroll.ShowWindow(m_GI.m_vScrollShown ? SW_SHOWNA : SW_HIDE);
    m_hScroll.ShowWindow(m_GI.m_hScrollShown ? SW_SHOWNA : SW_HIDE);
    m_tab.ShowWindow(m_GI.m_tabWidth > 0 ? SW_SHOWNA : SW_HIDE);
}

void CUGCtrl::AdjustComponents() {
    if (m_grid.GetSafeHwnd() == nullptr || m_GI.m_adjusting)
        return;
    {
        const CUGValueScope<int> adjusting(&m_GI.m_adjusting, 1);
        CRect client;
        GetClientRect(&client);
        FitAxes(client.Width(), client.Height());
        HoldLeadingInRange();
        PlaceChildren(client.Width(), client.Height());
        m_vScroll.UpdateRange();
        m_hScroll.UpdateRange();
    }
    Invalidate(FALSE);
    RedrawAll();
}

void CUGCtrl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    AdjustComponents();
}

void CUGCtrl::OnSetFocus(CWnd *old) {
    CWnd::OnSetFocus(old);
    m_grid.SetFocus();
    UpdateState();
}

// The children cover all but the square between the bars.
BOOL CUGCtrl::OnEraseBkgnd(CDC *dc) {
    CRect client;
    GetClientRect(&client);
    dc->FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void CUGCtrl::OnHScroll(UINT code, UINT, CScrollBar *) {
    m_hScroll.HandleScroll(code);
}

void CUGCtrl::OnVScroll(UINT code, UINT, CScrollBar *) {
    m_vScroll.HandleScroll(code);
}

// The wheel comes to the window that has the focus, or the pointer; what has no use for it passes it on to here.
BOOL CUGCtrl::OnMouseWheel(UINT, short delta, CPoint) {
    m_grid.TurnWheel(delta);
    return TRUE;
}

// The default colours follow the system. The types read the system's colours as they draw and keep no pens or
// brushes, so the repaint is all that they need.
void CUGCtrl::OnSysColorChange() {
    CWnd::OnSysColorChange();
    ReadSystemColours();
    RedrawAll();
}

void CUGCtrl::OnDestroy() {
    DestroyEdit();
    m_dropTarget.Revoke();
    CWnd::OnDestroy();
}

BOOL CUGCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    const int item = LOWORD(wParam);
    if (lParam == 0 && item >= kFirstMenuCommand && m_menuSection != 0) {
        OnMenuCommand(m_menuCol, m_menuRow, m_menuSection, item);
        m_menuSection = 0;
        return TRUE;
    }
    return CWnd::OnCommand(wParam, lParam);
}

void CUGCtrl::ShowPopupMenu(int col, long row, int section, POINT screen) {
    if (!m_GI.m_popupMenuEnabled || !OnMenuStart(col, row, section))
        return;
    m_menuCol = col;
    m_menuRow = row;
    m_menuSection = section;
    const int item = m_popupMenu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON | TPM_RETURNCMD, screen.x,
                                                screen.y, this);
    m_menuSection = 0;
    if (item >= kFirstMenuCommand)
        OnMenuCommand(col, row, section, item);
}

// Shows what the update found: views that scrolled shift their image, the rest repaints by what changed.
void CUGCtrl::RepaintViews() {
    if (m_grid.GetSafeHwnd() == nullptr || !m_GI.m_paintingEnabled)
        return;
    m_grid.ShowMove();
    m_topHdg.ShowMove();
    m_sideHdg.ShowMove();
    m_vScroll.UpdateRange();
    m_hScroll.UpdateRange();
}
