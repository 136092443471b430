// The small operations of the frame: names, rows, settings, titles, and the source's call back.
#include "EditorWindowTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <tuple>

namespace {

class EditorFrameTest : public EditorWindowTest {
protected:
    std::string FileNameOf(const char *path) {
        TestEditor &editor = Make();
        Source(1, 1);
        editor.LoadData(path, nullptr, kEditNormal, "");
        const char *name = editor.GetFileName();
        return name != nullptr ? name : "null";
    }
};

TEST_F(EditorFrameTest, TheFileNameIsWhatStandsBehindTheLastBackslash) {
    EXPECT_EQ("c.dat", FileNameOf("a\\b\\c.dat"));
    EXPECT_EQ("nobackslash", FileNameOf("nobackslash"));
    EXPECT_EQ("\\name", FileNameOf("\\name"));
    EXPECT_EQ("", FileNameOf("a\\"));
    EXPECT_EQ("null", FileNameOf("a"));
    EXPECT_EQ("null", FileNameOf(""));
}

TEST_F(EditorFrameTest, AnOpenEmptyTableCountsNoRowsWhileTheGridShowsOne) {
    TestEditor &editor = Open(2, 0);
    EXPECT_EQ(0, editor.GetNumberRows());
    EXPECT_EQ("cur=(0,0) size=2x1", editor.State());
    EXPECT_FALSE(editor.IsOperationsValid());
    m_source->m_rows.resize(1, {"a", "b"});
    EXPECT_EQ(1, editor.GetNumberRows());
    EXPECT_TRUE(editor.IsOperationsValid());
}

TEST_F(EditorFrameTest, NoRowsOnAnOpenTableAreOnePlaceholderRow) {
    TestEditor &editor = Open(2, 3);
    EXPECT_EQ(GRID_SUCCESS, editor.SetNumberRows(0, 1));
    EXPECT_EQ("cur=(0,0) size=2x1", editor.State());
    EXPECT_EQ(1, editor.GetNumberRows()); // the source has rows
    EXPECT_EQ(GRID_ERROR, editor.SetNumberRows(-1, 1));
}

TEST_F(EditorFrameTest, OnAClosedEditorTheRowCountIsTheGrids) {
    TestEditor &editor = Make();
    EXPECT_EQ(GRID_SUCCESS, editor.SetNumberRows(0, 1));
    EXPECT_EQ(0, editor.GetNumberRows());
    editor.SetNumberRows(1, 1);
    EXPECT_EQ(1, editor.GetNumberRows());
}

TEST_F(EditorFrameTest, AMissingSourceIsComplainedAboutOnlyOnDemand) {
    TestEditor &editor = Make();
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(false));
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(true));
    EXPECT_EQ("Could not get data source!|16", TestApp().TakeBoxes());
}

TEST_F(EditorFrameTest, FieldsAreTheSourcesColumns) {
    EXPECT_EQ(4, Open(4, 1).GetTotalDataSrcFields());
}

TEST_F(EditorFrameTest, TheTitleGoesToTheHostAndToTheParent) {
    TestEditor &editor = Make();
    editor.UpdateTitle();
    Source(1, 1);
    editor.LoadData("p", "T", kEditNormal, "");
    Forget();
    editor.UpdateTitle();
    EXPECT_EQ("Title(p,T)", m_log.Take());
    EXPECT_EQ("1049(1,1)", m_host.TakeMessages());
}

TEST_F(EditorFrameTest, ATitleWithoutATableHasNone) {
    TestEditor &editor = Open(1, 1);
    editor.UpdateTitle();
    EXPECT_EQ("Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0)", m_host.TakeMessages());
}

TEST_F(EditorFrameTest, WithoutAPathThereIsNoTitle) {
    TestEditor &editor = Make();
    Forget();
    editor.UpdateTitle();
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("", m_host.TakeMessages());
}

TEST_F(EditorFrameTest, TheHostMayAskTheEditorWhileItSetsTheTitle) {
    TestEditor &editor = Open(1, 1);
    std::string modified;
    m_service.m_onTitle = [&](CEditorCore *asked) { modified += asked->IsFileModified() ? "y" : "n"; };
    editor.UpdateTitle();
    m_source->m_canUndo = true;
    editor.UpdateTitle();
    EXPECT_EQ("ny", modified);
}

