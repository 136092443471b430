// The types with a button or a box: ellipsis, spin button, check box.
#include "CellTypesTest.h"

namespace {

class EllipsisTypeTest : public CellTypesTest {
protected:
    void SetUp() override { Put(1, 1, kEllipsisTypeId, "text"); }
    CPoint Button() { return ButtonOf(1, 1).CenterPoint(); }
    CPoint Text() { return RectOf(1, 1).TopLeft() + CSize(5, 5); }
    // True when the button of the picture looks pushed in: its upper edge is dark.
    bool LooksPressed(int current) {
        Picture picture(100, 20);
        Draw(picture, kEllipsisTypeId, Coloured("x"), 0, current);
        return picture.At(90, 0) == ::GetSysColor(COLOR_BTNSHADOW);
    }
};

TEST_F(EllipsisTypeTest, TheEditCoversTheButton) {
    CRect rect(0, 0, 100, 20);
    EXPECT_EQ(0, Type(kEllipsisTypeId)->GetEditArea(&rect));
    EXPECT_EQ(CRect(0, 0, 100, 20), rect);
}

TEST_F(EllipsisTypeTest, PressAndReleaseNotifyOnce) {
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Press(kEllipsisTypeId, 1, 1, Button())); }));
    EXPECT_TRUE(LooksPressed(1));
    EXPECT_FALSE(LooksPressed(0));
    EXPECT_EQ("", Told());
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Release(kEllipsisTypeId, 1, 1, Button())); }));
    EXPECT_EQ("1002.1.1.100=0", Told());
    EXPECT_FALSE(LooksPressed(1));
    EXPECT_EQ(-1, Release(kEllipsisTypeId, 1, 1, Button()));
    EXPECT_EQ("", Told());
}

TEST_F(EllipsisTypeTest, APressBesideTheButtonForgetsTheCell) {
    Press(kEllipsisTypeId, 1, 1, Button());
    EXPECT_EQ(-1, Press(kEllipsisTypeId, 1, 1, Text()));
    EXPECT_FALSE(LooksPressed(1));
    Release(kEllipsisTypeId, 1, 1, Text());
    EXPECT_EQ("", Told());
}

TEST_F(EllipsisTypeTest, LeavingTheButtonUnpressesItAndComingBackPressesIt) {
    Press(kEllipsisTypeId, 1, 1, Button());
    EXPECT_EQ(-2, Move(kEllipsisTypeId, Button()));
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(0, Move(kEllipsisTypeId, Text())); }));
    EXPECT_FALSE(LooksPressed(1));
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Move(kEllipsisTypeId, Button())); }));
    EXPECT_TRUE(LooksPressed(1));
    Move(kEllipsisTypeId, Text());
    Release(kEllipsisTypeId, 1, 1, Text());
    EXPECT_EQ("", Told());
}

TEST_F(EllipsisTypeTest, TheMouseDoesTheSameThroughTheCellArea) {
    const CPoint button = Button(), text = Text();
    PressLeft(m_grid.Cells(), button.x, button.y);
    MoveMouse(m_grid.Cells(), text.x, text.y, MK_LBUTTON);
    MoveMouse(m_grid.Cells(), button.x, button.y, MK_LBUTTON);
    ReleaseLeft(m_grid.Cells(), button.x, button.y);
    EXPECT_EQ("1002.1.1.100=0", Told());
}

TEST_F(EllipsisTypeTest, ADoubleClickIsNotItsMatter) {
    EXPECT_EQ(0, DoubleClick(kEllipsisTypeId, 1, 1, Button()));
    EXPECT_EQ("", Told());
}

