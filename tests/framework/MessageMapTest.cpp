#include "support.h"

namespace {

const UINT g_registered = ::RegisterWindowMessage("framework test message");
constexpr UINT kUserMessage = WM_USER + 7;

class BaseWnd : public CWnd {
public:
    std::string log;
    void Log(const char *text) { log += (log.empty() ? "" : " ") + std::string(text); }

    afx_msg void OnOne() { Log("base:one"); }
    afx_msg void OnTwo() { Log("base:two"); }
    afx_msg void OnUpdateTwo(CCmdUI *cmdUI) { cmdUI->Enable(twoEnabled); }
    afx_msg LRESULT OnUser(WPARAM w, LPARAM l) {
        Log("base:user");
        return static_cast<LRESULT>(w) + l;
    }
    afx_msg LRESULT OnRegistered(WPARAM w, LPARAM) { return static_cast<LRESULT>(w) * 2; }
    BOOL twoEnabled = TRUE;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWnd, CWnd)
ON_COMMAND(ID_TEST_ONE, &BaseWnd::OnOne)
ON_COMMAND(ID_TEST_TWO, &BaseWnd::OnTwo)
ON_UPDATE_COMMAND_UI(ID_TEST_TWO, &BaseWnd::OnUpdateTwo)
ON_MESSAGE(kUserMessage, &BaseWnd::OnUser)
ON_REGISTERED_MESSAGE(g_registered, &BaseWnd::OnRegistered)
END_MESSAGE_MAP()

class DerivedWnd : public BaseWnd {
public:
    DerivedWnd() { CreateEx(0, nullptr, "derived", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr); }
    ~DerivedWnd() override { DestroyWindow(); }
    CString last;

private:
    afx_msg void OnOne() { Log("derived:one"); }
    afx_msg void OnRange(UINT id) { Log(id == ID_TEST_ORPHAN ? "range:orphan" : "range:child"); }
    afx_msg void OnSize(UINT type, int cx, int cy) { last.Format("size %u %d %d", type, cx, cy); }
    afx_msg void OnMove(int x, int y) { last.Format("move %d %d", x, y); }
    afx_msg void OnChar(UINT c, UINT repeat, UINT flags) { last.Format("char %u %u %u", c, repeat, flags); }
    afx_msg void OnLButtonDown(UINT flags, CPoint p) {
        last.Format("ldown %u %d,%d", flags, static_cast<int>(p.x), static_cast<int>(p.y));
    }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint p) {
        last.Format("wheel %u %d %d,%d", flags, delta, static_cast<int>(p.x), static_cast<int>(p.y));
        return TRUE;
    }
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar *bar) {
        last.Format("vscroll %u %u %s", code, pos, bar ? "control" : "window");
    }
    afx_msg void OnTimer(UINT_PTR id) { last.Format("timer %u", static_cast<UINT>(id)); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg BOOL OnSetCursor(CWnd *wnd, UINT hit, UINT message) {
        last.Format("cursor %s %u %u", wnd == this ? "self" : "other", hit, message);
        return TRUE;
    }
    afx_msg void OnContextMenu(CWnd *wnd, CPoint p) {
        last.Format("context %s %d,%d", wnd == this ? "self" : "other", static_cast<int>(p.x), static_cast<int>(p.y));
    }
    afx_msg void OnActivate(UINT state, CWnd *, BOOL minimized) { last.Format("activate %u %d", state, minimized); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { last.Format("show %d %u", show, status); }
    afx_msg void OnCaptureChanged(CWnd *wnd) { last.Format("capture %s", wnd == this ? "self" : "other"); }
    afx_msg LRESULT OnNcHitTest(CPoint p) { return p.x + p.y; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWnd, BaseWnd)
ON_COMMAND(ID_TEST_ONE, &DerivedWnd::OnOne)
ON_COMMAND_RANGE(ID_TEST_ORPHAN, ID_TEST_CHILD, &DerivedWnd::OnRange)
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_CHAR()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEWHEEL()
ON_WM_VSCROLL()
ON_WM_TIMER()
ON_WM_GETDLGCODE()
ON_WM_SETCURSOR()
ON_WM_CONTEXTMENU()
ON_WM_ACTIVATE()
ON_WM_SHOWWINDOW()
ON_WM_CAPTURECHANGED()
ON_WM_NCHITTEST()
END_MESSAGE_MAP()

std::string Sent(DerivedWnd &wnd, UINT message, WPARAM w, LPARAM l) {
    wnd.last.Empty();
    wnd.SendMessage(message, w, l);
    return wnd.last.GetString();
}

} // namespace

TEST(MessageMap, DerivedHandlerHidesTheBases) {
    DerivedWnd wnd;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_ONE), 1);
    wnd.SendMessage(WM_COMMAND, ID_TEST_TWO);
    wnd.SendMessage(WM_COMMAND, ID_TEST_ORPHAN);
    wnd.SendMessage(WM_COMMAND, ID_TEST_CHILD);
    EXPECT_EQ(wnd.log, "derived:one base:two range:orphan range:child");
}

