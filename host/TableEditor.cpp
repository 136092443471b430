#include "host/TableEditor.h"

#include "host/FieldChoice.h"
#include "host/Resource.h"

BEGIN_MESSAGE_MAP(CTableEditor, COrvaneEditor)
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(kMsgFindNext, OnFindNext)
END_MESSAGE_MAP()

namespace {

constexpr int kColumnsByHeading = 1, kRecordsByHeading = 2; // m_nHeadingSelectMode

CPoint PointerPosition() {
    CPoint screen;
    ::GetCursorPos(&screen);
    return screen;
}

CString CountOf(long count, const char *one, const char *many) {
    CString text;
    text.Format("%ld %s", count, count == 1 ? one : many);
    return text;
}

} // namespace

// --- Commands

void CTableEditor::SelectAll() {
    if (CEdit *edit = GetEditControl()) {
        edit->SetSel(0, -1);
        return;
    }
    if (GetNumberRows() == 0 || GetNumberCols() == 0)
        return;
    m_nHeadingSelectMode = 0;
    m_nSelectAnchorCol = m_nSelectAnchorRow = -1;
    EnableMultiSelect(1);
    ClearSelections();
    SelectRange(0, 0, GetNumberCols() - 1, GetNumberRows() - 1);
    RedrawAll();
}

void CTableEditor::SelectCurrentIfNothing() {
    int left, right;
    long top, bottom;
    if (!IsInEditMode() && GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS)
        EnableMultiSelect(1);
}

// The library fits up to the column that it is given, which is the last one of the selection here.
void CTableEditor::BestFitCols() {
    int left, right = -1;
    long top, bottom;
    SelectCurrentIfNothing();
    if (GetCurrentSelection(&left, &top, &right, &bottom) == GRID_SUCCESS)
        OnTH_DClicked(right);
}

bool CTableEditor::ShowsFieldsOfFile() {
    CUIntArray shown;
    GetDisplayCols(shown);
    for (int i = 0; i < shown.GetSize(); ++i) {
        if (shown.GetAt(i) != static_cast<UINT>(i))
            return false;
    }
    return shown.GetSize() == GetTotalDataSrcFields();
}

void CTableEditor::ShowFieldsOfFile() {
    CUGDataSource *source = GetCurrentDataSrc(false);
    CStringArray names;
    for (int field = 0; field < GetTotalDataSrcFields(); ++field) {
        CString name;
        source->GetColName(field, &name);
        names.Add(name);
    }
    OnOrderCols(&names);
}

void CTableEditor::ShowChosenFields(const CArray<bool, bool> &shown) {
    CUIntArray displayed, positions, chosen;
    GetDisplayCols(displayed);
    GetVirtualColPostions(positions);
    ChooseFields(displayed, positions, shown, chosen);
    ReOrderCols(chosen);
}

CString CTableEditor::DescribeSelection() {
    int left, right;
    long top, bottom;
    if (GetNumberRows() == 0 || GetNumberCols() == 0 || IsInEditMode() ||
        GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS)
        return "";
    const int cols = right - left + 1;
    const long rows = bottom - top + 1;
    if (m_nHeadingSelectMode == kColumnsByHeading)
        return CountOf(cols, "column", "columns");
    if (m_nHeadingSelectMode == kRecordsByHeading)
        return CountOf(rows, "record", "records");
    CString text;
    if (cols > 1 || rows > 1)
        text.Format("%d x %ld cells", cols, rows);
    return text;
}

// --- Context menus

// A right click inside the selection leaves the selection, and so the current cell, as they are.
int CTableEditor::OnCanMove(int oldCol, long oldRow, int newCol, long newRow) {
    const bool rightClick = m_GI.m_moveType == UG_MOVED_BY_CLICK && (::GetKeyState(VK_RBUTTON) & 0x8000) != 0;
    if (rightClick && IsSelected(newCol, newRow))
        return 0;
    return COrvaneEditor::OnCanMove(oldCol, oldRow, newCol, newRow);
}

void CTableEditor::OnRClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) {
    const bool inSelection = col >= 0 && IsSelected(col, row) && IsInMultipleSelection();
    if (updn != 0) {
        if (col >= 0 && !inSelection) {
            // Outside it is a click as with the left button: a selection by headings ends.
            OnLClicked(col, row, 1, rect, point, processed);
            OnLClicked(col, row, 0, rect, point, processed);
        }
        return;
    }
    ShowMenu(GetNumberCols() == 0 ? Menu::Columns : Menu::Cells, PointerPosition());
}

void CTableEditor::OnTH_RClicked(int col, int updn) {
    if (updn == 0) {
        ShowMenu(Menu::Columns, PointerPosition());
        return;
    }
    SaveEditContents();
    if (col >= 0 && !(m_nHeadingSelectMode == kColumnsByHeading && IsSelected(col, 0))) {
        OnTH_LClicked(col, 1);
        ::ReleaseCapture(); // no drag follows
    }
}

void CTableEditor::OnSH_RClicked(long row, int updn) {
    if (updn == 0) {
        ShowMenu(Menu::Records, PointerPosition());
        return;
    }
    SaveEditContents();
    if (row >= 0 && !(m_nHeadingSelectMode == kRecordsByHeading && IsSelected(0, row))) {
        OnSH_LClicked(row, 1);
        ::ReleaseCapture();
    }
}

void CTableEditor::OnCB_RClicked(int updn) {
    if (updn == 0)
        ShowMenu(Menu::Columns, PointerPosition());
}

void CTableEditor::OnKeyDown(UINT *key, int processed) {
    if (*key == VK_DELETE)
        SelectCurrentIfNothing();
    COrvaneEditor::OnKeyDown(key, processed);
}

void CTableEditor::OnKeyUp(UINT *key, int processed) {
    if (*key == VK_APPS)
        ShowMenuByKey();
    else
        COrvaneEditor::OnKeyUp(key, processed);
}

// Shift+F10. The mouse's own menus are shown as the button comes up.
void CTableEditor::OnContextMenu(CWnd *, CPoint) {
    ShowMenuByKey();
}

// Below the current cell, where it is in view.
void CTableEditor::ShowMenuByKey() {
    CRect client, cell;
    m_grid.GetClientRect(&client);
    CPoint at = client.TopLeft();
    if (GetCellRect(GetCurrentCol(), GetCurrentRow(), &cell) == GRID_SUCCESS && client.PtInRect(cell.TopLeft()))
        at = CPoint(cell.left, std::min(cell.bottom, client.bottom));
    m_grid.ClientToScreen(&at);
    const bool columns = m_nHeadingSelectMode == kColumnsByHeading || GetNumberCols() == 0;
    ShowMenu(columns                                      ? Menu::Columns
             : m_nHeadingSelectMode == kRecordsByHeading ? Menu::Records
                                                          : Menu::Cells,
             at);
}

// The frame owns the menu, so that its items are enabled and explained as those of the menu bar are.
void CTableEditor::ShowMenu(Menu menu, CPoint screen) {
    CMenu menus;
    if (!menus.LoadMenu(IDR_CONTEXT))
        return;
    // While the menu is up nothing is idle: the status bar tells of what the click selected before.
    AfxGetMainWnd()->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE);
    if (CMenu *popup = menus.GetSubMenu(static_cast<int>(menu)))
        popup->TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, screen.x, screen.y, AfxGetMainWnd());
}
