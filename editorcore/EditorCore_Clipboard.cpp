// Cutting, copying, and the text of what is selected.
#include "editorcore/ClipboardText.h"
#include "editorcore/EditorCore.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/TransactionScope.h"
#include "editorcore/WaitCursorScope.h"
#include "grid/PaintingScope.h"

#include <algorithm>
#include <climits>

namespace {

constexpr long long kWaitCursorCells = 50; // more show the wait cursor
constexpr long kCellsPerLook = 10000;   // between looks for a stop: a selection can span a whole table
constexpr int kColumnsPlus = 1;         // what the estimate adds to a field's width
constexpr int kRowPlus = 2;             // and to a row's

bool HasEditSelection(CEdit *edit) {
    DWORD start = 0, end = 0;
    edit->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return start != end;
}

long long CellsOf(int left, long top, int right, long bottom) {
    return static_cast<long long>(right - left + 1) * (bottom - top + 1);
}

// The clipboard held open for the duration of a block.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : m_open(::OpenClipboard(owner) != FALSE) {}
    ~OpenedClipboard() { Close(); }
    OpenedClipboard(const OpenedClipboard &) = delete;
    OpenedClipboard &operator=(const OpenedClipboard &) = delete;
    explicit operator bool() const { return m_open; }
    void Close() {
        if (m_open)
            ::CloseClipboard();
        m_open = false;
    }

private:
    bool m_open;
};

// The clipboard's text while the clipboard is open; null when it holds none. Another program put it there, and may have
// left out the zero byte at its end.
class ClipboardLock {
public:
    ClipboardLock()
        : m_handle(::GetClipboardData(CF_TEXT)),
          m_text(m_handle != nullptr ? static_cast<const char *>(::GlobalLock(m_handle)) : nullptr) {}
    ~ClipboardLock() {
        if (m_text != nullptr)
            ::GlobalUnlock(m_handle);
    }
    ClipboardLock(const ClipboardLock &) = delete;
    ClipboardLock &operator=(const ClipboardLock &) = delete;
    // False where there is none.
    bool CopyTo(CString *text) const {
        if (m_text == nullptr)
            return false;
        const size_t most = std::min<size_t>(::GlobalSize(m_handle), INT_MAX);
        text->SetString(m_text, static_cast<int>(::strnlen(m_text, most)));
        return true;
    }

private:
    HGLOBAL m_handle;
    const char *m_text;
};

} // namespace

// --- The selection as text

// Characters: the fields' widths, by the rows.
long CEditorCore::EstimateSelectedText() {
    int left, right;
    long top, bottom;
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr || !IsInMultipleSelection() || !SelectedBlock(&left, &top, &right, &bottom))
        return 0;
    long long row = kRowPlus;
    for (int col = left; col <= right; ++col)
        row += std::max(source->GetFieldWidth(GetDataColNumber(col)), 0) + kColumnsPlus;
    const long long all = row * (bottom - top + 1);
    if (all >= INT_MAX)
        AfxThrowMemoryException(); // no string is as long
    return static_cast<long>(all);
}

void CEditorCore::AppendSelectedTexts(CString &out, bool clearCells, bool *stopped) {
    int col;
    long row, lastRow = -1, count = 0;
    CUGCell cell;
    for (int more = EnumFirstSelected(&col, &row); more == GRID_SUCCESS; more = EnumNextSelected(&col, &row)) {
        // Of an empty table's column the selection reaches into the heading, and one that a host made beyond the end.
        if (row < 0 || row >= CUGCtrl::GetNumberRows() || col >= GetNumberCols())
            continue;
        if (count > 0)
            out += row == lastRow ? "\t" : "\r\n";
        if (count++ % kCellsPerLook == 0 && AbortOperation()) {
            *stopped = true;
            return;
        }
        lastRow = row;
        if (GetCell(col, row, &cell) == GRID_SUCCESS)
            out += cell.GetText();
        if (clearCells) {
            cell.ClearAll();
            SetCell(col, row, &cell);
        }
    }
}

bool CEditorCore::CreateSelectedString(CString &out, int clearCells, bool) {
    bool stopped = false;
    const bool inMemory = RunInMemory([&] {
        SettleEdit(); // the cells are read, and may be written
        out.Empty();
        out.Preallocate(EstimateSelectedText());
        AppendSelectedTexts(out, clearCells != 0, &stopped);
        if (!stopped)
            out.FreeExtra();
    });
    if (!inMemory)
        ReportOutOfMemory();
    return inMemory && !stopped;
}

int CEditorCore::CopySelected(int clearCells) {
    CString text;
    CreateSelectedString(text, clearCells, false); // what was gathered goes, stopped or not
    const int result = CopyToClipBoard(&text);
    if (result == GRID_SUCCESS) {
        ClearSelections();
        RedrawAll();
    }
    return result;
}

// --- The clipboard

