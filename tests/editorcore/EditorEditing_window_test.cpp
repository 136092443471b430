// One edit, from the box to the source.
#include "EditorWindowTest.h"

namespace {

class EditorEditingTest : public EditorWindowTest {
protected:
    void Type(TestEditor &editor, const char *text) {
        editor.StartEdit();
        TypeText(editor.Edit(), text);
        Forget();
    }
};

TEST_F(EditorEditingTest, ABoundaryIsMarkedAndThenTheCellIsWritten) {
    TestEditor &editor = Open(3, 3);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_TAB);
    EXPECT_EQ("src.StartTransaction() src.EndTransaction() Title(table,null) src.SetCell(0,0,x)",
              m_log.Take().substr(0, 80));
    EXPECT_EQ("cur=(1,0) size=3x3", editor.State());
    EXPECT_EQ("1.0", Box(editor));
}

TEST_F(EditorEditingTest, TheSameTextMarksNoBoundaryAndNoTitle) {
    TestEditor &editor = Open(3, 3);
    Type(editor, "0.0");
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ("src.SetCell(0,0,0.0)", m_log.Take());
}

TEST_F(EditorEditingTest, WithoutUndoDepthTheEditReachesTheSourceWithoutABoundary) {
    m_service.m_options.m_undoLevels = 0;
    TestEditor &editor = Open(3, 3);
    Type(editor, "x");
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ("src.SetCell(0,0,x)", m_log.Take());
}

TEST_F(EditorEditingTest, InsideAnOperationNoBoundaryIsMarked) {
    TestEditor &editor = Open(3, 3);
    Type(editor, "x");
    {
        CEditCommandGuard outer(&editor);
        CEditCommandGuard inner(&editor);
        EXPECT_TRUE(editor.OnCellEdit(0, 0, nullptr, nullptr, nullptr));
    }
    EXPECT_EQ("", m_log.Take());
    EXPECT_TRUE(editor.OnCellEdit(0, 0, nullptr, nullptr, nullptr));
    EXPECT_EQ("src.StartTransaction() src.EndTransaction() Title(table,null)", m_log.Take());
}

TEST_F(EditorEditingTest, GuardsNestAndTheFlagGoesAtTheOutermostEnd) {
    TestEditor &editor = Open(3, 3);
    Type(editor, "x");
    {
        CEditCommandGuard outer(&editor);
        { CEditCommandGuard inner(&editor); }
        editor.OnCellEdit(0, 0, nullptr, nullptr, nullptr);
        EXPECT_EQ("", m_log.Take());
    }
}

TEST_F(EditorEditingTest, EscapeInTheBoxKeepsTheText) {
    TestEditor &editor = Open(3, 3);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_ESCAPE);
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ(editor.Cells(), ::GetFocus());
}

