// Replacing: questions, answers, undo steps and the summary.
#include "DataEditorTest.h"

#include "dataeditor/DataEditorDlgs.h"
#include "resources/ResourceIds.h"
#include "search/PatternText.h"

namespace {

class DataEditorReplaceTest : public DataEditorTest {
protected:
    TestDataEditor &OpenColumn(std::initializer_list<const char *> texts) {
        TestDataEditor &editor = OpenEditor(1, static_cast<long>(texts.size()));
        long row = 0;
        for (const char *text : texts)
            m_source->m_rows[row++][0] = text;
        return editor;
    }
    std::string Column(int col = 0) {
        std::string all;
        for (const auto &row : m_source->m_rows)
            all += (all.empty() ? "" : ",") + row[col];
        return all;
    }
    // Answers the questions in turn by their buttons, and notes them.
    void Replace(TestDataEditor &editor, const char *find, const char *by, std::vector<int> answers,
                 int direction = kSearchDown, bool allFields = false, int mode = Search::kAnywhere, bool regex = false) {
        size_t next = 0;
        WithDialog act(
            [&](HWND dialog) {
                m_questions += WindowText(dialog) + ": " + WindowText(::GetDlgItem(dialog, IDC_ASK_MESSAGE)) + "\n";
                ::SendMessageA(dialog, WM_COMMAND, next < answers.size() ? answers[next++] : IDCANCEL, 0);
            },
            true);
        CFindReplaceData data;
        data.SetData(find, by, true, allFields, direction, mode, regex);
        ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    }
    std::string Transactions() {
        std::string seen;
        const std::string calls = m_log.Take();
        for (size_t at = 0; at < calls.size();) {
            const size_t end = std::min(calls.find(' ', at), calls.size());
            const std::string call = calls.substr(at, end - at);
            seen += call == "src.StartTransaction()" ? "[" : call == "src.EndTransaction()" ? "]"
                    : call.compare(0, 11, "src.SetCell") == 0 ? "x" : "";
            at = end + 1;
        }
        return seen;
    }
    // What the host was asked for of cursors and messages.
    std::string HostCalls() {
        std::vector<std::string> seen;
        for (const std::string &call : m_log.m_calls) {
            if (call.rfind("Wait(", 0) == 0 || call.rfind("Message(", 0) == 0)
                seen.push_back(call);
        }
        m_log.Take();
        return Join(seen);
    }
    static constexpr int kYes = CYesNoCancelAllDlg::kYes, kNo = CYesNoCancelAllDlg::kNo, kAll = CYesNoCancelAllDlg::kAll;
    std::string m_questions;
};

TEST_F(DataEditorReplaceTest, EachConfirmedReplacementIsAnUndoStepOfItsOwn) {
    TestDataEditor &editor = OpenColumn({"a cat", "dog", "cats"});
    Replace(editor, "cat", "cow", {kYes, kYes});
    EXPECT_EQ("a cow,dog,cows", Column());
    EXPECT_EQ("Test: Replace 'a cat' with 'a cow'?\nTest: Replace 'cats' with 'cows'?\n", m_questions);
    EXPECT_EQ("[x][x]", Transactions());
}

TEST_F(DataEditorReplaceTest, TheSummaryGoesToTheHost) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    Replace(editor, "cat", "cow", {kYes, kYes});
    EXPECT_NE(std::string::npos, m_log.Take().find("Message(Found and replaced 2 string(s).)"));
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(DataEditorReplaceTest, NoToEveryQuestionEndsWithASummaryOfNone) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    Replace(editor, "cat", "cow", {kNo, kNo});
    EXPECT_EQ("cat,cat", Column());
    EXPECT_NE(std::string::npos, m_log.Take().find("Message(Found and replaced 0 string(s).)"));
}

TEST_F(DataEditorReplaceTest, CancelAtTheFirstQuestionShowsNothingAtAll) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    Replace(editor, "cat", "cow", {IDCANCEL});
    EXPECT_EQ("cat,cat", Column());
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("[]", Transactions());
}

TEST_F(DataEditorReplaceTest, CancelLaterOnKeepsWhatWasReplacedAndTellsNoSummary) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    Replace(editor, "cat", "cow", {kYes, IDCANCEL});
    EXPECT_EQ("cow,cat", Column());
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("Wait(1) Wait(-1) Wait(0) Wait(-1) Wait(0) Wait(-1)", HostCalls());
}

TEST_F(DataEditorReplaceTest, TheWaitCursorIsRestoredBehindEachQuestion) {
    TestDataEditor &editor = OpenColumn({"cat", "dog"});
    Replace(editor, "cat", "cow", {kYes});
    EXPECT_EQ("Wait(1) Wait(-1) Wait(0) Wait(0) Message(Found and replaced 1 string(s).) Wait(-1)", HostCalls());
}

