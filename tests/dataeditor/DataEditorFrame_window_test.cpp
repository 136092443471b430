// Loading, saving, the file's view, greyed records and texts from outside.
#include "DataEditorTest.h"

#include <cstdio>
#include <set>

namespace {

class DataEditorFrameTest : public DataEditorTest {
protected:
    // Is a row to be painted again? Its number, or -1.
    static long RowToRefresh(TestDataEditor &editor) {
        MSG message;
        return ::PeekMessageA(&message, editor.m_hWnd, kMsgRefreshRow, kMsgRefreshRow, PM_REMOVE)
                   ? static_cast<long>(message.lParam)
                   : -1;
    }
};

TEST_F(DataEditorFrameTest, AFilterOfZeroOrMoreGoesToTheSourceWithTheOptions) {
    TestDataEditor &editor = MakeEditor();
    Source(2, 2);
    EXPECT_TRUE(editor.LoadData("t", nullptr, 0, kEditNormal, "-opt"));
    EXPECT_NE(std::string::npos, m_log.Take().find("src.Open(t,-opt -filter 0)"));
    Source(2, 2);
    EXPECT_TRUE(editor.LoadData("t", nullptr, -1, kEditNormal, nullptr));
    EXPECT_NE(std::string::npos, m_log.Take().find("src.Open(t,) "));
}

TEST_F(DataEditorFrameTest, AFilterBelowMinusOneIsNoneToTheCommandsAndOneToThePainting) {
    TestDataEditor &editor = MakeEditor();
    m_source = Source(2, 2);
    EXPECT_TRUE(editor.LoadData("t", nullptr, -2, kEditNormal, nullptr));
    EXPECT_NE(std::string::npos, m_log.Take().find("src.Open(t,) "));
    Forget();
    EXPECT_EQ(-2, editor.GetFilter());
    EXPECT_FALSE(editor.IsFilterAttached());
    m_source->m_passes = [](long) { return false; };
    CUGCell cell;
    editor.GetCell(0, 0, &cell);
    EXPECT_EQ(0xC8C8C8u, cell.GetBackColor());
    while (RowToRefresh(editor) >= 0) {
    }
    editor.GotoCell(1, 1);
    EXPECT_EQ(0, RowToRefresh(editor));
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
}

TEST_F(DataEditorFrameTest, AFailedLoadKeepsTheFilterNumber) {
    TestDataEditor &editor = MakeEditor();
    EXPECT_FALSE(editor.LoadData("t", nullptr, 7, kEditNormal, nullptr));
    EXPECT_EQ(7, editor.GetFilter());
}

TEST_F(DataEditorFrameTest, TheOpeningRecordHoldsForTheNextLoadOnly) {
    TestDataEditor &editor = MakeEditor();
    Source(3, 9);
    editor.SetOpeningRecord(2, 5);
    editor.LoadData("t", nullptr, -1, kEditNormal, nullptr);
    EXPECT_EQ("2,4", editor.At());
    Source(3, 9);
    editor.LoadData("t", nullptr, -1, kEditNormal, nullptr);
    EXPECT_EQ("0,0", editor.At());
}

TEST_F(DataEditorFrameTest, AnOpeningRecordBelowTheFirstIsTheFirstAndOneBeyondTheLastIsIgnored) {
    TestDataEditor &editor = MakeEditor();
    Source(3, 9);
    editor.SetOpeningRecord(-5, 0);
    editor.LoadData("t", nullptr, -1, kEditNormal, nullptr);
    EXPECT_EQ("0,0", editor.At());
    Source(3, 9);
    editor.SetOpeningRecord(1, 50);
    editor.LoadData("t", nullptr, -1, kEditNormal, nullptr);
    EXPECT_EQ("0,0", editor.At());
}

TEST_F(DataEditorFrameTest, RecordsThatTheFilterLeavesOutAreGreyed) {
    TestDataEditor &editor = OpenFiltered(2, 3, {2});
    CUGCell cell;
    editor.GetCell(0, 0, &cell);
    EXPECT_EQ("0 c8c8c8 fa0000", [&] {
        char text[64];
        std::snprintf(text, sizeof text, "%lx %lx %lx", cell.GetTextColor(), cell.GetBackColor(), cell.GetHBackColor());
        return std::string(text);
    }());
    editor.GetCell(0, 1, &cell);
    EXPECT_NE(0xC8C8C8u, cell.GetBackColor());
    editor.SetUseFilteredRecords(false); // greyed all the same
    editor.GetCell(0, 2, &cell);
    EXPECT_EQ(0xC8C8C8u, cell.GetBackColor());
    editor.GetCell(0, -1, &cell);
    EXPECT_NE(0xC8C8C8u, cell.GetBackColor());
}

TEST_F(DataEditorFrameTest, ACellChangeWithoutAFilterIsOnlyToldToTheParent) {
    TestDataEditor &editor = OpenEditor(2, 5);
    editor.GotoCell(1, 2);
    EXPECT_EQ(-1, RowToRefresh(editor));
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
}

TEST_F(DataEditorFrameTest, WithAFilterTheRowThatACellChangeLeavesIsPaintedAgain) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 2, 3, 4, 5});
    editor.GotoCell(0, 2);
    EXPECT_EQ(0, RowToRefresh(editor));
}

