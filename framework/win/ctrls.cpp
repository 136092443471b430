#include "afxwin.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR text, DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("STATIC", text, style, rect, parent, id);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::Create(LPCTSTR caption, DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("BUTTON", caption, style, rect, parent, id);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CEdit::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("EDIT", nullptr, style, rect, parent, id);
}

int CEdit::GetLine(int index, LPTSTR buffer, int maxLength) const {
    // The control reads the room from the buffer's first word.
    const WORD room = static_cast<WORD>(maxLength);
    std::memcpy(buffer, &room, sizeof room);
    return GetLine(index, buffer);
}

void CEdit::GetSel(int &start, int &end) const {
    DWORD first = 0, last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll)
        SendMessage(EM_SCROLLCARET);
}

BOOL CListBox::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("LISTBOX", nullptr, style, rect, parent, id);
}

int CListBox::SelItemRange(BOOL select, int first, int last) {
    return static_cast<int>(select ? SendMessage(LB_SELITEMRANGEEX, static_cast<WPARAM>(first), last)
                                   : SendMessage(LB_SELITEMRANGEEX, static_cast<WPARAM>(last), first));
}

void CListBox::GetText(int index, CString &text) const {
    const int length = GetTextLen(index);
    if (length == LB_ERR)
        AfxThrowInvalidArgException();
    GetText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer();
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL &outside) const {
    const LRESULT answer = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    switch (message) {
    case WM_DRAWITEM: DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); return TRUE;
    case WM_MEASUREITEM: MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)); return TRUE;
    case WM_DELETEITEM: DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam)); return TRUE;
    case WM_COMPAREITEM: *result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam)); return TRUE;
    case WM_VKEYTOITEM: *result = VKeyToItem(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_CHARTOITEM: *result = CharToItem(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    default: return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

BOOL CComboBox::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("COMBOBOX", nullptr, style, rect, parent, id);
}

void CComboBox::GetLBText(int index, CString &text) const {
    const int length = GetLBTextLen(index);
    if (length == CB_ERR)
        AfxThrowInvalidArgException();
    GetLBText(index, text.GetBufferSetLength(length));
    text.ReleaseBuffer();
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) {
    switch (message) {
    case WM_DRAWITEM: DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); return TRUE;
    case WM_MEASUREITEM: MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)); return TRUE;
    case WM_DELETEITEM: DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam)); return TRUE;
    case WM_COMPAREITEM: *result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam)); return TRUE;
    default: return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
}

BOOL CScrollBar::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    return CWnd::Create("SCROLLBAR", nullptr, style, rect, parent, id);
}
