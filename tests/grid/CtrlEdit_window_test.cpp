// The in-cell edit: its start, its keys, its end, and the order of what is told.
#include "GridWindowTest.h"

namespace {

class CtrlEditTest : public GridWindowTest {
protected:
    void Focus() { m_grid.SetFocus(); }
    std::string EditText() { return m_grid.Edit() != nullptr ? WindowText(m_grid.Edit()) : "closed"; }
    void Type(const char *text) { TypeText(m_grid.Edit(), text); }
    void Key(UINT key) {
        SendKey(m_grid.Edit(), key);
        if (m_grid.Edit() != nullptr && (key == VK_TAB || key == VK_RETURN))
            SendChar(m_grid.Edit(), key);
    }
    std::string SelectionInEdit() {
        DWORD start = 0, end = 0;
        ::SendMessageA(m_grid.Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                       reinterpret_cast<LPARAM>(&end));
        return std::to_string(start) + ".." + std::to_string(end);
    }
};

TEST_F(CtrlEditTest, TheEditStandsOverTheCellWithItsTextSelectedAndTheFocus) {
    Fill(3, 5);
    m_grid.GotoCell(1, 2);
    m_grid.Take();
    EXPECT_EQ(GRID_SUCCESS, m_grid.StartEdit());
    EXPECT_EQ("EditStart(1,2)", m_grid.Take());
    EXPECT_EQ("1.2", EditText());
    EXPECT_EQ("0..3", SelectionInEdit());
    EXPECT_EQ(m_grid.Edit(), ::GetFocus());
    EXPECT_EQ(237, ::GetDlgCtrlID(m_grid.Edit()));
    EXPECT_EQ(m_grid.Cells(), ::GetParent(m_grid.Edit()));
    RECT rect;
    ::GetWindowRect(m_grid.Edit(), &rect);
    ::MapWindowPoints(nullptr, m_grid.Cells(), reinterpret_cast<POINT *>(&rect), 2);
    // The cell without its lines at the right and the bottom.
    EXPECT_EQ(100, rect.left);
    EXPECT_EQ(40, rect.top);
    EXPECT_EQ(199, rect.right);
    EXPECT_EQ(59, rect.bottom);
}

TEST_F(CtrlEditTest, TheEditEndedWithEnterTellsEverythingInOrder) {
    Fill(3, 5);
    m_grid.m_onCharDown = [&](UINT *key) { m_grid.StartEdit(static_cast<int>(*key)); };
    SendChar(m_grid.Cells(), 'a');
    Type("b");
    ::SendMessageA(m_grid.Edit(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ("CharDown(97,-1) EditStart(0,0) EditVerify(0,0,97) EditVerify(0,0,98) EditVerify(-1,-1,13) "
              "EditFinish(0,0) SetCell(0,0) EditContinue(0,0,1,0) CanMove(0,0,1,0) ColChange(0,1) "
              "CellChange(0,1,0,0) EditStart(1,0)",
              m_grid.Take());
    EXPECT_EQ("src.SetCell(0,0,ab)", m_log.Take());
    m_grid.m_onCharDown = nullptr;
}

TEST_F(CtrlEditTest, TheSourceIsWrittenBetweenTheVetoAndTheQuestionWhereToGo) {
    Fill(3, 5);
    m_grid.StartEdit();
    std::string written;
    m_grid.m_onEditContinue = [&](int *, long *) { written = m_source->Text(0, 0); };
    Type("x");
    Key(VK_RETURN);
    EXPECT_EQ("x", written);
    m_grid.m_onEditContinue = nullptr;
}

TEST_F(CtrlEditTest, ACharacterThatStartsTheEditReplacesTheText) {
    Fill(3, 5);
    m_grid.StartEdit('q');
    EXPECT_EQ("q", EditText());
}

TEST_F(CtrlEditTest, EscapeLeavesTheTextAndTellsNeitherFinishNorSet) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("zz");
    m_grid.Take();
    Key(VK_ESCAPE);
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    EXPECT_EQ("EditVerify(-1,-1,27)", m_grid.Take());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
}

TEST_F(CtrlEditTest, AReadOnlyCellStartsNoEditAndTellsNothing) {
    Fill(3, 5);
    m_grid.m_onGetCell = [](CUGCell *cell) { cell->SetReadOnly(1); };
    EXPECT_EQ(GRID_ERROR, m_grid.StartEdit());
    EXPECT_EQ("", m_grid.Take());
    EXPECT_EQ("closed", EditText());
    m_grid.m_onGetCell = nullptr;
}

TEST_F(CtrlEditTest, ARefusedStartLeavesNoWindow) {
    Fill(3, 5);
    m_grid.m_vetoes = {"EditStart"};
    EXPECT_EQ(GRID_ERROR, m_grid.StartEdit());
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ(nullptr, ::GetDlgItem(m_grid.Cells(), 237));
    EXPECT_EQ(nullptr, m_grid.GetEditControl());
    EXPECT_EQ(m_grid.Cells(), ::GetFocus());
}

TEST_F(CtrlEditTest, ATypeThatForbidsTextStartsNoEditButTheSelectionIsGone) {
    Fill(3, 5);
    m_grid.EnableMultiSelect(1);
    m_grid.GetCellType(0)->m_canTextEdit = 0;
    EXPECT_EQ(GRID_ERROR, m_grid.StartEdit());
    EXPECT_EQ("", m_grid.Selected());
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlEditTest, TabGoesRightAndWithShiftLeft) {
    Fill(3, 5);
    m_grid.GotoCell(1, 1);
    m_grid.StartEdit();
    Key(VK_TAB);
    EXPECT_EQ("2.1", EditText());
    HeldKeys shift({VK_SHIFT});
    Key(VK_TAB);
    Key(VK_TAB);
    EXPECT_EQ("0.1", EditText());
}

TEST_F(CtrlEditTest, TabGoesPastColumnsOfNoWidth) {
    Fill(5, 5);
    m_grid.SetColWidth(1, 0);
    m_grid.SetColWidth(2, 0);
    m_grid.SetColWidth(4, 0);
    m_grid.StartEdit();
    Key(VK_TAB);
    EXPECT_EQ("3.0", EditText());
    Key(VK_TAB);
    EXPECT_EQ("0.1", EditText());
    HeldKeys shift({VK_SHIFT});
    Key(VK_TAB);
    EXPECT_EQ("3.0", EditText());
    Key(VK_TAB);
    EXPECT_EQ("0.0", EditText());
}

TEST_F(CtrlEditTest, NoEditOpensOnAColumnOfNoWidth) {
    Fill(3, 5);
    m_grid.GotoCell(1, 2);
    m_grid.SetColWidth(1, 0);
    m_grid.Take();
    EXPECT_EQ(GRID_ERROR, m_grid.StartEdit());
    EXPECT_EQ("", m_grid.Take());
    EXPECT_EQ("closed", EditText());
    for (int col : {0, 2})
        m_grid.SetColWidth(col, 0);
    EXPECT_EQ(GRID_ERROR, m_grid.EditContinue(1, 0)); // nowhere to go
}

TEST_F(CtrlEditTest, TabInTheLastColumnGoesToTheFirstOfTheNextRow) {
    Fill(3, 5);
    m_grid.GotoCell(2, 1);
    m_grid.StartEdit();
    Key(VK_TAB);
    EXPECT_EQ("cur=(0,2) view=(0,0) size=3x5", m_grid.State());
    HeldKeys shift({VK_SHIFT});
    Key(VK_TAB);
    EXPECT_EQ("cur=(2,1) view=(0,0) size=3x5", m_grid.State());
}

TEST_F(CtrlEditTest, TabInTheLastCellStaysInTheLastRow) {
    Fill(3, 5);
    m_grid.GotoCell(2, 4);
    m_grid.StartEdit();
    Key(VK_TAB);
    EXPECT_EQ("cur=(0,4) view=(0,0) size=3x5", m_grid.State());
    EXPECT_EQ("0.4", EditText());
}

TEST_F(CtrlEditTest, ShiftTabInTheFirstCellStaysInTheFirstRow) {
    Fill(3, 5);
    m_grid.StartEdit();
    HeldKeys shift({VK_SHIFT});
    Key(VK_TAB);
    EXPECT_EQ("cur=(2,0) view=(0,0) size=3x5", m_grid.State());
}

TEST_F(CtrlEditTest, UpAndDownGoToTheNeighbouringRows) {
    Fill(3, 5);
    m_grid.GotoCell(1, 3);
    m_grid.StartEdit();
    Key(VK_DOWN);
    EXPECT_EQ("1.4", EditText());
    Key(VK_DOWN);
    EXPECT_EQ("1.4", EditText());
    Key(VK_UP);
    EXPECT_EQ("1.3", EditText());
}

TEST_F(CtrlEditTest, TheNotificationChoosesAnotherCellWhichIsWrappedAgain) {
    Fill(3, 5);
    m_grid.StartEdit();
    m_grid.m_onEditContinue = [](int *col, long *row) {
        *col = 3;
        *row = 2;
    };
    Key(VK_TAB);
    EXPECT_EQ("cur=(0,3) view=(0,0) size=3x5", m_grid.State());
    m_grid.m_onEditContinue = [](int *col, long *row) {
        *col = -1;
        *row = 90;
    };
    Key(VK_TAB);
    EXPECT_EQ("cur=(2,4) view=(0,0) size=3x5", m_grid.State());
    m_grid.m_onEditContinue = nullptr;
}

TEST_F(CtrlEditTest, ANoToTheContinuationEndsTheEditAfterTheWrite) {
    Fill(3, 5);
    m_grid.m_vetoes = {"EditContinue"};
    m_grid.StartEdit();
    Type("x");
    Key(VK_TAB);
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=3x5", m_grid.State());
    EXPECT_EQ(GRID_ERROR, m_grid.EditContinue(1, 0));
}

TEST_F(CtrlEditTest, ANoToTheFinishWritesNothingAndKeepsTheBox) {
    Fill(3, 5);
    m_grid.m_vetoes = {"EditFinish"};
    m_grid.StartEdit();
    Type("x");
    m_grid.Take();
    ::SendMessageA(m_grid.Edit(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(0,0)", m_grid.Take());
    EXPECT_EQ("x", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    m_grid.m_vetoes.clear();
    Key(VK_RETURN);
    EXPECT_EQ("x", m_source->Text(0, 0));
}

TEST_F(CtrlEditTest, LosingTheFocusWritesWithoutMovingOn) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.Take();
    m_host.SetFocus();
    EXPECT_EQ("EditFinish(0,0) SetCell(0,0)", m_grid.Take());
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=3x5", m_grid.State());
}

TEST_F(CtrlEditTest, LosingTheFocusWhileSuppressedKeepsTheEdit) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.SetSuppressFinishOnFocusLoss(1);
    m_host.SetFocus();
    EXPECT_EQ("x", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    m_grid.SetSuppressFinishOnFocusLoss(0);
}

TEST_F(CtrlEditTest, AVetoOfTheFinishAtFocusLossStillClosesTheBox) {
    Fill(3, 5);
    m_grid.m_vetoes = {"EditFinish"};
    m_grid.StartEdit();
    Type("x");
    m_host.SetFocus();
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
}

// As a box of the host does: it takes the focus, and gives it to the window below it when it goes.
TEST_F(CtrlEditTest, AFinishThatShowsABoxWritesWhatWasTyped) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.m_onEditFinish = [&] { m_host.SetFocus(); };
    m_grid.Take();
    ::SendMessageA(m_grid.Edit(), WM_KEYDOWN, VK_RETURN, 1);
    m_grid.m_onEditFinish = nullptr;
    EXPECT_EQ("EditVerify(-1,-1,13) EditFinish(0,0) SetCell(0,0) EditContinue(0,0,1,0) CanMove(0,0,1,0) "
              "ColChange(0,1) CellChange(0,1,0,0) EditStart(1,0)",
              m_grid.Take());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("1.0", EditText());
    EXPECT_EQ(m_grid.Edit(), ::GetFocus());
}

TEST_F(CtrlEditTest, AFinishThatShowsABoxAndRefusesGivesTheFocusBackToTheText) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.m_vetoes = {"EditFinish"};
    m_grid.m_onEditFinish = [&] { m_host.SetFocus(); };
    Key(VK_RETURN);
    EXPECT_EQ("x", EditText());
    EXPECT_EQ(m_grid.Edit(), ::GetFocus());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    m_grid.m_vetoes.clear();
    Key(VK_RETURN);
    m_grid.m_onEditFinish = nullptr;
    EXPECT_EQ("x", m_source->Text(0, 0));
}

TEST_F(CtrlEditTest, ABoxThatGoesWhileItIsAskedWritesNothing) {
    Fill(3, 5);
    m_grid.GotoCell(1, 4);
    m_grid.StartEdit();
    Type("x");
    m_grid.m_onEditFinish = [&] { m_grid.SetNumberRows(3); };
    m_grid.Take();
    Key(VK_RETURN);
    m_grid.m_onEditFinish = nullptr;
    EXPECT_EQ("closed", EditText());
    EXPECT_EQ(std::string::npos, m_grid.Take().find("SetCell"));
    EXPECT_EQ("1.4", m_source->Text(1, 4));
}

TEST_F(CtrlEditTest, AnotherEditThatTheFinishStartsStaysAndNothingIsWritten) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.m_onEditFinish = [&] {
        m_grid.m_onEditFinish = nullptr;
        m_grid.GotoCell(2, 3);
        m_grid.StartEdit();
    };
    Key(VK_RETURN);
    EXPECT_EQ("2.3", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    EXPECT_EQ("2.3", m_source->Text(2, 3));
    Type("y");
    Key(VK_RETURN);
    EXPECT_EQ("y", m_source->Text(2, 3));
}

TEST_F(CtrlEditTest, AnEditOfALostFocusThatShowsABoxIsAskedOnce) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.Take();
    m_grid.m_onEditFinish = [&] {
        ::SetFocus(m_grid.Edit()); // the box gives the focus to where it was
        m_host.SetFocus();
    };
    m_host.SetFocus();
    m_grid.m_onEditFinish = nullptr;
    EXPECT_EQ("EditFinish(0,0) SetCell(0,0)", m_grid.Take());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("closed", EditText());
}

TEST_F(CtrlEditTest, ARefusedWriteIsToldAndTheCellShowsWhatTheSourceHas) {
    Fill(3, 5);
    m_source->m_results = {{"SetCell", 1}};
    m_grid.StartEdit();
    Type("x");
    int told = -1;
    m_grid.m_onEditContinue = [&](int *, long *) { told = m_grid.GetEditResult(); };
    Key(VK_RETURN);
    EXPECT_EQ(GRID_ERROR, told);
    EXPECT_EQ("0.0", m_grid.Text(0, 0));
    m_source->m_results.clear();
    Type("y");
    Key(VK_RETURN);
    m_grid.m_onEditContinue = nullptr;
    EXPECT_EQ(GRID_SUCCESS, told);
    EXPECT_EQ("y", m_grid.Text(1, 0));
}

TEST_F(CtrlEditTest, ASwallowedKeyNeverReachesTheText) {
    Fill(3, 5);
    m_grid.StartEdit();
    m_grid.m_vetoes = {"EditVerify"};
    Type("x");
    Key(VK_RETURN);
    Key(VK_ESCAPE);
    EXPECT_EQ("0.0", EditText());
    EXPECT_EQ("cur=(0,0) view=(0,0) size=3x5", m_grid.State());
}

TEST_F(CtrlEditTest, AKeyThatTheNotificationChangedIsTyped) {
    Fill(3, 5);
    m_grid.StartEdit();
    m_grid.m_onEditVerify = [](int col, long, UINT *key) {
        if (col >= 0 && *key == 'a')
            *key = 'A';
    };
    Type("aba");
    EXPECT_EQ("AbA", EditText());
    m_grid.m_onEditVerify = nullptr;
}

TEST_F(CtrlEditTest, TabAndEnterAsCharactersAreAskedAndSwallowed) {
    Fill(3, 5);
    m_grid.StartEdit();
    m_grid.Take();
    SendChar(m_grid.Edit(), 9);
    SendChar(m_grid.Edit(), 13);
    EXPECT_EQ("EditVerify(0,0,9) EditVerify(0,0,13)", m_grid.Take());
    EXPECT_EQ("0.0", EditText());
}

TEST_F(CtrlEditTest, AKeyGoingUpIsAskedWithMinusTwo) {
    Fill(3, 5);
    m_grid.StartEdit();
    m_grid.Take();
    ::SendMessageA(m_grid.Edit(), WM_KEYUP, 'A', 1);
    EXPECT_EQ("EditVerify(-2,-2,65)", m_grid.Take());
}

TEST_F(CtrlEditTest, TheLimitOfTheCellLimitsTheText) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetText("ab");
    cell.SetMaxLength(4);
    m_grid.SetCell(0, 0, &cell);
    m_grid.StartEdit();
    ::SendMessageA(m_grid.Edit(), EM_SETSEL, 2, 2);
    Type("cdef");
    EXPECT_EQ("abcd", EditText());
}

