// Replacing: one cell, and the run over the cells with its questions and undo steps.
#include "dataeditor/DataEditorDlgs.h"
#include "dataeditor/OrvaneEditor.h"

#include "editorcore/TableWatch.h"
#include "editorcore/TransactionScope.h"
#include "editorcore/WaitCursorScope.h"

#include <algorithm>
#include <optional>
#include <string>

namespace {

// What the user answered.
constexpr int kYes = 0, kNo = 1, kCancel = 2, kAll = 3;

} // namespace

// How a run stands.
struct COrvaneEditor::ReplaceRun {
    const char *find;
    const char *replace;
    int direction;
    bool matchCase;
    bool repeat = false;
    bool selection = false;
    int firstCol = 0, lastCol = 0;
    long topRow = 0, bottomRow = 0; // of the selection
    long row = 0;                   // where the first column begins
    long rows = 0;
    bool all = false;
    long total = 0;
    bool anyMatch = false;
    std::optional<CTransactionScope> transaction = std::nullopt;
    CTableWatch watch;
    bool startTransaction = true;
    int answer = kYes;
    int stoppedCol = -1; // of the cell at which an error ended the run
    long stoppedRow = -1;
};

void COrvaneEditor::OnFindReplace() {
    if (IsGridReadOnly())
        AfxMessageBox("Cannot replace text as file is open as read only!");
    else
        ms_pAppInterface->ShowReplaceDialog(IsInMultipleSelection(), this, kMsgReplaceNext);
}

LRESULT COrvaneEditor::OnFindReplaceNext(WPARAM wParam, LPARAM) {
    CEditCommandGuard guard(this);
    const CFindReplaceData *data = CFindReplaceData::FromMessage(wParam);
    if (IsGridReadOnly() || data == nullptr)
        return 0;
    RunCommand([&] {
        CString find, replace, typed;
        data->GetFindString(find);
        data->GetReplaceString(replace);
        data->GetOriginalFindString(typed);
        DoReplace(data->IsSearchingAllFields() ? -1 : GetCurrentCol(), find, replace, typed, data->GetDirection(),
                  data->IsMatchingCase());
    });
    return 0;
}

// --- One cell

// False after an error that was told.
bool COrvaneEditor::AskToReplace(int col, long row, const std::string &text, const std::string &newText, int *answer,
                                 bool *replaced, bool *all) {
    CString message;
    if (GotoCell(col, row) != GRID_SUCCESS) {
        message.Format("Could not goto cell %d, %ld!", col, row);
        AfxMessageBox(message, MB_ICONHAND);
        return false;
    }
    message.Format("Replace '%s' with '%s'?", text.c_str(), newText.c_str());
    CResourceScope resources;
    const CTableWatch watch(this);
    switch (CYesNoCancelAllDlg(message, nullptr).DoModal()) {
    case CYesNoCancelAllDlg::kYes: *answer = kYes; break;
    case CYesNoCancelAllDlg::kNo: *answer = kNo; break;
    case CYesNoCancelAllDlg::kAll: *answer = kAll; break;
    case -1:
        if (GetSafeHwnd() != nullptr)
            AfxThrowMemoryException(); // no window for the question
        [[fallthrough]]; // the editor's is gone as well
    default: *answer = kCancel;
    }
    *replaced = *answer == kYes || *answer == kAll;
    *all = *all || *answer == kAll;
    if (!*replaced)
        return true;
    SettleEdit();
    if (!watch.Holds()) { // the same text may stand in another record
        *replaced = false;
        return true;
    }
    return StillHolds(col, row, text, replaced);
}

// The answer was for this text: another record may be here since, or the cell hold something else. False after an error
// that was told.
bool COrvaneEditor::StillHolds(int col, long row, const std::string &text, bool *holds) {
    const char *now = CellText(col, row);
    *holds = now != nullptr && text == now;
    return now != nullptr;
}

bool COrvaneEditor::StoreReplacement(int col, long row, const std::string &newText, bool all) {
    if (QuickSetText(col, row, newText.c_str()) != GRID_SUCCESS) {
        CString message;
        message.Format("Could not set text in cell %d, %ld!", col, row);
        AfxMessageBox(message, MB_ICONHAND);
        return false;
    }
    if (!all)
        RedrawCell(col, row);
    return true;
}

// In repeat mode every pass after the first goes with an empty pattern, which fits only an empty rest; the loop never
// offers one. So a cell gets one replacement at the most, and the second pass only tells that there was a match.
bool COrvaneEditor::ReplaceCellStringIfMatch(int col, long row, const char *find, const char *replace, bool matchCase,
                                             bool repeat, bool all, int *answer, bool *matched, bool *replaced,
                                             int *count) {
    if (all)
        *answer = kAll;
    *matched = *replaced = false;
    if (!RecPassesFilter(row + 1))
        return true;
    SettleEdit(); // a box over the cell would write over what is replaced
    const char *cellText = CellText(col, row);
    if (cellText == nullptr)
        return false;
    std::string text(cellText);
    std::string pattern = find;
    const long long delta = static_cast<long long>(std::string(replace).size()) - static_cast<long long>(pattern.size()) + 1;
    for (long long offset = 0;;) {
        const std::string tail = text.substr(static_cast<size_t>(offset));
        std::string newText;
        const Search::CellPattern &tried = m_patterns.Get(pattern.c_str(), matchCase);
        *matched = tried.Matches(tail) && tried.ReplaceFirst(tail, replace, &newText);
        if (!*matched) {
            *replaced = false;
            *matched = offset > 0;
            return true;
        }
        *replaced = all;
        if (!all && !AskToReplace(col, row, text, newText, answer, replaced, &all))
            return false;
        if (*replaced) {
            if (!StoreReplacement(col, row, newText, all))
                return false;
            ++*count;
        }
        if (!repeat)
            return true;
        offset = static_cast<long long>(pattern.size()) + (*replaced ? delta : 0);
        if (*replaced)
            text = newText;
        if (offset >= static_cast<long long>(text.size()) || offset < 0 || *answer == kCancel)
            return true;
        pattern.clear();
    }
}

