// Moving the current cell and the view. The cell area shows 4 columns and 13 rows.
#include "GridWindowTest.h"

namespace {

class CtrlMoveTest : public GridWindowTest {};

TEST_F(CtrlMoveTest, GoingToTheSameCellSucceedsAndFiresNothing) {
    Fill(5, 50);
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCell(0, 0));
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlMoveTest, AVetoedMoveIsRefusedAndLeavesTheCurrentCell) {
    Fill(5, 50);
    m_grid.m_vetoes = {"CanMove"};
    EXPECT_EQ(GRID_REFUSED, m_grid.GotoCell(1, 2));
    EXPECT_EQ(GRID_REFUSED, m_grid.GotoRow(2));
    EXPECT_EQ(GRID_REFUSED, m_grid.GotoCol(2));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=5x50", m_grid.State());
    EXPECT_EQ("CanMove(0,0,1,2) CanMove(0,0,0,2) CanMove(0,0,2,0)", m_grid.Take());
}

TEST_F(CtrlMoveTest, TheUpdateTellsRowColumnCellThenTheView) {
    Fill(10, 50);
    m_grid.m_notesViewChanges = true;
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCell(7, 30));
    EXPECT_EQ("CanMove(0,0,7,30) RowChange(0,30) ColChange(0,7) CellChange(0,7,0,30) TopRowChange(0,18) "
              "LeftColChange(0,4)",
              m_grid.Take());
}

TEST_F(CtrlMoveTest, AMoveAlongOneAxisTellsThatAxisOnly) {
    Fill(5, 50);
    m_grid.GotoRow(3);
    EXPECT_EQ("CanMove(0,0,0,3) RowChange(0,3) CellChange(0,0,0,3)", m_grid.Take());
    m_grid.GotoCol(2);
    EXPECT_EQ("CanMove(0,3,2,3) ColChange(0,2) CellChange(0,2,3,3)", m_grid.Take());
}

TEST_F(CtrlMoveTest, AColumnOutOfRangeIsAnErrorBeforeAnyQuestion) {
    Fill(5, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(5, 60));
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(-1, 0));
    EXPECT_EQ("", m_grid.Take());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(CtrlMoveTest, ARowPastTheEndAsksForMoreRowsThenHitsTheBottom) {
    Fill(5, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(0, 52));
    EXPECT_EQ("src.RequestMoreRows(50,3)", m_log.Take());
    EXPECT_EQ("HitBottom(50,3,0)", m_grid.Take());
}

TEST_F(CtrlMoveTest, RowsFoundArePassedOnAndTheMoveSucceedsWhenTheyCoverTheRow) {
    RecordingSource &source = Fill(5, 50);
    source.m_growsBy = 4;
    m_grid.m_onHitBottom = [&] {
        source.m_rows.resize(54, source.m_rows.front());
        m_grid.SetNumberRows(54);
    };
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCell(0, 52));
    EXPECT_EQ("HitBottom(50,3,4) CanMove(0,0,0,52) RowChange(0,52) CellChange(0,0,0,52)", m_grid.Take());
    m_grid.m_onHitBottom = nullptr;
}

TEST_F(CtrlMoveTest, ARowAboveTheFirstHitsTheTop) {
    Fill(5, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(0, -2));
    EXPECT_EQ("HitTop(50,-2)", m_grid.Take());
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoRow(-1));
    EXPECT_EQ("HitTop(50,-1)", m_grid.Take());
}

TEST_F(CtrlMoveTest, GoingToARowOrColumnAloneClamps) {
    Fill(5, 50);
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoRow(80));
    EXPECT_EQ(49, m_grid.GetCurrentRow());
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCol(80));
    EXPECT_EQ(4, m_grid.GetCurrentCol());
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCol(-3));
    EXPECT_EQ(0, m_grid.GetCurrentCol());
}

