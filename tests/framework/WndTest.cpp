#include "support.h"

TEST(CWnd, HandleMaps) {
    PlainWnd wnd;
    const HWND handle = wnd.m_hWnd;
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), &wnd);
    EXPECT_EQ(CWnd::FromHandle(handle), &wnd);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(CWnd, TemporaryObjectsLiveUntilIdleAndDoNotOwn) {
    const HWND handle =
        ::CreateWindow("STATIC", "foreign", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    CWnd *temporary = CWnd::FromHandle(handle);
    EXPECT_EQ(temporary, CWnd::FromHandle(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    CString text;
    temporary->GetWindowText(text);
    EXPECT_STREQ(text, "foreign");
    PlainWnd marker;
    temporary->SetOwner(&marker);
    TestApp::Get().OnIdle(0);
    EXPECT_EQ(CWnd::FromHandle(handle)->GetOwner(), &marker);
    TestApp::Get().OnIdle(1);
    EXPECT_NE(CWnd::FromHandle(handle)->GetOwner(), &marker) << "another object";
    EXPECT_TRUE(::IsWindow(handle));
    ::DestroyWindow(handle);
}

TEST(CWnd, DeletingTheObjectDestroysTheWindow) {
    HWND handle = nullptr;
    {
        CWnd wnd;
        wnd.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
        handle = wnd.m_hWnd;
        EXPECT_TRUE(::IsWindow(handle));
    }
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(CWnd, WindowDestroyedBehindTheObjectsBackIsForgotten) {
    PlainWnd wnd;
    ::DestroyWindow(wnd.m_hWnd);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(CWnd, MessagesToADetachedWindowAreHarmless) {
    PlainWnd wnd;
    const HWND handle = wnd.Detach();
    EXPECT_EQ(::SendMessage(handle, WM_USER + 1, 1, 2), 0);
    ::SendMessage(handle, WM_PAINT, 0, 0);
    ::DestroyWindow(handle);
}

namespace {

// Records when it is told what.
class OrderWnd : public CWnd {
public:
    explicit OrderWnd(std::string *log) : m_log(log) {}

protected:
    BOOL PreCreateWindow(CREATESTRUCT &cs) override {
        *m_log += "precreate ";
        return CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { *m_log += "presubclass "; }
    void PostNcDestroy() override {
        *m_log += "postncdestroy";
        delete this;
    }
    int OnCreate(LPCREATESTRUCT cs) {
        *m_log += "create:" + std::string(cs->lpszName) + " ";
        return CWnd::OnCreate(cs);
    }
    void OnDestroy() {
        *m_log += "destroy ";
        CWnd::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()
    std::string *m_log;
};
BEGIN_MESSAGE_MAP(OrderWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

class RefusingWnd : public OrderWnd {
public:
    using OrderWnd::OrderWnd;
    int OnCreate(LPCREATESTRUCT) { return -1; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(RefusingWnd, OrderWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

} // namespace

TEST(CWnd, LifeHasItsOrder) {
    std::string log;
    CWnd *wnd = new OrderWnd(&log);
    wnd->CreateEx(0, nullptr, "name", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    wnd->DestroyWindow();
    EXPECT_EQ(log, "precreate presubclass create:name destroy postncdestroy");
}

TEST(CWnd, RefusedCreationStillEndsTheObject) {
    std::string log;
    CWnd *wnd = new RefusingWnd(&log);
    EXPECT_FALSE(wnd->CreateEx(0, nullptr, "name", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    // The last message but one is the system's affair, and systems differ.
    EXPECT_EQ(log.substr(0, 21), "precreate presubclass");
    EXPECT_EQ(log.find("postncdestroy"), log.size() - 13) << log;
}

namespace {

class UpperEdit : public CEdit {
public:
    int characters = 0;
    afx_msg void OnChar(UINT c, UINT repeat, UINT flags) {
        characters++;
        CEdit::OnChar(c, repeat, flags);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(UpperEdit, CEdit)
ON_WM_CHAR()
END_MESSAGE_MAP()

} // namespace

TEST(CWnd, SubclassedControlKeepsItsNature) {
    PlainWnd parent;
    const HWND handle = ::CreateWindow("EDIT", "", WS_CHILD, 0, 0, 50, 20, parent.m_hWnd,
                                       reinterpret_cast<HMENU>(9), nullptr, nullptr);
    UpperEdit edit;
    ASSERT_TRUE(edit.SubclassDlgItem(9, &parent));
    edit.SendMessage(WM_CHAR, 'q', 1);
    EXPECT_EQ(edit.characters, 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(text, "q");
    EXPECT_EQ(edit.UnsubclassWindow(), handle);
    ::SendMessage(handle, WM_CHAR, 'r', 1);
    EXPECT_EQ(edit.characters, 1);
    ::DestroyWindow(handle);
}

TEST(CWnd, ControlObjectDoesWhatTheControlDoes) {
    PlainWnd parent;
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | LBS_NOTIFY, CRect(0, 0, 80, 80), &parent, 3));
    list.AddString("alpha");
    list.AddString("beta");
    list.SetItemData(1, 77);
    list.SetCurSel(1);
    CString text;
    list.GetText(list.GetCurSel(), text);
    EXPECT_STREQ(text, "beta");
    EXPECT_EQ(list.GetItemData(1), 77u);
    EXPECT_EQ(parent.GetDlgItem(3), &list);
    EXPECT_EQ(list.GetParent(), &parent);
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 80, 20), &parent, 4));
    edit.SetWindowText("0123456789");
    edit.SetSel(2, 5);
    int start = 0, end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 5);
    edit.ReplaceSel("-");
    parent.GetDlgItemText(4, text);
    EXPECT_STREQ(text, "01-56789");
    parent.SetDlgItemInt(4, 42);
    EXPECT_EQ(parent.GetDlgItemInt(4), 42u);
}

TEST(CWnd, StylesGeometryAndRelatives) {
    PlainWnd parent;
    CWnd child, grandchild;
    child.Create(nullptr, "", WS_VISIBLE, CRect(10, 20, 110, 120), &parent, 1);
    grandchild.Create(nullptr, "", WS_VISIBLE, CRect(0, 0, 10, 10), &child, 2);
    CRect rect;
    child.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(10, 20, 110, 120));
    EXPECT_TRUE(child.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED));
    EXPECT_FALSE(child.ModifyStyle(0, WS_VSCROLL));
    CRect client;
    child.GetClientRect(&client);
    EXPECT_LT(client.Width(), 100);
    EXPECT_EQ(parent.GetDescendantWindow(2), &grandchild);
    EXPECT_EQ(grandchild.GetTopLevelParent(), &parent);
    EXPECT_EQ(grandchild.GetParentFrame(), nullptr);
    SCROLLINFO info{};
    info.fMask = SIF_ALL;
    info.nMax = 100;
    info.nPage = 10;
    info.nPos = 30;
    child.SetScrollInfo(SB_VERT, &info);
    EXPECT_EQ(child.GetScrollPos(SB_VERT), 30);
    EXPECT_EQ(child.GetScrollLimit(SB_VERT), 91);
}

namespace {
class CountingWnd : public CWnd {
public:
    static inline int told = 0;
    LRESULT OnTold(WPARAM, LPARAM) { return ++told; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CountingWnd, CWnd)
ON_MESSAGE(WM_USER + 9, &CountingWnd::OnTold)
END_MESSAGE_MAP()
} // namespace

TEST(CWnd, MessageToAllDescendants) {
    PlainWnd parent;
    CountingWnd a, b, c;
    a.Create(nullptr, "", 0, CRect(0, 0, 9, 9), &parent, 1);
    b.Create(nullptr, "", 0, CRect(0, 0, 9, 9), &parent, 2);
    c.Create(nullptr, "", 0, CRect(0, 0, 9, 9), &b, 3);
    CountingWnd::told = 0;
    parent.SendMessageToDescendants(WM_USER + 9);
    EXPECT_EQ(CountingWnd::told, 3);
    parent.SendMessageToDescendants(WM_USER + 9, 0, 0, FALSE, TRUE);
    EXPECT_EQ(CountingWnd::told, 5);
}

TEST(CWnd, LongTextsAreReadWhole) {
    PlainWnd wnd;
    const CString text('w', 3000);
    CEdit edit;
    edit.Create(WS_CHILD | ES_AUTOHSCROLL, CRect(0, 0, 50, 20), &wnd, 1);
    edit.SetWindowText(text);
    CString read;
    edit.GetWindowText(read);
    EXPECT_EQ(read.GetLength(), 3000);
}

TEST(RegisteredClass, SamePropertiesGiveTheSameName) {
    const LPCTSTR first = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_STREQ(first, AfxRegisterWndClass(CS_DBLCLKS));
    EXPECT_STRNE(first, AfxRegisterWndClass(CS_DBLCLKS | CS_SAVEBITS));
}

TEST(CString, LoadsStringsOfTheProgram) {
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_LONG));
    EXPECT_STREQ(text, "A text for the tests with %1 and %2");
    AfxFormatString2(text, IDS_LONG, "x", "y");
    EXPECT_STREQ(text, "A text for the tests with x and y");
    EXPECT_FALSE(text.LoadString(54321));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_STREQ(CString(MAKEINTRESOURCE(IDS_LONG)).Left(6), "A text");
}

TEST(CString, CaseFollowsTheCodePage) {
    ASSERT_EQ(::GetACP(), 1252u); // what the tests' environment asks for
    CString text("\xE4\xD6");
    EXPECT_EQ(text.CompareNoCase("\xC4\xF6"), 0);
    EXPECT_STREQ(text.MakeUpper(), "\xC4\xD6");
}

TEST(MessageBoxes, GoThroughTheApplication) {
    TestApp &app = TestApp::Get();
    app.answer = IDNO;
    EXPECT_EQ(AfxMessageBox("really?", MB_YESNO), IDNO);
    EXPECT_EQ(AfxMessageBox(static_cast<UINT>(IDS_LONG)), IDNO);
    app.answer = IDOK;
    EXPECT_EQ(app.TakeBoxes(), "really?|A text for the tests with %1 and %2");
}

TEST(ModuleState, ScopesSwitchTheModules) {
    AFX_MODULE_STATE other = {AfxGetApp(), AfxGetInstanceHandle(), ::GetModuleHandle("user32.dll")};
    const HINSTANCE before = AfxGetResourceHandle();
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(AfxGetResourceHandle(), other.m_hCurrentResourceHandle);
        // What the module lacks is looked for in the program.
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDD_PLAIN), RT_DIALOG), before);
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
    AfxSetResourceHandle(other.m_hCurrentResourceHandle);
    EXPECT_EQ(AfxGetModuleState()->m_hCurrentResourceHandle, other.m_hCurrentResourceHandle);
    AfxSetResourceHandle(before);
}

TEST(CCheckListBox, SpaceAndClickToggle) {
    PlainWnd parent;
    CCheckListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &parent, 3));
    list.AddString("one");
    list.AddString("two");
    list.SetItemData(0, 11);
    list.SetCheck(1, 1);
    list.SetCurSel(0);
    EXPECT_EQ(list.GetItemData(0), 11u);
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(list.GetCheck(0), 1);
    EXPECT_EQ(list.GetCheck(1), 1);
    CRect item;
    list.GetItemRect(1, &item);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, item.top + 4));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(4, item.top + 4));
    EXPECT_EQ(list.GetCheck(1), 0);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, item.top + 4));
    list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(60, item.top + 4));
    EXPECT_EQ(list.GetCheck(1), 0) << "beside the box";
    list.Enable(0, FALSE);
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(list.GetCheck(0), 1) << "a disabled item stays";
    list.DeleteString(0);
    EXPECT_EQ(list.GetItemData(0), 0u);
    list.ResetContent();
}
