#include "grid/UGDropListType.h"

#include "grid/UGCtrl.h"
#include "grid/UGPlacing.h"

namespace {

constexpr int kListChildId = 238;
constexpr int kFontHeightPx = 12; // at 96 dots an inch, where neither the cell nor the grid has a font
constexpr int kBorderPx = 2;      // both lines of the list's frame

} // namespace

CUGDropListType::CUGDropListType() : CUGButtonType(kDropListTypeId) {
    m_list.m_col = &m_btnCol;
    m_list.m_row = &m_btnRow;
}

int CUGDropListType::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) {
    if (!updn) {
        if (!m_pressed)
            return UGCT_NOT_HANDLED;
        m_pressed = false;
        m_ctrl->RedrawCell(col, row);
        return UGCT_HANDLED;
    }
    const RECT button = ButtonRect(*rect);
    if (!::PtInRect(&button, *point) || IsReadOnly(col, row)) {
        ForgetCell();
        return UGCT_NOT_HANDLED;
    }
    if ((m_list.m_open && IsPressedCell(col, row)) || m_btnCol == kListJustClosed) {
        m_list.Close();
        ForgetCell();
        return UGCT_NOT_HANDLED;
    }
    PressCell(col, row, *rect);
    OpenList();
    return UGCT_HANDLED;
}

int CUGDropListType::OnDClicked(int col, long row, RECT *rect, POINT *point) {
    const RECT button = ButtonRect(*rect);
    return ::PtInRect(&button, *point) ? OnLClicked(col, row, 1, rect, point) : UGCT_NOT_HANDLED;
}

int CUGDropListType::OnKeyDown(UINT *key) {
    const bool ctrl = (::GetKeyState(VK_CONTROL) & 0x8000) != 0;
    if (*key != VK_RETURN && !(*key == VK_DOWN && ctrl))
        return UGCT_NOT_HANDLED;
    const int col = m_ctrl->GetCurrentCol();
    const long row = m_ctrl->GetCurrentRow();
    if (IsReadOnly(col, row))
        return UGCT_NOT_HANDLED;
    m_btnCol = col;
    m_btnRow = row;
    OpenList();
    *key = 0;
    return UGCT_HANDLED;
}

// The list belongs to the cell: what is chosen must not end up in another one.
int CUGDropListType::OnKillFocus(int col, long row, CUGCell *cell) {
    m_list.Close();
    return CUGButtonType::OnKillFocus(col, row, cell);
}

// Each line that a line feed ends is an item; text behind the last line feed is none.
void CUGDropListType::SplitLabel(const char *label, CStringList *items) {
    const CString text(label);
    int start = 0;
    for (int end = text.Find('\n'); end >= 0; end = text.Find('\n', start)) {
        items->AddTail(text.Mid(start, end - start));
        start = end + 1;
    }
}

RECT CUGDropListType::ListRect(int col, long row, int itemHeight, int count) const {
    CRect cell, client;
    m_ctrl->GetCellRect(col, row, &cell);
    m_ctrl->GetClientRect(&client);
    cell.OffsetRect(m_GI->m_sideHeadingWidth, m_GI->m_topHeadingHeight);
    return UGPlaceList(cell, client.Height(), itemHeight, count, kBorderPx);
}

// The cell's font, the grid's, or one of its own.
HFONT CUGDropListType::ListFont() {
    if (m_GI->m_currentCell.GetFontHandle() != nullptr)
        return m_GI->m_currentCell.GetFontHandle();
    if (m_GI->m_defaultFont != nullptr)
        return m_GI->m_defaultFont;
    if (m_ownFont.GetSafeHandle() == nullptr)
        m_ownFont.CreateFont(m_ctrl->ScaledPx(kFontHeightPx), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    return static_cast<HFONT>(m_ownFont.GetSafeHandle());
}

int CUGDropListType::OpenList() {
    if (m_list.m_open)
        return GRID_ERROR;
    const int col = m_ctrl->GetCurrentCol();
    const long row = m_ctrl->GetCurrentRow();
    CStringList items;
    SplitLabel(m_GI->m_currentCell.GetLabelText(), &items);
    m_ctrl->OnCellTypeNotify(GetID(), col, row, kListOpens, reinterpret_cast<LPARAM>(&items));
    m_list.m_ctrl = m_ctrl;
    constexpr DWORD kStyle = WS_CHILD | WS_BORDER | WS_VSCROLL | WS_CLIPSIBLINGS | LBS_NOINTEGRALHEIGHT;
    if (!m_list.Create(kStyle, CRect(0, 0, 0, 0), m_ctrl, kListChildId))
        return GRID_ERROR;
    m_list.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(ListFont()), FALSE);
    for (POSITION at = items.GetHeadPosition(); at != nullptr;)
        m_list.AddString(items.GetNext(at));
    m_list.MoveWindow(CRect(ListRect(col, row, m_list.GetItemHeight(0), m_list.GetCount())));
    // The snapshot may be older than the choice made last.
    CUGCell cell;
    m_ctrl->GetCell(col, row, &cell);
    m_list.SetCurSel(m_list.FindStringExact(-1, cell.GetText()));
    m_list.SetOpen();
    ::SetWindowPos(m_list.m_hWnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    m_list.SetFocus();
    return GRID_SUCCESS;
}

void CUGDropListType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    if ((StyleOf(cell) & kHideButtonStyle) && !current) {
        CUGCellType::OnDraw(dc, rect, cell, selected, current);
        return;
    }
    DrawTextBeside(dc, rect, cell, selected, current);
    DrawControl(dc, ButtonRect(*rect), DFC_SCROLL, DFCS_SCROLLCOMBOBOX | (LooksPressed(current) ? DFCS_PUSHED : 0));
}
