// Numbers of rows and columns, sizes, and settings of conduct.
#include "GridWindowTest.h"

namespace {

class CtrlSizeTest : public GridWindowTest {
protected:
    int HeightOf(long row) {
        int height = -1;
        m_grid.GetRowHeight(row, &height);
        return height;
    }
    int WidthOf(int col) {
        int width = -1;
        m_grid.GetColWidth(col, &width);
        return width;
    }
};

TEST_F(CtrlSizeTest, FewerThanNoRowsOrColumnsIsAnError) {
    Fill(5, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.SetNumberRows(-1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetNumberCols(-1));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=5x50", m_grid.State());
}

TEST_F(CtrlSizeTest, FewerRowsClampTheTopRowAndMoveTheCurrentRowWithAnUpdate) {
    Fill(5, 50);
    m_grid.GotoCell(2, 49);
    m_grid.Take();
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetNumberRows(20));
    EXPECT_EQ("cur=(2,19) view=(0,7) size=5x20", m_grid.State());
    EXPECT_EQ("RowChange(49,19) CellChange(2,2,49,19)", m_grid.Take());
}

TEST_F(CtrlSizeTest, NoRowsZeroTheRowCursorsWithoutAnUpdate) {
    Fill(5, 50);
    m_grid.GotoCell(2, 49);
    m_grid.Take();
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetNumberRows(0));
    EXPECT_EQ("cur=(2,0) view=(0,0) size=5x0", m_grid.State());
    EXPECT_EQ(0, m_grid.m_GI.m_rows.m_last);
    EXPECT_EQ(0, m_grid.m_GI.m_rows.m_lastLeading);
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlSizeTest, NoColumnsZeroAllFourColumnCursors) {
    Fill(12, 5);
    m_grid.GotoCell(11, 0);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetNumberCols(0));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=0x5", m_grid.State());
    EXPECT_EQ(0, m_grid.m_GI.m_cols.m_last);
    EXPECT_EQ(0, m_grid.m_GI.m_cols.m_lastLeading);
}

TEST_F(CtrlSizeTest, FewerColumnsClampTheCurrentColumn) {
    Fill(12, 5);
    m_grid.GotoCell(11, 3);
    m_grid.Take();
    m_grid.SetNumberCols(6);
    EXPECT_EQ("cur=(5,3) view=(2,0) size=6x5", m_grid.State());
    EXPECT_EQ("ColChange(11,5) CellChange(11,5,3,3)", m_grid.Take());
}

TEST_F(CtrlSizeTest, ColumnsThatStayKeepWidthDefaultAndHeading) {
    Fill(3, 5);
    m_grid.SetColWidth(1, 37);
    m_grid.SetNumberCols(5);
    EXPECT_EQ(37, WidthOf(1));
    EXPECT_EQ(100, WidthOf(4));
    EXPECT_EQ("F2", m_grid.Text(2, -1));
    EXPECT_EQ("", m_grid.Text(4, -1));
}

TEST_F(CtrlSizeTest, From64000RowsOnAllHeightsAreTheDefaultForGood) {
    m_grid.SetNumberCols(1);
    m_grid.SetNumberRows(63999);
    m_grid.SetRowHeight(3, 55);
    EXPECT_EQ(55, HeightOf(3));
    m_grid.SetNumberRows(64000);
    EXPECT_EQ(20, HeightOf(3));
    m_grid.SetNumberRows(10);
    EXPECT_EQ(20, HeightOf(3));
    m_grid.SetRowHeight(3, 33);
    EXPECT_EQ(33, HeightOf(7));
}

TEST_F(CtrlSizeTest, IndividualHeightsComeBackAt64001RowsAndAreRefusedAt64002) {
    m_grid.SetNumberCols(1);
    m_grid.SetNumberRows(64002);
    EXPECT_EQ(GRID_ERROR, m_grid.SetUniformRowHeight(0));
    m_grid.SetNumberRows(64001);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetUniformRowHeight(0));
    m_grid.SetRowHeight(3, 55);
    EXPECT_EQ(55, HeightOf(3));
    EXPECT_EQ(20, HeightOf(4));
}

