// Keys, clicks and the wheel in the cell area.
#include "GridWindowTest.h"

namespace {

class CtrlInputTest : public GridWindowTest {
protected:
    std::string AfterKeys(std::initializer_list<UINT> keys) {
        std::string all;
        for (UINT key : keys) {
            SendKey(m_grid.Cells(), key);
            all +=
                std::to_string(m_grid.GetCurrentCol()) + "." + std::to_string(m_grid.GetCurrentRow()) + " ";
        }
        return all;
    }
    void Wheel(int delta) { ::SendMessageA(m_grid.Cells(), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0); }
};

TEST_F(CtrlInputTest, KeysMoveTheCurrentCell) {
    Fill(5, 50);
    EXPECT_EQ("1.0 1.1 0.1 0.0 0.12 0.0 4.0 0.0 ",
              AfterKeys({VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP, VK_NEXT, VK_PRIOR, VK_END, VK_HOME}));
    HeldKeys control({VK_CONTROL});
    EXPECT_EQ("0.49 0.0 ", AfterKeys({VK_END, VK_HOME}));
}

TEST_F(CtrlInputTest, AKeyIsToldBeforeItActs) {
    Fill(5, 50);
    SendKey(m_grid.Cells(), VK_DOWN);
    EXPECT_EQ("KeyDown(40,-1) CanMove(0,0,0,1) RowChange(0,1) CellChange(0,0,0,1) KeyUp(40,0)",
              m_grid.Take());
}

TEST_F(CtrlInputTest, TheKeyActsAsTheNotificationLeftIt) {
    Fill(5, 50);
    m_grid.m_onKeyDown = [](UINT *key) { *key = *key == VK_DOWN ? VK_RIGHT : 0; };
    EXPECT_EQ("1.0 1.0 ", AfterKeys({VK_DOWN, VK_UP}));
    m_grid.m_onKeyDown = nullptr;
}

// Answers keys and changes them.
class KeyType : public CUGCellType {
public:
    explicit KeyType(int id) : CUGCellType(id) {}
    int OnKeyDown(UINT *key) override {
        *key = VK_RIGHT;
        return UGCT_HANDLED;
    }
    int OnCharDown(UINT *key) override {
        *key = 'z';
        return 7;
    }
    int OnLClicked(int, long, int updn, RECT *, POINT *) override { return updn != 0 ? m_answer : 5; }
    int OnDClicked(int, long, RECT *, POINT *) override { return 6; }
    int OnMouseMove(POINT *point, UINT) override {
        m_moves += std::to_string(point->x) + " ";
        return 0;
    }
    int m_answer = UGCT_HANDLED;
    std::string m_moves;
};

TEST_F(CtrlInputTest, TheTypeOfTheCurrentCellIsAskedFirst) {
    Fill(5, 50);
    KeyType type(700);
    m_grid.AddCellType(&type);
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetCellType(700); };
    m_grid.GotoCell(1, 1);
    m_grid.Take();
    ::SendMessageA(m_grid.Cells(), WM_KEYDOWN, VK_DOWN, 1);
    SendChar(m_grid.Cells(), 'a');
    EXPECT_EQ("KeyDown(39,-2) CanMove(1,1,2,1) ColChange(1,2) CellChange(1,2,1,1) CharDown(122,7)",
              m_grid.Take());
    m_grid.m_onGetCell = nullptr;
    m_grid.RemoveCellType(700);
}

TEST_F(CtrlInputTest, AClickMovesThenAsksTheTypeThenTells) {
    Fill(5, 50);
    ClickCell(2, 3);
    EXPECT_EQ("CanMove(0,0,2,3) RowChange(0,3) ColChange(0,2) CellChange(0,2,0,3) LClicked(2,3,1,-1) "
              "LClicked(2,3,0,-1)",
              m_grid.Take());
}

TEST_F(CtrlInputTest, ATypeThatWantsTheMouseGetsTheMoves) {
    Fill(5, 50);
    KeyType type(700);
    m_grid.AddCellType(&type);
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetCellType(700); };
    PressCell(1, 1);
    DragToCell(2, 1);
    EXPECT_EQ("250 ", type.m_moves);
    EXPECT_EQ(1, m_grid.GetCurrentCol());
    ReleaseCell(2, 1);
    DragToCell(3, 1);
    EXPECT_EQ("250 ", type.m_moves);
    m_grid.m_onGetCell = nullptr;
    m_grid.RemoveCellType(700);
}

TEST_F(CtrlInputTest, AVetoedClickAsksNoTypeAndIsStillTold) {
    Fill(5, 50);
    m_grid.m_vetoes = {"CanMove"};
    PressCell(2, 3);
    EXPECT_EQ("CanMove(0,0,2,3) LClicked(2,3,1,0)", m_grid.Take());
    ReleaseCell(2, 3);
}

TEST_F(CtrlInputTest, AClickOutsideCellsIsToldWithMinusOne) {
    Fill(2, 3);
    PressLeft(m_grid.Cells(), 300, 200);
    ReleaseLeft(m_grid.Cells(), 300, 200);
    EXPECT_EQ("LClicked(-1,-1,1,0)", m_grid.Take().substr(0, 19));
}

TEST_F(CtrlInputTest, TheMouseIsHeldFromPressToRelease) {
    Fill(5, 50);
    PressCell(1, 1);
    EXPECT_EQ(m_grid.Cells(), ::GetCapture());
    ReleaseCell(1, 1);
    EXPECT_EQ(nullptr, ::GetCapture());
    m_grid.Take();
    ReleaseCell(1, 1); // without a press it says nothing
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlInputTest, AClickOnAPartlyVisibleCellDoesNotScroll) {
    Fill(5, 50);
    // Row 13 shows some pixels at the bottom.
    PressLeft(m_grid.Cells(), 50, m_grid.m_GI.m_rows.m_extent - 1);
    EXPECT_EQ("cur=(0,13) view=(0,0) size=5x50", m_grid.State());
    ReleaseLeft(m_grid.Cells(), 50, m_grid.m_GI.m_rows.m_extent - 1);
    EXPECT_EQ("cur=(0,13) view=(0,1) size=5x50", m_grid.State());
}

