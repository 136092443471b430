// Drag scrolling with the pointer held outside the cells: the steps by mode and direction, what they tell, and
// what ends them. The steps themselves are counted by what they ask or tell, never by time.
#include "GridWindowTest.h"

namespace {

constexpr POINT kRelease = {150, 100};

class DragScrollTest : public GridWindowTest {
protected:
    // Holds the pointer there with the button down, until as many moves were asked for or ends hit.
    void HoldAt(int x, int y, int steps, UINT end = WM_LBUTTONUP) {
        const auto count = [&] {
            if (--steps == 0)
                ::PostMessageA(m_grid.Cells(), end, end == WM_MOUSEMOVE ? MK_LBUTTON : 0,
                               MAKELPARAM(kRelease.x, kRelease.y));
        };
        m_grid.m_onCanMove = m_grid.m_onHitTop = count;
        const auto grow = m_grid.m_onHitBottom;
        m_grid.m_onHitBottom = [&] {
            if (grow)
                grow();
            count();
        };
        MoveMouse(m_grid.Cells(), x, y, MK_LBUTTON);
        m_grid.m_onCanMove = m_grid.m_onHitTop = m_grid.m_onHitBottom = nullptr;
    }
    int BeyondRight(int px) const { return m_grid.m_GI.m_cols.m_extent + px; }
    int BeyondBottom(int px) const { return m_grid.m_GI.m_rows.m_extent + px; }
    void StartAt(int col, long row) {
        m_grid.GotoCell(col, row);
        PressCell(col, row);
        m_grid.Take();
    }
    // The rows or columns that three steps in each mode went to.
    std::string RowsByMode(int y) {
        std::string all;
        for (int mode = 0; mode <= 3; ++mode) {
            StartAt(20, 100);
            m_grid.SetBallisticMode(mode);
            HoldAt(50, y < 0 ? y : BeyondBottom(y), 3);
            all += std::to_string(m_grid.GetCurrentRow()) + " ";
            PumpAll();
        }
        return all;
    }
    std::string ColumnsByMode(int x) {
        std::string all;
        for (int mode = 0; mode <= 3; ++mode) {
            StartAt(20, 100);
            m_grid.SetBallisticMode(mode);
            HoldAt(x < 0 ? x : BeyondRight(x), 50, 3);
            all += std::to_string(m_grid.GetCurrentCol()) + " ";
            PumpAll();
        }
        return all;
    }
    std::string Block() {
        int left = -1, right = -1;
        long top = -1, bottom = -1;
        m_grid.GetCurrentSelection(&left, &top, &right, &bottom);
        return std::to_string(left) + "," + std::to_string(top) + ".." + std::to_string(right) + "," +
               std::to_string(bottom);
    }
};

// Rows are 20 and half columns 50 pixels: all distances here count as two.
TEST_F(DragScrollTest, DownwardsByOneByTheDistanceItsSquareAndItsCube) {
    Fill(40, 200);
    EXPECT_EQ("103 106 112 124 ", RowsByMode(45));
}

TEST_F(DragScrollTest, UpwardsByOneByTheDistanceItsSquareAndItsCube) {
    Fill(40, 200);
    EXPECT_EQ("97 94 88 76 ", RowsByMode(-45));
}

TEST_F(DragScrollTest, ToTheRightTheCubeIsTheSquare) {
    Fill(40, 200);
    EXPECT_EQ("23 26 32 32 ", ColumnsByMode(110));
}

TEST_F(DragScrollTest, ToTheLeftTheCubeIsTheSquare) {
    Fill(40, 200);
    EXPECT_EQ("17 14 8 8 ", ColumnsByMode(-110));
}

TEST_F(DragScrollTest, BothAxesStepEachByItself) {
    Fill(40, 200);
    StartAt(20, 100);
    HoldAt(BeyondRight(10), BeyondBottom(10), 2);
    EXPECT_EQ("CanMove(20,100,21,100) ColChange(20,21) CellChange(20,21,100,100) "
              "CanMove(21,100,21,101) RowChange(100,101) CellChange(21,21,100,101)",
              m_grid.Take());
    PumpAll();
}

TEST_F(DragScrollTest, TheSelectionExtendsWithEveryStep) {
    Fill(40, 200);
    m_grid.EnableMultiSelect(1);
    StartAt(2, 5);
    m_grid.SetBallisticMode(1);
    HoldAt(50, BeyondBottom(65), 4);
    EXPECT_EQ("2,5..2,17", Block());
    EXPECT_EQ("cur=(2,17) view=(0,5) size=40x200", m_grid.State());
    PumpAll();
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(DragScrollTest, AtTheLastRowMoreAreAskedForAndTheBottomIsHit) {
    Fill(5, 50);
    StartAt(1, 48);
    m_grid.SetBallisticMode(1);
    m_grid.m_log = &m_log;
    m_log.Take();
    HoldAt(50, BeyondBottom(45), 3);
    EXPECT_EQ("src.RequestMoreRows(50,1) HitBottom(50,1,0) CanMove(1,48,1,49) RowChange(48,49) "
              "CellChange(1,1,48,49) src.RequestMoreRows(50,2) HitBottom(50,2,0)",
              m_log.Take());
    PumpAll();
    m_grid.m_log = nullptr;
}

TEST_F(DragScrollTest, AGrowingSourceScrollsOn) {
    RecordingSource &source = Fill(5, 50);
    source.m_growsBy = 1;
    m_grid.m_onHitBottom = [&] {
        source.m_rows.push_back(source.m_rows.front());
        m_grid.SetNumberRows(m_grid.GetNumberRows() + 1);
    };
    StartAt(1, 48);
    HoldAt(50, BeyondBottom(5), 5);
    EXPECT_EQ(51, m_grid.GetCurrentRow());
    EXPECT_EQ(52, m_grid.GetNumberRows());
    PumpAll();
}

TEST_F(DragScrollTest, AtTheFirstRowTheTopIsHit) {
    Fill(5, 50);
    StartAt(1, 1);
    HoldAt(50, -10, 2);
    EXPECT_EQ("CanMove(1,1,1,0) RowChange(1,0) CellChange(1,1,1,0) HitTop(50,-1)", m_grid.Take());
    PumpAll();
}

TEST_F(DragScrollTest, TheReleaseEndsItAndIsHandledWhereItHappened) {
    Fill(40, 200);
    StartAt(1, 5);
    HoldAt(50, BeyondBottom(5), 2);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture()); // the release is still to come
    EXPECT_EQ(7, m_grid.GetCurrentRow());
    m_grid.Take();
    PumpAll();
    EXPECT_EQ("CanMove(1,7,1,5) RowChange(7,5) CellChange(1,1,7,5) LClicked(1,5,0,-1)", m_grid.Take());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(DragScrollTest, AMoveBackInsideEndsItAndTheDragGoesOn) {
    Fill(40, 200);
    StartAt(1, 5);
    HoldAt(50, BeyondBottom(5), 2, WM_MOUSEMOVE);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    m_grid.Take();
    PumpAll();
    EXPECT_EQ("CanMove(1,7,1,5) RowChange(7,5) CellChange(1,1,7,5)", m_grid.Take());
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    ReleaseCell(1, 5);
}

TEST_F(DragScrollTest, OtherMessagesAreHandledMeanwhile) {
    Fill(40, 200);
    StartAt(1, 5);
    m_host.TakeMessages();
    ::PostMessageA(m_host.m_hWnd, WM_USER + 5, 1, 2);
    std::string seen;
    m_grid.m_onCellChanged = [&] { seen += m_host.Noted() + ";"; };
    HoldAt(50, BeyondBottom(5), 2);
    m_grid.m_onCellChanged = nullptr;
    EXPECT_EQ("1029(1,2);1029(1,2);", seen);
    PumpAll();
}

TEST_F(DragScrollTest, AVetoStopsTheStep) {
    Fill(40, 200);
    StartAt(1, 5);
    m_grid.m_vetoes = {"CanMove"};
    HoldAt(50, BeyondBottom(5), 1);
    EXPECT_EQ("CanMove(1,5,1,6)", m_grid.Take());
    EXPECT_EQ(5, m_grid.GetCurrentRow());
    m_grid.m_vetoes.clear();
    PumpAll();
}

TEST_F(DragScrollTest, InATableWithoutRowsNothingSteps) {
    Fill(3, 3);
    PressCell(1, 1);
    m_grid.SetNumberRows(0);
    m_grid.Take();
    ::PostMessageA(m_grid.Cells(), WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    // With nothing to step to the loop waits; what waits already ends it.
    MoveMouse(m_grid.Cells(), 50, BeyondBottom(45), MK_LBUTTON);
    EXPECT_EQ("", m_grid.Take());
    PumpAll();
    EXPECT_EQ(nullptr, ::GetCapture());
}

} // namespace