TEST_F(EllipsisTypeTest, TheButtonHasALineAndThreeDotsAndTheTextEndsBeforeIt) {
    Picture picture(100, 20);
    Draw(picture, kEllipsisTypeId, Coloured("HHHHHHHHHHHHHHHHHHHHHHHH"));
    const int width = ::GetSystemMetrics(SM_CXVSCROLL);
    const CRect button(100 - width, 0, 100, 20);
    EXPECT_EQ(100 - width - 1, picture.Bounds(kRed).right);
    EXPECT_EQ(20, picture.Count(::GetSysColor(COLOR_BTNSHADOW), CRect(button.left - 1, 0, button.left, 20)));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), picture.At(button.left + 4, 4));
    const CRect inner(button.left + 2, 2, button.right - 2, 18);
    const int left = button.left + (width - 7) / 2;
    EXPECT_EQ(CRect(left, 15, left + 7, 17), picture.Bounds(::GetSysColor(COLOR_BTNTEXT), inner));
    EXPECT_EQ(6, picture.Count(::GetSysColor(COLOR_BTNTEXT), inner));
    EXPECT_EQ(0, picture.Count(kUnpainted));
}

class SpinTypeTest : public CellTypesTest {
protected:
    void SetUp() override { Put(1, 1, kSpinTypeId, "42"); }
    CPoint Half(bool upper) {
        const CRect button = ButtonOf(1, 1);
        return CPoint(button.CenterPoint().x, upper ? button.top + 3 : button.bottom - 4);
    }
    // The pixels of both halves: they change with what is pressed.
    std::string Look() {
        Picture picture(100, 20);
        Draw(picture, kSpinTypeId, Coloured("1"), 0, 1);
        const int x = 100 - ::GetSystemMetrics(SM_CXVSCROLL);
        std::string all;
        for (const CRect &half : {CRect(x, 0, 100, 10), CRect(x, 10, 100, 20)})
            all += std::to_string(picture.Count(::GetSysColor(COLOR_3DHILIGHT), half)) + "," +
                   std::to_string(picture.Count(::GetSysColor(COLOR_BTNSHADOW), half)) + ";";
        return all;
    }
};

TEST_F(SpinTypeTest, TheEditLeavesTheButtonFree) {
    CRect rect(0, 0, 100, 20);
    Type(kSpinTypeId)->GetEditArea(&rect);
    EXPECT_EQ(CRect(0, 0, 100 - ::GetSystemMetrics(SM_CXVSCROLL) - 1, 20), rect);
}

TEST_F(SpinTypeTest, TheUpperHalfTellsSixteenAndTheLowerSeventeenWithTheValue) {
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Press(kSpinTypeId, 1, 1, Half(true))); }));
    EXPECT_EQ("6.1.1.16=42", Told());
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Release(kSpinTypeId, 1, 1, Half(true))); }));
    EXPECT_EQ("", Told());
    EXPECT_EQ(-2, Press(kSpinTypeId, 1, 1, Half(false)));
    EXPECT_EQ("6.1.1.17=42", Told());
    Release(kSpinTypeId, 1, 1, Half(false));
}

TEST_F(SpinTypeTest, ThePressedHalfLooksPressedUntilTheRelease) {
    const std::string idle = Look();
    Press(kSpinTypeId, 1, 1, Half(true));
    const std::string upper = Look();
    Release(kSpinTypeId, 1, 1, Half(true));
    EXPECT_EQ(idle, Look());
    Press(kSpinTypeId, 1, 1, Half(false));
    const std::string lower = Look();
    EXPECT_NE(idle, upper);
    EXPECT_NE(idle, lower);
    EXPECT_NE(upper, lower);
}

TEST_F(SpinTypeTest, AClickBesideTheButtonIsNotItsMatter) {
    EXPECT_EQ(-1, Press(kSpinTypeId, 1, 1, RectOf(1, 1).TopLeft()));
    EXPECT_EQ(-1, DoubleClick(kSpinTypeId, 1, 1, RectOf(1, 1).TopLeft()));
    EXPECT_EQ(-1, Release(kSpinTypeId, 1, 1, RectOf(1, 1).TopLeft()));
    EXPECT_EQ("", Told());
}

TEST_F(SpinTypeTest, ADoubleClickRepeatsTheClick) {
    EXPECT_EQ(-2, DoubleClick(kSpinTypeId, 1, 1, Half(false)));
    EXPECT_EQ("6.1.1.17=42", Told());
}