TEST_F(CtrlEditTest, TheMaskOfTheCellHoldsWhatIsTyped) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetMask("00/00");
    m_grid.SetCell(0, 0, &cell);
    m_grid.StartEdit();
    Type("1x2");
    EXPECT_EQ("12", EditText());
    Type("34");
    EXPECT_EQ("12/34", EditText());
    Type("5");
    EXPECT_EQ("12/34", EditText());
    Key(VK_TAB);
    EXPECT_EQ("12/34", m_grid.Text(0, 0));
}

TEST_F(CtrlEditTest, LiteralsInARowArePassedByOneCharacter) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetMask("(000) 000-0000");
    m_grid.SetCell(0, 0, &cell);
    m_grid.StartEdit();
    Type("123x4");
    EXPECT_EQ("(123) 4", EditText());
    EXPECT_EQ("7..7", SelectionInEdit());
    Type("567890");
    EXPECT_EQ("(123) 456-7890", EditText());
    Type("1");
    EXPECT_EQ("(123) 456-7890", EditText());
    ::SendMessageA(m_grid.Edit(), EM_SETSEL, 4, 11);
    Type("9");
    EXPECT_EQ("(123) 989-0", EditText());
    EXPECT_EQ("7..7", SelectionInEdit());
}

TEST_F(CtrlEditTest, LettersOfTheMaskAreThoseOfTheCodePage) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetMask("LA?a");
    m_grid.SetCell(0, 0, &cell);
    m_grid.StartEdit();
    Type("\xD7\xC4\xD7\xE9\xF7\xDF\xF1"); // multiplication and division signs are no letters
    EXPECT_EQ("\xC4\xE9\xDF\xF1", EditText());
}

