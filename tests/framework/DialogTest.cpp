#include "support.h"

namespace {

class PlainDialog : public CDialog {
public:
    explicit PlainDialog(CWnd *parent = nullptr) : CDialog(IDD_PLAIN, parent) {}
    std::function<BOOL(PlainDialog &)> onInit = [](PlainDialog &) { return TRUE; };
    BOOL inited = FALSE;

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        inited = TRUE;
        return onInit(*this);
    }
};

} // namespace

TEST(CDialog, ModalDialogDisablesItsParentAndGivesTheResult) {
    PlainWnd parent;
    parent.ShowWindow(SW_SHOW);
    PlainDialog dialog(&parent);
    std::string seen;
    InLoop act([&] {
        seen += parent.IsWindowEnabled() ? "parent enabled " : "parent disabled ";
        seen += dialog.IsWindowVisible() ? "visible" : "hidden";
        dialog.SendMessage(WM_COMMAND, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(seen, "parent disabled visible");
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(CDialog, CancelAndEndDialog) {
    PlainDialog dialog;
    {
        InLoop act([&] { dialog.SendMessage(WM_COMMAND, IDCANCEL); });
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
    InLoop act([&] { dialog.EndDialog(77); });
    EXPECT_EQ(dialog.DoModal(), 77) << "the object serves again";
}

TEST(CDialog, EndedWhileItBegins) {
    PlainDialog dialog;
    dialog.onInit = [](PlainDialog &self) {
        self.EndDialog(5);
        return TRUE;
    };
    EXPECT_EQ(dialog.DoModal(), 5);
}

TEST(CDialog, FailureWhileItBeginsIsReportedAndContained) {
    PlainDialog dialog;
    dialog.onInit = [](PlainDialog &) -> BOOL { AfxThrowMemoryException(); };
    InLoop act([&] { dialog.EndDialog(IDCANCEL); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(TestApp::Get().TakeBoxes(), "Out of memory.");
}

TEST(CDialog, MissingTemplate) {
    CDialog dialog(4711);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_FALSE(dialog.Create(4711));
}

TEST(CDialog, QuitMessageEndsTheLoopAndPassesOn) {
    PlainDialog dialog;
    InLoop act([] { ::PostQuitMessage(3); });
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}

TEST(CDialog, Modeless) {
    PlainWnd parent;
    PlainDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_PLAIN, &parent));
    EXPECT_TRUE(dialog.inited);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_NE(dialog.GetDlgItem(IDOK), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(dialog.m_hWnd), &dialog);
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(CDialog, ReturnPressesTheDefaultButton) {
    PlainDialog dialog;
    InLoop act([&] {
        dialog.GetDlgItem(IDOK)->SetFocus();
        dialog.GetDlgItem(IDOK)->PostMessage(WM_KEYDOWN, VK_RETURN, 1);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(CDialog, OpensInTheMiddleOfItsOwner) {
    PlainWnd parent;
    parent.SetWindowPos(nullptr, 200, 150, 600, 500, SWP_SHOWWINDOW);
    PlainDialog dialog(&parent);
    CRect window;
    InLoop act([&] {
        dialog.GetWindowRect(&window);
        dialog.EndDialog(IDOK);
    });
    dialog.DoModal();
    EXPECT_NEAR(window.CenterPoint().x, 500, 1);
    EXPECT_NEAR(window.CenterPoint().y, 400, 1);
}

TEST(CDialog, EscapeCancels) {
    PlainDialog dialog;
    InLoop act([&] { dialog.GetDlgItem(IDOK)->PostMessage(WM_KEYDOWN, VK_ESCAPE, 1); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(CDialog, ModalOverModal) {
    PlainDialog outer;
    PlainDialog inner;
    INT_PTR innerResult = 0;
    BOOL outerEnabled = TRUE;
    InLoop act([&] {
        InLoop actInside([&] {
            outerEnabled = outer.IsWindowEnabled();
            inner.EndDialog(2);
        });
        PlainDialog *pointer = &inner;
        innerResult = pointer->DoModal();
        outer.EndDialog(1);
    });
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_EQ(innerResult, 2);
    EXPECT_TRUE(outerEnabled) << "without a main window nothing stands below the inner one";
}

TEST(CDialog, MainFrameIsDisabledForAnyOwner) {
    CFrameWnd *frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, "main", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 300)));
    frame->ShowWindow(SW_SHOW);
    TestApp::Get().m_pMainWnd = frame;
    PlainWnd owner;
    owner.ShowWindow(SW_SHOW);
    PlainDialog dialog(&owner);
    std::string seen;
    InLoop act([&] {
        seen = frame->IsWindowEnabled() ? "enabled" : "disabled";
        dialog.EndDialog(1);
    });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_EQ(seen, "disabled");
    EXPECT_TRUE(frame->IsWindowEnabled());
    TestApp::Get().m_pMainWnd = nullptr;
    frame->DestroyWindow();
}

TEST(CDialog, DestroyedFromWithinEndsItsLoop) {
    PlainDialog dialog;
    InLoop act([&] { dialog.DestroyWindow(); });
    EXPECT_EQ(dialog.DoModal(), -1);
}

namespace {
class FailingControl : public CWnd {
public:
    BOOL ended = FALSE;

protected:
    void PreSubclassWindow() override { AfxThrowMemoryException(); }
    void PostNcDestroy() override { ended = TRUE; }
};
} // namespace

TEST(CWnd, FailureBeforeTheFirstMessageRefusesTheWindow) {
    FailingControl control;
    EXPECT_FALSE(control.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(control.m_hWnd, nullptr);
    EXPECT_TRUE(control.ended);
}
