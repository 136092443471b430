// Opening a table and closing it.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/WindowPump.h"
#include "grid/PaintingScope.h"
#include "grid/ValueScope.h"

// A source that is open, or null: the source itself has said why.
std::unique_ptr<CUGDataSource> CEditorCore::OpenSource(const char *path, const char *table, const char *options) {
    std::unique_ptr<CUGDataSource> source(ms_pAppInterface->CreateDataSource(path));
    if (source == nullptr)
        return nullptr;
    if (m_bConstructFailed) {
        // The source is not deleted here: an editor without its parts opens nothing, and hosts count on the
        // object living on.
        source.release();
        AfxMessageBox("Cannot load file due to low memory!", MB_ICONHAND, 0);
        return nullptr;
    }
    if (m_bDataSrcOpen)
        CloseDataSource(false);
    if (m_bDataSrcOpen)
        return nullptr;
    // No separators go between the pieces: options and table name carry their own blanks.
    CString openString(options);
    if (table != nullptr) {
        openString += "-table ";
        openString += table;
    }
    if (m_nEditMode == kEditReadOnly)
        openString += "-view ";
    if (source->Open(path, openString) != GRID_SUCCESS)
        return nullptr;
    return source;
}

bool CEditorCore::LoadData(const char *path, const char *table, int editMode, const char *options) {
    bool opened = false;
    const bool inMemory = RunInMemory([&] {
        SetEditMode(editMode);
        opened = OpenTable(path, table, options);
        if (opened)
            ShowTable(path, table);
    });
    if (inMemory)
        return opened;
    AbandonLoad();
    AfxMessageBox("Cannot load file due to low memory!", MB_ICONHAND, 0);
    return false;
}

bool CEditorCore::OpenTable(const char *path, const char *table, const char *options) {
    std::unique_ptr<CUGDataSource> source = OpenSource(path, table, options);
    if (source == nullptr)
        return false;
    int writable = 0, unused = 0;
    if (source->GetOption(UGSRC_WRITABLE, &writable, &unused) == GRID_SUCCESS && writable == 0)
        m_nEditMode = kEditReadOnly;
    m_nDataSrcIndex = AddDataSource(source.get());
    if (GetDataSource(m_nDataSrcIndex) != source.get()) { // hosts lend sources to the grid too: no slot is free
        m_nDataSrcIndex = -1;
        source->Close(false);
        GetCurrentDataSrc(true);
        return false;
    }
    SetCapture(); // the mouse stays with the grid while the table comes up
    m_pSource = source.release();
    m_bDataSrcOpen = true;
    SetDefaultDataSource(m_nDataSrcIndex);
    return true;
}

void CEditorCore::ShowTable(const char *path, const char *table) {
    m_bLayoutValid = false;
    m_strFilePath = path;
    m_strTableName = table;
    m_pLayout->SetTableName(m_strTableName);
    SetGridLayout();
    EmptyUndoList();
    PumpDroppingClicks();
    ::ReleaseCapture();
    GoToFirstCell();
    RedrawAll();
    SetCustomOptions();
    SetTextAlignment();
    SetFocus();
    PostCommandsChanged();
}

// Told as a change from nowhere, for the cell of the same numbers was another table's. Nothing else is selected.
void CEditorCore::GoToFirstCell() {
    ForgetHeadingSelection();
    m_GI.m_cols.m_last = m_GI.m_rows.m_last = -1;
    if (GetCurrentCol() != 0 || GetCurrentRow() != 0)
        GotoCell(0, 0);
    UpdateState();
}

void CEditorCore::ForgetHeadingSelection() {
    ClearSelections();
    CancelSelectionMode(false);
    m_nLastAutoScrollCol = m_nLastAutoScrollRow = -10;
}

// Memory ran out while the table came up: back to an editor with nothing open.
void CEditorCore::AbandonLoad() {
    m_bLayoutValid = false; // what there is of a layout must not replace the one on disk
    if (CWnd::GetCapture() == this)
        ::ReleaseCapture();
    if (!m_bDataSrcOpen)
        return;
    RunInMemory([this] {
        m_pLayout->ForgetFile();
        CUGCtrl::SetNumberRows(0, 0);
        SetNumberCols(0);
    });
    DropSource();
}

// Clicks made while the table was loading never reach the grid.
void CEditorCore::PumpDroppingClicks() {
    PumpWindow(m_grid.GetSafeHwnd(), [](const MSG &message) {
        return message.message == WM_LBUTTONDBLCLK || message.message == WM_LBUTTONDOWN ||
               message.message == WM_LBUTTONUP;
    });
}