TEST_F(SpinTypeTest, LeavingThePressedHalfUnpressesItAndComingBackPressesIt) {
    const std::string idle = Look();
    Press(kSpinTypeId, 1, 1, Half(true));
    const std::string pressed = Look();
    EXPECT_EQ(-2, Move(kSpinTypeId, Half(true)));
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(0, Move(kSpinTypeId, Half(false))); }));
    EXPECT_EQ(idle, Look());
    CPoint back = Half(true);
    EXPECT_EQ(-2, static_cast<CUGSpinButtonType *>(Type(kSpinTypeId))->OnMouseMoveSpin(&back));
    EXPECT_EQ(pressed, Look());
    EXPECT_EQ(-2, Release(kSpinTypeId, 1, 1, back));
}

TEST_F(SpinTypeTest, LeavingTheCellReleasesTheButton) {
    const std::string idle = Look();
    Press(kSpinTypeId, 1, 1, Half(true));
    m_grid.GotoCell(0, 0);
    EXPECT_EQ(idle, Look());
    EXPECT_EQ(0, Move(kSpinTypeId, Half(true)));
}

class CheckBoxTypeTest : public CellTypesTest {
protected:
    void SetUp() override { Put(1, 1, kCheckBoxTypeId, "0"); }
    CPoint Box() { return CPoint(RectOf(1, 1).left + 8, RectOf(1, 1).CenterPoint().y); }
    std::string Text() { return m_grid.Text(1, 1); }
};

TEST_F(CheckBoxTypeTest, AClickIntoTheBoxToggles) {
    EXPECT_TRUE(Repaints(1, 1, [&] { EXPECT_EQ(-2, Press(kCheckBoxTypeId, 1, 1, Box())); }));
    EXPECT_EQ("1.00", Text());
    EXPECT_EQ(-1, Release(kCheckBoxTypeId, 1, 1, Box()));
    EXPECT_EQ("1.00", Text());
    EXPECT_EQ(-2, DoubleClick(kCheckBoxTypeId, 1, 1, Box()));
    EXPECT_EQ("0.00", Text());
}

TEST_F(CheckBoxTypeTest, AClickBesideTheBoxDoesNothing) {
    EXPECT_EQ(-1, Press(kCheckBoxTypeId, 1, 1, RectOf(1, 1).CenterPoint()));
    EXPECT_EQ(-1, Press(kCheckBoxTypeId, 1, 1, RectOf(1, 1).TopLeft() + CSize(2, 10)));
    EXPECT_EQ("0", Text());
}

TEST_F(CheckBoxTypeTest, SpaceTogglesTheCurrentCell) {
    UINT space = VK_SPACE, other = 'A';
    EXPECT_EQ(-2, Key(kCheckBoxTypeId, &space));
    EXPECT_EQ("1.00", Text());
    EXPECT_EQ(-1, Key(kCheckBoxTypeId, &other));
    EXPECT_EQ("1.00", Text());
    SendKey(m_grid.Cells(), VK_SPACE);
    EXPECT_EQ("0.00", Text());
}

TEST_F(CheckBoxTypeTest, ATextOfTwoCountsAsCheckedAndTogglesToZero) {
    Put(1, 1, kCheckBoxTypeId, "2");
    Press(kCheckBoxTypeId, 1, 1, Box());
    EXPECT_EQ("0.00", Text());
}

TEST_F(CheckBoxTypeTest, TheCellsDecimalsAreKept) {
    CUGCell cell;
    cell.SetCellType(kCheckBoxTypeId);
    cell.SetNumberDecimals(0);
    cell.SetNumber(0);
    m_grid.SetCell(1, 1, &cell);
    Press(kCheckBoxTypeId, 1, 1, Box());
    EXPECT_EQ("1", Text());
}

TEST_F(CheckBoxTypeTest, TheBoxIsTwelvePixelsThreeFromTheLeftAndSmallerInALowCell) {
    EXPECT_EQ(CRect(3, 4, 15, 16), CRect(CUGCheckBoxType::BoxRect(CRect(0, 0, 100, 20))));
    EXPECT_EQ(CRect(3, 3, 15, 15), CRect(CUGCheckBoxType::BoxRect(CRect(0, 0, 100, 18))));
    EXPECT_EQ(CRect(3, 3, 14, 14), CRect(CUGCheckBoxType::BoxRect(CRect(0, 0, 100, 17))));
    EXPECT_EQ(CRect(3, 3, 9, 9), CRect(CUGCheckBoxType::BoxRect(CRect(0, 0, 100, 12))));
    EXPECT_TRUE(CRect(CUGCheckBoxType::BoxRect(CRect(0, 0, 100, 11))).IsRectEmpty());
}