TEST_F(CtrlSizeTest, SizesOutOfRangeAreErrors) {
    Fill(5, 50);
    int size = 0;
    EXPECT_EQ(GRID_ERROR, m_grid.GetColWidth(5, &size));
    EXPECT_EQ(GRID_ERROR, m_grid.GetColWidth(-1, &size));
    EXPECT_EQ(GRID_ERROR, m_grid.SetColWidth(5, 10));
    EXPECT_EQ(GRID_ERROR, m_grid.SetColWidth(0, -1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetRowHeight(0, -1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetDefaultRowHeight(-1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetTH_Height(-1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetSH_Width(-1));
    m_grid.SetUniformRowHeight(1);
    EXPECT_EQ(GRID_ERROR, m_grid.GetRowHeight(50, &size));
    EXPECT_EQ(GRID_ERROR, m_grid.GetRowHeight(-1, &size));
}

TEST_F(CtrlSizeTest, ABarStandsWhereNotAllFits) {
    Fill(4, 13);
    EXPECT_FALSE(::IsWindowVisible(m_grid.VBar()));
    EXPECT_FALSE(::IsWindowVisible(m_grid.HBar()));
    m_grid.SetNumberRows(20);
    EXPECT_TRUE(::IsWindowVisible(m_grid.VBar()));
    EXPECT_FALSE(::IsWindowVisible(m_grid.HBar()));
    m_grid.SetColWidth(0, 300);
    EXPECT_TRUE(::IsWindowVisible(m_grid.HBar()));
    m_grid.SetColWidth(0, 10);
    EXPECT_FALSE(::IsWindowVisible(m_grid.HBar()));
    m_grid.SetNumberRows(13);
    EXPECT_FALSE(::IsWindowVisible(m_grid.VBar()));
}

TEST_F(CtrlSizeTest, TheChildWindowsHaveTheirIdsAndPlaces) {
    Fill(12, 50);
    const auto place = [&](int id) {
        HWND child = ::GetDlgItem(m_grid.m_hWnd, id);
        RECT rect;
        ::GetWindowRect(child, &rect);
        ::MapWindowPoints(nullptr, m_grid.m_hWnd, reinterpret_cast<POINT *>(&rect), 2);
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," + std::to_string(rect.right) +
               "," + std::to_string(rect.bottom);
    };
    const int bar = m_grid.m_GI.m_vScrollWidth;
    const std::string right = std::to_string(500 - bar);
    const std::string bottom = std::to_string(300 - m_grid.m_GI.m_hScrollHeight);
    EXPECT_EQ("50,20," + right + "," + bottom, place(1));
    EXPECT_EQ("50,0," + right + ",20", place(2));
    EXPECT_EQ("0,20,50," + bottom, place(3));
    EXPECT_EQ("0,0,50,20", place(4));
    EXPECT_EQ(right + ",0,500," + bottom, place(5));
    EXPECT_EQ("0," + bottom + "," + right + ",300", place(6));
}

TEST_F(CtrlSizeTest, HeadingSizesLayTheWindowsOutAnew) {
    Fill(3, 5);
    m_grid.SetTH_Height(33);
    m_grid.SetSH_Width(70);
    EXPECT_EQ(33, m_grid.GetTH_Height());
    EXPECT_EQ(70, m_grid.GetSH_Width());
    EXPECT_EQ(430, m_grid.m_GI.m_cols.m_extent);
    EXPECT_EQ(267, m_grid.m_GI.m_rows.m_extent);
}

TEST_F(CtrlSizeTest, AnInstanceTellsItsSetupOnceAtCreation) {
    RecordingGrid grid;
    grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 100, 100), &m_host, 101);
    EXPECT_EQ("Setup()", grid.Take());
}

TEST_F(CtrlSizeTest, SettingsRefuseWhatIsAboveTheirRange) {
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetCurrentCellStyle(3));
    EXPECT_EQ(GRID_ERROR, m_grid.SetCurrentCellStyle(4));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetVScrollMode(2));
    EXPECT_EQ(GRID_ERROR, m_grid.SetVScrollMode(3));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetHScrollMode(1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetHScrollMode(2));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetBallisticMode(3));
    EXPECT_EQ(GRID_ERROR, m_grid.SetBallisticMode(4));
    EXPECT_EQ(GRID_SUCCESS, m_grid.EnableRowHighlight(9));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetBallisticDelay(25));
    EXPECT_EQ(25, m_grid.m_GI.m_ballisticDelay);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetBallisticDelay(-1));
    EXPECT_EQ(0, m_grid.m_GI.m_ballisticDelay); // less than no time is none
}

TEST_F(CtrlSizeTest, LockedColumnsAreAtMostTheColumns) {
    Fill(3, 5);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetLockedColumns(3));
    EXPECT_EQ(GRID_ERROR, m_grid.SetLockedColumns(4));
    EXPECT_EQ(GRID_ERROR, m_grid.SetLockedColumns(-1));
}

} // namespace
