// An open edit box while texts come from outside the editing flow, and what holds after the data editor's questions
// when something else was done while they were up.
#include "DataEditorTest.h"

#include "dataeditor/DataEditorDlgs.h"
#include "search/PatternText.h"

namespace {

class DataEditorOpenBoxTest : public DataEditorTest {
protected:
    static std::string Box(TestDataEditor &editor) { return editor.Edit() ? WindowText(editor.Edit()) : "closed"; }
    static void Type(TestDataEditor &editor, const char *text) {
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

} // namespace
