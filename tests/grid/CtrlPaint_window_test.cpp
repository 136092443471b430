// What painting reads, and what it leaves behind.
#include "GridWindowTest.h"

#include <set>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

class CtrlPaintTest : public GridWindowTest {
protected:
    RecordingSource &Painted(int cols, long rows) {
        RecordingSource &source = Fill(cols, rows);
        m_grid.RedrawAll();
        PumpAll();
        Forget(source);
        return source;
    }
    static void Forget(RecordingSource &source) {
        source.m_reads = 0;
        source.m_rowsRead.clear();
    }
    static std::string RowsRead(RecordingSource &source) {
        std::sort(source.m_rowsRead.begin(), source.m_rowsRead.end());
        source.m_rowsRead.erase(std::unique(source.m_rowsRead.begin(), source.m_rowsRead.end()),
                                source.m_rowsRead.end());
        std::string all;
        for (long row : source.m_rowsRead)
            all += std::to_string(row) + " ";
        return all;
    }
};

TEST_F(CtrlPaintTest, OnlyVisibleCellsAreRead) {
    RecordingSource &source = Painted(20, 1000);
    m_grid.RedrawAll();
    PumpAll();
    // 5 columns and 14 rows show, each read once for the cells and once more a row for the side heading; the
    // frame of the current cell looks for its block.
    EXPECT_LE(source.m_reads, 5 * 14 + 14 + 2);
    EXPECT_GE(source.m_reads, 5 * 14);
}

TEST_F(CtrlPaintTest, ScrollingByOneLineReadsThatLineOnly) {
    RecordingSource &source = Painted(4, 1000);
    m_grid.MoveTopRow(UG_MOVE_FORWARD);
    PumpAll();
    // 14 rows fit without a rest; the current cell's row is asked for its frame.
    EXPECT_EQ("0 14 ", RowsRead(source));
    EXPECT_LE(source.m_reads, 24); // the side heading reads its 14 rows
    m_grid.MoveTopRow(UG_MOVE_BACK);
    Forget(source);
    PumpAll();
    EXPECT_EQ("", RowsRead(source)); // the move itself has painted
}

TEST_F(CtrlPaintTest, WithNoRowsOrNoColumnsTheAreaHasTheHeadingsBackAndTheSideHeadingReadsNothing) {
    RecordingSource &source = Painted(4, 10);
    CUGCell heading;
    m_grid.GetHeadingDefault(&heading);
    const auto isBare = [&] {
        m_grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CDC *dc = m_grid.GetGridDC();
        bool bare = true;
        for (int x : {1, 50, 200, 440})
            bare = bare && ::GetPixel(dc->GetSafeHdc(), x, 10) == heading.GetBackColor();
        m_grid.ReleaseGridDC(dc);
        return bare;
    };
    EXPECT_FALSE(isBare());
    m_grid.SetNumberRows(0);
    Forget(source);
    EXPECT_TRUE(isBare());
    EXPECT_EQ(0, source.m_reads);
    m_grid.SetNumberRows(10);
    EXPECT_FALSE(isBare());
    m_grid.SetNumberCols(0);
    Forget(source);
    EXPECT_TRUE(isBare());
    EXPECT_EQ(0, source.m_reads);
}

TEST_F(CtrlPaintTest, ASmallHeadingCellDrawsNothingIntoTheOnesAround) {
    Painted(4, 10);
    m_grid.SetUniformRowHeight(1);
    m_grid.SetDefaultRowHeight(2);
    m_grid.Set3DBorderWidth(3); // the frame is wider than the cell is high
    const HDC dc = ::GetDC(m_grid.SideHeading());
    const auto pixels = [&] {
        std::vector<COLORREF> all;
        for (int y = 0; y < 24; ++y) {
            for (int x = 0; x < 12; ++x)
                all.push_back(::GetPixel(dc, x, y));
        }
        return all;
    };
    m_grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const auto whole = pixels();
    const RECT oneRow = {0, 8, 50, 10};
    ::InvalidateRect(m_grid.SideHeading(), &oneRow, FALSE);
    ::UpdateWindow(m_grid.SideHeading());
    const auto repainted = pixels();
    ::ReleaseDC(m_grid.SideHeading(), dc);
    EXPECT_EQ(whole, repainted);
}

