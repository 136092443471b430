// Copying, cutting and pasting blocks of cells over the real clipboard.
#include "EditorWindowTest.h"

#include "TestClipboard.h"

#include <cstring>

namespace {

class EditorClipboardTest : public EditorWindowTest {
protected:
    // As another program leaves text there; null leaves none.
    void SetClipboard(const char *text) { SetClipboardText(m_host.m_hWnd, text); }
    std::string Clipboard() {
        std::string text = "none";
        if (!::OpenClipboard(m_host.m_hWnd))
            return "not open";
        if (const HANDLE memory = ::GetClipboardData(CF_TEXT)) {
            text = static_cast<const char *>(::GlobalLock(memory));
            ::GlobalUnlock(memory);
        }
        ::CloseClipboard();
        return text;
    }
    void Select(TestEditor &editor, int left, long top, int right, long bottom) {
        editor.ClearSelections();
        editor.SelectRange(left, top, right, bottom);
    }
    // Rows apart by "/", cells by ",".
    std::string Table() {
        std::string all;
        for (size_t row = 0; row < m_source->m_rows.size(); ++row) {
            all += row > 0 ? "/" : "";
            for (size_t col = 0; col < m_source->m_rows[row].size(); ++col)
                all += (col > 0 ? "," : "") + m_source->m_rows[row][col];
        }
        return all;
    }
    std::string PasteMessage(TestEditor &editor, const char *text) {
        SetClipboard(text);
        editor.OnPaste();
        return TestApp().TakeBoxes();
    }
};

// --- Copying

TEST_F(EditorClipboardTest, ATwoByTwoBlockHasNoLineBreakAtItsEnd) {
    TestEditor &editor = Open(3, 3);
    Select(editor, 0, 0, 1, 1);
    editor.OnCopy();
    EXPECT_EQ("0.0\t1.0\r\n0.1\t1.1", Clipboard());
    EXPECT_EQ("0,0..1,1 mode=0 anchor=(-1,-1)", editor.Selection()); // it is selected again
}

TEST_F(EditorClipboardTest, WithoutASelectionTheCurrentCellIsCopied) {
    TestEditor &editor = Open(3, 3);
    editor.GotoCell(2, 1);
    editor.OnCopy();
    EXPECT_EQ("2.1", Clipboard());
}

TEST_F(EditorClipboardTest, ARaggedSelectionHoldsPerRowWhatWasSelectedOnIt) {
    TestEditor &editor = Open(3, 3);
    Select(editor, 0, 0, 0, 0);
    editor.SelectRange(2, 0, 2, 0);
    editor.SelectRange(1, 2, 1, 2);
    CString text;
    EXPECT_TRUE(editor.CreateSelectedString(text, 0, false));
    EXPECT_STREQ("0.0\t2.0\r\n1.2", text);
}

TEST_F(EditorClipboardTest, CopyingFiftyCellsHasNoWaitCursorAndFiftyOneHas) {
    TestEditor &editor = Open(3, 60);
    Select(editor, 0, 0, 0, 49);
    editor.OnCopy();
    EXPECT_EQ("", m_log.Take());
    Select(editor, 0, 0, 0, 50);
    editor.OnCopy();
    EXPECT_EQ("Wait(1) Wait(-1)", m_log.Take());
}

TEST_F(EditorClipboardTest, AStopWhileCopyingLeavesWhatWasGatheredOnTheClipboard) {
    TestEditor &editor = Open(1, 10050);
    editor.SelectColumns(0, 0);
    m_service.m_abortAtLook = m_service.m_looks + 2; // before the first cell, and before the 10,001st
    editor.OnCopy();
    m_service.m_abortAtLook = 0;
    const std::string text = Clipboard();
    EXPECT_EQ("0.0\r\n0.1\r\n", text.substr(0, 10));
    EXPECT_EQ("\r\n0.9999\r\n", text.substr(text.size() - 10)); // the separator of the cell that did not come
}

TEST_F(EditorClipboardTest, ARequestToStopIsHeededBeforeTheFirstCellAndUsedUp) {
    TestEditor &editor = Open(1, 3);
    editor.SelectColumns(0, 0);
    editor.RequestAbort();
    CString text;
    EXPECT_FALSE(editor.CreateSelectedString(text, 0, false));
    EXPECT_STREQ("", text);
    EXPECT_FALSE(editor.Abort());
    EXPECT_TRUE(editor.CreateSelectedString(text, 0, false));
    EXPECT_STREQ("0.0\r\n0.1\r\n0.2", text);
}

TEST_F(EditorClipboardTest, CopyAndCutAnswerTheClipboardsResultAndClearTheSelection) {
    TestEditor &editor = Open(2, 2);
    Select(editor, 0, 0, 1, 0);
    EXPECT_EQ(GRID_SUCCESS, editor.CopySelected());
    EXPECT_EQ("none", editor.Selection().substr(0, 4));
    Select(editor, 0, 0, 1, 0);
    EXPECT_EQ(GRID_SUCCESS, editor.CutSelected());
    EXPECT_EQ(",/0.1,1.1", Table());
    EXPECT_EQ("0.0\t1.0", Clipboard());
}

// --- Cutting

TEST_F(EditorClipboardTest, CuttingBlanksTheCellsAsOneStepAndFillsTheClipboard) {
    TestEditor &editor = Open(2, 2);
    Select(editor, 0, 0, 1, 1);
    editor.OnCut(true);
    EXPECT_EQ(",/,", Table());
    EXPECT_EQ("0.0\t1.0\r\n0.1\t1.1", Clipboard());
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.SetCell(0,0,) src.SetCell(1,0,) src.SetCell(0,1,) "
              "src.SetCell(1,1,) src.EndTransaction() Title(table,null)",
              m_log.Take());
}

