// Loading, saving, the file's view, and the texts that come from outside the editing flow.
#include "dataeditor/OrvaneEditor.h"

#include "editorcore/MemoryGuard.h"
#include "editorcore/TableWatch.h"
#include "grid/PaintingScope.h"

#include <algorithm>
#include <cstdio>

IMPLEMENT_DYNAMIC(COrvaneEditor, CEditorCore)

BEGIN_MESSAGE_MAP(COrvaneEditor, CEditorCore)
    ON_WM_TIMER()
    ON_MESSAGE(kMsgFindNext, OnFindNext)
    ON_MESSAGE(kMsgReplaceNext, OnFindReplaceNext)
    ON_MESSAGE(kMsgRejectLookupCode, OnRejectLookupCode)
    ON_MESSAGE(kMsgPostRejectLookupCode, PostRejectLookupCode)
    ON_MESSAGE(kMsgRefreshRow, OnRefreshRow)
    ON_MESSAGE(kMsgSetGridFocus, OnSetGridFocus)
END_MESSAGE_MAP()

namespace {

constexpr UINT_PTR kPickListTimerId = 300;
constexpr UINT kPickListRestMs = 150;
constexpr COLORREF kFilteredText = 0, kFilteredBack = 0xC8C8C8, kFilteredCurrent = 0xFA0000;

} // namespace

COrvaneEditor::COrvaneEditor() = default;

COrvaneEditor::~COrvaneEditor() = default;

void COrvaneEditor::OnSetup() {
    CEditorCore::OnSetup();
    ms_pAppInterface->GetEditorOptions()->GetGridLines(&m_bShowHorizLines, &m_bShowVertLines);
    UpdateBorders();
}

// --- Loading

void COrvaneEditor::SetOpeningRecord(int col, long record) {
    m_nOpeningCol = std::max(col, 0);
    m_nOpeningRecord = std::max(record, 1L);
}

bool COrvaneEditor::LoadData(const char *path, const char *table, int filter, int editMode, const char *options) {
    m_nFilter = filter;
    CString text(options);
    if (filter >= kDefaultFilter)
        text.AppendFormat(" -filter %d", filter);
    if (!CEditorCore::LoadData(path, table, editMode, text.IsEmpty() ? nullptr : text.GetString()))
        return false;
    if (!InitLookupFiles())
        return false;
    LoadLastUsedXParmsSet();
    GotoCell(m_nOpeningCol, m_nOpeningRecord - 1);
    m_nOpeningCol = 0;
    m_nOpeningRecord = 1;
    LockLoadedColumns();
    return true;
}

void COrvaneEditor::LockLoadedColumns() {
    m_nLockedCols = std::clamp(m_pLayout->GetFrozenCols(), 0, GetNumberCols());
    m_pLayout->SetFrozenCols(m_nLockedCols); // the heading's width, which is kept beside it, is for as many
    LockColumns(m_nLockedCols);
}

bool COrvaneEditor::InitLookupFiles() {
    RefreshLookupLink();
    return true;
}

void COrvaneEditor::RefreshLookupLink() {}

void COrvaneEditor::LoadLastUsedXParmsSet() {}

void COrvaneEditor::CheckLookupFiles() {}

// --- Saving

void COrvaneEditor::OnSaveAs() {
    RunCommand([this] { SettleEdit(); }); // before the prompt takes the focus: verifying has a question of its own
    CString name(m_strFilePath);
    const bool attached = IsFilterAttached();
    bool useFiltered = IsUsingFilteredRecords();
    const CTableWatch watch(this);
    if (!ms_pAppInterface->PromptSaveAs(name, &useFiltered, attached) || !watch.SameTable() ||
        !CEditorCore::OnSaveAs(name, attached && useFiltered, m_nFilter))
        return;
    SetUseFilteredRecords(useFiltered);
    if (attached && useFiltered)
        OnDetachFilter(); // a file of the filtered records alone has no further use for the filter
}