TEST_F(DataEditorFrameTest, ARightClickIsPostedToTheParent) {
    TestDataEditor &editor = OpenEditor(2, 5);
    RECT rect{};
    POINT point = {12, 34};
    editor.OnRClicked(0, 0, 1, &rect, &point, 0);
    MSG message;
    ASSERT_TRUE(::PeekMessageA(&message, m_host.m_hWnd, WM_RBUTTONDOWN, WM_RBUTTONDOWN, PM_REMOVE));
    EXPECT_EQ(MAKELPARAM(12, 34), message.lParam);
    EXPECT_EQ(0u, message.wParam);
}

TEST_F(DataEditorFrameTest, SaveAsOfTheFilteredRecordsDetachesTheFilter) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 3});
    m_service.m_onSaveAs = [](CString &name, bool *useFiltered, bool attached) {
        EXPECT_STREQ("table", name);
        EXPECT_TRUE(attached && *useFiltered);
        name = "copy";
        return true;
    };
    editor.OnSaveAs();
    const std::string calls = m_log.Take();
    EXPECT_NE(std::string::npos, calls.find("src.SaveAs(copy, -filter 3)")) << calls;
    EXPECT_NE(std::string::npos, calls.find("src.SetOption(6,1) src.SetOption(5,0)")) << calls;
    EXPECT_FALSE(editor.IsFilterAttached());
}

TEST_F(DataEditorFrameTest, SaveAsMayBeCancelledOrTakeAllRecords) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 3});
    editor.OnSaveAs();
    EXPECT_EQ("", m_log.Take());
    m_service.m_onSaveAs = [](CString &name, bool *useFiltered, bool) {
        name = "copy";
        *useFiltered = false;
        return true;
    };
    editor.OnSaveAs();
    EXPECT_NE(std::string::npos, m_log.Take().find("src.SaveAs(copy,)"));
    EXPECT_TRUE(editor.IsFilterAttached());
    EXPECT_FALSE(editor.IsUsingFilteredRecords());
}

TEST_F(DataEditorFrameTest, OneNewNamedFieldKeepsTheLayoutAndLosesTheUndoList) {
    TestDataEditor &editor = OpenEditor(3, 2);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    m_source->m_fields.push_back("NEW");
    for (auto &row : m_source->m_rows)
        row.push_back("n");
    editor.ResetFileView(false);
    CStringArray names;
    editor.GetDisplayColNames(names);
    ASSERT_EQ(3, names.GetSize());
    EXPECT_STREQ("NEW", names.GetAt(2));
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_NE(std::string::npos, m_log.Take().find("FileModify"));
}

TEST_F(DataEditorFrameTest, OneNewUnnamedFieldRebuildsTheLayout) {
    TestDataEditor &editor = OpenEditor(3, 2);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    m_source->m_fields.push_back("");
    for (auto &row : m_source->m_rows)
        row.push_back("n");
    editor.ResetFileView(false);
    EXPECT_EQ(4, editor.GetNumberCols());
}

TEST_F(DataEditorFrameTest, TwoNewFieldsRebuildTheLayout) {
    TestDataEditor &editor = OpenEditor(3, 2);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    for (const char *name : {"NEW", "NEWER"}) {
        m_source->m_fields.push_back(name);
        for (auto &row : m_source->m_rows)
            row.push_back("n");
    }
    editor.ResetFileView(false);
    EXPECT_EQ(5, editor.GetNumberCols());
}