TEST_F(CtrlInputTest, ADoubleClickMovesNothing) {
    Fill(5, 50);
    const POINT at = Middle(2, 3);
    ::SendMessageA(m_grid.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ("DClicked(2,3,0)", m_grid.Take());
    EXPECT_EQ("cur=(0,0) view=(0,0) size=5x50", m_grid.State());
}

TEST_F(CtrlInputTest, ADoubleClickOnTheCurrentCellAsksItsType) {
    Fill(5, 50);
    const POINT at = Middle(0, 0);
    ::SendMessageA(m_grid.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ("DClicked(0,0,-1)", m_grid.Take());
}

TEST_F(CtrlInputTest, TheRightButtonMovesToo) {
    Fill(5, 50);
    const POINT at = Middle(2, 3);
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    EXPECT_EQ("CanMove(0,0,2,3) RowChange(0,3) ColChange(0,2) CellChange(0,2,0,3) RClicked(2,3,1,-1) "
              "RClicked(2,3,0,0)",
              m_grid.Take());
}

TEST_F(CtrlInputTest, ThePopupMenuIsAskedForOnlyWhileEnabled) {
    Fill(5, 50);
    m_grid.m_vetoes = {"MenuStart"};
    const POINT at = Middle(0, 0);
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ("RClicked(0,0,1,-1)", m_grid.Take());
    m_grid.EnablePopupMenu(1);
    ::SendMessageA(m_grid.Cells(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_EQ("RClicked(0,0,1,-1) MenuStart(0,0,1)", m_grid.Take());
}

TEST_F(CtrlInputTest, TheWheelScrollsByTheLinesThatTheSystemSays) {
    Fill(5, 100);
    UINT lines = 0;
    ::SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    Wheel(-WHEEL_DELTA);
    EXPECT_EQ(static_cast<long>(lines), m_grid.GetTopRow());
    Wheel(-WHEEL_DELTA / 2);
    EXPECT_EQ(static_cast<long>(lines), m_grid.GetTopRow());
    Wheel(-WHEEL_DELTA / 2);
    EXPECT_EQ(static_cast<long>(2 * lines), m_grid.GetTopRow());
    Wheel(2 * WHEEL_DELTA);
    EXPECT_EQ(0, m_grid.GetTopRow());
    EXPECT_EQ(0, m_grid.GetCurrentRow());
}

TEST_F(CtrlInputTest, ThePopupMenuIsMadeOnceHoweverOftenTheWindowIs) {
    const HMENU menu = m_grid.GetPopupMenu()->GetSafeHmenu();
    m_grid.GetPopupMenu()->AppendMenu(MF_STRING, 1000, "first");
    m_grid.DestroyWindow();
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
    EXPECT_EQ(menu, m_grid.GetPopupMenu()->GetSafeHmenu());
    EXPECT_EQ(1u, m_grid.GetPopupMenu()->GetMenuItemCount());
}

TEST_F(CtrlInputTest, TheWheelScrollsTheCellsWhereverItIsTurned) {
    Fill(20, 100);
    UINT lines = 0;
    ::SystemParametersInfoA(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    long expected = 0;
    for (HWND window : {m_grid.TopHeading(), m_grid.SideHeading(), m_grid.Corner(), m_grid.VBar(), m_grid.HBar(),
                        m_grid.m_hWnd, m_grid.Cells()}) {
        ::SendMessageA(window, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        expected += static_cast<long>(lines);
        EXPECT_EQ(expected, m_grid.GetTopRow());
        expected = m_grid.GetTopRow();
    }
}

TEST_F(CtrlInputTest, FocusOnTheControlGoesToTheCells) {
    Fill(5, 10);
    m_host.SetFocus();
    m_grid.SetFocus();
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
}

TEST_F(CtrlInputTest, DraggingBeyondTheBottomScrollsUntilTheButtonIsReleased) {
    Fill(5, 100);
    m_grid.EnableMultiSelect(1);
    PressCell(1, 5);
    int steps = 0;
    m_grid.m_onCellChanged = [&] {
        if (++steps == 20)
            ::PostMessageA(m_grid.Cells(), WM_LBUTTONUP, 0, MAKELPARAM(150, m_grid.m_GI.m_rows.m_extent - 1));
    };
    // Where nothing scrolls the release comes all the same, some time later.
    constexpr UINT kPatienceMs = 5000;
    const auto release = [](HWND, UINT, UINT_PTR, DWORD) {
        ::PostMessageA(::GetCapture(), WM_LBUTTONUP, 0, MAKELPARAM(150, 10));
    };
    const UINT_PTR timer = ::SetTimer(nullptr, 0, kPatienceMs, release);
    MoveMouse(m_grid.Cells(), 150, m_grid.m_GI.m_rows.m_extent + 30, MK_LBUTTON);
    ::KillTimer(nullptr, timer);
    m_grid.m_onCellChanged = nullptr;
    EXPECT_EQ(25, m_grid.GetCurrentRow());
    EXPECT_GT(m_grid.GetTopRow(), 0);
    PumpUntil("the release of the mouse", [] { return ::GetCapture() == nullptr; });
    EXPECT_EQ(1, m_grid.GetCurrentCol());
    EXPECT_TRUE(m_grid.IsSelected(1, 20));
}

} // namespace
