// What becomes of an open edit box when columns, rows or records change under it: its text is written into the cell
// that it was typed for, or nowhere.
#include "EditorWindowTest.h"

#include "DbfTable.h"
#include "host/sources/DbfDataSource.h"

#include <utility>

namespace {

class EditorOpenBoxTest : public EditorWindowTest {
protected:
    static void Key(TestEditor &editor, UINT key) {
        ::SendMessageA(editor.Edit() != nullptr ? editor.Edit() : editor.Cells(), WM_KEYDOWN, key, 1);
    }
    static void Type(TestEditor &editor, const char *text) {
        if (editor.Edit() == nullptr)
            editor.StartEdit();
        TypeText(editor.Edit(), text);
    }
    // Every record of the source, fields apart by commas and records by slashes.
    static std::string Records(CUGDataSource *source) {
        std::string all;
        for (long row = 0; row < source->GetNumRows(); ++row) {
            for (int field = 0; field < source->GetNumCols(); ++field) {
                CUGCell cell;
                source->GetCell(field, row, &cell);
                all += std::string(field > 0 ? "," : "") + cell.GetText();
            }
            all += "/";
        }
        return all;
    }
    // An editor of a real table of two fields and three records, "0.0,1.0/0.1,1.1/0.2,1.2/", with an undo of its own.
    TestEditor &OpenTable(int mode = kEditNormal) {
        const std::string path = MakeFile("table.dbf", DbfTableBytes(2, 3));
        TestEditor &editor = Make();
        m_table = new CDbfDataSource;
        m_table->SetRowsChangedHook([&editor] { editor.OnDataSourceNotify(0, 1, 0); });
        m_service.m_sources.push_back(m_table);
        EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, mode, ""));
        Forget();
        return editor;
    }

    CDbfDataSource *m_table = nullptr; // borrowed
};

// --- The view of the columns

TEST_F(EditorOpenBoxTest, UndoOfAHidingClosesTheBoxWithoutWritingIntoTheFieldThatComesBack) {
    TestEditor &editor = Open(3, 2);
    editor.OnHideCols();
    Key(editor, VK_RIGHT); // opens the box of field 1, which is the first column now
    ASSERT_EQ("1.0", Box(editor));
    editor.Undo();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ(editor.Cells(), ::GetFocus());
    Key(editor, VK_TAB);
    EXPECT_EQ("0.0,1.0,2.0/0.1,1.1,2.1/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, RedoOfAHidingClosesTheBoxToo) {
    TestEditor &editor = Open(3, 2);
    editor.OnHideCols();
    editor.Undo();
    Key(editor, VK_RIGHT);
    ASSERT_EQ("0.0", Box(editor));
    editor.Redo();
    EXPECT_EQ("1,2 of 0,1,2", editor.Order());
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.0,1.0,2.0/0.1,1.1,2.1/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, EveryChangeOfTheViewFinishesWhatWasTypedIntoItsOwnFieldFirst) {
    const std::pair<const char *, std::function<void(TestEditor &)>> changes[] = {
        {"ReOrderCols", [](TestEditor &editor) { editor.ReOrderCols(Fields({1, 0})); }},
        {"DisplayCols", [](TestEditor &editor) { editor.DisplayCols(Fields({1, 2})); }},
        {"HideCols", [](TestEditor &editor) { editor.HideCols(Fields({0})); }},
        {"UnHideCols", [](TestEditor &editor) { editor.UnHideCols(Fields({0}), Fields({2})); }},
        {"OnHideCols", [](TestEditor &editor) { editor.OnHideCols(); }},
        {"OnUnHideCols", [](TestEditor &editor) { editor.OnUnHideCols(); }},
        {"OnOrderCols", [](TestEditor &editor) {
             CStringArray names;
             names.Add("F2");
             names.Add("F0");
             editor.OnOrderCols(&names);
         }}};
    for (const auto &[name, change] : changes) {
        TestEditor &editor = Open(3, 1);
        m_service.m_onVisibility = [&editor](CStringArray &, CArray<bool, bool> &) {
            editor.ReOrderCols(Fields({2, 1}));
        };
        Type(editor, "typed");
        change(editor);
        EXPECT_EQ("closed", Box(editor)) << name;
        EXPECT_EQ("typed,1.0,2.0/", Records(m_source)) << name;
        m_editors.clear();
    }
}

TEST_F(EditorOpenBoxTest, AResetOfTheOrderWritesTheBoxIntoTheFieldThatItWasTypedFor) {
    TestEditor &editor = Open(3, 1);
    editor.ReOrderCols(Fields({2, 0, 1}));
    Type(editor, "typed");
    editor.ResetFieldsOrder();
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.0,1.0,typed/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, AnUntouchedBoxIsClosedByAChangeOfTheViewAndWritesNothing) {
    TestEditor &editor = Open(3, 1);
    editor.StartEdit();
    Forget();
    editor.ReOrderCols(Fields({1, 0}));
    EXPECT_EQ("TextAlignment", m_log.Take());
}

TEST_F(EditorOpenBoxTest, AnEditThatCannotBeFinishedIsLeftBeforeTheViewChanges) {
    TestEditor &editor = Open(3, 1, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDNO});
    editor.ReOrderCols(Fields({1, 0}));
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.0,1.0,2.0/", Records(m_source));
}

