#include "host/LongWork.h"

#include <afxext.h>

#include "editorcore/WindowPump.h"
#include "host/Resource.h"

#include <algorithm>
#include <string>
#include <utility>

BEGIN_MESSAGE_MAP(CLongWork, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_BN_CLICKED(IDC_STOP_WORK, OnStop)
END_MESSAGE_MAP()

namespace {

constexpr ULONGLONG kAppearAfterMs = 400, kLookEveryMs = 50, kRoundMs = 2000;
constexpr int kBarSteps = 1000;
constexpr int kTextWidth = 190, kButtonWidth = 60, kGap = 4; // pixels at 96 dots an inch

// 1234567 as 1,234,567.
CString Grouped(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t place = digits.size(); place > 3; place -= 3)
        digits.insert(place - 3, 1, ',');
    return digits.c_str();
}

// Pressed in a window of another program the key is none for this one.
bool IsEscapeDown() {
    return (::GetAsyncKeyState(VK_ESCAPE) & 0x8000) != 0 &&
           ::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr) == ::GetCurrentThreadId();
}

CStatusBar *StatusBar() {
    CWnd *frame = AfxGetMainWnd();
    return frame != nullptr ? DYNAMIC_DOWNCAST(CStatusBar, frame->GetDescendantWindow(AFX_IDW_STATUS_BAR)) : nullptr;
}

} // namespace

void CLongWork::Begin() {
    End();
    m_begun = m_lastLook = ::GetTickCount64();
    m_done = m_all = 0;
    m_stopped = false;
}

bool CLongWork::Step() {
    ++m_done;
    return GoesOn();
}

bool CLongWork::StepTo(std::uint64_t done, std::uint64_t all) {
    if (m_begun == 0)
        Begin();
    m_done = done;
    m_all = all;
    return GoesOn();
}

// Looking at the clock is cheap, looking at the input is not.
bool CLongWork::GoesOn() {
    const ULONGLONG now = ::GetTickCount64();
    if (m_begun != 0 && now - m_lastLook >= kLookEveryMs) {
        m_lastLook = now;
        if (GetSafeHwnd() != nullptr || (now - m_begun >= kAppearAfterMs && Appear())) {
            Update();
            LookAtInput();
        }
        m_stopped = m_stopped || IsEscapeDown();
    }
    return !m_stopped;
}

bool CLongWork::Appear() {
    CStatusBar *bar = StatusBar();
    if (bar == nullptr || !bar->IsWindowVisible())
        return false;
    CRect area;
    bar->GetItemRect(0, &area);
    if (!CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD, area, bar, 0))
        return false;
    CClientDC dc(this);
    const auto scaled = [&](int pixels) { return ::MulDiv(pixels, dc.GetDeviceCaps(LOGPIXELSX), 96); };
    const int width = area.Width(), height = area.Height();
    const CRect button(width - scaled(kButtonWidth), 0, width, height);
    const CRect progress(std::min(scaled(kTextWidth), width / 2), 2, button.left - scaled(kGap), height - 2);
    m_button.Create("Stop (Esc)", WS_CHILD | WS_VISIBLE, button, this, IDC_STOP_WORK);
    m_button.SetFont(bar->GetFont(), FALSE);
    m_bar.Create(WS_CHILD | WS_VISIBLE, progress, this, IDC_WORK_BAR);
    m_bar.SetRange32(0, kBarSteps);
    ShowWindow(SW_SHOW);
    return true;
}

CRect CLongWork::TextArea() const {
    CRect area, bar;
    GetClientRect(&area);
    m_bar.GetWindowRect(&bar);
    ScreenToClient(&bar);
    area.right = bar.left;
    return area;
}

// The bar of work whose end is not known goes round.
void CLongWork::Update() {
    const ULONGLONG round = (m_lastLook - m_begun) % kRoundMs * kBarSteps / kRoundMs;
    m_bar.SetPos(static_cast<int>(m_all > 0 ? m_done * kBarSteps / m_all : round));
    m_text = Grouped(m_done) + (m_all > 0 ? " of " + Grouped(m_all) + " records" : CString(" done"));
    InvalidateRect(TextArea(), FALSE);
    UpdateWindow();
    m_bar.UpdateWindow();
    m_button.UpdateWindow();
}

// The messages of this window are worked off, so that its button works and it is painted.
void CLongWork::LookAtInput() {
    PumpWindow(m_hWnd, [](const MSG &) { return false; });
    MSG message;
    if (::PeekMessage(&message, nullptr, WM_CLOSE, WM_CLOSE, PM_REMOVE) && !PutBackQuit(message))
        StopToClose(message.hwnd);
    while (::PeekMessage(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        if (PutBackQuit(message))
            break;
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
            m_stopped = true;
    }
}

void CLongWork::StopToClose(HWND window) {
    m_stopped = true;
    m_closes = window;
}

void CLongWork::End() {
    m_begun = 0;
    if (GetSafeHwnd() != nullptr) {
        LookAtInput();
        DestroyWindow();
        MSG message;
        while (::PeekMessage(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE) && !PutBackQuit(message)) {
        }
    }
    if (const HWND closes = std::exchange(m_closes, nullptr))
        ::PostMessage(closes, WM_CLOSE, 0, 0);
    m_stopped = false; // short work asks Step without a beginning, and is not what was stopped
}

BOOL CLongWork::OnEraseBkgnd(CDC *) {
    return TRUE;
}

void CLongWork::OnPaint() {
    CPaintDC dc(this);
    CRect area;
    GetClientRect(&area);
    dc.FillSolidRect(&area, ::GetSysColor(COLOR_BTNFACE));
    CFont *old = dc.SelectObject(StatusBar()->GetFont());
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    area.right = TextArea().right - kGap;
    dc.DrawText(m_text, &area, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SelectObject(old);
}
