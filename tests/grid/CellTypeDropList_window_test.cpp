// The drop list: opening, choosing, closing.
#include "CellTypesTest.h"

namespace {

class DropListTypeTest : public CellTypesTest {
protected:
    void SetUp() override { Put(1, 1, kDropListTypeId, "two", "one\ntwo\nthree\n"); }
    CPoint Button() { return ButtonOf(1, 1).CenterPoint(); }
    void ClickButton() {
        const CPoint at = Button();
        ClickLeft(m_grid.Cells(), at.x, at.y);
    }
    bool IsOpen() { return m_grid.List() != nullptr && ::IsWindowVisible(m_grid.List()); }
    std::string Items() {
        std::string all;
        const int count = static_cast<int>(::SendMessageA(m_grid.List(), LB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i) {
            char text[100] = "";
            ::SendMessageA(m_grid.List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
            all += std::string(text) + "|";
        }
        return all;
    }
    void Choose(int item) { ::SendMessageA(m_grid.List(), LB_SETCURSEL, item, 0); }
    CRect ListRect() {
        CRect rect;
        ::GetWindowRect(m_grid.List(), &rect);
        ::MapWindowPoints(nullptr, m_grid.Cells(), reinterpret_cast<POINT *>(&rect), 2);
        return rect;
    }
};

TEST_F(DropListTypeTest, TheEditLeavesTheButtonFree) {
    CRect rect(0, 0, 100, 20);
    Type(kDropListTypeId)->GetEditArea(&rect);
    EXPECT_EQ(CRect(0, 0, 100 - ::GetSystemMetrics(SM_CXVSCROLL) - 1, 20), rect);
}

TEST_F(DropListTypeTest, PressingTheButtonOpensTheListWithTheLabelsLines) {
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Press(kDropListTypeId, 1, 1, Button())); }));
    EXPECT_EQ("2.1.1.100=one|two|three|", Told());
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ("one|two|three|", Items());
    EXPECT_EQ(m_grid.List(), ::GetFocus());
    EXPECT_EQ(1, ::SendMessageA(m_grid.List(), LB_GETCURSEL, 0, 0));
    EXPECT_EQ(-2, Release(kDropListTypeId, 1, 1, Button()));
    EXPECT_EQ(-1, Release(kDropListTypeId, 1, 1, Button()));
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, TheListOpensAtWhatTheCellHoldsNow) {
    ClickButton();
    Choose(2);
    ::SendMessageA(m_grid.List(), WM_KEYDOWN, VK_RETURN, 0);
    PumpAll();
    ASSERT_FALSE(IsOpen());
    ClickButton();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(2, ::SendMessageA(m_grid.List(), LB_GETCURSEL, 0, 0));
}

TEST_F(DropListTypeTest, TheListOpensAtTheWholeTextNotAtOneThatBeginsWithIt) {
    Put(1, 1, kDropListTypeId, "two", "twofold\ntwo\n");
    ClickButton();
    EXPECT_EQ(1, ::SendMessageA(m_grid.List(), LB_GETCURSEL, 0, 0));
}

TEST_F(DropListTypeTest, TextBehindTheLastLineFeedIsNoItem) {
    Put(1, 1, kDropListTypeId, "", "one\ntwo\nthree");
    ClickButton();
    EXPECT_EQ("2.1.1.100=one|two|", Told());
    EXPECT_EQ("one|two|", Items());
}

TEST_F(DropListTypeTest, TheReceiverMayChangeTheItems) {
    m_grid.m_onListOpens = [](CStringList *items) {
        items->RemoveHead();
        items->AddTail("four");
    };
    ClickButton();
    EXPECT_EQ("two|three|four|", Items());
}

TEST_F(DropListTypeTest, TheListHangsBelowItsCellAndIsAsHighAsItsItems) {
    ClickButton();
    const int itemHeight = static_cast<int>(::SendMessageA(m_grid.List(), LB_GETITEMHEIGHT, 0, 0));
    const CRect cell = RectOf(1, 1), list = ListRect();
    EXPECT_EQ(CPoint(cell.left, cell.bottom), list.TopLeft());
    EXPECT_EQ(cell.Width(), list.Width());
    EXPECT_EQ(3 * itemHeight + 2, list.Height());
}

