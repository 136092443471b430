// search_bench TABLE: what finding, replacing and filters cost.
//
// Workload: a dBASE table of 1,000,000 records and 20 fields. A search that matches nothing over 1,000,000 cells, 50,000
// records of all fields, in each kind of pattern; 100,000 cells of one column replaced as one step, and undone. Beside
// it what the parts cost: the cells read, the patterns tried on texts in memory. Medians with minimum and maximum.
#include "bench/EditorBench.h"

#include "dataeditor/OrvaneEditor.h"
#include "search/CellPattern.h"
#include "search/PatternText.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kRuns = 7;
constexpr long kCells = 1000000;
constexpr long kReplaced = 100000;

class CBenchFrame : public CFrameWnd {
public:
    CBenchFrame() { Create(nullptr, "Bench", WS_POPUP | WS_VISIBLE, CRect(0, 0, 1600, 1000)); }
};

// What the editor would say is not shown.
class CBenchApp : public CWinApp {
public:
    CBenchApp() : CWinApp("search_bench") {}
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return IDOK; }
};

class CSearchBench {
public:
    explicit CSearchBench(COrvaneEditor *editor)
        : m_editor(editor), m_source(editor->GetCurrentDataSrc(false)), m_cols(editor->GetNumberCols()) {}

    void Run() {
        Find("find nothing, wildcard text anywhere", "zzq*x", Search::kAnywhere, true, false);
        Find("find nothing, ignoring case", "zzq*x", Search::kAnywhere, false, false);
        Find("find nothing, whole words", "zzqx", Search::kWholeWords, true, false);
        Find("find nothing, wildcards alone", "?????????????????????????", Search::kWholeCell, true, false);
        Find("find nothing, typed expression", "[xyz]{3}\\d+q", Search::kAnywhere, true, true);
        Read();
        Try();
        Replace();
    }

private:
    void Add(const char *what, std::vector<double> times, long cells) {
        const double median = CBenchTable::Median(times);
        m_table.Add(what, "ms", times);
        std::printf("    %.0f ns a cell, %.0f cells a second\n", median * 1e6 / static_cast<double>(cells),
                    static_cast<double>(cells) / median * 1000);
    }
    void Find(const char *what, const char *text, int mode, bool matchCase, bool regex) {
        CFindReplaceData data;
        data.SetData(text, "", matchCase, true, kSearchSelection, mode, regex);
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run) {
            m_editor->ClearSelections();
            m_editor->SelectRange(0, 0, m_cols - 1, kCells / m_cols - 1);
            times.push_back(CBenchTable::Milliseconds(
                [&] { m_editor->SendMessage(kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0); }));
        }
        Add(what, times, kCells);
    }
    void Read() {
        CUGCell cell;
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run) {
            times.push_back(CBenchTable::Milliseconds([&] {
                for (int col = 0; col < m_cols; ++col) {
                    for (long row = 0; row < kCells / m_cols; ++row)
                        m_editor->GetCell(col, row, &cell);
                }
            }));
        }
        Add("part: the cells read", times, kCells);
    }
    void Try() {
        std::vector<std::string> texts;
        CUGCell cell;
        for (int i = 0; i < 1000; ++i) {
            m_editor->GetCell(i % m_cols, i / m_cols, &cell);
            texts.emplace_back(cell.GetText());
        }
        const Search::CellPattern pattern(
            Search::RegexifyFindString(Search::ConvertWildcardsToRegex("zzq*x"), Search::kAnywhere), true);
        std::vector<double> times;
        long matches = 0;
        for (int run = 0; run < kRuns; ++run) {
            times.push_back(CBenchTable::Milliseconds([&] {
                for (long i = 0; i < kCells; ++i)
                    matches += pattern.Matches(texts[static_cast<size_t>(i % 1000)]);
            }));
        }
        Add(matches == 0 ? "part: the pattern tried" : "part: the pattern tried, and it matched", times, kCells);
    }
    // One column's first cells, after "all": DoReplace asks once, and the dialog is answered.
    void Replace() {
        const int col = TextColumn();
        std::vector<double> times, undone;
        for (int run = 0; run < kRuns; ++run) {
            times.push_back(CBenchTable::Milliseconds([&] { ReplaceAll(col); }));
            undone.push_back(CBenchTable::Milliseconds([&] { m_source->Undo(); }));
            if (m_source->CanUndo()) {
                std::fprintf(stderr, "one undo did not take all back\n");
                std::exit(1);
            }
        }
        Add("replace in 100,000 cells as one step", times, kReplaced);
        Add("undo that", undone, kReplaced);
    }
    int TextColumn() {
        for (int col = 0; col < m_cols; ++col) {
            if (!m_editor->IsDataSrcFldTypeNumeric(m_editor->GetDataSrcField(col)))
                return col;
        }
        return 0;
    }
    void ReplaceAll(int col) {
        CFindReplaceData data;
        data.SetData("?", "#", true, false, kSearchSelection, Search::kAtStart, false);
        CString find, replace;
        data.GetFindString(find);
        data.GetReplaceString(replace);
        int answer = 0, count = 0;
        bool matched = false, replaced = false;
        CEditCommandGuard guard(m_editor);
        m_editor->StartTransaction();
        for (long row = 0; row < kReplaced; ++row)
            m_editor->ReplaceCellStringIfMatch(col, row, find, replace, true, false, true, &answer, &matched, &replaced,
                                               &count);
        m_editor->EndTransaction();
        if (count != kReplaced)
            std::printf("    only %d were replaced\n", count);
    }

    COrvaneEditor *m_editor;
    CUGDataSource *m_source;
    int m_cols;
    CBenchTable m_table;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: search_bench TABLE\n");
        return 2;
    }
    CBenchApp app;
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, const_cast<char *>(""), SW_SHOW);
    CBenchHost host;
    CEditorCore::Initialise(&host);
    auto *frame = new CBenchFrame;
    {
        COrvaneEditor editor;
        editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 1600, 1000), frame, 100);
        editor.AutoSaveLayoutInfo(false);
        if (!editor.LoadData(argv[1], nullptr, kNoFilter, kEditNormal, nullptr))
            return 1;
        CSearchBench(&editor).Run();
    }
    frame->DestroyWindow();
    return 0;
}
