// Records that come and go.
#include "editorcore/EditorCore.h"

void CEditorCore::OnAppendRow(int col) {
    CEditCommandGuard guard(this);
    if (IsGridReadOnly())
        return;
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr || source->AppendRow() != GRID_SUCCESS)
        AfxMessageBox("Could not add record to data source!", MB_ICONHAND, 0);
    if (source == nullptr)
        return;
    CUGCtrl::SetNumberRows(RowsOfSource(source), 1);
    const long last = source->GetNumRows() - 1;
    RedrawRow(last);
    GotoCell(col, last);
    NotifyEdited();
    PostCommandsChanged();
}

// Blanks the selected cells; they leave the table as one undo step.
void CEditorCore::OnCut(bool toClipboard) {
    if (IsGridReadOnly())
        return;
    if (CEdit *edit = GetEditControl()) {
        edit->SendMessage(toClipboard ? WM_CUT : WM_CLEAR, 0, 0);
        NotifyEdited();
        return;
    }
    int left, right;
    long top, bottom;
    if (GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS)
        return;
    StartTransaction();
    for (long row = top; row <= bottom; ++row) {
        for (int col = left; col <= right; ++col)
            QuickSetText(col, row, "");
    }
    EndTransaction();
    NotifyEdited();
    RedrawAll();
}
