// Keys that reach the grid with no edit box open, and clicks in the cells.
#include "editorcore/EditorCore.h"
#include "grid/PaintingScope.h"

#include <algorithm>
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
    const long row = GetCurrentRow();
    const int next = ShownColumnFrom(col + (shift ? -1 : 1), shift ? -1 : 1);
    if (next >= 0) {
        GotoCell(next, row);
        return;
    }
    if (shift) {
        if (row > 0)
            GotoCell(std::max(ShownColumnFrom(GetNumberCols() - 1, -1), 0), row - 1);
        return;
    }
    const long lastRow = LastRowIndex();
    if (lastRow < 0) {
        // The placeholder becomes a record, and the step goes on to the one behind it.
        OnAppendRow(col);
        OnAppendRow(0);
    } else if (row != lastRow) {
        GotoCell(std::max(ShownColumnFrom(0, 1), 0), row + 1);
    } else {
        OnAppendRow(0);
    }
}

// The first column from `col` on, in steps of 1 or -1, that has a width; -1 when there is none.
int CEditorCore::ShownColumnFrom(int col, int step) {
    for (int width = 0; GetColWidth(col, &width) == GRID_SUCCESS; col += step) {
        if (width > 0)
            return col;
    }
    return -1;
}

void CEditorCore::OnCharDown(UINT *key, int processed) {
    // The arrows' numbers are those of "(" and "&": what comes as a character is one.
    const bool typed = CWnd::GetCurrentMessage()->message == WM_CHAR && *key != VK_RETURN;
    if (*key == VK_RETURN)
        *key = ms_bEnterKeyIsTab ? VK_TAB : VK_DOWN;
    if (*key == VK_TAB) {
        TabInGrid(IsDown(VK_SHIFT));
        return;
    }
    const bool arrow = !typed && (*key == VK_DOWN || *key == VK_UP);
    const bool fromKeyboard = *key == VK_BACK || IsPrintable(*key);
    if (arrow || !fromKeyboard || processed == 0)
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
        const CUGSelectionList::Block anchored = m_GI.m_selection.GetBlocks().back();
        CPaintingScope quiet(this);
        ClearSelections();
        SelectRange(anchored.startCol, anchored.startRow, col, row);
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