TEST_F(DropListTypeTest, TheCellsDoNotPaintOverTheList) {
    ClickButton();
    PumpAll();
    const auto pixels = [&] {
        const CRect list = ListRect();
        HDC dc = ::GetWindowDC(m_grid.List());
        std::string all;
        for (int y = 0; y < list.Height(); ++y)
            all += std::to_string(::GetPixel(dc, 30, y)) + " ";
        ::ReleaseDC(m_grid.List(), dc);
        return all;
    };
    ::RedrawWindow(m_grid.List(), nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    const std::string before = pixels();
    m_grid.RedrawAll();
    m_grid.Update();
    EXPECT_EQ(before, pixels());
}

TEST_F(DropListTypeTest, WithoutRoomBelowTheListStandsAboveItsCell) {
    m_grid.SetNumberRows(14);
    Put(1, 13, kDropListTypeId, "", "one\ntwo\nthree\n");
    const CPoint at = ButtonOf(1, 13).CenterPoint();
    ClickLeft(m_grid.Cells(), at.x, at.y);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(RectOf(1, 13).top, ListRect().bottom);
}

TEST_F(DropListTypeTest, TheListHasTheCellsFont) {
    CFont large;
    large.CreateFont(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    ClickButton();
    const int small = static_cast<int>(::SendMessageA(m_grid.List(), LB_GETITEMHEIGHT, 0, 0));
    SendKey(m_grid.List(), VK_ESCAPE);
    CUGCell cell;
    m_grid.GetCellRaw(1, 1, &cell);
    cell.SetFont(&large);
    m_grid.SetCell(1, 1, &cell);
    m_grid.GotoCell(0, 0);
    m_grid.GotoCell(1, 1);
    ClickButton();
    EXPECT_LT(small + 8, ::SendMessageA(m_grid.List(), LB_GETITEMHEIGHT, 0, 0));
    SendKey(m_grid.List(), VK_ESCAPE);
    m_grid.GotoCell(0, 0);
}

TEST_F(DropListTypeTest, EnterAndCtrlDownOpenTheListAndEatTheKey) {
    UINT enter = VK_RETURN, down = VK_DOWN, other = 'A';
    EXPECT_EQ(-1, Key(kDropListTypeId, &down));
    EXPECT_EQ(-1, Key(kDropListTypeId, &other));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(-2, Key(kDropListTypeId, &enter));
    EXPECT_EQ(0u, enter);
    EXPECT_TRUE(IsOpen());
    SendKey(m_grid.List(), VK_ESCAPE);
    HeldKeys ctrl({VK_CONTROL});
    EXPECT_EQ(-2, Key(kDropListTypeId, &down));
    EXPECT_EQ(0u, down);
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, EnterTakesTheItem) {
    ClickButton();
    Told();
    m_grid.Take();
    Choose(2);
    std::string before;
    m_grid.m_onTold = [&] { before = m_grid.Text(1, 1); };
    SendKey(m_grid.List(), VK_RETURN);
    EXPECT_EQ("2.1.1.101=three", Told());
    EXPECT_EQ("two", before); // told before it is written
    EXPECT_EQ("three", m_grid.Text(1, 1));
    EXPECT_EQ("SetCell(1,1)", m_grid.Take());
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
}

TEST_F(DropListTypeTest, AMouseReleaseTakesTheItem) {
    ClickButton();
    const int itemHeight = static_cast<int>(::SendMessageA(m_grid.List(), LB_GETITEMHEIGHT, 0, 0));
    ClickLeft(m_grid.List(), 5, itemHeight / 2);
    EXPECT_EQ("one", m_grid.Text(1, 1));
    EXPECT_FALSE(IsOpen());
    ClickButton(); // the choice leaves no sign behind
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, EnterWithNoItemOnlyCloses) {
    Put(1, 1, kDropListTypeId, "nine", "one\n");
    ClickButton();
    Told();
    SendKey(m_grid.List(), VK_RETURN);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ("", Told());
    EXPECT_EQ("nine", m_grid.Text(1, 1));
}

TEST_F(DropListTypeTest, EscapeClosesAndTheNextClickOpensAgain) {
    ClickButton();
    Told();
    Choose(2);
    SendKey(m_grid.List(), VK_ESCAPE);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ("", Told());
    EXPECT_EQ("two", m_grid.Text(1, 1));
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
    ClickButton();
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, TheClickThatClosesTheListDoesNotOpenItAgain) {
    ClickButton();
    EXPECT_TRUE(IsOpen());
    ClickButton();
    EXPECT_FALSE(IsOpen());
    ClickButton();
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, LosingTheFocusClosesTheList) {
    ClickButton();
    m_host.SetFocus();
    EXPECT_FALSE(IsOpen());
}

TEST_F(DropListTypeTest, LeavingTheCellForgetsThatTheListClosed) {
    ClickButton();
    m_host.SetFocus();
    m_grid.GotoCell(0, 0);
    m_grid.GotoCell(1, 1);
    ClickButton();
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, AnOpenListIsNotOpenedTwice) {
    ClickButton();
    Told();
    EXPECT_EQ(GRID_ERROR, static_cast<CUGDropListType *>(Type(kDropListTypeId))->OpenList());
    EXPECT_EQ("", Told());
}

TEST_F(DropListTypeTest, ADoubleClickOnTheButtonIsAClick) {
    EXPECT_EQ(-1, DoubleClick(kDropListTypeId, 1, 1, RectOf(1, 1).TopLeft()));
    EXPECT_EQ(-2, DoubleClick(kDropListTypeId, 1, 1, Button()));
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, AClickBesideTheButtonIsNotItsMatter) {
    EXPECT_EQ(-1, Press(kDropListTypeId, 1, 1, RectOf(1, 1).TopLeft()));
    EXPECT_FALSE(IsOpen());
}

TEST_F(DropListTypeTest, TheControlMayGoWhileTheListIsOpen) {
    ClickButton();
    m_grid.DestroyWindow();
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
    m_grid.SetFocus();
    Put(1, 1, kDropListTypeId, "two", "one\ntwo\n");
    ClickButton();
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropListTypeTest, StyleSixteenHidesTheButtonOutsideTheCurrentCell) {
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    Picture shown(100, 20), hidden(100, 20), current(100, 20);
    Draw(shown, kDropListTypeId, Coloured("x"));
    Draw(hidden, kDropListTypeId, Coloured("x", kHideButtonStyle));
    Draw(current, kDropListTypeId, Coloured("x", kHideButtonStyle), 0, 1);
    const CRect button(100 - ::GetSystemMetrics(SM_CXVSCROLL), 0, 100, 20);
    EXPECT_LT(50, shown.Count(face, button));
    EXPECT_EQ(0, hidden.Count(face));
    EXPECT_LT(50, current.Count(face, button));
    EXPECT_EQ(0, shown.Count(kUnpainted) + hidden.Count(kUnpainted));
}

TEST_F(DropListTypeTest, AHighlightedCellIsHighlightedUpToTheButton) {
    Picture picture(100, 20);
    Draw(picture, kDropListTypeId, Coloured("x"), 1);
    EXPECT_EQ(0, picture.Count(kPale));
}

} // namespace
