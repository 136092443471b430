// The system's controls; part of afxwin.h.
#pragma once

#include "afxwnd.h"

class ORVANEFW_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    using CWnd::Create;
    BOOL Create(LPCTSTR text, DWORD style, const RECT &rect, CWnd *parent, UINT id = 0xffff);
    HICON SetIcon(HICON icon) { return HICON(SendMessage(STM_SETICON, WPARAM(icon))); }
    HICON GetIcon() const { return HICON(SendMessage(STM_GETICON)); }
    HBITMAP SetBitmap(HBITMAP bitmap) {
        return HBITMAP(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, LPARAM(bitmap)));
    }
    HBITMAP GetBitmap() const { return HBITMAP(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) override;
};

class ORVANEFW_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    using CWnd::Create;
    BOOL Create(LPCTSTR caption, DWORD style, const RECT &rect, CWnd *parent, UINT id);
    UINT GetState() const { return UINT(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL highlight) { SendMessage(BM_SETSTATE, WPARAM(highlight)); }
    int GetCheck() const { return int(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, WPARAM(check)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xf; }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }
    HBITMAP SetBitmap(HBITMAP bitmap) {
        return HBITMAP(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, LPARAM(bitmap)));
    }
    HICON SetIcon(HICON icon) { return HICON(SendMessage(BM_SETIMAGE, IMAGE_ICON, LPARAM(icon))); }
    void Click() { SendMessage(BM_CLICK); }
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) override;
};

class ORVANEFW_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    BOOL CanUndo() const { return BOOL(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return BOOL(SendMessage(EM_UNDO)); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
    BOOL GetModify() const { return BOOL(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, WPARAM(modified)); }
    int GetLineCount() const { return int(SendMessage(EM_GETLINECOUNT)); }
    int GetLine(int index, LPTSTR buffer) const {
        return int(SendMessage(EM_GETLINE, WPARAM(index), LPARAM(buffer)));
    }
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int LineFromChar(int index = -1) const { return int(SendMessage(EM_LINEFROMCHAR, WPARAM(index))); }
    int LineIndex(int line = -1) const { return int(SendMessage(EM_LINEINDEX, WPARAM(line))); }
    int LineLength(int line = -1) const { return int(SendMessage(EM_LINELENGTH, WPARAM(line))); }
    void LineScroll(int lines, int characters = 0) { SendMessage(EM_LINESCROLL, WPARAM(characters), lines); }
    int GetFirstVisibleLine() const { return int(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    DWORD GetSel() const { return DWORD(SendMessage(EM_GETSEL)); }
    void GetSel(int &start, int &end) const;
    void SetSel(DWORD selection, BOOL noScroll = FALSE) {
        SetSel(short(LOWORD(selection)), short(HIWORD(selection)), noScroll);
    }
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE) {
        SendMessage(EM_REPLACESEL, WPARAM(canUndo), LPARAM(text));
    }
    void LimitText(int count = 0) { SendMessage(EM_LIMITTEXT, WPARAM(count)); }
    void SetLimitText(UINT count) { SendMessage(EM_SETLIMITTEXT, count); }
    UINT GetLimitText() const { return UINT(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE) { return BOOL(SendMessage(EM_SETREADONLY, WPARAM(readOnly))); }
    void SetPasswordChar(char character) { SendMessage(EM_SETPASSWORDCHAR, BYTE(character)); }
    char GetPasswordChar() const { return char(SendMessage(EM_GETPASSWORDCHAR)); }
    void GetRect(LPRECT rect) const { SendMessage(EM_GETRECT, 0, LPARAM(rect)); }
    void SetRect(LPCRECT rect) { SendMessage(EM_SETRECT, 0, LPARAM(rect)); }
    void SetRectNP(LPCRECT rect) { SendMessage(EM_SETRECTNP, 0, LPARAM(rect)); }
    void SetMargins(UINT left, UINT right) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(left, right));
    }
    DWORD GetMargins() const { return DWORD(SendMessage(EM_GETMARGINS)); }
    BOOL SetTabStops(int count, LPINT stops) {
        return BOOL(SendMessage(EM_SETTABSTOPS, WPARAM(count), LPARAM(stops)));
    }
    BOOL SetTabStops(const int &eachStop) { return SetTabStops(1, const_cast<LPINT>(&eachStop)); }
    int CharFromPos(POINT point) const {
        return int(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y)));
    }
    CPoint PosFromChar(UINT index) const { return CPoint(SendMessage(EM_POSFROMCHAR, index)); }
};