void COrvaneEditor::OnFileInformation() {
    if (CUGDataSource *source = GetCurrentDataSrc(true))
        ms_pAppInterface->ShowFileInformation(source);
}

// Every open stream of the runtime; nothing of the editor is touched.
void COrvaneEditor::FlushAll() {
    std::fflush(nullptr);
}

// --- The view after a change of the fields

void COrvaneEditor::OnFileModify() {
    RefreshLookupLink();
    EmptyUndoList();
    OnEditNotify();
}

// One field more at the end goes into the view. False when the layout must be made anew.
bool COrvaneEditor::AddedFieldShown() {
    CUGDataSource *source = GetCurrentDataSrc(false);
    CUIntArray positions;
    GetVirtualColPostions(positions);
    const int fields = source->GetNumCols();
    if (fields <= positions.GetSize())
        return true;
    CString name;
    if (fields > positions.GetSize() + 1 || source->GetColName(fields - 1, &name) != GRID_SUCCESS || name.IsEmpty())
        return false;
    CStringArray names;
    GetDisplayColNames(names);
    names.Add(name);
    OnOrderCols(&names);
    EmptyUndoList();
    return true;
}

void COrvaneEditor::ResetFileView(bool full) {
    if (GetCurrentDataSrc(true) == nullptr)
        return;
    if (IsInEditMode())
        SaveEditContents();
    if (GetCurrentDataSrc(false) == nullptr)
        return; // closed while the edit's own question was up
    if (full || !AddedFieldShown()) {
        CString layout(m_strFilePath);
        GetLayoutFileName(layout);
        if (FileExists(layout))
            ::DeleteFileA(layout);
        // Where the file could not be deleted and does not fit, the columns keep the fields that they show: these then
        // have to be their own.
        CPaintingScope quiet(this);
        for (int col = 0; col < GetNumberCols(); ++col)
            SetColTranslation(col, col);
        SetGridLayout();
    }
    OnFileModify();
    RedrawAll();
    UpdateWindow();
}

bool COrvaneEditor::GetDataSrcFieldNames(CStringArray &names) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return false;
    names.RemoveAll();
    names.SetSize(source->GetNumCols());
    for (int field = 0; field < names.GetSize(); ++field) {
        source->GetColName(field, &names[field]);
        names[field].MakeLower();
    }
    return true;
}

bool COrvaneEditor::IsDataSrcFldTypeNumeric(int field) {
    constexpr int kFirstNumeric = 2, kLastNumeric = 5;
    CUGDataSource *source = GetCurrentDataSrc(true);
    int type = 0;
    return source != nullptr && source->GetColType(field, &type) == GRID_SUCCESS && type >= kFirstNumeric &&
           type <= kLastNumeric;
}

// --- Cells as they are shown, and moves between them

// Records that the filter leaves out stay in sight, greyed. A filter below -1 is none to the commands and one here:
// hosts open files that way to look at what a filter would leave out.
void COrvaneEditor::OnGetCell(int col, long row, CUGCell *cell) {
    if (col < 0 || row < 0)
        return;
    if (m_nFilter != kNoFilter && !RecPassesFilter(row + 1)) {
        cell->SetTextColor(kFilteredText);
        cell->SetBackColor(kFilteredBack);
        cell->SetHBackColor(kFilteredCurrent);
    }
    cell->SetBorder(static_cast<short>(m_nBorderStyle));
}

// Posted: they run when the grid has finished the move.
void COrvaneEditor::OnCellChange(int, int, long oldRow, long) {
    if (m_nFilter != kNoFilter)
        RefreshRow(oldRow);
    if (CWnd *parent = GetParent())
        parent->PostMessage(kMsgCommandsChanged, 0, 0);
}

int COrvaneEditor::OnCanMove(int, long, int, long) {
    return 1;
}

void COrvaneEditor::RefreshRow(long row) {
    PostMessage(kMsgRefreshRow, 0, row);
}

LRESULT COrvaneEditor::OnRefreshRow(WPARAM, LPARAM row) {
    RedrawRow(static_cast<long>(row));
    return 0;
}

