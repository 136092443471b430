// What is told, in which order, for the mouse in the cell area, and what the popup menu tells.
#include "GridWindowTest.h"

namespace {

class OrderMouseTest : public GridWindowTest {
protected:
    std::string Taken() { return m_grid.Take(); }
    void Send(UINT message, POINT at, WPARAM flags = 0) {
        ::SendMessageA(m_grid.Cells(), message, flags, MAKELPARAM(at.x, at.y));
    }
    std::string SelectedAfterClicks() {
        ClickCell(1, 1);
        m_grid.Take();
        ClickCell(2, 2);
        return m_grid.Take() + " | " + m_grid.Selected();
    }
    // The popup menu opens and one key after the other goes into it.
    void RightClickAndChoose(std::initializer_list<UINT> keys) {
        for (UINT key : keys)
            ::PostMessageA(m_grid.m_hWnd, WM_KEYDOWN, key, 1);
        Send(WM_RBUTTONDOWN, Middle(1, 2), MK_RBUTTON);
    }
};

const char *const kMoveAndClick = "CanMove(1,1,2,2) RowChange(1,2) ColChange(1,2) CellChange(1,2,1,2) "
                                  "LClicked(2,2,1,-1) LClicked(2,2,0,-1)";

TEST_F(OrderMouseTest, AClick) {
    Fill(5, 50);
    m_grid.EnableMultiSelect(1);
    EXPECT_EQ(std::string(kMoveAndClick) + " | 2.2", SelectedAfterClicks());
}

TEST_F(OrderMouseTest, AClickWithShiftTellsTheSameAndExtends) {
    Fill(5, 50);
    m_grid.EnableMultiSelect(1);
    ClickCell(1, 1);
    m_grid.Take();
    HeldKeys shift({VK_SHIFT});
    ClickCell(2, 2);
    EXPECT_EQ(kMoveAndClick, Taken());
    EXPECT_EQ("1.1 2.1 1.2 2.2", m_grid.Selected());
}

TEST_F(OrderMouseTest, AClickWithControlTellsTheSameAndAdds) {
    Fill(5, 50);
    m_grid.EnableMultiSelect(1);
    ClickCell(1, 1);
    m_grid.Take();
    HeldKeys control({VK_CONTROL});
    ClickCell(2, 2);
    EXPECT_EQ(kMoveAndClick, Taken());
    EXPECT_EQ("1.1 2.2", m_grid.Selected());
}

TEST_F(OrderMouseTest, AClickOnTheCurrentCellMovesNothing) {
    Fill(5, 50);
    ClickCell(0, 0);
    EXPECT_EQ("LClicked(0,0,1,-1) LClicked(0,0,0,-1)", Taken());
}

TEST_F(OrderMouseTest, ADoubleClickBehindItsFirstClick) {
    Fill(5, 50);
    ClickCell(2, 3);
    m_grid.Take();
    Send(WM_LBUTTONDBLCLK, Middle(2, 3), MK_LBUTTON);
    Send(WM_LBUTTONUP, Middle(2, 3));
    EXPECT_EQ("DClicked(2,3,-1)", Taken());
}

TEST_F(OrderMouseTest, ADoubleClickOutsideCells) {
    Fill(2, 3);
    Send(WM_LBUTTONDBLCLK, {300, 200}, MK_LBUTTON);
    EXPECT_EQ("DClicked(-1,-1,0)", Taken());
}

// A button that the second click presses comes up again with the mouse's button.
TEST_F(OrderMouseTest, ADoubleClickThatATypeTakesHoldsTheMouse) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetText("5");
    cell.SetCellType(6);
    m_grid.SetCell(0, 0, &cell);
    m_grid.Take();
    const POINT upper = {92, 4};
    Send(WM_LBUTTONDBLCLK, upper, MK_LBUTTON);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    Send(WM_LBUTTONUP, upper);
    EXPECT_EQ("CellTypeNotify(6,0,0,16) DClicked(0,0,-2) LClicked(0,0,0,-2)", Taken());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(OrderMouseTest, AClickOutsideCells) {
    Fill(2, 3);
    ClickLeft(m_grid.Cells(), 300, 200);
    EXPECT_EQ("LClicked(-1,-1,1,0) LClicked(-1,-1,0,-1)", Taken());
    EXPECT_EQ("cur=(0,0) view=(0,0) size=2x3", m_grid.State());
}

TEST_F(OrderMouseTest, ADragWithinTheCells) {
    Fill(5, 50);
    PressCell(1, 1);
    DragToCell(2, 2);
    DragToCell(2, 2);
    DragToCell(3, 1);
    ReleaseCell(3, 1);
    EXPECT_EQ("CanMove(0,0,1,1) RowChange(0,1) ColChange(0,1) CellChange(0,1,0,1) LClicked(1,1,1,-1) "
              "CanMove(1,1,2,2) RowChange(1,2) ColChange(1,2) CellChange(1,2,1,2) "
              "CanMove(2,2,3,1) RowChange(2,1) ColChange(2,3) CellChange(2,3,2,1) LClicked(3,1,0,-1)",
              Taken());
}

TEST_F(OrderMouseTest, AVetoedMoveIsAskedForAgainAtTheRelease) {
    Fill(5, 50);
    m_grid.m_vetoes = {"CanMove"};
    ClickCell(2, 3);
    EXPECT_EQ("CanMove(0,0,2,3) LClicked(2,3,1,0) CanMove(0,0,2,3) LClicked(2,3,0,-1)", Taken());
}

TEST_F(OrderMouseTest, AMouseThatIsTakenAwayEndsTheDrag) {
    Fill(5, 50);
    PressCell(1, 1);
    ::ReleaseCapture();
    m_grid.Take();
    DragToCell(2, 2);
    ReleaseCell(2, 2);
    EXPECT_EQ("", Taken());
}

// As the system shows the button while a box that came up during the press is closed with the mouse.
void LetGo() {
    BYTE state[256];
    ::GetKeyboardState(state);
    state[VK_LBUTTON] = 0;
    ::SetKeyboardState(state);
}

TEST_F(OrderMouseTest, APressWhoseButtonCameUpMeanwhileHoldsNoMouse) {
    Fill(5, 50);
    m_grid.EnableMultiSelect(1);
    m_grid.StartEdit();
    HeldKeys button({VK_LBUTTON});
    m_grid.m_onEditFinish = LetGo;
    PressCell(2, 2);
    m_grid.m_onEditFinish = nullptr;
    EXPECT_EQ(nullptr, ::GetCapture());
    DragToCell(3, 3);
    EXPECT_EQ("cur=(2,2) view=(0,0) size=5x50", m_grid.State());
    EXPECT_EQ("2.2", m_grid.Selected());
}

TEST_F(OrderMouseTest, APressWhoseButtonIsStillDownHoldsTheMouse) {
    Fill(5, 50);
    m_grid.StartEdit();
    HeldKeys button({VK_LBUTTON});
    PressCell(2, 2);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    ReleaseCell(2, 2);
}

TEST_F(OrderMouseTest, AMoveWithoutTheButtonEndsTheDrag) {
    Fill(5, 50);
    PressCell(1, 1);
    MoveMouse(m_grid.Cells(), 250, 50, 0);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ("cur=(1,1) view=(0,0) size=5x50", m_grid.State());
    DragToCell(3, 3);
    EXPECT_EQ("cur=(1,1) view=(0,0) size=5x50", m_grid.State());
}

TEST_F(OrderMouseTest, ADoubleClickWhoseButtonCameUpMeanwhileHoldsNoMouse) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetText("5");
    cell.SetCellType(6);
    m_grid.SetCell(0, 0, &cell);
    HeldKeys button({VK_LBUTTON});
    m_grid.m_onNote = [](const std::string &name) {
        if (name == "CellTypeNotify")
            LetGo();
    };
    Send(WM_LBUTTONDBLCLK, {92, 4}, MK_LBUTTON);
    m_grid.m_onNote = nullptr;
    EXPECT_EQ(nullptr, ::GetCapture());
}

