// What painting reads, and what it leaves behind.
#include "GridWindowTest.h"

#include <algorithm>

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

} // namespace