// The memory is had before the clipboard is emptied: without it what was there stays.
int CEditorCore::CopyToClipBoard(CString *text) {
    OpenedClipboard clipboard(GetSafeHwnd());
    if (!clipboard)
        return GRID_ERROR;
    const size_t bytes = static_cast<size_t>(text->GetLength()) + 1;
    const HGLOBAL memory = ::GlobalAlloc(GHND | GMEM_DDESHARE, bytes);
    void *block = memory != nullptr ? ::GlobalLock(memory) : nullptr;
    if (block == nullptr) {
        ::GlobalFree(memory);
        return GRID_ERROR;
    }
    ::EmptyClipboard();
    std::copy_n(static_cast<const char *>(*text), bytes, static_cast<char *>(block));
    ::GlobalUnlock(memory);
    if (::SetClipboardData(CF_TEXT, memory) != nullptr)
        return GRID_SUCCESS; // the clipboard owns the memory now
    ::GlobalFree(memory);
    return GRID_ERROR;
}

int CEditorCore::CopyFromClipBoard(CString *text) {
    OpenedClipboard clipboard(GetSafeHwnd());
    if (!clipboard)
        return GRID_ERROR;
    return ClipboardLock().CopyTo(text) ? GRID_SUCCESS : GRID_ERROR;
}

bool CEditorCore::TakeClipboardText(CString *text) {
    const char *refusal = nullptr;
    {
        OpenedClipboard clipboard(GetSafeHwnd());
        if (!clipboard)
            refusal = "Could not open clipboard!";
        else if (!ClipboardLock().CopyTo(text))
            refusal = "Could not get clipboard data!";
    }
    if (refusal != nullptr)
        AfxMessageBox(refusal, MB_ICONHAND, 0);
    return refusal == nullptr;
}

bool CEditorCore::GetClipBoardDataInfo(int *cols, long *rows) {
    CString text;
    if (!TakeClipboardText(&text))
        return false;
    const ClipboardText::Size size = ClipboardText::Measure(text);
    *cols = size.cols;
    *rows = size.rows;
    return true;
}

// --- The user's commands

// The rectangle around what is selected, as far as there are cells. False when nothing of the table is.
bool CEditorCore::SelectedBlock(int *left, long *top, int *right, long *bottom) {
    if (GetCurrentSelection(left, top, right, bottom) != GRID_SUCCESS)
        return false;
    *left = std::max(*left, 0);
    *top = std::max(*top, 0L);
    *right = std::min(*right, GetNumberCols() - 1);
    *bottom = std::min(*bottom, LastRowIndex());
    return *left <= *right && *top <= *bottom;
}

void CEditorCore::BlankCells(int left, long top, int right, long bottom) {
    for (long row = top; row <= bottom; ++row) {
        for (int col = left; col <= right; ++col)
            QuickSetText(col, row, "");
    }
}

void CEditorCore::OnCut(bool toClipboard) {
    constexpr int kWholeRows = 2;
    if (IsGridReadOnly() || GetNumberCols() == 0)
        return;
    if (m_nHeadingSelectMode == kWholeRows) {
        OnDeleteRows(true);
        return;
    }
    if (CEdit *edit = GetEditControl()) {
        edit->SendMessage(WM_CUT, 0, 0);
        NotifyEdited();
        return;
    }
    int left, right;
    long top, bottom;
    if (!SelectedBlock(&left, &top, &right, &bottom))
        return;
    NotifyEdited();
    {
        const CWaitCursorScope waiting(ms_pAppInterface, CellsOf(left, top, right, bottom) > kWaitCursorCells);
        const bool inMemory = RunInMemory([&] {
            const CTransactionScope oneStep(this);
            if (toClipboard)
                CopySelected(1);
            else
                BlankCells(left, top, right, bottom);
        });
        if (!inMemory)
            ReportOutOfMemory();
        RedrawCell(GetCurrentCol(), GetCurrentRow());
    }
    NotifyEdited();
    RedrawAll();
}

void CEditorCore::OnCopy() {
    if (CEdit *edit = GetEditControl()) {
        if (HasEditSelection(edit))
            edit->SendMessage(WM_COPY, 0, 0);
        return;
    }
    int left, right;
    long top, bottom;
    if (!SelectedBlock(&left, &top, &right, &bottom))
        return;
    const CWaitCursorScope waiting(ms_pAppInterface, CellsOf(left, top, right, bottom) > kWaitCursorCells);
    const bool inMemory = RunInMemory([&] {
        CPaintingScope quiet(this);
        CopySelected(0);
        ClearSelections();
        SelectRange(left, top, right, bottom); // the copy took the selection away
    });
    if (!inMemory)
        ReportOutOfMemory();
}

bool CEditorCore::CanCut() {
    return !IsGridReadOnly() && CanCopy();
}

bool CEditorCore::CanCopy() {
    CEdit *edit = GetEditControl();
    return edit == nullptr || HasEditSelection(edit);
}

bool CEditorCore::CanPaste() {
    return !IsGridReadOnly() && ::IsClipboardFormatAvailable(CF_TEXT) != FALSE;
}
