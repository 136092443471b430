// Notifications that throw: the control is as between two events afterwards, and goes on.
#include "GridWindowTest.h"

#include "grid/UGEllipsisType.h"

namespace {

// Is caught by the window procedure, which tells nobody of it.
void Throw() {
    throw new CUserException;
}

class CtrlThrowTest : public GridWindowTest {
protected:
    void ThrowAt(const char *notification) {
        m_grid.m_onNote = [this, notification](const std::string &name) {
            if (name != notification)
                return;
            ++m_thrown;
            Throw();
        };
    }
    void Calm() { m_grid.m_onNote = nullptr; }
    std::string Settings() {
        const CUGGridInfo &state = m_grid.m_GI;
        return "move " + std::to_string(state.m_moveType) + " margin " + std::to_string(state.m_scrollMargin) +
               " painting " + std::to_string(state.m_paintingEnabled) + " adjusting " +
               std::to_string(state.m_adjusting) + " paints " + std::to_string(state.m_paintCol) + " thrown " +
               std::to_string(m_thrown);
    }
    std::string Usual(int thrown) {
        return "move 0 margin 1 painting 1 adjusting 0 paints -1 thrown " + std::to_string(thrown);
    }
    int m_thrown = 0;
};

TEST_F(CtrlThrowTest, OfAMoveByKey) {
    Fill(5, 50);
    ThrowAt("CanMove");
    SendKey(m_grid.Cells(), VK_DOWN);
    Calm();
    EXPECT_EQ(Usual(1), Settings());
}

TEST_F(CtrlThrowTest, OfAMoveByMouse) {
    Fill(5, 50);
    ThrowAt("CanMove");
    PressCell(2, 3);
    Calm();
    EXPECT_EQ(Usual(1), Settings());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(CtrlThrowTest, OfAStepOfTheDragScrolling) {
    Fill(5, 50);
    PressCell(1, 5);
    ThrowAt("CanMove");
    const int below = m_grid.m_GI.m_rows.m_extent + 10;
    MoveMouse(m_grid.Cells(), 50, below, MK_LBUTTON);
    EXPECT_EQ(Usual(1), Settings());
    MoveMouse(m_grid.Cells(), 50, below, MK_LBUTTON); // scrolls again
    Calm();
    EXPECT_EQ(Usual(2), Settings());
    ReleaseCell(1, 5);
}

TEST_F(CtrlThrowTest, OfTheHeadingsSizing) {
    Fill(5, 50);
    PressLeft(m_grid.Corner(), 48, 5);
    ThrowAt("SideHdgSizing");
    MoveMouse(m_grid.Corner(), 58, 5, MK_LBUTTON);
    Calm();
    ReleaseLeft(m_grid.Corner(), 58, 5);
    EXPECT_EQ(Usual(1), Settings());
}

TEST_F(CtrlThrowTest, OfAMoveThatContinuesAnEdit) {
    Fill(5, 50);
    m_grid.StartEdit();
    ThrowAt("CanMove");
    SendKey(m_grid.Edit(), VK_TAB);
    Calm();
    EXPECT_EQ(Usual(1), Settings());
}

class ThrowingType : public CUGCellType {
public:
    using CUGCellType::CUGCellType;
    void OnDraw(CDC *, RECT *, CUGCell *, int, int) override { Throw(); }
};

TEST_F(CtrlThrowTest, OfATypeThatPaints) {
    Fill(5, 50);
    ThrowingType type(700);
    m_grid.AddCellType(&type);
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetCellType(700); };
    m_grid.RedrawAll();
    m_grid.UpdateWindow();
    PumpAll();
    m_grid.m_onGetCell = nullptr;
    EXPECT_EQ(Usual(0), Settings());
    m_grid.RemoveCellType(700);
}

TEST_F(CtrlThrowTest, OfTheQuestionWhetherAnEditMayFinish) {
    Fill(5, 50);
    m_grid.StartEdit();
    TypeText(m_grid.Edit(), "x");
    ThrowAt("EditFinish");
    SendKey(m_grid.Edit(), VK_RETURN);
    Calm();
    EXPECT_EQ(1, m_thrown);
    m_host.SetFocus(); // the box is still to be finished, and is
    EXPECT_EQ("x", m_source->Text(0, 0));
}

} // namespace
