// The types that only show: progress bar, text as large as the cell, arrow; and what system colours do to
// types.
#include "CellTypesTest.h"

namespace {

CUGCell WithText(const char *text) {
    CUGCell cell;
    cell.SetText(text);
    return cell;
}

TEST_F(CellTypesTest, AProgressIsHeldWithinNoughtAndAHundred) {
    const CUGCell high = WithText("150"), low = WithText("-3"), middle = WithText("42 of 100"), none;
    EXPECT_EQ(100, CUGProgressType::ValueOf(&high));
    EXPECT_EQ(0, CUGProgressType::ValueOf(&low));
    EXPECT_EQ(42, CUGProgressType::ValueOf(&middle));
    EXPECT_EQ(0, CUGProgressType::ValueOf(&none));
}

TEST_F(CellTypesTest, AProgressShowsItsValueOrWithStyleOneItsLabel) {
    CUGProgressType type;
    CUGCell cell = WithText("150");
    cell.SetLabelText("label");
    EXPECT_EQ(CString("% 100"), type.ShownText(&cell));
    cell.SetCellTypeEx(1);
    EXPECT_EQ(CString("label"), type.ShownText(&cell));
    cell.SetCellTypeEx(3);
    EXPECT_EQ(CString("% 100"), type.ShownText(&cell));
}

TEST_F(CellTypesTest, TheBarIsInProportionToTheValue) {
    for (int value : {0, 25, 60, 100}) {
        Picture picture(200, 20);
        CUGCell cell = Coloured(std::to_string(value).c_str(), 1); // its label is empty
        Draw(picture, kProgressTypeId, cell);
        EXPECT_EQ(value * 2 * 20, picture.Count(kBlue)) << value;
        EXPECT_EQ((200 - value * 2) * 20, picture.Count(kPale)) << value;
        EXPECT_EQ(value * 2, picture.Bounds(kBlue).right) << value;
    }
}

TEST_F(CellTypesTest, TheTextCrossesTheBarsEndInTheColoursOfEachSide) {
    Picture picture(200, 20);
    Draw(picture, kProgressTypeId, Coloured("50"));
    const CRect left(0, 0, 100, 20), right(100, 0, 200, 20);
    EXPECT_LT(0, picture.Count(kLime, left));
    EXPECT_EQ(0, picture.Count(kRed, left));
    EXPECT_LT(0, picture.Count(kRed, right));
    EXPECT_EQ(0, picture.Count(kLime, right));
    CRect ink;
    ink.UnionRect(picture.Bounds(kLime), picture.Bounds(kRed));
    EXPECT_NEAR(100, ink.CenterPoint().x, 3);
}

TEST_F(CellTypesTest, TheProgressTextIsInTheCellsFont) {
    CFont large;
    large.CreateFont(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    Picture small(200, 50), big(200, 50);
    CUGCell cell = Coloured("0");
    Draw(small, kProgressTypeId, cell);
    cell.SetFont(&large);
    Draw(big, kProgressTypeId, cell);
    EXPECT_LT(small.Bounds(kRed).Height() + 8, big.Bounds(kRed).Height());
}

TEST_F(CellTypesTest, AnAutomaticFontFillsTheCellAndCutsNothing) {
    for (const char *text : {"I", "Word", "Several words in one cell", "WMWMWMWM"}) {
        Picture large(150, 60), small(60, 20);
        CUGCell cell = Coloured(text);
        cell.SetAlignment(UG_ALIGN_HCENTER | UG_ALIGN_VCENTER);
        Draw(large, kAutoFontTypeId, cell);
        Draw(small, kAutoFontTypeId, cell);
        EXPECT_LT(small.Bounds(kRed).Height(), large.Bounds(kRed).Height()) << text;
        for (const Picture *picture : {&large, &small}) {
            const CRect ink = picture->Bounds(kRed), area = picture->Area();
            EXPECT_LE(2, ink.left) << text;
            EXPECT_GE(area.right - 2, ink.right) << text;
        }
        EXPECT_EQ(nullptr, cell.GetFontHandle());
    }
}

TEST_F(CellTypesTest, AnEmptyCellNeedsNoAutomaticFont) {
    Picture picture(50, 20);
    Draw(picture, kAutoFontTypeId, Coloured(""));
    EXPECT_EQ(50 * 20, picture.Count(kPale));
}

TEST_F(CellTypesTest, AnAutomaticFontLeavesNoDrawingObjects) {
    Picture picture(150, 60);
    Draw(picture, kAutoFontTypeId, Coloured("Word"));
    const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    for (int i = 0; i < 100; ++i)
        Draw(picture, kAutoFontTypeId, Coloured("Word"));
    EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS), before + 5);
}

