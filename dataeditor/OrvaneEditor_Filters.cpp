// Filters: attaching them, asking the source, and stepping over the records that they leave out.
#include "dataeditor/OrvaneEditor.h"

#include "grid/PaintingScope.h"
#include "editorcore/RecordsDlg.h"
#include "editorcore/TableWatch.h"

namespace {

// Options of the source.
constexpr int kTestRecord = 2;
constexpr int kAttachFilter = 4;
constexpr int kDetachFilter = 5;
constexpr int kFilteredOnly = 6;

bool IsShiftDown() {
    return ::GetKeyState(VK_SHIFT) < 0;
}

// Raised while a question is with the source.
class FilterQuestion {
public:
    explicit FilterQuestion(bool *flag) : m_flag(flag) { *m_flag = true; }
    ~FilterQuestion() { *m_flag = false; }
    FilterQuestion(const FilterQuestion &) = delete;
    FilterQuestion &operator=(const FilterQuestion &) = delete;

private:
    bool *m_flag;
};

} // namespace

bool COrvaneEditor::ms_bInFilterTest = false;

// A source that cannot answer hides nothing; one that asks back from within its answer is not asked again.
bool COrvaneEditor::RecPassesFilter(long record) {
    if (record < 1)
        return true;
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr || source->GetNumRows() < 1)
        return false;
    if (m_nFilter == kNoFilter || ms_bInFilterTest)
        return true;
    const FilterQuestion asking(&ms_bInFilterTest);
    int result = 0;
    return source->GetOption(kTestRecord, &record, &result) != GRID_SUCCESS || result == 1;
}

void COrvaneEditor::SetUseFilteredRecords(bool use) {
    m_bUseFilteredRecords = use;
    SetSourceOption(kFilteredOnly, use ? 1 : 0);
}

// The source is asked for anew each time: a host may have closed it while it asked. Attaching may take long.
bool COrvaneEditor::SetSourceOption(int option, long value) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return false;
    const SourceWork attaching(this, source);
    return source->SetOption(option, value, 0) == GRID_SUCCESS;
}

void COrvaneEditor::OnAttachFilter(int number) {
    RunCommand([&] {
        if (SetSourceOption(kAttachFilter, number))
            m_nFilter = number;
        RedrawAll();
    });
}

void COrvaneEditor::OnSelectAttachFilter() {
    RunCommand([&] {
        SettleEdit(); // before the prompt takes the focus
        int number = kNoFilter;
        const CTableWatch watch(this);
        if (GetCurrentDataSrc(false) == nullptr || !ms_pAppInterface->SelectFilter(&number))
            return;
        if (!watch.SameTable() || !SetSourceOption(kAttachFilter, number))
            return;
        m_nFilter = number;
        RedrawAll();
    });
}

// Editing hands its result over as the default filter, whichever was edited.
void COrvaneEditor::OnEditFilter() {
    RunCommand([&] {
        SettleEdit(); // before the prompt takes the focus
        const int number = m_nFilter < kDefaultFilter ? kDefaultFilter : m_nFilter;
        const CTableWatch watch(this);
        const bool edited = GetCurrentDataSrc(false) != nullptr &&
                            ms_pAppInterface->EditFilter(number, m_strFilePath) && watch.SameTable();
        if (edited && SetSourceOption(kAttachFilter, kDefaultFilter))
            m_nFilter = kDefaultFilter;
        RedrawAll();
    });
}

void COrvaneEditor::OnDetachFilter() {
    RunCommand([&] {
        if (SetSourceOption(kDetachFilter, 0))
            m_nFilter = kNoFilter;
        RedrawAll();
    });
}

// --- Navigation

// The next row from `row` on, in steps of 1 or -1, whose record passes; -1 when there is none.
long COrvaneEditor::FindPassing(long row, int step) {
    const long rows = GetNumberRows();
    for (; row >= 0 && row < rows; row += step) {
        if (RecPassesFilter(row + 1))
            return row;
    }
    return -1;
}

// A Tab in the last cell of all, which appends a record where the last one is not left out.
bool COrvaneEditor::IsAfterLastRecord(UINT key, int step) {
    const bool tab = key == VK_TAB || (key == VK_RETURN && IsEnterKeyTab());
    const long rows = GetNumberRows();
    return tab && step > 0 && GetCurrentRow() == rows - 1 && RecPassesFilter(rows);
}

// Goes towards the next record that passes. Outside an edit the grid steps on by itself for Up, Down and Tab, and for
// an Enter that counts as Tab, so the row is left one short of the goal.
bool COrvaneEditor::StepToRecord(UINT key, int step, int newCol) {
    const int col = GetCurrentCol();
    const long goal = FindPassing(GetCurrentRow() + step, step);
    if (goal < 0 && IsAfterLastRecord(key, step))
        return !IsInEditMode(); // the grid's own step appends, or the open edit's
    if (goal < 0) {
        m_bStay = true; // nothing passes further on
        return true;
    }
    if (IsInEditMode()) {
        GotoRow(goal);
        if (newCol != col)
            GotoCol(newCol);
        return true;
    }
    const bool plainEnter = key == VK_RETURN && !IsEnterKeyTab();
    if (key == VK_RETURN && step < 0 && !plainEnter) {
        // Backwards an Enter that counts as Tab gets no step of the grid's.
        GotoCell(newCol, goal);
        m_bStay = true;
        return true;
    }
    GotoRow(plainEnter ? goal : goal - step);
    return true;
}

