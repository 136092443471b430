#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

namespace {

LPTSTR Mutable(LPCTSTR text) {
    // The structures serve reading and writing; nothing is written through them here.
    return const_cast<LPTSTR>(text);
}

} // namespace

BOOL CListCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    return CWnd::Create(WC_LISTVIEW, nullptr, style, rect, parent, id);
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int subItem) {
    LVCOLUMN data{};
    data.mask = LVCF_TEXT | LVCF_FMT | (width >= 0 ? LVCF_WIDTH : 0u) | (subItem >= 0 ? LVCF_SUBITEM : 0u);
    data.pszText = Mutable(heading);
    data.fmt = format;
    data.cx = width;
    data.iSubItem = subItem;
    return InsertColumn(column, &data);
}

int CListCtrl::InsertItem(int index, LPCTSTR text) {
    LVITEM item{};
    item.mask = LVIF_TEXT;
    item.iItem = index;
    item.pszText = Mutable(text);
    return InsertItem(&item);
}

CString CListCtrl::GetItemText(int index, int subItem) const {
    CString text;
    // The control does not tell the length; a buffer that was filled may have been too small.
    for (int capacity = 128;; capacity *= 2) {
        LVITEM item{};
        item.iSubItem = subItem;
        item.cchTextMax = capacity;
        item.pszText = text.GetBuffer(capacity);
        const int length = int(SendMessage(LVM_GETITEMTEXT, WPARAM(index), LPARAM(&item)));
        text.ReleaseBuffer(length);
        if (length < capacity - 1)
            return text;
    }
}

BOOL CListCtrl::SetItemText(int index, int subItem, LPCTSTR text) {
    LVITEM item{};
    item.iSubItem = subItem;
    item.pszText = Mutable(text);
    return BOOL(SendMessage(LVM_SETITEMTEXT, WPARAM(index), LPARAM(&item)));
}

DWORD_PTR CListCtrl::GetItemData(int index) const {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    GetItem(&item);
    return DWORD_PTR(item.lParam);
}

BOOL CListCtrl::SetItemData(int index, DWORD_PTR data) {
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = index;
    item.lParam = LPARAM(data);
    return SetItem(&item);
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask) {
    LVITEM item{};
    item.state = state;
    item.stateMask = mask;
    return BOOL(SendMessage(LVM_SETITEMSTATE, WPARAM(index), LPARAM(&item)));
}

BOOL CProgressCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    return CWnd::Create(PROGRESS_CLASS, nullptr, style, rect, parent, id);
}

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    return CWnd::Create(UPDOWN_CLASS, nullptr, style, rect, parent, id);
}

BOOL CTabCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    return CWnd::Create(WC_TABCONTROL, nullptr, style, rect, parent, id);
}

int CTabCtrl::InsertItem(int index, LPCTSTR text) {
    TCITEM item{};
    item.mask = TCIF_TEXT;
    item.pszText = Mutable(text);
    return InsertItem(index, &item);
}

BOOL CToolTipCtrl::Create(CWnd *parent, DWORD style) {
    ::InitCommonControls();
    return CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, parent ? parent->m_hWnd : nullptr, nullptr);
}

TOOLINFO CToolTipCtrl::Tool(CWnd *wnd, UINT_PTR id) {
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = wnd->m_hWnd;
    tool.uId = id;
    if (id == 0) {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = ::GetParent(wnd->m_hWnd);
        tool.uId = UINT_PTR(wnd->m_hWnd);
    }
    return tool;
}

BOOL CToolTipCtrl::AddTool(CWnd *wnd, LPCTSTR text, LPCRECT rect, UINT_PTR id) {
    TOOLINFO tool = Tool(wnd, id);
    if (rect)
        tool.rect = *rect;
    tool.lpszText = Mutable(text);
    return BOOL(SendMessage(TTM_ADDTOOL, 0, LPARAM(&tool)));
}

void CToolTipCtrl::DelTool(CWnd *wnd, UINT_PTR id) {
    TOOLINFO tool = Tool(wnd, id);
    SendMessage(TTM_DELTOOL, 0, LPARAM(&tool));
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd *wnd, UINT_PTR id) {
    TOOLINFO tool = Tool(wnd, id);
    tool.lpszText = Mutable(text);
    SendMessage(TTM_UPDATETIPTEXT, 0, LPARAM(&tool));
}

BOOL CStatusBarCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    return CWnd::Create(STATUSCLASSNAME, nullptr, style, rect, parent, id);
}

CString CStatusBarCtrl::GetText(int pane) const {
    CString text;
    const int length = LOWORD(SendMessage(SB_GETTEXTLENGTH, WPARAM(pane)));
    SendMessage(SB_GETTEXT, WPARAM(pane), LPARAM(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
    return text;
}

BOOL CToolBarCtrl::Create(DWORD style, const RECT &rect, CWnd *parent, UINT id) {
    ::InitCommonControls();
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, style, rect, parent, id))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    return TRUE;
}