TEST_F(EditorFrameTest, AFileIsModifiedWhileTheBoxDiffersOrTheSourceCanUndo) {
    TestEditor &editor = Open(2, 2);
    EXPECT_FALSE(editor.IsFileModified());
    editor.StartEdit();
    EXPECT_FALSE(editor.IsFileModified());
    TypeText(editor.Edit(), "x");
    EXPECT_TRUE(editor.IsFileModified());
    ::SetWindowTextA(editor.Edit(), "0.0");
    EXPECT_FALSE(editor.IsFileModified());
    m_source->m_canUndo = true;
    EXPECT_TRUE(editor.IsFileModified());
    editor.CloseDataSource(false);
    EXPECT_FALSE(editor.IsFileModified());
}

TEST_F(EditorFrameTest, TheSourceEmptiesTheHistoryOrHasTheTableReadAgain) {
    TestEditor &editor = Open(2, 3);
    const auto addCommand = [&] { editor.Commands()->AddCommand(new CNullCommand); };
    addCommand();
    editor.OnDataSourceNotify(0, 2, 0);
    EXPECT_TRUE(editor.CanUndo());
    editor.OnDataSourceNotify(0, 0, 0);
    EXPECT_FALSE(editor.CanUndo());
    addCommand();
    m_source->m_rows.resize(7, m_source->m_rows.front());
    editor.OnDataSourceNotify(0, 0, 0);
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    addCommand();
    editor.OnDataSourceNotify(0, 1, 0);
    EXPECT_EQ("cur=(0,0) size=2x7", editor.State());
    EXPECT_FALSE(editor.CanUndo());
    m_source->m_rows.clear();
    editor.OnDataSourceNotify(0, 1, 0);
    EXPECT_EQ("cur=(0,0) size=2x1", editor.State());
    EXPECT_EQ(1, editor.m_GI.m_paintingEnabled);
}

TEST_F(EditorFrameTest, TheEnterKeyIsStoredHereFirstAndThenWithTheHost) {
    bool during = false;
    m_service.m_options.m_onSetEnterKey = [&] { during = CEditorCore::IsEnterKeyTab(); };
    CEditorCore::SetEnterKey(true);
    EXPECT_TRUE(during);
    EXPECT_TRUE(m_service.m_options.m_enterIsTab);
    EXPECT_FALSE(CEditorCore::ToggleEnterKey());
    EXPECT_FALSE(during);
    EXPECT_FALSE(CEditorCore::IsEnterKeyTab());
    EXPECT_EQ("SetEnterKeyTab(1) SetEnterKeyTab(0)", m_log.Take());
}

TEST_F(EditorFrameTest, InitialisingReadsTheHostsOptions) {
    m_service.m_options.m_enterIsTab = true;
    m_service.m_options.m_cellFont.lfHeight = -21;
    CEditorCore::Initialise(&m_service);
    EXPECT_TRUE(CEditorCore::IsEnterKeyTab());
    EXPECT_EQ(33, TestEditor::MaxDisplayColWidth());
    EXPECT_EQ(&m_service, CEditorCore::GetAppInterface());
    LOGFONTA font{};
    CEditorCore::GetCurrentCellFont(&font);
    EXPECT_EQ(-21, font.lfHeight);
}

TEST_F(EditorFrameTest, InitialisingTakesTheLookupOptions) {
    CEditorCore::Initialise(&m_service);
    EXPECT_EQ("GetLookupOptions GetWidths(10,10) SetWidths(10,10)", m_log.Take());
}

TEST_F(EditorFrameTest, SettingsOfTheHostReachTheHistoryAndTheStatics) {
    TestEditor &editor = Open(1, 1);
    EXPECT_EQ(5, editor.Commands()->GetMaxCommands());
    editor.SetEditorCoreOptions(2, 44, true);
    EXPECT_EQ(2, editor.Commands()->GetMaxCommands());
    EXPECT_EQ(44, TestEditor::MaxDisplayColWidth());
    EXPECT_TRUE(CEditorCore::IsEnterKeyTab());
}

