// The common controls, thinly wrapped.
//
// Differences from MFC: only the members that a table editor and its host commonly need; whatever is missing
// can be had with SendMessage.
#pragma once

#include <afxwin.h>

class ORVANEFW_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    int GetItemCount() const { return int(SendMessage(LVM_GETITEMCOUNT)); }
    // Both give the index, or -1.
    int InsertColumn(int column, const LVCOLUMN *data) {
        return int(SendMessage(LVM_INSERTCOLUMN, WPARAM(column), LPARAM(data)));
    }
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int column) { return BOOL(SendMessage(LVM_DELETECOLUMN, WPARAM(column))); }
    int GetColumnWidth(int column) const { return int(SendMessage(LVM_GETCOLUMNWIDTH, WPARAM(column))); }
    BOOL SetColumnWidth(int column, int width) {
        return BOOL(SendMessage(LVM_SETCOLUMNWIDTH, WPARAM(column), MAKELPARAM(width, 0)));
    }
    int InsertItem(const LVITEM *item) { return int(SendMessage(LVM_INSERTITEM, 0, LPARAM(item))); }
    int InsertItem(int index, LPCTSTR text);
    BOOL DeleteItem(int index) { return BOOL(SendMessage(LVM_DELETEITEM, WPARAM(index))); }
    BOOL DeleteAllItems() { return BOOL(SendMessage(LVM_DELETEALLITEMS)); }
    BOOL GetItem(LVITEM *item) const { return BOOL(SendMessage(LVM_GETITEM, 0, LPARAM(item))); }
    BOOL SetItem(const LVITEM *item) { return BOOL(SendMessage(LVM_SETITEM, 0, LPARAM(item))); }
    CString GetItemText(int index, int subItem) const;
    BOOL SetItemText(int index, int subItem, LPCTSTR text);
    DWORD_PTR GetItemData(int index) const;
    BOOL SetItemData(int index, DWORD_PTR data);
    UINT GetItemState(int index, UINT mask) const {
        return UINT(SendMessage(LVM_GETITEMSTATE, WPARAM(index), mask));
    }
    BOOL SetItemState(int index, UINT state, UINT mask);
    int GetNextItem(int index, int flags) const {
        return int(SendMessage(LVM_GETNEXTITEM, WPARAM(index), MAKELPARAM(flags, 0)));
    }
    int GetSelectionMark() const { return int(SendMessage(LVM_GETSELECTIONMARK)); }
    UINT GetSelectedCount() const { return UINT(SendMessage(LVM_GETSELECTEDCOUNT)); }
    BOOL EnsureVisible(int index, BOOL partialOk) {
        return BOOL(SendMessage(LVM_ENSUREVISIBLE, WPARAM(index), MAKELPARAM(partialOk, 0)));
    }
    DWORD SetExtendedStyle(DWORD style) {
        return DWORD(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LPARAM(style)));
    }
    DWORD GetExtendedStyle() const { return DWORD(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    BOOL GetCheck(int index) const { return ((GetItemState(index, LVIS_STATEIMAGEMASK) >> 12) - 1) == 1; }
    BOOL SetCheck(int index, BOOL check = TRUE) {
        return SetItemState(index, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(check ? 2 : 1)),
                            LVIS_STATEIMAGEMASK);
    }
    BOOL SortItems(PFNLVCOMPARE compare, LPARAM data) {
        return BOOL(SendMessage(LVM_SORTITEMS, WPARAM(data), LPARAM(compare)));
    }
};

class ORVANEFW_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    void SetRange(short least, short most) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(least, most)); }
    void SetRange32(int least, int most) { SendMessage(PBM_SETRANGE32, WPARAM(least), most); }
    int SetPos(int position) { return int(SendMessage(PBM_SETPOS, WPARAM(position))); }
    int GetPos() const { return int(SendMessage(PBM_GETPOS)); }
    int OffsetPos(int by) { return int(SendMessage(PBM_DELTAPOS, WPARAM(by))); }
    int SetStep(int step) { return int(SendMessage(PBM_SETSTEP, WPARAM(step))); }
    int StepIt() { return int(SendMessage(PBM_STEPIT)); }
};

class ORVANEFW_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    void SetRange(short least, short most) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(most, least)); }
    void SetRange32(int least, int most) { SendMessage(UDM_SETRANGE32, WPARAM(least), most); }
    void GetRange32(int &least, int &most) const {
        SendMessage(UDM_GETRANGE32, WPARAM(&least), LPARAM(&most));
    }
    int SetPos(int position) { return int(SendMessage(UDM_SETPOS32, 0, position)); }
    int GetPos() const { return int(SendMessage(UDM_GETPOS32)); }
    CWnd *SetBuddy(CWnd *buddy) { return FromHandle(HWND(SendMessage(UDM_SETBUDDY, WPARAM(buddy->m_hWnd)))); }
    CWnd *GetBuddy() const { return FromHandle(HWND(SendMessage(UDM_GETBUDDY))); }
    int SetBase(int base) { return int(SendMessage(UDM_SETBASE, WPARAM(base))); }
    BOOL SetAccel(int count, UDACCEL *steps) {
        return BOOL(SendMessage(UDM_SETACCEL, WPARAM(count), LPARAM(steps)));
    }
};