TEST_F(DataEditorReplaceTest, AfterAllTheRestIsOneUndoStep) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "dog", "cat", "cat"});
    Replace(editor, "cat", "cow", {kYes, kNo, kAll});
    EXPECT_EQ("cow,cat,dog,cow,cow", Column());
    EXPECT_EQ("[x][xx]", Transactions());
}

TEST_F(DataEditorReplaceTest, ARefusedCellStaysInTheOpenStep) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    Replace(editor, "cat", "cow", {kNo, kYes});
    EXPECT_EQ("[x]", Transactions());
}

TEST_F(DataEditorReplaceTest, TheStartIsTheCurrentCellItself) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "cat"});
    editor.GotoCell(0, 1);
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("cat,cow,cow", Column());
}

TEST_F(DataEditorReplaceTest, AllDirectionsWrapAndTheStartIsTestedTwice) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "cat"});
    editor.GotoCell(0, 1);
    Replace(editor, "cat", "catcat", {kYes, kNo, kNo, kNo}, kSearchAll);
    EXPECT_EQ("cat,catcat,cat", Column());
    EXPECT_EQ("Test: Replace 'cat' with 'catcat'?\nTest: Replace 'cat' with 'catcat'?\n"
              "Test: Replace 'cat' with 'catcat'?\nTest: Replace 'catcat' with 'catcatcat'?\n",
              m_questions);
}

TEST_F(DataEditorReplaceTest, UpGoesUpAndAllFieldsGoFromTheLeft) {
    TestDataEditor &editor = OpenEditor(2, 3);
    for (auto &row : m_source->m_rows)
        row = {"cat", "cat"};
    editor.GotoCell(0, 1);
    Replace(editor, "cat", "cow", {kAll}, kSearchUp, true);
    EXPECT_EQ("cow,cow,cat|cow,cow,cow", Column(0) + "|" + Column(1));
}

TEST_F(DataEditorReplaceTest, ASelectionIsReplacedWithin) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "cat"});
    editor.ClearSelections();
    editor.SelectRange(0, 1, 0, 1);
    Replace(editor, "cat", "cow", {kAll}, kSearchSelection);
    EXPECT_EQ("cat,cow,cat", Column());
}

TEST_F(DataEditorReplaceTest, NothingFoundIsSaid) {
    TestDataEditor &editor = OpenColumn({"cat"});
    Replace(editor, "horse", "cow", {});
    EXPECT_EQ("Could not match the search string 'horse'.|0", TestApp().TakeBoxes());
    Replace(editor, "a(", "cow", {}, kSearchDown, false, Search::kAnywhere, true);
    EXPECT_EQ("Could not match the search string 'a('.|0", TestApp().TakeBoxes());
}

TEST_F(DataEditorReplaceTest, ATypedExpressionFillsItsFormat) {
    TestDataEditor &editor = OpenColumn({"Smith, John"});
    Replace(editor, "(\\w+), (\\w+)", "$2 $1", {kAll}, kSearchDown, false, Search::kAnywhere, true);
    EXPECT_EQ("John Smith", Column());
}

TEST_F(DataEditorReplaceTest, ACellThatCannotBeSetEndsTheRun) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    m_source->m_results["SetCell"] = GRID_ERROR;
    Replace(editor, "cat", "cow", {kYes, kYes});
    EXPECT_EQ("Could not set text in cell 0, 0!|16", TestApp().TakeBoxes());
    EXPECT_EQ("[x]", Transactions());
}

TEST_F(DataEditorReplaceTest, ACellThatCannotBeGotEndsTheRun) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    m_source->m_results["GetCell"] = GRID_ERROR;
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("Could not get cell!|16", TestApp().TakeBoxes());
    EXPECT_EQ("[]", Transactions());
}

TEST_F(DataEditorReplaceTest, ACellThatCannotBeGoneToEndsTheRun) {
    TestDataEditor &editor = OpenColumn({"dog", "cat"});
    editor.m_canMove = false;
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("Could not goto cell 0, 1!|16", TestApp().TakeBoxes());
    EXPECT_EQ("", m_questions);
    EXPECT_EQ("[]", Transactions());
}

TEST_F(DataEditorReplaceTest, AnEmptyFileMatchesNothing) {
    TestDataEditor &editor = OpenEditor(2, 0);
    for (int direction : {kSearchUp, kSearchDown, kSearchAll}) {
        Replace(editor, "cat", "cow", {kAll}, direction, true);
        EXPECT_EQ("Could not match the search string 'cat'.|0", TestApp().TakeBoxes()) << direction;
    }
    EXPECT_EQ("", Transactions());
}

