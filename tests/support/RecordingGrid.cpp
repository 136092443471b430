#include "RecordingGrid.h"

#include "WindowTestApp.h"

#include <utility>

// What the notification answers: 0 when it was told to veto.
int RecordingGrid::Note(const char *name, std::initializer_list<long> arguments) {
    std::string event = std::string(name) + "(";
    const char *between = "";
    for (long argument : arguments) {
        event += between + std::to_string(argument);
        between = ",";
    }
    m_events.push_back(event + ")");
    if (m_log != nullptr)
        m_log->Note(m_events.back());
    if (m_onNote)
        m_onNote(name);
    return m_vetoes.count(name) != 0 ? 0 : 1;
}

std::string RecordingGrid::Take() {
    return Join(std::exchange(m_events, {}));
}

std::string RecordingGrid::State() {
    return "cur=(" + std::to_string(GetCurrentCol()) + "," + std::to_string(GetCurrentRow()) + ") view=(" +
           std::to_string(GetLeftCol()) + "," + std::to_string(GetTopRow()) +
           ") size=" + std::to_string(GetNumberCols()) + "x" + std::to_string(GetNumberRows());
}

std::string RecordingGrid::Selected() {
    std::vector<std::string> cells;
    for (long row = 0; row < GetNumberRows(); ++row) {
        for (int col = 0; col < GetNumberCols(); ++col) {
            if (IsSelected(col, row))
                cells.push_back(std::to_string(col) + "." + std::to_string(row));
        }
    }
    return Join(cells);
}

std::string RecordingGrid::Text(int col, long row) {
    CUGCell cell;
    GetCell(col, row, &cell);
    return cell.GetText();
}

int RecordingGrid::OnCanMove(int oldCol, long oldRow, int newCol, long newRow) {
    const int answer = Note("CanMove", {oldCol, oldRow, newCol, newRow});
    if (m_onCanMove)
        m_onCanMove();
    return answer;
}

int RecordingGrid::OnCanViewMove(int oldCol, long oldRow, int newCol, long newRow) {
    return Note("CanViewMove", {oldCol, oldRow, newCol, newRow});
}

void RecordingGrid::OnHitBottom(long numRows, long rowsPast, long rowsFound) {
    Note("HitBottom", {numRows, rowsPast, rowsFound});
    if (m_onHitBottom)
        m_onHitBottom();
}

void RecordingGrid::OnHitTop(long numRows, long rowsPast) {
    Note("HitTop", {numRows, rowsPast});
    if (m_onHitTop)
        m_onHitTop();
}

void RecordingGrid::OnColSizing(int col, int *width) {
    Note("ColSizing", {col, *width});
    if (m_onSizing)
        m_onSizing(width);
}

void RecordingGrid::OnColSized(int col, int *width) {
    Note("ColSized", {col, *width});
    if (m_onColSized)
        m_onColSized(width);
}

void RecordingGrid::OnCellChange(int oldCol, int newCol, long oldRow, long newRow) {
    Note("CellChange", {oldCol, newCol, oldRow, newRow});
    if (m_onCellChanged)
        m_onCellChanged();
}

void RecordingGrid::OnLeftColChange(int oldCol, int newCol) {
    if (m_notesViewChanges)
        Note("LeftColChange", {oldCol, newCol});
}

void RecordingGrid::OnTopRowChange(long oldRow, long newRow) {
    if (m_notesViewChanges)
        Note("TopRowChange", {oldRow, newRow});
}

void RecordingGrid::OnLClicked(int col, long row, int updn, RECT *, POINT *, int processed) {
    Note("LClicked", {col, row, updn, processed});
    if (m_onLClicked && updn)
        m_onLClicked();
}

void RecordingGrid::OnRClicked(int col, long row, int updn, RECT *, POINT *, int processed) {
    Note("RClicked", {col, row, updn, processed});
}

void RecordingGrid::OnDClicked(int col, long row, RECT *, POINT *, int processed) {
    Note("DClicked", {col, row, processed});
}

void RecordingGrid::OnKeyDown(UINT *key, int processed) {
    Note("KeyDown", {long(*key), processed});
    if (m_onKeyDown)
        m_onKeyDown(key);
}

void RecordingGrid::OnCharDown(UINT *key, int processed) {
    Note("CharDown", {long(*key), processed});
    if (m_onCharDown)
        m_onCharDown(key);
}

void RecordingGrid::OnGetCell(int col, long row, CUGCell *cell) {
    if (m_notesGetCell)
        Note("GetCell", {col, row});
    if (m_onGetCell)
        m_onGetCell(cell);
}

int RecordingGrid::OnSetCell(int col, long row, CUGCell *) {
    return Note("SetCell", {col, row});
}

int RecordingGrid::OnEditStart(int col, long row, CEdit *) {
    return Note("EditStart", {col, row});
}

int RecordingGrid::OnEditVerify(int col, long row, CEdit *, UINT *key) {
    const int answer = Note("EditVerify", {col, row, long(*key)});
    if (m_onEditVerify)
        m_onEditVerify(col, row, key);
    return answer;
}

int RecordingGrid::OnEditFinish(int col, long row, CEdit *) {
    const int answer = Note("EditFinish", {col, row});
    if (m_onEditFinish)
        m_onEditFinish();
    return answer;
}

int RecordingGrid::OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) {
    const int answer = Note("EditContinue", {oldCol, oldRow, *newCol, *newRow});
    if (m_onEditContinue)
        m_onEditContinue(newCol, newRow);
    return answer;
}

// The parameter of some messages is an address, which differs from run to run.
void RecordingGrid::OnCellTypeNotify(long id, int col, long row, long message, LPARAM) {
    Note("CellTypeNotify", {id, col, row, message});
}

int RecordingGrid::OnVScrollHint(long row, int percent, CUGHint *hint) {
    if (m_onHint)
        m_onHint(hint);
    return Note("VScrollHint", {row, percent});
}

int RecordingGrid::OnHScrollHint(int col, int percent, CUGHint *hint) {
    if (m_onHint)
        m_onHint(hint);
    return Note("HScrollHint", {col, percent});
}

DROPEFFECT RecordingGrid::OnDragEnter(COleDataObject *) {
    Note("DragEnter", {});
    return m_dropAnswer;
}

DROPEFFECT RecordingGrid::OnDragOver(COleDataObject *, int col, long row) {
    Note("DragOver", {col, row});
    return m_dropAnswer;
}

DROPEFFECT RecordingGrid::OnDragDrop(COleDataObject *, int col, long row) {
    Note("DragDrop", {col, row});
    return m_dropAnswer;
}

void RecordingGrid::OnDrawSetup(CDC *, int section) {
    if (m_notesDrawSetup)
        Note("DrawSetup", {section});
}

int RecordingGrid::OnSetupEditWindow(int col, long row, RECT *rect, CUGCell *, DWORD *style, int flag) {
    if (m_notesEditSetup)
        Note("SetupEditWindow", {col, row, flag});
    if (m_onSetupEditWindow)
        m_onSetupEditWindow(rect, style);
    return 0;
}
