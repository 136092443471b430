// The grid on displays of another resolution. The program runs once at each: the resolution that it has to find
// is told by the environment variable EXPECTED_DPI.
#include "CellTypesTest.h"

#include "grid/UGCtrl.h"

#include <algorithm>
#include <cstdlib>

namespace {

int ExpectedDpi() {
    const char *told = std::getenv("EXPECTED_DPI");
    return told != nullptr ? std::atoi(told) : 96;
}

int Scaled(int px) {
    return ::MulDiv(px, ExpectedDpi(), 96);
}

// A parent that has a font, as a dialog has.
class FontHost : public HostWindow {
public:
    HFONT m_shownFont = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_GETFONT ? reinterpret_cast<LRESULT>(m_shownFont)
                                     : HostWindow::WindowProc(message, wParam, lParam);
    }
};

class DisplayScaleTest : public testing::Test {
protected:
    // A font of this size in points, as the resolution makes it.
    void MakeFont(int points) {
        m_font.CreateFont(-::MulDiv(points, ExpectedDpi(), 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0,
                          "Arial");
        m_host.m_shownFont = static_cast<HFONT>(m_font.GetSafeHandle());
    }
    void MakeGrid() {
        m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
        m_grid.SetNumberCols(3);
        m_grid.SetNumberRows(5);
        PumpAll();
    }
    ~DisplayScaleTest() override { m_grid.DestroyWindow(); }

    // The rows of a window's pixels in which a colour is seen, as "first-last", within the rectangle.
    static std::string InkRows(HWND window, COLORREF ink, const CRect &where) {
        HDC dc = ::GetDC(window);
        int first = -1, last = -1;
        for (int y = where.top; y < where.bottom; ++y) {
            for (int x = where.left; x < where.right; ++x) {
                if (::GetPixel(dc, x, y) == ink) {
                    first = first < 0 ? y - where.top : first;
                    last = y - where.top;
                    break;
                }
            }
        }
        ::ReleaseDC(window, dc);
        return std::to_string(first) + "-" + std::to_string(last);
    }
    // The same for a text that has all the room it wants.
    std::string UncutInkRows(const char *text) {
        Picture picture(300, 100);
        HGDIOBJ old = ::SelectObject(picture.Dc()->GetSafeHdc(), m_font.GetSafeHandle());
        ::SetTextColor(picture.Dc()->GetSafeHdc(), kRed);
        ::TextOutA(picture.Dc()->GetSafeHdc(), 3, 1, text, static_cast<int>(strlen(text)));
        ::SelectObject(picture.Dc()->GetSafeHdc(), old);
        const CRect ink = picture.Bounds(kRed);
        return std::to_string(ink.top) + "-" + std::to_string(ink.bottom - 1);
    }
    static int ChildHeight(HWND window) {
        CRect rect;
        ::GetWindowRect(window, &rect);
        return rect.Height();
    }

    FontHost m_host;
    CFont m_font;
    TypesGrid m_grid;
};

TEST_F(DisplayScaleTest, TheResolutionIsTheOneThatWasSet) {
    MakeGrid();
    EXPECT_EQ(ExpectedDpi(), m_grid.m_GI.m_dotsPerInch);
}

TEST_F(DisplayScaleTest, TheDefaultSizesFollow) {
    MakeGrid();
    int width = 0, height = 0;
    m_grid.GetColWidth(0, &width);
    m_grid.GetRowHeight(0, &height);
    EXPECT_EQ(Scaled(100), width);
    EXPECT_EQ(Scaled(20), height);
    EXPECT_EQ(Scaled(20), m_grid.GetTH_Height());
    EXPECT_EQ(Scaled(50), m_grid.GetSH_Width());
    EXPECT_EQ(Scaled(20), ChildHeight(m_grid.TopHeading()));
}

TEST_F(DisplayScaleTest, HostsScaleLengthsAndRowHeightsTheSameWay) {
    MakeGrid();
    EXPECT_EQ(Scaled(30), m_grid.ScaledPx(30));
    EXPECT_EQ(Scaled(40), m_grid.ScaledRowHeight(40));
    // No row is lower than its text.
    EXPECT_LT(m_grid.ScaledPx(2), m_grid.ScaledRowHeight(2));
    EXPECT_EQ(m_grid.ScaledRowHeight(3), m_grid.ScaledRowHeight(2));
}

TEST_F(DisplayScaleTest, BarsAndButtonsFollowTheSystem) {
    MakeGrid();
    m_grid.SetNumberRows(1000);
    m_grid.SetNumberCols(100);
    PumpAll();
    EXPECT_EQ(::GetSystemMetrics(SM_CYHSCROLL), ChildHeight(m_grid.HBar()));
    EXPECT_NEAR(Scaled(17), ::GetSystemMetrics(SM_CYHSCROLL), 1);
    EXPECT_NEAR(Scaled(17), CUGButtonType::ButtonWidth(), 1);
    CRect bar;
    ::GetWindowRect(m_grid.VBar(), &bar);
    EXPECT_EQ(::GetSystemMetrics(SM_CXVSCROLL), bar.Width());
}

TEST_F(DisplayScaleTest, NoTextIsCutInADefaultRow) {
    for (int points : {8, 10, 14, 24}) {
        SCOPED_TRACE(points);
        m_font.DeleteObject();
        MakeFont(points);
        MakeGrid();
        CUGCell cell;
        cell.SetText("\xC5""dgjpq\xC7"); // a ring above, tails below
        cell.SetTextColor(kRed);
        cell.SetBackColor(kPale);
        m_grid.SetCell(0, 0, &cell);
        m_grid.GotoCell(1, 1);
        m_grid.Update();
        CRect rect;
        m_grid.GetCellRect(0, 0, &rect);
        EXPECT_EQ(UncutInkRows(cell.GetText()), InkRows(m_grid.Cells(), kRed, rect));
        m_grid.DestroyWindow();
        m_grid.m_GI.m_rows.m_defaultSize = 20; // as a new control has it
        m_grid.m_GI.m_cols.m_defaultSize = 100;
        m_grid.m_GI.m_topHeadingHeight = 20;
        m_grid.m_GI.m_sideHeadingWidth = 50;
        m_grid.SetNumberRows(0);
    }
}

TEST_F(DisplayScaleTest, NoTextIsCutInAHeading) {
    MakeFont(16);
    MakeGrid();
    CUGCell heading;
    heading.SetText("\xC5""dgjpq\xC7");
    heading.SetTextColor(kRed);
    m_grid.SetCell(0, -1, &heading);
    m_grid.Update();
    const std::string uncut = UncutInkRows(heading.GetText());
    const std::string shown = InkRows(m_grid.TopHeading(), kRed, CRect(0, 0, Scaled(100), m_grid.GetTH_Height()));
    const auto height = [](const std::string &rows) {
        return std::atoi(rows.c_str() + rows.find('-') + 1) - std::atoi(rows.c_str());
    };
    EXPECT_EQ(height(uncut), height(shown)) << uncut << " " << shown;
}

TEST_F(DisplayScaleTest, TheTextOfTheTabsIsWithinTheBar) {
    MakeGrid();
    m_grid.AddTab("\xC5gj", 1);
    m_grid.SetTabWidth(Scaled(100));
    PumpAll();
    const HWND bar = ::GetDlgItem(m_grid.m_hWnd, kTabChildId);
    const int height = ChildHeight(bar);
    TEXTMETRICA metrics{};
    CFont font;
    font.CreateFont(Scaled(14), 0, 0, 0, 500, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    HDC screen = ::GetDC(nullptr);
    HGDIOBJ old = ::SelectObject(screen, font.GetSafeHandle());
    ::GetTextMetricsA(screen, &metrics);
    SIZE extent{};
    ::GetTextExtentPoint32A(screen, "\xC5gj", 3, &extent);
    ::SelectObject(screen, old);
    ::ReleaseDC(nullptr, screen);
    EXPECT_LE(metrics.tmHeight, height);
    // The letters are as wide as the scaled font makes them: the tab's shape, 18 pixels wider, ends behind them.
    HDC dc = ::GetDC(bar);
    int right = 0;
    for (int x = 0; x < Scaled(100); ++x) {
        if (::GetPixel(dc, x, height / 2) == 0)
            right = x;
    }
    ::ReleaseDC(bar, dc);
    EXPECT_NEAR(extent.cx + 17, right, 3);
}

} // namespace
