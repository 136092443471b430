// CWnd; part of afxwin.h.
#pragma once

#include "afxdc.h"
#include "afxmenu.h"
#include "afxmsg_.h"

class CDataExchange;
class COleDropTarget;
class CFrameWnd;

constexpr UINT WM_QUERYAFXWNDPROC = 0x0360;
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363; // wParam: disable what has no handler
constexpr UINT WM_INITIALUPDATE = 0x0364;
constexpr UINT WM_COMMANDHELP = 0x0365;
constexpr UINT WM_EXITHELPMODE = 0x0367;
constexpr UINT WM_SETMESSAGESTRING = 0x0362; // wParam: the text's identifier, or 0 with the text in lParam
constexpr UINT WM_KICKIDLE = 0x036A;         // in a modal loop; a nonzero answer asks for more
constexpr UINT WM_POPMESSAGESTRING = 0x0375;

// Flags of a modal loop.
constexpr DWORD MLF_NOIDLEMSG = 1;   // no WM_ENTERIDLE to the parent
constexpr DWORD MLF_NOKICKIDLE = 2;  // no WM_KICKIDLE to the window
constexpr DWORD MLF_SHOWONIDLE = 4;  // the window is shown when the queue is empty
constexpr DWORD WF_MODALLOOP = 0x10; // of m_nFlags: in a loop
constexpr DWORD WF_CONTINUEMODAL = 0x20;

