#include <afx.h>

#include <gtest/gtest.h>

namespace {

CString Show(const RECT &r) {
    CString text;
    text.Format("%d,%d,%d,%d", int(r.left), int(r.top), int(r.right), int(r.bottom));
    return text;
}

} // namespace

TEST(CRect, MeasuresAndMoves) {
    CRect r(1, 2, 11, 22);
    EXPECT_EQ(r.Width(), 10);
    EXPECT_EQ(r.Height(), 20);
    EXPECT_EQ(r.CenterPoint(), CPoint(6, 12));
    r.OffsetRect(1, 1);
    EXPECT_STREQ(Show(r), "2,3,12,23");
    r.MoveToXY(0, 0);
    EXPECT_STREQ(Show(r), "0,0,10,20");
    r.InflateRect(1, 2);
    EXPECT_STREQ(Show(r), "-1,-2,11,22");
    r.DeflateRect(1, 2, 3, 4);
    EXPECT_STREQ(Show(r), "0,0,8,18");
    r.BottomRight() = CPoint(5, 6);
    EXPECT_STREQ(Show(r), "0,0,5,6");
    EXPECT_STREQ(Show(CRect(CPoint(1, 2), CSize(3, 4))), "1,2,4,6");
    EXPECT_STREQ(Show(r + CPoint(1, 1)), "1,1,6,7");
}

TEST(CRect, RightAndBottomDoNotBelongToIt) {
    const CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 9)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 5)));
    EXPECT_FALSE(r.PtInRect(CPoint(5, 10)));
    EXPECT_TRUE(CRect(3, 3, 3, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(3, 3, 3, 9).IsRectNull());
    EXPECT_TRUE(CRect().IsRectNull());
}

TEST(CRect, Normalizes) {
    CRect r(5, 6, 1, 2);
    r.NormalizeRect();
    EXPECT_STREQ(Show(r), "1,2,5,6");
}

TEST(CRect, Intersects) {
    CRect r;
    EXPECT_TRUE(r.IntersectRect(CRect(0, 0, 5, 5), CRect(3, 2, 9, 9)));
    EXPECT_STREQ(Show(r), "3,2,5,5");
    EXPECT_FALSE(r.IntersectRect(CRect(0, 0, 5, 5), CRect(5, 0, 9, 9)));
    EXPECT_STREQ(Show(r), "0,0,0,0");
    EXPECT_STREQ(Show(CRect(0, 0, 5, 5) & CRect(1, 1, 2, 2)), "1,1,2,2");
}

TEST(CRect, UnionLeavesEmptyOnesOut) {
    CRect r;
    EXPECT_TRUE(r.UnionRect(CRect(0, 0, 5, 5), CRect(3, 2, 9, 9)));
    EXPECT_STREQ(Show(r), "0,0,9,9");
    EXPECT_TRUE(r.UnionRect(CRect(20, 20, 20, 30), CRect(3, 2, 9, 9)));
    EXPECT_STREQ(Show(r), "3,2,9,9");
    EXPECT_FALSE(r.UnionRect(CRect(), CRect(1, 1, 1, 1)));
}

TEST(CRect, SubtractsWhenARectangleIsLeft) {
    CRect r;
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, -1, 4, 11)));
    EXPECT_STREQ(Show(r), "4,0,10,10");
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(-5, 6, 20, 20)));
    EXPECT_STREQ(Show(r), "0,0,10,6");
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(2, 2, 4, 4)));
    EXPECT_STREQ(Show(r), "0,0,10,10");
    EXPECT_FALSE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 10, 10)));
}

TEST(CPoint, UnpacksSignedHalves) {
    const CPoint p(static_cast<LPARAM>(MAKELONG(static_cast<WORD>(-3), 7)));
    EXPECT_EQ(p, CPoint(-3, 7));
    EXPECT_EQ(CPoint(1, 2) - CPoint(3, 5), CSize(-2, -3));
    EXPECT_EQ(CPoint(1, 2) + CSize(1, 1), CPoint(2, 3));
}