TEST_F(DataEditorFrameTest, SavingGoesToTheSourceAndTheTitle) {
    TestDataEditor &editor = OpenEditor(2, 2);
    editor.StartEdit();
    ::SetWindowTextA(editor.Edit(), "typed");
    m_log.Take();
    editor.OnSave();
    EXPECT_NE(std::string::npos, m_log.Take().find("src.Save()"));
    EXPECT_EQ("typed", m_source->Text(0, 0));
}

TEST_F(DataEditorFrameTest, TheHostShowsTheInformationOnTheSource) {
    TestDataEditor &editor = OpenEditor(2, 2);
    editor.OnFileInformation();
    EXPECT_EQ("FileInformation", m_log.Take());
    EXPECT_EQ(m_source, m_service.m_informed);
    MakeEditor().OnFileInformation();
    EXPECT_EQ("", m_log.Take());
}

TEST_F(DataEditorFrameTest, FlushingWritesWhatTheRuntimeHolds) {
    const std::string path = MakeFile("stream", "");
    FILE *stream = std::fopen(path.c_str(), "w");
    ASSERT_NE(nullptr, stream);
    std::fputs("held", stream);
    EXPECT_EQ("", Content(path));
    OpenEditor(2, 2).FlushAll();
    EXPECT_EQ("held", Content(path));
    std::fclose(stream);
}

TEST_F(DataEditorFrameTest, AClickEndsASelectionOfSeveralCells) {
    TestDataEditor &editor = OpenEditor(3, 4);
    editor.ClearSelections();
    editor.SelectRange(0, 0, 1, 2);
    ASSERT_TRUE(editor.IsInMultipleSelection());
    RECT rect{};
    POINT point{};
    editor.OnLClicked(2, 3, 1, &rect, &point, 0);
    EXPECT_FALSE(editor.IsInMultipleSelection());
}

TEST_F(DataEditorFrameTest, ARowThatIsToBeRefreshedIsPaintedAgain) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 2, 3});
    PumpAll();
    m_source->m_rowsRead.clear();
    EXPECT_EQ(0, ::SendMessageA(editor.m_hWnd, kMsgRefreshRow, 0, 3));
    ::UpdateWindow(editor.Cells());
    ASSERT_FALSE(m_source->m_rowsRead.empty());
    EXPECT_EQ(std::set<long>{3}, std::set<long>(m_source->m_rowsRead.begin(), m_source->m_rowsRead.end()));
}

TEST_F(DataEditorFrameTest, AFullResetThrowsTheLayoutFileAway) {
    const std::string path = MakeFile("t.dat");
    TestDataEditor &editor = MakeEditor();
    Source(3, 2);
    editor.LoadData(path.c_str(), nullptr, -1, kEditNormal, nullptr);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    MakeFile("tdat.@layout", "old");
    editor.ResetFileView(true);
    EXPECT_EQ(3, editor.GetNumberCols());
    EXPECT_EQ("", Content(PathOf("tdat.@layout"))); // made anew by the look for a layout
}

TEST_F(DataEditorFrameTest, FieldNamesComeInLowerCase) {
    TestDataEditor &editor = OpenEditor(2, 2);
    CStringArray names;
    EXPECT_TRUE(editor.GetDataSrcFieldNames(names));
    EXPECT_STREQ("f1", names.GetAt(1));
    EXPECT_FALSE(MakeEditor().GetDataSrcFieldNames(names));
}

TEST_F(DataEditorFrameTest, TypesTwoToFiveAreNumeric) {
    TestDataEditor &editor = OpenEditor(7, 2);
    m_source->m_types = {0, 1, 2, 3, 4, 5, 6};
    std::string numeric;
    for (int field = 0; field < 7; ++field)
        numeric += editor.IsDataSrcFldTypeNumeric(field) ? '1' : '0';
    EXPECT_EQ("0011110", numeric);
}

TEST_F(DataEditorFrameTest, TextIsEnteredFromOutside) {
    TestDataEditor &editor = OpenEditor(2, 2);
    const auto readsOf = [this](const auto &work) {
        m_source->m_reads = 0;
        work();
        return m_source->m_reads;
    };
    CUGCell cell;
    const long quick = readsOf([&] { editor.QuickSetText(0, 0, "q"); });
    const long plain = readsOf([&] { editor.GetCell(1, 1, &cell); });
    EXPECT_EQ(quick + plain, readsOf([&] { editor.EnterEditText("quick", 0, 0, true); })); // the present text first
    EXPECT_EQ(plain + plain, readsOf([&] { editor.EnterEditText("plain", 1, 1, false); }));
    EXPECT_EQ("quick|plain", m_source->Text(0, 0) + "|" + m_source->Text(1, 1));
    EXPECT_EQ("1049(1,0) 1049(1,0)", m_host.TakeMessages());
}

