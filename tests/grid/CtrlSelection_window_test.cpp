// Selection by operation, key and mouse.
#include "GridWindowTest.h"

namespace {

class CtrlSelectionTest : public GridWindowTest {
protected:
    void Select(int cols = 5, long rows = 10) {
        Fill(cols, rows);
        m_grid.EnableMultiSelect(1);
    }
    std::string Block() {
        int left = -7, right = -7;
        long top = -7, bottom = -7;
        const int result = m_grid.GetCurrentSelection(&left, &top, &right, &bottom);
        return std::to_string(result) + ":" + std::to_string(left) + "," + std::to_string(top) + ".." +
               std::to_string(right) + "," + std::to_string(bottom);
    }
    std::string Enumerated() {
        int col;
        long row;
        std::string all;
        for (int result = m_grid.EnumFirstSelected(&col, &row); result == GRID_SUCCESS;
             result = m_grid.EnumNextSelected(&col, &row))
            all += std::to_string(col) + "." + std::to_string(row) + " ";
        return all;
    }
};

TEST_F(CtrlSelectionTest, WhileOffNothingIsSelectedAndNothingIsWritten) {
    Fill(5, 10);
    m_grid.SelectRange(1, 1, 2, 2);
    EXPECT_EQ("", m_grid.Selected());
    EXPECT_EQ("0:-7,-7..-7,-7", Block());
    EXPECT_EQ("0.0 ", Enumerated());
    EXPECT_FALSE(m_grid.IsInMultipleSelection());
}

TEST_F(CtrlSelectionTest, TurningItOnStartsABlockAtTheCurrentCell) {
    Fill(5, 10);
    m_grid.GotoCell(2, 3);
    m_grid.EnableMultiSelect(1);
    EXPECT_EQ("2.3", m_grid.Selected());
    EXPECT_EQ("0:2,3..2,3", Block());
    m_grid.EnableMultiSelect(0);
    EXPECT_EQ("", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, WithNoBlockTheCurrentCellIsEnumeratedAndNoBlockIsOpen) {
    Select();
    m_grid.ClearSelections();
    EXPECT_EQ("1:-7,-7..-7,-7", Block());
    EXPECT_EQ("0.0 ", Enumerated());
}

TEST_F(CtrlSelectionTest, ARangeIsEnumeratedRowByRow) {
    Select();
    m_grid.ClearSelections();
    EXPECT_EQ(GRID_SUCCESS, m_grid.SelectRange(2, 4, 1, 3));
    EXPECT_EQ("0:1,3..2,4", Block());
    EXPECT_EQ("1.3 2.3 1.4 2.4 ", Enumerated());
    EXPECT_TRUE(m_grid.IsInMultipleSelection());
}

TEST_F(CtrlSelectionTest, AProgramsMoveStartsANewBlock) {
    Select();
    m_grid.SelectRange(1, 1, 3, 3);
    m_grid.GotoCell(2, 2);
    EXPECT_EQ("2.2", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, AKeyMovesTheSelectionAndShiftExtendsIt) {
    Select();
    SendKey(m_grid.Cells(), VK_DOWN);
    EXPECT_EQ("0.1", m_grid.Selected());
    {
        HeldKeys shift({VK_SHIFT});
        SendKey(m_grid.Cells(), VK_DOWN);
        SendKey(m_grid.Cells(), VK_RIGHT);
    }
    EXPECT_EQ("0.1 1.1 0.2 1.2", m_grid.Selected());
    {
        HeldKeys shift({VK_SHIFT});
        SendKey(m_grid.Cells(), VK_LEFT);
    }
    EXPECT_EQ("0.1 0.2", m_grid.Selected());
    SendKey(m_grid.Cells(), VK_RIGHT);
    EXPECT_EQ("1.2", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, AClickMovesTheSelectionAndShiftExtendsIt) {
    Select();
    ClickCell(1, 2);
    EXPECT_EQ("1.2", m_grid.Selected());
    HeldKeys shift({VK_SHIFT});
    ClickCell(2, 3);
    EXPECT_EQ("1.2 2.2 1.3 2.3", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, ClicksWithControlTurnCellsOver) {
    Select();
    ClickCell(1, 2);
    HeldKeys control({VK_CONTROL});
    ClickCell(3, 4);
    EXPECT_EQ("1.2 3.4", m_grid.Selected());
    ClickCell(0, 0);
    ClickCell(3, 4);
    EXPECT_EQ("0.0 1.2", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, ShiftWinsOverControlInAClick) {
    Select();
    ClickCell(1, 1);
    HeldKeys both({VK_CONTROL, VK_SHIFT});
    ClickCell(2, 1);
    EXPECT_EQ("1.1 2.1", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, ADragExtendsToTheCellUnderThePointer) {
    Select();
    PressCell(1, 1);
    DragToCell(2, 2);
    DragToCell(3, 1);
    EXPECT_EQ("1.1 2.1 3.1", m_grid.Selected());
    ReleaseCell(3, 1);
    EXPECT_EQ("cur=(3,1) view=(0,0) size=5x10", m_grid.State());
    DragToCell(0, 5); // the button is up
    EXPECT_EQ("1.1 2.1 3.1", m_grid.Selected());
}

TEST_F(CtrlSelectionTest, WholeRowHighlightSelectsRowsAndReportsColumnZeroOnce) {
    Fill(3, 5);
    m_grid.EnableRowHighlight(1);
    m_grid.EnableMultiSelect(1);
    ClickCell(2, 1);
    HeldKeys shift({VK_SHIFT});
    ClickCell(1, 2);
    EXPECT_EQ("0.1 1.1 2.1 0.2 1.2 2.2", m_grid.Selected());
    EXPECT_EQ("0.1 0.2 ", Enumerated());
}

TEST_F(CtrlSelectionTest, RowHighlightChangesTheModeOnlyWhileSelectionIsOn) {
    Fill(3, 5);
    m_grid.EnableRowHighlight(1);
    EXPECT_EQ(UG_SELECT_OFF, m_grid.m_GI.m_selection.GetMode());
    m_grid.EnableMultiSelect(1);
    EXPECT_EQ(UG_SELECT_ROWS, m_grid.m_GI.m_selection.GetMode());
    m_grid.EnableRowHighlight(0);
    EXPECT_EQ(UG_SELECT_CELLS, m_grid.m_GI.m_selection.GetMode());
}

TEST_F(CtrlSelectionTest, ABlockInRowModeStartsInColumnOne) {
    Fill(3, 5);
    m_grid.EnableRowHighlight(1);
    m_grid.EnableMultiSelect(1);
    m_grid.GotoCell(2, 3);
    EXPECT_EQ("0:1,3..1,3", Block());
}

} // namespace