TEST(MessageMap, DisabledCommandIsNotCalled) {
    DerivedWnd wnd;
    wnd.twoEnabled = FALSE;
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_TWO), 1);
    EXPECT_EQ(wnd.log, "");
}

TEST(MessageMap, UserAndRegisteredMessagesReturnTheHandlersResult) {
    DerivedWnd wnd;
    EXPECT_EQ(wnd.SendMessage(kUserMessage, 3, 4), 7);
    EXPECT_EQ(wnd.SendMessage(g_registered, 21), 42);
}

TEST(MessageMap, HandlerInfoTellsWithoutCalling) {
    DerivedWnd wnd;
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(wnd.OnCmdMsg(ID_TEST_ONE, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &wnd);
    EXPECT_EQ(wnd.log, "");
    EXPECT_FALSE(wnd.OnCmdMsg(12345, CN_COMMAND, nullptr, &info));
}

TEST(MessageMap, MessagesAreUnpacked) {
    DerivedWnd wnd;
    const WPARAM self = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    EXPECT_EQ(Sent(wnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(40000, 20)), "size 0 40000 20");
    EXPECT_EQ(Sent(wnd, WM_MOVE, 0, MAKELPARAM(-5, 6)), "move -5 6");
    EXPECT_EQ(Sent(wnd, WM_CHAR, 'A', MAKELPARAM(2, 0x4000)), "char 65 2 16384");
    EXPECT_EQ(Sent(wnd, WM_LBUTTONDOWN, MK_CONTROL, MAKELPARAM(-1, 9)), "ldown 8 -1,9");
    EXPECT_EQ(Sent(wnd, WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), MAKELPARAM(1, 2)), "wheel 4 -120 1,2");
    EXPECT_EQ(Sent(wnd, WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 77), 0), "vscroll 5 77 window");
    EXPECT_EQ(Sent(wnd, WM_TIMER, 5, 0), "timer 5");
    EXPECT_EQ(wnd.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    EXPECT_EQ(Sent(wnd, WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), "cursor self 1 512");
    EXPECT_EQ(Sent(wnd, WM_CONTEXTMENU, self, MAKELPARAM(-1, -1)), "context self -1,-1");
    EXPECT_EQ(Sent(wnd, WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0), "activate 2 1");
    EXPECT_EQ(Sent(wnd, WM_SHOWWINDOW, TRUE, 3), "show 1 3");
    EXPECT_EQ(Sent(wnd, WM_CAPTURECHANGED, 0, static_cast<LPARAM>(self)), "capture self");
    EXPECT_EQ(wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(-3, 10)), 7);
}

