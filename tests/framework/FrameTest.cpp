#include "support.h"

namespace {

std::string g_log;

class TestView : public CView {
public:
    int draws = 0;

protected:
    void OnDraw(CDC *) override { draws++; }
    afx_msg void OnTwo() { g_log += "view:two "; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(TestView, CView)
ON_COMMAND(ID_TEST_TWO, &TestView::OnTwo)
END_MESSAGE_MAP()

class TestFrame : public CFrameWnd {
public:
    static inline int living = 0;
    TestFrame() { living++; }
    ~TestFrame() override { living--; }
    CStatusBar bar;
    TestView *view = nullptr;
    bool goes = false; // in its own command

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, void *) override {
        constexpr UINT kPanes[] = {ID_SEPARATOR, ID_INDICATOR_CAPS};
        view = new TestView;
        return view->Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST) &&
               bar.Create(this) && bar.SetIndicators(kPanes, 2);
    }
    afx_msg void OnOne() {
        g_log += "frame:one ";
        if (!goes)
            return;
        ::DestroyWindow(m_hWnd);
        g_log += living > 0 ? "living " : "dead ";
    }
    afx_msg void OnTwo() { g_log += "frame:two "; }
    afx_msg void OnUpdateOne(CCmdUI *cmdUI) { cmdUI->SetCheck(); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
ON_COMMAND(ID_TEST_ONE, &TestFrame::OnOne)
ON_COMMAND(ID_TEST_TWO, &TestFrame::OnTwo)
ON_UPDATE_COMMAND_UI(ID_TEST_ONE, &TestFrame::OnUpdateOne)
END_MESSAGE_MAP()

class Frame : public testing::Test {
protected:
    void SetUp() override {
        g_log.clear();
        frame = new TestFrame;
        ASSERT_TRUE(frame->LoadFrame(IDR_MAIN));
        frame->ShowWindow(SW_SHOW);
    }
    void TearDown() override {
        frame->DestroyWindow();
        EXPECT_EQ(TestFrame::living, 0) << "a frame ends with its window";
    }
    TestFrame *frame = nullptr;
};

} // namespace

TEST_F(Frame, TitleAndLayout) {
    CString title;
    frame->GetWindowText(title);
    EXPECT_STREQ(title, "Main title");
    CRect client, bar, view;
    frame->GetClientRect(&client);
    frame->bar.GetWindowRect(&bar);
    frame->view->GetWindowRect(&view);
    frame->ScreenToClient(&bar);
    frame->ScreenToClient(&view);
    EXPECT_EQ(bar.bottom, client.bottom);
    EXPECT_GT(bar.Height(), 10);
    EXPECT_EQ(view, CRect(0, 0, client.right, bar.top));
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    frame->view->GetWindowRect(&view);
    frame->ScreenToClient(&view);
    EXPECT_EQ(view, client) << "the hidden bar leaves its place";
}

TEST_F(Frame, CommandsGoToTheViewThenTheFrame) {
    frame->SendMessage(WM_COMMAND, ID_TEST_TWO);
    frame->SetActiveView(frame->view);
    frame->SendMessage(WM_COMMAND, ID_TEST_TWO);
    frame->SendMessage(WM_COMMAND, ID_TEST_ONE);
    EXPECT_EQ(g_log, "frame:two view:two frame:one ");
    EXPECT_EQ(frame->GetActiveView(), frame->view);
}

TEST_F(Frame, ObjectsOutliveTheirWindowsUntilTheirHandlersAreDone) {
    frame->goes = true;
    const HWND window = frame->m_hWnd;
    ::SendMessage(window, WM_COMMAND, ID_TEST_ONE, 0);
    EXPECT_EQ(g_log, "frame:one living ");
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(TestFrame::living, 0);
    SetUp();
}

namespace {

class ColourWatcher : public CWnd {
public:
    int changes = 0;

protected:
    afx_msg void OnSysColorChange() {
        changes++;
        CWnd::OnSysColorChange();
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ColourWatcher, CWnd)
ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

} // namespace

TEST_F(Frame, AChangeOfTheSystemsColoursReachesEveryDescendantOnce) {
    ColourWatcher child, grandchild;
    ASSERT_TRUE(child.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 9, 9), frame->view, 1));
    ASSERT_TRUE(grandchild.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 9, 9), &child, 1));
    frame->SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(child.changes, 1);
    EXPECT_EQ(grandchild.changes, 1);
    child.SendMessage(WM_SYSCOLORCHANGE); // a child passes nothing on: the frame reaches all
    EXPECT_EQ(child.changes, 2);
    EXPECT_EQ(grandchild.changes, 1);
    child.DestroyWindow();
}

