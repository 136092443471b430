// An open edit box while texts come from outside the editing flow, and what holds after the data editor's questions
// when something else was done while they were up.
#include "DataEditorTest.h"

#include "dataeditor/DataEditorDlgs.h"
#include "search/PatternText.h"

#include <utility>

namespace {

class DataEditorOpenBoxTest : public DataEditorTest {
protected:
    static std::string Box(TestDataEditor &editor) { return editor.Edit() ? WindowText(editor.Edit()) : "closed"; }
    static void Type(TestDataEditor &editor, const char *text) {
        editor.StartEdit();
        TypeText(editor.Edit(), text);
    }
    static CPersistUIntArray Swapped() {
        CPersistUIntArray fields;
        fields.Add(1);
        fields.Add(0);
        return fields;
    }
    std::string Records() const {
        std::string all;
        for (const auto &record : m_source->m_rows)
            all += Join(record, ",") + "/";
        return all;
    }
};

// --- Texts from outside

TEST_F(DataEditorOpenBoxTest, ATextEnteredUnderAnUntouchedBoxStays) {
    TestDataEditor &editor = OpenEditor(2, 2);
    editor.StartEdit();
    editor.EnterEditText("entered", 0, 0, true);
    m_host.SetFocus();
    EXPECT_EQ("entered,1.0/0.1,1.1/", Records());
    editor.SetFocus();
    editor.StartEdit();
    editor.EnterEditText("plain", 0, 0, false);
    m_host.SetFocus();
    EXPECT_EQ("plain,1.0/0.1,1.1/", Records());
}

TEST_F(DataEditorOpenBoxTest, ATextEnteredUnderATypedBoxComesAfterTheTyping) {
    TestDataEditor &editor = OpenEditor(2, 2);
    Type(editor, "typed");
    Forget();
    editor.EnterEditText("entered", 0, 0, true);
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("entered,1.0/0.1,1.1/", Records());
    const std::string calls = m_log.Take();
    EXPECT_LT(calls.find("src.SetCell(0,0,typed)"), calls.find("src.SetCell(0,0,entered)"));
}

TEST_F(DataEditorOpenBoxTest, ATextEnteredElsewhereLeavesTheBoxOpen) {
    TestDataEditor &editor = OpenEditor(2, 2);
    Type(editor, "typed");
    editor.EnterEditText("entered", 1, 1, true);
    EXPECT_EQ("typed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("typed,1.0/0.1,entered/", Records());
}

TEST_F(DataEditorOpenBoxTest, TheChoiceOfAPickListIsNotOverwrittenByTheBox) {
    TestDataEditor &editor = OpenEditor(2, 2);
    Type(editor, "typed");
    editor.EnterPickListText("picked");
    EXPECT_EQ("closed", Box(editor));
    ::SendMessageA(editor.m_hWnd, WM_TIMER, editor.Timer(), 0);
    m_host.SetFocus();
    EXPECT_EQ("picked,1.0/0.1,1.1/", Records());
}

TEST_F(DataEditorOpenBoxTest, APickForAnotherCellLeavesTheBoxWhereItIs) {
    TestDataEditor &editor = OpenEditor(2, 2);
    Type(editor, "typed");
    editor.GotoCell(1, 1);
    editor.EnterPickListText("picked");
    ::SendMessageA(editor.m_hWnd, WM_TIMER, editor.Timer(), 0);
    EXPECT_EQ("typed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("typed,1.0/0.1,picked/", Records());
}

// --- Replacing

TEST_F(DataEditorOpenBoxTest, AReplacementInOneCellTakesWhatWasTypedThere) {
    TestDataEditor &editor = OpenEditor(2, 2);
    Type(editor, "typed");
    int answer = 0, count = 0;
    bool matched = false, replaced = false;
    EXPECT_TRUE(editor.ReplaceCellStringIfMatch(0, 0, "typed", "new", true, false, true, &answer, &matched, &replaced,
                                                &count));
    m_host.SetFocus();
    EXPECT_EQ("new,1.0/0.1,1.1/", Records());
}

TEST_F(DataEditorOpenBoxTest, AYesDoesNotReachTheRecordThatCameInThePlaceOfTheOneAskedAbout) {
    TestDataEditor &editor = OpenEditor(2, 3);
    m_source->m_rows[1][0] = "old";
    int question = 0;
    WithDialog yes(
        [&](HWND dialog) {
            if (question++ == 0) {
                m_source->m_rows.erase(m_source->m_rows.begin());
                editor.OnDataSourceNotify(0, 1, 0);
            }
            ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kYes, 0);
        },
        true);
    CFindReplaceData data;
    data.SetData("old", "new", true, false, kSearchDown, Search::kWholeCell, false);
    ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("old,1.1/0.2,1.2/", Records());
    EXPECT_EQ(0, m_source->m_openTransactions);
}

TEST_F(DataEditorOpenBoxTest, AnEditBegunWhileAReplacementIsAskedForIsAnUndoStepOfItsOwn) {
    TestDataEditor &editor = OpenEditor(2, 2);
    m_source->m_rows[0][0] = "old";
    int question = 0;
    WithDialog yes(
        [&](HWND dialog) {
            if (question++ == 0) {
                editor.GotoCell(1, 1);
                Type(editor, "typed");
            }
            ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kYes, 0);
        },
        true);
    std::string groups;
    m_source->m_onSetCell = [&](int col, long row) {
        groups += std::to_string(col) + "," + std::to_string(row) + " in " +
                  std::to_string(m_source->m_openTransactions) + " ";
        return GRID_SUCCESS;
    };
    CFindReplaceData data;
    data.SetData("old", "new", true, false, kSearchDown, Search::kWholeCell, false);
    ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("new,1.0/0.1,typed/", Records());
    EXPECT_EQ("1,1 in 0 0,0 in 1 ", groups);
    EXPECT_EQ(0, m_source->m_openTransactions);
}

// --- Filters

TEST_F(DataEditorOpenBoxTest, ABoxOpenedWhileTheDeletionIsAskedForIsNotForgotten) {
    TestDataEditor &editor = OpenFiltered(2, 3, {1});
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) {
        editor.GotoCell(0, 1);
        Type(editor, "typed");
    };
    editor.OnDeleteRows();
    EXPECT_EQ("closed", Box(editor));
    m_host.SetFocus();
    EXPECT_EQ("typed,1.1/0.2,1.2/", Records());
}