class ORVANEFW_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    int GetItemCount() const { return int(SendMessage(TCM_GETITEMCOUNT)); }
    int InsertItem(int index, TCITEM *item) {
        return int(SendMessage(TCM_INSERTITEM, WPARAM(index), LPARAM(item)));
    }
    int InsertItem(int index, LPCTSTR text);
    BOOL GetItem(int index, TCITEM *item) const {
        return BOOL(SendMessage(TCM_GETITEM, WPARAM(index), LPARAM(item)));
    }
    BOOL SetItem(int index, TCITEM *item) {
        return BOOL(SendMessage(TCM_SETITEM, WPARAM(index), LPARAM(item)));
    }
    BOOL DeleteItem(int index) { return BOOL(SendMessage(TCM_DELETEITEM, WPARAM(index))); }
    BOOL DeleteAllItems() { return BOOL(SendMessage(TCM_DELETEALLITEMS)); }
    int GetCurSel() const { return int(SendMessage(TCM_GETCURSEL)); }
    int SetCurSel(int index) { return int(SendMessage(TCM_SETCURSEL, WPARAM(index))); }
    BOOL GetItemRect(int index, LPRECT rect) const {
        return BOOL(SendMessage(TCM_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    void AdjustRect(BOOL larger, LPRECT rect) { SendMessage(TCM_ADJUSTRECT, WPARAM(larger), LPARAM(rect)); }
};

class ORVANEFW_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    using CWnd::Create;
    BOOL Create(CWnd *parent, DWORD style = 0);
    void Activate(BOOL active) { SendMessage(TTM_ACTIVATE, WPARAM(active)); }
    // Without a rectangle the tool is the whole window.
    BOOL AddTool(CWnd *wnd, LPCTSTR text = LPSTR_TEXTCALLBACK, LPCRECT rect = nullptr, UINT_PTR id = 0);
    void DelTool(CWnd *wnd, UINT_PTR id = 0);
    void UpdateTipText(LPCTSTR text, CWnd *wnd, UINT_PTR id = 0);
    int GetToolCount() const { return int(SendMessage(TTM_GETTOOLCOUNT)); }
    void SetDelayTime(UINT delay) { SendMessage(TTM_SETDELAYTIME, TTDT_AUTOMATIC, LPARAM(delay)); }
    void SetDelayTime(DWORD which, int milliseconds) {
        SendMessage(TTM_SETDELAYTIME, which, MAKELPARAM(milliseconds, 0));
    }
    int SetMaxTipWidth(int width) { return int(SendMessage(TTM_SETMAXTIPWIDTH, 0, width)); }
    void RelayEvent(LPMSG msg) { SendMessage(TTM_RELAYEVENT, 0, LPARAM(msg)); }
    void Pop() { SendMessage(TTM_POP); }

private:
    static TOOLINFO Tool(CWnd *wnd, UINT_PTR id);
};

class ORVANEFW_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    BOOL SetText(LPCTSTR text, int pane, int type) {
        return BOOL(SendMessage(SB_SETTEXT, WPARAM(pane | type), LPARAM(text)));
    }
    CString GetText(int pane) const;
    BOOL SetParts(int count, int *rightEdges) {
        return BOOL(SendMessage(SB_SETPARTS, WPARAM(count), LPARAM(rightEdges)));
    }
    int GetParts(int count, int *rightEdges) const {
        return int(SendMessage(SB_GETPARTS, WPARAM(count), LPARAM(rightEdges)));
    }
    BOOL GetRect(int pane, LPRECT rect) const {
        return BOOL(SendMessage(SB_GETRECT, WPARAM(pane), LPARAM(rect)));
    }
    void SetMinHeight(int height) { SendMessage(SB_SETMINHEIGHT, WPARAM(height)); }
};

class ORVANEFW_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    BOOL AddButtons(int count, TBBUTTON *buttons) {
        return BOOL(SendMessage(TB_ADDBUTTONS, WPARAM(count), LPARAM(buttons)));
    }
    BOOL DeleteButton(int index) { return BOOL(SendMessage(TB_DELETEBUTTON, WPARAM(index))); }
    int GetButtonCount() const { return int(SendMessage(TB_BUTTONCOUNT)); }
    BOOL EnableButton(int id, BOOL enable = TRUE) {
        return BOOL(SendMessage(TB_ENABLEBUTTON, WPARAM(id), MAKELPARAM(enable, 0)));
    }
    BOOL CheckButton(int id, BOOL check = TRUE) {
        return BOOL(SendMessage(TB_CHECKBUTTON, WPARAM(id), MAKELPARAM(check, 0)));
    }
    BOOL IsButtonEnabled(int id) const { return BOOL(SendMessage(TB_ISBUTTONENABLED, WPARAM(id))); }
    BOOL IsButtonChecked(int id) const { return BOOL(SendMessage(TB_ISBUTTONCHECKED, WPARAM(id))); }
    BOOL GetItemRect(int index, LPRECT rect) const {
        return BOOL(SendMessage(TB_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    void AutoSize() { SendMessage(TB_AUTOSIZE); }
};