TEST_F(Frame, OpeningAMenuUpdatesItsItems) {
    CMenu *menu = frame->GetMenu()->GetSubMenu(0);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), MAKELPARAM(0, FALSE));
    EXPECT_TRUE(menu->GetMenuState(ID_TEST_ONE, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_FALSE(menu->GetMenuState(ID_TEST_TWO, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_TRUE(menu->GetMenuState(ID_TEST_ORPHAN, MF_BYCOMMAND) & MF_GRAYED) << "nobody handles it";
}

TEST_F(Frame, StatusBarShowsPromptsAndPanes) {
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_ONE, 0),
                       reinterpret_cast<LPARAM>(frame->GetMenu()->m_hMenu));
    EXPECT_STREQ(frame->bar.GetPaneText(0), "Does the first thing");
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_STREQ(frame->bar.GetPaneText(0), "Ready");
    frame->SetMessageText("busy");
    CString text;
    frame->bar.GetWindowText(text);
    EXPECT_STREQ(text, "busy");
    EXPECT_STREQ(frame->bar.GetPaneText(1), "CAP");
    frame->bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    const bool caps = (::GetKeyState(VK_CAPITAL) & 1) != 0;
    EXPECT_EQ((frame->bar.GetPaneStyle(1) & SBPS_DISABLED) == 0, caps);
    char shown[16] = "";
    frame->bar.SendMessage(SB_GETTEXT, 1, reinterpret_cast<LPARAM>(shown));
    EXPECT_STREQ(shown, caps ? "CAP" : "");
    EXPECT_TRUE(frame->bar.SetPaneText(1, "X"));
    EXPECT_FALSE(frame->bar.SetPaneText(2, "X"));
}

TEST_F(Frame, AcceleratorsBecomeCommands) {
    MSG message = {frame->m_hWnd, WM_KEYDOWN, VK_F5, 1, 0, {0, 0}};
    EXPECT_TRUE(frame->PreTranslateMessage(&message));
    EXPECT_EQ(g_log, "frame:one ");
    message.wParam = VK_F6;
    EXPECT_FALSE(frame->PreTranslateMessage(&message));
}

TEST_F(Frame, ModalStateNests) {
    CWnd other;
    other.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, frame->m_hWnd, nullptr);
    PlainWnd stranger;
    frame->BeginModalState();
    frame->BeginModalState();
    EXPECT_FALSE(frame->IsWindowEnabled());
    EXPECT_FALSE(other.IsWindowEnabled());
    EXPECT_TRUE(stranger.IsWindowEnabled());
    frame->EndModalState();
    EXPECT_FALSE(other.IsWindowEnabled());
    frame->EndModalState();
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_TRUE(other.IsWindowEnabled());
}

TEST_F(Frame, DisabledFrameTakesItsPopupsAlong) {
    CWnd popup;
    popup.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, frame->m_hWnd, nullptr);
    frame->EnableWindow(FALSE);
    EXPECT_FALSE(popup.IsWindowEnabled());
    frame->EnableWindow(TRUE);
    EXPECT_TRUE(popup.IsWindowEnabled());
    EXPECT_TRUE(frame->IsWindowEnabled());
}

TEST_F(Frame, IdleTimeLeavesTheCaptionAlone) {
    frame->SetWindowText("of the host");
    TestApp::Get().m_pMainWnd = frame;
    TestApp::Get().OnIdle(0);
    TestApp::Get().m_pMainWnd = nullptr;
    CString caption;
    frame->GetWindowText(caption);
    EXPECT_STREQ(caption, "of the host");
    frame->SetTitle("new");
    frame->OnUpdateFrameTitle(TRUE);
    frame->GetWindowText(caption);
    EXPECT_STREQ(caption, "new");
}

TEST_F(Frame, ViewDraws) {
    frame->view->Invalidate();
    frame->view->draws = 0;
    frame->view->UpdateWindow();
    EXPECT_EQ(frame->view->draws, 1);
}

TEST_F(Frame, MainWindowEndsTheProgram) {
    TestApp::Get().m_pMainWnd = frame;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(TestApp::Get().m_pMainWnd, nullptr);
    MSG message;
    EXPECT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_MAIN));
}