TEST_F(DataEditorReplaceTest, AStopBehindARefusalClosesTheOpenStep) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    m_service.m_abortAtLook = m_service.m_looks + 2;
    Replace(editor, "cat", "cow", {kNo, kAll});
    EXPECT_EQ("cat,cat", Column());
    EXPECT_EQ(std::string::npos, Join(m_log.m_calls).find("Message("));
    EXPECT_EQ("[]", Transactions());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

// The look ahead makes the expression try every way to part the text.
TEST_F(DataEditorReplaceTest, APatternThatBacktracksWithoutEndMatchesNothingAndAStopEndsIt) {
    const std::string endless(1000, 'a');
    TestDataEditor &editor = OpenColumn({endless.c_str(), "aab", endless.c_str()});
    const char *const find = "(a|aa)*(a|aa)*(a|aa)*(a|aa)*(a|aa)*(?=b)b";
    m_service.m_abortAtLook = m_service.m_looks + 2;
    Replace(editor, find, "x", {kAll}, kSearchDown, false, Search::kWholeCell, true);
    EXPECT_EQ(endless + ",aab," + endless, Column());
    EXPECT_EQ("[]", Transactions());
    m_service.m_abortAtLook = 0;
    Replace(editor, find, "x", {kAll}, kSearchDown, false, Search::kWholeCell, true);
    EXPECT_EQ(endless + ",x," + endless, Column());
    EXPECT_EQ("[x]", Transactions());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(DataEditorReplaceTest, AStopClosesTheStepAndSaysNothing) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    m_service.m_abort = 1;
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("cat,cat", Column());
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("", Transactions());
}

TEST_F(DataEditorReplaceTest, InReadOnlyModeTheMessageDoesNothing) {
    TestDataEditor &editor = OpenEditor(1, 1, kNoFilter, kEditReadOnly);
    Replace(editor, "0", "x", {kAll});
    EXPECT_EQ("0.0", Column());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(DataEditorReplaceTest, WhatTheFilterLeavesOutIsNeverReplaced) {
    TestDataEditor &editor = OpenFiltered(1, 3, {2});
    for (auto &row : m_source->m_rows)
        row[0] = "cat";
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("cat,cow,cat", Column());
}

TEST_F(DataEditorReplaceTest, ADollarInFrontOfBothIsRepeatModeAndLeavesTheReplacement) {
    TestDataEditor &editor = OpenColumn({"", "x"});
    WithDialog act([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, kAll, 0); }, true);
    editor.DoReplace(0, "$", "$new", "$", kSearchDown, true);
    EXPECT_EQ("new,x", Column());
}

// What is left after the replacement would match once more.
TEST_F(DataEditorReplaceTest, RepeatModeReplacesOnceACell) {
    const char *const find = "$|a|aa|aaaa";
    TestDataEditor &editor = OpenColumn({"aaaa", "a"});
    WithDialog act([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, kAll, 0); }, true);
    editor.DoReplace(0, find, "$b", find, kSearchDown, true);
    EXPECT_EQ("baaa,b", Column());
    EXPECT_NE(std::string::npos, m_log.Take().find("Message(Found and replaced 2 string(s).)"));
}

TEST_F(DataEditorReplaceTest, TheSecondPassOfRepeatModeOnlyTellsThatThereWasAMatch) {
    const char *const find = "$|a|aa|aaaa";
    const auto replace = [&](bool repeat) {
        TestDataEditor &editor = OpenColumn({"aaaa"});
        int answer = 0, count = 0;
        bool matched = false, replaced = false;
        EXPECT_TRUE(editor.ReplaceCellStringIfMatch(0, 0, find, "b", true, repeat, true, &answer, &matched, &replaced, &count));
        return Column() + " " + std::to_string(matched) + std::to_string(replaced) + std::to_string(count);
    };
    EXPECT_EQ("baaa 111", replace(false));
    EXPECT_EQ("baaa 101", replace(true));
}

TEST_F(DataEditorReplaceTest, EachConfirmedReplacementIsTold) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "cat"});
    m_host.TakeMessages();
    Replace(editor, "cat", "cow", {kYes, kNo, kYes});
    std::string told;
    const std::string messages = m_host.TakeMessages();
    for (size_t at = 0; (at = messages.find("1049(1,0)", at)) != std::string::npos; ++at)
        told += "x";
    EXPECT_EQ("xx", told) << messages;
}