TEST_F(CtrlMoveTest, TheCurrentRowMovesByEveryStep) {
    Fill(5, 50);
    std::string rows;
    for (int how : {1, 1, 0, 3, 3, 2, 5, 3, 4, 0, 2}) {
        EXPECT_EQ(GRID_SUCCESS, m_grid.MoveCurrentRow(how));
        rows += std::to_string(m_grid.GetCurrentRow()) + " ";
    }
    EXPECT_EQ("1 2 1 13 25 13 49 49 0 0 0 ", rows);
}

TEST_F(CtrlMoveTest, TheCurrentColumnMovesByEveryStep) {
    Fill(12, 5);
    std::string cols;
    for (int how : {1, 1, 0, 3, 3, 2, 5, 4, 0}) {
        EXPECT_EQ(GRID_SUCCESS, m_grid.MoveCurrentCol(how));
        cols += std::to_string(m_grid.GetCurrentCol()) + " ";
    }
    EXPECT_EQ("1 2 1 4 7 4 11 0 0 ", cols);
}

TEST_F(CtrlMoveTest, APageToTheRightFromTheFirstColumnStays) {
    Fill(12, 5);
    EXPECT_EQ(GRID_SUCCESS, m_grid.MoveCurrentCol(3));
    EXPECT_EQ(0, m_grid.GetCurrentCol());
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlMoveTest, AnUnknownSelectorIsABadArgumentToTheCurrentMoves) {
    Fill(5, 50);
    EXPECT_EQ(GRID_BAD_ARGUMENT, m_grid.MoveCurrentRow(6));
    EXPECT_EQ(GRID_BAD_ARGUMENT, m_grid.MoveCurrentRow(-1));
    EXPECT_EQ(GRID_BAD_ARGUMENT, m_grid.MoveCurrentCol(6));
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlMoveTest, TheTopRowMovesByEveryStep) {
    Fill(5, 50);
    std::string rows;
    for (int how : {1, 1, 0, 3, 3, 2, 5, 4}) {
        EXPECT_EQ(GRID_SUCCESS, m_grid.MoveTopRow(how)) << how;
        rows += std::to_string(m_grid.GetTopRow()) + " ";
    }
    EXPECT_EQ("1 2 1 13 25 13 37 0 ", rows);
    EXPECT_EQ(0, m_grid.GetCurrentRow());
}

TEST_F(CtrlMoveTest, TheLeftColumnMovesByEveryStep) {
    Fill(12, 50);
    std::string cols;
    for (int how : {1, 1, 0, 3, 2, 5, 4}) {
        EXPECT_EQ(GRID_SUCCESS, m_grid.MoveLeftCol(how)) << how;
        cols += std::to_string(m_grid.GetLeftCol()) + " ";
    }
    EXPECT_EQ("1 2 1 4 1 8 0 ", cols);
}

TEST_F(CtrlMoveTest, TheViewAtItsEndsDoesNotMove) {
    Fill(12, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.MoveTopRow(0));
    EXPECT_EQ("HitTop(50,-1)", m_grid.Take());
    EXPECT_EQ(GRID_ERROR, m_grid.MoveLeftCol(0));
    m_grid.MoveTopRow(5);
    m_grid.MoveLeftCol(5);
    m_grid.Take();
    m_log.Take();
    EXPECT_EQ(GRID_ERROR, m_grid.MoveTopRow(1));
    EXPECT_EQ("HitBottom(50,1,0)", m_grid.Take());
    EXPECT_EQ(GRID_ERROR, m_grid.MoveLeftCol(1));
}

TEST_F(CtrlMoveTest, AVetoedViewMoveIsRefused) {
    Fill(12, 50);
    m_grid.m_vetoes = {"CanViewMove"};
    EXPECT_EQ(GRID_REFUSED, m_grid.MoveTopRow(1));
    EXPECT_EQ(GRID_REFUSED, m_grid.MoveLeftCol(1));
    EXPECT_EQ(GRID_REFUSED, m_grid.SetTopRow(3));
    EXPECT_EQ(GRID_REFUSED, m_grid.SetLeftCol(3));
    EXPECT_EQ("CanViewMove(0,0,0,1) CanViewMove(0,0,1,0) CanViewMove(0,0,0,3) CanViewMove(0,0,3,0)",
              m_grid.Take());
    EXPECT_EQ("cur=(0,0) view=(0,0) size=12x50", m_grid.State());
}

