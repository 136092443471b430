// clipboard_bench TABLE: what copying and pasting a block costs.
//
// Workload: 100,000 cells, 5,000 records of 20 fields, of a dBASE table in a window of 1600 x 1000: copied to the
// clipboard, pasted over the records before them (whole commands, as from the menu), undone in one step; the same
// block inserted as new records and undone. Beside it what the parts cost: the cells read, the text gathered, the
// clipboard alone, the cells written straight into the source. Medians with minimum and maximum.
#include "bench/BenchFrame.h"
#include "bench/BenchHost.h"
#include "bench/BenchTable.h"

#include "editorcore/ClipboardText.h"
#include "editorcore/EditorCore.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr long kRows = 5000;
constexpr int kCols = 20;
constexpr double kCells = static_cast<double>(kRows) * kCols;
constexpr int kRuns = 11;

class CClipboardBench {
public:
    explicit CClipboardBench(CEditorCore *editor)
        : m_editor(editor), m_source(editor->GetCurrentDataSrc(false)), m_rows(m_source->GetNumRows()) {}

    void Run() {
        MeasureCopy();
        MeasureReplacement();
        MeasureInsertion();
        MeasureParts();
    }

private:
    void Select(long top) {
        m_editor->GotoCell(0, top);
        m_editor->ClearSelections();
        m_editor->SelectRange(0, top, kCols - 1, top + kRows - 1);
    }
    void Add(const char *what, std::vector<double> times) {
        const double median = CBenchTable::Median(times);
        m_table.Add(what, "ms", times);
        std::printf("    %.0f cells a second, %.0f ns a cell\n", kCells / median * 1000, median * 1e6 / kCells);
    }
    // The source's state after the command is put back by one undo, which is timed too.
    void TimeWithUndo(const char *what, const char *undo, const std::function<void()> &prepare) {
        std::vector<double> times, undone;
        for (int run = 0; run <= kRuns; ++run) {
            prepare();
            const double time = CBenchTable::Milliseconds([&] { m_editor->OnPaste(); });
            const double back = CBenchTable::Milliseconds([&] { m_editor->Undo(); });
            if (m_source->CanUndo() || m_source->GetNumRows() != m_rows) {
                std::fprintf(stderr, "%s: one undo did not take all back\n", what);
                std::exit(1);
            }
            m_editor->OnDataSourceNotify(0, 1, 0);
            if (run > 0) {
                times.push_back(time);
                undone.push_back(back);
            }
        }
        Add(what, times);
        Add(undo, undone);
    }
    void MeasureCopy() {
        std::vector<double> times;
        for (int run = 0; run <= kRuns; ++run) {
            Select(kRows);
            times.push_back(CBenchTable::Milliseconds([&] { m_editor->OnCopy(); }));
        }
        Add("copy 100,000 cells", times);
    }
    void MeasureReplacement() {
        TimeWithUndo("paste 100,000 cells over others", "undo that", [&] { Select(0); });
    }
    void MeasureInsertion() {
        TimeWithUndo("paste 5,000 whole records", "undo that", [&] {
            m_editor->GotoCell(0, 0);
            m_editor->ClearSelections();
        });
    }
    void MeasureParts() {
        CUGCell cell;
        CString text;
        std::vector<double> read, gathered, exchanged, written;
        for (int run = 0; run < kRuns; ++run) {
            read.push_back(CBenchTable::Milliseconds([&] {
                for (long row = kRows; row < 2 * kRows; ++row) {
                    for (int col = 0; col < kCols; ++col)
                        m_editor->GetCell(col, row, &cell);
                }
            }));
            Select(kRows);
            gathered.push_back(CBenchTable::Milliseconds([&] { m_editor->CreateSelectedString(text, 0, false); }));
            exchanged.push_back(CBenchTable::Milliseconds([&] { m_editor->CopyToClipBoard(&text); }));
            written.push_back(CBenchTable::Milliseconds([&] { WriteToSource(text); }));
            m_source->Undo();
        }
        Add("part: reading the cells", read);
        Add("part: gathering the text, reading included", gathered);
        Add("part: the clipboard alone", exchanged);
        Add("part: writing the cells to the source alone", written);
    }
    void WriteToSource(const CString &text) {
        CUGCell cell;
        CString field;
        m_source->StartTransaction();
        for (ClipboardText::Reader reader(text); reader.Next();) {
            field.SetString(reader.m_begin, static_cast<int>(reader.m_end - reader.m_begin));
            cell.SetText(field);
            m_source->SetCell(reader.m_col, reader.m_row, &cell);
        }
        m_source->EndTransaction();
    }

    CEditorCore *m_editor;
    CUGDataSource *m_source;
    long m_rows;
    CBenchTable m_table;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: clipboard_bench TABLE\n");
        return 2;
    }
    CWinApp app("clipboard_bench");
    BeginBench();
    CBenchHost host;
    CEditorCore::Initialise(&host);
    auto *frame = new CBenchFrame;
    {
        CEditorCore editor;
        editor.CreateGrid(WS_VISIBLE, CBenchFrame::Client(), frame, 100);
        editor.AutoSaveLayoutInfo(false);
        if (!editor.LoadData(argv[1], nullptr, kEditNormal, ""))
            return 1;
        CClipboardBench(&editor).Run();
    }
    frame->DestroyWindow();
    return 0;
}
