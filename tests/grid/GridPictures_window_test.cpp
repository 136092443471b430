// What the control looks like as a whole: headings, selection, joined cells, locked columns, row highlight.
#include "CellTypesTest.h"
#include "ContactSheet.h"

namespace {

class GridPicturesTest : public CellTypesTest {
protected:
    GridPicturesTest() {
        m_font.CreateFont(-13, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
        m_grid.SetDefaultFont(&m_font);
        m_grid.SendMessage(WM_SYSCOLORCHANGE, 0, 0); // the default cells take the pinned colours
        m_grid.SetNumberCols(4);
        m_grid.SetNumberRows(6);
        for (int col = -1; col < 4; ++col) {
            for (long row = -1; row < 6; ++row)
                m_grid.QuickSetText(col, row, NameOf(col, row).c_str());
            if (col >= 0)
                m_grid.SetColWidth(col, 70);
        }
        m_grid.m_onReadCell = [](int col, long row, CUGCell *cell) { // the own store has no side heading
            if (col < 0 && row >= 0)
                cell->SetText(NameOf(col, row).c_str());
        };
        m_grid.GotoCell(1, 1);
    }
    ~GridPicturesTest() override { m_grid.SetDefaultFont(nullptr); }

    static std::string NameOf(int col, long row) {
        if (col < 0)
            return row < 0 ? "#" : std::to_string(row + 1);
        return row < 0 ? "Field " + std::to_string(col) : std::string(1, char('a' + col)) + std::to_string(row);
    }

    void Join(int left, long top, int right, long bottom) {
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col) {
                CUGCell cell;
                m_grid.GetCellRaw(col, row, &cell);
                cell.SetJoin(col == left && row == top, left, top);
                m_grid.SetCell(col, row, &cell);
            }
        }
    }

    // A part of the control's window as it stands there, children included.
    void Photograph(const char *caption, CSize size = CSize(340, 150)) {
        m_grid.RedrawAll();
        PumpAll();
        m_sheet.Add(caption, size, [&](CDC *dc, CRect area) {
            HDC window = ::GetDC(m_grid.m_hWnd);
            ::BitBlt(dc->GetSafeHdc(), area.left, area.top, area.Width(), area.Height(), window, 0, 0, SRCCOPY);
            ::ReleaseDC(m_grid.m_hWnd, window);
        });
    }

    PinnedColours m_colours;
    CFont m_font;
    ContactSheet m_sheet{710, 1000};
};

TEST_F(GridPicturesTest, States) {
    Photograph("focus rectangle in the current cell");
    m_grid.SetCurrentCellStyle(2);
    Photograph("highlight colours in the current cell");
    m_grid.SetCurrentCellStyle(3);
    Photograph("both");
    m_grid.SetCurrentCellStyle(0);
    Photograph("neither");
    m_grid.SetCurrentCellStyle(1);
    m_grid.EnableMultiSelect(1);
    m_grid.SelectRange(0, 2, 2, 4);
    Photograph("a selected block");
    m_grid.EnableMultiSelect(0);
    m_grid.EnableRowHighlight(1);
    Photograph("row highlight");
    m_grid.EnableRowHighlight(0);
    Join(2, 2, 3, 4);
    Photograph("joined cells");
    m_grid.GotoCell(2, 2);
    Photograph("joined cells, current");
    m_grid.GotoCell(0, 0);
    m_grid.SetLockedColumns(2);
    m_grid.SetSH_Width(m_grid.GetSH_Width() + 140);
    m_grid.SetLeftCol(0);
    Photograph("two locked columns");
    ExpectPicture("grid", m_sheet.Pixels());
}

TEST_F(GridPicturesTest, Surroundings) {
    m_grid.AddTab("First", 1);
    m_grid.AddTab("Second gy", 2);
    m_grid.AddTab("Third", 3);
    m_grid.SetTabWidth(200);
    m_grid.SelectTab(2);
    m_grid.MoveWindow(0, 0, 330, 140);
    Photograph("tabs and bars", CSize(330, 140));
    m_grid.SetTabWidth(110);
    Photograph("tabs without room", CSize(330, 140));
    CWnd *child = CWnd::FromHandlePermanent(::GetDlgItem(m_grid.m_hWnd, kHintChildId));
    auto *hint = static_cast<CUGHint *>(child);
    hint->SetText("Row 3 of 6, gy");
    hint->SetAlignment(UG_ALIGN_VCENTER | UG_ALIGN_RIGHT); // as the vertical bar hangs it up
    hint->MoveHint(310, 60, 80);
    hint->Show();
    Photograph("hint", CSize(330, 140));
    hint->Hide();
    m_grid.SetNumberRows(0);
    Photograph("no rows", CSize(330, 140));
    ExpectPicture("surroundings", m_sheet.Pixels());
}

} // namespace