TEST_F(CtrlPaintTest, MovingTheCurrentCellReadsTheTwoCellsThatChanged) {
    RecordingSource &source = Painted(4, 1000);
    m_grid.GotoCell(1, 5);
    PumpAll();
    EXPECT_EQ("0 5 ", RowsRead(source));
}

TEST_F(CtrlPaintTest, WithPaintingOffNothingIsReadUntilItIsOnAgain) {
    RecordingSource &source = Painted(4, 50);
    m_grid.EnablePainting(0);
    m_grid.RedrawAll();
    m_grid.SetTopRow(3);
    ::InvalidateRect(m_grid.Cells(), nullptr, FALSE);
    PumpAll();
    EXPECT_EQ(0, source.m_reads);
    m_grid.EnablePainting(1);
    PumpAll();
    EXPECT_LT(0, source.m_reads);
}

TEST_F(CtrlPaintTest, PaintingWithADoubleBufferLooksTheSame) {
    Painted(4, 50);
    const auto pixels = [&] {
        m_grid.RedrawAll();
        PumpAll();
        std::string all;
        CDC *dc = m_grid.GetGridDC();
        for (int y = 0; y < 100; y += 3) {
            for (int x = 0; x < 300; x += 7)
                all += std::to_string(::GetPixel(dc->GetSafeHdc(), x, y)) + " ";
        }
        m_grid.ReleaseGridDC(dc);
        return all;
    };
    const std::string direct = pixels();
    m_grid.SetDoubleBuffer(1);
    EXPECT_EQ(direct, pixels());
}

TEST_F(CtrlPaintTest, ASourceThatGrowsOnDemandIsAskedWhenItsEndComesIntoView) {
    Painted(4, 20);
    m_log.Take();
    m_grid.SetTopRow(5);
    PumpAll();
    EXPECT_EQ("src.RequestMoreRows(20,1)", m_log.Take());
}

TEST_F(CtrlPaintTest, TwoHundredControlsLeaveNothingBehind) {
    const auto makeAndDrop = [&] {
        RecordingSource source(&m_log, 3, 20);
        RecordingGrid grid;
        grid.CreateGrid(WS_VISIBLE, CRect(0, 300, 300, 480), &m_host, 102);
        grid.SetDefaultDataSource(grid.AddDataSource(&source));
        grid.SetGridUsingDataSource(1);
        grid.SetDoubleBuffer(1);
        grid.StartEdit();
        grid.Update();
        grid.DestroyWindow();
    };
    makeAndDrop(); // what the first one registers stays
    PumpAll();
    const int drawing = HighestDrawingHandle();
    const int menus = HighestMenuHandle();
    for (int i = 0; i < 200; ++i)
        makeAndDrop();
    PumpAll();
    EXPECT_LE(HighestDrawingHandle(), drawing + 50);
    EXPECT_LE(HighestMenuHandle(), menus + 100);
}

// A view of exactly four columns and thirteen rows, so that a line scrolled by is a line exposed.
class ScrollReadsTest : public CtrlPaintTest {
protected:
    ScrollReadsTest() { Exact(); }
    RecordingSource &Exact() {
        RecordingSource &source = Fill(20, 1000);
        m_grid.SetSH_Width(500 - m_grid.m_GI.m_vScrollWidth - 400);
        m_grid.SetTH_Height(300 - m_grid.m_GI.m_hScrollHeight - 260);
        m_grid.GotoCell(0, 0);
        m_grid.RedrawAll();
        PumpAll();
        Forget(source);
        return source;
    }
    // How many cells were read, and in which rows.
    std::string Read() {
        PumpAll();
        const std::string cells = std::to_string(m_source->m_rowsRead.size());
        const std::string rows = RowsRead(*m_source);
        Forget(*m_source);
        return cells + " in " + rows;
    }
    void Command(UINT message, UINT code) { ::SendMessageA(m_grid.m_hWnd, message, code, 0); }
};