// A host whose prompts close the table.
class ClosingHost : public RecordingHost {
public:
    using RecordingHost::RecordingHost;
    bool EditFilter(int, const char *) override { return m_editor->CloseDataSource(false); }
    bool SelectFilter(int *) override { return m_editor->CloseDataSource(false); }
    CEditorCore *m_editor = nullptr;
};

TEST_F(DataEditorOpenBoxTest, ATableThatThePromptOfAFilterClosedGetsNone) {
    ClosingHost closing(&m_log);
    for (const auto command : {&COrvaneEditor::OnEditFilter, &COrvaneEditor::OnSelectAttachFilter}) {
        TestDataEditor &editor = OpenEditor(2, 2);
        closing.m_editor = &editor;
        CEditorCore::Initialise(&closing);
        Forget();
        (editor.*command)();
        EXPECT_EQ(std::string::npos, m_log.Take().find("SetOption"));
        EXPECT_FALSE(editor.IsFilterAttached());
        CEditorCore::Initialise(&m_service);
    }
}

// --- The file's view

TEST_F(DataEditorOpenBoxTest, ATableThatTheVerifyingQuestionSawClosedHasNoViewToReset) {
    TestDataEditor &editor = OpenEditor(2, 2, kNoFilter, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { editor.CloseDataSource(false); };
    Forget();
    editor.ResetFileView(false);
    EXPECT_EQ(std::string::npos, m_log.Take().find("FileModify"));
    EXPECT_FALSE(editor.IsDataSrcOpen());
}

TEST_F(DataEditorOpenBoxTest, ThePromptOfACommandComesAfterTheVerifyingQuestion) {
    const std::pair<const char *, std::function<void(TestDataEditor &)>> prompts[] = {
        {"SaveAs", [](TestDataEditor &editor) { editor.OnSaveAs(); }},
        {"SelectFilter", [](TestDataEditor &editor) { editor.OnSelectAttachFilter(); }},
        {"EditFilter", [](TestDataEditor &editor) { editor.OnEditFilter(); }}};
    m_service.m_filterAnswer = false;
    for (const auto &[name, command] : prompts) {
        TestDataEditor &editor = OpenEditor(2, 2, kNoFilter, kEditVerify);
        m_service.m_onSaveAs = [this](CString &, bool *, bool) {
            m_log.Note("SaveAs");
            return false;
        };
        Type(editor, "typed");
        Forget();
        TestApp().Answer({IDYES});
        command(editor);
        const std::string calls = m_log.Take();
        EXPECT_NE(std::string::npos, calls.find(name)) << calls;
        EXPECT_LT(calls.find("src.SetCell(0,0,typed)"), calls.find(name)) << calls;
        EXPECT_EQ("closed", Box(editor)) << name;
    }
}

// --- What was asked for one cell, or one table

TEST_F(DataEditorOpenBoxTest, AChoiceGoesIntoTheCellThatItWasMadeForAlsoWhereTheEditsQuestionSawAnotherCurrent) {
    TestDataEditor &editor = OpenEditor(2, 2, kNoFilter, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { editor.GotoCell(1, 1); };
    editor.EnterPickListText("picked");
    ::SendMessageA(editor.m_hWnd, WM_TIMER, editor.Timer(), 0);
    EXPECT_EQ("picked,1.0/0.1,1.1/", Records());
}

TEST_F(DataEditorOpenBoxTest, AChoiceGoesNowhereWhereTheEditsQuestionSawOtherColumns) {
    TestDataEditor &editor = OpenEditor(2, 2, kNoFilter, kEditVerify);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { editor.ReOrderCols(Swapped()); };
    editor.EnterPickListText("picked");
    ::SendMessageA(editor.m_hWnd, WM_TIMER, editor.Timer(), 0);
    EXPECT_EQ("0.0,1.0/0.1,1.1/", Records());
    EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
}

TEST_F(DataEditorOpenBoxTest, ATextIsEnteredNowhereWhereTheEditsQuestionSawOtherColumns) {
    for (const bool quick : {true, false}) {
        TestDataEditor &editor = OpenEditor(2, 2, kNoFilter, kEditVerify);
        Type(editor, "typed");
        TestApp().Answer({IDYES});
        TestApp().m_whileUp = [&](const std::string &) { editor.ReOrderCols(Swapped()); };
        editor.EnterEditText("entered", 0, 0, quick);
        EXPECT_EQ("0.0,1.0/0.1,1.1/", Records()) << quick;
    }
}

TEST_F(DataEditorOpenBoxTest, AYesDoesNotReachTheSameTextInAFieldThatCameInThePlaceOfTheOneAskedAbout) {
    TestDataEditor &editor = OpenEditor(2, 1);
    m_source->m_rows[0] = {"old", "old"};
    int question = 0;
    WithDialog yes(
        [&](HWND dialog) {
            if (question++ == 0)
                editor.ReOrderCols(Swapped());
            ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kYes, 0);
        },
        true);
    CFindReplaceData data;
    data.SetData("old", "new", true, false, kSearchDown, Search::kWholeCell, false);
    ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("old,old/", Records());
    EXPECT_EQ(0, m_source->m_openTransactions);
}

TEST_F(DataEditorOpenBoxTest, AReplacementThatAnotherTableCameUnderEndsWithNothingChangedThere) {
    TestDataEditor &editor = OpenEditor(2, 1);
    m_source->m_rows[0] = {"old", "old"};
    RecordingSource *other = Source(2, 2, "other");
    other->m_rows[0] = {"old", "old"};
    int question = 0;
    WithDialog all(
        [&](HWND dialog) {
            if (question++ == 0)
                editor.CEditorCore::LoadData("other", nullptr, kEditNormal, "");
            ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kAll, 0);
        },
        true);
    CFindReplaceData data;
    data.SetData("old", "new", true, false, kSearchDown, Search::kWholeCell, false);
    ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("old", other->Text(0, 0));
    EXPECT_EQ(0, other->m_openTransactions);
}