// --- Rows and records

TEST_F(EditorOpenBoxTest, UndoOfAnInsertLeavesTheRecordThatMovesUpAsItWas) {
    TestEditor &editor = OpenTable();
    editor.ExecInsertRows(1, 1, false);
    editor.GotoCell(0, 1);
    editor.StartEdit();
    ASSERT_EQ("", Box(editor));
    editor.Undo();
    EXPECT_EQ("closed", Box(editor));
    Key(editor, VK_TAB);
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
    editor.Redo();
    EXPECT_EQ("0.0,1.0/,/0.1,1.1/0.2,1.2/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, UndoOfADeletionLeavesTheRestoredRecordAsItWas) {
    TestEditor &editor = OpenTable();
    editor.ExecDeleteRows(0, 0);
    editor.GotoCell(0, 0);
    editor.StartEdit();
    ASSERT_EQ("0.1", Box(editor));
    editor.Undo();
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
    EXPECT_TRUE(editor.CanRedo());
}

TEST_F(EditorOpenBoxTest, UndoOfTheCellsOwnEditIsNotWrittenBackAndCanBeRedone) {
    TestEditor &editor = OpenTable();
    Type(editor, "new");
    editor.SaveEditContents();
    editor.StartEdit();
    ASSERT_EQ("new", Box(editor));
    editor.Undo();
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
    editor.Redo();
    EXPECT_EQ("new,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, UndoneTypingIsGoneWithTheBoxWhenTheSourceIsUndone) {
    TestEditor &editor = OpenTable();
    editor.QuickSetText(1, 2, "late");
    Type(editor, "typed");
    editor.Undo();
    ASSERT_EQ("0.0", Box(editor));
    editor.Undo();
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, TypingIsTheNewestChangeAndIsNotLostToARedo) {
    TestEditor &editor = OpenTable();
    editor.QuickSetText(1, 2, "late");
    editor.Undo();
    ASSERT_TRUE(editor.CanRedo());
    Type(editor, "typed");
    editor.Redo();
    EXPECT_EQ("typed,1.0/0.1,1.1/0.2,1.2/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, TypingAfterAnUndoIsUndoneInTheBoxAgainAndNowhereElse) {
    TestEditor &editor = OpenTable();
    editor.QuickSetText(1, 2, "late");
    Type(editor, "typed");
    editor.Undo();
    ASSERT_EQ("0.0", Box(editor));
    ::SendMessageA(editor.Edit(), EM_SETSEL, 0, -1);
    Type(editor, "again");
    EXPECT_FALSE(editor.CanRedo()); // the new typing took the place of the one undone
    editor.Undo();
    EXPECT_EQ("0.0", Box(editor));
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,late/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, RowsThatChangedUnderTheBoxCloseItUnwritten) {
    TestEditor &editor = Open(2, 3);
    Type(editor, "typed");
    m_source->m_rows.erase(m_source->m_rows.begin());
    editor.OnDataSourceNotify(0, 1, 0);
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("0.1,1.1/0.2,1.2/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, AnInsertByTheHostFinishesTheEditInItsOwnRecordFirst) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(0, 1);
    Type(editor, "typed");
    editor.ExecInsertRows(0, 1, false);
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ(",/0.0,1.0/typed,1.1/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, ADeletionByTheHostFinishesTheEditInItsOwnRecordFirst) {
    TestEditor &editor = Open(2, 3);
    editor.GotoCell(0, 1);
    Type(editor, "typed");
    editor.ExecDeleteRows(0, 0);
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("typed,1.1/0.2,1.2/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, APasteByTheHostFinishesTheEditFirst) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    CString text("a\tb");
    editor.Paste(text);
    m_host.SetFocus();
    EXPECT_EQ("a,b/0.1,1.1/", Records(m_source));
}

// --- What a command's question or dialog ends

TEST_F(EditorOpenBoxTest, AnEditThatTheDialogOfACommandEndsIsAnUndoStepOfItsOwn) {
    TestEditor &editor = OpenTable();
    editor.QuickSetText(1, 2, "late");
    Type(editor, "typed");
    WithDialog cancel([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    editor.OnInsertRows();
    ASSERT_EQ("typed,1.0/0.1,1.1/0.2,late/", Records(m_table));
    editor.Undo();
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,late/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, AnEditThatTheHostsDialogOfTheOrderEndsIsAnUndoStepOfItsOwn) {
    TestEditor &editor = OpenTable();
    editor.QuickSetText(1, 2, "late");
    Type(editor, "typed");
    m_service.m_onOrder = [this](CStringArray *) {
        m_host.SetFocus();
        return false;
    };
    editor.OnOrderCols(nullptr);
    ASSERT_EQ("typed,1.0/0.1,1.1/0.2,late/", Records(m_table));
    editor.Undo();
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,late/", Records(m_table));
}

TEST_F(EditorOpenBoxTest, TheVerifyingQuestionComesBeforeTheDialogOfACommand) {
    TestEditor &editor = Open(2, 3, kEditVerify);
    Type(editor, "typed");
    std::string dialogAtQuestion;
    WithDialog cancel([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    TestApp().m_whileUp = [&](const std::string &) { dialogAtQuestion = m_host.IsWindowEnabled() ? "none" : "up"; };
    TestApp().Answer({IDYES});
    editor.OnDeleteRows(false);
    EXPECT_EQ("none", dialogAtQuestion);
    EXPECT_EQ("typed,1.0/0.1,1.1/0.2,1.2/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, ANoIsNotPutIntoABoxThatWasOpenedWhileTheQuestionWasUp) {
    TestEditor &editor = Open(2, 3, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDNO});
    TestApp().m_whileUp = [&](const std::string &) {
        editor.GotoCell(1, 1);
        editor.StartEdit();
    };
    Key(editor, VK_DOWN);
    EXPECT_EQ("1.1", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,1.2/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, AYesMarksNoStepForABoxThatWasOpenedWhileTheQuestionWasUp) {
    TestEditor &editor = Open(2, 3, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) {
        editor.GotoCell(1, 1);
        editor.StartEdit();
        Forget();
    };
    Key(editor, VK_DOWN);
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("1.1", Box(editor));
}

// --- Cells that are written from elsewhere

TEST_F(EditorOpenBoxTest, ACutOfCellsByTheHostFinishesTheEditFirst) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    editor.SelectRange(0, 0, 1, 0);
    EXPECT_EQ(GRID_SUCCESS, editor.CutSelected());
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ(",/0.1,1.1/", Records(m_source));
    CString text;
    editor.CopyFromClipBoard(&text);
    EXPECT_STREQ("typed\t1.0", text);
}

TEST_F(EditorOpenBoxTest, ADeletionToTheClipboardTakesWhatWasTypedAlong) {
    TestEditor &editor = Open(2, 3);
    Type(editor, "typed");
    editor.SelectRange(0, 0, 0, 1);
    editor.OnDeleteRows(true);
    EXPECT_EQ("0.2,1.2/", Records(m_source));
    CString text;
    editor.CopyFromClipBoard(&text);
    EXPECT_STREQ("typed\t1.0\r\n0.1\t1.1", text);
}

TEST_F(EditorOpenBoxTest, ANewFieldForAColumnFinishesTheEditInItsOwnFieldFirst) {
    TestEditor &editor = Open(3, 1);
    Type(editor, "typed");
    editor.SetColTranslation(0, 2);
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("typed,1.0,2.0/", Records(m_source));
}

TEST_F(EditorOpenBoxTest, TheFieldOfAnotherColumnLeavesTheEditOpen) {
    TestEditor &editor = Open(3, 1);
    Type(editor, "typed");
    editor.SetColTranslation(1, 2);
    EXPECT_EQ("typed", Box(editor));
}

// --- An edit that a host keeps open when the focus goes

TEST_F(EditorOpenBoxTest, AnEditThatOutlivesTheFocusIsSavedAllTheSame) {
    TestEditor &editor = Open(2, 2);
    editor.SetSuppressFinishOnFocusLoss(1);
    Type(editor, "typed");
    m_host.SetFocus();
    ASSERT_EQ("typed", Box(editor));
    editor.OnSave(0);
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records(m_source));
    EXPECT_EQ(1, editor.m_GI.m_suppressFinish);
}

TEST_F(EditorOpenBoxTest, AnEditThatOutlivesTheFocusIsFinishedBeforeTheViewChanges) {
    TestEditor &editor = Open(2, 1);
    editor.SetSuppressFinishOnFocusLoss(1);
    Type(editor, "typed");
    editor.ReOrderCols(Fields({1, 0}));
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("typed,1.0/", Records(m_source));
}

// --- The current cell moved away from the box

class VerifyingEditor : public TestEditor {
public:
    using TestEditor::TestEditor;
    int OnEditVerify(int col, long row, CEdit *edit, UINT *key) override {
        if (col >= 0)
            m_asked += std::to_string(col) + "," + std::to_string(row) + " ";
        return TestEditor::OnEditVerify(col, row, edit, key);
    }
    std::string m_asked;
};

TEST_F(EditorOpenBoxTest, ACharacterIsAskedAboutForTheCellOfTheBox) {
    auto owned = std::make_unique<VerifyingEditor>(&m_log);
    VerifyingEditor &editor = *owned;
    m_editors.push_back(std::move(owned));
    editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 210);
    m_source = Source(3, 3);
    ASSERT_TRUE(editor.LoadData("table", nullptr, kEditNormal, ""));
    editor.StartEdit();
    editor.GotoCell(2, 1);
    TypeText(editor.Edit(), "ab");
    EXPECT_EQ("0,0 0,0 ", editor.m_asked);
}

// --- The edit mode

TEST_F(EditorOpenBoxTest, ANewEditModeFinishesTheEditUnderTheOldOne) {
    TestEditor &editor = Open(2, 2, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    editor.SetEditMode(kEditReadOnly);
    EXPECT_EQ("Original = 0.0, New = typed - Substitute?|36", TestApp().TakeBoxes());
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records(m_source));
    EXPECT_EQ(kEditReadOnly, editor.GetEditMode());
}

// --- The title

TEST_F(EditorOpenBoxTest, ARefusedValueIsToldInTheTitleAfterTheWrite) {
    TestEditor &editor = Open(2, 2);
    std::string modified;
    m_service.m_onTitle = [&](CEditorCore *asked) { modified += asked->IsFileModified() ? "* " : "- "; };
    m_source->m_results["SetCell"] = GRID_ERROR;
    Type(editor, "typed");
    Key(editor, VK_DOWN);
    EXPECT_EQ("* - ", modified);
    m_service.m_onTitle = nullptr;
}

TEST_F(EditorOpenBoxTest, AnEditThatLosesTheFocusTellsTheTitleAfterTheWriteToo) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    Forget();
    m_host.SetFocus();
    EXPECT_EQ("src.StartTransaction() src.EndTransaction() Title(table,null) src.SetCell(0,0,typed) Title(table,null)",
              m_log.Take());
}

TEST_F(EditorOpenBoxTest, TheSameTextTellsNoTitle) {
    TestEditor &editor = Open(2, 2);
    editor.StartEdit();
    Forget();
    m_host.SetFocus();
    EXPECT_EQ("src.SetCell(0,0,0.0)", m_log.Take());
}

TEST_F(EditorOpenBoxTest, ASettledEditIsWrittenWhereItWasTypedAndGoneWhereItWasNot) {
    TestEditor &editor = Open(2, 2);
    editor.SettleEdit(); // with none open there is nothing to do
    EXPECT_EQ("", m_log.Take());
    Type(editor, "typed");
    editor.SettleEdit();
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records(m_source));
    EXPECT_EQ(editor.Cells(), ::GetFocus());
    editor.GotoCell(1, 1);
    editor.StartEdit();
    Forget();
    editor.SettleEdit();
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorOpenBoxTest, AnEditThatCannotBeWrittenIsSettledUnwritten) {
    TestEditor &editor = Open(2, 0);
    m_source->m_results["AppendRow"] = 1;
    Type(editor, "typed");
    editor.SettleEdit();
    EXPECT_EQ("Could not add new record to data source!|16", TestApp().TakeBoxes());
    EXPECT_EQ("closed", Box(editor));
    EXPECT_EQ("", Records(m_source));
}

TEST_F(EditorOpenBoxTest, AnEditThatItsQuestionHoldsOpenIsSettledUnwritten) {
    TestEditor &editor = Open(2, 2, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    std::string whileUp;
    TestApp().m_whileUp = [&](const std::string &) {
        editor.SettleEdit();
        whileUp = Box(editor);
    };
    Key(editor, VK_TAB);
    EXPECT_EQ("closed", whileUp);
    EXPECT_EQ("Original = 0.0, New = typed - Substitute?|36", TestApp().TakeBoxes());
    EXPECT_EQ("0.0,1.0/0.1,1.1/", Records(m_source));
}

} // namespace