TEST_F(EditorEditingTest, ReadOnlyModeGivesNoBoxEvenForADoubleClick) {
    TestEditor &editor = Open(3, 3, kEditReadOnly);
    EXPECT_EQ(GRID_ERROR, editor.StartEdit());
    ::SendMessageA(editor.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    SendChar(editor.Cells(), 'a');
    EXPECT_EQ("closed", Box(editor));
    EXPECT_FALSE(editor.IsInEditMode());
}

TEST_F(EditorEditingTest, ADoubleClickOpensTheBoxWithTheCaretUnderThePointer) {
    TestEditor &editor = Open(3, 3);
    m_source->m_rows[0][0] = "wwwwwwwwww";
    editor.SetColWidth(0, 200);
    ::SendMessageA(editor.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(30, 5));
    EXPECT_EQ("wwwwwwwwww", Box(editor));
    DWORD start = 0, end = 0;
    ::SendMessageA(editor.Edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                   reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, end);
    EXPECT_LT(0u, start);
    EXPECT_GT(10u, start);
}

TEST_F(EditorEditingTest, TheWidthOfTheFieldLimitsTheBox) {
    TestEditor &editor = Open(3, 3);
    m_source->m_fieldWidth = 8;
    Type(editor, "123456789");
    EXPECT_EQ("12345678", Box(editor));
}

TEST_F(EditorEditingTest, AFieldOfNoWidthDoesNotLimitTheBox) {
    TestEditor &editor = Open(3, 3);
    m_source->m_fieldWidth = 0;
    Type(editor, "1234567890123");
    EXPECT_EQ("1234567890123", Box(editor));
}

TEST_F(EditorEditingTest, VerifyModeAsksAndNoPutsTheStoredTextBack) {
    TestEditor &editor = Open(3, 3, kEditVerify);
    Type(editor, "x");
    TestApp().Answer({IDNO});
    std::string whileUp;
    TestApp().m_whileUp = [&](const std::string &) {
        m_host.SetFocus(); // the box has the focus, and that must not end the edit
        whileUp = Box(editor);
    };
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ("x", whileUp);
    EXPECT_EQ("Original = 0.0, New = x - Substitute?|36", TestApp().TakeBoxes());
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    EXPECT_EQ("src.SetCell(0,0,0.0)", m_log.Take());
    EXPECT_EQ(0, editor.m_GI.m_suppressFinish);
}

TEST_F(EditorEditingTest, VerifyModeWithYesTakesTheNewText) {
    TestEditor &editor = Open(3, 3, kEditVerify);
    Type(editor, "x");
    TestApp().Answer({IDYES});
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ("x", m_source->Text(0, 0));
}

TEST_F(EditorEditingTest, VerifyModeAsksNothingOfEmptyCellsErasedTextAndTheSameText) {
    TestEditor &editor = Open(3, 3, kEditVerify);
    m_source->m_rows[0][0] = "";
    Type(editor, "x");
    SendKey(editor.Edit(), VK_TAB); // goes on to (1, 0)
    ::SetWindowTextA(editor.Edit(), "");
    SendKey(editor.Edit(), VK_TAB);
    SendKey(editor.Edit(), VK_TAB);
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ("", m_source->Text(1, 0));
}

TEST_F(EditorEditingTest, TheFirstRecordOfAnEmptyTableIsMadeByTheEdit) {
    TestEditor &editor = Open(3, 0);
    Type(editor, "x");
    m_host.SetFocus();
    EXPECT_EQ("src.AppendRow() src.StartTransaction() src.EndTransaction() Title(table,null) "
              "src.SetCell(0,0,x) Title(table,null)",
              m_log.Take());
    EXPECT_EQ("x", m_source->Text(0, 0));
    EXPECT_EQ(1, editor.GetNumberRows());
}

TEST_F(EditorEditingTest, ARecordThatCannotBeAddedIsSaidAndTheBoxStays) {
    TestEditor &editor = Open(3, 0);
    m_source->m_results["AppendRow"] = 1;
    Type(editor, "x");
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_EQ("Could not add new record to data source!|16", TestApp().TakeBoxes());
    EXPECT_EQ("x", Box(editor));
    EXPECT_EQ("src.AppendRow()", m_log.Take());
    ::SetWindowTextA(editor.Edit(), "");
}

TEST_F(EditorEditingTest, WithoutASourceAnEditFails) {
    TestEditor &editor = Make();
    EXPECT_FALSE(editor.OnCellEdit(0, 0, nullptr, "a", "b"));
    EXPECT_FALSE(editor.AddEditCommand(0, 0, nullptr, "a", "b"));
    editor.StartTransaction();
    editor.EndTransaction();
    editor.SaveEditContents();
}

TEST_F(EditorEditingTest, TabInTheLastCellAppendsARecord) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 1);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_TAB);
    EXPECT_EQ(3, m_source->GetNumRows());
    EXPECT_EQ("cur=(0,2) size=2x3", editor.State());
}

TEST_F(EditorEditingTest, ShiftTabInTheFirstCellAppendsNothing) {
    TestEditor &editor = Open(2, 1);
    Type(editor, "x");
    HeldKeys shift({VK_SHIFT});
    SendKey(editor.Edit(), VK_TAB);
    EXPECT_EQ(1, m_source->GetNumRows());
}

TEST_F(EditorEditingTest, EnterInTheBoxOfTheLastRowAppendsAndGoesDown) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 1);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_RETURN);
    EXPECT_EQ(3, m_source->GetNumRows());
    EXPECT_EQ("cur=(1,2) size=2x3", editor.State());
    // The text stands in the row where it was typed, not in the one that was appended.
    EXPECT_EQ("x", m_source->Text(1, 1));
    EXPECT_EQ("", m_source->Text(1, 2));
    EXPECT_EQ("", Box(editor));
}

TEST_F(EditorEditingTest, EnterAsTabGoesRightAndAppendsOnlyAtTheEnd) {
    TestEditor &editor = Open(2, 1);
    CEditorCore::SetEnterKey(true);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_RETURN);
    EXPECT_EQ("cur=(1,0) size=2x1", editor.State());
    EXPECT_EQ(1, m_source->GetNumRows());
    SendKey(editor.Edit(), VK_RETURN);
    EXPECT_EQ("cur=(0,1) size=2x2", editor.State());
}

