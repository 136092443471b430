// The grid under random events, and the choice among them; the events stand in files of their own.
#include "RandomEvents.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

void RandomGrid::EndDrag() {
    ::PostMessageA(Cells(), WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
}

int RandomGrid::Note(const char *name, std::initializer_list<long>) {
    const bool move = std::strcmp(name, "CanMove") == 0;
    const bool hit = std::strncmp(name, "Hit", 3) == 0;
    if (m_dragStepsLeft > 0 && (move || hit)) {
        m_dragStepsLeft = hit ? 0 : m_dragStepsLeft - 1; // behind an end no further step is made
        if (m_dragStepsLeft == 0)
            EndDrag();
    }
    if (!m_vetoing)
        return 1;
    // What a host does that drops an empty record as it is left, or answers a move by showing less.
    if (m_random->OneIn(400) && (move || std::strcmp(name, "RowChange") == 0))
        SetNumberRows(GetNumberRows() / 2);
    if (m_random->OneIn(400) && (move || std::strcmp(name, "CanViewMove") == 0))
        SetNumberCols(std::max(GetNumberCols() - 1, 0));
    return m_random->OneIn(12) ? 0 : 1;
}

void RandomGrid::OnHitBottom(long numRows, long rowsPast, long rowsFound) {
    RecordingGrid::OnHitBottom(numRows, rowsPast, rowsFound);
    if (rowsFound > 0 && numRows < 500)
        SetNumberRows(numRows + std::min(rowsFound, 20L));
}

void RandomGrid::OnCharDown(UINT *key, int processed) {
    RecordingGrid::OnCharDown(key, processed);
    if (processed == UGCT_NOT_HANDLED && *key >= ' ')
        StartEdit(static_cast<int>(*key));
}

RandomEvents::RandomEvents(unsigned seed)
    : m_random(seed), m_first(&m_random, 1), m_second(&m_random, 2), m_grid(&m_random) {
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 420, 260), &m_host, 100);
    m_grid.AddCellType(&m_ellipsis);
    m_grid.AddDataSource(&m_first);
    m_grid.AddDataSource(&m_second);
    m_grid.SetDefaultDataSource(1);
    m_grid.SetGridUsingDataSource(1);
    m_grid.SetFocus();
    for (const Event *event = kEvents; event->weight > 0; ++event)
        m_weights += event->weight;
}

RandomEvents::~RandomEvents() {
    m_grid.m_vetoing = false;
    m_grid.DestroyWindow();
}

void RandomEvents::Say(const char *format, ...) {
    char text[200];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    m_text = text;
}

void RandomEvents::Next() {
    int ticket = m_random.Below(m_weights);
    const Event *event = kEvents;
    while (ticket >= event->weight)
        ticket -= (event++)->weight;
    (this->*event->act)();
    PumpAll();
}

namespace {

std::vector<BYTE> Pixels(HWND window) {
    CRect client;
    ::GetClientRect(window, &client);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = client.Width();
    info.bmiHeader.biHeight = client.Height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void *bits = nullptr;
    HDC screen = ::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPCHILDREN);
    HDC memory = ::CreateCompatibleDC(screen);
    HBITMAP bitmap = ::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    std::vector<BYTE> pixels;
    if (bitmap != nullptr) {
        HGDIOBJ old = ::SelectObject(memory, bitmap);
        ::BitBlt(memory, 0, 0, client.Width(), client.Height(), screen, 0, 0, SRCCOPY);
        ::GdiFlush();
        const auto *first = static_cast<const BYTE *>(bits);
        pixels.assign(first, first + 4 * client.Width() * client.Height());
        ::SelectObject(memory, old);
        ::DeleteObject(bitmap);
    }
    ::DeleteDC(memory);
    ::ReleaseDC(window, screen);
    return pixels;
}

} // namespace

bool RandomEvents::ScreenIsStale() {
    // A failing source and a type that draws by the moment show other things each time.
    if (!m_grid.m_GI.m_paintingEnabled || m_first.m_fails || m_grid.Edit() != nullptr || m_grid.List() != nullptr)
        return false;
    const bool hint = (::GetWindowLongA(m_grid.Hint(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (hint)
        return false;
    const HWND windows[] = {m_grid.Cells(), m_grid.TopHeading(), m_grid.SideHeading(), m_grid.Corner()};
    std::vector<BYTE> before[std::size(windows)];
    for (size_t i = 0; i < std::size(windows); ++i) {
        ::UpdateWindow(windows[i]);
        before[i] = Pixels(windows[i]);
    }
    for (size_t i = 0; i < std::size(windows); ++i) {
        ::InvalidateRect(windows[i], nullptr, FALSE);
        ::UpdateWindow(windows[i]);
        const std::vector<BYTE> now = Pixels(windows[i]);
        if (before[i] != now) {
            m_text += " [window " + std::to_string(i) + "]";
            return true;
        }
    }
    return false;
}
