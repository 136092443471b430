// What is told, in which order, around an edit: the grid's notifications and the source's calls in one list.
#include "GridWindowTest.h"

namespace {

class OrderEditTest : public GridWindowTest {
protected:
    void Open(int col, long row) {
        Fill(3, 5);
        m_grid.GotoCell(col, row);
        m_grid.StartEdit();
        m_grid.m_log = &m_log;
        m_log.Take();
    }
    std::string AfterKey(UINT key) {
        m_log.Take();
        ::SendMessageA(m_grid.Edit(), WM_KEYDOWN, key, 1);
        return m_log.Take();
    }
    std::string Box() { return m_grid.Edit() != nullptr ? WindowText(m_grid.Edit()) : "closed"; }
};

TEST_F(OrderEditTest, ATypedEditThatEnterEnds) {
    Fill(3, 5);
    m_grid.GotoCell(2, 1); // at the row's end, so that row and column change
    m_grid.m_log = &m_log;
    m_grid.m_notesEditSetup = true;
    m_grid.m_onCharDown = [&](UINT *key) { m_grid.StartEdit(static_cast<int>(*key)); };
    m_log.Take();
    SendChar(m_grid.Cells(), 'a');
    TypeText(m_grid.Edit(), "b");
    ::SendMessageA(m_grid.Edit(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ("CharDown(97,-1) SetupEditWindow(2,1,0) EditStart(2,1) EditVerify(2,1,97) EditVerify(2,1,98) "
              "EditVerify(-1,-1,13) EditFinish(2,1) SetCell(2,1) src.SetCell(2,1,ab) EditContinue(2,1,0,2) "
              "CanMove(2,1,0,2) RowChange(1,2) ColChange(2,0) CellChange(2,0,1,2) SetupEditWindow(0,2,0) "
              "EditStart(0,2)",
              m_log.Take());
    m_grid.m_onCharDown = nullptr;
}

TEST_F(OrderEditTest, AnEditThatAKeyStarts) {
    Fill(3, 5);
    m_grid.m_log = &m_log;
    m_grid.m_onKeyDown = [&](UINT *key) {
        if (*key == VK_F2)
            m_grid.StartEdit();
    };
    SendKey(m_grid.Cells(), VK_F2);
    EXPECT_EQ("KeyDown(113,-1) EditStart(0,0) KeyUp(113,0)", m_log.Take());
    m_grid.m_onKeyDown = nullptr;
}

TEST_F(OrderEditTest, Tab) {
    Open(1, 1);
    EXPECT_EQ("EditVerify(-1,-1,9) EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1) EditContinue(1,1,2,1) "
              "CanMove(1,1,2,1) ColChange(1,2) CellChange(1,2,1,1) EditStart(2,1)",
              AfterKey(VK_TAB));
}

TEST_F(OrderEditTest, TabWithShift) {
    Open(0, 1);
    HeldKeys shift({VK_SHIFT});
    EXPECT_EQ("EditVerify(-1,-1,9) EditFinish(0,1) SetCell(0,1) src.SetCell(0,1,0.1) EditContinue(0,1,2,0) "
              "CanMove(0,1,2,0) RowChange(1,0) ColChange(0,2) CellChange(0,2,1,0) EditStart(2,0)",
              AfterKey(VK_TAB));
}

TEST_F(OrderEditTest, UpAndDown) {
    Open(1, 1);
    EXPECT_EQ("EditVerify(-1,-1,38) EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1) EditContinue(1,1,1,0) "
              "CanMove(1,1,1,0) RowChange(1,0) CellChange(1,1,1,0) EditStart(1,0)",
              AfterKey(VK_UP));
    EXPECT_EQ("EditVerify(-1,-1,40) EditFinish(1,0) SetCell(1,0) src.SetCell(1,0,1.0) EditContinue(1,0,1,1) "
              "CanMove(1,0,1,1) RowChange(0,1) CellChange(1,1,0,1) EditStart(1,1)",
              AfterKey(VK_DOWN));
}

TEST_F(OrderEditTest, Escape) {
    Open(1, 1);
    EXPECT_EQ("EditVerify(-1,-1,27)", AfterKey(VK_ESCAPE));
    EXPECT_EQ("closed", Box());
    EXPECT_EQ("1.1", m_source->Text(1, 1));
}

TEST_F(OrderEditTest, LosingTheFocus) {
    Open(1, 1);
    m_host.SetFocus();
    EXPECT_EQ("EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1)", m_log.Take());
    EXPECT_EQ("closed", Box());
}

TEST_F(OrderEditTest, LosingTheFocusWhileSuppressedTellsNothing) {
    Open(1, 1);
    m_grid.SetSuppressFinishOnFocusLoss(1);
    m_host.SetFocus();
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("1.1", Box());
    m_grid.SetSuppressFinishOnFocusLoss(0);
}

TEST_F(OrderEditTest, AVetoOfTheStart) {
    Open(1, 1);
    m_grid.m_vetoes = {"EditStart"};
    EXPECT_EQ("EditVerify(-1,-1,9) EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1) EditContinue(1,1,2,1) "
              "CanMove(1,1,2,1) ColChange(1,2) CellChange(1,2,1,1) EditStart(2,1)",
              AfterKey(VK_TAB));
    EXPECT_EQ("closed", Box());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
}

TEST_F(OrderEditTest, AVetoOfAKey) {
    Open(1, 1);
    m_grid.m_vetoes = {"EditVerify"};
    EXPECT_EQ("EditVerify(-1,-1,13)", AfterKey(VK_RETURN));
    TypeText(m_grid.Edit(), "x");
    EXPECT_EQ("EditVerify(1,1,120)", m_log.Take());
    EXPECT_EQ("1.1", Box());
}

TEST_F(OrderEditTest, AVetoOfTheFinish) {
    Open(1, 1);
    m_grid.m_vetoes = {"EditFinish"};
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(1,1)", AfterKey(VK_RETURN));
    EXPECT_EQ("1.1", Box());
}

TEST_F(OrderEditTest, AVetoOfTheWrite) {
    Open(1, 1);
    m_grid.m_vetoes = {"SetCell"};
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(1,1) SetCell(1,1) EditContinue(1,1,2,1) CanMove(1,1,2,1) "
              "ColChange(1,2) CellChange(1,2,1,1) EditStart(2,1)",
              AfterKey(VK_RETURN));
}

TEST_F(OrderEditTest, AVetoOfTheContinuation) {
    Open(1, 1);
    m_grid.m_vetoes = {"EditContinue"};
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1) EditContinue(1,1,2,1)",
              AfterKey(VK_RETURN));
    EXPECT_EQ("closed", Box());
}

