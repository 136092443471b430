// The tab bar in its control.
#include "GridWindowTest.h"

namespace {

class TabGrid : public RecordingGrid {
public:
    HWND Tab() const { return m_tab.GetSafeHwnd(); }
    void OnTabSelected(long id) override { m_selected += std::to_string(id) + " "; }
    std::string m_selected;
};

class TabTest : public testing::Test {
protected:
    TabTest() {
        m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
        m_grid.SetNumberCols(3);
        m_grid.SetNumberRows(5);
        m_grid.AddTab("First", 7);
        m_grid.AddTab("Second", 8);
        m_grid.AddTab("Third", 9);
    }
    ~TabTest() override { m_grid.DestroyWindow(); }
    CRect In(HWND window) {
        CRect rect;
        ::GetWindowRect(window, &rect);
        m_grid.ScreenToClient(&rect);
        return rect;
    }
    HWND Scroll() { return ::GetDlgItem(m_grid.Tab(), kTabScrollChildId); }
    COLORREF Pixel(int x, int y) {
        PumpAll();
        HDC dc = ::GetDC(m_grid.Tab());
        const COLORREF colour = ::GetPixel(dc, x, y);
        ::ReleaseDC(m_grid.Tab(), dc);
        return colour;
    }
    HostWindow m_host;
    TabGrid m_grid;
};

TEST_F(TabTest, TheBarIsHiddenWithoutAWidth) {
    EXPECT_FALSE(::IsWindowVisible(m_grid.Tab()));
    EXPECT_EQ(int(kTabChildId), ::GetDlgCtrlID(m_grid.Tab()));
    EXPECT_FALSE(::IsWindowVisible(m_grid.HBar()));
}

TEST_F(TabTest, TheBarStandsAtTheBottomLeftAndTheHorizontalBarBesideIt) {
    m_grid.SetTabWidth(200);
    const int height = ::GetSystemMetrics(SM_CYHSCROLL);
    EXPECT_TRUE(::IsWindowVisible(m_grid.Tab()));
    EXPECT_EQ(CRect(0, 300 - height, 200, 300), In(m_grid.Tab()));
    EXPECT_EQ(CRect(200, 300 - height, 500, 300), In(m_grid.HBar()));
    EXPECT_EQ(300 - height, In(m_grid.Cells()).bottom);
    m_grid.SetTabWidth(2000);
    EXPECT_EQ(500, In(m_grid.Tab()).right);
    m_grid.SetTabWidth(-5);
    EXPECT_FALSE(::IsWindowVisible(m_grid.Tab()));
    EXPECT_EQ(300, In(m_grid.Cells()).bottom);
}

TEST_F(TabTest, AClickSelectsTheTabAndTellsItsId) {
    m_grid.SetTabWidth(300);
    EXPECT_EQ(7, m_grid.GetSelectedTab());
    ClickLeft(m_grid.Tab(), 60, 5);
    EXPECT_EQ("8 ", m_grid.m_selected);
    EXPECT_EQ(8, m_grid.GetSelectedTab());
    ClickLeft(m_grid.Tab(), 290, 5);
    EXPECT_EQ("8 ", m_grid.m_selected);
}

TEST_F(TabTest, SelectingByIdTellsNobody) {
    EXPECT_EQ(GRID_SUCCESS, m_grid.SelectTab(9));
    EXPECT_EQ(GRID_ERROR, m_grid.SelectTab(1));
    EXPECT_EQ(9, m_grid.GetSelectedTab());
    EXPECT_EQ("", m_grid.m_selected);
    EXPECT_EQ(GRID_SUCCESS, m_grid.DeleteTab(9));
    EXPECT_EQ(8, m_grid.GetSelectedTab());
    m_grid.DeleteTab(7);
    m_grid.DeleteTab(8);
    EXPECT_EQ(-1, m_grid.GetSelectedTab());
}

TEST_F(TabTest, TheCurrentTabIsWhiteAndOpenAtTheTop) {
    m_grid.SetTabWidth(300);
    const COLORREF white = RGB(255, 255, 255), face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(white, Pixel(12, 0));
    EXPECT_EQ(white, Pixel(12, 2));
    EXPECT_EQ(RGB(0, 0, 0), Pixel(65, 0));
    EXPECT_EQ(face, Pixel(65, 2));
    m_grid.SelectTab(8);
    EXPECT_EQ(face, Pixel(12, 2));
    EXPECT_EQ(white, Pixel(65, 2));
}

TEST_F(TabTest, ABarWithoutRoomForItsTabsScrolls) {
    m_grid.SetTabWidth(300);
    EXPECT_FALSE(::IsWindowVisible(Scroll()));
    m_grid.SetTabWidth(100);
    EXPECT_TRUE(::IsWindowVisible(Scroll()));
    EXPECT_EQ(2 * ::GetSystemMetrics(SM_CXHSCROLL), In(Scroll()).Width());
    EXPECT_EQ(100, In(Scroll()).right);
    EXPECT_EQ(0, ::GetScrollPos(Scroll(), SB_CTL));
    m_grid.SelectTab(9);
    EXPECT_LT(40, ::GetScrollPos(Scroll(), SB_CTL));
    const int before = ::GetScrollPos(Scroll(), SB_CTL);
    ::SendMessageA(m_grid.Tab(), WM_HSCROLL, SB_LINELEFT, reinterpret_cast<LPARAM>(Scroll()));
    EXPECT_EQ(before - 10, ::GetScrollPos(Scroll(), SB_CTL));
    ::SendMessageA(m_grid.Tab(), WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 0),
                   reinterpret_cast<LPARAM>(Scroll()));
    ClickLeft(m_grid.Tab(), 62, 5); // the second tab, seen in part
    EXPECT_EQ("8 ", m_grid.m_selected);
    EXPECT_LT(0, ::GetScrollPos(Scroll(), SB_CTL));
}

} // namespace
