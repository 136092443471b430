#include "grid/UGEdit.h"

#include "grid/UGCtrl.h"
#include "grid/ValueScope.h"

IMPLEMENT_DYNAMIC(CUGEdit, CEdit)

BEGIN_MESSAGE_MAP(CUGEdit, CEdit)
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_GETDLGCODE()
    ON_CONTROL_REFLECT(EN_UPDATE, OnUpdateText)
END_MESSAGE_MAP()

bool CUGEdit::Open(DWORD style, const RECT &rect, CUGGrid *grid, const CUGCell &cell, HFONT defaultFont) {
    m_ctrl = grid->m_ctrl;
    m_active = false;
    m_focusSeen = false;
    m_written = false;
    m_mask.Set(nullptr);
    if (!Create(style, rect, grid, kEditChildId))
        return false;
    const HFONT font = cell.GetFontHandle() != nullptr ? cell.GetFontHandle() : defaultFont;
    if (font != nullptr)
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (cell.GetMaxLength() >= 0)
        LimitText(cell.GetMaxLength());
    SetWindowText(cell.GetText());
    m_mask.Set(cell.GetMask());
    if (m_mask.IsOn()) {
        LimitText(m_mask.Length());
        Reformat();
    }
    GetWindowText(m_textBefore);
    m_cellBefore = cell.GetText();
    return true;
}

void CUGEdit::Show(int key) {
    ShowWindow(SW_SHOW);
    SetFocus();
    SetSel(0, -1);
    SendMessage(EM_SCROLLCARET, 0, 0);
    m_active = true;
    if (key > 0)
        SendMessage(WM_CHAR, key, 0);
}

// Asks the notification. It may pump messages, a box of the host's say, which takes the focus: the box stays open
// until the answer is known. False also where it is gone after all, or another edit stands in its place.
bool CUGEdit::AskFinish(int col, long row) {
    const HWND asked = m_hWnd;
    const int answer = m_ctrl->OnEditFinish(col, row, this);
    if (m_hWnd == nullptr || m_hWnd != asked)
        return false;
    return answer != 0;
}

// Nothing was typed, and the cell holds another text than it did then: the box has nothing to say.
bool CUGEdit::IsOvertaken(int col, long row) {
    CString text;
    GetWindowText(text);
    if (text != m_textBefore)
        return false;
    CUGCell cell;
    return m_ctrl->GetCell(col, row, &cell) == GRID_SUCCESS && m_cellBefore != cell.GetText();
}

void CUGEdit::NoteTexts(int col, long row) {
    if (m_hWnd == nullptr)
        return;
    GetWindowText(m_textBefore);
    CUGCell cell;
    m_ctrl->GetCell(col, row, &cell);
    m_cellBefore = cell.GetText();
}

// What was typed, into the cell that the box stands over: a notification may have made another one current
// meanwhile, as when a key appends a record, and the text must not end up there. False where the notification ended the
// edit: what the cell shows by then may be another field or record.
bool CUGEdit::Write(int col, long row) {
    const HWND box = m_hWnd;
    CString text;
    GetWindowText(text);
    CUGCell cell;
    m_ctrl->GetCellRaw(col, row, &cell);
    cell.SetText(text);
    const int allowed = m_ctrl->AskToSetCell(col, row, &cell);
    if (m_hWnd != box)
        return false;
    m_result = allowed == GRID_SUCCESS ? m_ctrl->StoreCell(col, row, &cell) : allowed;
    m_ctrl->RedrawCell(col, row); // what the box does not cover, and where else a locked column shows
    m_written = true;
    if (m_hWnd == box)
        NoteTexts(col, row);
    if (m_listener != nullptr)
        m_listener->EditWritten();
    return true;
}

// 1: nothing more is owed, and the edit may move on: the text was handed to the cell, or there was nothing to
// finish. A write that fails gives 1 as well, since the host's notification and the source have had their say: the
// result is kept for OnEditContinue, and the cell shows what the source has. 0: nothing was written, for the
// notification stopped it, or the box went while it was asked, or it is being asked already.
int CUGEdit::Finish() {
    if (m_finishing)
        return 0;
    if (!m_active)
        return 1;
    const int col = m_ctrl->m_GI.m_editCol;
    const long row = m_ctrl->m_GI.m_editRow;
    const HWND box = m_hWnd;
    const CUGValueScope<bool> finishing(&m_finishing, true);
    if (IsOvertaken(col, row)) {
        m_active = false;
        return 1;
    }
    if (!AskFinish(col, row))
        return 0; // and the finish stays owed
    if (!Write(col, row))
        return 0;
    if (m_hWnd != nullptr && m_hWnd != box)
        return 0; // the write began another edit
    m_active = false; // a focus that came back owes nothing: the text stands
    return 1;
}