TEST_F(DataEditorFrameTest, AChoiceOfAPickListSettlesBeforeTheGridGoesOn) {
    TestDataEditor &editor = OpenEditor(3, 5);
    editor.GotoCell(1, 2);
    ::PostMessageA(editor.Cells(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageA(editor.Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageA(editor.Cells(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    editor.EnterPickListText("picked");
    EXPECT_EQ("picked", m_source->Text(1, 2));
    EXPECT_EQ(300u, editor.Timer());
    EXPECT_EQ(0, editor.m_GI.m_paintingEnabled);
    editor.GotoCell(0, 0);
    ::PostMessageA(editor.Cells(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::SendMessageA(editor.m_hWnd, WM_TIMER, editor.Timer(), 0);
    EXPECT_EQ("1,2", editor.At());
    EXPECT_EQ(0u, editor.Timer());
    EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
    PumpAll();
    EXPECT_EQ("1,2", editor.At());
    EXPECT_EQ(0, editor.m_clicks);
}

TEST_F(DataEditorFrameTest, TheSettlingTakesAboutAHundredAndFiftyMilliseconds) {
    TestDataEditor &editor = OpenEditor(3, 5);
    const ULONGLONG begin = ::GetTickCount64();
    editor.EnterPickListText("picked");
    PumpUntil("the timer of the settling", [&] { return editor.Timer() == 0; });
    const ULONGLONG passed = ::GetTickCount64() - begin;
    EXPECT_GE(passed, 130u);
    EXPECT_LE(passed, 1000u);
}

TEST_F(DataEditorFrameTest, ATimerOfAnotherLeavesTheSettlingAlone) {
    TestDataEditor &editor = OpenEditor(3, 5);
    editor.GotoCell(1, 2);
    editor.EnterPickListText("picked");
    const UINT_PTR settling = editor.Timer();
    editor.GotoCell(0, 0);
    ::SendMessageA(editor.m_hWnd, WM_TIMER, settling + 1, 0);
    EXPECT_EQ(settling, editor.Timer());
    EXPECT_EQ("0,0", editor.At());
    EXPECT_EQ(0, editor.m_GI.m_paintingEnabled);
}

TEST_F(DataEditorFrameTest, InReadOnlyModeAPickListEntersNothing) {
    TestDataEditor &editor = OpenEditor(3, 5, kNoFilter, kEditReadOnly);
    editor.EnterPickListText("picked");
    EXPECT_EQ("0.0", m_source->Text(0, 0));
    EXPECT_EQ(0u, editor.Timer());
}

TEST_F(DataEditorFrameTest, TheFocusIsSetByMessage) {
    TestDataEditor &editor = OpenEditor(3, 5);
    m_host.SetFocus();
    EXPECT_EQ(0, ::SendMessageA(editor.m_hWnd, kMsgSetGridFocus, 0, 0));
    EXPECT_EQ(editor.Cells(), ::GetFocus());
}

// Posted: a row is painted again when what goes on is over.
TEST_F(DataEditorFrameTest, ARowToRefreshIsPostedToTheEditorItself) {
    TestDataEditor &editor = OpenEditor(2, 5);
    m_source->m_rowsRead.clear();
    editor.RefreshRow(3);
    ::UpdateWindow(editor.Cells());
    EXPECT_TRUE(m_source->m_rowsRead.empty());
    EXPECT_EQ(3, RowToRefresh(editor));
    EXPECT_EQ(-1, RowToRefresh(editor));
    EXPECT_EQ("", m_host.TakeMessages());
}

TEST_F(DataEditorFrameTest, ANameThatWasAskedForOneTableIsNotTakenForAnother) {
    TestDataEditor &editor = OpenEditor(2, 2);
    m_service.m_onSaveAs = [&](CString &name, bool *, bool) {
        Source(1, 1, "other");
        EXPECT_TRUE(editor.LoadData("another", nullptr, kNoFilter, kEditNormal, nullptr));
        name = PathOf("new.dat").c_str();
        return true;
    };
    editor.OnSaveAs();
    EXPECT_EQ(std::string::npos, m_log.Take().find("SaveAs"));
}

} // namespace
