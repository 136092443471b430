// Records that come and go. The source's row count and the grid's agree afterwards, but for the one placeholder row
// of an open empty table. None of it is in the history of the view; the source undoes its own rows.
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/RecordsDlg.h"

#include <algorithm>

namespace {

constexpr long kWaitCursorCells = 50; // a deletion of more shows the wait cursor

} // namespace

// The grid's rows after the source's, with redraw.
void CEditorCore::ShowRowsOfSource() {
    if (CUGDataSource *source = GetCurrentDataSrc(false))
        CUGCtrl::SetNumberRows(RowsOfSource(source), 1);
}

// Work on the rows. When memory runs out in it that is said, the grid's rows follow what the source has by then, and
// false is answered.
template <class Work> bool CEditorCore::ChangeRows(Work work) {
    if (RunInMemory(work))
        return true;
    RunInMemory([this] { ShowRowsOfSource(); });
    ReportOutOfMemory();
    return false;
}

void CEditorCore::OnAppendRow(int col) {
    CEditCommandGuard guard(this);
    if (!IsGridReadOnly())
        ChangeRows([&] { AppendRecord(col); });
}

void CEditorCore::AppendRecord(int col) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr || source->AppendRow() != GRID_SUCCESS)
        AfxMessageBox("Could not add record to data source!", MB_ICONHAND, 0);
    if (source == nullptr)
        return;
    ShowRowsOfSource();
    const long last = source->GetNumRows() - 1;
    RedrawRow(last);
    GotoCell(col, last);
    NotifyEdited();
    PostCommandsChanged();
}

// --- Inserting

bool CEditorCore::AskForRecords(const char *title, const char *prompt, long *count) {
    CResourceScope resources;
    CInsertRecordsDlg dialog(title, prompt, this);
    if (dialog.DoModal() != IDOK)
        return false;
    *count = dialog.m_nRecords;
    return true;
}

void CEditorCore::OnInsertRows() {
    CEditCommandGuard guard(this);
    if (IsGridReadOnly()) {
        AfxMessageBox("Cannot insert records!\nFile is open in read only mode!");
        return;
    }
    ChangeRows([&] {
        long count;
        if (!AskForRecords("Insert Records", "Number of records: ", &count))
            return;
        ExecInsertRows(GetCurrentRow(), count, true);
        NotifyEdited();
        PostCommandsChanged();
    });
}

// What was appended before a failure stays; the grid learns of it at its next look at the source.
bool CEditorCore::AppendRows(CUGDataSource *source, long count) {
    for (long i = 0; i < count; ++i) {
        if (source->AppendRow() != GRID_SUCCESS)
            return false;
    }
    return true;
}

bool CEditorCore::InsertRecords(CUGDataSource *source, long row, long count, bool waitCursor) {
    const long rowsBefore = GetNumberRows();
    const bool atEnd = row == source->GetNumRows();
    bool done = false;
    const bool inMemory = RunInMemory([&] {
        done = atEnd ? AppendRows(source, count) : source->InsertRows(row, count) == GRID_SUCCESS;
    });
    if (waitCursor)
        ms_pAppInterface->DoWaitCursor(-1);
    if (!inMemory)
        AfxThrowMemoryException();
    if (!done) {
        AfxMessageBox(atEnd ? "Could not append data source record!" : "Could not insert records!", MB_ICONHAND, 0);
        return false;
    }
    SetNumberRows(rowsBefore + (count > 0 ? count : 0), 1);
    m_grid.UpdateWindow();
    RedrawAll();
    return true;
}

bool CEditorCore::ExecInsertRows(long row, long count, bool waitCursor) {
    CEditCommandGuard guard(this);
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return false;
    if (waitCursor)
        ms_pAppInterface->DoWaitCursor(1);
    bool done = false;
    return ChangeRows([&] { done = InsertRecords(source, row, count, waitCursor); }) && done;
}

// --- Deleting

void CEditorCore::OnDeleteRows(bool toClipboard) {
    CEditCommandGuard guard(this);
    if (IsGridReadOnly()) {
        AfxMessageBox("Cannot delete records!\nFile is open in read only mode!");
        return;
    }
    ChangeRows([&] {
        int left, right;
        long first, bottom, count;
        if (GetCurrentSelection(&left, &first, &right, &bottom) == GRID_SUCCESS && bottom > first) {
            count = bottom - first + 1; // the columns play no part: rows go whole
        } else {
            first = GetCurrentRow();
            if (!AskForRecords("Delete Records", "Number of records", &count))
                return;
        }
        DeleteChosenRows(first, std::min(count, GetNumberRows() - first), toClipboard);
    });
}

void CEditorCore::DeleteChosenRows(long firstRow, long count, bool toClipboard) {
    const long last = firstRow + count - 1;
    const bool wait = GetNumberCols() * count > kWaitCursorCells;
    if (wait)
        ms_pAppInterface->DoWaitCursor(1);
    if (toClipboard && !SaveRowsToClipboard(firstRow, last))
        return; // the wait cursor stays raised: hosts put it right with a 0
    NotifyEdited();
    ExecDeleteRows(firstRow, last);
    if (wait)
        ms_pAppInterface->DoWaitCursor(-1);
    PostCommandsChanged();
}

bool CEditorCore::SaveRowsToClipboard(long firstRow, long lastRow) {
    ClearSelections();
    if (SelectRange(0, firstRow, GetNumberCols() - 1, lastRow) != GRID_SUCCESS) {
        AfxMessageBox("Could not save data to be deleted!", MB_ICONHAND, 0);
        return false;
    }
    CString text;
    CreateSelectedString(text, 0, false);
    CopyToClipBoard(&text);
    return true;
}

bool CEditorCore::ExecDeleteRows(long firstRow, long lastRow) {
    CEditCommandGuard guard(this);
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return false;
    bool done = false;
    return ChangeRows([&] { done = DeleteRecords(source, firstRow, lastRow); }) && done;
}

bool CEditorCore::DeleteRecords(CUGDataSource *source, long firstRow, long lastRow) {
    ms_pAppInterface->DoWaitCursor(1);
    const long rowsBefore = GetNumberRows();
    const long count = lastRow - firstRow + 1;
    if (SetNumberRows(rowsBefore - count, 0) != GRID_SUCCESS) {
        AfxMessageBox("Could not remove rows from grid!", MB_ICONHAND, 0);
        return false; // the wait cursor stays raised: hosts put it right with a 0
    }
    int result = GRID_ERROR;
    const bool inMemory = RunInMemory([&] { result = source->DeleteRows(firstRow, count); });
    ms_pAppInterface->DoWaitCursor(-1);
    if (!inMemory)
        AfxThrowMemoryException();
    if (result != GRID_SUCCESS) {
        AfxMessageBox("Could not delete records!", MB_ICONHAND, 0);
        SetNumberRows(rowsBefore, 1);
        NotifyEdited();
        return false;
    }
    GotoRow(firstRow);
    ClearSelections();
    m_grid.UpdateWindow();
    RedrawAll();
    m_grid.SetFocus();
    return true;
}