TEST_F(EditorClipboardTest, BlankingLeavesTheClipboardAlone) {
    TestEditor &editor = Open(2, 2);
    SetClipboard("kept");
    Select(editor, 0, 0, 0, 1);
    editor.OnCut(false);
    EXPECT_EQ(",1.0/,1.1", Table());
    EXPECT_EQ("kept", Clipboard());
}

TEST_F(EditorClipboardTest, CuttingRowsSelectedByTheirHeadingsDeletesThemAndKeepsThemOnTheClipboard) {
    TestEditor &editor = Open(2, 4);
    editor.SelectRows(1, 2);
    editor.OnCut(false); // whatever the argument says
    EXPECT_EQ("0.0,1.0/0.3,1.3", Table());
    EXPECT_EQ("0.1\t1.1\r\n0.2\t1.2", Clipboard());
}

TEST_F(EditorClipboardTest, WithTheBoxOpenCutAndCopyAreTheBoxes) {
    TestEditor &editor = Open(2, 2);
    SetClipboard("before");
    editor.StartEdit();
    ::SendMessageA(editor.Edit(), EM_SETSEL, 1, 1);
    EXPECT_FALSE(editor.CanCut());
    EXPECT_FALSE(editor.CanCopy());
    editor.OnCopy();
    EXPECT_EQ("before", Clipboard());
    ::SendMessageA(editor.Edit(), EM_SETSEL, 0, 1);
    EXPECT_TRUE(editor.CanCut());
    EXPECT_TRUE(editor.CanCopy());
    editor.OnCopy();
    EXPECT_EQ("0", Clipboard());
    ::SendMessageA(editor.Edit(), EM_SETSEL, 1, 3);
    editor.OnCut(true);
    EXPECT_EQ(".0", Clipboard());
    EXPECT_EQ("0", WindowText(editor.Edit()));
}

TEST_F(EditorClipboardTest, InReadOnlyModeNothingIsCutOrPasted) {
    TestEditor &editor = Open(2, 2, kEditReadOnly);
    SetClipboard("x");
    EXPECT_FALSE(editor.CanCut());
    EXPECT_FALSE(editor.CanPaste());
    EXPECT_TRUE(editor.CanCopy());
    editor.OnCut(true);
    editor.OnPaste();
    EXPECT_EQ("0.0,1.0/0.1,1.1", Table());
    EXPECT_EQ("x", Clipboard());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorClipboardTest, PastingNeedsText) {
    TestEditor &editor = Open(2, 2);
    SetClipboard(nullptr);
    EXPECT_FALSE(editor.CanPaste());
    SetClipboard("x");
    EXPECT_TRUE(editor.CanPaste());
}