class ORVANEFW_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    // Destroys the window if there still is one.
    ~CWnd() override;

    operator HWND() const { return m_hWnd; }
    bool operator==(const CWnd &other) const { return m_hWnd == other.m_hWnd; }
    bool operator!=(const CWnd &other) const { return m_hWnd != other.m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }

    // The window's object. FromHandle makes a temporary one where there is none, which lives until the next
    // idle time; FromHandlePermanent gives null. A null handle gives null.
    static CWnd *FromHandle(HWND wnd);
    static CWnd *FromHandlePermanent(HWND wnd);
    static void DeleteTempMap();
    BOOL Attach(HWND wnd);
    HWND Detach();

    // Making and ending. PreCreateWindow may change everything or refuse; PreSubclassWindow is called when
    // the handle is attached and before the first message.
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect, CWnd *parent,
                        UINT id, void *createParam = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT &rect,
                  CWnd *parent, UINT id, void *createParam = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU idOrMenu, void *createParam = nullptr);
    virtual BOOL PreCreateWindow(CREATESTRUCT &cs);
    virtual void PreSubclassWindow() {}
    virtual BOOL DestroyWindow();
    BOOL SubclassWindow(HWND wnd);
    BOOL SubclassDlgItem(UINT id, CWnd *parent);
    HWND UnsubclassWindow();

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL deep = TRUE,
                                  BOOL onlyPermanent = FALSE) {
        SendMessageToDescendants(m_hWnd, message, wParam, lParam, deep, onlyPermanent);
    }
    static void SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                         BOOL onlyPermanent);
    static const MSG *GetCurrentMessage();
    virtual BOOL PreTranslateMessage(MSG *msg);
    static BOOL WalkPreTranslateTree(HWND stop, MSG *msg);
    BOOL IsDialogMessage(LPMSG msg) { return ::IsDialogMessage(m_hWnd, msg); }

    // Modal loop. RunModalLoop gives EndModalLoop's result.
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }
    virtual void EndModalLoop(int result);
    virtual void BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
    virtual void EndModalState() { ::EnableWindow(m_hWnd, TRUE); }

    // Style, text and font.
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    // FALSE when nothing changed. With position flags the frame is recalculated.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT positionFlags = 0) {
        return ModifyStyle(m_hWnd, remove, add, positionFlags);
    }
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags = 0) {
        return ModifyStyleEx(m_hWnd, remove, add, positionFlags);
    }
    static BOOL ModifyStyle(HWND wnd, DWORD remove, DWORD add, UINT positionFlags);
    static BOOL ModifyStyleEx(HWND wnd, DWORD remove, DWORD add, UINT positionFlags);
    void SetWindowText(LPCTSTR text) { ::SetWindowText(m_hWnd, text); }
    int GetWindowText(LPTSTR text, int capacity) const { return ::GetWindowText(m_hWnd, text, capacity); }
    void GetWindowText(CString &text) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetFont(CFont *font, BOOL redraw = TRUE);
    CFont *GetFont() const { return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT))); }
    HICON SetIcon(HICON icon, BOOL big) {
        return reinterpret_cast<HICON>(SendMessage(WM_SETICON, static_cast<WPARAM>(big), LPARAM(icon)));
    }
    HICON GetIcon(BOOL big) const {
        return reinterpret_cast<HICON>(SendMessage(WM_GETICON, static_cast<WPARAM>(big)));
    }
    CMenu *GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
    BOOL SetMenu(CMenu *menu) { return ::SetMenu(m_hWnd, menu ? menu->m_hMenu : nullptr); }
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu *GetSystemMenu(BOOL revert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert)); }

    // Position and state.
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE) {
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
    }
    BOOL SetWindowPos(const CWnd *after, int x, int y, int cx, int cy, UINT flags) {
        return ::SetWindowPos(m_hWnd, after ? after->m_hWnd : nullptr, x, y, cx, cy, flags);
    }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT *placement) const {
        placement->length = sizeof(WINDOWPLACEMENT);
        return ::GetWindowPlacement(m_hWnd, placement);
    }
    BOOL SetWindowPlacement(const WINDOWPLACEMENT *placement) {
        return ::SetWindowPlacement(m_hWnd, placement);
    }
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    void CenterWindow(CWnd *alternateOwner = nullptr);
    virtual void CalcWindowRect(LPRECT clientRect, UINT adjustType = 1);
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd *to, LPPOINT points, UINT count) const {
        ::MapWindowPoints(m_hWnd, to ? to->m_hWnd : nullptr, points, count);
    }
    void MapWindowPoints(CWnd *to, LPRECT rect) const {
        MapWindowPoints(to, reinterpret_cast<LPPOINT>(rect), 2);
    }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL show = TRUE) { ::ShowOwnedPopups(m_hWnd, show); }

    // Painting.
    CDC *BeginPaint(LPPAINTSTRUCT paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }
    CDC *GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC *GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    CDC *GetDCEx(CRgn *clip, DWORD flags) {
        return CDC::FromHandle(::GetDCEx(m_hWnd, clip ? static_cast<HRGN>(*clip) : nullptr, flags));
    }
    int ReleaseDC(CDC *dc) { return ::ReleaseDC(m_hWnd, dc->m_hDC); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, rect, erase); }
    int GetUpdateRgn(CRgn *region, BOOL erase = FALSE) { return ::GetUpdateRgn(m_hWnd, *region, erase); }
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void InvalidateRgn(CRgn *region, BOOL erase = TRUE) {
        ::InvalidateRgn(m_hWnd, region ? static_cast<HRGN>(*region) : nullptr, erase);
    }
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    void ValidateRgn(CRgn *region) { ::ValidateRgn(m_hWnd, region ? static_cast<HRGN>(*region) : nullptr); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn *region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE) {
        return ::RedrawWindow(m_hWnd, rect, region ? static_cast<HRGN>(*region) : nullptr, flags);
    }
    void Print(CDC *dc, DWORD flags) const { SendMessage(WM_PRINT, WPARAM(dc->m_hDC), LPARAM(flags)); }

    // Scrolling.
    void ScrollWindow(int dx, int dy, LPCRECT rect = nullptr, LPCRECT clip = nullptr) {
        ::ScrollWindow(m_hWnd, dx, dy, rect, clip);
    }
    int ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn *update, LPRECT updateRect,
                       UINT flags) {
        return ::ScrollWindowEx(m_hWnd, dx, dy, scroll, clip, update ? static_cast<HRGN>(*update) : nullptr,
                                updateRect, flags);
    }
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE) {
        return ::SetScrollPos(m_hWnd, bar, pos, redraw);
    }
    void GetScrollRange(int bar, LPINT least, LPINT most) const {
        ::GetScrollRange(m_hWnd, bar, least, most);
    }
    void SetScrollRange(int bar, int least, int most, BOOL redraw = TRUE) {
        ::SetScrollRange(m_hWnd, bar, least, most, redraw);
    }
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL) {
        info->cbSize = sizeof(SCROLLINFO);
        info->fMask = mask;
        return ::GetScrollInfo(m_hWnd, bar, info);
    }
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE) {
        info->cbSize = sizeof(SCROLLINFO);
        ::SetScrollInfo(m_hWnd, bar, info, redraw);
        return TRUE;
    }
    int GetScrollLimit(int bar);
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show); }
    void EnableScrollBarCtrl(int bar, BOOL enable = TRUE) { ShowScrollBar(static_cast<UINT>(bar), enable); }
    BOOL EnableScrollBar(int bar, UINT arrows = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(bar), arrows);
    }
    virtual CScrollBar *GetScrollBarCtrl(int) const { return nullptr; }

    // Timers, focus, capture, caret and clipboard.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
        return ::SetTimer(m_hWnd, id, milliseconds, procedure);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    static CWnd *GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd *SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd *GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd *GetCapture() { return FromHandle(::GetCapture()); }
    CWnd *SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd *GetFocus() { return FromHandle(::GetFocus()); }
    CWnd *SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd *GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    void CreateCaret(CBitmap *bitmap) { ::CreateCaret(m_hWnd, *bitmap, 0, 0); }
    void CreateSolidCaret(int width, int height) { ::CreateCaret(m_hWnd, nullptr, width, height); }
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd *GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND next) { return ::ChangeClipboardChain(m_hWnd, next); }
    void DragAcceptFiles(BOOL accept = TRUE) { ::DragAcceptFiles(m_hWnd, accept); }

    // Relatives.
    CWnd *GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd *SetParent(CWnd *parent) {
        return FromHandle(::SetParent(m_hWnd, parent ? parent->m_hWnd : nullptr));
    }
    // The nearest parent, or owner of a popup, that is a frame.
    CFrameWnd *GetParentFrame() const;
    CFrameWnd *GetTopLevelFrame() const;
    CWnd *GetTopLevelParent() const;
    // The last in the chain of owners; a child window has no owner and is itself the last.
    CWnd *GetTopLevelOwner() const;
    // The first window in the chain of parents that is no child.
    CWnd *GetParentOwner() const;
    // The window that gets notifications: the one of SetOwner, else the parent.
    CWnd *GetOwner() const { return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent(); }
    void SetOwner(CWnd *owner) { m_hWndOwner = owner ? owner->m_hWnd : nullptr; }
    CWnd *GetWindow(UINT command) const { return FromHandle(::GetWindow(m_hWnd, command)); }
    CWnd *GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd *GetNextWindow(UINT direction = GW_HWNDNEXT) const {
        return FromHandle(::GetWindow(m_hWnd, direction));
    }
    CWnd *GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd *wnd) const { return ::IsChild(m_hWnd, wnd->m_hWnd); }
    CWnd *ChildWindowFromPoint(POINT point) const {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }
    CWnd *ChildWindowFromPoint(POINT point, UINT flags) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, flags));
    }
    static CWnd *WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    static CWnd *FindWindow(LPCTSTR className, LPCTSTR text) {
        return FromHandle(::FindWindow(className, text));
    }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, id)); }
    CWnd *GetDescendantWindow(int id, BOOL onlyPermanent = FALSE) const {
        return GetDescendantWindow(m_hWnd, id, onlyPermanent);
    }
    static CWnd *GetDescendantWindow(HWND wnd, int id, BOOL onlyPermanent);

    // Dialog items.
    CWnd *GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND *item) const { *item = ::GetDlgItem(m_hWnd, id); }
    CWnd *GetNextDlgTabItem(CWnd *control, BOOL previous = FALSE) const {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, control ? control->m_hWnd : nullptr, previous));
    }
    CWnd *GetNextDlgGroupItem(CWnd *control, BOOL previous = FALSE) const {
        return FromHandle(::GetNextDlgGroupItem(m_hWnd, control ? control->m_hWnd : nullptr, previous));
    }
    UINT GetDlgItemInt(int id, BOOL *translated = nullptr, BOOL isSigned = TRUE) const {
        return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
    }
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE) {
        ::SetDlgItemInt(m_hWnd, id, value, isSigned);
    }
    int GetDlgItemText(int id, LPTSTR text, int capacity) const {
        return static_cast<int>(::GetDlgItemText(m_hWnd, id, text, capacity));
    }
    int GetDlgItemText(int id, CString &text) const;
    void SetDlgItemText(int id, LPCTSTR text) { ::SetDlgItemText(m_hWnd, id, text); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    void CheckRadioButton(int first, int last, int id) { ::CheckRadioButton(m_hWnd, first, last, id); }
    int GetCheckedRadioButton(int first, int last) const;

    // Exchange with members: with TRUE from the controls, FALSE when the user's entry was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    // A parent's message for a menu of its items: asks the handlers for the state of every dialog button.
    void UpdateDialogControls(CCmdTarget *target, BOOL disableIfNoHandler);

    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK);

    HWND m_hWnd;
    COleDropTarget *m_pDropTarget; // not owned

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT *result);
    virtual void DoDataExchange(CDataExchange *) {}
    virtual void PostNcDestroy() {}
    // A notification that the parent hands back to the control that sent it. TRUE stops the parent's
    // handling.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT *result);
    BOOL SendChildNotifyLastMsg(LRESULT *result = nullptr);
    static BOOL ReflectLastMsg(HWND child, LRESULT *result = nullptr);
    // Handles the current message as the window's class would without any handler.
    LRESULT Default();
    virtual WNDPROC *GetSuperWndProcAddr() { return &m_pfnSuper; }
    BOOL PreTranslateInput(LPMSG msg);

    // Handlers; each default hands the message to the window's class.
    int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
    void OnDestroy() { Default(); }
    void OnNcDestroy();
    void OnPaint() { Default(); }
    void OnNcPaint() { Default(); }
    void OnClose() { Default(); }
    void OnCancelMode() { Default(); }
    void OnSysColorChange();
    void OnTimeChange() { Default(); }
    void OnFontChange() { Default(); }
    void OnMouseLeave() { Default(); }
    void OnChildActivate() { Default(); }
    void OnDrawClipboard() { Default(); }
    void OnDestroyClipboard() { Default(); }
    void OnRenderAllFormats() { Default(); }
    void OnRenderFormat(UINT) { Default(); }
    BOOL OnQueryEndSession() { return static_cast<BOOL>(Default()); }
    BOOL OnQueryNewPalette() { return static_cast<BOOL>(Default()); }
    BOOL OnQueryOpen() { return static_cast<BOOL>(Default()); }
    HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    BOOL OnEraseBkgnd(CDC *) { return static_cast<BOOL>(Default()); }
    void OnIconEraseBkgnd(CDC *) { Default(); }
    void OnSize(UINT, int, int) { Default(); }
    void OnMove(int, int) { Default(); }
    void OnSetFocus(CWnd *) { Default(); }
    void OnKillFocus(CWnd *) { Default(); }
    void OnPaletteChanged(CWnd *) { Default(); }
    void OnPaletteIsChanging(CWnd *) { Default(); }
    void OnCaptureChanged(CWnd *) { Default(); }
    void OnActivate(UINT, CWnd *, BOOL) { Default(); }
    void OnActivateApp(BOOL, DWORD) { Default(); }
    BOOL OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
    void OnShowWindow(BOOL, UINT) { Default(); }
    void OnEnable(BOOL) { Default(); }
    void OnEndSession(BOOL) { Default(); }
    void OnEnterMenuLoop(BOOL) { Default(); }
    void OnExitMenuLoop(BOOL) { Default(); }
    void OnTimer(UINT_PTR) { Default(); }
    void OnKeyDown(UINT, UINT, UINT) { Default(); }
    void OnKeyUp(UINT, UINT, UINT) { Default(); }
    void OnChar(UINT, UINT, UINT) { Default(); }
    void OnDeadChar(UINT, UINT, UINT) { Default(); }
    void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    void OnSysChar(UINT, UINT, UINT) { Default(); }
    void OnSysDeadChar(UINT, UINT, UINT) { Default(); }
    void OnMouseMove(UINT, CPoint) { Default(); }
    void OnMouseHover(UINT, CPoint) { Default(); }
    void OnLButtonDown(UINT, CPoint) { Default(); }
    void OnLButtonUp(UINT, CPoint) { Default(); }
    void OnLButtonDblClk(UINT, CPoint) { Default(); }
    void OnRButtonDown(UINT, CPoint) { Default(); }
    void OnRButtonUp(UINT, CPoint) { Default(); }
    void OnRButtonDblClk(UINT, CPoint) { Default(); }
    void OnMButtonDown(UINT, CPoint) { Default(); }
    void OnMButtonUp(UINT, CPoint) { Default(); }
    void OnMButtonDblClk(UINT, CPoint) { Default(); }
    void OnNcMouseMove(UINT, CPoint) { Default(); }
    void OnNcLButtonDown(UINT, CPoint) { Default(); }
    void OnNcLButtonUp(UINT, CPoint) { Default(); }
    void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
    void OnNcRButtonDown(UINT, CPoint) { Default(); }
    void OnNcRButtonUp(UINT, CPoint) { Default(); }
    BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    void OnMouseHWheel(UINT, short, CPoint) { Default(); }
    int OnMouseActivate(CWnd *, UINT, UINT) { return static_cast<int>(Default()); }
    BOOL OnSetCursor(CWnd *, UINT, UINT);
    LRESULT OnNcHitTest(CPoint) { return Default(); }
    void OnHScroll(UINT, UINT, CScrollBar *);
    void OnVScroll(UINT, UINT, CScrollBar *);
    HBRUSH OnCtlColor(CDC *, CWnd *, UINT);
    void OnDrawItem(int, LPDRAWITEMSTRUCT);
    void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
    void OnDeleteItem(int, LPDELETEITEMSTRUCT);
    int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
    int OnVKeyToItem(UINT, CListBox *, UINT);
    int OnCharToItem(UINT, CListBox *, UINT);
    void OnSettingChange(UINT, LPCTSTR) { Default(); }
    void OnInitMenu(CMenu *) { Default(); }
    void OnInitMenuPopup(CMenu *, UINT, BOOL) { Default(); }
    void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
    void OnContextMenu(CWnd *, CPoint) { Default(); }
    void OnDropFiles(HDROP) { Default(); }
    void OnGetMinMaxInfo(MINMAXINFO *) { Default(); }
    void OnWindowPosChanged(WINDOWPOS *) { Default(); }
    void OnWindowPosChanging(WINDOWPOS *) { Default(); }
    void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS *) { Default(); }
    void OnSysCommand(UINT, LPARAM) { Default(); }
    void OnParentNotify(UINT, LPARAM);
    void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
    void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
    void OnEnterIdle(UINT, CWnd *) { Default(); }
    BOOL OnHelpInfo(HELPINFO *) { return static_cast<BOOL>(Default()); }
    BOOL OnCopyData(CWnd *, COPYDATASTRUCT *) { return static_cast<BOOL>(Default()); }
    void OnSizing(UINT, LPRECT) { Default(); }
    void OnMoving(UINT, LPRECT) { Default(); }
    LRESULT OnDisplayChange(WPARAM, LPARAM);

    DECLARE_MESSAGE_MAP()

    UINT m_nFlags;
    int m_nModalResult;
    HWND m_hWndOwner;

private:
    friend LRESULT AfxCallWndProc(CWnd *wnd, HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    friend class CDialog;
    friend class CFrameWnd;
    friend class CCmdUI;
    friend struct AfxDispatcher;

    WNDPROC m_pfnSuper; // what the window's procedure was before it became ours
};

ORVANEFW_API LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
// The next window that this thread creates becomes the object's. AfxUnhookWindowCreate gives FALSE when none
// was created since.
ORVANEFW_API void AfxHookWindowCreate(CWnd *wnd);
ORVANEFW_API BOOL AfxUnhookWindowCreate();

// Registers a class of these properties, or finds it; the name stays valid. Throws CResourceException.
ORVANEFW_API LPCTSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr,
                                         HBRUSH background = nullptr, HICON icon = nullptr);
// RegisterClass, but succeeds when the class is there already.
ORVANEFW_API BOOL AfxRegisterClass(WNDCLASS *windowClass);