class ORVANEFW_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    int GetCount() const { return int(SendMessage(LB_GETCOUNT)); }
    int AddString(LPCTSTR text) { return int(SendMessage(LB_ADDSTRING, 0, LPARAM(text))); }
    int InsertString(int index, LPCTSTR text) {
        return int(SendMessage(LB_INSERTSTRING, WPARAM(index), LPARAM(text)));
    }
    int DeleteString(UINT index) { return int(SendMessage(LB_DELETESTRING, index)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int Dir(UINT attributes, LPCTSTR pattern) {
        return int(SendMessage(LB_DIR, attributes, LPARAM(pattern)));
    }
    int FindString(int startAfter, LPCTSTR text) const {
        return int(SendMessage(LB_FINDSTRING, WPARAM(startAfter), LPARAM(text)));
    }
    int FindStringExact(int startAfter, LPCTSTR text) const {
        return int(SendMessage(LB_FINDSTRINGEXACT, WPARAM(startAfter), LPARAM(text)));
    }
    int SelectString(int startAfter, LPCTSTR text) {
        return int(SendMessage(LB_SELECTSTRING, WPARAM(startAfter), LPARAM(text)));
    }
    int GetCurSel() const { return int(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int index) { return int(SendMessage(LB_SETCURSEL, WPARAM(index))); }
    int GetSel(int index) const { return int(SendMessage(LB_GETSEL, WPARAM(index))); }
    int SetSel(int index, BOOL select = TRUE) { return int(SendMessage(LB_SETSEL, WPARAM(select), index)); }
    int GetSelCount() const { return int(SendMessage(LB_GETSELCOUNT)); }
    int GetSelItems(int count, LPINT indexes) const {
        return int(SendMessage(LB_GETSELITEMS, WPARAM(count), LPARAM(indexes)));
    }
    int SelItemRange(BOOL select, int first, int last);
    void SetAnchorIndex(int index) { SendMessage(LB_SETANCHORINDEX, WPARAM(index)); }
    int GetAnchorIndex() const { return int(SendMessage(LB_GETANCHORINDEX)); }
    int SetCaretIndex(int index, BOOL scroll = TRUE) {
        return int(SendMessage(LB_SETCARETINDEX, WPARAM(index), MAKELONG(scroll, 0)));
    }
    int GetCaretIndex() const { return int(SendMessage(LB_GETCARETINDEX)); }
    DWORD_PTR GetItemData(int index) const { return DWORD_PTR(SendMessage(LB_GETITEMDATA, WPARAM(index))); }
    int SetItemData(int index, DWORD_PTR data) {
        return int(SendMessage(LB_SETITEMDATA, WPARAM(index), LPARAM(data)));
    }
    void *GetItemDataPtr(int index) const { return reinterpret_cast<void *>(GetItemData(index)); }
    int SetItemDataPtr(int index, void *data) { return SetItemData(index, DWORD_PTR(data)); }
    int GetTextLen(int index) const { return int(SendMessage(LB_GETTEXTLEN, WPARAM(index))); }
    int GetText(int index, LPTSTR text) const {
        return int(SendMessage(LB_GETTEXT, WPARAM(index), LPARAM(text)));
    }
    void GetText(int index, CString &text) const;
    int GetItemRect(int index, LPRECT rect) const {
        return int(SendMessage(LB_GETITEMRECT, WPARAM(index), LPARAM(rect)));
    }
    int GetTopIndex() const { return int(SendMessage(LB_GETTOPINDEX)); }
    int SetTopIndex(int index) { return int(SendMessage(LB_SETTOPINDEX, WPARAM(index))); }
    int GetItemHeight(int index) const { return int(SendMessage(LB_GETITEMHEIGHT, WPARAM(index))); }
    int SetItemHeight(int index, UINT height) {
        return int(SendMessage(LB_SETITEMHEIGHT, WPARAM(index), MAKELONG(height, 0)));
    }
    void SetColumnWidth(int width) { SendMessage(LB_SETCOLUMNWIDTH, WPARAM(width)); }
    void SetHorizontalExtent(int extent) { SendMessage(LB_SETHORIZONTALEXTENT, WPARAM(extent)); }
    int GetHorizontalExtent() const { return int(SendMessage(LB_GETHORIZONTALEXTENT)); }
    BOOL SetTabStops(int count, LPINT stops) {
        return BOOL(SendMessage(LB_SETTABSTOPS, WPARAM(count), LPARAM(stops)));
    }
    BOOL SetTabStops(const int &eachStop) { return SetTabStops(1, const_cast<LPINT>(&eachStop)); }
    UINT ItemFromPoint(CPoint point, BOOL &outside) const;

    // Of an owner-drawn list.
    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}
    virtual int VKeyToItem(UINT, UINT) { return -1; }
    virtual int CharToItem(UINT, UINT) { return -1; }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) override;
};

// A list whose items have a box to check. Made with LBS_OWNERDRAWFIXED and LBS_HASSTRINGS; the box answers to
// a click on it and to the space bar, and the parent gets CLBN_CHKCHANGE.
class ORVANEFW_API CCheckListBox : public CListBox {
    DECLARE_DYNAMIC(CCheckListBox)
public:
    CCheckListBox();
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    // BS_CHECKBOX, BS_AUTOCHECKBOX (the default), BS_3STATE or BS_AUTO3STATE.
    void SetCheckStyle(UINT style) { m_style = style; }
    UINT GetCheckStyle() const { return m_style; }
    void SetCheck(int index, int check);
    int GetCheck(int index) const;
    void Enable(int index, BOOL enabled = TRUE);
    BOOL IsEnabled(int index) const;