TEST_F(CtrlMoveTest, SettingTheViewWhereItIsSucceedsAndAsksNothing) {
    Fill(12, 50);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetTopRow(0));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetLeftCol(0));
    EXPECT_EQ("", m_grid.Take());
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetTopRow(20));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetLeftCol(2));
    EXPECT_EQ("cur=(0,0) view=(2,20) size=12x50", m_grid.State());
    EXPECT_EQ(GRID_ERROR, m_grid.SetTopRow(49));
    EXPECT_EQ(GRID_ERROR, m_grid.SetLeftCol(9));
    EXPECT_EQ(GRID_ERROR, m_grid.SetLeftCol(-1));
}

TEST_F(CtrlMoveTest, ThePagePastTheBottomIsReckonedFromTheLargestTopRow) {
    Fill(12, 50);
    EXPECT_EQ(GRID_ERROR, m_grid.SetTopRow(55));
    EXPECT_EQ("src.RequestMoreRows(50,6)", m_log.Take());
    EXPECT_EQ("HitBottom(50,18,0)", m_grid.Take());
}

TEST_F(CtrlMoveTest, AMoveToARowBelowTheViewScrollsJustFarEnough) {
    Fill(5, 50);
    m_grid.GotoRow(12);
    EXPECT_EQ(0, m_grid.GetTopRow());
    m_grid.GotoRow(13);
    EXPECT_EQ(1, m_grid.GetTopRow());
    m_grid.GotoRow(40);
    EXPECT_EQ(28, m_grid.GetTopRow());
    m_grid.GotoRow(20);
    EXPECT_EQ(20, m_grid.GetTopRow());
}

TEST_F(CtrlMoveTest, ARowHigherThanTheViewBecomesTheTopRow) {
    Fill(5, 50);
    m_grid.SetRowHeight(30, 1000);
    m_grid.GotoRow(30);
    EXPECT_EQ(30, m_grid.GetTopRow());
}

TEST_F(CtrlMoveTest, AJoinedCellIsEnteredAtItsOrigin) {
    m_grid.SetNumberCols(5);
    m_grid.SetNumberRows(10);
    for (long row : {2, 3}) {
        for (int col : {1, 2}) {
            CUGCell cell;
            cell.SetJoin(row == 2 && col == 1, 1, 2);
            m_grid.SetCell(col, row, &cell);
        }
    }
    m_grid.Take();
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCell(2, 3));
    EXPECT_EQ("CanMove(0,0,1,2) RowChange(0,2) ColChange(0,1) CellChange(0,1,0,2)", m_grid.Take());
    m_grid.MoveCurrentRow(1);
    EXPECT_EQ(4, m_grid.GetCurrentRow());
    m_grid.GotoCell(1, 2);
    m_grid.MoveCurrentCol(1);
    EXPECT_EQ(3, m_grid.GetCurrentCol());
    m_grid.GotoCell(1, 2);
    m_grid.MoveCurrentCol(0);
    EXPECT_EQ(0, m_grid.GetCurrentCol());
}

class CtrlMoveJoinTest : public CtrlMoveTest {
protected:
    // Five columns and ten rows with one block.
    void Block(int left, long top, int right, long bottom) {
        m_grid.SetNumberCols(5);
        m_grid.SetNumberRows(10);
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col) {
                CUGCell cell;
                cell.SetJoin(row == top && col == left, left, top);
                m_grid.SetCell(col, row, &cell);
            }
        }
    }
    std::string At() {
        return std::to_string(m_grid.GetCurrentCol()) + "." + std::to_string(m_grid.GetCurrentRow());
    }
};

