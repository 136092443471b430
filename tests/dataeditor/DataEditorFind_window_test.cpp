// The order of a search, what it finds, and what it says.
#include "DataEditorTest.h"

#include "search/PatternText.h"

namespace {

class DataEditorFindTest : public DataEditorTest {
protected:
    // A table of three columns and four rows in which the cells named hold "hit".
    TestDataEditor &OpenWithHits(std::initializer_list<std::pair<int, long>> hits) {
        TestDataEditor &editor = OpenEditor(3, 4);
        for (const auto &[col, row] : hits)
            m_source->m_rows[row][col] = "hit";
        return editor;
    }
    // Where the search ends, and what it says.
    std::string Find(TestDataEditor &editor, const char *text, int direction, bool allFields,
                     int mode = Search::kWholeCell, bool matchCase = true) {
        CFindReplaceData data;
        data.SetData(text, "", matchCase, allFields, direction, mode, false);
        ::SendMessageA(editor.m_hWnd, kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
        return editor.At() + " " + TestApp().TakeBoxes();
    }
    const std::string kNone = "Could not match the search string 'hit'.|0";
};

TEST_F(DataEditorFindTest, DownInOneColumnStopsAtTheLastRow) {
    TestDataEditor &editor = OpenWithHits({{1, 0}, {1, 2}, {2, 3}});
    editor.GotoCell(1, 0);
    EXPECT_EQ("1,2 ", Find(editor, "hit", kSearchDown, false)); // never the current cell
    EXPECT_EQ("1,2 " + kNone, Find(editor, "hit", kSearchDown, false));
    editor.GotoCell(1, 3);
    EXPECT_EQ("1,3 " + kNone, Find(editor, "hit", kSearchDown, false));
}

TEST_F(DataEditorFindTest, UpInOneColumnStopsAtTheFirstRow) {
    TestDataEditor &editor = OpenWithHits({{1, 0}, {1, 2}});
    editor.GotoCell(1, 3);
    EXPECT_EQ("1,2 ", Find(editor, "hit", kSearchUp, false));
    EXPECT_EQ("1,0 ", Find(editor, "hit", kSearchUp, false));
    EXPECT_EQ("1,0 " + kNone, Find(editor, "hit", kSearchUp, false));
}

TEST_F(DataEditorFindTest, DownOverAllFieldsGoesToTheRightEdgeOnly) {
    TestDataEditor &editor = OpenWithHits({{0, 1}, {2, 0}});
    editor.GotoCell(1, 2);
    EXPECT_EQ("2,0 ", Find(editor, "hit", kSearchDown, true));
    EXPECT_EQ("2,0 " + kNone, Find(editor, "hit", kSearchDown, true));
}

TEST_F(DataEditorFindTest, UpOverAllFieldsGoesToTheLeftEdgeOnly) {
    TestDataEditor &editor = OpenWithHits({{0, 3}, {2, 0}});
    editor.GotoCell(1, 1);
    EXPECT_EQ("0,3 ", Find(editor, "hit", kSearchUp, true));
    EXPECT_EQ("0,3 " + kNone, Find(editor, "hit", kSearchUp, true));
}

TEST_F(DataEditorFindTest, AllWrapsRoundAndReachesTheCurrentCell) {
    TestDataEditor &editor = OpenWithHits({{0, 1}});
    editor.GotoCell(1, 2);
    EXPECT_EQ("0,1 ", Find(editor, "hit", kSearchAll, true));
    EXPECT_EQ("0,1 ", Find(editor, "hit", kSearchAll, true)); // the only one, again
    EXPECT_EQ("0,1 ", Find(editor, "hit", kSearchAll, false));
}

TEST_F(DataEditorFindTest, AFileOfOneCellIsReachedByTheWrap) {
    TestDataEditor &editor = OpenEditor(1, 1);
    m_source->m_rows[0][0] = "hit";
    EXPECT_EQ("0,0 ", Find(editor, "hit", kSearchAll, true));
    EXPECT_EQ("0,0 " + kNone, Find(editor, "hit", kSearchDown, true));
}

TEST_F(DataEditorFindTest, AnEmptyFileMatchesNothingInAnyDirection) {
    TestDataEditor &editor = OpenEditor(2, 0);
    for (int direction : {kSearchUp, kSearchDown, kSearchAll})
        EXPECT_EQ("0,0 " + kNone, Find(editor, "hit", direction, true)) << direction;
}

TEST_F(DataEditorFindTest, ASelectionIsSearchedFromItsFirstCellAndUsedUp) {
    TestDataEditor &editor = OpenWithHits({{0, 1}, {2, 3}});
    editor.GotoCell(2, 3);
    editor.ClearSelections();
    editor.SelectRange(0, 1, 1, 2);
    EXPECT_EQ("0,1 ", Find(editor, "hit", kSearchSelection, false));
    EXPECT_FALSE(editor.IsInMultipleSelection());
    editor.ClearSelections();
    editor.SelectRange(1, 1, 1, 2);
    EXPECT_EQ("0,1 " + kNone, Find(editor, "hit", kSearchSelection, false));
}

TEST_F(DataEditorFindTest, APatternThatDoesNotCompileMatchesNothing) {
    TestDataEditor &editor = OpenEditor(2, 3);
    CFindReplaceData data;
    data.SetData("a(", "", true, true, kSearchAll, Search::kWholeCell, true);
    ::SendMessageA(editor.m_hWnd, kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("Could not match the search string 'a('.|0", TestApp().TakeBoxes());
}

TEST_F(DataEditorFindTest, WhatTheFilterLeavesOutIsNeverFound) {
    TestDataEditor &editor = OpenFiltered(1, 4, {4});
    m_source->m_rows[1][0] = m_source->m_rows[3][0] = "hit";
    editor.SetUseFilteredRecords(false); // whatever this says
    EXPECT_EQ("0,3 ", Find(editor, "hit", kSearchDown, false));
}

TEST_F(DataEditorFindTest, AStopSaysNothing) {
    TestDataEditor &editor = OpenWithHits({{1, 2}});
    editor.GotoCell(1, 0);
    editor.RequestAbort();
    EXPECT_EQ("1,0 ", Find(editor, "hit", kSearchDown, false));
    m_service.m_abort = 1;
    EXPECT_EQ("1,0 ", Find(editor, "nothing", kSearchAll, true));
}

TEST_F(DataEditorFindTest, TheHostIsAskedForAStopOnceForEachCell) {
    TestDataEditor &editor = OpenWithHits({});
    editor.GotoCell(1, 1);
    const auto looks = [&](int direction, bool allFields) {
        m_service.m_looks = 0;
        Find(editor, "hit", direction, allFields);
        return m_service.m_looks;
    };
    EXPECT_EQ(2, looks(kSearchDown, false));
    EXPECT_EQ(1, looks(kSearchUp, false));
    EXPECT_EQ(4, looks(kSearchAll, false));
    EXPECT_EQ(12, looks(kSearchAll, true));
    editor.GotoCell(1, 3);
    EXPECT_EQ(0, looks(kSearchDown, false));
    editor.GotoCell(1, 0);
    EXPECT_EQ(0, looks(kSearchUp, false));
}

// The look ahead makes the expression try every way to part the text.
TEST_F(DataEditorFindTest, APatternThatBacktracksWithoutEndMatchesNothingAndAStopEndsIt) {
    TestDataEditor &editor = OpenEditor(1, 4);
    for (auto &row : m_source->m_rows)
        row[0] = std::string(1000, 'a');
    m_source->m_rows[3][0] = "aab";
    const char *const endless = "(a|aa)*(a|aa)*(a|aa)*(a|aa)*(a|aa)*(?=b)b";
    CFindReplaceData data;
    data.SetData(endless, "", true, false, kSearchDown, Search::kWholeCell, true);
    ::SendMessageA(editor.m_hWnd, kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("0,3 ", editor.At() + " " + TestApp().TakeBoxes()); // past two that are given up
    ::SendMessageA(editor.m_hWnd, kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("Could not match the search string '" + std::string(endless) + "'.|0", TestApp().TakeBoxes());
    editor.GotoCell(0, 0);
    m_service.m_abortAtLook = m_service.m_looks + 2;
    ::SendMessageA(editor.m_hWnd, kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
    EXPECT_EQ("0,0 ", editor.At() + " " + TestApp().TakeBoxes());
    EXPECT_EQ(m_service.m_abortAtLook, m_service.m_looks);
}

TEST_F(DataEditorFindTest, ACellThatCannotBeGotEndsTheSearch) {
    TestDataEditor &editor = OpenWithHits({{1, 2}});
    editor.GotoCell(1, 0);
    m_source->m_results["GetCell"] = GRID_ERROR;
    EXPECT_EQ("1,0 Could not get cell!|16", Find(editor, "hit", kSearchDown, false));
}

TEST_F(DataEditorFindTest, AMatchThatCannotBeGoneToIsSaid) {
    TestDataEditor &editor = OpenWithHits({{1, 2}});
    editor.GotoCell(1, 0);
    editor.m_canMove = false;
    EXPECT_EQ("1,0 Could not go to cell (1, 2)!|16", Find(editor, "hit", kSearchDown, false));
    editor.ClearSelections();
    editor.SelectRange(0, 1, 2, 3);
    EXPECT_EQ("1,0 Could not go to cell (1, 2)!|16", Find(editor, "hit", kSearchSelection, false));
    EXPECT_FALSE(editor.IsInMultipleSelection());
}

TEST_F(DataEditorFindTest, FindAgainRepeatsTheLastFind) {
    TestDataEditor &editor = OpenWithHits({{1, 1}, {1, 3}});
    editor.GotoCell(1, 0);
    EXPECT_FALSE(editor.CanFindAgain());
    editor.OnFindAgain();
    EXPECT_EQ("No find string defined.|0", TestApp().TakeBoxes());
    EXPECT_EQ("1,1 ", Find(editor, "hit", kSearchDown, false));
    EXPECT_TRUE(editor.CanFindAgain());
    editor.OnFindAgain();
    EXPECT_EQ("1,3", editor.At());
}

TEST_F(DataEditorFindTest, TheHostShowsTheDialogs) {
    TestDataEditor &editor = OpenEditor(2, 2);
    editor.OnFind();
    editor.SelectRange(0, 0, 1, 1);
    editor.OnFindReplace();
    EXPECT_EQ("FindDialog(0,1055) ReplaceDialog(1,1056)", m_log.Take());
    TestDataEditor &readOnly = OpenEditor(2, 2, kNoFilter, kEditReadOnly);
    readOnly.OnFindReplace();
    EXPECT_EQ("Cannot replace text as file is open as read only!|0", TestApp().TakeBoxes());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(DataEditorFindTest, TheEditInProgressEndsBeforeTheSearch) {
    TestDataEditor &editor = OpenEditor(1, 3);
    editor.StartEdit();
    ::SetWindowTextA(editor.Edit(), "hit");
    EXPECT_EQ("0,0 ", Find(editor, "hit", kSearchAll, true));
    EXPECT_EQ("hit", m_source->Text(0, 0));
    const std::string calls = m_log.Take();
    EXPECT_EQ("Wait(1)", calls.substr(0, 7));
    EXPECT_EQ("Wait(-1)", calls.substr(calls.size() - 8));
}

TEST_F(DataEditorFindTest, DataIsCopiedWhole) {
    CFindReplaceData data, copy;
    data.SetData("a*", "b", true, false, kSearchUp, Search::kAnywhere, false);
    copy = data;
    CString find, replace, typed;
    copy.GetFindString(find);
    copy.GetReplaceString(replace);
    copy.GetOriginalFindString(typed);
    EXPECT_STREQ("\\A(?<_before>.*?)(a.*?)(?<_after>.*)", find);
    EXPECT_STREQ("$+{_before}b\\E$+{_after}", replace);
    EXPECT_STREQ("a*", typed);
    EXPECT_TRUE(copy.IsMatchingCase());
    EXPECT_FALSE(copy.IsSearchingAllFields());
    EXPECT_FALSE(copy.IsUsingRegex());
    EXPECT_EQ(kSearchUp, copy.GetDirection());
    copy.SetDirection(kSearchAll);
    EXPECT_EQ(kSearchAll, copy.GetDirection());
}

// --- The operations under the command

TEST_F(DataEditorFindTest, ASearchOfAColumnGoesFromTheRowOfTheCurrentCellWhateverItsColumn) {
    TestDataEditor &editor = OpenWithHits({{0, 1}, {2, 0}, {2, 1}, {2, 3}});
    const auto search = [&](int col, const char *find, int direction, bool matchCase = true) {
        editor.DoColumnSearch(col, find, "hit", direction, matchCase);
        return editor.At() + " " + TestApp().TakeBoxes();
    };
    editor.GotoCell(0, 1);
    EXPECT_EQ("2,3 ", search(2, "hit", kSearchDown));
    EXPECT_EQ("2,1 ", search(2, "h[i]t", kSearchUp));
    EXPECT_EQ("2,1 " + kNone, search(2, "hi", kSearchAll)); // patterns fit whole texts
    EXPECT_EQ("2,1 " + kNone, search(2, "HIT", kSearchDown));
    EXPECT_EQ("2,3 ", search(2, "HIT", kSearchDown, false));
    EXPECT_EQ("2,0 ", search(2, "hit", kSearchAll)); // by the wrap
    EXPECT_EQ("0,1 ", search(-1, "hit", kSearchUp)); // column -1 is all fields
    EXPECT_FALSE(editor.CanFindAgain());
    EXPECT_EQ("", m_log.Take()); // the wait cursor is the command's
}

TEST_F(DataEditorFindTest, ASearchOfTheSelectionGoesColumnByColumn) {
    TestDataEditor &editor = OpenWithHits({{1, 3}, {2, 1}});
    const auto search = [&](const char *find, bool matchCase) {
        editor.DoSelectedCellsSearch(find, "hit", matchCase);
        return editor.At() + " " + TestApp().TakeBoxes();
    };
    editor.GotoCell(2, 1);
    editor.ClearSelections();
    editor.SelectRange(1, 0, 2, 3);
    EXPECT_EQ("2,1 " + kNone, search("HIT", true));
    EXPECT_TRUE(editor.IsInMultipleSelection());
    EXPECT_EQ("1,3 ", search("HIT", false)); // before the one in the next column
    EXPECT_FALSE(editor.IsInMultipleSelection());
    editor.ClearSelections();
    editor.SelectRange(1, 0, 2, 3);
    editor.RequestAbort();
    EXPECT_EQ("1,3 ", search("hit", true));
    EXPECT_TRUE(editor.IsInMultipleSelection());
}

TEST_F(DataEditorFindTest, OneCellMatchesByItsWholeTextWithinTheFilter) {
    TestDataEditor &editor = OpenFiltered(2, 3, {1, 3});
    m_source->m_rows[0][1] = m_source->m_rows[1][1] = "hit";
    // What is answered, and whether it matches.
    const auto test = [&](int col, long row, const char *find, bool matchCase) {
        bool match = row != 0; // both ways about
        const bool done = editor.IsMatchWithCellText(col, row, find, matchCase, &match);
        return std::string(done ? "done" : "failed") + (match ? " match" : "") + TestApp().TakeBoxes();
    };
    EXPECT_EQ("done match", test(1, 0, "h.t", true));
    EXPECT_EQ("done", test(1, 0, "hi", true));
    EXPECT_EQ("done", test(1, 0, "HIT", true));
    EXPECT_EQ("done match", test(1, 0, "HIT", false));
    EXPECT_EQ("done", test(1, 1, "hit", true)); // left out by the filter
    EXPECT_EQ("done", test(1, 2, "hit", true));
    EXPECT_EQ("done", test(1, 0, "hit(", true));
    m_source->m_results["GetCell"] = GRID_ERROR;
    EXPECT_EQ("failedCould not get cell!|16", test(1, 2, "hit", true));
    EXPECT_EQ("done", test(1, 1, "hit", true)); // not even looked at
}

TEST_F(DataEditorFindTest, AMessageIsFollowedOnlyWithTheAddressOfALiveSearch) {
    TestDataEditor &editor = OpenEditor(2, 3);
    WPARAM gone;
    {
        CFindReplaceData data;
        data.SetData("0.2", "x", true, false, kSearchDown, Search::kAnywhere, false);
        gone = reinterpret_cast<WPARAM>(&data);
        EXPECT_EQ(&data, CFindReplaceData::FromMessage(gone));
        editor.SendMessage(kMsgFindNext, gone, 0);
        EXPECT_EQ("0,2", editor.At());
    }
    editor.GotoCell(0, 0);
    for (const WPARAM address : {gone, WPARAM(0), WPARAM(1)}) {
        EXPECT_EQ(nullptr, CFindReplaceData::FromMessage(address));
        editor.SendMessage(kMsgFindNext, address, 0);
        editor.SendMessage(kMsgReplaceNext, address, 0);
    }
    EXPECT_EQ("0,0", editor.At());
}

} // namespace