namespace {

// A parent that counts what its controls report, and a control that answers for itself.
class ReflectingEdit : public CEdit {
public:
    int changes = 0;
    BOOL keep = FALSE;
    afx_msg BOOL OnChange() {
        changes++;
        return keep;
    }
    afx_msg HBRUSH CtlColor(CDC *dc, UINT) {
        dc->SetTextColor(RGB(1, 2, 3));
        return static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::OnChange)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

class ParentWnd : public CWnd {
public:
    ParentWnd() { CreateEx(0, nullptr, "parent", WS_OVERLAPPEDWINDOW, 0, 0, 200, 200, nullptr, nullptr); }
    ~ParentWnd() override { DestroyWindow(); }
    int changes = 0;
    int notified = 0;
    afx_msg void OnChange() { changes++; }
    afx_msg void OnNotified(NMHDR *header, LRESULT *result) {
        notified = static_cast<int>(header->code);
        *result = 17;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ParentWnd, CWnd)
ON_EN_CHANGE(5, &ParentWnd::OnChange)
ON_NOTIFY(NM_CLICK, 5, &ParentWnd::OnNotified)
END_MESSAGE_MAP()

} // namespace

TEST(Notifications, ReachTheControlFirst) {
    ParentWnd parent;
    ReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5));
    edit.SetWindowText("x");
    EXPECT_EQ(edit.changes, 1);
    EXPECT_EQ(parent.changes, 1);
    edit.keep = TRUE;
    edit.SetWindowText("y");
    EXPECT_EQ(edit.changes, 2);
    EXPECT_EQ(parent.changes, 1) << "the control kept it";
}

TEST(Notifications, NotifyCarriesItsResult) {
    ParentWnd parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5));
    NMHDR header = {edit.m_hWnd, 5, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header)), 17);
    EXPECT_EQ(parent.notified, NM_CLICK);
}

TEST(Notifications, ControlColoursItself) {
    ParentWnd parent;
    ReflectingEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5));
    CClientDC dc(&edit);
    const LRESULT brush = parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                             reinterpret_cast<LPARAM>(edit.m_hWnd));
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(brush), ::GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(dc.GetTextColor(), RGB(1, 2, 3));
}

namespace {

class ThrowingWnd : public PlainWnd {
public:
    std::function<void()> action;
    afx_msg LRESULT OnUser(WPARAM, LPARAM) {
        action();
        return 5;
    }
    afx_msg void OnOne() { action(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ThrowingWnd, CWnd)
ON_MESSAGE(kUserMessage, &ThrowingWnd::OnUser)
ON_COMMAND(ID_TEST_ONE, &ThrowingWnd::OnOne)
END_MESSAGE_MAP()

} // namespace

TEST(WindowProcedure, NoExceptionLeavesIt) {
    ThrowingWnd wnd;
    TestApp &app = TestApp::Get();
    wnd.action = [] { AfxThrowMemoryException(); };
    EXPECT_EQ(wnd.SendMessage(kUserMessage), 0);
    EXPECT_EQ(app.TakeBoxes(), "Out of memory.");
    wnd.action = [] { throw std::runtime_error("odd state"); };
    EXPECT_EQ(wnd.SendMessage(kUserMessage), 0);
    EXPECT_EQ(app.TakeBoxes(), "odd state");
    wnd.action = [] { throw std::bad_alloc(); };
    wnd.SendMessage(kUserMessage);
    EXPECT_EQ(app.TakeBoxes(), "Out of memory.");
    wnd.action = [] { throw 5; };
    wnd.SendMessage(kUserMessage);
    EXPECT_EQ(app.TakeBoxes(), "An unknown error has occurred.");
    wnd.action = [] { AfxThrowFileException(CFileException::fileNotFound, -1, "x.dat"); };
    EXPECT_EQ(wnd.SendMessage(WM_COMMAND, ID_TEST_ONE), 1) << "a command counts as handled";
    EXPECT_EQ(app.TakeBoxes(), "x.dat was not found.");
    wnd.action = [] { AfxThrowUserException(); };
    wnd.SendMessage(kUserMessage);
    EXPECT_EQ(app.TakeBoxes(), "") << "the user was told already";
    wnd.action = [] {};
    EXPECT_EQ(wnd.SendMessage(kUserMessage), 5);
}
