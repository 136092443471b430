// Finding: the order of the search, and the test of one cell.
#include "dataeditor/OrvaneEditor.h"

#include "editorcore/TableWatch.h"
#include "editorcore/WaitCursorScope.h"

#include <cstring>

// How a search over columns stands.
struct COrvaneEditor::ColumnSearch {
    const char *find;
    int direction;
    bool matchCase;
    int startCol, colCount;
    long rows;
    int col;
    long row;
    bool found = false;
    bool stopped = false; // by the user, or by an error that was told
};

void COrvaneEditor::OnFind() {
    ms_pAppInterface->ShowFindDialog(IsInMultipleSelection(), this, kMsgFindNext);
}

void COrvaneEditor::OnFindAgain() {
    if (m_bCanFindAgain)
        OnFindNext(reinterpret_cast<WPARAM>(&m_FindData), 0);
    else
        AfxMessageBox("No find string defined.");
}

LRESULT COrvaneEditor::OnFindNext(WPARAM wParam, LPARAM) {
    if (const CFindReplaceData *data = CFindReplaceData::FromMessage(wParam))
        RunCommand([&] { FindNext(*data); });
    return 0;
}

void COrvaneEditor::FindNext(const CFindReplaceData &data) {
    const CWaitCursorScope wait(ms_pAppInterface);
    m_FindData = data; // the host's may go with its dialog while an edit's own question is up
    m_bCanFindAgain = true;
    const CTableWatch watch(this);
    SaveEditContents();
    if (!watch.SameTable())
        return;
    const int current = GetCurrentCol();
    CString find, typed;
    m_FindData.GetFindString(find);
    m_FindData.GetOriginalFindString(typed);
    const int direction = m_FindData.GetDirection();
    const bool matchCase = m_FindData.IsMatchingCase();
    if (direction == kSearchSelection)
        DoSelectedCellsSearch(find, typed, matchCase);
    else
        DoColumnSearch(m_FindData.IsSearchingAllFields() ? -1 : current, find, typed, direction, matchCase);
}

// Null after an error that was told. The text lives until the next call.
const char *COrvaneEditor::CellText(int col, long row) {
    if (GetCell(col, row, &m_searchedCell) != GRID_SUCCESS) {
        AfxMessageBox("Could not get cell!", MB_ICONHAND);
        return nullptr;
    }
    if (m_searchedCell.GetText(&m_searchedText) != GRID_SUCCESS) {
        AfxMessageBox("Could not get cell text!", MB_ICONHAND);
        return nullptr;
    }
    return m_searchedText;
}

bool COrvaneEditor::IsMatchWithCellText(int col, long row, const char *find, bool matchCase, bool *match) {
    *match = false;
    if (!RecPassesFilter(row + 1))
        return true; // what the filter leaves out is never found
    const char *text = CellText(col, row);
    if (text == nullptr)
        return false;
    *match = m_patterns.Get(find, matchCase).Matches(text, std::strlen(text));
    return true;
}

// True to go on with the next cell.
bool COrvaneEditor::TestCell(ColumnSearch *search, int col, long row) {
    search->stopped =
        AbortOperation() || !IsMatchWithCellText(col, row, search->find, search->matchCase, &search->found);
    return !search->stopped && !search->found;
}

// Walks the rows of the present column. True when the search ends in it.
bool COrvaneEditor::WalkColumn(ColumnSearch *search) {
    const int entered = search->col;
    long visited = 0;
    while (search->row < search->rows && search->row >= 0 && visited <= search->rows && search->col == entered) {
        if (!TestCell(search, search->col, search->row))
            return true;
        ++visited;
        if (search->direction == kSearchUp) {
            search->col -= search->row == 0;
            --search->row;
        } else if (search->direction == kSearchAll && search->row == search->rows - 1) {
            ++search->col;
            search->row = 0;
        } else {
            ++search->row;
        }
    }
    if (search->col == entered)
        search->col += search->direction == kSearchUp ? -1 : 1;
    return false;
}

// Column by column from the cell next to the current one. "Up" goes to the left edge and "down" to the right one; only
// "all" comes to every column.
bool COrvaneEditor::FindInSearchOrder(ColumnSearch *search) {
    const int cols = GetNumberCols();
    for (int i = 0; i < search->colCount; ++i) {
        if (search->col != search->startCol)
            search->row = search->direction == kSearchUp ? search->rows - 1 : 0;
        if (WalkColumn(search))
            return true;
        if (search->col >= cols)
            search->col = 0;
        else if (search->col < 0)
            search->col = cols - 1;
    }
    return false;
}

// The rows of the first column up to the current one, and that one itself.
bool COrvaneEditor::FindByWrapping(ColumnSearch *search) {
    const long last = GetCurrentRow();
    search->col = search->startCol;
    for (search->row = 0; search->row <= last && search->row < search->rows; ++search->row) {
        if (!TestCell(search, search->col, search->row))
            return true;
    }
    return false;
}

void COrvaneEditor::GoToFound(int col, long row) {
    if (GotoCell(col, row) == GRID_SUCCESS)
        return;
    CString text;
    text.Format("Could not go to cell (%d, %ld)!", col, row);
    AfxMessageBox(text, MB_ICONHAND);
}

void COrvaneEditor::SayNoMatch(const char *originalFind) {
    CString text;
    text.Format("Could not match the search string '%s'.", originalFind);
    AfxMessageBox(text);
}

void COrvaneEditor::DoColumnSearch(int col, const char *find, const char *originalFind, int direction,
                                   bool matchCase) {
    const int cols = GetNumberCols();
    ColumnSearch search{find, direction, matchCase, col, 1, GetNumberRows(), col, 0};
    search.row = GetCurrentRow() + (direction == kSearchUp ? -1 : 1);
    if (col == -1) {
        search.startCol = search.col = GetCurrentCol();
        search.colCount = direction == kSearchUp    ? search.startCol + 1
                          : direction == kSearchAll ? cols
                                                    : cols - search.startCol;
    }
    if (!FindInSearchOrder(&search) && direction == kSearchAll && GetCurrentRow() >= 0)
        FindByWrapping(&search);
    if (search.stopped)
        return;
    if (search.found)
        GoToFound(search.col, search.row);
    else
        SayNoMatch(originalFind);
}

// From the selection's first cell, whatever the current cell is. A find uses the selection up.
void COrvaneEditor::DoSelectedCellsSearch(const char *find, const char *originalFind, bool matchCase) {
    int left, right;
    long top, bottom;
    if (GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS)
        return;
    ColumnSearch search{find, kSearchSelection, matchCase, left, 0, GetNumberRows(), left, top};
    for (int col = left; col <= right; ++col) {
        for (long row = top; row <= bottom; ++row) {
            if (TestCell(&search, col, row))
                continue;
            if (search.stopped)
                return;
            GoToFound(col, row);
            ClearSelections();
            RedrawAll();
            return;
        }
    }
    SayNoMatch(originalFind);
}