void CUGEdit::FinishAndContinue(int dx, int dy) {
    CUGCtrl *ctrl = m_ctrl;
    if (Finish())
        ctrl->EditContinue(dx, dy);
    else if (m_active && m_hWnd != nullptr && ::GetFocus() != m_hWnd)
        SetFocus(); // the text waits to be put right, and a box of the host's had the focus
}

void CUGEdit::OnKeyDown(UINT key, UINT, UINT) {
    if (!m_ctrl->OnEditVerify(-1, -1, this, &key))
        return;
    if (GetSafeHwnd() == nullptr)
        return; // the notification ended the edit
    switch (key) {
    case VK_TAB: FinishAndContinue((::GetKeyState(VK_SHIFT) & 0x8000) ? -1 : 1, 0); break;
    case VK_RETURN: FinishAndContinue(1, 0); break;
    case VK_UP: FinishAndContinue(0, -1); break;
    case VK_DOWN: FinishAndContinue(0, 1); break;
    case VK_ESCAPE: {
        m_active = false;
        CUGCtrl *ctrl = m_ctrl;
        DestroyWindow();
        ctrl->SetFocus();
        break;
    }
    default: Default(); break;
    }
}

void CUGEdit::OnKeyUp(UINT key, UINT, UINT) {
    if (m_ctrl->OnEditVerify(-2, -2, this, &key))
        Default();
}

// Clears the selection and passes the literals that stand or belong where the caret is. False refuses the character,
// and puts nothing in.
bool CUGEdit::PassMask(char character) {
    SendMessage(WM_CLEAR, 0, 0);
    int start, end;
    GetSel(start, end);
    CString text;
    GetWindowText(text);
    const CUGEditMask::Place place = m_mask.PlaceOf(static_cast<const char *>(text), start);
    if (!m_mask.Accepts(place.position, character))
        return false;
    SetSel(start + place.passed, start + place.passed);
    const CUGValueScope<bool> busy(&m_maskBusy, true);
    for (const char literal : place.missing)
        SendMessage(WM_CHAR, static_cast<unsigned char>(literal), 0);
    return true;
}

void CUGEdit::OnChar(UINT key, UINT, UINT) {
    if (m_maskBusy) {
        Default();
        return;
    }
    const bool printable = key >= ' ' && key != 127;
    if (m_mask.IsOn() && printable && !PassMask(static_cast<char>(key)))
        return;
    const UINT typed = key;
    if (!m_ctrl->OnEditVerify(m_ctrl->m_GI.m_editCol, m_ctrl->m_GI.m_editRow, this, &key))
        return;
    if (typed == VK_TAB || typed == VK_RETURN || GetSafeHwnd() == nullptr)
        return;
    if (key != typed)
        DefWindowProc(WM_CHAR, key, 0);
    else
        Default();
}

void CUGEdit::OnSetFocus(CWnd *old) {
    CEdit::OnSetFocus(old);
    m_active = true;
    m_focusSeen = true;
}

void CUGEdit::OnKillFocus(CWnd *next) {
    CEdit::OnKillFocus(next);
    if (m_ctrl->m_GI.m_suppressFinish || !m_focusSeen || m_finishing)
        return;
    m_mask.Set(nullptr);
    const HWND left = m_hWnd;
    Finish();
    if (m_hWnd != left)
        return; // the notification ended this edit, and may have begun another
    m_active = false;
    DestroyWindow();
}

// Tab moves on to the next cell, and Enter and Escape end the edit: a dialog must not take them.
UINT CUGEdit::OnGetDlgCode() {
    const MSG *message = reinterpret_cast<const MSG *>(GetCurrentMessage()->lParam);
    UINT code = static_cast<UINT>(Default());
    if (message != nullptr && message->wParam == VK_TAB)
        code |= DLGC_WANTTAB;
    else if (message != nullptr && (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE))
        code |= DLGC_WANTALLKEYS;
    return code;
}

void CUGEdit::OnUpdateText() {
    m_written = false;
    if (m_listener != nullptr)
        m_listener->EditTextChanged();
    if (m_mask.IsOn() && !m_maskBusy)
        Reformat();
}

void CUGEdit::Reformat() {
    CString text;
    GetWindowText(text);
    const std::string formatted = m_mask.Reformat(static_cast<const char *>(text));
    if (formatted == static_cast<const char *>(text))
        return;
    int start, end;
    GetSel(start, end);
    const CUGValueScope<bool> busy(&m_maskBusy, true);
    SetWindowText(formatted.c_str());
    SetSel(start, end);
}