// The current cell is read once more for its frame.
TEST_F(ScrollReadsTest, OneRowDownAndUpReadsOneRow) {
    for (int doubleBuffer : {0, 1}) {
        m_grid.SetDoubleBuffer(doubleBuffer);
        m_grid.RedrawAll();
        Read();
        Command(WM_VSCROLL, SB_LINEDOWN);
        EXPECT_EQ("5 in 0 13 ", Read()) << doubleBuffer;
        Command(WM_VSCROLL, SB_LINEDOWN);
        EXPECT_EQ("5 in 0 14 ", Read()) << doubleBuffer;
        Command(WM_VSCROLL, SB_LINEUP);
        EXPECT_EQ("5 in 0 1 ", Read()) << doubleBuffer;
        m_grid.SetTopRow(0);
        Read();
    }
}

TEST_F(ScrollReadsTest, OneColumnRightAndLeftReadsOneColumn) {
    for (int doubleBuffer : {0, 1}) {
        m_grid.SetDoubleBuffer(doubleBuffer);
        m_grid.RedrawAll();
        Read();
        Command(WM_HSCROLL, SB_LINERIGHT);
        EXPECT_EQ("14 in 0 1 2 3 4 5 6 7 8 9 10 11 12 ", Read()) << doubleBuffer;
        Command(WM_HSCROLL, SB_LINELEFT);
        EXPECT_EQ("14 in 0 1 2 3 4 5 6 7 8 9 10 11 12 ", Read()) << doubleBuffer;
    }
}

TEST_F(ScrollReadsTest, ALiveThumbReadsTheRowsThatItPassed) {
    m_grid.SetVScrollMode(1);
    ::SetScrollPos(m_grid.VBar(), SB_CTL, 2, FALSE);
    Command(WM_VSCROLL, SB_THUMBTRACK);
    EXPECT_EQ("9 in 0 13 14 ", Read());
}