TEST_F(CtrlEditTest, ACharacterThatDoesNotFitPutsNoLiteralIn) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetMask("00/00");
    m_grid.SetCell(0, 0, &cell);
    m_grid.StartEdit();
    Type("12x");
    EXPECT_EQ("12", EditText());
}

TEST_F(CtrlEditTest, AnotherStartEndsTheEditThatIsOpen) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    EXPECT_EQ(GRID_SUCCESS, m_grid.StartEdit());
    EXPECT_EQ("0.0", EditText());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
}

TEST_F(CtrlEditTest, TheSetupMayChangeRectangleAndStyle) {
    Fill(3, 5);
    m_grid.m_onSetupEditWindow = [](RECT *rect, DWORD *style) {
        rect->right = rect->left + 33;
        *style |= ES_UPPERCASE;
    };
    m_grid.StartEdit();
    RECT rect;
    ::GetWindowRect(m_grid.Edit(), &rect);
    EXPECT_EQ(33, rect.right - rect.left);
    Type("u");
    EXPECT_EQ("U", EditText());
    m_grid.m_onSetupEditWindow = nullptr;
}

TEST_F(CtrlEditTest, TheEditAsksForTabAndForAllKeysOnEnterAndEscape) {
    Fill(3, 5);
    m_grid.StartEdit();
    const auto code = [&](UINT key) {
        MSG message{};
        message.hwnd = m_grid.Edit();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return ::SendMessageA(m_grid.Edit(), WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&message));
    };
    EXPECT_NE(0, code(VK_TAB) & DLGC_WANTTAB);
    EXPECT_NE(0, code(VK_RETURN) & DLGC_WANTALLKEYS);
    EXPECT_NE(0, code(VK_ESCAPE) & DLGC_WANTALLKEYS);
    EXPECT_EQ(0, code('A') & DLGC_WANTALLKEYS);
}

