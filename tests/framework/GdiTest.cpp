#include "support.h"

namespace {

// A memory bitmap to draw on and to look at.
struct Canvas {
    Canvas() {
        CClientDC screen(nullptr);
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, 40, 30);
        old = dc.SelectObject(&bitmap);
        dc.PatBlt(0, 0, 40, 30, WHITENESS);
    }
    ~Canvas() { dc.SelectObject(old); }
    CDC dc;
    CBitmap bitmap;
    CBitmap *old;
};

} // namespace

TEST(Gdi, ObjectsOwnTheirHandles) {
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(RGB(1, 2, 3));
        handle = brush.m_hObject;
        LOGBRUSH log;
        EXPECT_NE(brush.GetLogBrush(&log), 0);
        EXPECT_EQ(log.lbColor, RGB(1, 2, 3));
        EXPECT_EQ(CBrush::FromHandle(static_cast<HBRUSH>(handle)), &brush);
    }
    LOGBRUSH log;
    EXPECT_EQ(::GetObject(handle, sizeof log, &log), 0) << "gone with its object";
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    const HGDIOBJ detached = pen.Detach();
    EXPECT_EQ(pen.m_hObject, nullptr);
    EXPECT_TRUE(::DeleteObject(detached));
}

TEST(Gdi, DrawsAndReadsBack) {
    Canvas canvas;
    CDC &dc = canvas.dc;
    dc.FillSolidRect(CRect(0, 0, 10, 10), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(9, 9), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(10, 9), RGB(255, 255, 255));
    dc.Draw3dRect(CRect(20, 10, 30, 20), RGB(0, 255, 0), RGB(0, 0, 255));
    EXPECT_EQ(dc.GetPixel(20, 10), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(29, 19), RGB(0, 0, 255));
    EXPECT_EQ(dc.GetPixel(29, 10), RGB(0, 0, 255));
    EXPECT_EQ(dc.GetPixel(25, 15), RGB(255, 255, 255));
    CPen pen(PS_SOLID, 1, RGB(10, 20, 30));
    CPen *oldPen = dc.SelectObject(&pen);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    dc.MoveTo(0, 25);
    dc.LineTo(5, 25);
    EXPECT_EQ(dc.GetPixel(4, 25), RGB(10, 20, 30));
    EXPECT_EQ(dc.GetPixel(5, 25), RGB(255, 255, 255));
    EXPECT_EQ(dc.SelectObject(oldPen), &pen);
}

TEST(Gdi, ClippingAndOrigins) {
    Canvas canvas;
    CDC &dc = canvas.dc;
    const int saved = dc.SaveDC();
    EXPECT_EQ(dc.SetViewportOrg(5, 5), CPoint(0, 0));
    dc.IntersectClipRect(CRect(0, 0, 3, 3));
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 3, 3));
    dc.FillSolidRect(CRect(0, 0, 20, 20), 0);
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(dc.GetPixel(7, 7), 0u);
    EXPECT_EQ(dc.GetPixel(8, 8), RGB(255, 255, 255));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(0, 0));
}

TEST(Gdi, FontsMeasure) {
    Canvas canvas;
    CFont small, large;
    ASSERT_TRUE(small.CreatePointFont(80, "Arial"));
    ASSERT_TRUE(large.CreatePointFont(160, "Arial", &canvas.dc));
    CFont *old = canvas.dc.SelectObject(&small);
    const CSize first = canvas.dc.GetTextExtent("Table");
    canvas.dc.SelectObject(&large);
    const CSize second = canvas.dc.GetTextExtent(CString("Table"));
    EXPECT_GT(second.cx, first.cx);
    EXPECT_GT(second.cy, first.cy);
    LOGFONT log;
    large.GetLogFont(&log);
    EXPECT_LT(log.lfHeight, 0);
    canvas.dc.SelectObject(old);
}

TEST(Gdi, RegionsCombine) {
    CRgn a, b, both;
    a.CreateRectRgn(0, 0, 10, 10);
    b.CreateRectRgn(5, 0, 20, 10);
    both.CreateRectRgn(0, 0, 0, 0);
    both.CombineRgn(&a, &b, RGN_OR);
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 20, 10));
    EXPECT_TRUE(both.PtInRegion(12, 3));
    EXPECT_FALSE(a.PtInRegion(12, 3));
}

namespace {
class PaintedWnd : public CWnd {
public:
    int paints = 0;
    CRect update;
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        update = dc.m_ps.rcPaint;
        EXPECT_EQ(dc.GetWindow(), this);
        paints++;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(PaintedWnd, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()
} // namespace

TEST(Gdi, PaintDcValidates) {
    PaintedWnd wnd;
    wnd.CreateEx(0, nullptr, "", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr);
    wnd.UpdateWindow();
    wnd.paints = 0;
    wnd.InvalidateRect(CRect(10, 10, 20, 20));
    wnd.UpdateWindow();
    wnd.UpdateWindow();
    EXPECT_EQ(wnd.paints, 1);
    EXPECT_EQ(wnd.update, CRect(10, 10, 20, 20));
}

TEST(Gdi, TemporaryObjectsOfOneHandleHaveTheirClass) {
    const HGDIOBJ stock = ::GetStockObject(BLACK_PEN);
    CGdiObject *plain = CGdiObject::FromHandle(stock);
    CPen *pen = CPen::FromHandle(static_cast<HPEN>(stock));
    EXPECT_TRUE(pen->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(plain->m_hObject, pen->m_hObject);
    CGdiObject::DeleteTempMap();
    EXPECT_NE(::GetObjectType(stock), 0u);
}

TEST(Menu, BuildsAndReads) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 10, "&Ten");
    menu.AppendMenu(MF_SEPARATOR);
    menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 9, "Nine");
    CString text;
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_STREQ(text, "&Ten");
    EXPECT_EQ(menu.GetMenuItemCount(), 3u);
    menu.CheckMenuItem(10, MF_CHECKED);
    EXPECT_TRUE(menu.GetMenuState(10, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_EQ(CMenu::FromHandle(menu.m_hMenu), &menu);
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(IDR_MAIN));
    ASSERT_NE(bar.GetSubMenu(0), nullptr);
    EXPECT_EQ(bar.GetSubMenu(0)->GetMenuItemID(1), static_cast<UINT>(ID_TEST_TWO));
}