LRESULT COrvaneEditor::OnSetGridFocus(WPARAM, LPARAM) {
    m_grid.SetFocus();
    return 0;
}

void COrvaneEditor::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) {
    CEditorCore::OnLClicked(col, row, updn, rect, point, processed);
}

// The host shows its menu.
void COrvaneEditor::OnRClicked(int, long, int, RECT *, POINT *point, int) {
    if (CWnd *parent = GetParent())
        parent->PostMessage(WM_RBUTTONDOWN, 0, MAKELPARAM(point->x, point->y));
}

int COrvaneEditor::OnEditVerify(int col, long row, CEdit *edit, UINT *key) {
    return CEditorCore::OnEditVerify(col, row, edit, key);
}

void COrvaneEditor::OnParentActivate(int activate, CView *, CView *) {
    if (activate != 0)
        CheckLookupFiles();
}

// --- Texts from outside

// A box over the cell would write its own text over the one that is entered.
void COrvaneEditor::SettleEditOver(int col, long row) {
    if (IsInEditMode() && m_GI.m_editCol == col && m_GI.m_editRow == row)
        SettleEdit();
}

void COrvaneEditor::EnterEditText(const char *text, int col, long row, bool quick) {
    RunCommand([&] {
        const CTableWatch watch(this);
        SettleEditOver(col, row); // it may ask
        if (!watch.Holds())
            return; // the cell that the text was for may be another one now
        if (quick) {
            ReadCellText(col, row);
            QuickSetText(col, row, text);
        } else {
            WriteCellText(col, row, text);
        }
        OnEditNotify();
    });
}

// Sources may fetch a record when a text of it is read, and count on that before one is set.
void COrvaneEditor::ReadCellText(int col, long row) {
    CString present;
    GetCellText(col, row, &present);
}

// Straight through the grid.
void COrvaneEditor::WriteCellText(int col, long row, const char *text) {
    ReadCellText(col, row);
    CUGCell cell;
    GetCell(col, row, &cell);
    cell.SetText(text);
    SetCell(col, row, &cell);
}

void COrvaneEditor::EnterPickListText(const char *text) {
    if (IsGridReadOnly())
        return;
    const int col = GetCurrentCol();
    const long row = GetCurrentRow();
    const CTableWatch watch(this);
    const bool settled = RunInMemory([&] { SettleEditOver(col, row); }); // it may ask
    if (!watch.Holds())
        return; // the cell that it was chosen for may be another one now
    EnablePainting(0);
    m_nPickListCol = col;
    m_nPickListRow = row;
    const bool inMemory = settled && RunInMemory([&] { WriteCellText(m_nPickListCol, m_nPickListRow, text); });
    PumpDroppingClicks();
    // It lets the grid paint again. Settling may have asked, and the window be gone.
    m_nPickListTimer = GetSafeHwnd() != nullptr ? SetTimer(kPickListTimerId, kPickListRestMs, nullptr) : 0;
    if (m_nPickListTimer == 0)
        EnablePainting(1);
    OnEditNotify();
    if (!inMemory)
        ReportOutOfMemory();
}

// The selection and the current cell end up on the cell that was picked for.
void COrvaneEditor::OnTimer(UINT_PTR id) {
    if (id == m_nPickListTimer && m_nPickListTimer != 0) {
        PumpDroppingClicks();
        ClearSelections();
        GotoCell(m_nPickListCol, m_nPickListRow);
        EnablePainting(1);
        ::ReleaseCapture();
        KillTimer(m_nPickListTimer);
        m_nPickListTimer = 0;
    }
    Default();
}

// A rejected code is dealt with by the fields' attachment to lookup tables; without one there is nothing to do.
LRESULT COrvaneEditor::OnRejectLookupCode(WPARAM, LPARAM) {
    return 0;
}

LRESULT COrvaneEditor::PostRejectLookupCode(WPARAM, LPARAM) {
    return 0;
}