CEditorCore::SourceWork::SourceWork(CEditorCore *worked, CUGDataSource *atWork)
    : editor(worked), source(atWork), outermost(worked->m_pSourceWork == nullptr) {
    if (outermost)
        editor->m_pSourceWork = this;
}

CEditorCore::SourceWork::~SourceWork() {
    if (editorGone)
        delete source;
    else if (outermost)
        editor->m_pSourceWork = nullptr;
}

bool CEditorCore::CloseDataSource(bool argument) {
    if (!m_bDataSrcOpen)
        return true;
    if (m_pSourceWork != nullptr)
        return false; // asked from within a question of the source's
    SourceWork closing(this, nullptr);
    const bool closed = CloseSource(argument, &closing);
    if (closing.editorGone)
        return true;
    closing.source = nullptr; // from here on it is the editor's again
    if (closed)
        LeaveTable();
    return closed;
}

// Ends the edit and asks the source. The editor may be gone afterwards: a question pumps messages.
bool CEditorCore::CloseSource(bool argument, SourceWork *closing) {
    if (GetEditControl() != nullptr)
        SaveEditContents();
    if (closing->editorGone)
        return true;
    closing->source = GetCurrentDataSrc(false);
    if (closing->source == nullptr)
        return true;
    if (!m_bUsingBackupFile)
        closing->source->Save();
    return closing->source->Close(argument) == GRID_SUCCESS;
}

// The source has been closed, or a host has taken it.
void CEditorCore::LeaveTable() {
    NoteChange(&TableState::tables);
    CUGDataSource *source = GetCurrentDataSrc(false);
    m_bDataSrcOpen = false;
    Serialize(true);
    ForgetHeadingSelection();
    {
        const CFrozenWidthScope keepingStep(this);
        m_nColsToLock = 0;
        CUGCtrl::SetNumberRows(0, 0);
        SetNumberCols(0);
    }
    m_pLayout->ForgetFile();
    if (source != nullptr) {
        m_GI.m_currentSource = 0;
        RemoveDataSource(m_nDataSrcIndex);
        delete source;
    }
    m_pSource = nullptr;
    m_nDataSrcIndex = -1;
}

CUGDataSource *CEditorCore::GetCurrentDataSrc(bool complain) {
    // An empty slot answers with the grid's own store, and another source may be in it by now.
    CUGDataSource *source =
        m_pSource != nullptr && GetDataSource(m_nDataSrcIndex) == m_pSource ? m_pSource : nullptr;
    if (source == nullptr && complain && GetSafeHwnd() != nullptr) // with its window gone nobody asked
        AfxMessageBox("Could not get data source!", MB_ICONHAND, 0);
    return source;
}

long CEditorCore::GetNumberRows() {
    const long rows = CUGCtrl::GetNumberRows();
    if (m_bDataSrcOpen && rows == 1) {
        CUGDataSource *source = GetCurrentDataSrc(false);
        if (source != nullptr && source->GetNumRows() == 0)
            return 0;
    }
    return rows;
}

int CEditorCore::SetNumberRows(long rows, int redraw) {
    return CUGCtrl::SetNumberRows(rows == 0 && m_bDataSrcOpen ? 1 : rows, redraw);
}

// The last row's index; -1 for the placeholder of an empty table.
long CEditorCore::LastRowIndex() {
    return GetNumberRows() - 1;
}

// The rows that the grid shows for the source.
long CEditorCore::RowsOfSource(CUGDataSource *source) const {
    const long rows = source->GetNumRows();
    return rows == 0 && m_bDataSrcOpen ? 1 : rows;
}

bool CEditorCore::IsOperationsValid() {
    return GetNumberRows() > 0;
}

int CEditorCore::GetTotalDataSrcFields() {
    CUGDataSource *source = GetCurrentDataSrc(false);
    return source != nullptr ? source->GetNumCols() : 0;
}

// Message 0: the undo list is void. Message 1: the table changed under the editor.
void CEditorCore::OnDataSourceNotify(int, long what, long) {
    if (what == 0) {
        EmptyUndoList();
        return;
    }
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (what != 1 || source == nullptr)
        return;
    LoseEdit(); // another record may be where it was begun
    CPaintingScope quiet(this);
    CUGCtrl::SetNumberRows(RowsOfSource(source), 0);
    EmptyUndoList();
}