// The prescribed message says which cell; the host is told besides how far it came and where it stopped.
TEST_F(DataEditorReplaceTest, ACellThatCannotBeSetTellsHowManyWereReplacedBeforeIt) {
    TestDataEditor &editor = OpenColumn({"cat", "cat", "dog", "cat", "cat"});
    m_source->m_onSetCell = [](int, long row) { return row == 3 ? GRID_ERROR : GRID_SUCCESS; };
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_EQ("Could not set text in cell 0, 3!|16", TestApp().TakeBoxes());
    EXPECT_EQ("cow,cow,dog,cat,cat", Column());
    const std::string calls = Join(m_log.m_calls);
    EXPECT_NE(std::string::npos, calls.find("Message(Replaced 2 string(s); stopped at record 4, field F0.)")) << calls;
    EXPECT_EQ("[xxx]", Transactions());
}

TEST_F(DataEditorReplaceTest, ADollarInFrontOfOneOfThemIsKept) {
    TestDataEditor &editor = OpenColumn({"", "x"});
    WithDialog act([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, kAll, 0); }, true);
    editor.DoReplace(0, "$", "new", "$", kSearchDown, true);
    EXPECT_EQ("new,x", Column());
    editor.DoReplace(0, "x", "$new", "x", kSearchDown, true);
    EXPECT_EQ("new,$new", Column());
}

TEST_F(DataEditorReplaceTest, ReplacingLeavesFindAgainAlone) {
    TestDataEditor &editor = OpenColumn({"cat"});
    Replace(editor, "cat", "cow", {kAll});
    EXPECT_FALSE(editor.CanFindAgain());
}

// Each answer of the question, as the caller gets it, and what the cell holds then.
TEST_F(DataEditorReplaceTest, TheTreatmentOfOneCellAnswersWhatTheUserChose) {
    struct Outcome {
        int button;
        const char *expected; // cell, answer, matched, replaced, count
    };
    for (const Outcome &outcome : {Outcome{kYes, "cow 0 1 1 1"}, Outcome{kNo, "cat 1 1 0 0"},
                                   Outcome{IDCANCEL, "cat 2 1 0 0"}, Outcome{kAll, "cow 3 1 1 1"}}) {
        TestDataEditor &editor = OpenColumn({"dog", "cat"});
        WithDialog act([&](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, outcome.button, 0); });
        int answer = -1, count = 0;
        bool matched = false, replaced = false;
        EXPECT_TRUE(editor.ReplaceCellStringIfMatch(0, 1, "c(at)", "cow", true, false, false, &answer, &matched,
                                                    &replaced, &count));
        EXPECT_EQ(outcome.expected, m_source->Text(0, 1) + " " + std::to_string(answer) + " " +
                                        std::to_string(matched) + " " + std::to_string(replaced) + " " +
                                        std::to_string(count));
        EXPECT_EQ("0,1", editor.At()); // the user sees what is asked about
    }
}

TEST_F(DataEditorReplaceTest, ACellThatDoesNotMatchOrThatTheFilterLeavesOutIsNotAskedAbout) {
    TestDataEditor &editor = OpenFiltered(1, 2, {1});
    m_source->m_rows[1][0] = "cat";
    for (long row : {0L, 1L}) {
        int answer = 0, count = 0;
        bool matched = true, replaced = true;
        EXPECT_TRUE(editor.ReplaceCellStringIfMatch(0, row, "cat", "cow", true, false, true, &answer, &matched,
                                                    &replaced, &count));
        EXPECT_EQ("3 000", std::to_string(answer) + " " + std::to_string(matched) + std::to_string(replaced) +
                               std::to_string(count));
    }
    EXPECT_EQ("0.0,cat", Column());
}

TEST_F(DataEditorReplaceTest, AnAnswerIsNotTakenForARecordThatMovedThereMeanwhile) {
    TestDataEditor &editor = OpenColumn({"cat", "cat"});
    int asked = 0;
    WithDialog act(
        [&](HWND dialog) {
            if (++asked == 2) {
                m_source->m_rows.insert(m_source->m_rows.begin(), {"new"});
                editor.OnDataSourceNotify(0, 1, 0);
            }
            ::SendMessageA(dialog, WM_COMMAND,
                           asked == 1   ? CYesNoCancelAllDlg::kNo
                           : asked == 2 ? CYesNoCancelAllDlg::kYes
                                        : IDCANCEL,
                           0);
        },
        true);
    CFindReplaceData data;
    data.SetData("cat", "cow", true, false, kSearchDown, Search::kAnywhere, false);
    ::SendMessageA(editor.m_hWnd, kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("new,cat,cat", Column());
}

} // namespace
