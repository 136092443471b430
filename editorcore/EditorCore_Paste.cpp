// Pasting a block of text into the cells: what it may cover, the records that it needs, and the writing.
#include "editorcore/ClipboardText.h"
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/TransactionScope.h"
#include "editorcore/WaitCursorScope.h"

#include <algorithm>

namespace {

constexpr long long kWaitCursorCells = 250; // more show the wait cursor

const char *const kNoMatch = "Please select a either a single cell to represent the\n"
                             "top left hand corner of the block of cells you want\n"
                             "to be overwritten by the clipboard data,\n"
                             "or a block of cells of the same size as the clipboard data.";
const char *const kTooManyColumns = "The data to be pasted has more columns per row\n"
                                    "than does the current view of the file.";
const char *const kNotEnoughColumns = "There are not enough columns to the right of the\n"
                                      "current cell to take the clipboard data to be pasted.\n";

} // namespace

// What is on the clipboard, and how it lands.
struct CEditorCore::PasteBlock {
    int cols = 1;
    long rows = 1;
    bool wholeRecords = false; // inserted as new rows rather than written over others

    long long Cells() const { return static_cast<long long>(cols) * rows; }
};

int CEditorCore::Paste() {
    CString text;
    return CopyFromClipBoard(&text) == GRID_SUCCESS ? Paste(text) : GRID_ERROR;
}

int CEditorCore::Paste(CString &text) {
    SettleEdit();
    const int startCol = GetCurrentCol();
    const long startRow = GetCurrentRow();
    int lastCol = startCol;
    long lastRow = startRow;
    CString field;
    for (ClipboardText::Reader reader(text); reader.Next();) {
        if (AbortOperation())
            return GRID_ERROR;
        field.SetString(reader.m_begin, static_cast<int>(reader.m_end - reader.m_begin));
        QuickSetText(startCol + reader.m_col, startRow + reader.m_row, field);
        if (reader.m_begin == reader.m_end)
            continue; // an empty field blanks its cell and counts no further
        lastCol = std::max(lastCol, startCol + reader.m_col);
        lastRow = std::max(lastRow, startRow + reader.m_row);
    }
    ClearSelections();
    // Rows of different lengths may reach past the table, the selection does not.
    SelectRange(startCol, startRow, std::min(lastCol, std::max(GetNumberCols() - 1, startCol)),
                std::min(lastRow, std::max(CUGCtrl::GetNumberRows() - 1, startRow)));
    RedrawAll();
    return GRID_SUCCESS;
}

// Decides what the block covers, and moves to where it begins. False when it cannot land, which has been told.
bool CEditorCore::PlacePaste(PasteBlock *block) {
    int left = 0, right = 0;
    long top = 0, bottom = 0;
    const bool multiple = IsInMultipleSelection() && SelectedBlock(&left, &top, &right, &bottom);
    block->wholeRecords = block->cols == GetNumberCols() && !multiple;
    const bool match = multiple && right - left + 1 == block->cols && bottom - top + 1 == block->rows;
    const char *refusal = nullptr;
    if (multiple && !match)
        refusal = kNoMatch;
    else if (block->cols > GetNumberCols())
        refusal = kTooManyColumns;
    else if (!match && GetCurrentCol() + block->cols > GetNumberCols())
        refusal = kNotEnoughColumns;
    if (refusal != nullptr) {
        AfxMessageBox(refusal);
        return false;
    }
    if (match && (GetCurrentCol() != left || GetCurrentRow() != top))
        GotoCell(left, top);
    return true;
}

bool CEditorCore::AddMissingRecords(CUGDataSource *source, const PasteBlock &block) {
    const long missing = GetCurrentRow() + block.rows - GetNumberRows();
    if (missing <= 0)
        return true;
    if (!AppendRows(source, missing)) {
        AfxMessageBox("Could not append row!", MB_ICONHAND, 0);
        return false;
    }
    if (SetNumberRows(source->GetNumRows(), 1) != GRID_SUCCESS) {
        AfxMessageBox("Could not reset number of grid rows!", MB_ICONHAND, 0);
        return false;
    }
    return true;
}

bool CEditorCore::MakeRoomForPaste(CUGDataSource *source, const PasteBlock &block) {
    if (!block.wholeRecords)
        return AddMissingRecords(source, block);
    const long row = GetCurrentRow();
    if (!ExecInsertRows(row, block.rows, false))
        return false; // without new rows the block would go over the old ones
    GotoCell(0, row);
    return true;
}

void CEditorCore::OnPaste() {
    CEditCommandGuard guard(this);
    if (IsGridReadOnly())
        return;
    // Read once: another program may change it meanwhile.
    CString text;
    bool taken = false;
    if (!RunInMemory([&] { taken = TakeClipboardText(&text); }))
        ReportOutOfMemory();
    if (!taken)
        return;
    const ClipboardText::Size size = ClipboardText::Measure(text);
    PasteBlock block{size.cols, size.rows};
    if (CEdit *edit = GetEditControl()) {
        if (block.Cells() <= 1) {
            edit->SendMessage(WM_PASTE, 0, 0);
            NotifyEdited();
            return;
        }
        SaveEditContents();
    }
    CUGDataSource *source = GetCurrentDataSrc(true);
    if (source == nullptr || !PlacePaste(&block))
        return;
    CWaitCursorScope waiting(ms_pAppInterface, block.Cells() > kWaitCursorCells);
    OnEditNotify();
    const bool inMemory = RunInMemory([&] {
        const CTransactionScope oneStep(this);
        if (MakeRoomForPaste(source, block))
            Paste(text);
        else
            waiting.LeaveRaised();
    });
    if (!inMemory) {
        RunInMemory([this] { ShowRowsOfSource(); });
        ReportOutOfMemory();
    }
    RedrawAll();
}
