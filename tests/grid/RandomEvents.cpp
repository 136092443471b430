// The grid under random events, and the choice among them; the events stand in files of their own.
#include "RandomEvents.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

void RandomGrid::EndDrag() {
    ::PostMessageA(Cells(), WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
}

// Behind an end no further step is made, and none is told.
void RandomGrid::CountDragStep(bool hit, long newCol) {
    const bool atEnd = hit || (m_dragsAcross && (newCol == 0 || newCol == GetNumberCols() - 1));
    m_dragStepsLeft = atEnd ? 0 : m_dragStepsLeft - 1;
    if (m_dragStepsLeft == 0)
        EndDrag();
}

int RandomGrid::Note(const char *name, std::initializer_list<long> arguments) {
    const bool move = std::strcmp(name, "CanMove") == 0;
    const bool hit = std::strncmp(name, "Hit", 3) == 0;
    if (m_dragStepsLeft > 0 && (move || hit))
        CountDragStep(hit, move ? arguments.begin()[2] : -1);
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

// A host that shows a column of its source twice repaints both.
int RandomGrid::OnSetCell(int col, long row, CUGCell *cell) {
    for (int other = 0; other < GetNumberCols(); ++other) {
        const int shown = GetDataColNumber(other);
        if (other != col && (shown == col || shown == GetDataColNumber(col)))
            RedrawCol(other);
    }
    return RecordingGrid::OnSetCell(col, row, cell);
}

void RandomGrid::OnCharDown(UINT *key, int processed) {
    RecordingGrid::OnCharDown(key, processed);
    if (processed == UGCT_NOT_HANDLED && *key >= ' ')
        StartEdit(static_cast<int>(*key));
}

RandomEvents::RandomEvents(unsigned seed)
    : m_seed(seed), m_random(seed), m_chance(seed), m_first(&m_chance, 1), m_second(&m_chance, 2),
      m_grid(&m_chance) {
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

namespace {

// All that waits but painting, which comes when nothing else does: behind quick input it is several events late.
void PumpInput() {
    MSG message;
    constexpr UINT kAllButPaint = PM_QS_INPUT | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE | kAllButPaint)) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
}

} // namespace

void RandomEvents::Next() {
    m_chance = SeededRandom(m_seed + ++m_number);
    int ticket = m_random.Below(m_weights);
    const Event *event = kEvents;
    while (ticket >= event->weight)
        ticket -= (event++)->weight;
    (this->*event->act)();
    m_random.OneIn(3) ? PumpAll() : PumpInput();
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

// The rectangle that holds all pixels that differ.
std::string Difference(HWND window, const std::vector<BYTE> &before, const std::vector<BYTE> &now) {
    CRect client, all(0, 0, 0, 0);
    ::GetClientRect(window, &client);
    if (before.size() != now.size() || now.empty())
        return ": another size";
    for (size_t i = 0; i < now.size(); i += 4) {
        const int pixel = static_cast<int>(i / 4);
        const int x = pixel % client.Width(), y = client.Height() - 1 - pixel / client.Width(); // bottom-up
        if (std::memcmp(&before[i], &now[i], 4) != 0)
            all.UnionRect(CRect(all), CRect(x, y, x + 1, y + 1));
    }
    return ": " + std::to_string(all.left) + "," + std::to_string(all.top) + " to " + std::to_string(all.right) +
           "," + std::to_string(all.bottom) + " of " + std::to_string(client.Width()) + "x" +
           std::to_string(client.Height());
}

} // namespace

bool RandomEvents::ScreenIsStale() {
    // A failing source and a type that draws by the moment show other things each time.
    if (!m_grid.m_GI.m_paintingEnabled || m_first.m_fails || m_grid.Edit() != nullptr || m_grid.List() != nullptr)
        return false;
    const bool hint = (::GetWindowLongA(m_grid.Hint(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (hint)
        return false;
    // A table that grows as it is painted looks otherwise each time.
    m_first.m_grows = m_second.m_grows = false;
    PumpAll();
    const bool stale = DiffersFromAFullPaint();
    m_first.m_grows = m_second.m_grows = true;
    return stale;
}

bool RandomEvents::DiffersFromAFullPaint() {
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
            m_text += " [window " + std::to_string(i) + Difference(windows[i], before[i], now) + ", " + m_grid.State() + "]";
            return true;
        }
    }
    return false;
}