TEST_F(OrderEditTest, AVetoOfTheMoveEditsTheSameCellAgain) {
    Open(1, 1);
    m_grid.m_vetoes = {"CanMove"};
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(1,1) SetCell(1,1) src.SetCell(1,1,1.1) EditContinue(1,1,2,1) "
              "CanMove(1,1,2,1) EditStart(1,1)",
              AfterKey(VK_RETURN));
    EXPECT_EQ("1.1", Box());
}

TEST_F(OrderEditTest, AKeyThatTheNotificationChangedActsAsChanged) {
    Open(1, 1);
    m_grid.m_onEditVerify = [](int col, long, UINT *key) {
        if (col == -1 && *key == VK_RETURN)
            *key = VK_ESCAPE;
    };
    EXPECT_EQ("EditVerify(-1,-1,13)", AfterKey(VK_RETURN));
    EXPECT_EQ("closed", Box());
    m_grid.m_onEditVerify = nullptr;
}

TEST_F(OrderEditTest, ANextCellThatTakesNoEditLeavesNoBox) {
    Open(1, 1);
    m_grid.m_onGetCell = [&](CUGCell *cell) { cell->SetReadOnly(m_grid.GetCurrentCol() == 2); };
    AfterKey(VK_TAB);
    EXPECT_EQ("closed", Box());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
    EXPECT_EQ("cur=(2,1) view=(0,0) size=3x5", m_grid.State());
    m_grid.m_onGetCell = nullptr;
}

TEST_F(OrderEditTest, AScrollEndsTheEditFirst) {
    Fill(3, 50);
    m_grid.StartEdit();
    m_grid.m_log = &m_log;
    m_grid.m_notesViewChanges = true;
    m_log.Take();
    m_grid.SetTopRow(5);
    EXPECT_EQ("CanViewMove(0,0,0,5) TopRowChange(0,5) EditFinish(0,0) SetCell(0,0) src.SetCell(0,0,0.0)",
              m_log.Take());
    EXPECT_EQ("closed", Box());
}

TEST_F(OrderEditTest, AnEditThatStaysOpenStaysWithItsCell) {
    Fill(3, 50);
    m_grid.GotoCell(1, 5);
    m_grid.StartEdit();
    m_grid.SetSuppressFinishOnFocusLoss(1);
    m_grid.SetTopRow(3);
    m_grid.SetColWidth(0, 60);
    CRect box;
    ::GetWindowRect(m_grid.Edit(), &box);
    ::MapWindowPoints(nullptr, m_grid.Cells(), reinterpret_cast<POINT *>(&box), 2);
    EXPECT_EQ(CPoint(60, 40), box.TopLeft());
    m_grid.SetSuppressFinishOnFocusLoss(0);
}

TEST_F(OrderEditTest, AnEditOfARowThatGoesEndsUnwritten) {
    Open(1, 4);
    TypeText(m_grid.Edit(), "x");
    m_grid.SetNumberRows(3);
    EXPECT_EQ("closed", Box());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
    EXPECT_EQ("1.4", m_source->Text(1, 4));
}

} // namespace