TEST_F(DataEditorOpenBoxTest, FilteredRecordsOfAnotherTableAreNotDeleted) {
    TestDataEditor &editor = OpenFiltered(2, 3, {1});
    RecordingSource *other = Source(2, 3, "other");
    other->m_passes = [](long) { return true; };
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) {
        EXPECT_TRUE(editor.CEditorCore::LoadData("other", nullptr, kEditNormal, ""));
    };
    editor.OnDeleteRows();
    EXPECT_EQ(3u, other->m_rows.size());
}

TEST_F(DataEditorOpenBoxTest, RecordsOfAFilterThatCameWhileTheDeletionWasAskedForAreNotDeleted) {
    TestDataEditor &editor = OpenFiltered(2, 3, {1});
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) {
        editor.OnDetachFilter();
        m_source->m_passes = [](long) { return true; };
    };
    editor.OnDeleteRows();
    EXPECT_EQ(3u, m_source->m_rows.size());
}

TEST_F(DataEditorOpenBoxTest, AnEditBegunWhileTheFilteredRecordsGoIsNotWrittenIntoTheRecordThatMovesUp) {
    TestDataEditor &editor = OpenFiltered(2, 3, {1});
    TestApp().Answer({IDYES});
    m_source->m_onCall = [&](const std::string &operation) {
        if (operation == "DeleteRows")
            Type(editor, "typed");
    };
    editor.OnDeleteRows();
    m_source->m_onCall = nullptr;
    m_host.SetFocus();
    EXPECT_EQ("0.1,1.1/0.2,1.2/", Records());
}

} // namespace
