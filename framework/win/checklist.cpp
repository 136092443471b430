// CCheckListBox. The state of an item hangs on the list's item data, the caller's data inside it.
#include "afxwin.h"

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
ON_WM_DESTROY()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_KEYDOWN()
ON_MESSAGE(LB_DELETESTRING, &CCheckListBox::OnDeleteString)
ON_MESSAGE(LB_RESETCONTENT, &CCheckListBox::OnResetContent)
END_MESSAGE_MAP()

struct CCheckListBox::State {
    DWORD_PTR userData = 0;
    int check = 0;
    BOOL enabled = TRUE;
};

CCheckListBox::CCheckListBox() : m_style(BS_AUTOCHECKBOX) {}

BOOL CCheckListBox::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    if (!(style & LBS_OWNERDRAWVARIABLE))
        style |= LBS_OWNERDRAWFIXED;
    return CListBox::Create(style | LBS_HASSTRINGS, rect, parent, id);
}

CCheckListBox::State *CCheckListBox::StateAt(int index, bool make) {
    const LRESULT data = DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    // The error is also a possible number, but never a state's address.
    if (data == LB_ERR)
        return nullptr;
    if (data == 0 && make) {
        State *state = new State;
        DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(state));
        return state;
    }
    return reinterpret_cast<State *>(data);
}

const CCheckListBox::State *CCheckListBox::StateAt(int index) const {
    return const_cast<CCheckListBox *>(this)->StateAt(index, false);
}

void CCheckListBox::ForgetState(int index) {
    if (State *state = StateAt(index, false)) {
        DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), 0);
        delete state;
    }
}

void CCheckListBox::SetCheck(int index, int check) {
    if (State *state = StateAt(index, true)) {
        state->check = check;
        CRect rect;
        GetItemRect(index, &rect);
        InvalidateRect(&rect, FALSE);
    }
}

int CCheckListBox::GetCheck(int index) const {
    const State *state = StateAt(index);
    return state ? state->check : 0;
}

void CCheckListBox::Enable(int index, BOOL enabled) {
    if (State *state = StateAt(index, true)) {
        state->enabled = enabled;
        CRect rect;
        GetItemRect(index, &rect);
        InvalidateRect(&rect, FALSE);
    }
}

BOOL CCheckListBox::IsEnabled(int index) const {
    const State *state = StateAt(index);
    return !state || state->enabled;
}

DWORD_PTR CCheckListBox::GetItemData(int index) const {
    const State *state = StateAt(index);
    return state ? state->userData : 0;
}

int CCheckListBox::SetItemData(int index, DWORD_PTR data) {
    State *state = StateAt(index, true);
    if (!state)
        return LB_ERR;
    state->userData = data;
    return 0;
}

int CCheckListBox::BoxSize() const {
    return ::GetSystemMetrics(SM_CXMENUCHECK);
}

void CCheckListBox::Toggle(int index) {
    const bool threeStates = m_style == BS_AUTO3STATE;
    if (!IsEnabled(index) || (m_style != BS_AUTOCHECKBOX && !threeStates))
        return;
    SetCheck(index, (GetCheck(index) + 1) % (threeStates ? 3 : 2));
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                             reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::OnDestroy() {
    for (int i = GetCount() - 1; i >= 0; i--)
        ForgetState(i);
    CListBox::OnDestroy();
}

LRESULT CCheckListBox::OnDeleteString(WPARAM wParam, LPARAM) {
    ForgetState(static_cast<int>(wParam));
    return Default();
}

LRESULT CCheckListBox::OnResetContent(WPARAM, LPARAM) {
    for (int i = GetCount() - 1; i >= 0; i--)
        ForgetState(i);
    return Default();
}

void CCheckListBox::OnLButtonDown(UINT flags, CPoint point) {
    BOOL outside = FALSE;
    const int index = static_cast<int>(ItemFromPoint(point, outside));
    CRect rect;
    const bool onBox = !outside && GetItemRect(index, &rect) != LB_ERR && rect.PtInRect(point) &&
                       point.x < rect.left + BoxSize() + 2;
    CListBox::OnLButtonDown(flags, point);
    if (onBox)
        Toggle(index);
}

void CCheckListBox::OnLButtonDblClk(UINT flags, CPoint point) {
    // The second click of two quick ones counts as a click.
    OnLButtonDown(flags, point);
}

void CCheckListBox::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == VK_SPACE) {
        const int index = GetCaretIndex();
        if (index != LB_ERR && GetCount() > 0)
            Toggle(index);
        return;
    }
    CListBox::OnKeyDown(key, repeat, flags);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT item) {
    CClientDC dc(this);
    TEXTMETRIC metrics;
    CFont *font = GetFont();
    const HGDIOBJ old = font ? dc.SelectObject(font->m_hObject) : nullptr;
    dc.GetTextMetrics(&metrics);
    if (old)
        dc.SelectObject(old);
    item->itemHeight = static_cast<UINT>(std::max<int>(metrics.tmHeight, BoxSize() + 2));
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT item) {
    if (item->itemID == static_cast<UINT>(-1))
        return;
    const int index = static_cast<int>(item->itemID);
    CDC *dc = CDC::FromHandle(item->hDC);
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    const bool enabled = IsWindowEnabled() && IsEnabled(index);
    CRect box(item->rcItem);
    box.right = box.left + BoxSize() + 2;
    CRect text(item->rcItem);
    text.left = box.right;
    dc->FillSolidRect(&box, ::GetSysColor(COLOR_WINDOW));
    dc->FillSolidRect(&text, ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    dc->SetTextColor(
        ::GetSysColor(!enabled ? COLOR_GRAYTEXT : (selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT)));
    const int check = GetCheck(index);
    box.DeflateRect(1, (box.Height() - BoxSize()) / 2);
    dc->DrawFrameControl(&box, DFC_BUTTON,
                         static_cast<UINT>((check == 2 ? DFCS_BUTTON3STATE : DFCS_BUTTONCHECK) |
                                           (check ? DFCS_CHECKED : 0) | (enabled ? 0 : DFCS_INACTIVE)));
    CString caption;
    GetText(index, caption);
    CRect inner(text);
    inner.left += 2;
    dc->SetBkMode(TRANSPARENT);
    dc->DrawText(caption, &inner, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (item->itemState & ODS_FOCUS)
        dc->DrawFocusRect(&text);
}
