// Where cells stand and which cell is at a point.
#include "GridWindowTest.h"

namespace {

class CtrlGeometryTest : public GridWindowTest {
protected:
    std::string At(int x, int y) {
        int col = 77;
        long row = 77;
        RECT rect{};
        const int result = m_grid.GetCellFromPoint(x, y, &col, &row, &rect);
        std::string all = std::to_string(result) + ":" + std::to_string(col) + "," + std::to_string(row);
        if (result == GRID_SUCCESS)
            all += " " + Shown(rect);
        return all;
    }
    std::string RectOf(int col, long row) {
        RECT rect{};
        return m_grid.GetCellRect(col, row, &rect) == GRID_SUCCESS ? Shown(rect) : "none";
    }
    static std::string Shown(const RECT &rect) {
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + ".." +
               std::to_string(rect.right) + "," + std::to_string(rect.bottom);
    }
    void Join(int left, long top, int right, long bottom) {
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col) {
                CUGCell cell;
                cell.SetJoin(row == top && col == left, left, top);
                m_grid.SetCell(col, row, &cell);
            }
        }
    }
};

TEST_F(CtrlGeometryTest, CellsAreFoundByTheirSizesFromTheLeadingOnesOn) {
    Fill(8, 50);
    m_grid.SetColWidth(1, 30);
    EXPECT_EQ("0:0,0 0,0..100,20", At(0, 0));
    EXPECT_EQ("0:0,0 0,0..100,20", At(99, 19));
    EXPECT_EQ("0:1,1 100,20..130,40", At(100, 20));
    EXPECT_EQ("0:2,2 130,40..230,60", At(130, 59));
    m_grid.SetTopRow(10);
    m_grid.SetLeftCol(1);
    EXPECT_EQ("0:1,10 0,0..30,20", At(0, 0));
    EXPECT_EQ("-100,-20..0,0", RectOf(0, 9));
}

TEST_F(CtrlGeometryTest, ACoordinateEqualToTheWidthOrHeightIsStillInside) {
    Fill(8, 50);
    const int width = m_grid.m_GI.m_cols.m_extent;
    const int height = m_grid.m_GI.m_rows.m_extent;
    EXPECT_EQ("0:4", At(width, 0).substr(0, 3));
    EXPECT_EQ("1:-1,-1", At(width + 1, 0));
    EXPECT_EQ("0:0,13", At(0, height).substr(0, 6));
    EXPECT_EQ("1:-1,-1", At(0, height + 1));
    EXPECT_EQ("1:-1,-1", At(-1, 0));
    EXPECT_EQ("1:-1,-1", At(0, -1));
}

TEST_F(CtrlGeometryTest, BehindTheLastCellThereIsNone) {
    Fill(2, 3);
    EXPECT_EQ("1:-1,-1", At(200, 5));
    EXPECT_EQ("1:-1,-1", At(5, 60));
    EXPECT_EQ("0:1,2", At(199, 59).substr(0, 5));
}

TEST_F(CtrlGeometryTest, AnEmptyGridHasNoCellAnywhere) {
    EXPECT_EQ("1:-1,-1", At(0, 0));
    m_grid.SetNumberCols(2);
    EXPECT_EQ("1:-1,-1", At(0, 0));
    EXPECT_EQ("none", RectOf(0, 0));
}

TEST_F(CtrlGeometryTest, AHiddenColumnIsNeverUnderThePointer) {
    Fill(4, 3);
    m_grid.SetColWidth(1, 0);
    EXPECT_EQ("0:2,0 100,0..200,20", At(100, 0));
    EXPECT_EQ("100,0..100,20", RectOf(1, 0));
}

TEST_F(CtrlGeometryTest, AJoinedCellIsItsOriginWithTheWholeBlock) {
    m_grid.SetNumberCols(4);
    m_grid.SetNumberRows(6);
    Join(1, 2, 2, 4);
    EXPECT_EQ("0:1,2 100,40..300,100", At(250, 90));
    EXPECT_EQ("100,40..300,100", RectOf(2, 3));
    EXPECT_EQ("300,40..400,60", RectOf(3, 2));
}

TEST_F(CtrlGeometryTest, TwoBlocksSideBySideStayApart) {
    m_grid.SetNumberCols(4);
    m_grid.SetNumberRows(6);
    Join(0, 0, 1, 1);
    Join(2, 0, 3, 1);
    EXPECT_EQ("0,0..200,40", RectOf(1, 1));
    EXPECT_EQ("200,0..400,40", RectOf(3, 1));
}

TEST_F(CtrlGeometryTest, AJoinsRangeIsItsBlockAndThatOfACellAloneIsTheCell) {
    m_grid.SetNumberCols(4);
    m_grid.SetNumberRows(6);
    Join(1, 2, 2, 4);
    const auto range = [&](int col, long row) {
        int left, right;
        long top, bottom;
        m_grid.GetJoinRange(col, row, &left, &top, &right, &bottom);
        return Shown({left, top, right, bottom});
    };
    EXPECT_EQ("1,2..2,4", range(1, 2));
    EXPECT_EQ("1,2..2,4", range(2, 4));
    EXPECT_EQ("3,2..3,2", range(3, 2));
}

TEST_F(CtrlGeometryTest, AnOriginBehindTheCellOrOutsideTheTableIsNone) {
    m_grid.SetNumberCols(4);
    m_grid.SetNumberRows(6);
    const auto origin = [&](int col, long row) {
        CUGCell cell;
        cell.SetJoin(false, col, row);
        int left = 77;
        long top = 77;
        const bool found = m_grid.GetJoinOrigin(cell, 2, 3, &left, &top);
        return std::to_string(found) + ":" + std::to_string(left) + "," + std::to_string(top);
    };
    EXPECT_EQ("1:1,2", origin(1, 2));
    EXPECT_EQ("1:2,3", origin(2, 3));
    EXPECT_EQ("0:77,77", origin(3, 3));
    EXPECT_EQ("0:77,77", origin(2, 4));
    EXPECT_EQ("0:77,77", origin(-1, 2));
    int left = 77;
    long top = 77;
    EXPECT_FALSE(m_grid.GetJoinOrigin(CUGCell(), 2, 3, &left, &top));
}

// As where the origin is read from another source than the rest of its block.
TEST_F(CtrlGeometryTest, AJoinWhoseOriginKnowsOfNoBlockIsACellAlone) {
    constexpr COLORREF kRed = RGB(255, 0, 0);
    m_grid.SetNumberCols(4);
    m_grid.SetNumberRows(6);
    CUGCell cell;
    cell.SetJoin(false, 1, 2);
    cell.SetBackColor(kRed);
    for (long row = 2; row <= 4; ++row)
        m_grid.SetCell(2, row, &cell);
    EXPECT_EQ("200,60..300,80", RectOf(2, 3));
    EXPECT_EQ("0:2,3 200,60..300,80", At(250, 65));
    m_grid.GotoCell(2, 3);
    EXPECT_EQ("cur=(2,3) view=(0,0) size=4x6", m_grid.State());
    m_grid.Update();
    CDC *dc = m_grid.GetGridDC();
    for (long row = 2; row <= 4; ++row)
        EXPECT_EQ(kRed, ::GetPixel(dc->GetSafeHdc(), 250, static_cast<int>(row) * 20 + 10)) << row;
    m_grid.ReleaseGridDC(dc);
}

} // namespace
