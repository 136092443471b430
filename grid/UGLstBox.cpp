#include "grid/UGLstBox.h"

#include "grid/UGCtrl.h"
#include "grid/ValueScope.h"

#include <utility>

IMPLEMENT_DYNAMIC(CUGLstBox, CListBox)

BEGIN_MESSAGE_MAP(CUGLstBox, CListBox)
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

void CUGLstBox::SetOpen() {
    m_open = true;
    m_cancelled = false;
    m_ctrl->m_openList = this;
}

// The control knows of a list while it is open and while an item is told.
void CUGLstBox::LeaveControl() {
    if (!m_choosing && m_ctrl != nullptr && m_ctrl->m_openList == this)
        m_ctrl->m_openList = nullptr;
}

void CUGLstBox::Cancel() {
    m_cancelled = true;
    *m_col = -1;
    *m_row = -1;
    Close();
}

void CUGLstBox::Close() {
    const bool open = std::exchange(m_open, false);
    LeaveControl();
    if (!open || GetSafeHwnd() == nullptr)
        return;
    if (::GetFocus() == m_hWnd)
        m_ctrl->m_grid.SetFocus();
    DestroyWindow();
}

// The list may also go with the control.
void CUGLstBox::OnDestroy() {
    m_open = false;
    LeaveControl();
    CListBox::OnDestroy();
}

void CUGLstBox::Take() {
    const int item = GetCurSel();
    if (item == LB_ERR || *m_col < 0 || *m_row < 0) {
        Close();
        return;
    }
    CString text;
    GetText(item, text);
    const int col = *m_col;
    const long row = *m_row;
    // The receiver may take the focus away, with a message box say: the item is chosen all the same.
    {
        const CUGValueScope<bool> choosing(&m_choosing, true);
        m_ctrl->OnCellTypeNotify(kDropListTypeId, col, row, kItemChosen,
                                 reinterpret_cast<LPARAM>(static_cast<const char *>(text)));
    }
    LeaveControl();
    if (m_cancelled)
        return;
    CUGCell cell;
    m_ctrl->GetCellRaw(col, row, &cell);
    cell.SetText(text);
    m_ctrl->SetCell(col, row, &cell);
    m_ctrl->RedrawCell(col, row);
    *m_col = -1;
    *m_row = -1;
    Close();
}

void CUGLstBox::OnKeyDown(UINT key, UINT, UINT) {
    if (key == VK_RETURN) {
        Take();
    } else if (key == VK_ESCAPE) {
        Close();
    } else {
        Default();
    }
}

void CUGLstBox::OnLButtonUp(UINT, CPoint) {
    Default();
    if (GetSafeHwnd() != nullptr)
        Take();
}

void CUGLstBox::OnKillFocus(CWnd *next) {
    CListBox::OnKillFocus(next);
    if (!m_open)
        return;
    if (!m_choosing) {
        *m_col = kListJustClosed;
        *m_row = kListJustClosed;
    }
    Close();
    if (m_ctrl->m_grid.GetSafeHwnd() != nullptr)
        m_ctrl->m_grid.UpdateWindow();
}

UINT CUGLstBox::OnGetDlgCode() {
    return DLGC_WANTALLKEYS;
}
