// search_bench TABLE: what finding and replacing cost, and what share of it each part has.
//
// Workload: a dBASE table of 1,000,000 records and 20 fields, in a window of 1600 x 1000. A search that
// matches nothing over 1,000,000 cells, 50,000 records of all fields, by the message that the host's dialog
// sends, for each kind of pattern; the shares, measured in turn with it, are of reading the same cells, and
// of trying the pattern on their texts in memory. Then 100,000 cells of one column replaced by the message of
// the replace dialog, in which the first question is answered with "All", and undone in one step. Medians
// with minimum and maximum.
#include "bench/BenchFrame.h"
#include "bench/BenchHost.h"
#include "bench/BenchTable.h"

#include "dataeditor/DataEditorDlgs.h"
#include "dataeditor/OrvaneEditor.h"
#include "search/CellPattern.h"
#include "search/PatternText.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int kRuns = 7;
constexpr long kCells = 1000000;
constexpr long kReplaced = 100000;
constexpr double kNsPerMs = 1e6;

// What the editor would say is not shown, but counted.
class CBenchApp : public CWinApp {
public:
    CBenchApp() : CWinApp("search_bench") {}
    int DoMessageBox(LPCTSTR, UINT, UINT) override {
        ++m_boxes;
        return IDOK;
    }
    int m_boxes = 0;
};

void Require(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

// Answers the question of a replacement with "All", as a click on the button does, and notes when.
class CAnswerAll {
public:
    CAnswerAll() { m_timer = ::SetTimer(nullptr, 0, 1, Look); }
    ~CAnswerAll() { ::KillTimer(nullptr, m_timer); }
    CAnswerAll(const CAnswerAll &) = delete;
    CAnswerAll &operator=(const CAnswerAll &) = delete;

    static std::chrono::steady_clock::time_point ms_answered;
    static int ms_questions;

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
        const HWND dialog = ::GetActiveWindow();
        if (dialog == nullptr || ::GetDlgItem(dialog, CYesNoCancelAllDlg::kAll) == nullptr)
            return;
        ++ms_questions;
        ms_answered = std::chrono::steady_clock::now();
        ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kAll, 0);
    }

    UINT_PTR m_timer;
};

std::chrono::steady_clock::time_point CAnswerAll::ms_answered;
int CAnswerAll::ms_questions = 0;

struct FindCase {
    const char *what;
    const char *text;
    int mode;
    bool matchCase;
    bool regex;
};

// Nothing in the table matches any of them, though many cells match a part.
constexpr FindCase kFindCases[] = {
    {"find nothing: zzq*x, anywhere", "zzq*x", Search::kAnywhere, true, false},
    {"find nothing: zzq*x, ignoring case", "zzq*x", Search::kAnywhere, false, false},
    {"find nothing: zzqx, whole words", "zzqx", Search::kWholeWords, true, false},
    {"find nothing: 25 times ?, whole cell", "?????????????????????????", Search::kWholeCell, true, false},
    {"find nothing: *#?#?????????#, whole cell", "*#?#?????????#", Search::kWholeCell, true, false},
    {"find nothing: *#?#?????????#, anywhere", "*#?#?????????#", Search::kAnywhere, true, false},
    {"find nothing: *#?#?????????#, at the start", "*#?#?????????#", Search::kAtStart, true, false},
    {"find nothing: *#?#?????????#, at the end", "*#?#?????????#", Search::kAtEnd, true, false},
    {"find nothing: *#?#?????????#, whole words", "*#?#?????????#", Search::kWholeWords, true, false},
    {"find nothing: [xyz]{3}\\d+q", "[xyz]{3}\\d+q", Search::kAnywhere, true, true},
    {"find nothing: [0-9]{3}-[a-z]+", "[0-9]{3}-[a-z]+", Search::kAnywhere, true, true},
    {"find nothing: (?i)zebra", "(?i)zebra", Search::kAnywhere, true, true},
    {"find nothing: ^\\s*$", "^\\s*$", Search::kAnywhere, true, true},
    {"find nothing: (cat|dog)\\b|^\\w+@", "(cat|dog)\\b|^\\w+@", Search::kAnywhere, false, true},
    {"find nothing: (\\w)\\1[a-z]\\1", "(\\w)\\1[a-z]\\1", Search::kAnywhere, true, true},
};

