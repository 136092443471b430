// The headings and the corner: clicks, and sizing by mouse.
#include "GridWindowTest.h"

namespace {

class CtrlHeadingsTest : public GridWindowTest {
protected:
    int WidthOf(int col) {
        int width = -1;
        m_grid.GetColWidth(col, &width);
        return width;
    }
    int HeightOf(long row) {
        int height = -1;
        m_grid.GetRowHeight(row, &height);
        return height;
    }
    void Drag(HWND window, POINT from, POINT to) {
        PressLeft(window, from.x, from.y);
        MoveMouse(window, to.x, to.y, MK_LBUTTON);
        ReleaseLeft(window, to.x, to.y);
    }
};

TEST_F(CtrlHeadingsTest, ClicksOnTheHeadingsNameTheirColumnOrRow) {
    Fill(4, 10);
    ClickLeft(m_grid.TopHeading(), 150, 10);
    ClickLeft(m_grid.SideHeading(), 20, 50);
    EXPECT_EQ("TH_LClicked(1,1) TH_LClicked(1,0) SH_LClicked(2,1) SH_LClicked(2,0)", m_grid.Take());
    ::SendMessageA(m_grid.TopHeading(), WM_LBUTTONDBLCLK, 0, MAKELPARAM(250, 10));
    ::SendMessageA(m_grid.SideHeading(), WM_LBUTTONDBLCLK, 0, MAKELPARAM(20, 10));
    EXPECT_EQ("TH_DClicked(2) SH_DClicked(0)", m_grid.Take());
    ::SendMessageA(m_grid.TopHeading(), WM_RBUTTONDOWN, 0, MAKELPARAM(250, 10));
    ::SendMessageA(m_grid.TopHeading(), WM_RBUTTONUP, 0, MAKELPARAM(250, 10));
    ::SendMessageA(m_grid.SideHeading(), WM_RBUTTONDOWN, 0, MAKELPARAM(20, 10));
    ::SendMessageA(m_grid.SideHeading(), WM_RBUTTONUP, 0, MAKELPARAM(20, 10));
    EXPECT_EQ("TH_RClicked(2,1) TH_RClicked(2,0) SH_RClicked(0,1) SH_RClicked(0,0)", m_grid.Take());
}

TEST_F(CtrlHeadingsTest, DraggingAColumnsEdgeAsksSizesAndTells) {
    Fill(4, 10);
    PressLeft(m_grid.TopHeading(), 200, 10);
    MoveMouse(m_grid.TopHeading(), 230, 10, MK_LBUTTON);
    EXPECT_EQ(130, WidthOf(1));
    MoveMouse(m_grid.TopHeading(), 180, 10, MK_LBUTTON);
    ReleaseLeft(m_grid.TopHeading(), 180, 10);
    EXPECT_EQ(80, WidthOf(1));
    EXPECT_EQ("CanSizeCol(1) ColSizing(1,130) ColSizing(1,80) ColSized(1,80)", m_grid.Take());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(CtrlHeadingsTest, TheNotificationMayHoldTheWidth) {
    Fill(4, 10);
    m_grid.m_onSizing = [](int *width) { *width = 90; };
    Drag(m_grid.TopHeading(), {200, 10}, {150, 10});
    EXPECT_EQ(90, WidthOf(1));
    m_grid.m_onSizing = nullptr;
}

TEST_F(CtrlHeadingsTest, AColumnCanBeDraggedShutButNotBelowZero) {
    Fill(4, 10);
    Drag(m_grid.TopHeading(), {200, 10}, {20, 10});
    EXPECT_EQ(0, WidthOf(1));
}

TEST_F(CtrlHeadingsTest, AVetoedSizingIsAClick) {
    Fill(4, 10);
    m_grid.m_vetoes = {"CanSizeCol"};
    Drag(m_grid.TopHeading(), {199, 10}, {250, 10});
    EXPECT_EQ(100, WidthOf(1));
    EXPECT_EQ("CanSizeCol(1) TH_LClicked(1,1)", m_grid.Take().substr(0, 30));
}

TEST_F(CtrlHeadingsTest, WithSizingOffNobodyIsAsked) {
    Fill(4, 10);
    m_grid.SetUserSizingMode(0);
    Drag(m_grid.TopHeading(), {199, 10}, {250, 10});
    EXPECT_EQ(100, WidthOf(1));
    EXPECT_EQ("TH_LClicked(1,1)", m_grid.Take().substr(0, 16));
}

TEST_F(CtrlHeadingsTest, DraggingARowsEdgeSizesTheRow) {
    Fill(4, 10);
    Drag(m_grid.SideHeading(), {20, 40}, {20, 55});
    EXPECT_EQ(35, HeightOf(1));
    EXPECT_EQ(20, HeightOf(2));
    EXPECT_EQ("CanSizeRow(1) RowSizing(1,35) RowSized(1,35)", m_grid.Take());
}

TEST_F(CtrlHeadingsTest, WithUniformHeightsTheDragSizesAllRows) {
    Fill(4, 10);
    m_grid.SetUniformRowHeight(1);
    Drag(m_grid.SideHeading(), {20, 20}, {20, 30});
    EXPECT_EQ(30, HeightOf(0));
    EXPECT_EQ(30, HeightOf(7));
}

TEST_F(CtrlHeadingsTest, TheCornersBottomSizesTheTopHeading) {
    Fill(4, 10);
    Drag(m_grid.Corner(), {20, 18}, {20, 35});
    EXPECT_EQ(35, m_grid.GetTH_Height());
    EXPECT_EQ(50, m_grid.GetSH_Width());
    EXPECT_EQ("CanSizeTopHdg() TopHdgSizing(35) ColSized(-1,-1)", m_grid.Take());
}

TEST_F(CtrlHeadingsTest, TheCornersRightSizesTheSideHeading) {
    Fill(4, 10);
    Drag(m_grid.Corner(), {48, 5}, {70, 5});
    EXPECT_EQ(20, m_grid.GetTH_Height());
    EXPECT_EQ(70, m_grid.GetSH_Width());
    EXPECT_EQ("CanSizeSideHdg() SideHdgSizing(70) ColSized(-1,-1)", m_grid.Take());
}

TEST_F(CtrlHeadingsTest, TheCornersCornerSizesBoth) {
    Fill(4, 10);
    Drag(m_grid.Corner(), {44, 14}, {60, 30});
    EXPECT_EQ(30, m_grid.GetTH_Height());
    EXPECT_EQ(60, m_grid.GetSH_Width());
}

TEST_F(CtrlHeadingsTest, TheMiddleOfTheCornerIsClicked) {
    Fill(4, 10);
    ClickLeft(m_grid.Corner(), 10, 5);
    ::SendMessageA(m_grid.Corner(), WM_LBUTTONDBLCLK, 0, MAKELPARAM(10, 5));
    ::SendMessageA(m_grid.Corner(), WM_RBUTTONDOWN, 0, MAKELPARAM(10, 5));
    ::SendMessageA(m_grid.Corner(), WM_RBUTTONUP, 0, MAKELPARAM(10, 5));
    EXPECT_EQ("CB_LClicked(1) CB_LClicked(0) CB_DClicked() CB_RClicked(1) CB_RClicked(0)", m_grid.Take());
}

} // namespace