// --- The clipboard itself

TEST_F(EditorClipboardTest, AClipboardWithoutTextIsSaid) {
    TestEditor &editor = Open(2, 2);
    EXPECT_EQ("Could not get clipboard data!|16", PasteMessage(editor, nullptr));
    CString text("kept");
    EXPECT_EQ(GRID_ERROR, editor.CopyFromClipBoard(&text));
    EXPECT_EQ(GRID_ERROR, editor.Paste());
    EXPECT_STREQ("kept", text);
}

TEST_F(EditorClipboardTest, AClipboardThatAnotherHoldsOpenIsSaid) {
    TestEditor &editor = Open(2, 2);
    SetClipboard("x");
    {
        const HeldClipboard held;
        editor.OnPaste();
        EXPECT_EQ("Could not open clipboard!|16", TestApp().TakeBoxes());
        CString text("copied");
        EXPECT_EQ(GRID_ERROR, editor.CopyToClipBoard(&text));
    }
    EXPECT_EQ("x", Clipboard());
}

TEST_F(EditorClipboardTest, TheSizeOfATextCountsItsLineFeedsAndTheTabsOfItsFirstLine) {
    TestEditor &editor = Open(2, 2);
    int cols = 0;
    long rows = 0;
    SetClipboard("x\r\n");
    EXPECT_TRUE(editor.GetClipBoardDataInfo(&cols, &rows));
    EXPECT_EQ("1x2", std::to_string(cols) + "x" + std::to_string(rows));
    SetClipboard("a\tb\rc\td\te");
    EXPECT_TRUE(editor.GetClipBoardDataInfo(&cols, &rows));
    EXPECT_EQ("2x1", std::to_string(cols) + "x" + std::to_string(rows)); // lone CR counts one row
}

// --- Pasting

TEST_F(EditorClipboardTest, ABlockLandsWithItsCornerOnTheCurrentCellAndIsSelected) {
    TestEditor &editor = Open(3, 3);
    editor.GotoCell(1, 1);
    EXPECT_EQ("", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("0.0,1.0,2.0/0.1,a,b/0.2,c,d", Table());
    EXPECT_EQ("1,1..2,2 mode=0 anchor=(-1,-1)", editor.Selection());
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.SetCell(1,1,a) src.SetCell(2,1,b) src.SetCell(1,2,c) "
              "src.SetCell(2,2,d) src.EndTransaction()",
              m_log.Take());
}

TEST_F(EditorClipboardTest, AnEmptyFieldBlanksItsCellAndCountsNoFurther) {
    TestEditor &editor = Open(3, 3);
    CString text("a\t\r\n\tb\n\n");
    EXPECT_EQ(GRID_SUCCESS, editor.Paste(text));
    EXPECT_EQ("a,,2.0/,b,2.1/,1.2,2.2", Table());
    EXPECT_EQ("0,0..1,1 mode=0 anchor=(-1,-1)", editor.Selection());
}

TEST_F(EditorClipboardTest, LoneCarriageReturnsAndLineFeedsEndRows) {
    TestEditor &editor = Open(1, 4);
    CString text("a\rb\nc\r\nd\r\n");
    editor.Paste(text);
    EXPECT_EQ("a/b/c/d", Table());
}

TEST_F(EditorClipboardTest, ATableThatIsTooShortGetsRecordsFirst) {
    TestEditor &editor = Open(3, 2);
    editor.GotoCell(1, 1);
    EXPECT_EQ("", PasteMessage(editor, "a\r\nb\r\nc"));
    EXPECT_EQ("0.0,1.0,2.0/0.1,a,2.1/,b,/,c,", Table());
    EXPECT_EQ("cur=(1,1) size=3x4", editor.State());
}

TEST_F(EditorClipboardTest, WholeRecordsAreInsertedBeforeTheCurrentOne) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(0, 1);
    EXPECT_EQ("", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("0.0,1.0/a,b/c,d/0.1,1.1", Table());
    EXPECT_EQ("cur=(0,1) size=2x4", editor.State());
}