TEST_F(CellTypesTest, TheArrowPointsWhereItsStyleSays) {
    for (int style : {CUGArrowType::kRight, CUGArrowType::kLeft, CUGArrowType::kUp, CUGArrowType::kDown}) {
        Picture picture(40, 40);
        Draw(picture, kArrowTypeId, Coloured("no text", style));
        const int left = picture.Count(kRed, CRect(0, 0, 20, 40)),
                  right = picture.Count(kRed, CRect(20, 0, 40, 40));
        const int upper = picture.Count(kRed, CRect(0, 0, 40, 20)),
                  lower = picture.Count(kRed, CRect(0, 20, 40, 40));
        std::string points = left > right * 2    ? "right"
                             : right > left * 2  ? "left"
                             : upper > lower * 2 ? "down"
                                                 : "up";
        const char *const names[] = {"right", "left", "up", "down"};
        EXPECT_EQ(names[style], points);
        EXPECT_LT(30, picture.Bounds(kRed).Width());
        EXPECT_LT(30, picture.Bounds(kRed).Height());
        EXPECT_EQ(40 * 40, picture.Count(kRed) + picture.Count(kPale));
    }
}

// Gives a system colour another value for the length of a block.
class SystemColour {
public:
    SystemColour(int index, COLORREF colour) : m_index(index), m_before(::GetSysColor(index)) { Set(colour); }
    ~SystemColour() { Set(m_before); }

private:
    void Set(COLORREF colour) { ::SetSysColors(1, &m_index, &colour); }
    int m_index;
    COLORREF m_before;
};

TEST_F(CellTypesTest, AChangeOfTheSystemsColoursReachesTheTypes) {
    Put(0, 0, kEllipsisTypeId, "");
    m_grid.GotoCell(2, 4);
    PumpAll();
    const COLORREF green = RGB(0, 200, 0), rose = RGB(250, 200, 200);
    SystemColour face(COLOR_BTNFACE, green), window(COLOR_WINDOW, rose);
    PumpAll(); // the system has told the host of it, and had everything repainted
    CDC *dc = m_grid.GetGridDC();
    const CRect button = ButtonOf(0, 0);
    EXPECT_EQ(green, ::GetPixel(dc->GetSafeHdc(), button.CenterPoint().x, 5));
    EXPECT_EQ(rose, ::GetPixel(dc->GetSafeHdc(), 20, 10));
    m_grid.ReleaseGridDC(dc);
}

TEST_F(CellTypesTest, AChangeOfTheSystemsColoursRepaintsAllByItself) {
    PumpAll();
    m_grid.SendMessage(WM_SYSCOLORCHANGE, 0, 0); // while no colour changed, so that the system repaints nothing
    for (HWND window : {m_grid.Cells(), m_grid.TopHeading(), m_grid.SideHeading(), m_grid.Corner()}) {
        CRect dirty, client;
        ::GetUpdateRect(window, &dirty, FALSE);
        ::GetClientRect(window, &client);
        EXPECT_EQ(client, dirty);
    }
}

TEST_F(CellTypesTest, ButtonsBoxesAndHeadingsFollowTheSystemsColours) {
    const int types[] = {kEllipsisTypeId, kSpinTypeId, kDropListTypeId};
    for (int i = 0; i < 3; ++i)
        Put(i, 0, types[i], "");
    Put(0, 1, kCheckBoxTypeId, "1");
    m_grid.GotoCell(2, 4);
    const COLORREF face = RGB(10, 200, 30), shadow = RGB(90, 0, 90), ink = RGB(200, 0, 0);
    const auto count = [](HWND window, COLORREF colour, const CRect &where) {
        HDC dc = ::GetDC(window);
        int found = 0;
        for (int y = where.top; y < where.bottom; ++y) {
            for (int x = where.left; x < where.right; ++x)
                found += ::GetPixel(dc, x, y) == colour;
        }
        ::ReleaseDC(window, dc);
        return found;
    };
    const auto seen = [&] {
        PumpAll();
        std::string all;
        for (int i = 0; i < 3; ++i)
            all += count(m_grid.Cells(), face, ButtonOf(i, 0)) > 20 ? "face " : "- ";
        all += count(m_grid.Cells(), shadow, ButtonOf(0, 0) + CPoint(-2, 0)) > 10 ? "line " : "- ";
        all += count(m_grid.Cells(), ink, RectOf(0, 1)) > 20 ? "box " : "- ";
        all += count(m_grid.TopHeading(), face, CRect(0, 0, 60, 15)) > 50 ? "heading " : "- ";
        all += count(m_grid.TopHeading(), shadow, CRect(0, 15, 60, 20)) > 50 ? "frame" : "-";
        return all;
    };
    {
        SystemColour a(COLOR_BTNFACE, face), b(COLOR_BTNSHADOW, shadow), c(COLOR_WINDOWTEXT, ink);
        EXPECT_EQ("face face face line box heading frame", seen());
    }
    EXPECT_EQ("- - - - - - -", seen());
}

} // namespace