TEST_F(EditorFrameTest, TwoSpellingsOfAPathAreOneFile) {
    const std::string path = MakeFile("Long Name Of A File.dat");
    std::filesystem::create_directories(PathOf("sub"));
    TestEditor &editor = Make();
    Source(1, 1);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    EXPECT_EQ(&editor, CEditorCore::GetOpenFilesGrid(path.c_str()));
    std::string upper = path;
    for (char &c : upper)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_EQ(&editor, CEditorCore::GetOpenFilesGrid(upper.c_str()));
    char shortPath[MAX_PATH] = "";
    ASSERT_LT(0u, ::GetShortPathNameA(path.c_str(), shortPath, MAX_PATH));
    EXPECT_EQ(&editor, CEditorCore::GetOpenFilesGrid(shortPath));
    EXPECT_EQ(nullptr, CEditorCore::GetOpenFilesGrid(PathOf("sub").c_str()));
    EXPECT_EQ(nullptr, CEditorCore::GetOpenFilesGrid(PathOf("missing").c_str()));
}

TEST_F(EditorFrameTest, TheSearchForAnOpenFileStopsAtAPathWithoutAShortForm) {
    const std::string path = MakeFile("t.dat");
    Open(1, 1); // of a path that is no file
    TestEditor &second = Make();
    Source(1, 1);
    second.LoadData(path.c_str(), nullptr, kEditNormal, "");
    EXPECT_EQ(nullptr, CEditorCore::GetOpenFilesGrid(path.c_str()));
}

TEST_F(EditorFrameTest, AFileExistsWhenItIsFound) {
    EXPECT_TRUE(CEditorCore::FileExists(MakeFile("t.dat").c_str()));
    EXPECT_FALSE(CEditorCore::FileExists(PathOf("u.dat").c_str()));
}

TEST_F(EditorFrameTest, TheLayoutFilesNameLosesTheLastDot) {
    const auto nameOf = [](const char *path) {
        CString name(path);
        CEditorCore::GetLayoutFileName(name);
        return std::string(name);
    };
    EXPECT_EQ("C:\\d\\tabledat.@layout", nameOf("C:\\d\\table.dat"));
    EXPECT_EQ("name.@layout", nameOf("name"));
    EXPECT_EQ("name.@layout", nameOf("name."));
    EXPECT_EQ("C:\\ab\\file.@layout", nameOf("C:\\a.b\\file"));
    EXPECT_EQ(".dat.@layout", nameOf(".dat"));
}

TEST_F(EditorFrameTest, TheSetupOfTheGrid) {
    TestEditor &editor = Make();
    const CUGGridInfo &info = editor.m_GI;
    EXPECT_EQ(1, info.m_multiSelect);
    EXPECT_TRUE(info.m_rows.m_uniform);
    const int conduct[] = {info.m_colTranslationEnabled, info.m_currentCellStyle, info.m_ballisticMode,
                           info.m_vScrollMode, info.m_hScrollMode};
    EXPECT_THAT(conduct, testing::ElementsAre(1, 2, 3, 1, 1));
    CUGCell cell;
    editor.GetGridDefault(&cell);
    EXPECT_EQ(0x112233u, cell.GetTextColor());
    EXPECT_EQ(0x445566u, cell.GetHBackColor());
    LOGPEN pen{};
    ASSERT_NE(nullptr, cell.GetBorderPen());
    ::GetObjectA(cell.GetBorderPen(), sizeof pen, &pen);
    EXPECT_EQ(0xC0C0C0u, pen.lopnColor);
    EXPECT_EQ(1, pen.lopnWidth.x);
}

TEST_F(EditorFrameTest, CellTypesFollowTheFieldNameWhateverItsCase) {
    TestEditor &editor = Open(3, 2);
    editor.SetCellType("f1", 7);
    EXPECT_EQ(7, editor.Types()->GetCellType("F1"));
    CUGCell cell;
    editor.GetGridDefault(&cell);
    EXPECT_EQ(cell.GetCellType(), editor.Types()->GetCellType("F0"));
    editor.GetColDefault(1, &cell);
    EXPECT_EQ(7, cell.GetCellType());
    cell.SetCellType(3);
    editor.SetColDefault(1, &cell);
    editor.SetColDefault(2, &cell);
    editor.Types()->Apply();
    editor.GetColDefault(1, &cell);
    EXPECT_EQ(7, cell.GetCellType());
    editor.GetColDefault(2, &cell);
    EXPECT_EQ(editor.Types()->GetCellType("F2"), cell.GetCellType());
}

TEST_F(EditorFrameTest, AnAbortIsAnsweredOnceAndThenTheHostIsAsked) {
    TestEditor &editor = Open(1, 1);
    EXPECT_FALSE(editor.Abort());
    editor.RequestAbort();
    EXPECT_TRUE(editor.Abort());
    EXPECT_FALSE(editor.Abort());
    m_service.m_abort = 3;
    EXPECT_TRUE(editor.Abort());
}

