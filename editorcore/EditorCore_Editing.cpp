// One edit, from the opening of the box to the boundary in the source's undo.
#include "editorcore/EditorCore.h"
#include "editorcore/TransactionScope.h"
#include "grid/ValueScope.h"

#include <utility>

int CEditorCore::OnEditStart(int col, long, CEdit *edit) {
    if (IsGridReadOnly())
        return 0;
    m_bEditUndone = false;
    const int field = GetDataSrcField(col);
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (field >= 0 && source != nullptr)
        edit->SendMessage(EM_LIMITTEXT, source->GetFieldWidth(field), 0);
    return 1;
}

int CEditorCore::OnEditVerify(int col, long row, CEdit *, UINT *key) {
    if (col == -1 && row == -1 && *key == VK_RETURN) {
        *key = ms_bEnterKeyIsTab ? VK_TAB : VK_DOWN;
        // The view may scroll to the new record. The edit is finished after it as anywhere, an undo step of its own.
        const CUGValueScope staying(&m_GI.m_suppressFinish, 1);
        if (GetNumberRows() == 0)
            OnAppendRow(GetCurrentCol());
        if (GetNumberCols() > 1 && GetCurrentRow() == LastRowIndex() && !ms_bEnterKeyIsTab)
            OnAppendRow(GetCurrentCol());
    }
    if (*key == VK_ESCAPE)
        SaveEditContents();
    if (col == -1 || row == -1)
        return 1;
    CUGCell cell;
    GetCell(col, row, &cell);
    return GetCellType(cell.GetCellType())->OnCharDown(key);
}

int CEditorCore::OnEditContinue(int oldCol, long oldRow, int *newCol, long *newRow) {
    if (::GetKeyState(VK_SHIFT) & 0x8000)
        return 1;
    const bool lastCell = oldCol == GetNumberCols() - 1 && oldRow == LastRowIndex();
    if (lastCell && *newCol == 0 && *newRow == oldRow) {
        OnAppendRow(0);
        *newRow = oldRow + 1;
    }
    return 1;
}

int CEditorCore::OnEditFinish(int col, long row, CEdit *edit) {
    const HWND box = edit->GetSafeHwnd();
    if (m_nEditMode == kEditVerify)
        VarifyEdit(edit, col, row);
    if (box == nullptr || edit->GetSafeHwnd() != box)
        return 0; // what ran meanwhile ended this edit, and may have begun another
    const CUGValueScope ownStep(&m_bInCommand, false); // also where a command or its dialog ends the edit
    return OnCellEdit(col, row, edit, nullptr, nullptr) ? 1 : 0;
}

// An empty cell needs no verification, and text erased to nothing goes by without a question.
void CEditorCore::VarifyEdit(CWnd *edit, int col, long row) {
    CUGCell cell;
    GetCell(col, row, &cell);
    const CString stored(cell.GetText());
    CString typed;
    edit->GetWindowText(typed);
    if (stored.IsEmpty() || typed.IsEmpty() || typed == stored)
        return;
    CString question;
    question.Format("Original = %s, New = %s - Substitute?", static_cast<const char *>(stored),
                    static_cast<const char *>(typed));
    const HWND box = edit->GetSafeHwnd();
    int answer;
    {
        const CUGValueScope staying(&m_GI.m_suppressFinish, 1); // the question takes the focus, which must not end the edit
        answer = AfxMessageBox(question, MB_YESNO | MB_ICONQUESTION, 0);
    }
    if (answer != IDYES && edit->GetSafeHwnd() == box) // another box's text is another cell's
        edit->SetWindowText(stored);
}

bool CEditorCore::OnCellEdit(int col, long row, CEdit *edit, const char *oldText, const char *newText) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (!m_bDataSrcOpen || source == nullptr)
        return false;
    const long gridRows = CUGCtrl::GetNumberRows();
    const long rows = gridRows == 1 ? source->GetNumRows() : gridRows;
    if (rows == 0 && source->GetNumRows() == 0 && source->AppendRow() != GRID_SUCCESS) {
        AfxMessageBox("Could not add new record to data source!", MB_ICONHAND, 0);
        return false;
    }
    // Inside an operation the boundary is the operation's own; without undo none is kept.
    if (m_bInCommand || m_pCommandList->GetMaxCommands() < 1)
        return true;
    return AddEditCommand(col, row, edit, oldText, newText);
}

bool CEditorCore::AddEditCommand(int col, long row, CEdit *edit, const char *oldText, const char *newText) {
    if (edit == nullptr)
        edit = GetEditControl();
    if (edit == nullptr)
        return false;
    CString before(oldText), after(newText);
    if (oldText == nullptr) {
        CUGCell cell;
        GetCell(col, row, &cell);
        before = cell.GetText();
    }
    if (newText == nullptr)
        edit->GetWindowText(after);
    if (before != after) {
        // The empty pair closes the source's open group: the write that follows is one undo step.
        StartTransaction();
        EndTransaction();
        NotifyEdited();
        m_bTitleAwaitsWrite = true;
    }
    return true;
}

// A source may refuse the text: the title is told again by what the write has left.
void CEditorCore::EditWritten() {
    if (std::exchange(m_bTitleAwaitsWrite, false) && !m_bSavingEdit)
        UpdateTitle();
}

// Columns of the grid are about to show other fields.
void CEditorCore::EditLosesCell() {
    SettleEdit();
}

// Typing after an undo in the box takes the place of what was undone there.
void CEditorCore::EditTextChanged() {
    m_bEditUndone = false;
}

void CEditorCore::SetEditMode(int mode) {
    SettleEdit();
    m_nEditMode = mode;
}

// Does the box hold a text that its cell was not given yet?
bool CEditorCore::IsEditTyped() {
    CEdit *edit = GetEditControl();
    if (edit == nullptr || m_grid.m_edit.m_written)
        return false;
    CString typed;
    edit->GetWindowText(typed);
    CUGCell cell;
    GetCell(m_GI.m_editCol, m_GI.m_editRow, &cell);
    return typed != cell.GetText();
}

void CEditorCore::SettleEdit() {
    if (IsEditTyped())
        SaveAsOwnStep();
    CancelEdit(); // untouched, or a question keeps the box open
}

// An open group of the source's undo is interrupted for the edit.
void CEditorCore::SaveAsOwnStep() {
    CTransactionScope *group = m_pGroup;
    if (group == nullptr || !group->IsOpen()) {
        SaveEditContents();
        return;
    }
    group->End();
    SaveEditContents();
    group->Begin();
}

void CEditorCore::SaveEditContents() {
    CEdit *edit = GetEditControl();
    if (edit == nullptr)
        return;
    const bool differs = IsEditTyped();
    {
        const CUGValueScope saving(&m_bSavingEdit, true);
        const CUGValueScope ending(&m_GI.m_suppressFinish, 0); // what keeps it open is meant for the focus only
        edit->SendMessage(WM_KILLFOCUS, 0, 0);
    }
    if (differs)
        NotifyEdited();
}

void CEditorCore::NotifyEdited() {
    UpdateTitle();
    m_bEditUndone = false;
}

void CEditorCore::OnEditNotify() {
    NotifyEdited();
}

void CEditorCore::StartTransaction() {
    if (CUGDataSource *source = GetCurrentDataSrc(false))
        source->StartTransaction();
}

void CEditorCore::EndTransaction() {
    if (CUGDataSource *source = GetCurrentDataSrc(false))
        source->EndTransaction();
}

int CEditorCore::OnSetCell(int, long, CUGCell *) {
    return 1;
}