TEST_F(CtrlMoveJoinTest, ABlockAtTheEndOfTheTableIsNotLeftDownwardsAndLeftUpwards) {
    Block(1, 7, 2, 9);
    m_grid.GotoCell(1, 7);
    m_grid.MoveCurrentRow(UG_MOVE_FORWARD);
    EXPECT_EQ("1.7", At());
    m_grid.MoveCurrentRow(UG_MOVE_BACK);
    EXPECT_EQ("1.6", At());
    m_grid.MoveCurrentRow(UG_MOVE_LAST);
    EXPECT_EQ("1.7", At());
    m_grid.MoveCurrentRow(UG_MOVE_LAST);
    EXPECT_EQ("1.7", At());
    m_grid.MoveCurrentRow(UG_MOVE_BACK);
    EXPECT_EQ("1.6", At());
}

TEST_F(CtrlMoveJoinTest, ABlockAtTheLastColumnIsNotLeftToTheRight) {
    Block(3, 2, 4, 3);
    m_grid.GotoCell(3, 2);
    m_grid.MoveCurrentCol(UG_MOVE_FORWARD);
    EXPECT_EQ("3.2", At());
    m_grid.MoveCurrentCol(UG_MOVE_BACK);
    EXPECT_EQ("2.2", At());
}

TEST_F(CtrlMoveJoinTest, AStepIntoABlockGoesToItsOrigin) {
    Block(1, 3, 2, 5);
    m_grid.GotoCell(2, 2);
    m_grid.MoveCurrentRow(UG_MOVE_FORWARD);
    EXPECT_EQ("1.3", At());
    m_grid.GotoCell(2, 6);
    m_grid.MoveCurrentRow(UG_MOVE_BACK);
    EXPECT_EQ("1.3", At());
    m_grid.GotoCell(3, 4);
    m_grid.MoveCurrentCol(UG_MOVE_BACK);
    EXPECT_EQ("1.3", At());
    m_grid.GotoCell(0, 4);
    m_grid.MoveCurrentCol(UG_MOVE_FORWARD);
    EXPECT_EQ("1.3", At());
}

TEST_F(CtrlMoveTest, AnEmptyTableIsAskedForRowsByAMove) {
    RecordingSource &source = Fill(3, 0);
    m_grid.m_log = &m_log;
    m_grid.MoveCurrentRow(UG_MOVE_FORWARD);
    EXPECT_EQ("src.RequestMoreRows(0,1) HitBottom(0,1,0)", m_log.Take());
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(1, 0));
    EXPECT_EQ("src.RequestMoreRows(0,1) HitBottom(0,1,0)", m_log.Take());
    source.m_growsBy = 1;
    m_grid.m_onHitBottom = [&] { m_grid.SetNumberRows(1); };
    EXPECT_EQ(GRID_SUCCESS, m_grid.GotoCell(1, 0));
    EXPECT_EQ("cur=(1,0) view=(0,0) size=3x1", m_grid.State());
    m_grid.m_onHitBottom = nullptr;
    m_grid.m_log = nullptr;
}

TEST_F(CtrlMoveTest, AnEmptyGridMovesNowhere) {
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(0, 0));
    EXPECT_EQ(GRID_ERROR, m_grid.GotoRow(0));
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCol(0));
}

TEST_F(CtrlMoveTest, TheCurrentCellIsBroughtIntoViewWithoutMoving) {
    Fill(12, 50);
    m_grid.GotoCell(11, 40);
    m_grid.SetTopRow(0);
    m_grid.SetLeftCol(0);
    m_grid.Take();
    m_grid.BringCurrentIntoView();
    EXPECT_EQ("cur=(11,40) view=(8,28) size=12x50", m_grid.State());
    EXPECT_EQ("", m_grid.Take());
}

// A host that sets the state block itself has it told by this.
TEST_F(CtrlMoveTest, TheUpdateTellsWhatChangedSinceTheLastOneAndNothingTwice) {
    Fill(4, 10);
    m_grid.m_GI.m_rows.m_current = 3;
    m_grid.UpdateState();
    EXPECT_EQ("RowChange(0,3) CellChange(0,0,0,3)", m_grid.Take());
    m_grid.UpdateState();
    EXPECT_EQ("", m_grid.Take());
}

} // namespace