class CSearchBench {
public:
    CSearchBench(COrvaneEditor *editor, CBenchApp *app)
        : m_editor(editor), m_app(app), m_source(editor->GetCurrentDataSrc(false)),
          m_cols(editor->GetNumberCols()) {}

    void Run() {
        KeepTexts();
        for (const FindCase &find : kFindCases)
            Find(find);
        Replace();
    }

private:
    double Add(const char *what, std::vector<double> times, long cells) {
        const double median = CBenchTable::Median(times);
        m_table.Add(what, "ms", times);
        std::printf("    %.0f ns a cell, %.0f cells a second\n",
                    median * kNsPerMs / static_cast<double>(cells),
                    static_cast<double>(cells) / median * 1000);
        return median;
    }
    static void Share(const char *part, double ms, double whole) {
        std::printf("    %-28s %9.3f ms %5.1f %%\n", part, ms, 100 * ms / whole);
    }
    double ReadCells(int left, int right, long rows) {
        CUGCell cell;
        return CBenchTable::Milliseconds([&] {
            for (int col = left; col <= right; ++col) {
                for (long row = 0; row < rows; ++row)
                    m_editor->GetCell(col, row, &cell);
            }
        });
    }
    void KeepTexts() {
        CUGCell cell;
        m_texts.reserve(kCells);
        for (int col = 0; col < m_cols; ++col) {
            for (long row = 0; row < kCells / m_cols; ++row) {
                m_editor->GetCell(col, row, &cell);
                m_texts.emplace_back(cell.GetText());
            }
        }
    }
    void Find(const FindCase &find) {
        CFindReplaceData data;
        data.SetData(find.text, "", find.matchCase, true, kSearchSelection, find.mode, find.regex);
        std::vector<double> times, read, made, tried;
        for (int run = 0; run < kRuns; ++run) {
            m_editor->ClearSelections();
            m_editor->SelectRange(0, 0, m_cols - 1, kCells / m_cols - 1);
            m_app->m_boxes = 0;
            times.push_back(CBenchTable::Milliseconds(
                [&] { m_editor->SendMessage(kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0); }));
            Require(m_app->m_boxes == 1, "a search that is to match nothing found something");
            read.push_back(ReadCells(0, m_cols - 1, kCells / m_cols));
            made.push_back(CBenchTable::Milliseconds([&] { Search::CellPattern(PatternOf(data), find.matchCase); }));
            tried.push_back(CBenchTable::Milliseconds([&] { Try(data); }));
        }
        const double whole = Add(find.what, times, kCells);
        const double readMs = CBenchTable::Median(read), triedMs = CBenchTable::Median(tried);
        Share("reading the cells", readMs, whole);
        Share("making the pattern", CBenchTable::Median(made), whole);
        Share("making and trying it", triedMs, whole);
        Share("the walk and the rest", whole - readMs - triedMs, whole);
    }
    static std::string PatternOf(const CFindReplaceData &data) {
        CString text;
        data.GetFindString(text);
        return static_cast<const char *>(text);
    }
    // As the editor tries it: the pattern compiled once, texts that end with a null.
    void Try(const CFindReplaceData &data) {
        const Search::CellPattern pattern(PatternOf(data), data.IsMatchingCase());
        long matches = 0;
        for (const std::string &tried : m_texts)
            matches += pattern.Matches(tried.c_str(), std::strlen(tried.c_str()));
        Require(matches == 0, "a pattern that is to match nothing matched");
    }