TEST_F(CheckBoxTypeTest, TheMarkShowsTheNumber) {
    const CRect inner(6, 7, 12, 13);
    Picture off(100, 20), on(100, 20), two(100, 20), filled(100, 20), low(100, 11);
    Draw(off, kCheckBoxTypeId, Coloured("0"));
    Draw(on, kCheckBoxTypeId, Coloured("1"));
    Draw(two, kCheckBoxTypeId, Coloured("2"));
    Draw(filled, kCheckBoxTypeId, Coloured("1", kCheckFilled));
    Draw(low, kCheckBoxTypeId, Coloured("1"));
    const COLORREF ink = ::GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_EQ(0, off.Count(ink, inner));
    EXPECT_LT(5, on.Count(ink, inner));
    EXPECT_EQ(on.Count(ink, inner), two.Count(ink, inner));
    EXPECT_EQ(36, filled.Count(ink, inner));
    EXPECT_EQ(0, low.Count(ink));
    EXPECT_EQ(0, on.Count(kUnpainted));
    EXPECT_LT(15, on.Bounds(kRed).left); // the text stands to the right of the box
}

TEST_F(CheckBoxTypeTest, TheStyleBitsChooseTheLookOfTheBox) {
    std::string looks;
    for (int style : {0, kCheckRecessed, kCheckRaised}) {
        Picture picture(100, 20);
        Draw(picture, kCheckBoxTypeId, Coloured("0", style));
        const COLORREF edge = picture.At(3, 10);
        looks += edge == ::GetSysColor(COLOR_WINDOWTEXT)  ? "flat "
                 : edge == ::GetSysColor(COLOR_BTNSHADOW) ? "recessed "
                                                          : "raised ";
    }
    EXPECT_EQ("flat recessed raised ", looks);
}

// Where a cell with a thick border shows its box or button, and where clicks on it are taken.
class BorderedCellTest : public CellTypesTest {
protected:
    static constexpr int kThick = 256 | 512 | 1024 | 2048;
    void PutBordered(int type, const char *text) {
        Put(1, 1, type, text, "one\ntwo\n");
        CUGCell cell;
        m_grid.GetCellRaw(1, 1, &cell);
        cell.SetBorder(kThick);
        m_grid.SetCell(1, 1, &cell);
        m_grid.SetRowHeight(1, 30);
        PumpAll();
    }
    CRect Inside() {
        CRect rect = RectOf(1, 1);
        rect.DeflateRect(3, 3);
        return rect;
    }
    void ClickAt(int x, int y) { ClickLeft(m_grid.Cells(), x, y); }
};

TEST_F(BorderedCellTest, TheBoxIsTakenWhereItIsPainted) {
    PutBordered(kCheckBoxTypeId, "0");
    const CRect box(CUGCheckBoxType::BoxRect(Inside()));
    CDC *dc = m_grid.GetGridDC();
    EXPECT_EQ(::GetSysColor(COLOR_WINDOWTEXT), ::GetPixel(dc->GetSafeHdc(), box.left, box.top));
    m_grid.ReleaseGridDC(dc);
    ClickAt(box.left - 1, box.top + 2);
    ClickAt(box.right, box.top + 2);
    EXPECT_EQ("0", m_grid.Text(1, 1));
    ClickAt(box.left, box.top);
    EXPECT_EQ("1.00", m_grid.Text(1, 1));
    ClickAt(box.right - 1, box.bottom - 1);
    EXPECT_EQ("0.00", m_grid.Text(1, 1));
}