TEST_F(EditorFrameTest, AModalStateOfTheEditorDisablesItsWindow) {
    TestEditor &editor = Open(1, 1);
    editor.BeginModalState();
    EXPECT_FALSE(::IsWindowEnabled(editor.m_hWnd));
    editor.EndModalState();
    EXPECT_TRUE(::IsWindowEnabled(editor.m_hWnd));
}

TEST(ResourceScopeTest, TheLibrarysResourcesHoldInsideAndTheHostsAfterwards) {
    AFX_MODULE_STATE *state = AfxGetModuleState();
    const HINSTANCE hosts = state->m_hCurrentResourceHandle;
    {
        CResourceScope outer;
        EXPECT_EQ(::GetModuleHandleA("orvane.dll"), state->m_hCurrentResourceHandle);
        state->m_hCurrentResourceHandle = hosts;
        {
            CResourceScope inner;
            EXPECT_NE(hosts, state->m_hCurrentResourceHandle);
        }
        EXPECT_EQ(hosts, state->m_hCurrentResourceHandle);
    }
    EXPECT_EQ(hosts, state->m_hCurrentResourceHandle);
}

TEST_F(EditorFrameTest, TheCurrentCellsRectangleIsWhereTheCellStandsOnTheScreen) {
    TestEditor &editor = Open(3, 50);
    const auto onScreen = [&](int col, long row) {
        RECT cell;
        editor.GetCellRect(col, row, &cell);
        ::MapWindowPoints(editor.Cells(), nullptr, reinterpret_cast<POINT *>(&cell), 2);
        return CRect(cell);
    };
    CRect rect;
    for (const auto &[col, row, top] : {std::tuple(0, 0L, 0L), std::tuple(2, 3L, 0L), std::tuple(1, 40L, 38L)}) {
        editor.GotoCell(col, row);
        editor.SetTopRow(top);
        editor.GetCurCellRect(&rect);
        EXPECT_TRUE(rect == onScreen(col, row)) << col << "," << row << " at " << rect.left << "," << rect.top;
        EXPECT_LT(0, rect.Width() * rect.Height());
    }
}

TEST_F(EditorFrameTest, AReorderGivesTheTypesBackToTheirFieldsAndItsNotificationDoesNothing) {
    TestEditor &editor = Open(3, 2);
    editor.SetCellType("F1", 7);
    const auto types = [&] {
        std::string all;
        for (int col = 0; col < 3; ++col) {
            CUGCell cell;
            editor.GetColDefault(col, &cell);
            all += std::to_string(cell.GetCellType()) + " ";
        }
        return all;
    };
    const std::string before = types();
    CUGCell cell;
    for (int col = 0; col < 3; ++col) {
        editor.GetColDefault(col, &cell);
        cell.SetCellType(3 + col);
        editor.SetColDefault(col, &cell);
    }
    Forget();
    editor.OnColReorder();
    EXPECT_EQ("3 4 5 ", types());
    EXPECT_EQ("", m_log.Take() + m_host.TakeMessages());
    editor.OnReorderCols();
    EXPECT_EQ(before, types());
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
}

TEST(ResourceScopeTest, TheResourcesThatWereNamedHoldAndWithoutAnyTheModulesOwn) {
    AFX_MODULE_STATE *state = AfxGetModuleState();
    const HINSTANCE hosts = state->m_hCurrentResourceHandle, library = ::GetModuleHandleA("orvane.dll");
    const HINSTANCE other = ::GetModuleHandleA("kernel32.dll");
    const auto inside = [&] {
        CResourceScope scope;
        return state->m_hCurrentResourceHandle;
    };
    CResourceScope::SetLibraryResources(other);
    EXPECT_EQ(other, inside());
    EXPECT_EQ(hosts, state->m_hCurrentResourceHandle);
    state->m_hCurrentResourceHandle = other;
    CResourceScope::SetLibraryResources(nullptr);
    EXPECT_EQ(state->m_hCurrentInstanceHandle, inside());
    EXPECT_EQ(other, state->m_hCurrentResourceHandle);
    state->m_hCurrentResourceHandle = hosts;
    CResourceScope::SetLibraryResources(library);
    EXPECT_EQ(library, inside());
}

} // namespace