// --- The run

bool COrvaneEditor::PrepareReplace(ReplaceRun *run, int col, int direction) {
    run->repeat = run->find[0] == '$' && run->replace[0] == '$';
    if (run->repeat)
        ++run->replace;
    run->rows = GetNumberRows();
    run->selection = direction == kSearchSelection;
    if (run->selection) {
        run->direction = kSearchDown;
        if (GetCurrentSelection(&run->firstCol, &run->topRow, &run->lastCol, &run->bottomRow) != GRID_SUCCESS)
            return false;
        run->row = run->topRow;
        return true;
    }
    run->direction = direction;
    run->row = GetCurrentRow(); // the current cell itself, unlike a find
    run->firstCol = col == -1 ? 0 : col;
    run->lastCol = col == -1 ? GetNumberCols() - 1 : col;
    return true;
}

// True to go on. Each confirmed replacement is an undo step of its own; after "all" the rest of the run is one.
bool COrvaneEditor::ReplaceInCell(ReplaceRun *run, int col, long row) {
    if (AbortOperation() || !run->watch.SameColumns()) { // a user's stop, or fields that were not asked for
        run->transaction.reset();
        RedrawAll();
        return false;
    }
    if (run->startTransaction)
        run->transaction.emplace(this);
    int count = 0;
    bool matched = false, replaced = false;
    if (!ReplaceCellStringIfMatch(col, row, run->find, run->replace, run->matchCase, run->repeat, run->all, &run->answer,
                                  &matched, &replaced, &count)) {
        run->stoppedCol = col;
        run->stoppedRow = row;
        return false;
    }
    ms_pAppInterface->DoWaitCursor(0); // the dialog has ended it
    if (count > 0)
        matched = replaced = true;
    run->anyMatch = run->anyMatch || matched;
    if (replaced) {
        run->total += count;
        if (!run->all)
            OnEditNotify();
    }
    if (matched && !run->all) {
        if (run->answer == kCancel)
            return false;
        run->all = run->answer == kAll;
    }
    run->startTransaction = !run->all && replaced;
    if (run->startTransaction)
        run->transaction.reset();
    return true;
}

// With "all" directions the walk comes back to the row that it began with, which is tested twice.
bool COrvaneEditor::ReplaceInColumn(ReplaceRun *run, int col) {
    const long first = run->selection ? run->topRow : 0;
    const long last = run->selection ? run->bottomRow : run->rows - 1;
    long row = run->selection ? run->topRow : run->direction == kSearchUp ? run->rows - 1 : 0;
    if (col == run->firstCol)
        row = run->row;
    for (long visited = 0; row >= first && row <= last && (run->selection || visited <= run->rows); ++visited) {
        if (!ReplaceInCell(run, col, row))
            return false;
        if (run->direction == kSearchUp)
            --row;
        else if (run->direction == kSearchAll && row == run->rows - 1)
            row = 0;
        else
            ++row;
    }
    return true;
}

void COrvaneEditor::TellReplaced(const ReplaceRun &run, const char *originalFind) {
    if (!run.anyMatch) {
        SayNoMatch(originalFind);
        return;
    }
    if (run.all)
        RedrawAll();
    CString text;
    text.Format("Found and replaced %ld string(s).", run.total);
    ms_pAppInterface->ShowMessage(text);
}

// What was wrong with the cell has been told; after "all" nobody has seen how far the run came.
void COrvaneEditor::TellStopped(const ReplaceRun &run) {
    if (run.stoppedRow < 0 || (!run.all && run.answer != kAll))
        return;
    CString field, text;
    if (CUGDataSource *source = GetCurrentDataSrc(false))
        source->GetColName(GetDataColNumber(run.stoppedCol), &field);
    text.Format("Replaced %ld string(s); stopped at record %ld, field %s.", run.total, run.stoppedRow + 1,
                static_cast<const char *>(field));
    ms_pAppInterface->ShowMessage(text);
}

void COrvaneEditor::DoReplace(int col, const char *find, const char *replace, const char *originalFind, int direction,
                              bool matchCase) {
    CEditCommandGuard guard(this);
    RunCommand([&] {
        const CTableWatch asking(this);
        SettleEdit(); // a box would write over what is replaced in its cell
        if (!asking.SameTable())
            return;
        std::optional<CWaitCursorScope> wait; // ends after the group of the source's undo
        ReplaceRun run{.find = find, .replace = replace, .direction = direction, .matchCase = matchCase,
                       .watch = CTableWatch(this)};
        if (!PrepareReplace(&run, col, direction))
            return;
        wait.emplace(ms_pAppInterface);
        bool finished = true;
        for (int c = run.firstCol; c <= run.lastCol && finished; ++c)
            finished = ReplaceInColumn(&run, c);
        run.transaction.reset();
        finished ? TellReplaced(run, originalFind) : TellStopped(run);
    });
}