// What follows a type's button press, and what no type asked for.
class TrackingType : public CUGCellType {
public:
    explicit TrackingType(int id) : CUGCellType(id) {}
    int OnLClicked(int, long, int, RECT *, POINT *) override { return UGCT_HANDLED; }
    int OnMouseMove(POINT *, UINT) override {
        ++m_moves;
        return 0;
    }
    int m_moves = 0;
};

TEST_F(OrderMouseTest, ATypeWhoseMouseWasTakenAwayGetsNoMovesOfTheNextPress) {
    Fill(5, 50);
    TrackingType type(700);
    m_grid.AddCellType(&type);
    CUGCell defaults;
    m_grid.GetColDefault(1, &defaults);
    defaults.SetCellType(700);
    m_grid.SetColDefault(1, &defaults);
    PressCell(1, 1);
    ::ReleaseCapture();
    PressCell(2, 2);
    DragToCell(3, 3);
    EXPECT_EQ(0, type.m_moves);
    EXPECT_EQ("cur=(3,3) view=(0,0) size=5x50", m_grid.State());
    ReleaseCell(3, 3);
    m_grid.RemoveCellType(700);
}

TEST_F(OrderMouseTest, ANotificationThatDragsSomethingOutLeavesTheMouseFree) {
    AfxOleInit();
    Fill(5, 50);
    // Ends at once, without a drop.
    class Cancels : public COleDropSource {
    public:
        SCODE QueryContinueDrag(BOOL, DWORD) override { return DRAGDROP_S_CANCEL; }
    };
    m_grid.m_onLClicked = [&] {
        Cancels source;
        ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0);
        m_grid.StartDrag("text", &source);
    };
    PressCell(1, 1);
    EXPECT_EQ(nullptr, ::GetCapture());
    m_grid.m_onLClicked = nullptr;
    PressCell(2, 1);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    ReleaseCell(2, 1);
}