TEST_F(EditorClipboardTest, WholeRecordsNeedTheFirstColumnToo) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 1);
    EXPECT_NE("", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("0.0,1.0/0.1,1.1", Table());
}

TEST_F(EditorClipboardTest, WholeRecordsOverASelectionOfTheirSizeOverwriteIt) {
    TestEditor &editor = Open(2, 3);
    editor.GotoCell(1, 2);
    Select(editor, 0, 0, 1, 1);
    EXPECT_EQ("", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("a,b/c,d/0.2,1.2", Table());
}

TEST_F(EditorClipboardTest, WholeRecordsWithALineBreakAtTheEndInsertARowMore) {
    TestEditor &editor = Open(2, 1);
    EXPECT_EQ("", PasteMessage(editor, "a\tb\r\n"));
    EXPECT_EQ("a,b/,/0.0,1.0", Table());
}

TEST_F(EditorClipboardTest, WholeRecordsFillAnEmptyTable) {
    TestEditor &editor = Open(2, 0);
    EXPECT_EQ("", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("a,b/c,d", Table());
    EXPECT_EQ(2, editor.GetNumberRows());
}

TEST_F(EditorClipboardTest, RowsThatCannotBeInsertedLetNothingBeOverwritten) {
    TestEditor &editor = Open(2, 2);
    m_source->m_results["InsertRow"] = GRID_ERROR;
    EXPECT_EQ("Could not insert records!|16", PasteMessage(editor, "a\tb\r\nc\td"));
    EXPECT_EQ("0.0,1.0/0.1,1.1", Table());
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.InsertRow(0) src.EndTransaction()", m_log.Take());
}

TEST_F(EditorClipboardTest, ASelectionOfAnotherSizeIsRefused) {
    TestEditor &editor = Open(3, 3);
    Select(editor, 0, 0, 1, 1);
    EXPECT_EQ("Please select a either a single cell to represent the\n"
              "top left hand corner of the block of cells you want\n"
              "to be overwritten by the clipboard data,\n"
              "or a block of cells of the same size as the clipboard data.|0",
              PasteMessage(editor, "a\tb"));
}

TEST_F(EditorClipboardTest, MoreColumnsThanTheViewHasAreRefused) {
    TestEditor &editor = Open(2, 3);
    EXPECT_EQ("The data to be pasted has more columns per row\nthan does the current view of the file.|0",
              PasteMessage(editor, "a\tb\tc"));
}

TEST_F(EditorClipboardTest, TooFewColumnsToTheRightAreRefused) {
    TestEditor &editor = Open(3, 3);
    editor.GotoCell(2, 0);
    EXPECT_EQ("There are not enough columns to the right of the\n"
              "current cell to take the clipboard data to be pasted.\n|0",
              PasteMessage(editor, "a\tb"));
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorClipboardTest, RecordsThatCannotBeAppendedEndThePasteWithTheWaitCursorRaised) {
    TestEditor &editor = Open(2, 2);
    m_source->m_results["AppendRow"] = GRID_ERROR;
    std::string text = "x";
    for (int i = 0; i < 250; ++i)
        text += "\r\nx";
    EXPECT_EQ("Could not append row!|16", PasteMessage(editor, text.c_str()));
    EXPECT_EQ("Wait(1) Title(table,null) src.StartTransaction() src.AppendRow() src.EndTransaction()", m_log.Take());
}

TEST_F(EditorClipboardTest, TwoHundredAndFiftyCellsHaveNoWaitCursorAndOneMoreHas) {
    TestEditor &editor = Open(2, 300);
    std::string text = "x";
    for (int i = 1; i < 250; ++i)
        text += "\r\nx";
    PasteMessage(editor, text.c_str());
    EXPECT_EQ(std::string::npos, m_log.Take().find("Wait"));
    editor.ClearSelections();
    PasteMessage(editor, (text + "\r\nx").c_str());
    const std::string calls = m_log.Take();
    EXPECT_EQ("Wait(1) Title", calls.substr(0, 13));
    EXPECT_EQ("Wait(-1)", calls.substr(calls.size() - 8));
}

TEST_F(EditorClipboardTest, AStopWhilePastingLeavesTheCellsWrittenInsideTheOneStep) {
    TestEditor &editor = Open(3, 3);
    SetClipboard("a\r\nb\r\nc");
    m_service.m_abortAtLook = m_service.m_looks + 3;
    editor.OnPaste();
    m_service.m_abortAtLook = 0;
    EXPECT_EQ("a,1.0,2.0/b,1.1,2.1/0.2,1.2,2.2", Table());
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.SetCell(0,0,a) src.SetCell(0,1,b) src.EndTransaction()",
              m_log.Take());
    EXPECT_EQ("0,0..0,0", editor.Selection().substr(0, 8)); // what was written is not selected
}

TEST_F(EditorClipboardTest, ARequestToStopEndsOnePasteBeforeItsFirstCell) {
    TestEditor &editor = Open(3, 3);
    editor.RequestAbort();
    CString text("a");
    EXPECT_EQ(GRID_ERROR, editor.Paste(text));
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    EXPECT_EQ(GRID_SUCCESS, editor.Paste(text));
    EXPECT_EQ("a", m_source->Text(0, 0));
}

TEST_F(EditorClipboardTest, OneCellGoesIntoTheOpenBox) {
    TestEditor &editor = Open(3, 3);
    editor.StartEdit();
    EXPECT_EQ("", PasteMessage(editor, "pasted"));
    EXPECT_EQ("pasted", WindowText(editor.Edit()));
    EXPECT_EQ("0.0,1.0,2.0", Table().substr(0, 11));
}

TEST_F(EditorClipboardTest, ABlockEndsTheEditFirst) {
    TestEditor &editor = Open(3, 3);
    editor.StartEdit();
    ::SetWindowTextA(editor.Edit(), "typed");
    EXPECT_EQ("", PasteMessage(editor, "a\tb"));
    EXPECT_EQ(nullptr, editor.Edit());
    EXPECT_EQ("a,b,2.0", Table().substr(0, 7));
}

TEST_F(EditorClipboardTest, WithoutASourceThePasteSaysSo) {
    TestEditor &editor = Make();
    EXPECT_EQ("Could not get data source!|16", PasteMessage(editor, "x"));
}

TEST_F(EditorClipboardTest, OneCellIsPastedIntoAnEmptyTableWithAColumnSelected) {
    TestEditor &editor = Open(2, 0);
    editor.SelectColumns(0, 0);
    EXPECT_EQ("", PasteMessage(editor, "x"));
    EXPECT_EQ("x,", Table());
}

TEST_F(EditorClipboardTest, WithAllFieldsHiddenNothingIsCopiedOrCut) {
    TestEditor &editor = Open(2, 2);
    SetClipboard("kept");
    Select(editor, 0, 0, 1, 1);
    editor.OnHideCols();
    editor.OnCopy();
    editor.OnCut(true);
    editor.SelectRows(0, 1);
    editor.OnCut(true);
    EXPECT_EQ("kept", Clipboard());
    EXPECT_EQ(2, m_source->GetNumRows());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorClipboardTest, ARaggedPasteSelectsNoColumnThatIsNotThere) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 0);
    CString text("a\r\nb\tc\td");
    editor.Paste(text);
    EXPECT_EQ("1,0..1,1", editor.Selection().substr(0, 8));
}

TEST_F(EditorClipboardTest, RowsOfTheGridThatCannotBeResetEndThePasteWithAMessage) {
    class Shrinking : public RecordingSource {
    public:
        using RecordingSource::RecordingSource;
        long GetNumRows() override { return m_answersRows ? RecordingSource::GetNumRows() : -1; }
        int AppendRow() override {
            m_answersRows = false;
            return RecordingSource::AppendRow();
        }
        bool m_answersRows = true;
    };
    TestEditor &editor = Make();
    auto *source = new Shrinking(&m_log, 2, 1, "src");
    m_service.m_sources.push_back(source);
    ASSERT_TRUE(editor.LoadData("table", nullptr, kEditNormal, ""));
    Forget();
    EXPECT_EQ("Could not reset number of grid rows!|16", PasteMessage(editor, "a\r\nb"));
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.AppendRow() src.EndTransaction()", m_log.Take());
    source->m_answersRows = true;
}

} // namespace
