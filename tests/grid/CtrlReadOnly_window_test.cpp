// Cells that are read-only: what changes a cell without an edit leaves them alone too.
#include "GridWindowTest.h"

#include "grid/UGButtonType.h"

namespace {

class CtrlReadOnlyTest : public GridWindowTest {
protected:
    void Put(int type, const char *text, int readOnly) {
        m_grid.SetNumberCols(2);
        m_grid.SetNumberRows(2);
        CUGCell cell;
        cell.SetText(text);
        cell.SetLabelText("one\ntwo\n");
        cell.SetCellType(type);
        cell.SetReadOnly(static_cast<short>(readOnly));
        m_grid.SetCell(0, 0, &cell);
        PumpAll();
        m_grid.Take();
    }
    HWND List() { return ::GetDlgItem(m_grid.m_hWnd, 238); }
    // A click on the button, or on the box of a check box.
    std::string AfterClickAt(int x) {
        ClickLeft(m_grid.Cells(), x, 6);
        return m_grid.Take();
    }
    static int ButtonX() { return 99 - CUGButtonType::ButtonWidth() / 2; }
};

TEST_F(CtrlReadOnlyTest, ACheckBoxKeepsItsMark) {
    for (int readOnly : {0, 1}) {
        Put(1, "0", readOnly);
        EXPECT_EQ(readOnly ? "LClicked(0,0,1,-1) LClicked(0,0,0,-1)" : "SetCell(0,0) LClicked(0,0,1,-2) LClicked(0,0,0,-1)",
                  AfterClickAt(9));
        EXPECT_EQ(readOnly ? "0" : "1.00", m_grid.Text(0, 0));
        ::SendMessageA(m_grid.Cells(), WM_KEYDOWN, VK_SPACE, 1);
        EXPECT_EQ(readOnly ? "0" : "0.00", m_grid.Text(0, 0));
    }
}

TEST_F(CtrlReadOnlyTest, ADropListStaysClosed) {
    for (int readOnly : {0, 1}) {
        Put(2, "one", readOnly);
        AfterClickAt(ButtonX());
        EXPECT_EQ(readOnly != 0, List() == nullptr);
        m_grid.SetFocus();
        m_grid.GotoCell(1, 1);
        m_grid.GotoCell(0, 0);
        m_grid.Take();
        ::SendMessageA(m_grid.Cells(), WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_EQ(readOnly != 0, List() == nullptr);
        EXPECT_EQ(readOnly ? "KeyDown(13,-1)" : "CellTypeNotify(2,0,0,100) KeyDown(0,-2)", m_grid.Take());
        m_grid.SetFocus();
    }
}

TEST_F(CtrlReadOnlyTest, ASpinButtonTellsNothing) {
    for (int readOnly : {0, 1}) {
        Put(6, "5", readOnly);
        EXPECT_EQ(readOnly == 0, AfterClickAt(ButtonX()).find("CellTypeNotify(6,0,0,16)") != std::string::npos);
    }
}

} // namespace