TEST_F(OrderMouseTest, ARightClickWithThePopupMenuChosenFrom) {
    Fill(5, 50);
    m_grid.EnablePopupMenu(1);
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 1000, "first");
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 1001, "second");
    RightClickAndChoose({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ("CanMove(0,0,1,2) RowChange(0,2) ColChange(0,1) CellChange(0,1,0,2) RClicked(1,2,1,-1) "
              "MenuStart(1,2,1) MenuCommand(1,2,1,1001)",
              Taken());
}

TEST_F(OrderMouseTest, AMenuItemBelowAThousandIsNotTold) {
    Fill(5, 50);
    m_grid.EnablePopupMenu(1);
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 999, "the host's own");
    m_grid.GotoCell(1, 2);
    m_grid.Take();
    RightClickAndChoose({VK_DOWN, VK_RETURN});
    EXPECT_EQ("RClicked(1,2,1,-1) MenuStart(1,2,1)", Taken());
}

TEST_F(OrderMouseTest, AMenuThatEscapeClosesTellsNoCommand) {
    Fill(5, 50);
    m_grid.EnablePopupMenu(1);
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 1000, "first");
    m_grid.GotoCell(1, 2);
    m_grid.Take();
    RightClickAndChoose({VK_DOWN, VK_ESCAPE});
    EXPECT_EQ("RClicked(1,2,1,-1) MenuStart(1,2,1)", Taken());
}

TEST_F(OrderMouseTest, ARightClickOutsideCells) {
    Fill(2, 3);
    m_grid.EnablePopupMenu(1);
    m_grid.m_vetoes = {"MenuStart"};
    Send(WM_RBUTTONDOWN, {300, 200}, MK_RBUTTON);
    Send(WM_RBUTTONUP, {300, 200});
    EXPECT_EQ("RClicked(-1,-1,1,0) MenuStart(-1,-1,1) RClicked(-1,-1,0,0)", Taken());
}

TEST_F(OrderMouseTest, TheBaseRefusesDrops) {
    Fill(2, 3);
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_NONE), m_grid.CUGCtrl::OnDragEnter(nullptr));
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_NONE), m_grid.CUGCtrl::OnDragOver(nullptr, 0, 0));
    EXPECT_EQ(DROPEFFECT(DROPEFFECT_NONE), m_grid.CUGCtrl::OnDragDrop(nullptr, 0, 0));
}

TEST_F(OrderMouseTest, TheListOfADropListCellWritesThatCellOnly) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(3);
    CUGCell cell;
    cell.SetText("one");
    cell.SetCellType(2);
    cell.SetLabelText("one\ntwo\n");
    m_grid.SetCell(0, 0, &cell);
    SendKey(m_grid.Cells(), VK_RETURN);
    const HWND list = ::GetDlgItem(m_grid.m_hWnd, 238);
    ASSERT_NE(nullptr, list);
    m_grid.GotoCell(1, 2); // by the host, while the list is open
    EXPECT_FALSE(::IsWindow(list));
    EXPECT_EQ("", m_grid.Text(-1, -1));
    EXPECT_EQ("one", m_grid.Text(0, 0));
}

TEST_F(OrderMouseTest, AJoinThatBeginsNowhereIsACellAlone) {
    Fill(5, 50);
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetJoin(false, 400, 70000); };
    ClickCell(2, 3);
    EXPECT_EQ("cur=(2,3) view=(0,0) size=5x50", m_grid.State());
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetJoin(false, -3, -3); };
    ClickCell(1, 4);
    EXPECT_EQ("cur=(1,4) view=(0,0) size=5x50", m_grid.State());
    m_grid.m_onGetCell = nullptr;
}

TEST_F(OrderMouseTest, ATableThatShrinksWhileTheMoveIsAskedForIsNotLeft) {
    Fill(5, 50);
    m_grid.m_onCanMove = [&] { m_grid.SetNumberRows(10); };
    EXPECT_EQ(GRID_ERROR, m_grid.GotoCell(2, 30));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=5x10", m_grid.State());
    m_grid.m_onCanMove = nullptr;
}

} // namespace
