// Whole columns and rows selected by their headings: clicks, drags beyond the cells, keys.
#include "EditorWindowTest.h"

namespace {

class EditorSelectionTest : public EditorWindowTest {
protected:
    void ClickTop(TestEditor &editor, int x) { ClickLeft(editor.TopHeading(), x, 5); }
    void ClickSide(TestEditor &editor, int y) { ClickLeft(editor.SideHeading(), 5, y); }
    void Key(TestEditor &editor, UINT key) { ::SendMessageA(editor.Cells(), WM_KEYDOWN, key, 1); }
    // Columns of 60 pixels in rows of 18, so that points are easy to reckon.
    TestEditor &OpenEven(int fields, long rows) {
        TestEditor &editor = Open(fields, rows);
        for (int col = 0; col < fields; ++col)
            editor.SetColWidth(col, 60);
        return editor;
    }
    // Ends a loop that scrolls on by itself: the release waits already.
    void DragOut(TestEditor &editor, CPoint point) {
        editor.SetCapture();
        ::PostMessageA(editor.m_hWnd, WM_LBUTTONUP, 0, 0);
        ::SendMessageA(editor.m_hWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        PumpAll();
    }
    CSize CellArea(TestEditor &editor) {
        CRect cells;
        ::GetClientRect(editor.Cells(), &cells);
        return cells.Size();
    }
};

TEST_F(EditorSelectionTest, AClickOnAHeadingSelectsItsColumn) {
    TestEditor &editor = OpenEven(4, 6);
    editor.GotoCell(0, 3);
    PressLeft(editor.TopHeading(), 130, 5);
    EXPECT_EQ("2,0..2,5 mode=1 anchor=(2,-1)", editor.Selection());
    EXPECT_EQ("cur=(2,3) size=4x6", editor.State());
    EXPECT_EQ(editor.m_hWnd, ::GetCapture());
    ReleaseLeft(editor.m_hWnd, 130, 5);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ("2,0..2,5 mode=1 anchor=(2,-1)", editor.Selection()); // the mode stays
}

TEST_F(EditorSelectionTest, AClickWithShiftSelectsFromTheAnchor) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    HeldKeys shift({VK_SHIFT});
    ClickTop(editor, 190);
    EXPECT_EQ("1,0..3,5 mode=1 anchor=(1,-1)", editor.Selection());
    ClickTop(editor, 10);
    EXPECT_EQ("0,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, AClickOnTheSideSelectsItsRowFromTheFirstColumn) {
    TestEditor &editor = OpenEven(4, 6);
    editor.GotoCell(3, 0);
    ClickSide(editor, 18 * 2 + 5);
    EXPECT_EQ("0,2..3,2 mode=2 anchor=(-1,2)", editor.Selection());
    EXPECT_EQ("cur=(0,2) size=4x6", editor.State());
    HeldKeys shift({VK_SHIFT});
    ClickSide(editor, 18 * 4 + 5);
    EXPECT_EQ("0,2..3,4 mode=2 anchor=(-1,2)", editor.Selection());
}

TEST_F(EditorSelectionTest, AClickOnTheCornerSelectsEverything) {
    TestEditor &editor = OpenEven(4, 6);
    editor.GotoCell(2, 2);
    ClickLeft(editor.Corner(), 5, 5);
    EXPECT_EQ("0,0..3,5 mode=0 anchor=(-1,-1)", editor.Selection());
    EXPECT_EQ("cur=(0,0) size=4x6", editor.State());
}

TEST_F(EditorSelectionTest, AHeadingClickEndsTheEditInProgress) {
    TestEditor &editor = OpenEven(4, 6);
    editor.StartEdit();
    ::SetWindowTextA(editor.Edit(), "typed");
    ClickTop(editor, 70);
    EXPECT_EQ("typed", m_source->Text(0, 0));
    EXPECT_EQ(nullptr, editor.Edit());
}

TEST_F(EditorSelectionTest, AClickRightOfTheColumnsSelectsNothing) {
    TestEditor &editor = OpenEven(2, 6);
    ClickTop(editor, 300);
    EXPECT_EQ("0,0..0,0 mode=0 anchor=(-1,-1)", editor.Selection());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(EditorSelectionTest, DraggingOverTheCellsTakesInTheColumnsPassed) {
    TestEditor &editor = OpenEven(4, 6);
    PressLeft(editor.TopHeading(), 70, 5);
    const int side = editor.GetSH_Width();
    MoveMouse(editor.m_hWnd, side + 190, 40, MK_LBUTTON);
    EXPECT_EQ("1,0..3,5 mode=1 anchor=(1,-1)", editor.Selection());
    MoveMouse(editor.m_hWnd, side + 10, 40, MK_LBUTTON);
    EXPECT_EQ("0,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
    ReleaseLeft(editor.m_hWnd, 0, 0);
}

TEST_F(EditorSelectionTest, DraggingDownTheSideTakesInTheRowsPassed) {
    TestEditor &editor = OpenEven(4, 6);
    PressLeft(editor.SideHeading(), 5, 18 + 5);
    MoveMouse(editor.m_hWnd, 70, editor.GetTH_Height() + 18 * 3 + 5, MK_LBUTTON);
    EXPECT_EQ("0,1..3,3 mode=2 anchor=(-1,1)", editor.Selection());
    ReleaseLeft(editor.m_hWnd, 0, 0);
}

TEST_F(EditorSelectionTest, PastTheBottomBySixtyJumpsNineRowsAndByNineteenOne) {
    TestEditor &editor = OpenEven(2, 200);
    ClickSide(editor, 5);
    const int bottom = editor.GetTH_Height() + CellArea(editor).cy;
    DragOut(editor, {70, bottom + 60});
    EXPECT_EQ("0,0..1,9 mode=2 anchor=(-1,0)", editor.Selection());
    DragOut(editor, {70, bottom + 19});
    EXPECT_EQ("0,0..1,10 mode=2 anchor=(-1,0)", editor.Selection());
    DragOut(editor, {70, editor.GetTH_Height() - 60});
    EXPECT_EQ("0,0..1,1 mode=2 anchor=(-1,0)", editor.Selection());
    DragOut(editor, {70, editor.GetTH_Height() - 19});
    EXPECT_EQ("0,0..1,0 mode=2 anchor=(-1,0)", editor.Selection());
}

TEST_F(EditorSelectionTest, PastTheRightEdgeColumnsCountInFiftyPixels) {
    TestEditor &editor = OpenEven(30, 4);
    ClickTop(editor, 5);
    const int right = editor.GetSH_Width() + CellArea(editor).cx;
    DragOut(editor, {right + 150, 30});
    EXPECT_EQ("0,0..9,3 mode=1 anchor=(0,-1)", editor.Selection());
    DragOut(editor, {right + 49, 30});
    EXPECT_EQ("0,0..10,3 mode=1 anchor=(0,-1)", editor.Selection());
    DragOut(editor, {editor.GetSH_Width() - 100, 30});
    EXPECT_EQ("0,0..6,3 mode=1 anchor=(0,-1)", editor.Selection());
    DragOut(editor, {editor.GetSH_Width() - 10, 30});
    EXPECT_EQ("0,0..5,3 mode=1 anchor=(0,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, ScrollingStopsAtTheLastRow) {
    TestEditor &editor = OpenEven(2, 40);
    ClickSide(editor, 5);
    editor.SetCapture();
    // No release waits: only the limit ends it.
    ::SendMessageA(editor.m_hWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(70, 2000));
    EXPECT_EQ("0,0..1,39 mode=2 anchor=(-1,0)", editor.Selection());
    ReleaseLeft(editor.m_hWnd, 0, 0);
}

TEST_F(EditorSelectionTest, WithoutAHeadingSelectionMovesOfTheMouseDoNothing) {
    TestEditor &editor = OpenEven(4, 6);
    MoveMouse(editor.m_hWnd, 1000, 1000, MK_LBUTTON);
    EXPECT_EQ("0,0..0,0 mode=0 anchor=(-1,-1)", editor.Selection());
}

// --- Keys

TEST_F(EditorSelectionTest, RightAndLeftWithShiftExtendAColumnSelection) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_RIGHT);
    EXPECT_EQ("1,0..2,5 mode=1 anchor=(1,-1)", editor.Selection());
    Key(editor, VK_LEFT);
    Key(editor, VK_LEFT);
    EXPECT_EQ("0,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
    Key(editor, VK_LEFT);
    EXPECT_EQ("0,0..1,5 mode=1 anchor=(1,-1)", editor.Selection()); // there is none further
}

TEST_F(EditorSelectionTest, UpAndDownInAColumnSelectionBothExtendItToTheRight) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 10);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,0..1,5 mode=1 anchor=(0,-1)", editor.Selection());
    Key(editor, VK_UP);
    EXPECT_EQ("0,0..2,5 mode=1 anchor=(0,-1)", editor.Selection());
    Key(editor, VK_UP);
    Key(editor, VK_UP);
    EXPECT_EQ("0,0..3,5 mode=1 anchor=(0,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, UpAndDownWithShiftExtendARowSelection) {
    TestEditor &editor = OpenEven(4, 6);
    ClickSide(editor, 18 + 5);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,1..3,2 mode=2 anchor=(-1,1)", editor.Selection());
    Key(editor, VK_UP);
    Key(editor, VK_UP);
    Key(editor, VK_UP);
    EXPECT_EQ("0,0..3,1 mode=2 anchor=(-1,1)", editor.Selection());
}

TEST_F(EditorSelectionTest, ShiftAndControlAloneLeaveAHeadingSelection) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    Key(editor, VK_SHIFT);
    Key(editor, VK_CONTROL);
    HeldKeys control({VK_CONTROL});
    Key(editor, 'C');
    EXPECT_EQ("1,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, AnotherKeyEndsAHeadingSelection) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    Key(editor, VK_NEXT);
    EXPECT_EQ("mode=0 anchor=(-1,-1)", editor.Selection().substr(editor.Selection().find("mode")));
    EXPECT_FALSE(editor.IsInMultipleSelection());
}

TEST_F(EditorSelectionTest, EscapeAndAClickInTheCellsEndAHeadingSelection) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    Key(editor, VK_ESCAPE);
    EXPECT_EQ("1,0..1,0 mode=0 anchor=(-1,-1)", editor.Selection());
    EXPECT_EQ("", m_host.TakeMessages());
    ClickSide(editor, 5);
    ClickLeft(editor.Cells(), 70, 40);
    EXPECT_EQ("1,2..1,2 mode=0 anchor=(-1,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, DeleteOnSelectedRowsDeletesThem) {
    TestEditor &editor = OpenEven(2, 6);
    editor.SelectRows(1, 3);
    Key(editor, VK_DELETE);
    EXPECT_EQ(3, m_source->GetNumRows());
    EXPECT_EQ("0.4", m_source->Text(0, 1));
}

TEST_F(EditorSelectionTest, AColumnOfAnEmptyTableIsBlankedWithoutHarmToItsHeading) {
    TestEditor &editor = OpenEven(2, 0);
    editor.SelectColumns(1, 1);
    editor.OnCut(true);
    editor.SelectColumns(1, 1);
    editor.OnCut(false);
    CString heading;
    editor.GetColName(1, heading);
    EXPECT_STREQ("F1", heading);
}

TEST_F(EditorSelectionTest, AfterTheCornerDeleteBlanksTheCellsAndDeletesNoRows) {
    TestEditor &editor = OpenEven(2, 3);
    ClickSide(editor, 5);
    ClickLeft(editor.Corner(), 5, 5);
    EXPECT_EQ("0,0..1,2 mode=0 anchor=(-1,-1)", editor.Selection());
    Key(editor, VK_DELETE);
    EXPECT_EQ(3, m_source->GetNumRows());
    EXPECT_EQ("", m_source->Text(1, 2));
}

TEST_F(EditorSelectionTest, MovesWithoutTheButtonSelectNothing) {
    TestEditor &editor = OpenEven(4, 6);
    ClickTop(editor, 70);
    const int side = editor.GetSH_Width();
    MoveMouse(editor.m_hWnd, side + 190, 40, 0);
    EXPECT_EQ("1,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
    // The square between the bars belongs to the editor's own window: hovering there scrolls nothing.
    MoveMouse(editor.m_hWnd, 1000, 1000, 0);
    EXPECT_EQ("1,0..1,5 mode=1 anchor=(1,-1)", editor.Selection());
}

TEST_F(EditorSelectionTest, AMoveWithoutTheButtonEndsTheDrag) {
    TestEditor &editor = OpenEven(4, 6);
    PressLeft(editor.TopHeading(), 70, 5);
    ASSERT_EQ(editor.m_hWnd, ::GetCapture());
    MoveMouse(editor.m_hWnd, 100, 40, 0); // the release went elsewhere
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(EditorSelectionTest, AHeadingThatLostTheMouseToAQuestionDoesNotGetItBack) {
    TestEditor &editor = Open(3, 3, kEditVerify);
    editor.StartEdit();
    TypeText(editor.Edit(), "typed");
    TestApp().Answer({IDYES});
    auto button = std::make_unique<HeldKeys>(std::initializer_list<int>{VK_LBUTTON});
    TestApp().m_whileUp = [&](const std::string &) { button.reset(); }; // the question is answered with the mouse
    PressLeft(editor.TopHeading(), 150, 5);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ("typed", m_source->Text(0, 0));
}

} // namespace
