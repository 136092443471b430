// An edit box whose cell comes to show something else: by an operation of the grid, within a notification of the host,
// or while the source is at work. What was typed goes into its own cell, or nowhere.
#include "EditorWindowTest.h"

#include "grid/UGDropListType.h"

namespace {

class EditorLostCellTest : public EditorWindowTest {
protected:
    static void Type(TestEditor &editor, const char *text) {
        editor.StartEdit();
        TypeText(editor.Edit(), text);
    }
    std::string Records() const {
        std::string all;
        for (const auto &record : m_source->m_rows)
            all += Join(record, ",") + "/";
        return all;
    }
};

// --- Operations of the grid

TEST_F(EditorLostCellTest, ADefaultCellWithAnotherFieldFinishesTheEditInItsOwnFieldFirst) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    CUGCell defaults;
    editor.GetColDefault(1, &defaults);
    editor.SetColDefault(0, &defaults);
    m_host.SetFocus();
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, ADefaultCellOfTheSameFieldLeavesTheEditOpen) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    CUGCell defaults;
    editor.GetColDefault(0, &defaults);
    defaults.SetAlignment(2);
    editor.SetColDefault(0, &defaults);
    EXPECT_EQ("typed", Box(editor));
}

TEST_F(EditorLostCellTest, AnEndOfTheTranslationFinishesTheEditInItsOwnFieldFirst) {
    TestEditor &editor = Open(2, 2);
    editor.ReOrderCols(Fields({1, 0}));
    Type(editor, "typed");
    editor.EnableColTranslation(0);
    m_host.SetFocus();
    editor.EnableColTranslation(1);
    EXPECT_EQ("0.0,typed/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, AnotherSourceForTheGridFinishesTheEditInItsOwnFirst) {
    TestEditor &editor = Open(2, 2);
    RecordingSource lent(&m_log, 2, 2, "lent");
    const int own = editor.GetDefaultDataSource();
    const int index = editor.AddDataSource(&lent);
    Type(editor, "typed");
    editor.SetDefaultDataSource(index);
    m_host.SetFocus();
    EXPECT_EQ("0.0", lent.Text(0, 0));
    editor.SetDefaultDataSource(own);
    editor.RemoveDataSource(index);
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, ASourceThatIsTakenOutHasTheEditFinishedFirst) {
    TestEditor &editor = Open(2, 2);
    const std::unique_ptr<CUGDataSource> taken(m_source);
    Type(editor, "typed");
    editor.RemoveDataSource(editor.GetDefaultDataSource());
    m_host.SetFocus();
    EXPECT_EQ("typed,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, AnUntouchedBoxDoesNotWriteOverWhatTheHostPutUnderIt) {
    TestEditor &editor = Open(2, 2);
    editor.StartEdit();
    editor.QuickSetText(0, 0, "put");
    m_host.SetFocus();
    EXPECT_EQ("put,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, AnUntouchedBoxIsNotAskedAboutOverWhatTheHostPutUnderIt) {
    TestEditor &editor = Open(2, 2, kEditVerify);
    editor.StartEdit();
    editor.QuickSetText(0, 0, "put");
    editor.SaveEditContents();
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("put,1.0/0.1,1.1/", Records());
    EXPECT_EQ("closed", Box(editor));
}

// --- Notifications

TEST_F(EditorLostCellTest, AnEditBegunAsADeletionMovesTheCurrentCellIsNotWrittenIntoTheRecordThatMovesUp) {
    TestEditor &editor = Open(2, 4);
    editor.GotoCell(0, 3);
    editor.m_onCellChange = [&] { editor.StartEdit(); };
    EXPECT_TRUE(editor.ExecDeleteRows(2, 2));
    editor.m_onCellChange = nullptr;
    m_host.SetFocus();
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.3,1.3/", Records());
}

TEST_F(EditorLostCellTest, AHostMayBeginAnEditWheneverTheCurrentCellChanges) {
    TestEditor &editor = Open(2, 3);
    int changes = 0;
    std::function<void()> begin = [&] {
        if (++changes < 10)
            editor.m_onCellChange = begin;
        editor.StartEdit();
    };
    editor.m_onCellChange = begin;
    editor.GotoCell(1, 2);
    EXPECT_EQ("1.2", Box(editor));
    TypeText(editor.Edit(), "typed");
    ::SendMessageA(editor.Edit(), WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ("1.1", Box(editor));
    EXPECT_EQ(2, changes);
    EXPECT_EQ("0.0,1.0/0.1,1.1/0.2,typed/", Records());
    editor.m_onCellChange = nullptr;
}

TEST_F(EditorLostCellTest, ColumnsThatAreReorderedAsTheCellIsWrittenTakeTheTextNowhereElse) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    editor.m_onSetCell = [&] { editor.ReOrderCols(Fields({1, 0})); };
    m_host.SetFocus();
    EXPECT_EQ("0.0,1.0/0.1,1.1/", Records());
    EXPECT_EQ("closed", Box(editor));
}

TEST_F(EditorLostCellTest, RecordsThatAreInsertedAsTheCellIsWrittenTakeTheTextNowhereElse) {
    TestEditor &editor = Open(2, 2);
    Type(editor, "typed");
    editor.m_onSetCell = [&] {
        m_source->InsertRow(0);
        editor.OnDataSourceNotify(0, 1, 0);
    };
    m_host.SetFocus();
    EXPECT_EQ(",/0.0,1.0/0.1,1.1/", Records());
    EXPECT_EQ("closed", Box(editor));
}

TEST_F(EditorLostCellTest, ATableThatIsClosedAsACellIsWrittenGetsNothing) {
    TestEditor &editor = Open(2, 2);
    editor.m_onSetCell = [&] { editor.CloseDataSource(false); };
    EXPECT_EQ(GRID_ERROR, editor.QuickSetText(1, 1, "put"));
    EXPECT_EQ(std::string::npos, m_log.Take().find("SetCell"));
}

TEST_F(EditorLostCellTest, ATextThatIsPutIntoAColumnIsNotWrittenIntoTheFieldThatTheHostShowsThere) {
    TestEditor &editor = Open(2, 2);
    editor.m_onSetCell = [&] { editor.ReOrderCols(Fields({1, 0})); };
    EXPECT_EQ(GRID_ERROR, editor.QuickSetText(0, 0, "put"));
    EXPECT_EQ("0.0,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, ATextThatIsPutAsAnotherIsPutLeavesThatOneAsItWas) {
    TestEditor &editor = Open(2, 2);
    editor.m_onSetCell = [&] { editor.QuickSetText(1, 1, "second"); };
    EXPECT_EQ(GRID_SUCCESS, editor.QuickSetText(0, 0, "first"));
    EXPECT_EQ("first,1.0/0.1,second/", Records());
}

// --- While the source is at work

TEST_F(EditorLostCellTest, AnEditBegunWhileTheSourceDeletesIsNotWrittenIntoTheRecordThatMovesUp) {
    TestEditor &editor = Open(2, 3);
    m_source->m_onCall = [&](const std::string &operation) {
        if (operation == "DeleteRow")
            Type(editor, "typed");
    };
    editor.ExecDeleteRows(0, 0);
    m_source->m_onCall = nullptr;
    m_host.SetFocus();
    EXPECT_EQ("0.1,1.1/0.2,1.2/", Records());
}

TEST_F(EditorLostCellTest, AnEditBegunWhileTheSourceInsertsIsNotWrittenIntoTheNewRecord) {
    TestEditor &editor = Open(2, 2);
    m_source->m_onCall = [&](const std::string &operation) {
        if (operation == "InsertRow")
            Type(editor, "typed");
    };
    editor.ExecInsertRows(0, 1, false);
    m_source->m_onCall = nullptr;
    m_host.SetFocus();
    EXPECT_EQ(",/0.0,1.0/0.1,1.1/", Records());
}

TEST_F(EditorLostCellTest, AnEditBegunWhileTheSourceSavesWhatPassesIsNotWrittenIntoAnotherRecord) {
    TestEditor &editor = Open(2, 3);
    m_source->m_onCall = [&](const std::string &operation) {
        if (operation != "SaveAs")
            return;
        Type(editor, "typed");
        m_source->m_rows.erase(m_source->m_rows.begin());
    };
    editor.OnSaveAs("passing", true, 1);
    m_source->m_onCall = nullptr;
    m_host.SetFocus();
    EXPECT_EQ("0.1,1.1/0.2,1.2/", Records());
}

// --- The list of a cell that has one

class EditorOpenListTest : public EditorLostCellTest {
protected:
    // An editor of 3 fields and 2 records with the list of the cell (0, 0) open, its second item chosen.
    TestEditor &OpenList() {
        TestEditor &editor = Open(3, 2);
        for (int col = 0; col < 3; ++col) {
            CUGCell cell;
            editor.GetColDefault(col, &cell);
            cell.SetCellType(kDropListTypeId);
            cell.SetLabelText("one\ntwo\n");
            editor.SetColDefault(col, &cell);
        }
        HeldKeys control({VK_CONTROL});
        ::SendMessageA(editor.Cells(), WM_KEYDOWN, VK_DOWN, 1);
        m_list = ::GetDlgItem(editor.m_hWnd, 238);
        EXPECT_NE(nullptr, m_list);
        ::SendMessageA(m_list, LB_SETCURSEL, 1, 0);
        return editor;
    }
    void Take() {
        if (::IsWindow(m_list))
            ::SendMessageA(m_list, WM_KEYDOWN, VK_RETURN, 1);
    }

    HWND m_list = nullptr;
};

TEST_F(EditorOpenListTest, AnItemGoesIntoTheCellOfTheList) {
    OpenList();
    Take();
    EXPECT_EQ("two,1.0,2.0/0.1,1.1,2.1/", Records());
}

TEST_F(EditorOpenListTest, ANewOrderOfTheColumnsClosesTheList) {
    TestEditor &editor = OpenList();
    editor.ReOrderCols(Fields({2, 1, 0}));
    Take();
    EXPECT_EQ("0.0,1.0,2.0/0.1,1.1,2.1/", Records());
}

TEST_F(EditorOpenListTest, RecordsThatChangeUnderTheListCloseIt) {
    TestEditor &editor = OpenList();
    editor.ExecInsertRows(0, 1, false);
    Take();
    EXPECT_EQ(",,/0.0,1.0,2.0/0.1,1.1,2.1/", Records());
}

TEST_F(EditorOpenListTest, ATableThatChangedUnderTheListClosesIt) {
    TestEditor &editor = OpenList();
    m_source->InsertRow(0);
    editor.OnDataSourceNotify(0, 1, 0);
    Take();
    EXPECT_EQ(",,/0.0,1.0,2.0/0.1,1.1,2.1/", Records());
}

} // namespace
