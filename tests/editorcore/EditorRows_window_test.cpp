// Records inserted and deleted, with the dialogs and messages that go with it.
#include "EditorWindowTest.h"

#include "editorcore/RecordsDlg.h"
#include "resources/ResourceIds.h"

#include <afxcmn.h>

namespace {

class EditorRowsTest : public EditorWindowTest {
protected:
    static void Answer(HWND dialog, const char *count, int button = IDOK) {
        ::SetDlgItemTextA(dialog, IDC_RECORDS_COUNT, count);
        ::SendMessageA(dialog, WM_COMMAND, button, 0);
    }
    // "caption|prompt|count|warning"
    static std::string Describe(HWND dialog) {
        return WindowText(dialog) + "|" + WindowText(::GetDlgItem(dialog, IDC_RECORDS_PROMPT)) + "|" +
               WindowText(::GetDlgItem(dialog, IDC_RECORDS_COUNT)) + "|" +
               (::GetWindowLongA(::GetDlgItem(dialog, IDC_RECORDS_NO_UNDO), GWL_STYLE) & WS_VISIBLE ? "warned" : "");
    }
    static void Spin(HWND dialog, int delta) {
        NMUPDOWN notice{};
        notice.hdr = {::GetDlgItem(dialog, IDC_RECORDS_SPIN), IDC_RECORDS_SPIN, UDN_DELTAPOS};
        notice.iDelta = delta;
        EXPECT_EQ(0, ::SendMessageA(dialog, WM_NOTIFY, IDC_RECORDS_SPIN, reinterpret_cast<LPARAM>(&notice)));
    }
    std::string Column(int col = 0) {
        std::string all;
        for (long row = 0; row < m_source->GetNumRows(); ++row)
            all += (row > 0 ? "," : "") + m_source->Text(col, row);
        return all;
    }
};

// --- Inserting

TEST_F(EditorRowsTest, TheInsertDialogAsksAndTheRowsComeInBeforeTheCurrentOne) {
    TestEditor &editor = Open(2, 3);
    editor.GotoCell(1, 1);
    std::string seen;
    WithDialog act([&](HWND dialog) {
        seen = Describe(dialog);
        Answer(dialog, "2");
    });
    editor.OnInsertRows();
    EXPECT_EQ("Insert Records|Number of records: |1|", seen);
    EXPECT_EQ("0.0,,,0.1,0.2", Column());
    EXPECT_EQ("cur=(1,1) size=2x5", editor.State());
    EXPECT_EQ("Wait(1) src.InsertRow(1) src.InsertRow(1) Wait(-1) Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0) 1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorRowsTest, CancellingTheInsertDialogChangesNothing) {
    TestEditor &editor = Open(2, 3);
    WithDialog act([](HWND dialog) { Answer(dialog, "2", IDCANCEL); });
    editor.OnInsertRows();
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("", m_host.TakeMessages());
}

TEST_F(EditorRowsTest, InReadOnlyModeInsertAndDeleteSaySo) {
    TestEditor &editor = Open(2, 3, kEditReadOnly);
    editor.OnInsertRows();
    editor.OnDeleteRows(true);
    EXPECT_EQ("Cannot insert records!\nFile is open in read only mode!|0\n"
              "Cannot delete records!\nFile is open in read only mode!|0",
              TestApp().TakeBoxes());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorRowsTest, FiveInsertedIntoAnEmptyTableAreFiveAppends) {
    TestEditor &editor = Open(2, 0);
    EXPECT_TRUE(editor.ExecInsertRows(0, 5, false));
    EXPECT_EQ("src.AppendRow() src.AppendRow() src.AppendRow() src.AppendRow() src.AppendRow()", m_log.Take());
    EXPECT_EQ("cur=(0,0) size=2x5", editor.State());
}

TEST_F(EditorRowsTest, InsertingAtTheEndThatFailsKeepsWhatWasAppendedAndTellsTheGridNothing) {
    TestEditor &editor = Open(2, 2);
    m_source->m_results["AppendRow"] = GRID_ERROR;
    EXPECT_FALSE(editor.ExecInsertRows(2, 3, true));
    EXPECT_EQ("Could not append data source record!|16", TestApp().TakeBoxes());
    EXPECT_EQ("Wait(1) src.AppendRow() Wait(-1)", m_log.Take());
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
}

TEST_F(EditorRowsTest, AnInsertThatFailsIsSaidAndTheGridIsAsBefore) {
    TestEditor &editor = Open(2, 3);
    m_source->m_results["InsertRow"] = GRID_ERROR;
    EXPECT_FALSE(editor.ExecInsertRows(1, 3, true));
    EXPECT_EQ("Could not insert records!|16", TestApp().TakeBoxes());
    EXPECT_EQ("Wait(1) src.InsertRow(1) Wait(-1)", m_log.Take());
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
}

TEST_F(EditorRowsTest, InsertingNoneChangesNothing) {
    TestEditor &editor = Open(2, 3);
    EXPECT_TRUE(editor.ExecInsertRows(1, 0, false));
    EXPECT_TRUE(editor.ExecInsertRows(3, 0, false));
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorRowsTest, WithoutASourceNothingIsInsertedOrDeletedAndNothingIsSaid) {
    TestEditor &editor = Make();
    EXPECT_FALSE(editor.ExecInsertRows(0, 1, true));
    EXPECT_FALSE(editor.ExecDeleteRows(0, 0));
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorRowsTest, AnAppendThatFailsIsSaidAndTheGridIsResynchronised) {
    TestEditor &editor = Open(2, 2);
    m_source->m_rows.emplace_back(2); // came by another way
    m_source->m_results["AppendRow"] = GRID_ERROR;
    editor.OnAppendRow(1);
    EXPECT_EQ("Could not add record to data source!|16", TestApp().TakeBoxes());
    EXPECT_EQ("cur=(1,2) size=2x3", editor.State());
}

// --- Deleting

TEST_F(EditorRowsTest, ASelectionOfSeveralRowsIsDeletedWholeWithNoDialog) {
    TestEditor &editor = Open(3, 5);
    editor.ClearSelections();
    editor.SelectRange(1, 1, 1, 2); // one column plays no part
    editor.OnDeleteRows(false);
    EXPECT_EQ("0.0,0.3,0.4", Column());
    EXPECT_EQ("cur=(0,1) size=3x3", editor.State());
    EXPECT_EQ("Title(table,null) Wait(1) src.DeleteRow(1) src.DeleteRow(1) Wait(-1)", m_log.Take());
    EXPECT_EQ("1049(1,0) 1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorRowsTest, ASelectionOfOneRowGoesToTheDialogWhichStartsAtTheCurrentRow) {
    TestEditor &editor = Open(3, 5);
    editor.GotoCell(0, 3);
    std::string seen;
    WithDialog act([&](HWND dialog) {
        seen = Describe(dialog);
        Answer(dialog, "1");
    });
    editor.OnDeleteRows(false);
    EXPECT_EQ("Delete Records|Number of records|1|warned", seen);
    EXPECT_EQ("0.0,0.1,0.2,0.4", Column());
}

TEST_F(EditorRowsTest, ACountThatIsTooLargeDeletesToTheEnd) {
    TestEditor &editor = Open(1, 10);
    editor.GotoCell(0, 7);
    WithDialog act([](HWND dialog) { Answer(dialog, "100"); });
    editor.OnDeleteRows(false);
    EXPECT_EQ(7, m_source->GetNumRows());
    EXPECT_EQ("cur=(0,6) size=1x7", editor.State());
}

TEST_F(EditorRowsTest, DeletingAllRowsLeavesThePlaceholder) {
    TestEditor &editor = Open(2, 3);
    EXPECT_TRUE(editor.ExecDeleteRows(0, 2));
    EXPECT_EQ(0, m_source->GetNumRows());
    EXPECT_EQ(0, editor.GetNumberRows());
    EXPECT_EQ("cur=(0,0) size=2x1", editor.State());
}

TEST_F(EditorRowsTest, SixtyCellsHaveTheWaitCursorAndFiftyNot) {
    TestEditor &editor = Open(10, 20);
    editor.SelectRange(0, 0, 0, 5);
    editor.OnDeleteRows(false);
    EXPECT_EQ("Wait(1) Title(table,null) Wait(1)", m_log.Take().substr(0, 33));
    editor.SelectRange(0, 0, 0, 4);
    editor.OnDeleteRows(false);
    EXPECT_EQ("Title(table,null) Wait(1) src", m_log.Take().substr(0, 29));
}

TEST_F(EditorRowsTest, DeletedRowsGoToTheClipboardWhole) {
    TestEditor &editor = Open(2, 3);
    editor.ClearSelections();
    editor.SelectRange(1, 0, 1, 1);
    editor.OnDeleteRows(true);
    CString text;
    EXPECT_EQ(GRID_SUCCESS, editor.CopyFromClipBoard(&text));
    EXPECT_STREQ("0.0\t1.0\r\n0.1\t1.1", text);
    EXPECT_EQ("0.2", Column());
}

TEST_F(EditorRowsTest, WithoutASelectionForTheClipboardNothingIsDeletedAndTheWaitCursorStaysRaised) {
    TestEditor &editor = Open(10, 20);
    editor.EnableMultiSelect(0);
    WithDialog act([](HWND dialog) { Answer(dialog, "6"); });
    editor.OnDeleteRows(true);
    EXPECT_EQ("Could not save data to be deleted!|16", TestApp().TakeBoxes());
    EXPECT_EQ(20, m_source->GetNumRows());
    EXPECT_EQ("Wait(1)", m_log.Take());
}

TEST_F(EditorRowsTest, AGridThatRefusesFewerRowsLeavesTheSourceUntouched) {
    TestEditor &editor = Open(2, 3);
    EXPECT_FALSE(editor.ExecDeleteRows(0, 9));
    EXPECT_EQ("Could not remove rows from grid!|16", TestApp().TakeBoxes());
    EXPECT_EQ("Wait(1)", m_log.Take()); // it stays raised on this path
    EXPECT_EQ(3, m_source->GetNumRows());
}

TEST_F(EditorRowsTest, ADeletionThatFailsIsSaidAndTheGridGetsItsRowsBack) {
    TestEditor &editor = Open(2, 3);
    m_source->m_results["DeleteRow"] = GRID_ERROR;
    EXPECT_FALSE(editor.ExecDeleteRows(0, 2));
    EXPECT_EQ("Could not delete records!|16", TestApp().TakeBoxes());
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    EXPECT_EQ("Wait(1) src.DeleteRow(0) Wait(-1) Title(table,null)", m_log.Take());
}

// --- The dialogs

TEST_F(EditorRowsTest, TheArrowsOfTheDialogCountAndStopAtNone) {
    CResourceScope resources;
    CInsertRecordsDlg dialog("Insert Records", "How many", &m_host);
    std::string counts;
    WithDialog act([&](HWND window) {
        const HWND edit = ::GetDlgItem(window, IDC_RECORDS_COUNT);
        for (int delta : {-1, -1, 1, 1, 1, 1}) {
            Spin(window, delta);
            counts += WindowText(edit) + " ";
        }
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    });
    dialog.DoModal();
    EXPECT_EQ("2 3 2 1 0 0 ", counts);
    EXPECT_EQ(0, dialog.m_nRecords);
}

TEST_F(EditorRowsTest, TheDialogsLimitGoesToItsLabelAndNotToTheBox) {
    CResourceScope resources;
    CInsertRecordsDlg dialog("Insert Records", "How many", &m_host);
    LRESULT limit = 0;
    WithDialog act([&](HWND window) {
        limit = ::SendDlgItemMessageA(window, IDC_RECORDS_COUNT, EM_GETLIMITTEXT, 0, 0);
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    });
    dialog.DoModal();
    EXPECT_GT(limit, 9);
}

TEST_F(EditorRowsTest, ADialogsCountThatIsNoNumberIsRefusedInTheDialog) {
    TestEditor &editor = Open(1, 2);
    WithDialog act([](HWND dialog) {
        Answer(dialog, "");
        EXPECT_TRUE(::IsWindow(dialog));
        Answer(dialog, "1", IDCANCEL);
    });
    editor.OnInsertRows();
    EXPECT_EQ(2, m_source->GetNumRows());
    EXPECT_NE("", TestApp().TakeBoxes());
}

TEST_F(EditorRowsTest, TheQuestionOfLargeUndoDataHasThreeAnswers) {
    TestEditor &editor = Open(1, 1);
    std::string texts;
    const auto ask = [&](int button) {
        WithDialog act([&](HWND dialog) {
            texts = WindowText(dialog);
            for (int id : {IDC_UNDO_CANCEL_PREVIOUS, IDC_UNDO_STORE_ANYWAY, IDCANCEL})
                texts += "|" + WindowText(::GetDlgItem(dialog, id));
            ::SendMessageA(dialog, WM_COMMAND, button, 0);
        });
        return editor.DisplayNoUndoMessage();
    };
    EXPECT_EQ(IDYES, ask(IDC_UNDO_CANCEL_PREVIOUS));
    EXPECT_EQ("Large Amount of Undo Data|Proceed cancelling all previous undos|"
              "Proceed anyway storing undo information|Cancel operation altogether",
              texts);
    EXPECT_EQ(IDNO, ask(IDC_UNDO_STORE_ANYWAY));
    EXPECT_EQ(IDCANCEL, ask(IDCANCEL));
}

TEST_F(EditorRowsTest, WithoutDepthTheQuestionIsNotAsked) {
    m_service.m_options.m_undoLevels = 0;
    EXPECT_EQ(IDYES, Open(1, 1).DisplayNoUndoMessage());
}

TEST_F(EditorRowsTest, AnEmptyTableWithAColumnSelectedHasNothingToDelete) {
    TestEditor &editor = Open(60, 0);
    editor.SelectColumns(1, 1);
    editor.OnDeleteRows(true);
    EXPECT_EQ("", TestApp().TakeBoxes());
    const std::string calls = m_log.Take();
    EXPECT_EQ(std::string::npos, calls.find("Wait(1)")) << calls;
    EXPECT_EQ("cur=(0,0) size=60x1", editor.State());
}

TEST_F(EditorRowsTest, ASelectionBeyondTheLastRowDeletesOnlyRowsThatAreThere) {
    TestEditor &editor = Open(2, 4);
    editor.ClearSelections();
    editor.SelectRange(0, 2, 0, 9);
    editor.OnDeleteRows(false);
    EXPECT_EQ("0.0,0.1", Column());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorRowsTest, AnAppendWithoutASourceIsSaidAndTheStepsGoOn) {
    TestEditor &editor = Make();
    m_host.TakeMessages();
    editor.OnAppendRow(0);
    EXPECT_EQ("Could not add record to data source!|16", TestApp().TakeBoxes());
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorRowsTest, RowsWhoseTextsWereStoppedOnTheirWayToTheClipboardStay) {
    TestEditor &editor = Open(2, 5);
    editor.SelectRows(1, 3);
    m_service.m_abort = 1;
    editor.OnDeleteRows(true);
    EXPECT_EQ(5, m_source->GetNumRows());
    EXPECT_EQ(0, m_service.m_waits);
}

TEST_F(EditorRowsTest, RecordsAreInsertedWhereTheirDialogCameUp) {
    TestEditor &editor = Open(2, 5);
    editor.GotoCell(0, 1);
    WithDialog act([&](HWND dialog) {
        editor.GotoCell(0, 3);
        Answer(dialog, "1");
    });
    editor.OnInsertRows();
    EXPECT_EQ("", m_source->Text(0, 1));
    EXPECT_EQ("0.1", m_source->Text(0, 2));
}

} // namespace
