// What is told, in which order, by headings, corner, scroll bars and tabs.
#include "GridWindowTest.h"

namespace {

class OrderHeadingsTest : public GridWindowTest {
protected:
    void Send(HWND window, UINT message, int x, int y) {
        ::SendMessageA(window, message, 0, MAKELPARAM(x, y));
    }
    std::string Drag(HWND window, POINT from, POINT by) {
        m_grid.Take();
        PressLeft(window, from.x, from.y);
        MoveMouse(window, from.x + by.x, from.y + by.y, MK_LBUTTON);
        MoveMouse(window, from.x + 2 * by.x, from.y + 2 * by.y, MK_LBUTTON);
        ReleaseLeft(window, from.x + 2 * by.x, from.y + 2 * by.y);
        return m_grid.Take();
    }
    // Where the bar's thumb is dragged to, and what the bar tells of it.
    void Thumb(HWND bar, UINT message, UINT code, int position) {
        ::SetScrollPos(bar, SB_CTL, position, FALSE);
        ::SendMessageA(m_grid.m_hWnd, message, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(bar));
    }
    CRect HintPlace() {
        CRect rect;
        ::GetWindowRect(m_grid.Hint(), &rect);
        m_grid.ScreenToClient(&rect);
        return rect;
    }
};

TEST_F(OrderHeadingsTest, TheTopHeadingsClicks) {
    Fill(4, 10);
    m_grid.SetUserSizingMode(0);
    ClickLeft(m_grid.TopHeading(), 150, 10);
    Send(m_grid.TopHeading(), WM_LBUTTONDBLCLK, 150, 10);
    Send(m_grid.TopHeading(), WM_LBUTTONUP, 150, 10);
    EXPECT_EQ("TH_LClicked(1,1) TH_LClicked(1,0) TH_DClicked(1) TH_LClicked(1,0)", m_grid.Take());
    ClickLeft(m_grid.TopHeading(), 430, 10);
    EXPECT_EQ("TH_LClicked(-1,1) TH_LClicked(-1,0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, TheTopHeadingsPopupMenu) {
    Fill(4, 10);
    m_grid.EnablePopupMenu(1);
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 1002, "item");
    for (UINT key : {VK_DOWN, VK_RETURN})
        ::PostMessageA(m_grid.m_hWnd, WM_KEYDOWN, key, 1);
    Send(m_grid.TopHeading(), WM_RBUTTONDOWN, 150, 10);
    EXPECT_EQ("TH_RClicked(1,1) MenuStart(1,-1,2) MenuCommand(1,-1,2,1002)", m_grid.Take());
    Send(m_grid.TopHeading(), WM_RBUTTONUP, 150, 10);
    EXPECT_EQ("TH_RClicked(1,0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, TheSideHeadingsClicksHaveNoMenu) {
    Fill(4, 10);
    m_grid.EnablePopupMenu(1);
    ClickLeft(m_grid.SideHeading(), 20, 50);
    Send(m_grid.SideHeading(), WM_LBUTTONDBLCLK, 20, 50);
    Send(m_grid.SideHeading(), WM_RBUTTONDOWN, 20, 50);
    Send(m_grid.SideHeading(), WM_RBUTTONUP, 20, 50);
    EXPECT_EQ("SH_LClicked(2,1) SH_LClicked(2,0) SH_DClicked(2) SH_RClicked(2,1) SH_RClicked(2,0)", m_grid.Take());
    ClickLeft(m_grid.SideHeading(), 20, 250);
    EXPECT_EQ("SH_LClicked(-1,1) SH_LClicked(-1,0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, SizingAColumnInEachMode) {
    Fill(4, 10);
    const std::string steps = "CanSizeCol(1) ColSizing(1,110) ColSizing(1,120) ColSized(1,120)";
    EXPECT_EQ(steps, Drag(m_grid.TopHeading(), {200, 10}, {10, 0}));
    m_grid.SetUserSizingMode(1);
    m_grid.SetColWidth(1, 100);
    EXPECT_EQ(steps, Drag(m_grid.TopHeading(), {200, 10}, {10, 0}));
    m_grid.SetUserSizingMode(0);
    m_grid.SetColWidth(1, 100);
    EXPECT_EQ("TH_LClicked(1,1) TH_LClicked(2,0)", Drag(m_grid.TopHeading(), {199, 10}, {10, 0}));
}

TEST_F(OrderHeadingsTest, SizingARowInEachMode) {
    Fill(4, 10);
    const std::string steps = "CanSizeRow(1) RowSizing(1,25) RowSizing(1,30) RowSized(1,30)";
    EXPECT_EQ(steps, Drag(m_grid.SideHeading(), {20, 40}, {0, 5}));
    m_grid.SetUserSizingMode(1);
    m_grid.SetRowHeight(1, 20);
    EXPECT_EQ(steps, Drag(m_grid.SideHeading(), {20, 40}, {0, 5}));
    m_grid.SetUserSizingMode(0);
    m_grid.SetRowHeight(1, 20);
    EXPECT_EQ("SH_LClicked(1,1) SH_LClicked(2,0)", Drag(m_grid.SideHeading(), {20, 39}, {0, 5}));
}

TEST_F(OrderHeadingsTest, TheCellsFollowWhileSizingInModeTwoOnly) {
    RecordingSource &source = Fill(4, 10);
    for (int mode : {1, 2}) {
        m_grid.SetUserSizingMode(mode);
        m_grid.RedrawAll();
        PumpAll();
        PressLeft(m_grid.TopHeading(), 200, 10);
        source.m_rowsRead.clear();
        MoveMouse(m_grid.TopHeading(), 210, 10, MK_LBUTTON);
        PumpAll();
        EXPECT_EQ(mode == 2, !source.m_rowsRead.empty()) << mode;
        MoveMouse(m_grid.TopHeading(), 200, 10, MK_LBUTTON);
        ReleaseLeft(m_grid.TopHeading(), 200, 10);
        PumpAll();
    }
}

void LetGo() {
    BYTE state[256];
    ::GetKeyboardState(state);
    state[VK_LBUTTON] = 0;
    ::SetKeyboardState(state);
}

TEST_F(OrderHeadingsTest, APressWhoseButtonCameUpMeanwhileSizesNothing) {
    Fill(4, 10);
    m_grid.m_onEditFinish = LetGo;
    for (HWND heading : {m_grid.TopHeading(), m_grid.SideHeading()}) {
        const bool top = heading == m_grid.TopHeading();
        m_grid.StartEdit();
        HeldKeys button({VK_LBUTTON});
        PressLeft(heading, top ? 200 : 20, top ? 10 : 40);
        EXPECT_EQ(nullptr, ::GetCapture());
        MoveMouse(heading, top ? 230 : 20, top ? 10 : 55, MK_LBUTTON);
        int width = 0, height = 0;
        m_grid.GetColWidth(1, &width);
        m_grid.GetRowHeight(1, &height);
        EXPECT_EQ(CSize(100, 20), CSize(width, height));
    }
    m_grid.m_onEditFinish = nullptr;
}

TEST_F(OrderHeadingsTest, ABoxOfTheClickItselfLeavesTheMouseFree) {
    Fill(4, 10);
    m_grid.SetUserSizingMode(0);
    m_grid.m_onNote = [&](const std::string &name) {
        if (name.find("LClicked") != std::string::npos)
            LetGo();
    };
    const struct {
        HWND window;
        CPoint at;
    } presses[] = {{m_grid.TopHeading(), {150, 10}}, {m_grid.SideHeading(), {20, 50}}, {m_grid.Corner(), {10, 5}}};
    for (const auto &press : presses) {
        HeldKeys button({VK_LBUTTON});
        PressLeft(press.window, press.at.x, press.at.y);
        EXPECT_EQ(nullptr, ::GetCapture());
    }
    m_grid.m_onNote = nullptr;
}

TEST_F(OrderHeadingsTest, AMoveWithoutTheButtonEndsTheSizing) {
    Fill(4, 10);
    PressLeft(m_grid.TopHeading(), 200, 10);
    MoveMouse(m_grid.TopHeading(), 210, 10, MK_LBUTTON);
    MoveMouse(m_grid.TopHeading(), 250, 10, 0);
    EXPECT_EQ(nullptr, ::GetCapture());
    int width = 0;
    m_grid.GetColWidth(1, &width);
    EXPECT_EQ(110, width);
    PressLeft(m_grid.Corner(), 48, 5);
    MoveMouse(m_grid.Corner(), 58, 5, MK_LBUTTON);
    MoveMouse(m_grid.Corner(), 78, 5, 0);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(58, m_grid.GetSH_Width());
}

TEST_F(OrderHeadingsTest, WhatTheNotificationMakesOfASizeIsShown) {
    Fill(4, 10);
    m_grid.m_onNote = [&](const std::string &name) {
        if (name == "ColSized")
            PumpAll(); // all is painted, and only what comes behind it is left
    };
    m_grid.m_onColSized = [](int *width) { *width = 40; };
    PressLeft(m_grid.TopHeading(), 200, 10);
    MoveMouse(m_grid.TopHeading(), 210, 10, MK_LBUTTON);
    ReleaseLeft(m_grid.TopHeading(), 210, 10);
    EXPECT_TRUE(::GetUpdateRect(m_grid.Cells(), nullptr, FALSE));
    EXPECT_TRUE(::GetUpdateRect(m_grid.TopHeading(), nullptr, FALSE));
    m_grid.m_onNote = nullptr;
    m_grid.m_onColSized = nullptr;
}

TEST_F(OrderHeadingsTest, AVetoOfSizingIsAClick) {
    Fill(4, 10);
    m_grid.m_vetoes = {"CanSizeCol", "CanSizeRow"};
    PressLeft(m_grid.TopHeading(), 199, 10);
    ReleaseLeft(m_grid.TopHeading(), 199, 10);
    EXPECT_EQ("CanSizeCol(1) TH_LClicked(1,1) TH_LClicked(1,0)", m_grid.Take());
    PressLeft(m_grid.SideHeading(), 20, 39);
    ReleaseLeft(m_grid.SideHeading(), 20, 39);
    EXPECT_EQ("CanSizeRow(1) SH_LClicked(1,1) SH_LClicked(1,0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, ACornersVetoLeavesTheOtherEdge) {
    Fill(4, 10);
    m_grid.m_vetoes = {"CanSizeTopHdg"};
    EXPECT_EQ("CanSizeTopHdg() CanSizeSideHdg() SideHdgSizing(58) SideHdgSizing(68) ColSized(-1,-1)",
              Drag(m_grid.Corner(), {48, 18}, {10, 10}));
    m_grid.m_vetoes = {"CanSizeTopHdg", "CanSizeSideHdg"};
    ClickLeft(m_grid.Corner(), 66, 18);
    EXPECT_EQ("CanSizeTopHdg() CanSizeSideHdg() CB_LClicked(1) CB_LClicked(0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, TheCornersEdgesAndItsCorner) {
    Fill(4, 10);
    EXPECT_EQ("CanSizeTopHdg() TopHdgSizing(23) TopHdgSizing(28) ColSized(-1,-1)",
              Drag(m_grid.Corner(), {20, 18}, {0, 5}));
    EXPECT_EQ("CanSizeSideHdg() SideHdgSizing(58) SideHdgSizing(68) ColSized(-1,-1)",
              Drag(m_grid.Corner(), {48, 5}, {10, 0}));
    EXPECT_EQ("CanSizeTopHdg() CanSizeSideHdg() TopHdgSizing(31) SideHdgSizing(72) TopHdgSizing(36) "
              "SideHdgSizing(82) ColSized(-1,-1)",
              Drag(m_grid.Corner(), {62, 26}, {10, 5}));
}

TEST_F(OrderHeadingsTest, TheCornersClicks) {
    Fill(4, 10);
    ClickLeft(m_grid.Corner(), 10, 5);
    Send(m_grid.Corner(), WM_LBUTTONDBLCLK, 10, 5);
    Send(m_grid.Corner(), WM_RBUTTONDOWN, 10, 5);
    Send(m_grid.Corner(), WM_RBUTTONUP, 10, 5);
    EXPECT_EQ("CB_LClicked(1) CB_LClicked(0) CB_DClicked() CB_RClicked(1) CB_RClicked(0)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, ASizingWhoseMouseIsTakenAwayEnds) {
    Fill(4, 10);
    PressLeft(m_grid.TopHeading(), 200, 10);
    MoveMouse(m_grid.TopHeading(), 230, 10, MK_LBUTTON);
    ::ReleaseCapture();
    MoveMouse(m_grid.TopHeading(), 280, 10, 0);
    PressLeft(m_grid.Corner(), 48, 5);
    ::ReleaseCapture();
    MoveMouse(m_grid.Corner(), 10, 5, 0);
    int width = 0;
    m_grid.GetColWidth(1, &width);
    EXPECT_EQ("130 50", std::to_string(width) + " " + std::to_string(m_grid.GetSH_Width()));
}

TEST_F(OrderHeadingsTest, ATableThatShrinksWhileAColumnIsSizedEndsIt) {
    Fill(4, 10);
    PressLeft(m_grid.TopHeading(), 400, 10);
    m_grid.SetNumberCols(2);
    m_grid.Take();
    MoveMouse(m_grid.TopHeading(), 430, 10, MK_LBUTTON);
    ReleaseLeft(m_grid.TopHeading(), 430, 10);
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(OrderHeadingsTest, ANarrowColumnBesideAnEdgeIsTheOneThatIsSized) {
    Fill(4, 10);
    m_grid.SetColWidth(2, 2);
    EXPECT_EQ("CanSizeCol(2) ColSizing(2,12) ColSizing(2,22) ColSized(2,22)",
              Drag(m_grid.TopHeading(), {201, 10}, {10, 0}));
}

TEST_F(OrderHeadingsTest, LockedColumnsGoWithTheColumns) {
    Fill(4, 10);
    m_grid.SetLockedColumns(3);
    m_grid.SetNumberCols(2);
    EXPECT_EQ(2, m_grid.m_GI.m_lockedCols);
    PumpAll(); // the side heading draws no column that is gone
}

TEST_F(OrderHeadingsTest, TheVerticalThumbShowsItsHintAtThePointersHeight) {
    Fill(5, 50);
    m_grid.EnableScrollHints(1, 1);
    m_grid.m_onHint = [](CUGHint *hint) { hint->SetText("a text that is wider than eighty pixels"); };
    CPoint pointer(100, 120);
    m_grid.ClientToScreen(&pointer);
    ::SetCursorPos(pointer.x, pointer.y);
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBTRACK, 18);
    EXPECT_EQ("VScrollHint(18,48)", m_grid.Take());
    EXPECT_TRUE(::IsWindowVisible(m_grid.Hint()));
    const CRect place = HintPlace();
    EXPECT_EQ(500 - m_grid.m_GI.m_vScrollWidth - 1, place.right);
    EXPECT_EQ(120, (place.top + place.bottom) / 2);
    EXPECT_LT(80, place.Width());
    EXPECT_EQ(0, m_grid.GetTopRow()); // not live
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBPOSITION, 18);
    EXPECT_EQ("CanViewMove(0,0,0,18)", m_grid.Take());
    EXPECT_FALSE(::IsWindowVisible(m_grid.Hint()));
    EXPECT_EQ(18, m_grid.GetTopRow());
    m_grid.m_onHint = nullptr;
}

TEST_F(OrderHeadingsTest, TheHorizontalThumbShowsItsHintAboveTheBar) {
    Fill(12, 50);
    m_grid.EnableScrollHints(1, 1);
    CPoint pointer(200, 100);
    m_grid.ClientToScreen(&pointer);
    ::SetCursorPos(pointer.x, pointer.y);
    m_grid.m_onHint = [](CUGHint *hint) { hint->SetText("F"); };
    Thumb(m_grid.HBar(), WM_HSCROLL, SB_THUMBTRACK, 4);
    EXPECT_EQ("HScrollHint(4,50)", m_grid.Take());
    const CRect place = HintPlace();
    EXPECT_EQ(80, place.Width());
    EXPECT_EQ(200, (place.left + place.right) / 2);
    EXPECT_EQ(300 - m_grid.m_GI.m_hScrollHeight - 1, place.bottom);
    Thumb(m_grid.HBar(), WM_HSCROLL, SB_ENDSCROLL, 4);
    EXPECT_FALSE(::IsWindowVisible(m_grid.Hint()));
    m_grid.m_onHint = nullptr;
}

TEST_F(OrderHeadingsTest, AHintThatIsRefusedOrNotEnabledDoesNotShow) {
    Fill(5, 50);
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBTRACK, 5);
    EXPECT_EQ("", m_grid.Take());
    m_grid.EnableScrollHints(1, 1);
    m_grid.m_vetoes = {"VScrollHint"};
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBTRACK, 5);
    EXPECT_EQ("VScrollHint(5,13)", m_grid.Take());
    EXPECT_FALSE(::IsWindowVisible(m_grid.Hint()));
}

TEST_F(OrderHeadingsTest, ALiveThumbMovesTheViewBehindTheHint) {
    Fill(12, 50);
    m_grid.m_notesViewChanges = true;
    m_grid.EnableScrollHints(1, 1);
    m_grid.SetVScrollMode(1);
    m_grid.SetHScrollMode(1);
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBTRACK, 7);
    EXPECT_EQ("VScrollHint(7,18) CanViewMove(0,0,0,7) TopRowChange(0,7)", m_grid.Take());
    Thumb(m_grid.HBar(), WM_HSCROLL, SB_THUMBTRACK, 2);
    EXPECT_EQ("HScrollHint(2,25) CanViewMove(0,7,2,7) LeftColChange(0,2)", m_grid.Take());
    m_grid.m_vetoes = {"CanViewMove"};
    Thumb(m_grid.VBar(), WM_VSCROLL, SB_THUMBTRACK, 9);
    EXPECT_EQ("VScrollHint(9,24) CanViewMove(2,7,2,9)", m_grid.Take());
    EXPECT_EQ("cur=(0,0) view=(2,7) size=12x50", m_grid.State());
}

TEST_F(OrderHeadingsTest, TheBarsArrowsAndPages) {
    Fill(12, 50);
    const auto command = [&](UINT message, UINT code) {
        ::SendMessageA(m_grid.m_hWnd, message, code, 0);
        return m_grid.Take();
    };
    EXPECT_EQ("CanViewMove(0,0,0,1)", command(WM_VSCROLL, SB_LINEDOWN));
    EXPECT_EQ("CanViewMove(0,1,0,13)", command(WM_VSCROLL, SB_PAGEDOWN));
    EXPECT_EQ("CanViewMove(0,13,0,37)", command(WM_VSCROLL, SB_BOTTOM));
    EXPECT_EQ("HitBottom(50,1,0)", command(WM_VSCROLL, SB_LINEDOWN));
    EXPECT_EQ("CanViewMove(0,37,0,0)", command(WM_VSCROLL, SB_TOP));
    EXPECT_EQ("HitTop(50,-1)", command(WM_VSCROLL, SB_LINEUP));
    EXPECT_EQ("CanViewMove(0,0,1,0)", command(WM_HSCROLL, SB_LINERIGHT));
    EXPECT_EQ("CanViewMove(1,0,4,0)", command(WM_HSCROLL, SB_PAGERIGHT));
    EXPECT_EQ("CanViewMove(4,0,0,0)", command(WM_HSCROLL, SB_LEFT));
    EXPECT_EQ("", command(WM_HSCROLL, SB_LINELEFT));
}

TEST_F(OrderHeadingsTest, ATabIsToldByItsId) {
    Fill(4, 10);
    m_grid.AddTab("First", 7);
    m_grid.AddTab("Second", 8);
    m_grid.SetTabWidth(200);
    ClickLeft(m_grid.Tab(), 60, 5);
    ClickLeft(m_grid.Tab(), 12, 5);
    EXPECT_EQ("TabSelected(8) TabSelected(7)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, PaintingIsToldBySection) {
    Fill(4, 10);
    PumpAll();
    m_grid.m_notesDrawSetup = true;
    m_grid.RedrawAll();
    ::UpdateWindow(m_grid.Cells());
    EXPECT_EQ("DrawSetup(1)", m_grid.Take());
    ::UpdateWindow(m_grid.SideHeading());
    EXPECT_EQ("DrawSetup(3)", m_grid.Take());
}

TEST_F(OrderHeadingsTest, TheBaseOfTheRest) {
    CUGCell a, b;
    a.SetText("Beta");
    b.SetText("alpha");
    EXPECT_EQ(-1, m_grid.OnSortEvaluate(nullptr, &b));
    EXPECT_EQ(1, m_grid.OnSortEvaluate(&a, nullptr));
    EXPECT_LT(m_grid.OnSortEvaluate(&a, &b), 0); // capitals first
    EXPECT_EQ(0, m_grid.OnSortEvaluate(&a, &a));
    EXPECT_TRUE(m_grid.RecPassesFilter(5));
    EXPECT_FALSE(m_grid.GetUseFilteredRecords());
    EXPECT_EQ(1, m_grid.UnusedNotification(1, 2, 3));
    RECT rect{};
    DWORD style = 0;
    EXPECT_EQ(0, m_grid.CUGCtrl::OnSetupEditWindow(0, 0, &rect, &a, &style, 0));
}

TEST_F(OrderHeadingsTest, ASourceTellsItsControl) {
    Fill(4, 10);
    m_source->m_ctrl->OnDataSourceNotify(3, 1, 42);
    EXPECT_EQ("DataSourceNotify(3,1,42)", m_grid.Take());
}

} // namespace