bool COrvaneEditor::OnNavigateFilteredRecords(UINT key) {
    m_bStay = false;
    if (!IsFilterAttached() || !IsUsingFilteredRecords())
        return false;
    const bool shift = IsShiftDown();
    const int col = GetCurrentCol();
    const int lastCol = GetNumberCols() - 1;
    if (key == VK_TAB || (key == VK_RETURN && IsEnterKeyTab())) {
        if (shift && col == 0)
            return StepToRecord(key, -1, lastCol);
        return col == lastCol && StepToRecord(key, 1, 0); // with Shift too, which is wanted
    }
    switch (key) {
    case VK_RETURN: return StepToRecord(key, shift ? -1 : 1, col);
    case VK_DOWN: return StepToRecord(key, 1, col);
    case VK_UP: return StepToRecord(key, -1, col);
    default: return false;
    }
}

void COrvaneEditor::OnKeyDown(UINT *key, int processed) {
    if (!OnNavigateFilteredRecords(*key))
        CEditorCore::OnKeyDown(key, processed);
    else if (m_bStay)
        *key = static_cast<UINT>(-1);
}

// The character of a key that was dealt with moves nothing further.
void COrvaneEditor::OnCharDown(UINT *key, int processed) {
    const bool stay = m_bStay && (*key == VK_TAB || *key == VK_RETURN);
    m_bStay = false;
    if (!stay)
        CEditorCore::OnCharDown(key, processed);
}

// The grid's move of an open edit as the key that it stands for.
int COrvaneEditor::OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) {
    if (IsInEditMode()) {
        const int lastCol = GetNumberCols() - 1;
        UINT key = 0;
        if ((*newCol == 0 && oldCol == lastCol) || (*newCol == lastCol && oldCol == 0))
            key = VK_TAB;
        else if (*newRow == oldRow + 1)
            key = VK_DOWN;
        else if (*newRow == oldRow - 1)
            key = VK_UP;
        if (key != 0 && OnNavigateFilteredRecords(key)) {
            *newCol = GetCurrentCol();
            *newRow = GetCurrentRow();
        }
        m_bStay = false;
    }
    return CEditorCore::OnEditContinue(oldCol, oldRow, newCol, newRow);
}

// --- Commands on records

// A number beyond the end lands on the last record but one, the exact last one on the last.
void COrvaneEditor::OnGotoRecord() {
    RunCommand([this] {
        SettleEdit(); // before the dialog takes the focus
        CResourceScope resources;
        CInsertRecordsDlg dialog("Goto Record", "Goto Record", nullptr);
        const CTableWatch watch(this);
        const INT_PTR answer = dialog.DoModal();
        if (answer == -1 && GetSafeHwnd() != nullptr)
            AfxThrowMemoryException(); // no window for the question
        if (answer == IDOK && watch.SameTable())
            GotoRecord(dialog.m_nRecords);
    });
}

void COrvaneEditor::GotoRecord(long record) {
    if (record < 1) {
        AfxMessageBox("Please enter a number one or greater.");
        return;
    }
    if (record > GetNumberRows())
        record = GetNumberRows() - 1;
    if (GotoCell(GetCurrentCol(), record - 1) != GRID_SUCCESS) {
        CString text;
        text.Format("Could not go to record '%d'!", static_cast<int>(record));
        AfxMessageBox(text, MB_ICONHAND);
    }
}

void COrvaneEditor::OnDeleteRows() {
    if (IsInMultipleSelection() || !IsFilterAttached() || !IsUsingFilteredRecords()) {
        CEditorCore::OnDeleteRows(false);
        return;
    }
    RunCommand([&] {
        SettleEdit(); // the record under the box may be among them
        const CTableWatch watch(this);
        const int filter = m_nFilter;
        if (GetCurrentDataSrc(true) == nullptr ||
            AfxMessageBox("Delete filtered records?\n\n"
                          "(You will not be able to undo this operation)",
                          MB_YESNO | MB_ICONQUESTION) != IDYES)
            return;
        SettleEdit(); // one begun while it was asked
        CUGDataSource *source = GetCurrentDataSrc(false);
        // The answer was for this table and this filter.
        if (source != nullptr && watch.SameTable() && m_nFilter == filter && IsUsingFilteredRecords())
            DeleteFilteredRecords(source);
    });
}

void COrvaneEditor::DeleteFilteredRecords(CUGDataSource *source) {
    const CPaintingScope quiet(this);
    const bool inMemory = RunInMemory([&] {
        int result;
        {
            const SourceWork deleting(this, source);
            result = source->DeleteRows(-1, -1);
        }
        if (result != GRID_SUCCESS)
            AfxMessageBox("Error while deleting filtered records!", MB_ICONHAND);
        OnEditNotify();
    });
    LoseEdit();
    if (CUGDataSource *now = GetCurrentDataSrc(false)) // the failure may have seen it closed
        SetNumberRows(now->GetNumRows(), 1);
    if (!inMemory)
        ReportOutOfMemory();
}
