// What is told, in which order, for every key that moves. The cell area shows 4 columns and 13 rows whole.
#include "GridWindowTest.h"

namespace {

class OrderKeysTest : public GridWindowTest {
protected:
    OrderKeysTest() { m_grid.m_notesViewChanges = true; }
    // One list of the grid's notifications and the source's calls.
    void Merge() {
        m_grid.m_log = &m_log;
        m_log.Take();
    }
    std::string After(UINT key) {
        m_log.Take();
        SendKey(m_grid.Cells(), key);
        return m_log.Take();
    }
    // From the cell (2,20), with row 8 at the top.
    std::string FromTheMiddle(UINT key) {
        m_grid.GotoCell(2, 0);
        m_grid.GotoCell(2, 20);
        m_grid.SetLeftCol(0);
        m_grid.SetTopRow(8);
        return After(key);
    }
};

TEST_F(OrderKeysTest, TheArrows) {
    Fill(5, 50);
    Merge();
    EXPECT_EQ("KeyDown(37,-1) CanMove(2,20,1,20) ColChange(2,1) CellChange(2,1,20,20) KeyUp(37,0)",
              FromTheMiddle(VK_LEFT));
    EXPECT_EQ("KeyDown(39,-1) CanMove(2,20,3,20) ColChange(2,3) CellChange(2,3,20,20) KeyUp(39,0)",
              FromTheMiddle(VK_RIGHT));
    EXPECT_EQ("KeyDown(38,-1) CanMove(2,20,2,19) RowChange(20,19) CellChange(2,2,20,19) KeyUp(38,0)",
              FromTheMiddle(VK_UP));
    EXPECT_EQ("KeyDown(40,-1) CanMove(2,20,2,21) RowChange(20,21) CellChange(2,2,20,21) TopRowChange(8,9) "
              "KeyUp(40,0)",
              FromTheMiddle(VK_DOWN));
}

TEST_F(OrderKeysTest, TheArrowsWithControlAreTheArrows) {
    Fill(5, 50);
    Merge();
    HeldKeys control({VK_CONTROL});
    EXPECT_EQ("KeyDown(37,-1) CanMove(2,20,1,20) ColChange(2,1) CellChange(2,1,20,20) KeyUp(37,0)",
              FromTheMiddle(VK_LEFT));
    EXPECT_EQ("KeyDown(40,-1) CanMove(2,20,2,21) RowChange(20,21) CellChange(2,2,20,21) TopRowChange(8,9) "
              "KeyUp(40,0)",
              FromTheMiddle(VK_DOWN));
}

TEST_F(OrderKeysTest, ThePageKeys) {
    Fill(5, 50);
    Merge();
    const std::string up = "KeyDown(33,-1) CanMove(2,20,2,8) RowChange(20,8) CellChange(2,2,20,8) KeyUp(33,0)";
    const std::string down =
        "KeyDown(34,-1) CanMove(2,20,2,32) RowChange(20,32) CellChange(2,2,20,32) TopRowChange(8,20) KeyUp(34,0)";
    EXPECT_EQ(up, FromTheMiddle(VK_PRIOR));
    EXPECT_EQ(down, FromTheMiddle(VK_NEXT));
    HeldKeys control({VK_CONTROL});
    EXPECT_EQ(up, FromTheMiddle(VK_PRIOR));
    EXPECT_EQ(down, FromTheMiddle(VK_NEXT));
}

TEST_F(OrderKeysTest, HomeAndEndGoAlongTheRow) {
    Fill(5, 50);
    Merge();
    EXPECT_EQ("KeyDown(36,-1) CanMove(2,20,0,20) ColChange(2,0) CellChange(2,0,20,20) KeyUp(36,0)",
              FromTheMiddle(VK_HOME));
    EXPECT_EQ("KeyDown(35,-1) CanMove(2,20,4,20) ColChange(2,4) CellChange(2,4,20,20) LeftColChange(0,1) "
              "KeyUp(35,0)",
              FromTheMiddle(VK_END));
}

TEST_F(OrderKeysTest, HomeAndEndWithControlGoAlongTheColumn) {
    Fill(5, 50);
    Merge();
    HeldKeys control({VK_CONTROL});
    EXPECT_EQ("KeyDown(36,-1) CanMove(2,20,2,0) RowChange(20,0) CellChange(2,2,20,0) TopRowChange(8,0) "
              "KeyUp(36,0)",
              FromTheMiddle(VK_HOME));
    EXPECT_EQ("KeyDown(35,-1) CanMove(2,20,2,49) RowChange(20,49) CellChange(2,2,20,49) TopRowChange(8,37) "
              "KeyUp(35,0)",
              FromTheMiddle(VK_END));
}

TEST_F(OrderKeysTest, TabAndEnterAreToldAndMoveNothing) {
    Fill(5, 50);
    Merge();
    EXPECT_EQ("KeyDown(9,-1) KeyUp(9,0)", FromTheMiddle(VK_TAB));
    EXPECT_EQ("KeyDown(13,-1) KeyUp(13,0)", FromTheMiddle(VK_RETURN));
}

TEST_F(OrderKeysTest, UpFromTheFirstRowHitsTheTop) {
    Fill(5, 50);
    Merge();
    EXPECT_EQ("KeyDown(38,-1) HitTop(50,-1) KeyUp(38,0)", After(VK_UP));
    EXPECT_EQ("KeyDown(33,-1) KeyUp(33,0)", After(VK_PRIOR)); // a page ends at the first row
}

TEST_F(OrderKeysTest, DownFromTheLastRowAsksForMoreAndHitsTheBottom) {
    Fill(5, 50);
    m_grid.GotoRow(49);
    PumpAll();
    Merge();
    const std::string hit = "src.RequestMoreRows(50,1) HitBottom(50,1,0) ";
    EXPECT_EQ("KeyDown(40,-1) " + hit + "KeyUp(40,0)", After(VK_DOWN));
    EXPECT_EQ("KeyDown(34,-1) " + hit + "KeyUp(34,0)", After(VK_NEXT));
}

TEST_F(OrderKeysTest, DownFromTheLastRowOfAGrowingSourceGoesOn) {
    RecordingSource &source = Fill(5, 50);
    m_grid.GotoRow(49);
    PumpAll();
    Merge();
    source.m_growsBy = 1;
    m_grid.m_onHitBottom = [&] {
        source.m_rows.push_back(source.m_rows.front());
        m_grid.SetNumberRows(51);
    };
    EXPECT_EQ("KeyDown(40,-1) src.RequestMoreRows(50,1) HitBottom(50,1,1) CanMove(0,49,0,50) RowChange(49,50) "
              "CellChange(0,0,49,50) TopRowChange(37,38) KeyUp(40,0)",
              After(VK_DOWN));
    m_grid.m_onHitBottom = nullptr;
}

TEST_F(OrderKeysTest, AVetoedMoveEndsTheListThere) {
    Fill(5, 50);
    Merge();
    m_grid.m_vetoes = {"CanMove"};
    EXPECT_EQ("KeyDown(40,-1) CanMove(0,0,0,1) KeyUp(40,0)", After(VK_DOWN));
}

TEST_F(OrderKeysTest, AKeyThatTheNotificationChangedActsAsChanged) {
    Fill(5, 50);
    Merge();
    m_grid.m_onKeyDown = [](UINT *key) { *key = VK_END; };
    EXPECT_EQ("KeyDown(40,-1) CanMove(0,0,4,0) ColChange(0,4) CellChange(0,4,0,0) LeftColChange(0,1) KeyUp(40,0)",
              After(VK_DOWN));
    m_grid.m_onKeyDown = nullptr;
}

// The type is asked although nothing has moved since the table was filled.
TEST_F(OrderKeysTest, TheFirstCellsTypeGetsItsKeysBeforeAnyMove) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetText("0");
    cell.SetCellType(1);
    m_grid.SetCell(0, 0, &cell);
    PumpAll();
    Merge();
    EXPECT_EQ("SetCell(0,0) KeyDown(32,-2) KeyUp(32,0)", After(VK_SPACE));
    EXPECT_EQ("1.00", m_grid.Text(0, 0));
    ClickLeft(m_grid.Cells(), 8, 10);
    EXPECT_EQ("0.00", m_grid.Text(0, 0));
}

TEST_F(OrderKeysTest, AnEmptyTableIsToldItsKeys) {
    m_grid.Take();
    Merge();
    EXPECT_EQ("KeyDown(33,-1) KeyUp(33,0)", After(VK_PRIOR));
    EXPECT_EQ("KeyDown(35,-1) KeyUp(35,0)", After(VK_END));
}

} // namespace
