// grid_bench: what the grid adds to the drawing itself.
//
// Workload: a window of 1592 x 990 pixels that shows just 45 rows of 15 columns of a virtual source (its texts are made
// on demand), repainted whole. Beside it a plain window that draws the same texts in its own paint message, by the same
// device calls from strings that were made before: measured, placed, opaque and clipped to the cell; with the two grid
// lines of each cell, and without. They are timed in turn, so that their ratio is of one run. Both ends of a paint are
// in both: ending one brings the window's pixels to the screen.
// Also: one line scrolled, as a share of the full repaint. Medians with minimum and maximum.
#include "bench/BenchFrame.h"
#include "bench/BenchTable.h"

#include "grid/UGCtrl.h"
#include "grid/UGDrawRules.h"

#include <cstdio>
#include <string>

namespace {

constexpr int kRuns = 101;
constexpr int kRows = 45, kCols = 15;
constexpr int kRowHeightPx = 22, kColWidthPx = 105;
constexpr long kTableRows = 1000000;
constexpr int kCellAreaId = 1; // of the control's child windows

class CVirtualSource final : public CUGDataSource {
public:
    long GetNumRows() override { return kTableRows; }
    int GetNumCols() override { return kCols; }
    int GetCell(int col, long row, CUGCell *cell) override {
        ++m_reads;
        char text[32];
        std::snprintf(text, sizeof text, "record %ld.%d", row, col);
        return cell->SetText(text);
    }
    long m_reads = 0;
};

// Room for the cells, and for the bar at the right that the table's length calls for.
int FrameWidth() {
    return kCols * kColWidthPx + ::GetSystemMetrics(SM_CXVSCROLL);
}

void ShowTable(CUGCtrl &grid, CVirtualSource &source) {
    const int index = grid.AddDataSource(&source);
    grid.SetDefaultDataSource(index);
    grid.SetUniformRowHeight(1);
    grid.SetDefaultRowHeight(kRowHeightPx);
    grid.SetNumberCols(kCols, 0);
    grid.SetNumberRows(kTableRows, 0);
    for (int col = 0; col < kCols; ++col)
        grid.SetColWidth(col, kColWidthPx);
}

std::vector<std::string> TextsOf(CVirtualSource &source) {
    std::vector<std::string> texts;
    CUGCell cell;
    for (long row = 0; row < kRows; ++row) {
        for (int col = 0; col < kCols; ++col) {
            source.GetCell(col, row, &cell);
            texts.emplace_back(cell.GetText());
        }
    }
    return texts;
}

void DrawText(HDC dc, RECT cell, const std::string &text) {
    const int length = static_cast<int>(text.size());
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    SIZE extent;
    ::GetTextExtentPoint32A(dc, text.c_str(), length, &extent);
    const UGTextPlace place = UGPlaceText(cell, 0, extent.cy);
    ::SetTextAlign(dc, TA_LEFT | TA_TOP);
    ::ExtTextOutA(dc, place.x, place.y, ETO_OPAQUE | ETO_CLIPPED, &cell, text.c_str(), length, nullptr);
}

void DrawLines(HDC dc, const RECT &cell) {
    const HGDIOBJ old = ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
    ::MoveToEx(dc, cell.right - 1, cell.top, nullptr);
    ::LineTo(dc, cell.right - 1, cell.bottom);
    ::MoveToEx(dc, cell.left, cell.bottom - 1, nullptr);
    ::LineTo(dc, cell.right, cell.bottom - 1);
    ::SelectObject(dc, old);
}

// Draws by itself what the grid shows.
class CPlainWindow : public CBenchFrame {
public:
    CPlainWindow() : CBenchFrame(FrameWidth(), kRows * kRowHeightPx) {}

    std::vector<std::string> m_texts;
    bool m_lines = true;

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg BOOL OnEraseBkgnd(CDC *) { return TRUE; }
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        for (int row = 0; row < kRows; ++row) {
            for (int col = 0; col < kCols; ++col) {
                RECT cell = {col * kColWidthPx, row * kRowHeightPx, (col + 1) * kColWidthPx, (row + 1) * kRowHeightPx};
                if (m_lines)
                    DrawLines(dc, cell);
                --cell.right;
                --cell.bottom;
                DrawText(dc, cell, m_texts[static_cast<size_t>(row * kCols + col)]);
            }
        }
    }
};

BEGIN_MESSAGE_MAP(CPlainWindow, CBenchFrame)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void Repaint(CWnd &window) {
    window.Invalidate(FALSE);
    window.UpdateWindow();
    ::GdiFlush();
}

void Measure(CUGCtrl &grid, CVirtualSource &source, CPlainWindow &plain) {
    CWnd &cells = *grid.GetDlgItem(kCellAreaId);
    plain.m_texts = TextsOf(source);
    std::vector<double> painted, direct, bare, scrolled;
    for (int run = 0; run < kRuns; ++run) {
        painted.push_back(CBenchTable::Milliseconds([&] { Repaint(cells); }));
        plain.m_lines = true;
        direct.push_back(CBenchTable::Milliseconds([&] { Repaint(plain); }));
        plain.m_lines = false;
        bare.push_back(CBenchTable::Milliseconds([&] { Repaint(plain); }));
    }
    for (int run = 0; run < kRuns; ++run) {
        scrolled.push_back(CBenchTable::Milliseconds([&] {
            grid.MoveTopRow(UG_MOVE_FORWARD);
            ::GdiFlush();
        }));
    }
    CBenchTable table;
    table.Add("full repaint, 45 x 15 cells", "ms", painted);
    table.Add("the same texts and lines, drawn directly", "ms", direct);
    table.Add("the same texts alone, drawn directly", "ms", bare);
    table.Add("one line scrolled", "ms", scrolled);
    const double full = CBenchTable::Median(painted);
    std::printf("full repaint to direct drawing, ratio of medians %.2f (texts alone %.2f)\n",
                full / CBenchTable::Median(direct), full / CBenchTable::Median(bare));
    source.m_reads = 0;
    Repaint(cells);
    std::printf("source reads of a full repaint %ld", source.m_reads);
    source.m_reads = 0;
    grid.MoveTopRow(UG_MOVE_FORWARD);
    std::printf(", of one line scrolled %ld (side heading included)\n", source.m_reads);
}

} // namespace

int main() {
    CWinApp app("grid_bench");
    BeginBench();
    auto *frame = new CBenchFrame(FrameWidth(), kRows * kRowHeightPx);
    CVirtualSource source;
    CRect client;
    frame->GetClientRect(&client);
    CUGCtrl grid;
    grid.CreateGrid(WS_VISIBLE, client, frame, 100);
    ShowTable(grid, source);
    grid.SetTH_Height(0);
    grid.SetSH_Width(0);
    grid.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    auto *plain = new CPlainWindow;
    Measure(grid, source, *plain);
    plain->DestroyWindow();
    frame->DestroyWindow();
    return 0;
}