TEST_F(ScrollReadsTest, TheWheelReadsTheRowsThatItPassed) {
    UINT lines = 0;
    ::SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    ASSERT_EQ(3u, lines);
    ::SendMessageA(m_grid.Cells(), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
    EXPECT_EQ("15 in 0 13 14 15 ", Read());
}

TEST_F(ScrollReadsTest, AnArrowKeyAtTheBottomReadsTheNewRowAndTheCellThatWasCurrent) {
    m_grid.GotoRow(12);
    Read();
    SendKey(m_grid.Cells(), VK_DOWN);
    const std::string read = Read();
    EXPECT_EQ("in 12 13 ", read.substr(read.find("in")));
    EXPECT_GE(12, std::stoi(read));
}

// The view changed without a move: what is exposed later must not be shifted from where it never stood.
TEST_F(ScrollReadsTest, AViewThatATableTookAlongIsPaintedWholeAndThenScrolled) {
    m_grid.SetTopRow(500);
    Read();
    m_grid.SetNumberRows(100); // shows 87 to 99 from now on
    EXPECT_EQ(87, m_grid.GetTopRow());
    Read();
    Command(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ("5 in 0 86 ", Read());
}

class RedrawTest : public CtrlPaintTest {
protected:
    // Which windows have something to paint, and where.
    std::string Dirty(const std::function<void()> &operation) {
        PumpAll();
        operation();
        const std::pair<const char *, HWND> windows[] = {{"cells", m_grid.Cells()},
                                                         {"top", m_grid.TopHeading()},
                                                         {"side", m_grid.SideHeading()},
                                                         {"corner", m_grid.Corner()}};
        std::string all;
        for (const auto &[name, window] : windows) {
            CRect dirty;
            if (::GetUpdateRect(window, &dirty, FALSE))
                all += std::string(name) + " " + std::to_string(dirty.left) + "," + std::to_string(dirty.top) + ".." +
                       std::to_string(dirty.right) + "," + std::to_string(dirty.bottom) + " ";
        }
        return all;
    }
};

TEST_F(RedrawTest, ACellARowAndAColumnAreRepaintedWithTheirHeadings) {
    Painted(4, 10);
    const std::string width = std::to_string(m_grid.m_GI.m_cols.m_extent);
    const std::string height = std::to_string(m_grid.m_GI.m_rows.m_extent);
    EXPECT_EQ("cells 100,40..200,60 ", Dirty([&] { m_grid.RedrawCell(1, 2); }));
    EXPECT_EQ("cells 0,40.." + width + ",60 side 0,40..50,60 ", Dirty([&] { m_grid.RedrawRow(2); }));
    EXPECT_EQ("cells 100,0..200," + height + " top 100,0..200,20 ", Dirty([&] { m_grid.RedrawCol(1); }));
    EXPECT_EQ("", Dirty([&] { m_grid.RedrawCell(4, 0); }));
    EXPECT_EQ("", Dirty([&] { m_grid.RedrawRow(10); }));
    EXPECT_EQ("", Dirty([&] { m_grid.RedrawCol(4); }));
    const std::string all = Dirty([&] { m_grid.RedrawAll(); });
    EXPECT_EQ(all, Dirty([&] { m_grid.RedrawCell(1, -1); })); // headings are repainted with everything
    EXPECT_EQ(all, Dirty([&] { m_grid.RedrawCell(-1, 2); }));
}

TEST_F(RedrawTest, ALockedColumnIsRepaintedWhereItIsLockedToo) {
    Painted(4, 10);
    m_grid.SetLockedColumns(2);
    const std::string height = std::to_string(m_grid.m_GI.m_rows.m_extent);
    EXPECT_EQ("cells 100,40..200,60 side 0,0..50," + height + " ", Dirty([&] { m_grid.RedrawCell(1, 2); }));
    EXPECT_EQ("cells 200,40..300,60 ", Dirty([&] { m_grid.RedrawCell(2, 2); }));
    EXPECT_EQ("cells 100,0..200," + height + " top 100,0..200,20 side 0,0..50," + height + " corner 0,0..50,20 ",
              Dirty([&] { m_grid.RedrawCol(1); }));
}

// The box may cover less than the cell, and a locked column shows the text a second time.
TEST_F(RedrawTest, AWrittenEditRepaintsItsWholeCellAndTheLockedColumn) {
    Painted(4, 10);
    m_grid.SetLockedColumns(1);
    m_grid.m_onSetupEditWindow = [](RECT *rect, DWORD *) { rect->right = rect->left + 10; };
    m_grid.GotoCell(0, 2);
    m_grid.StartEdit();
    ASSERT_NE(nullptr, m_grid.Edit());
    ::SetWindowTextA(m_grid.Edit(), "new");
    const std::string height = std::to_string(m_grid.m_GI.m_rows.m_extent);
    EXPECT_EQ("cells 0,40..100,60 side 0,0..50," + height + " ", Dirty([&] { m_host.SetFocus(); }));
}

// A table that is one block of cells, and counts what is read of it.
class BlockSource : public CUGDataSource {
public:
    int GetCell(int, long, CUGCell *cell) override {
        ++m_reads;
        cell->SetJoin(false, 0, 0);
        return GRID_SUCCESS;
    }
    long m_reads = 0;
};

class CtrlPaintJoinTest : public GridWindowTest {
protected:
    long ReadsOfARepaint(int cols, int colWidth, long rows, int rowHeight) {
        m_grid.SetDefaultDataSource(m_grid.AddDataSource(&m_block));
        m_grid.SetSH_Width(0);
        m_grid.SetTH_Height(0);
        m_grid.SetNumberCols(cols);
        m_grid.SetUniformRowHeight(1);
        m_grid.SetDefaultRowHeight(rowHeight);
        for (int col = 0; col < cols; ++col)
            m_grid.SetColWidth(col, colWidth);
        m_grid.SetNumberRows(rows);
        m_grid.SetTopRow(rows / 2);
        PumpAll();
        m_block.m_reads = 0;
        m_grid.RedrawAll();
        PumpAll();
        return m_block.m_reads;
    }
    ~CtrlPaintJoinTest() override { m_grid.DestroyWindow(); }

    BlockSource m_block;
};

TEST_F(CtrlPaintJoinTest, EachVisibleCellIsReadOnceAndTheBlocksSidesTwice) {
    // 96 by 30 cells are in view, and the frame of the current cell asks for the block as well.
    const long reads = ReadsOfARepaint(96, 5, 30, 10);
    EXPECT_GE(reads, 96 * 30);
    EXPECT_LE(reads, 96 * 30 + 3 * (96 + 30));
}

TEST_F(CtrlPaintJoinTest, ABlockThatReachesFarOutOfViewCostsAFewReadsMore) {
    const long reads = ReadsOfARepaint(96, 5, 2000000, 10);
    EXPECT_LE(reads, 96 * 31 + 3 * (96 + 31) + 200);
}

// Leaves everything of the device context changed that it can, and notes how it found it.
class UntidyType : public CUGCellType {
public:
    using CUGCellType::CUGCellType;
    void OnDraw(CDC *dc, RECT *, CUGCell *, int, int) override {
        HDC hdc = dc->GetSafeHdc();
        m_found.insert(std::to_string(::GetTextAlign(hdc)) + " " + std::to_string(::GetBkMode(hdc)) + " " +
                       std::to_string(::GetROP2(hdc)) + " " + std::to_string(::GetTextColor(hdc)) + " " +
                       std::to_string(::GetBkColor(hdc)) + " " +
                       (::GetCurrentObject(hdc, OBJ_PEN) == ::GetStockObject(BLACK_PEN) ? "pen " : "- ") +
                       (::GetCurrentObject(hdc, OBJ_BRUSH) == ::GetStockObject(WHITE_BRUSH) ? "brush " : "- ") +
                       (::GetCurrentObject(hdc, OBJ_FONT) == m_font ? "font" : "-"));
        ::SetTextAlign(hdc, TA_RIGHT | TA_BOTTOM);
        ::SetBkMode(hdc, TRANSPARENT);
        ::SetROP2(hdc, R2_NOT);
        ::SetTextColor(hdc, RGB(1, 2, 3));
        ::SetBkColor(hdc, RGB(4, 5, 6));
        ::SelectObject(hdc, ::GetStockObject(WHITE_PEN));
        ::SelectObject(hdc, ::GetStockObject(GRAY_BRUSH));
        ::SelectObject(hdc, ::GetStockObject(SYSTEM_FIXED_FONT));
        ::IntersectClipRect(hdc, 0, 0, 0, 0);
    }
    std::set<std::string> m_found;
    HGDIOBJ m_font = nullptr;
};

TEST_F(GridWindowTest, EachTypeFindsTheDeviceContextAsNew) {
    Fill(4, 10);
    CFont font;
    font.CreateFont(14, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    m_grid.SetDefaultFont(&font);
    UntidyType type(700);
    type.m_font = font.GetSafeHandle();
    m_grid.AddCellType(&type);
    m_grid.SetLockedColumns(2);
    m_grid.SetSH_Width(250);
    // Every other cell is right-aligned text of the base type, the rest is untidy.
    int read = 0;
    m_grid.m_onGetCell = [&](CUGCell *cell) {
        if (++read % 2 == 0)
            cell->SetCellType(700);
        else
            cell->SetAlignment(UG_ALIGN_RIGHT);
    };
    for (HWND window : {m_grid.Cells(), m_grid.TopHeading(), m_grid.SideHeading(), m_grid.Corner()}) {
        type.m_found.clear();
        ::InvalidateRect(window, nullptr, FALSE);
        ::UpdateWindow(window);
        EXPECT_EQ((std::set<std::string>{"0 2 13 0 16777215 pen brush font"}), type.m_found);
    }
    m_grid.m_onGetCell = nullptr;
    m_grid.RemoveCellType(700);
    m_grid.SetDefaultFont(nullptr);
}

TEST_F(GridWindowTest, TheFrameTellsTheGridOfNewSystemColours) {
    Fill(4, 10);
    const COLORREF before = ::GetSysColor(COLOR_WINDOW), rose = RGB(250, 200, 200);
    const int index = COLOR_WINDOW;
    ::SetSysColors(1, &index, &rose);
    m_host.SendMessage(WM_SYSCOLORCHANGE, 0, 0);
    const COLORREF shown = m_grid.m_GI.m_gridDefault.GetBackColor();
    ::SetSysColors(1, &index, &before);
    m_host.SendMessage(WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(rose, shown);
    EXPECT_EQ(before, m_grid.m_GI.m_gridDefault.GetBackColor());
}

} // namespace