    // The item's own data stays free for the caller.
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

protected:
    void OnDestroy();
    void OnLButtonDown(UINT flags, CPoint point);
    void OnLButtonDblClk(UINT flags, CPoint point);
    void OnKeyDown(UINT key, UINT repeat, UINT flags);
    LRESULT OnDeleteString(WPARAM wParam, LPARAM lParam);
    LRESULT OnResetContent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct State;
    State *StateAt(int index, bool make);
    const State *StateAt(int index) const;
    void ForgetState(int index);
    void Toggle(int index);
    int BoxSize() const;

    UINT m_style;
};

class ORVANEFW_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    int GetCount() const { return int(SendMessage(CB_GETCOUNT)); }
    int AddString(LPCTSTR text) { return int(SendMessage(CB_ADDSTRING, 0, LPARAM(text))); }
    int InsertString(int index, LPCTSTR text) {
        return int(SendMessage(CB_INSERTSTRING, WPARAM(index), LPARAM(text)));
    }
    int DeleteString(UINT index) { return int(SendMessage(CB_DELETESTRING, index)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int Dir(UINT attributes, LPCTSTR pattern) {
        return int(SendMessage(CB_DIR, attributes, LPARAM(pattern)));
    }
    int FindString(int startAfter, LPCTSTR text) const {
        return int(SendMessage(CB_FINDSTRING, WPARAM(startAfter), LPARAM(text)));
    }
    int FindStringExact(int startAfter, LPCTSTR text) const {
        return int(SendMessage(CB_FINDSTRINGEXACT, WPARAM(startAfter), LPARAM(text)));
    }
    int SelectString(int startAfter, LPCTSTR text) {
        return int(SendMessage(CB_SELECTSTRING, WPARAM(startAfter), LPARAM(text)));
    }
    int GetCurSel() const { return int(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int index) { return int(SendMessage(CB_SETCURSEL, WPARAM(index))); }
    DWORD GetEditSel() const { return DWORD(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int start, int end) { return BOOL(SendMessage(CB_SETEDITSEL, 0, MAKELONG(start, end))); }
    BOOL LimitText(int count) { return BOOL(SendMessage(CB_LIMITTEXT, WPARAM(count))); }
    DWORD_PTR GetItemData(int index) const { return DWORD_PTR(SendMessage(CB_GETITEMDATA, WPARAM(index))); }
    int SetItemData(int index, DWORD_PTR data) {
        return int(SendMessage(CB_SETITEMDATA, WPARAM(index), LPARAM(data)));
    }
    void *GetItemDataPtr(int index) const { return reinterpret_cast<void *>(GetItemData(index)); }
    int SetItemDataPtr(int index, void *data) { return SetItemData(index, DWORD_PTR(data)); }
    int GetLBTextLen(int index) const { return int(SendMessage(CB_GETLBTEXTLEN, WPARAM(index))); }
    int GetLBText(int index, LPTSTR text) const {
        return int(SendMessage(CB_GETLBTEXT, WPARAM(index), LPARAM(text)));
    }
    void GetLBText(int index, CString &text) const;
    int GetItemHeight(int index) const { return int(SendMessage(CB_GETITEMHEIGHT, WPARAM(index))); }
    int SetItemHeight(int index, UINT height) {
        return int(SendMessage(CB_SETITEMHEIGHT, WPARAM(index), height));
    }
    void ShowDropDown(BOOL show = TRUE) { SendMessage(CB_SHOWDROPDOWN, WPARAM(show)); }
    BOOL GetDroppedState() const { return BOOL(SendMessage(CB_GETDROPPEDSTATE)); }
    void GetDroppedControlRect(LPRECT rect) const { SendMessage(CB_GETDROPPEDCONTROLRECT, 0, LPARAM(rect)); }
    int SetDroppedWidth(UINT width) { return int(SendMessage(CB_SETDROPPEDWIDTH, width)); }
    int GetDroppedWidth() const { return int(SendMessage(CB_GETDROPPEDWIDTH)); }
    int SetExtendedUI(BOOL extended = TRUE) { return int(SendMessage(CB_SETEXTENDEDUI, WPARAM(extended))); }
    int GetTopIndex() const { return int(SendMessage(CB_GETTOPINDEX)); }
    int SetTopIndex(int index) { return int(SendMessage(CB_SETTOPINDEX, WPARAM(index))); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    virtual void DrawItem(LPDRAWITEMSTRUCT) {}
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) {}
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) {}

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result) override;
};

class ORVANEFW_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)
public:
    using CWnd::Create;
    BOOL Create(DWORD style, const RECT &rect, CWnd *parent, UINT id);
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int position, BOOL redraw = TRUE) {
        return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
    }
    void GetScrollRange(LPINT least, LPINT most) const { ::GetScrollRange(m_hWnd, SB_CTL, least, most); }
    void SetScrollRange(int least, int most, BOOL redraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, least, most, redraw);
    }
    void ShowScrollBar(BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, show); }
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, arrows); }
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, info, redraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, info, mask);
    }
    int GetScrollLimit() { return CWnd::GetScrollLimit(SB_CTL); }
};