    void Replace() {
        const int col = TextColumn();
        CFindReplaceData data;
        data.SetData("?", "#", true, false, kSearchSelection, Search::kAtStart, false);
        std::vector<double> times, asked, undone, read, made, written;
        for (int run = 0; run < kRuns; ++run) {
            read.push_back(ReadCells(col, col, kReplaced));
            made.push_back(CBenchTable::Milliseconds([&] { MakeReplacements(data, col); }));
            ReplaceAll(&data, col, &times, &asked);
            undone.push_back(UndoOnce());
            written.push_back(CBenchTable::Milliseconds([&] { WriteReplacements(col); }));
            UndoOnce();
        }
        const double whole = Add("replace all in 100,000 cells, as one undo step", times, kReplaced);
        const double madeMs = CBenchTable::Median(made), writtenMs = CBenchTable::Median(written);
        const double askedMs = CBenchTable::Median(asked), readMs = CBenchTable::Median(read);
        Share("the question until its answer", askedMs, whole);
        Share("reading the cells", readMs, whole);
        Share("trying and replacing in texts", madeMs, whole);
        Share("setting the cells", writtenMs, whole);
        Share("the walk and the rest", whole - askedMs - readMs - madeMs - writtenMs, whole);
        Add("undo that", undone, kReplaced);
    }
    void ReplaceAll(CFindReplaceData *data, int col, std::vector<double> *times, std::vector<double> *asked) {
        m_editor->GotoCell(col, 0);
        m_editor->ClearSelections();
        m_editor->SelectRange(col, 0, col, kReplaced - 1);
        CAnswerAll::ms_questions = 0;
        const CAnswerAll answer;
        const auto start = std::chrono::steady_clock::now();
        times->push_back(CBenchTable::Milliseconds(
            [&] { m_editor->SendMessage(kMsgReplaceNext, reinterpret_cast<WPARAM>(data), 0); }));
        asked->push_back(std::chrono::duration<double, std::milli>(CAnswerAll::ms_answered - start).count());
        Require(CAnswerAll::ms_questions == 1, "not one question was asked");
        for (long row : {0L, kReplaced / 2, kReplaced - 1})
            Require(TextAt(col, row)[0] == '#', "a cell was not replaced");
        Require(TextAt(col, kReplaced)[0] != '#', "more cells were replaced than were selected");
    }
    double UndoOnce() {
        const double time = CBenchTable::Milliseconds([&] { m_editor->Undo(); });
        Require(!m_source->CanUndo(), "one undo did not take all back");
        return time;
    }
    std::string TextAt(int col, long row) {
        CUGCell cell;
        m_editor->GetCell(col, row, &cell);
        return cell.GetText();
    }
    int TextColumn() {
        for (int col = 0; col < m_cols; ++col) {
            if (!m_editor->IsDataSrcFldTypeNumeric(m_editor->GetDataSrcField(col)))
                return col;
        }
        return 0;
    }
    void MakeReplacements(const CFindReplaceData &data, int col) {
        CString find, replace;
        data.GetFindString(find);
        data.GetReplaceString(replace);
        const Search::CellPattern pattern(static_cast<const char *>(find), true);
        const std::string format = static_cast<const char *>(replace);
        m_replacements.resize(kReplaced);
        const size_t first = static_cast<size_t>(col) * static_cast<size_t>(kCells / m_cols);
        for (size_t i = 0; i < m_replacements.size(); ++i) {
            const std::string &text = m_texts[first + i % static_cast<size_t>(kCells / m_cols)];
            Require(pattern.Matches(text) && pattern.ReplaceFirst(text, format, &m_replacements[i]),
                    "no match");
        }
    }
    void WriteReplacements(int col) {
        m_editor->StartTransaction();
        for (size_t i = 0; i < m_replacements.size(); ++i)
            m_editor->QuickSetText(col, static_cast<long>(i), m_replacements[i].c_str());
        m_editor->EndTransaction();
    }

    COrvaneEditor *m_editor;
    CBenchApp *m_app;
    CUGDataSource *m_source;
    int m_cols;
    CBenchTable m_table;
    std::vector<std::string> m_texts; // of the cells that are searched, in the order of the search
    std::vector<std::string> m_replacements;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: search_bench TABLE\n");
        return 2;
    }
    CBenchApp app;
    BeginBench();
    CBenchHost host;
    CEditorCore::Initialise(&host);
    auto *frame = new CBenchFrame;
    {
        COrvaneEditor editor;
        editor.CreateGrid(WS_VISIBLE, CBenchFrame::Client(), frame, 100);
        editor.AutoSaveLayoutInfo(false);
        if (!editor.LoadData(argv[1], nullptr, kNoFilter, kEditNormal, nullptr))
            return 1;
        CSearchBench(&editor, &app).Run();
    }
    frame->DestroyWindow();
    return 0;
}
