#include "grid/UGHint.h"

#include "grid/UGDefine.h"
#include "grid/UGPlacing.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CUGHint, CWnd)

BEGIN_MESSAGE_MAP(CUGHint, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace {

constexpr int kTextMarginPx = 4;
constexpr int kLineMarginPx = 3;

} // namespace

BOOL CUGHint::PreCreateWindow(CREATESTRUCT &create) {
    if (create.lpszClass == nullptr)
        create.lpszClass = AfxRegisterWndClass(CS_SAVEBITS, ::LoadCursorA(nullptr, IDC_ARROW), nullptr, nullptr);
    return CWnd::PreCreateWindow(create);
}

int CUGHint::SetText(const char *text) {
    m_text = text;
    if (GetSafeHwnd() != nullptr)
        Invalidate();
    return GRID_SUCCESS;
}

int CUGHint::SetAlignment(short alignment) {
    m_alignment = alignment;
    return GRID_SUCCESS;
}

int CUGHint::SetFont(CFont *font) {
    m_font = font != nullptr ? static_cast<HFONT>(font->GetSafeHandle()) : nullptr;
    return GRID_SUCCESS;
}

int CUGHint::SetTextColor(COLORREF colour) {
    m_textColor = colour;
    return GRID_SUCCESS;
}

int CUGHint::SetBackColor(COLORREF colour) {
    m_backColor = colour;
    return GRID_SUCCESS;
}

int CUGHint::MoveHint(int x, int y, int minimumWidth) {
    CClientDC dc(this);
    HGDIOBJ old = m_font != nullptr ? ::SelectObject(dc.GetSafeHdc(), m_font) : nullptr;
    TEXTMETRICA metrics;
    ::GetTextMetricsA(dc.GetSafeHdc(), &metrics);
    SIZE extent{};
    ::GetTextExtentPoint32A(dc.GetSafeHdc(), m_text, m_text.GetLength(), &extent);
    if (old != nullptr)
        ::SelectObject(dc.GetSafeHdc(), old);
    const CSize size(std::max<int>(extent.cx + kTextMarginPx, minimumWidth),
                     metrics.tmHeight + metrics.tmExternalLeading + kLineMarginPx);
    CRect parent;
    GetParent()->GetClientRect(&parent);
    MoveWindow(CRect(UGPlaceHint(CPoint(x, y), size, m_alignment, parent)));
    return GRID_SUCCESS;
}

int CUGHint::Show() {
    ::SetWindowPos(m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    UpdateWindow();
    return GRID_SUCCESS;
}

int CUGHint::Hide() {
    ShowWindow(SW_HIDE);
    return GRID_SUCCESS;
}

void CUGHint::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    HGDIOBJ old = m_font != nullptr ? ::SelectObject(dc.GetSafeHdc(), m_font) : nullptr;
    dc.FillSolidRect(&client, m_backColor);
    ::FrameRect(dc.GetSafeHdc(), &client, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    dc.SetTextColor(m_textColor);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(m_text, &client, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (old != nullptr)
        ::SelectObject(dc.GetSafeHdc(), old);
}
