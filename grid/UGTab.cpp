#include "grid/UGTab.h"

#include "grid/UGCtrl.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CUGTab, CWnd)

BEGIN_MESSAGE_MAP(CUGTab, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_HSCROLL()
END_MESSAGE_MAP()

namespace {

constexpr int kFontHeightPx = 14; // at 96 dots an inch
constexpr int kFontWeight = 500;
constexpr int kLinePx = 10; // what an arrow of the bar scrolls by
constexpr COLORREF kCurrentBack = RGB(255, 255, 255);

// The bar has two arrows and no thumb.
int ScrollWidth() {
    return 2 * ::GetSystemMetrics(SM_CXHSCROLL);
}

} // namespace

BOOL CUGTab::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(0, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, nullptr);
    create.style |= WS_CLIPCHILDREN;
    return CWnd::PreCreateWindow(create);
}

int CUGTab::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1)
        return -1;
    return m_scroll.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 0, 0), this, kTabScrollChildId) ? 0 : -1;
}

HFONT CUGTab::Font() {
    if (m_font != nullptr)
        return m_font;
    if (m_ownFont.GetSafeHandle() == nullptr)
        m_ownFont.CreateFont(m_ctrl->ScaledPx(kFontHeightPx), 0, 0, 0, kFontWeight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0,
                             "Arial");
    return static_cast<HFONT>(m_ownFont.GetSafeHandle());
}

int CUGTab::TextWidth(const char *text) {
    HDC screen = ::GetDC(nullptr);
    HGDIOBJ old = ::SelectObject(screen, Font());
    SIZE extent{};
    ::GetTextExtentPoint32A(screen, text, static_cast<int>(std::strlen(text)), &extent);
    ::SelectObject(screen, old);
    ::ReleaseDC(nullptr, screen);
    return static_cast<int>(extent.cx);
}

int CUGTab::SetFont(CFont *font) {
    m_font = font != nullptr ? static_cast<HFONT>(font->GetSafeHandle()) : nullptr;
    for (int i = 0; i < GetTabCount(); ++i)
        m_layout.SetTextWidth(i, TextWidth(m_layout.Tabs()[i].text.c_str()));
    ShowScroll();
    return GRID_SUCCESS;
}

int CUGTab::AddTab(const char *text, long id, int at) {
    const int result = m_layout.Add(text, id, TextWidth(text), at);
    ShowScroll();
    return result;
}

int CUGTab::DeleteTab(long id) {
    const int result = m_layout.Delete(id);
    ShowScroll();
    return result;
}

int CUGTab::SelectTab(long id) {
    const int result = m_layout.Select(id);
    ShowScroll();
    return result;
}

long CUGTab::GetSelectedTab() const {
    return GetTabCount() > 0 ? m_layout.Tabs()[m_layout.Current()].id : -1;
}

void CUGTab::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    ShowScroll();
}

// Lays tabs and bar out for the window's present size: the bar shows only when the tabs need it.
void CUGTab::ShowScroll() {
    if (GetSafeHwnd() == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    m_layout.SetRoom(client.Width());
    const bool needed = m_layout.MaxScroll() > 0;
    if (needed) {
        const int width = std::min(ScrollWidth(), client.Width());
        m_layout.SetRoom(client.Width() - width);
        m_scroll.MoveWindow(client.Width() - width, 0, width, client.Height());
        m_scroll.SetScrollRange(0, m_layout.MaxScroll(), FALSE);
        m_scroll.SetScrollPos(m_layout.Scroll());
    }
    m_scroll.ShowWindow(needed ? SW_SHOWNA : SW_HIDE);
    Invalidate(FALSE);
}

void CUGTab::OnHScroll(UINT code, UINT position, CScrollBar *) {
    switch (code) {
    case SB_LINELEFT: m_layout.SetScroll(m_layout.Scroll() - kLinePx); break;
    case SB_LINERIGHT: m_layout.SetScroll(m_layout.Scroll() + kLinePx); break;
    case SB_PAGELEFT: m_layout.SetScroll(m_layout.Scroll() - 5 * kLinePx); break;
    case SB_PAGERIGHT: m_layout.SetScroll(m_layout.Scroll() + 5 * kLinePx); break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: m_layout.SetScroll(static_cast<int>(position)); break;
    default: return;
    }
    m_scroll.SetScrollPos(m_layout.Scroll());
    Invalidate(FALSE);
}

void CUGTab::OnLButtonDown(UINT, CPoint point) {
    const int index = m_layout.HitTest(point.x);
    if (index < 0)
        return;
    const long id = m_layout.Tabs()[index].id;
    SelectTab(id);
    UpdateWindow();
    m_ctrl->OnTabSelected(id);
}

BOOL CUGTab::OnEraseBkgnd(CDC *) {
    return TRUE;
}

void CUGTab::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    HGDIOBJ oldFont = ::SelectObject(dc.GetSafeHdc(), Font());
    HGDIOBJ oldPen = ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(BLACK_PEN));
    HGDIOBJ oldBrush = ::SelectObject(dc.GetSafeHdc(), ::GetStockObject(DC_BRUSH));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    // From the right, so that each tab's left slope lies on its neighbour; the current one on top of all.
    for (int i = GetTabCount() - 1; i >= 0; --i) {
        if (i != m_layout.Current())
            DrawTab(&dc, i, client.Height());
    }
    if (GetTabCount() > 0)
        DrawTab(&dc, m_layout.Current(), client.Height());
    ::SelectObject(dc.GetSafeHdc(), oldBrush);
    ::SelectObject(dc.GetSafeHdc(), oldPen);
    ::SelectObject(dc.GetSafeHdc(), oldFont);
}

void CUGTab::DrawTab(CDC *dc, int index, int height) {
    POINT corners[4];
    m_layout.Corners(index, height, corners);
    const bool current = index == m_layout.Current();
    ::SetDCBrushColor(dc->GetSafeHdc(), current ? kCurrentBack : ::GetSysColor(COLOR_BTNFACE));
    ::Polygon(dc->GetSafeHdc(), corners, 4);
    if (current) // open towards the cells that it stands for
        dc->FillSolidRect(corners[0].x + 1, 0, corners[1].x - corners[0].x - 1, 1, kCurrentBack);
    CRect text(corners[3].x, 0, corners[2].x, height);
    dc->SetBkMode(TRANSPARENT);
    dc->DrawText(m_layout.Tabs()[index].text.c_str(), &text,
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}
