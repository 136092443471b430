// What cells look like: each type in each state, painted on contact sheets and compared with stored pictures.
#include "CellTypesTest.h"
#include "ContactSheet.h"

namespace {

constexpr short kLeft = UG_ALIGN_LEFT, kRight = UG_ALIGN_RIGHT, kCentre = UG_ALIGN_HCENTER;
constexpr short kMiddle = UG_ALIGN_VCENTER, kBottom = UG_ALIGN_BOTTOM;
const CSize kUsual(110, 22);

class CellPicturesTest : public CellTypesTest {
protected:
    CellPicturesTest() {
        m_font.CreateFont(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
        m_grid.SetDefaultFont(&m_font);
        m_grid.SetCurrentCellStyle(2);
    }
    ~CellPicturesTest() override { m_grid.SetDefaultFont(nullptr); }

    static CUGCell Cell(const char *text, int style = -1, short alignment = kLeft | kMiddle) {
        CUGCell cell;
        cell.SetText(text);
        cell.SetTextColor(RGB(0, 0, 0));
        cell.SetBackColor(RGB(255, 255, 255));
        cell.SetHTextColor(RGB(255, 255, 255));
        cell.SetHBackColor(RGB(10, 36, 106));
        cell.SetAlignment(alignment);
        cell.SetBorder(UG_BDR_RTHIN | UG_BDR_BTHIN);
        if (style >= 0)
            cell.SetCellTypeEx(style);
        return cell;
    }
    // As the cell area paints a cell: its border, then its type in what is left.
    void Show(const char *caption, int type, CUGCell cell, int selected = 0, int current = 0,
              CSize size = kUsual) {
        m_sheet.Add(caption, size, [&](CDC *dc, CRect area) {
            Type(type)->DrawBorder(dc, &area, &cell);
            Type(type)->OnDraw(dc, &area, &cell, selected, current);
        });
    }
    // The states that every type has.
    void ShowStates(int type, const char *text, int style = -1) {
        Show("plain", type, Cell(text, style));
        Show("selected", type, Cell(text, style), 1);
        Show("current", type, Cell(text, style), 0, 1);
        m_grid.SetCurrentCellStyle(1);
        m_sheet.Add("focus rectangle", kUsual, [&](CDC *dc, CRect area) {
            CUGCell cell = Cell(text, style);
            CRect frame = area;
            Type(type)->DrawBorder(dc, &area, &cell);
            Type(type)->OnDraw(dc, &area, &cell, 0, 1);
            CUGGrid::DrawFocusFrame(dc, frame);
        });
        m_grid.SetCurrentCellStyle(2);
        CUGCell locked = Cell(text, style);
        locked.SetReadOnly(1);
        locked.SetTextColor(RGB(128, 128, 128));
        locked.SetBackColor(RGB(240, 240, 240));
        Show("read-only, grey", type, locked);
        Show("empty", type, Cell("", style));
        Show("long", type, Cell("A text that is longer than its cell", style));
    }
    // Pressed with the real click of the type, at a point of the current cell's button.
    void ShowPressed(const char *caption, int type, const char *text, bool upper = false) {
        Put(1, 1, type, text, "one\ntwo\n");
        CRect rect = RectOf(1, 1);
        const CPoint at(rect.right - 5, upper ? rect.top + 3 : rect.bottom - 5);
        Press(type, 1, 1, at);
        Show(caption, type, Cell(text), 0, 1);
        Release(type, 1, 1, at);
        if (m_grid.List() != nullptr)
            SendKey(m_grid.List(), VK_ESCAPE);
    }

    PinnedColours m_colours;
    CFont m_font;
    ContactSheet m_sheet{520, 1200};
};

TEST_F(CellPicturesTest, Text) {
    ShowStates(0, "Plain text gy");
    Show("style 4: dots", 0, Cell("A text that is longer than its cell", UG_STYLE_ELLIPSIS));
    Show("style 4, right", 0, Cell("A text that is longer than its cell", UG_STYLE_ELLIPSIS, kRight | kMiddle));
    Show("style 4, it fits", 0, Cell("It fits", UG_STYLE_ELLIPSIS));
    Show("style 4, very narrow", 0, Cell("Narrow", UG_STYLE_ELLIPSIS), 0, 0, CSize(20, 22));
    Show("style 2: wrapped", 0, Cell("Several words that need more lines", UG_STYLE_WORDWRAP), 0, 0, CSize(110, 54));
    Show("style 2, centred", 0, Cell("Several words that need more lines", UG_STYLE_WORDWRAP, kCentre), 0, 0,
         CSize(110, 54));
    Show("style 2, right", 0, Cell("Several words that need more lines", UG_STYLE_WORDWRAP, kRight), 0, 0,
         CSize(110, 54));
    Show("style 2, too low", 0, Cell("Several words that need more lines", UG_STYLE_WORDWRAP));
    CUGCell label = Cell("text", UG_STYLE_LABEL);
    label.SetLabelText("The label");
    Show("style 8: label", 0, label);
    Show("negative style", 0, Cell("Plain text gy", -7));
    CFont large;
    large.CreateFont(-24, 0, 0, 0, FW_BOLD, TRUE, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Times New Roman");
    CUGCell fancy = Cell("Own font");
    fancy.SetFont(&large);
    Show("own font", 0, fancy, 0, 0, CSize(110, 34));
    ExpectPicture("text", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, Alignment) {
    const char *const vertical[] = {"top", "middle", "bottom"};
    const short bits[] = {0, kMiddle, kBottom};
    for (int i = 0; i < 3; ++i) {
        const std::string name = vertical[i];
        Show((name + " left").c_str(), 0, Cell("Angry", -1, bits[i] | kLeft), 0, 0, CSize(110, 40));
        Show((name + " centre").c_str(), 0, Cell("Angry", -1, bits[i] | kCentre), 0, 0, CSize(110, 40));
        Show((name + " right").c_str(), 0, Cell("Angry", -1, bits[i] | kRight), 0, 0, CSize(110, 40));
        m_sheet.Break();
    }
    Show("clipped left", 0, Cell("A text that is longer than its cell", -1, kLeft));
    Show("clipped centre", 0, Cell("A text that is longer than its cell", -1, kCentre));
    Show("clipped right", 0, Cell("A text that is longer than its cell", -1, kRight));
    ExpectPicture("alignment", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, Borders) {
    const auto bordered = [&](const char *caption, int style, CPen *pen = nullptr) {
        CUGCell cell = Cell("Ag");
        cell.SetBorder(static_cast<short>(style));
        cell.SetBorderColor(pen);
        cell.SetBackColor(RGB(255, 255, 200));
        Show(caption, 0, cell, 0, 0, CSize(50, 24));
    };
    for (int bit = 0; bit < 14; ++bit)
        bordered(std::to_string(1 << bit).c_str(), 1 << bit);
    CPen red(PS_SOLID, 1, RGB(220, 0, 0));
    bordered("0", 0);
    bordered("15", 15);
    bordered("15 red", 15, &red);
    bordered("240", 240);
    bordered("3840", 3840);
    bordered("1+64+2048", 1 | 64 | 2048);
    bordered("1+16+256", 1 | 16 | 256);
    bordered("4096+15", UG_BDR_RECESSED | 15);
    bordered("8192+8", UG_BDR_RAISED | 8);
    m_grid.Set3DBorderWidth(2);
    bordered("4096, 2 wide", UG_BDR_RECESSED);
    bordered("8192, 2 wide", UG_BDR_RAISED);
    bordered("8192+256, 2 wide", UG_BDR_RAISED | 256);
    m_grid.Set3DBorderWidth(1);
    ExpectPicture("borders", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, Bitmaps) {
    // A green disc with a dark rim on white, 16 by 16.
    CBitmap disc;
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CClientDC screen(nullptr);
    disc.CreateCompatibleBitmap(&screen, 16, 16);
    HGDIOBJ old = ::SelectObject(memory.GetSafeHdc(), disc.GetSafeHandle());
    memory.FillSolidRect(0, 0, 16, 16, RGB(255, 255, 255));
    CBrush green(RGB(0, 160, 60));
    HGDIOBJ oldBrush = ::SelectObject(memory.GetSafeHdc(), green.GetSafeHandle());
    ::Ellipse(memory.GetSafeHdc(), 1, 1, 15, 15);
    ::SelectObject(memory.GetSafeHdc(), oldBrush);
    ::SelectObject(memory.GetSafeHdc(), old);
    const auto with = [&](const char *text, int style) {
        CUGCell cell = Cell(text, style);
        cell.SetBackColor(RGB(255, 240, 170));
        cell.SetBitmap(&disc);
        return cell;
    };
    Show("filled back", 0, with("Text", -1), 0, 0, CSize(110, 26));
    Show("style 16: back kept", 0, with("Text", UG_STYLE_KEEP_BITMAP), 0, 0, CSize(110, 26));
    Show("selected", 0, with("Text", -1), 1, 0, CSize(110, 26));
    Show("selected, style 16", 0, with("Text", UG_STYLE_KEEP_BITMAP), 1, 0, CSize(110, 26));
    Show("pressed into low cell", 0, with("Text", -1), 0, 0, CSize(110, 16));
    Show("narrow", 0, with("Text", -1), 0, 0, CSize(14, 26));
    CUGCell right = with("Right", -1);
    right.SetAlignment(kRight | kMiddle);
    Show("text right", 0, right, 0, 0, CSize(110, 26));
    Show("with dots", 0, with("A longer text for it", UG_STYLE_ELLIPSIS), 0, 0, CSize(110, 26));
    ExpectPicture("bitmaps", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, CheckBoxes) {
    ShowStates(kCheckBoxTypeId, "1");
    m_sheet.Break();
    struct Look {
        const char *name;
        int style;
    };
    for (const Look &look : {Look{"plain", 0}, Look{"256", kCheckRecessed}, Look{"512", kCheckRaised},
                             Look{"4096", kCheckFilled}, Look{"256+4096", kCheckRecessed | kCheckFilled},
                             Look{"512+4096", kCheckRaised | kCheckFilled}}) {
        for (const char *text : {"0", "1"})
            Show((std::string(look.name) + (*text == '0' ? " off" : " on")).c_str(), kCheckBoxTypeId,
                 Cell(text, look.style), 0, 0, CSize(72, 22));
    }
    m_sheet.Break();
    CUGCell label = Cell("2", UG_STYLE_LABEL);
    label.SetLabelText("Text 2, label");
    Show("2 counts as on", kCheckBoxTypeId, label);
    for (int height : {30, 18, 16, 14, 13, 12})
        Show(("height " + std::to_string(height)).c_str(), kCheckBoxTypeId, Cell("1"), 0, 0, CSize(60, height));
    ExpectPicture("checkboxes", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, DropLists) {
    ShowStates(kDropListTypeId, "Choice");
    ShowPressed("pressed", kDropListTypeId, "Choice");
    Show("style 16", kDropListTypeId, Cell("Choice", kHideButtonStyle));
    Show("style 16, current", kDropListTypeId, Cell("Choice", kHideButtonStyle), 0, 1);
    Show("low", kDropListTypeId, Cell("Choice"), 0, 0, CSize(110, 14));
    Show("high", kDropListTypeId, Cell("Choice"), 0, 0, CSize(110, 40));
    Show("narrow", kDropListTypeId, Cell("Choice"), 0, 0, CSize(14, 22));
    ExpectPicture("droplists", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, SpinButtons) {
    ShowStates(kSpinTypeId, "42");
    ShowPressed("upper half pressed", kSpinTypeId, "42", true);
    ShowPressed("lower half pressed", kSpinTypeId, "42", false);
    Show("low", kSpinTypeId, Cell("42"), 0, 0, CSize(110, 14));
    Show("high", kSpinTypeId, Cell("42"), 0, 0, CSize(110, 40));
    ExpectPicture("spinbuttons", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, EllipsisButtons) {
    ShowStates(kEllipsisTypeId, "Code");
    ShowPressed("pressed", kEllipsisTypeId, "Code");
    Show("low", kEllipsisTypeId, Cell("Code"), 0, 0, CSize(110, 14));
    Show("high", kEllipsisTypeId, Cell("Code"), 0, 0, CSize(110, 40));
    Show("dots and dots", kEllipsisTypeId, Cell("A text that is longer", UG_STYLE_ELLIPSIS));
    ExpectPicture("ellipsisbuttons", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, Progress) {
    for (const char *text : {"0", "1", "50", "99", "100", "150", "-3", "", "none"})
        Show((std::string("text ") + text).c_str(), kProgressTypeId, Cell(text));
    CUGCell label = Cell("40", 1);
    label.SetLabelText("Forty of them");
    Show("style 1: label", kProgressTypeId, label);
    Show("selected", kProgressTypeId, Cell("50"), 1);
    Show("current", kProgressTypeId, Cell("50"), 0, 1);
    Show("low", kProgressTypeId, Cell("50"), 0, 0, CSize(110, 12));
    ExpectPicture("progress", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, AutomaticFont) {
    ShowStates(kAutoFontTypeId, "Fitted");
    for (const char *text : {"W", "Hog", "Longer words", "Something much longer still"})
        Show(text, kAutoFontTypeId, Cell(text, -1, kCentre | kMiddle), 0, 0, CSize(160, 60));
    ExpectPicture("automaticfont", m_sheet.Pixels());
}

TEST_F(CellPicturesTest, Arrows) {
    const char *const names[] = {"right", "left", "up", "down"};
    for (int style = 0; style < 4; ++style) {
        Show(names[style], kArrowTypeId, Cell("not shown", style), 0, 0, CSize(40, 40));
        Show("wide", kArrowTypeId, Cell("", style));
        Show("selected", kArrowTypeId, Cell("", style), 1, 0, CSize(22, 22));
        Show("current", kArrowTypeId, Cell("", style), 0, 1, CSize(21, 21));
        m_sheet.Break();
    }
    Show("negative style", kArrowTypeId, Cell("", -1), 0, 0, CSize(40, 40));
    ExpectPicture("arrows", m_sheet.Pixels());
}

} // namespace
