// Keys that reach the grid with no edit box open, and clicks in the cells.
#include "editorcore/EditorCore.h"

#include <cctype>

namespace {

bool IsDown(int key) {
    return (::GetKeyState(key) & 0x8000) != 0;
}

// In the machine's code page: the runtime's own locale knows no letter beyond the first 127.
bool IsPrintable(UINT key) {
    return key < 256 && (std::isprint(static_cast<int>(key)) != 0 || ::IsCharAlphaNumericA(static_cast<CHAR>(key)));
}

constexpr UINT kNoKey = static_cast<UINT>(-1); // what a key becomes that must act no further

} // namespace

void CEditorCore::TabInGrid(bool shift) {
    const int col = GetCurrentCol();
    const int lastCol = GetNumberCols() - 1;
    const long row = GetCurrentRow();
    if (shift) {
        if (col > 0)
            GotoCell(col - 1, row);
        else if (row > 0)
            GotoCell(lastCol, row - 1);
        return;
    }
    if (col != lastCol) {
        GotoCell(col + 1, row);
        return;
    }
    const long lastRow = LastRowIndex();
    if (lastRow < 0) {
        // The placeholder becomes a record, and the step goes on to the one behind it.
        OnAppendRow(col);
        OnAppendRow(0);
    } else if (row != lastRow) {
        GotoCell(0, row + 1);
    } else {
        OnAppendRow(0);
    }
}

void CEditorCore::OnCharDown(UINT *key, int processed) {
    if (*key == VK_RETURN)
        *key = ms_bEnterKeyIsTab ? VK_TAB : VK_DOWN;
    if (*key == VK_TAB) {
        TabInGrid(IsDown(VK_SHIFT));
        return;
    }
    const bool fromKeyboard = *key == VK_BACK || IsPrintable(*key);
    if (*key == VK_DOWN || *key == VK_UP || !fromKeyboard || processed == 0)
        return;
    if (IsInMultipleSelection())
        ClearSelections();
    StartEdit(static_cast<int>(*key));
}

void CEditorCore::EnterKeyInGrid(UINT *key, bool *shift) {
    if (ms_bEnterKeyIsTab) {
        *key = VK_TAB;
        return;
    }
    if (*shift) {
        if (GetCurrentRow() > 0)
            GotoCell(GetCurrentCol(), GetCurrentRow() - 1);
        *key = kNoKey;
        return;
    }
    *key = VK_DOWN;
    if (GetCurrentRow() == LastRowIndex() || GetNumberRows() == 0)
        OnAppendRow(GetCurrentCol());
}

void CEditorCore::OnKeyDown(UINT *key, int) {
    if (*key == VK_DELETE && GetEditControl() == nullptr) {
        OnCut(false);
        return;
    }
    if (*key == VK_ESCAPE) {
        if (IsInMultipleSelection() || m_nHeadingSelectMode != 0)
            CancelSelectionMode(true);
        else if (CWnd *parent = GetParent())
            parent->PostMessage(WM_COMMAND, kHostCloseCommand, 0);
        return;
    }
    bool shift = IsDown(VK_SHIFT);
    const bool control = IsDown(VK_CONTROL);
    if (*key == VK_RETURN) {
        EnterKeyInGrid(key, &shift);
        if (*key == kNoKey)
            return;
    }
    if (*key == VK_F6 || (control && *key == 'M'))
        ms_pAppInterface->OnGridHotKey();
    if (m_nHeadingSelectMode != 0) {
        HeadingSelectionKey(key, shift, control);
        if (*key == kNoKey)
            return;
    }
    if ((*key == VK_LEFT || *key == VK_RIGHT || *key == VK_UP || *key == VK_DOWN) && !IsInMultipleSelection())
        EnableMultiSelect(1);
    if ((*key == VK_LEFT || *key == VK_RIGHT) && !shift) {
        // Left and right open the edit box where the cursor is, rather than moving.
        *key = kNoKey;
        ClearSelections();
        RedrawAll();
        StartEdit();
    }
}

void CEditorCore::OnLClicked(int col, long row, int updn, RECT *, POINT *, int) {
    if (CWnd::GetCapture() == &m_grid)
        ::ReleaseCapture();
    if (!IsInMultipleSelection()) {
        EnableMultiSelect(1);
    } else if (updn != 0 && !IsDown(VK_SHIFT)) {
        ClearSelections();
        RedrawAll();
    } else if (updn != 0 && col >= 0 && row >= 0) {
        int left, right;
        long top, bottom;
        if (GetCurrentSelection(&left, &top, &right, &bottom) == GRID_SUCCESS) {
            EnablePainting(0);
            ClearSelections();
            SelectRange(left, top, col, row);
            EnablePainting(1);
        }
    }
    if (m_nHeadingSelectMode != 0)
        CancelSelectionMode(true);
}

// The caret lands under the pointer.
void CEditorCore::OnDClicked(int, long, RECT *rect, POINT *point, int) {
    if (IsInMultipleSelection())
        ClearSelections();
    if (IsGridReadOnly())
        return;
    StartEdit();
    CEdit *edit = GetEditControl();
    if (edit == nullptr)
        return;
    edit->SendMessage(EM_SETSEL, static_cast<WPARAM>(-1), -1);
    edit->SendMessage(EM_SCROLLCARET, 0, 0);
    CPoint at(point->x, rect->top);
    m_grid.ClientToScreen(&at);
    edit->ScreenToClient(&at);
    edit->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(at.x, at.y));
    edit->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}