TEST_F(EditorEditingTest, TheTextOfTheCellInTheBoxIsTheBoxes) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "x");
    CString text;
    EXPECT_TRUE(editor.GetCellText(0, 0, &text));
    EXPECT_STREQ("x", text);
    EXPECT_TRUE(editor.GetCellText(1, 1, &text));
    EXPECT_STREQ("1.1", text);
    EXPECT_FALSE(editor.GetCellText(0, 5, &text));
    m_source->m_rows[1][1] = "";
    EXPECT_FALSE(editor.GetCellText(1, 1, &text));
}

TEST_F(EditorEditingTest, IdsOfNewTypesStartAt200AndOnlyKindTwoValidates) {
    TestEditor &editor = Make();
    EXPECT_EQ(200, editor.GetNewCellTypeId(2));
    EXPECT_EQ(201, editor.GetNewCellTypeId(1));
    EXPECT_TRUE(editor.IsValidatingCell(200));
    EXPECT_FALSE(editor.IsValidatingCell(201));
    EXPECT_EQ(GRID_ERROR, editor.RemoveCellType(200)); // the grid has none of this id
    EXPECT_FALSE(editor.IsValidatingCell(200));
}

TEST_F(EditorEditingTest, ReadOnlyCellsAreNamedByFieldRowOrBoth) {
    TestEditor &editor = Make();
    EXPECT_FALSE(editor.IsDataSrcCellReadOnly(3, 4));
    editor.SetCellAsReadOnly(-1, -1);
    EXPECT_FALSE(editor.IsDataSrcCellReadOnly(3, 4));
    editor.SetCellAsReadOnly(3, -1);
    editor.SetCellAsReadOnly(-1, 7);
    editor.SetCellAsReadOnly(5, 6);
    EXPECT_TRUE(editor.IsDataSrcCellReadOnly(3, 4));
    EXPECT_TRUE(editor.IsDataSrcCellReadOnly(0, 7));
    EXPECT_TRUE(editor.IsDataSrcCellReadOnly(5, 6));
    EXPECT_FALSE(editor.IsDataSrcCellReadOnly(5, 5));
    EXPECT_FALSE(editor.IsDataSrcCellReadOnly(-1, 7));
    EXPECT_FALSE(editor.IsDataSrcCellReadOnly(3, -1));
    EXPECT_FALSE(editor.IsGridCellReadOnly(3, 4));
}

TEST_F(EditorEditingTest, EnterInTheLastRecordInSightIsAnUndoStepOfItsOwnAndGoesOnEditing) {
    TestEditor &editor = Open(2, 40);
    editor.GotoCell(1, 39);
    Type(editor, "x");
    SendKey(editor.Edit(), VK_RETURN); // the view scrolls to the record that is appended
    const std::string step = "src.AppendRow() Title(table,null) src.StartTransaction() src.EndTransaction() "
                             "Title(table,null) src.SetCell(1,39,x) Title(table,null)";
    EXPECT_EQ(step, m_log.Take().substr(0, step.size()));
    EXPECT_EQ("cur=(1,40) size=2x41", editor.State());
    EXPECT_EQ("", Box(editor));
}

// The number that the translation gives is taken for a grid column in turn.
TEST_F(EditorEditingTest, TheTextOfASourcesCellIsThatOfTheColumnThatTheTranslationNames) {
    TestEditor &editor = Open(3, 2);
    CString text;
    EXPECT_TRUE(editor.GetDataSrcCellText(1, 1, &text));
    EXPECT_STREQ("1.1", text);
    CUIntArray fields;
    for (UINT field : {2u, 0u, 1u})
        fields.Add(field);
    editor.ReOrderCols(fields);
    EXPECT_TRUE(editor.GetDataSrcCellText(0, 1, &text)); // column 0 shows field 2, and column 2 field 1
    EXPECT_STREQ("1.1", text);
    editor.GotoCell(2, 1);
    Type(editor, "typed");
    EXPECT_TRUE(editor.GetDataSrcCellText(0, 1, &text));
    EXPECT_STREQ("typed", text);
    EXPECT_FALSE(editor.GetDataSrcCellText(0, 5, &text));
    m_source->m_rows[0][1] = "";
    EXPECT_FALSE(editor.GetDataSrcCellText(0, 0, &text));
}

} // namespace
