// Records that come and go. The source's row count and the grid's agree afterwards, but for the one placeholder row
// of an open empty table. None of it is in the history of the view; the source undoes its own rows.
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/RecordsDlg.h"
#include "editorcore/TableWatch.h"
#include "editorcore/WaitCursorScope.h"

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
    if (source == nullptr || source->AppendRow() != GRID_SUCCESS) {
        AfxMessageBox("Could not add record to data source!", MB_ICONHAND, 0);
        source = GetCurrentDataSrc(false); // it may have been closed while that was told
    }
    ShowRowsOfSource();
    const long last = (source != nullptr ? source->GetNumRows() : GetNumberRows()) - 1;
    RedrawRow(last);
    GotoCell(col, last);
    NotifyEdited();
    PostCommandsChanged();
}

// The records have changed places. A box that was opened while they did, by a notification or while the source was at
// work, is over another record now.
void CEditorCore::LoseEdit() {
    CancelEdit();
    NoteChange(&TableState::records);
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
        SettleEdit(); // before the dialog takes the focus: verifying has a question of its own
        long count;
        const long row = GetCurrentRow();
        const CTableWatch watch(this);
        if (!AskForRecords("Insert Records", "Number of records: ", &count) || !watch.Holds())
            return;
        ExecInsertRows(row, count, true);
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
    {
        const CWaitCursorScope waiting(ms_pAppInterface, waitCursor);
        const SourceWork inserting(this, source);
        done = atEnd ? AppendRows(source, count) : source->InsertRows(row, count) == GRID_SUCCESS;
    }
    if (!done) {
        AfxMessageBox(atEnd ? "Could not append data source record!" : "Could not insert records!", MB_ICONHAND, 0);
        return false;
    }
    if (!atEnd)
        LoseEdit();
    SetNumberRows(rowsBefore + (count > 0 ? count : 0), 1);
    m_grid.UpdateWindow();
    RedrawAll();
    return true;
}

bool CEditorCore::ExecInsertRows(long row, long count, bool waitCursor) {
    CEditCommandGuard guard(this);
    if (GetCurrentDataSrc(false) == nullptr)
        return false;
    bool done = false;
    const bool inMemory = ChangeRows([&] {
        SettleEdit(); // the box's row holds another record afterwards
        if (CUGDataSource *source = GetCurrentDataSrc(false))
            done = InsertRecords(source, row, count, waitCursor);
    });
    return inMemory && done;
}

// --- Deleting

void CEditorCore::OnDeleteRows(bool toClipboard) {
    CEditCommandGuard guard(this);
    if (IsGridReadOnly()) {
        AfxMessageBox("Cannot delete records!\nFile is open in read only mode!");
        return;
    }
    ChangeRows([&] {
        SettleEdit();
        int left, right;
        long first, bottom, count;
        const bool selected = IsInMultipleSelection();
        if (selected && GetNumberRows() == 0)
            return; // a column of an empty table, which reaches over the placeholder
        if (SelectedBlock(&left, &first, &right, &bottom) && bottom > first) {
            count = bottom - first + 1; // the columns play no part: rows go whole
        } else {
            first = GetCurrentRow();
            const CTableWatch watch(this);
            if (!AskForRecords("Delete Records", "Number of records", &count) || !watch.Holds())
                return;
        }
        DeleteChosenRows(first, std::min(count, GetNumberRows() - first), toClipboard);
    });
}

void CEditorCore::DeleteChosenRows(long firstRow, long count, bool toClipboard) {
    const long last = firstRow + count - 1;
    CWaitCursorScope waiting(ms_pAppInterface, static_cast<long long>(GetNumberCols()) * count > kWaitCursorCells);
    if (toClipboard && !SaveRowsToClipboard(firstRow, last, &waiting))
        return;
    NotifyEdited();
    ExecDeleteRows(firstRow, last);
    waiting.End();
    PostCommandsChanged();
}

bool CEditorCore::SaveRowsToClipboard(long firstRow, long lastRow, CWaitCursorScope *waiting) {
    ClearSelections();
    if (SelectRange(0, firstRow, GetNumberCols() - 1, lastRow) != GRID_SUCCESS) {
        waiting->LeaveRaised();
        AfxMessageBox("Could not save data to be deleted!", MB_ICONHAND, 0);
        return false;
    }
    CString text;
    if (!CreateSelectedString(text, 0, false))
        return false; // stopped: what is not on the clipboard is not deleted
    CopyToClipBoard(&text);
    return true;
}

bool CEditorCore::ExecDeleteRows(long firstRow, long lastRow) {
    CEditCommandGuard guard(this);
    if (GetCurrentDataSrc(false) == nullptr)
        return false;
    bool done = false;
    const bool inMemory = ChangeRows([&] {
        SettleEdit();
        if (CUGDataSource *source = GetCurrentDataSrc(false))
            done = DeleteRecords(source, firstRow, lastRow);
    });
    return inMemory && done;
}

bool CEditorCore::DeleteRecords(CUGDataSource *source, long firstRow, long lastRow) {
    CWaitCursorScope waiting(ms_pAppInterface);
    const long rowsBefore = GetNumberRows();
    const long count = lastRow - firstRow + 1;
    if (SetNumberRows(rowsBefore - count, 0) != GRID_SUCCESS) {
        waiting.LeaveRaised();
        AfxMessageBox("Could not remove rows from grid!", MB_ICONHAND, 0);
        return false;
    }
    int result;
    {
        const SourceWork deleting(this, source);
        result = source->DeleteRows(firstRow, count);
    }
    waiting.End();
    if (result != GRID_SUCCESS) {
        const CTableWatch watch(this);
        AfxMessageBox("Could not delete records!", MB_ICONHAND, 0);
        if (watch.Holds())
            SetNumberRows(rowsBefore, 1);
        NotifyEdited();
        return false;
    }
    LoseEdit();
    GotoRow(firstRow);
    ClearSelections();
    m_grid.UpdateWindow();
    RedrawAll();
    m_grid.SetFocus();
    return true;
}
