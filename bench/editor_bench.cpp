// editor_bench SMALL MIDDLE LARGE: what the editor costs on tables of 20 fields, in a window of 1600 x 1000.
//
// Workload: open each table to its first complete paint, in turn; in the middle one a full repaint, a page
// down, one line down, a jump to the end, reads of cells through the control and through the source alone, and
// 10,000 inserts in the middle; the memory that the large one adds. Medians with minimum and maximum.
#include "bench/BenchFrame.h"
#include "bench/BenchHost.h"
#include "bench/BenchTable.h"

#include "editorcore/EditorCore.h"

#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <memory>

namespace {

constexpr int kRuns = 15;
constexpr int kCellReads = 1000000;
constexpr int kInserts = 10000;

double ResidentMegabytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize) / (1 << 20);
}

std::unique_ptr<CEditorCore> OpenTable(CFrameWnd &frame, const char *path) {
    auto editor = std::make_unique<CEditorCore>();
    editor->CreateGrid(WS_VISIBLE, CBenchFrame::Client(), &frame, 100);
    editor->AutoSaveLayoutInfo(false);
    if (!editor->LoadData(path, nullptr, kEditNormal, "")) {
        std::fprintf(stderr, "cannot open %s\n", path);
        std::exit(1);
    }
    editor->RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return editor;
}

void MeasureOpen(CBenchTable &table, CFrameWnd &frame, char **paths) {
    const char *const names[] = {"open small to first paint", "open middle to first paint",
                                 "open large to first paint"};
    std::vector<double> times[3];
    for (int run = 0; run <= kRuns; ++run) {
        for (int file = 0; file < 3; ++file) {
            std::unique_ptr<CEditorCore> editor;
            const double time = table.Milliseconds([&] { editor = OpenTable(frame, paths[file]); });
            if (run > 0)
                times[file].push_back(time);
        }
    }
    for (int file = 0; file < 3; ++file)
        table.Add(names[file], "ms", times[file]);
    std::printf("large to small, ratio of medians %.2f\n",
                CBenchTable::Median(times[2]) / CBenchTable::Median(times[0]));
    const double before = ResidentMegabytes();
    auto editor = OpenTable(frame, paths[2]);
    std::printf("resident memory that the large table adds %.1f MB\n", ResidentMegabytes() - before);
}

void MeasurePaint(CBenchTable &table, CEditorCore &editor) {
    table.Time("full repaint", kRuns, [&] {
        editor.RedrawAll();
        editor.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    });
    table.Time("page down", kRuns, [&] { editor.MoveTopRow(UG_MOVE_PAGE_FORWARD); });
    table.Time("one line down", kRuns, [&] { editor.MoveTopRow(UG_MOVE_FORWARD); });
    table.Time("jump to the end", kRuns, [&] {
        editor.SetTopRow(0);
        editor.MoveTopRow(UG_MOVE_LAST);
    });
}

void MeasureReads(CBenchTable &table, CEditorCore &editor) {
    const long rows = editor.GetNumberRows();
    const int cols = editor.CUGCtrl::GetNumberCols();
    CUGDataSource *source = editor.GetCurrentDataSrc(false);
    CUGCell cell;
    std::vector<double> control, direct;
    for (int run = 0; run < 5; ++run) {
        const auto read = [&](auto get) {
            const double ms = table.Milliseconds([&] {
                for (long i = 0; i < kCellReads; ++i)
                    get(static_cast<int>(i % cols), i / cols % rows);
            });
            return kCellReads / ms / 1000;
        };
        control.push_back(read([&](int col, long row) {
            cell.ClearAll();
            editor.GetCell(col, row, &cell);
        }));
        direct.push_back(read([&](int col, long row) {
            cell.ClearAll();
            source->GetCell(col, row, &cell);
        }));
    }
    table.Add("GetCell through the control", "M/s", control);
    table.Add("GetCell of the source", "M/s", direct);
}

void MeasureInserts(CBenchTable &table, CEditorCore &editor) {
    CUGDataSource *source = editor.GetCurrentDataSrc(false);
    table.Time("10,000 inserts in the middle", 5, [&] {
        source->StartTransaction();
        for (int i = 0; i < kInserts; ++i)
            source->InsertRow(source->GetNumRows() / 2);
        source->EndTransaction();
    });
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: editor_bench SMALL MIDDLE LARGE\n");
        return 2;
    }
    CWinApp app("editor_bench");
    BeginBench();
    CBenchHost host;
    CEditorCore::Initialise(&host);
    auto *frame = new CBenchFrame;
    CBenchTable table;
    MeasureOpen(table, *frame, argv + 1);
    {
        auto editor = OpenTable(*frame, argv[2]);
        MeasurePaint(table, *editor);
        MeasureReads(table, *editor);
        MeasureInserts(table, *editor);
    }
    frame->DestroyWindow();
    return 0;
}