namespace {

class TestChild : public CMDIChildWnd {
public:
    static inline int living = 0;
    explicit TestChild(const char *name) : m_name(name) { living++; }
    ~TestChild() override { living--; }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (wParam == ID_TEST_CHILD)
            g_log += m_name + ":command ";
        return CMDIChildWnd::OnCommand(wParam, lParam);
    }
    afx_msg void OnOne() { g_log += m_name + ":one "; }
    DECLARE_MESSAGE_MAP()
    std::string m_name;
};
BEGIN_MESSAGE_MAP(TestChild, CMDIChildWnd)
ON_COMMAND(ID_TEST_ONE, &TestChild::OnOne)
END_MESSAGE_MAP()

class TestMDIFrame : public CMDIFrameWnd {
protected:
    afx_msg void OnOne() { g_log += "frame:one "; }
    afx_msg void OnTwo() { g_log += "frame:two "; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(TestMDIFrame, CMDIFrameWnd)
ON_COMMAND(ID_TEST_ONE, &TestMDIFrame::OnOne)
ON_COMMAND(ID_TEST_TWO, &TestMDIFrame::OnTwo)
END_MESSAGE_MAP()

class Mdi : public testing::Test {
protected:
    void SetUp() override {
        g_log.clear();
        frame = new TestMDIFrame;
        ASSERT_TRUE(frame->LoadFrame(IDR_MAIN));
        TestApp::Get().m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
    }
    void TearDown() override {
        TestApp::Get().m_pMainWnd = nullptr;
        frame->DestroyWindow();
        EXPECT_EQ(TestChild::living, 0) << "children end with their frame";
    }
    TestChild *Open(const char *name) {
        TestChild *child = new TestChild(name);
        EXPECT_TRUE(child->LoadFrame(IDR_CHILD));
        return child;
    }
    CString FirstMenu() {
        CString text;
        frame->GetMenu()->GetMenuString(0, text, MF_BYPOSITION);
        return text;
    }
    TestMDIFrame *frame = nullptr;
};

} // namespace

TEST_F(Mdi, ActiveChildGetsCommandsFirst) {
    frame->SendMessage(WM_COMMAND, ID_TEST_ONE);
    TestChild *a = Open("a");
    TestChild *b = Open("b");
    EXPECT_EQ(frame->MDIGetActive(), b);
    EXPECT_EQ(frame->GetActiveFrame(), b);
    frame->SendMessage(WM_COMMAND, ID_TEST_ONE);
    frame->MDIActivate(a);
    EXPECT_EQ(frame->MDIGetActive(), a);
    frame->SendMessage(WM_COMMAND, ID_TEST_ONE);
    frame->SendMessage(WM_COMMAND, ID_TEST_TWO);
    frame->SendMessage(WM_COMMAND, ID_TEST_CHILD);
    EXPECT_EQ(g_log, "frame:one b:one a:one frame:two a:command ");
    EXPECT_EQ(a->GetMDIFrame(), frame);
    EXPECT_EQ(a->GetParentFrame(), frame);
}

TEST_F(Mdi, MenuFollowsTheActiveChild) {
    EXPECT_STREQ(FirstMenu(), "&Test");
    TestChild *child = Open("a");
    EXPECT_STREQ(FirstMenu(), "&Child");
    EXPECT_TRUE(child->DestroyWindow());
    EXPECT_EQ(TestChild::living, 0);
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_STREQ(FirstMenu(), "&Test");
}

TEST_F(Mdi, MaximizedChildIsReported) {
    TestChild *child = Open("a");
    BOOL maximized = TRUE;
    frame->MDIGetActive(&maximized);
    EXPECT_FALSE(maximized);
    frame->MDIMaximize(child);
    frame->MDIGetActive(&maximized);
    EXPECT_TRUE(maximized);
    frame->MDIRestore(child);
}

TEST_F(Mdi, WindowCommandsNeedAChild) {
    CMenu *menu = frame->GetMenu()->GetSubMenu(1);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), MAKELPARAM(1, FALSE));
    EXPECT_TRUE(menu->GetMenuState(ID_WINDOW_CASCADE, MF_BYCOMMAND) & MF_GRAYED);
    Open("a");
    menu = frame->GetMenu()->GetSubMenu(1);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu->m_hMenu), MAKELPARAM(1, FALSE));
    EXPECT_FALSE(menu->GetMenuState(ID_WINDOW_CASCADE, MF_BYCOMMAND) & MF_GRAYED);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_CASCADE);
}
