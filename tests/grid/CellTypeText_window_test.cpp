// The base type: what it answers, how it draws text, bitmaps and borders, and what size it asks for.
#include "CellTypesTest.h"

namespace {

constexpr int kWide = 100;
constexpr int kHigh = 50;

TEST_F(CellTypesTest, TheBaseTypeAnswersThatItHandledNothing) {
    CUGCellType *base = Type(0);
    CRect rect(0, 0, 100, 20);
    CPoint point(5, 5);
    UINT key = 'A';
    EXPECT_EQ(0, base->GetID());
    EXPECT_EQ(1, base->CanTextEdit());
    EXPECT_EQ(1, base->GetEditArea(&rect));
    EXPECT_EQ(CRect(0, 0, 100, 20), rect);
    EXPECT_EQ(-1, base->UnusedCellOperationA(1, 2));
    EXPECT_EQ(-1, base->UnusedCellOperationB(1, 2, 3));
    EXPECT_EQ(1, base->UnusedCellOperationC());
    EXPECT_EQ(-1, base->OnLClicked(0, 0, 1, &rect, &point));
    EXPECT_EQ(-1, base->OnRClicked(0, 0, 1, &rect, &point));
    EXPECT_EQ(-1, base->OnDClicked(0, 0, &rect, &point));
    EXPECT_EQ(-1, base->OnKeyDown(&key));
    EXPECT_EQ(-1, base->OnCharDown(&key));
    EXPECT_EQ(-1, base->OnMouseMove(&point, 0));
    EXPECT_EQ(UINT('A'), key);
}

TEST_F(CellTypesTest, TheFocusCellIsKeptUntilTheFocusGoes) {
    CUGCellType type(77);
    CUGCell cell;
    EXPECT_EQ(2, type.OnSetFocus(2, 3, &cell));
    EXPECT_EQ(1, type.m_hasFocus);
    EXPECT_EQ(2, type.m_focusCol);
    EXPECT_EQ(3, type.m_focusRow);
    type.OnKillFocus(2, 3, &cell);
    EXPECT_EQ(0, type.m_hasFocus);
}

TEST_F(CellTypesTest, WhichTypesLetTextBeEdited) {
    std::string all;
    for (int id : {0, 1, 2, 4, 5, 6, 8, 1002})
        all += std::to_string(Type(id)->GetID()) + ":" + std::to_string(Type(id)->CanTextEdit()) + " ";
    EXPECT_EQ("0:1 1:0 2:1 4:1 5:0 6:1 8:0 1002:1 ", all);
}

TEST_F(CellTypesTest, TextFillsTheRectangleInTheCellsColours) {
    Picture picture(kWide, kHigh);
    Draw(picture, 0, Coloured("Ab"));
    EXPECT_EQ(0, picture.Count(kUnpainted));
    EXPECT_LT(0, picture.Count(kRed));
    EXPECT_EQ(kPale, picture.At(kWide - 1, kHigh - 1));
}

TEST_F(CellTypesTest, ASelectedCellHasTheHighlightColours) {
    Picture picture(kWide, kHigh);
    Draw(picture, 0, Coloured("Ab"), 1);
    EXPECT_LT(0, picture.Count(kLime));
    EXPECT_EQ(0, picture.Count(kRed) + picture.Count(kPale));
}

TEST_F(CellTypesTest, TheCurrentCellIsHighlightedWithBitTwoOfItsStyleOnly) {
    Picture plain(kWide, kHigh), highlighted(kWide, kHigh);
    Draw(plain, 0, Coloured("Ab"), 0, 1);
    m_grid.SetCurrentCellStyle(2);
    Draw(highlighted, 0, Coloured("Ab"), 0, 1);
    EXPECT_EQ(0, plain.Count(kBlue));
    EXPECT_LT(0, highlighted.Count(kBlue));
}

TEST_F(CellTypesTest, NineAlignmentsPutTheTextWhereTheySay) {
    for (int vertical : {0, int(UG_ALIGN_VCENTER), int(UG_ALIGN_BOTTOM)}) {
        for (int horizontal : {int(UG_ALIGN_LEFT), int(UG_ALIGN_HCENTER), int(UG_ALIGN_RIGHT)}) {
            Picture picture(kWide, kHigh);
            CUGCell cell = Coloured("HH");
            cell.SetAlignment(static_cast<short>(vertical | horizontal));
            Draw(picture, 0, cell);
            const CRect ink = picture.Bounds(kRed);
            SCOPED_TRACE(testing::Message() << "alignment " << (vertical | horizontal));
            if (horizontal == UG_ALIGN_LEFT)
                EXPECT_NEAR(3, ink.left, 2);
            else if (horizontal == UG_ALIGN_RIGHT)
                EXPECT_NEAR(kWide - 3, ink.right, 2);
            else
                EXPECT_NEAR(kWide / 2, ink.CenterPoint().x, 2);
            if (vertical == 0)
                EXPECT_GT(kHigh / 3, ink.bottom);
            else if (vertical == UG_ALIGN_BOTTOM)
                EXPECT_LT(kHigh * 2 / 3 - 2, ink.top);
            else
                EXPECT_NEAR(kHigh / 2, ink.CenterPoint().y, 3);
        }
    }
}

TEST_F(CellTypesTest, TheLabelIsDrawnWithItsStyleBitOrTheTypesFlag) {
    CUGCell cell = Coloured("");
    cell.SetLabelText("label");
    Picture text(kWide, kHigh), byStyle(kWide, kHigh), byFlag(kWide, kHigh);
    Draw(text, 0, cell);
    cell.SetCellTypeEx(UG_STYLE_LABEL);
    Draw(byStyle, 0, cell);
    cell.SetCellTypeEx(-1);
    Type(0)->m_useLabel = 1;
    Draw(byFlag, 0, cell);
    Type(0)->m_useLabel = 0;
    EXPECT_EQ(0, text.Count(kRed));
    EXPECT_LT(0, byStyle.Count(kRed));
    EXPECT_EQ(byStyle.Count(kRed), byFlag.Count(kRed));
}

TEST_F(CellTypesTest, ANegativeStyleIsNoStyle) {
    Picture plain(kWide, kHigh), negative(kWide, kHigh);
    CUGCell cell = Coloured("some longer text that does not fit in", 0);
    Draw(plain, 0, cell);
    cell.SetCellTypeEx(-2);
    Draw(negative, 0, cell);
    EXPECT_EQ(plain.Count(kRed), negative.Count(kRed));
}

TEST_F(CellTypesTest, WordWrappedTextTakesSeveralLines) {
    Picture oneLine(kWide, kHigh), wrapped(kWide, kHigh);
    const char *text = "several words that need more lines";
    Draw(oneLine, 0, Coloured(text));
    Draw(wrapped, 0, Coloured(text, UG_STYLE_WORDWRAP));
    EXPECT_LT(oneLine.Bounds(kRed).bottom + 8, wrapped.Bounds(kRed).bottom);
    EXPECT_EQ(0, wrapped.Count(kUnpainted));
}

TEST_F(CellTypesTest, TextThatIsTooWideEndsInThreeDotsWithTheEllipsisStyle) {
    const char *text = "HHHHHHHHHHHHHHHHHHHHHHHHHH";
    Picture cut(kWide, 20), shortened(kWide, 20), fits(kWide, 20), plain(kWide, 20);
    Draw(cut, 0, Coloured(text));
    Draw(shortened, 0, Coloured(text, UG_STYLE_ELLIPSIS));
    Draw(fits, 0, Coloured("HH", UG_STYLE_ELLIPSIS));
    Draw(plain, 0, Coloured("HH"));
    // The dots stand at the foot of the line: above them the end of the cell is clear.
    const CRect end(kWide - 10, 0, kWide, 10);
    EXPECT_LT(0, cut.Count(kRed, end));
    EXPECT_EQ(0, shortened.Count(kRed, end));
    EXPECT_LT(0, shortened.Count(kRed, CRect(kWide - 14, 10, kWide - 3, 20)));
    EXPECT_EQ(0, shortened.Count(kRed, CRect(kWide - 3, 0, kWide, 20)));
    EXPECT_EQ(plain.Bounds(kRed), fits.Bounds(kRed));
}

TEST_F(CellTypesTest, TheCellsFontDrawsAndMeasures) {
    CFont large;
    large.CreateFont(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    CUGCell cell = Coloured("Hg");
    Picture small(kWide, kHigh), big(kWide, kHigh);
    SIZE smallSize{}, bigSize{};
    Draw(small, 0, cell);
    Type(0)->GetBestSize(small.Dc(), &smallSize, &cell);
    cell.SetFont(&large);
    Draw(big, 0, cell);
    Type(0)->GetBestSize(big.Dc(), &bigSize, &cell);
    EXPECT_LT(small.Bounds(kRed).Height() + 8, big.Bounds(kRed).Height());
    EXPECT_LT(smallSize.cx, bigSize.cx);
    EXPECT_LT(smallSize.cy, bigSize.cy);
}

TEST_F(CellTypesTest, TheBestSizeWithoutAFontIsThatOfTheDefaultFont) {
    CFont large;
    large.CreateFont(-30, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    Picture picture(kWide, kHigh);
    CUGCell cell = Coloured("Hg");
    SIZE before{}, after{};
    Type(0)->GetBestSize(picture.Dc(), &before, &cell);
    m_grid.SetDefaultFont(&large);
    Type(0)->GetBestSize(picture.Dc(), &after, &cell);
    EXPECT_LT(before.cx, after.cx);
    m_grid.SetDefaultFont(nullptr);
}

class BitmapCellTest : public CellTypesTest {
protected:
    // A white bitmap with a frame of black, its top left pixel white.
    void Make(int width, int height) {
        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, width, height);
        HGDIOBJ old = memory.SelectObject(m_bitmap.GetSafeHandle());
        memory.FillSolidRect(0, 0, width, height, RGB(255, 255, 255));
        memory.FillSolidRect(width / 4, height / 4, width / 2, height / 2, RGB(0, 0, 0));
        memory.SelectObject(old);
    }
    CBitmap m_bitmap;
};

TEST_F(BitmapCellTest, ABitmapStandsAtTheLeftAndTheTextBehindIt) {
    Make(16, 16);
    CUGCell cell = Coloured("HH");
    cell.SetBitmap(&m_bitmap);
    Picture picture(kWide, kHigh);
    Draw(picture, 0, cell);
    const CRect mark = picture.Bounds(RGB(0, 0, 0));
    EXPECT_EQ(CSize(8, 8), mark.Size());
    EXPECT_NEAR(kHigh / 2, mark.CenterPoint().y, 1);
    EXPECT_NEAR(16 + 4 + 3, picture.Bounds(kRed).left, 2);
    EXPECT_EQ(0, picture.Count(RGB(255, 255, 255))); // its background is the cell's
    EXPECT_EQ(0, picture.Count(kUnpainted));
}

TEST_F(BitmapCellTest, ABackgroundIsFilledWhereItsCornerIsClippedToo) {
    Make(16, 16);
    CUGCell cell = Coloured("");
    cell.SetBitmap(&m_bitmap);
    Picture picture(kWide, kHigh);
    ::IntersectClipRect(picture.Dc()->GetSafeHdc(), 10, 0, kWide, kHigh);
    Draw(picture, 0, cell);
    ::SelectClipRgn(picture.Dc()->GetSafeHdc(), nullptr);
    EXPECT_EQ(0, picture.Count(RGB(255, 255, 255)));
    EXPECT_LT(0, picture.Count(RGB(0, 0, 0)));
}

TEST_F(BitmapCellTest, FillingABackgroundStaysWithinTheBitmap) {
    Make(16, 16);
    CUGCell cell = Coloured("");
    cell.SetBitmap(&m_bitmap);
    cell.SetHBackColor(RGB(255, 255, 255)); // as the bitmap's own background
    Picture picture(kWide, kHigh);
    Draw(picture, 0, cell, 1);
    EXPECT_EQ(kWide * kHigh - 8 * 8, picture.Count(RGB(255, 255, 255)));
}

TEST_F(BitmapCellTest, WithStyleSixteenTheBackgroundOfABitmapStays) {
    Make(16, 16);
    CUGCell cell = Coloured("HH", UG_STYLE_KEEP_BITMAP);
    cell.SetBitmap(&m_bitmap);
    Picture picture(kWide, kHigh);
    Draw(picture, 0, cell);
    EXPECT_EQ(16 * 16 - 8 * 8, picture.Count(RGB(255, 255, 255)));
}

TEST_F(BitmapCellTest, ABitmapThatIsTooHighIsPressedIntoTheCell) {
    Make(40, 100);
    CUGCell cell = Coloured("");
    cell.SetCellTypeEx(UG_STYLE_KEEP_BITMAP);
    cell.SetBitmap(&m_bitmap);
    Picture high(kWide, 24), narrow(20, 24);
    Draw(high, 0, cell);
    Draw(narrow, 0, cell);
    EXPECT_EQ(20, high.Bounds(RGB(255, 255, 255)).Height());
    EXPECT_EQ(40, high.Bounds(RGB(255, 255, 255)).Width());
    EXPECT_EQ(16, narrow.Bounds(RGB(255, 255, 255)).Width());
}

TEST_F(CellTypesTest, ABorderIsDrawnAndTakenOffTheRectangle) {
    struct Case {
        int style;
        CRect rest;
    };
    // One, two and three pixel lines in the order left, top, right, bottom.
    const Case cases[] = {{0, {0, 0, 40, 30}},    {1, {1, 0, 40, 30}},      {2, {0, 1, 40, 30}},
                          {4, {0, 0, 39, 30}},    {8, {0, 0, 40, 29}},      {16, {2, 0, 40, 30}},
                          {32, {0, 2, 40, 30}},   {64, {0, 0, 38, 30}},     {128, {0, 0, 40, 28}},
                          {256, {3, 0, 40, 30}},  {512, {0, 3, 40, 30}},    {1024, {0, 0, 37, 30}},
                          {2048, {0, 0, 40, 27}}, {1 | 256, {3, 0, 40, 30}}};
    for (const Case &one : cases) {
        Picture picture(40, 30);
        CUGCell cell = Coloured("");
        cell.SetBorder(static_cast<short>(one.style));
        CRect rect = picture.Area();
        Type(0)->DrawBorder(picture.Dc(), &rect, &cell);
        EXPECT_EQ(one.rest, rect) << "border " << one.style;
        EXPECT_EQ(40 * 30 - one.rest.Width() * one.rest.Height(), picture.Count(RGB(0, 0, 0)))
            << "border " << one.style;
    }
}

TEST_F(CellTypesTest, TheTwoFramesAreLitFromOppositeSides) {
    const COLORREF white = RGB(255, 255, 255), shadow = ::GetSysColor(COLOR_BTNSHADOW);
    for (int style : {UG_BDR_RECESSED, UG_BDR_RAISED}) {
        Picture picture(40, 30);
        CUGCell cell = Coloured("");
        cell.SetBorder(static_cast<short>(style));
        CRect rect = picture.Area();
        Type(0)->DrawBorder(picture.Dc(), &rect, &cell);
        const bool raised = style == UG_BDR_RAISED;
        EXPECT_EQ(raised ? white : shadow, picture.At(0, 10));
        EXPECT_EQ(raised ? white : shadow, picture.At(10, 0));
        EXPECT_EQ(raised ? shadow : white, picture.At(39, 10));
        EXPECT_EQ(raised ? shadow : white, picture.At(10, 29));
        EXPECT_EQ(CRect(1, 1, 39, 29), rect);
    }
}

TEST_F(CellTypesTest, PrintingScalesTheFontAndNeverHighlights) {
    Picture small(kWide, kHigh), large(kWide, kHigh);
    CUGCell cell = Coloured("Hg");
    CRect area = small.Area();
    Type(0)->OnPrint(small.Dc(), &area, &cell, 40);
    Type(0)->OnPrint(large.Dc(), &area, &cell, 80);
    EXPECT_NEAR(2 * small.Bounds(kRed).Height(), large.Bounds(kRed).Height(), 3);
    EXPECT_EQ(0, large.Count(kBlue));
    EXPECT_EQ(nullptr, cell.GetFontHandle());
}

TEST_F(CellTypesTest, PrintingTakesTheFontsHeightFromTheRectangle) {
    CUGCell cell = Coloured("Hg");
    const auto inkHeight = [&](int rectHeight, int scale) {
        Picture picture(200, 100);
        CRect rect(0, 0, 200, rectHeight);
        Type(0)->OnPrint(picture.Dc(), &rect, &cell, scale);
        return picture.Bounds(kRed).Height();
    };
    Picture screen(200, 20);
    Draw(screen, 0, cell);
    // A rectangle of a row's height prints as the screen shows; one of four rows' height four times as high.
    EXPECT_NEAR(screen.Bounds(kRed).Height(), inkHeight(20, 100), 1);
    EXPECT_NEAR(4 * inkHeight(20, 100), inkHeight(80, 100), 4);
    EXPECT_NEAR(inkHeight(80, 100), 2 * inkHeight(80, 50), 4);
    m_grid.SetDefaultRowHeight(40);
    EXPECT_NEAR(2 * screen.Bounds(kRed).Height(), inkHeight(80, 100), 3);
}

TEST_F(CellTypesTest, EveryTypePrintsAsItDraws) {
    for (int id : {1, 2, 4, 5, 6, 8, 1002}) {
        Picture drawn(100, 20), printed(100, 20);
        CUGCell cell = Coloured("50");
        CRect area = printed.Area();
        Draw(drawn, id, cell);
        Type(id)->OnPrint(printed.Dc(), &area, &cell, 100);
        for (COLORREF colour : {kRed, kPale, kBlue, ::GetSysColor(COLOR_BTNFACE)})
            EXPECT_NEAR(drawn.Count(colour), printed.Count(colour), 60) << "type " << id;
        EXPECT_EQ(0, printed.Count(kUnpainted)) << "type " << id;
    }
}

TEST_F(CellTypesTest, EveryTypeAnswersAllOperations) {
    std::string all;
    for (int id : {0, 1, 2, 4, 5, 6, 8, 1002}) {
        CUGCellType *type = Type(id);
        Picture picture(100, 20);
        CUGCell cell = Coloured("text");
        CRect rect(0, 0, 100, 20);
        CPoint point(50, 10);
        UINT key = VK_F24;
        SIZE size{};
        type->GetBestSize(picture.Dc(), &size, &cell);
        all += std::to_string(type->GetID()) + ":";
        for (int answer : {type->UnusedCellOperationA(1, 2), type->UnusedCellOperationB(1, 2, 3),
                           type->UnusedCellOperationC(), type->OnRClicked(0, 0, 1, &rect, &point),
                           type->OnCharDown(&key), type->OnKeyDown(&key), type->OnMouseMove(&point, 0),
                           type->OnSetFocus(2, 1, &cell)})
            all += std::to_string(answer) + " ";
        all += "focus" + std::to_string(type->m_hasFocus) + "@" + std::to_string(type->m_focusCol) + "." +
               std::to_string(type->m_focusRow);
        type->OnKillFocus(2, 1, &cell);
        all += " then " + std::to_string(type->m_hasFocus) + (size.cx > 0 && size.cy > 0 ? " sized" : "") + "\n";
    }
    const auto line = [](const char *id, const char *move) {
        return std::string(id) + ":-1 -1 1 -1 -1 -1 " + move + " 2 focus1@2.1 then 0 sized\n";
    };
    EXPECT_EQ(line("0", "-1") + line("1", "-1") + line("2", "-1") + line("4", "-1") + line("5", "-1") +
                  line("6", "0") + line("8", "-1") + line("1002", "0"),
              all);
}

TEST_F(CellTypesTest, ACellOfAnUnknownTypeIsDrawnByTheBaseType) {
    for (int id : {-1, 4711}) {
        CUGCell cell = Coloured("HH");
        cell.SetCellType(id);
        m_grid.SetCell(0, 0, &cell);
        m_grid.GotoCell(1, 1);
        m_grid.Update();
        CDC *dc = m_grid.GetGridDC();
        int red = 0;
        for (int y = 0; y < 20; ++y) {
            for (int x = 0; x < 40; ++x)
                red += ::GetPixel(dc->GetSafeHdc(), x, y) == kRed;
        }
        m_grid.ReleaseGridDC(dc);
        EXPECT_LT(0, red) << "type " << id;
    }
}

} // namespace