TEST_F(CtrlEditTest, ACellBelowTheViewIsBroughtIntoViewForTheEdit) {
    Fill(3, 50);
    m_grid.GotoRow(40);
    m_grid.SetTopRow(0);
    m_grid.StartEdit();
    EXPECT_EQ(27, m_grid.GetTopRow());
    EXPECT_EQ("0.40", EditText());
}

TEST_F(CtrlEditTest, AMoveDuringTheEditDoesNotMoveItsText) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.GotoCell(0, 3);
    Key(VK_DOWN);
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("0.3", m_source->Text(0, 3));
    EXPECT_EQ("cur=(0,1) view=(0,0) size=3x5", m_grid.State());
}

TEST_F(CtrlEditTest, DestroyingTheControlEndsTheEdit) {
    Fill(3, 5);
    m_grid.StartEdit();
    Type("x");
    m_grid.DestroyWindow();
    EXPECT_EQ(nullptr, m_grid.GetEditControl());
}

TEST_F(CtrlEditTest, ACancelledEditWritesAndTellsNothingAndLeavesTheFocusToTheCellsAlone) {
    Fill(3, 5);
    m_grid.CancelEdit(); // with none open there is nothing to do
    for (const bool focused : {true, false}) {
        m_grid.StartEdit();
        Type("x");
        if (!focused) {
            m_grid.m_GI.m_suppressFinish = 1; // a box that takes the focus leaves the edit open
            m_host.SetFocus();
            m_grid.m_GI.m_suppressFinish = 0;
        }
        m_grid.Take();
        m_grid.CancelEdit();
        EXPECT_EQ("closed", EditText());
        EXPECT_EQ("", m_grid.Take() + m_log.Take());
        EXPECT_EQ("0.0", m_source->Text(0, 0));
        EXPECT_EQ(focused ? m_grid.Cells() : m_host.m_hWnd, ::GetFocus());
    }
}

} // namespace