TEST_F(BorderedCellTest, TheButtonIsTakenWhereItIsPainted) {
    const int width = ::GetSystemMetrics(SM_CXVSCROLL);
    for (int type : {kEllipsisTypeId, kSpinTypeId, kDropListTypeId}) {
        PutBordered(type, "5");
        const CRect inside = Inside();
        const int y = inside.CenterPoint().y + 2;
        const auto told = [&](int x) {
            Told();
            ClickAt(x, y);
            const bool any = !Told().empty();
            if (m_grid.List() != nullptr)
                SendKey(m_grid.List(), VK_ESCAPE);
            m_grid.GotoCell(0, 0); // a list that just closed is forgotten
            m_grid.GotoCell(1, 1);
            return any;
        };
        EXPECT_FALSE(told(inside.right)) << "type " << type; // on the border
        EXPECT_TRUE(told(inside.right - 1)) << "type " << type;
        EXPECT_TRUE(told(inside.right - width)) << "type " << type;
        EXPECT_FALSE(told(inside.right - width - 1)) << "type " << type;
    }
}

TEST_F(EllipsisTypeTest, TheButtonStaysPressedWhileTheReceiverIsAtWork) {
    bool pressed = false;
    m_grid.m_onTold = [&] { pressed = LooksPressed(1); };
    Press(kEllipsisTypeId, 1, 1, Button());
    Release(kEllipsisTypeId, 1, 1, Button());
    EXPECT_TRUE(pressed);
    EXPECT_FALSE(LooksPressed(1));
}

TEST(ButtonTypeTest, TheButtonIsAsWideAsAScrollBarAndNoWiderThanItsCell) {
    const int width = ::GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_EQ(width, CUGButtonType::ButtonWidth());
    EXPECT_EQ(CRect(150 - width, 20, 150, 40), CRect(CUGButtonType::ButtonRect(CRect(50, 20, 150, 40))));
    EXPECT_EQ(CRect(50, 20, 55, 40), CRect(CUGButtonType::ButtonRect(CRect(50, 20, 55, 40))));
}

// With whole-row highlight all cells of the row are drawn as current ones.
class ButtonsInARowTest : public CellTypesTest {
protected:
    std::vector<COLORREF> ButtonPixels(int col) {
        const CRect button = ButtonOf(col, 1);
        CDC *dc = m_grid.GetGridDC();
        std::vector<COLORREF> pixels;
        for (int y = button.top; y < button.bottom; ++y) {
            for (int x = button.left; x < button.right; ++x)
                pixels.push_back(::GetPixel(dc->GetSafeHdc(), x, y));
        }
        m_grid.ReleaseGridDC(dc);
        return pixels;
    }
};

TEST_F(ButtonsInARowTest, WithRowHighlightOnlyTheButtonThatWasPressedIsDown) {
    m_grid.EnableRowHighlight(1);
    for (int type : {kEllipsisTypeId, kSpinTypeId, kDropListTypeId}) {
        Put(0, 1, type, "5", "one\n");
        Put(1, 1, type, "5", "one\n");
        m_grid.RedrawAll();
        PumpAll();
        const auto other = ButtonPixels(0), own = ButtonPixels(1);
        const CRect button = ButtonOf(1, 1);
        PressLeft(m_grid.Cells(), button.CenterPoint().x, button.top + 4);
        m_grid.RedrawRow(1);
        PumpAll();
        EXPECT_TRUE(other == ButtonPixels(0)) << "type " << type;
        EXPECT_FALSE(own == ButtonPixels(1)) << "type " << type;
        ReleaseLeft(m_grid.Cells(), button.CenterPoint().x, button.top + 4);
        if (m_grid.List() != nullptr)
            SendKey(m_grid.List(), VK_ESCAPE);
    }
}

TEST_F(CheckBoxTypeTest, AMarkTooSmallForATickIsASquare) {
    const COLORREF ink = ::GetSysColor(COLOR_WINDOWTEXT);
    Picture off(100, 12), on(100, 12);
    Draw(off, kCheckBoxTypeId, Coloured("0"));
    Draw(on, kCheckBoxTypeId, Coloured("1"));
    EXPECT_EQ(off.Count(ink) + 4, on.Count(ink));
}

} // namespace
