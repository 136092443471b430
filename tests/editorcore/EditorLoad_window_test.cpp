// Opening a table and closing it.
#include "EditorWindowTest.h"

#include "editorcore/QuietAppInterface.h"
#include "grid/UGMem.h"

#include <functional>
#include <utility>

namespace {

class EditorLoadTest : public EditorWindowTest {
protected:
    // The calls of a load up to the first question behind Open.
    std::string OpenedWith(const char *table, int mode, const char *options) {
        TestEditor &editor = Make();
        Source(2, 2);
        m_log.Take();
        editor.LoadData("p", table, mode, options);
        const std::string calls = m_log.Take();
        const size_t begin = calls.find("src.Open(");
        return calls.substr(begin, calls.find(" src.GetOption") - begin);
    }
};

TEST_F(EditorLoadTest, ALoadCallsSourceAndHostInOrderAndTellsTheParent) {
    TestEditor &editor = Make();
    Forget();
    Source(2, 3);
    EXPECT_TRUE(editor.LoadData("p", "T", kEditNormal, "o "));
    EXPECT_EQ("Create(p) src.Open(p,o -table T) src.GetOption(7) CustomOptions TextAlignment", m_log.Take());
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    EXPECT_TRUE(editor.IsDataSrcOpen());
    EXPECT_STREQ("p", editor.GetFilePath());
    EXPECT_STREQ("T", editor.GetTableName());
    EXPECT_EQ(editor.Cells(), ::GetFocus());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(EditorLoadTest, TheOpenStringIsPutTogetherWithoutSeparators) {
    EXPECT_EQ("src.Open(p,x -table T-view )", OpenedWith("T", kEditReadOnly, "x "));
    EXPECT_EQ("src.Open(p,x )", OpenedWith(nullptr, kEditNormal, "x "));
    EXPECT_EQ("src.Open(p,-view )", OpenedWith(nullptr, kEditReadOnly, ""));
    EXPECT_EQ("src.Open(p,-table )", OpenedWith("", kEditVerify, ""));
}

TEST_F(EditorLoadTest, WithoutASourceTheLoadFailsWithoutAWord) {
    TestEditor &editor = Make();
    Forget();
    EXPECT_FALSE(editor.LoadData("p", nullptr, kEditVerify, ""));
    EXPECT_EQ("Create(p)", m_log.Take());
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("", m_host.TakeMessages());
    EXPECT_EQ(kEditVerify, editor.GetEditMode());
    EXPECT_STREQ("", editor.GetFilePath());
    EXPECT_FALSE(editor.IsDataSrcOpen());
}

TEST_F(EditorLoadTest, ASourceThatDoesNotOpenIsDeletedWithoutAWord) {
    TestEditor &editor = Make();
    Forget();
    Source(2, 2)->m_results["Open"] = 1;
    EXPECT_FALSE(editor.LoadData("p", nullptr, kEditNormal, ""));
    EXPECT_EQ("Create(p) src.Open(p,) src.delete", m_log.Take());
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(false));
}

TEST_F(EditorLoadTest, AnEditorThatRanOutOfMemoryLivesOnAndRefusesLoads) {
    m_service.m_options.m_outOfMemory = true;
    TestEditor &editor = Make();
    m_service.m_options.m_outOfMemory = false;
    EXPECT_EQ("Out of memory!|16", TestApp().TakeBoxes());
    EXPECT_TRUE(editor.ConstructFailed());
    EXPECT_EQ(nullptr, editor.Commands());
    EXPECT_EQ(nullptr, editor.Layout());
    EXPECT_EQ(nullptr, editor.Types());
    std::unique_ptr<RecordingSource> source(Source(1, 1));
    Forget();
    EXPECT_FALSE(editor.LoadData("p", nullptr, kEditNormal, ""));
    EXPECT_EQ("Cannot load file due to low memory!|16", TestApp().TakeBoxes());
    EXPECT_EQ("Create(p)", m_log.Take()); // the source is neither opened nor deleted
}

TEST_F(EditorLoadTest, AnEditorThatRanOutOfMemoryStandsTheCommandsOfAHost) {
    m_service.m_options.m_outOfMemory = true;
    TestEditor &editor = Make();
    m_service.m_options.m_outOfMemory = false;
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_FALSE(editor.CanRedo());
    editor.Undo();
    editor.Redo();
    editor.EmptyUndoList();
    editor.SetEditorCoreOptions(3, 10, false);
    editor.SetCellType("F0", 3);
    editor.OnSave(0);
    editor.OnDataSourceNotify(0, 1, 0);
    int size = 30;
    editor.OnColSized(0, &size);
    editor.OnRowSized(0, &size);
    editor.OnColSized(-1, &size);
    EXPECT_EQ(-1, editor.GetDataSrcField(0));
    EXPECT_EQ(-1, editor.GetGridField(0));
    EXPECT_TRUE(editor.CloseDataSource(false));
}

TEST_F(EditorLoadTest, ClicksOfTheLoadAreDroppedAndKeysArrive) {
    TestEditor &editor = Make();
    Source(2, 2);
    Forget();
    for (UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK})
        ::PostMessageA(editor.Cells(), message, 0, MAKELPARAM(150, 30));
    ::PostMessageA(editor.Cells(), WM_KEYUP, VK_F2, 1);
    editor.LoadData("p", nullptr, kEditNormal, "");
    PumpAll();
    EXPECT_EQ("Create(p) src.Open(p,) src.GetOption(7) KeyUp(113) CustomOptions TextAlignment", m_log.Take());
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
}

TEST_F(EditorLoadTest, ASourceThatCannotBeWrittenMakesTheEditorReadOnly) {
    TestEditor &editor = Make();
    Source(2, 2)->m_writable = false;
    EXPECT_TRUE(editor.LoadData("p", nullptr, kEditVerify, ""));
    EXPECT_EQ(kEditReadOnly, editor.GetEditMode());
    EXPECT_TRUE(editor.IsGridReadOnly());
}

TEST_F(EditorLoadTest, ASourceThatDoesNotKnowTheQuestionLeavesTheMode) {
    TestEditor &editor = Make();
    RecordingSource *source = Source(2, 2);
    source->m_answersWritable = false;
    EXPECT_TRUE(editor.LoadData("p", nullptr, kEditVerify, ""));
    EXPECT_EQ(kEditVerify, editor.GetEditMode());
    EXPECT_FALSE(editor.IsGridReadOnly());
}

TEST_F(EditorLoadTest, ANewLoadClosesTheOldTableFirst) {
    TestEditor &editor = Open(2, 3);
    Source(4, 5, "new");
    EXPECT_TRUE(editor.LoadData("q", nullptr, kEditNormal, ""));
    EXPECT_EQ("Create(q) src.Close(0) src.delete new.Open(q,) new.GetOption(7) CustomOptions TextAlignment",
              m_log.Take());
    EXPECT_EQ("cur=(0,0) size=4x5", editor.State());
    EXPECT_STREQ("q", editor.GetFilePath());
}

TEST_F(EditorLoadTest, ARefusedCloseKeepsTitleAndRows) {
    TestEditor &editor = Open(2, 3);
    m_source->m_results["Close"] = 1;
    EXPECT_FALSE(editor.CloseDataSource(true));
    EXPECT_EQ("src.Close(1)", m_log.Take());
    Source(4, 5, "new");
    EXPECT_FALSE(editor.LoadData("q", nullptr, kEditNormal, ""));
    EXPECT_TRUE(editor.IsDataSrcOpen());
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    EXPECT_STREQ("table", editor.GetFilePath());
    EXPECT_EQ(m_source, editor.GetCurrentDataSrc(false));
    EXPECT_EQ("", TestApp().TakeBoxes());
    m_source->m_results.clear();
}

TEST_F(EditorLoadTest, ClosingEmptiesTheGridAndDeletesTheSource) {
    TestEditor &editor = Open(2, 3);
    EXPECT_TRUE(editor.CloseDataSource(true));
    EXPECT_EQ("src.Close(1) src.delete", m_log.Take());
    EXPECT_EQ("cur=(0,0) size=0x0", editor.State());
    EXPECT_FALSE(editor.IsDataSrcOpen());
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(false));
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorLoadTest, AnEditorOfTheFileItselfSavesBeforeItCloses) {
    TestEditor &editor = Open(2, 3);
    editor.SetIsUsingBackupFile(false);
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_EQ("src.Save() src.Close(0) src.delete", m_log.Take());
}

TEST_F(EditorLoadTest, ClosingTakesTheEditInProgressWithIt) {
    TestEditor &editor = Open(2, 3);
    editor.StartEdit();
    TypeText(editor.Edit(), "x");
    editor.CloseDataSource(false);
    EXPECT_EQ("src.StartTransaction() src.EndTransaction() Title(table,null) src.SetCell(0,0,x) "
              "Title(table,null) src.Close(0) src.delete",
              m_log.Take());
}

TEST_F(EditorLoadTest, TheWindowsEndClosesTheTable) {
    TestEditor &editor = Open(2, 3);
    editor.DestroyWindow();
    EXPECT_EQ("src.Close(0) src.delete", m_log.Take());
}

TEST_F(EditorLoadTest, TheEditorsEndDropsARefusingSource) {
    Open(2, 3);
    m_source->m_results["Close"] = 1;
    m_editors.clear();
    EXPECT_EQ("src.Close(0) src.delete", m_log.Take());
}

TEST_F(EditorLoadTest, ANewFileGetsAnEmptyLayoutFileAndItsLayoutAtTheClose) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 3);
    ASSERT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    EXPECT_EQ("", Content(PathOf("tdat.@layout")));
    editor.CloseDataSource(false);
    EXPECT_LT(20u, Content(PathOf("tdat.@layout")).size());
}

TEST_F(EditorLoadTest, AStoredLayoutComesBack) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 3);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    int width = 77;
    editor.SetColWidth(1, width);
    editor.OnColSized(1, &width);
    editor.CloseDataSource(false);
    Source(2, 3);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    width = 0;
    editor.GetColWidth(1, &width);
    EXPECT_EQ(77, width);
    EXPECT_EQ(1, editor.GetDataColNumber(1));
}

TEST_F(EditorLoadTest, ALayoutOfAnotherNumberOfFieldsGivesWayToADefault) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 3);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    editor.CloseDataSource(false);
    Source(3, 3, "new");
    m_log.Take();
    EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    EXPECT_EQ("cur=(0,0) size=3x3", editor.State());
    const std::string calls = m_log.Take();
    EXPECT_NE(std::string::npos, calls.find("Wait(1) Wait(-1)")) << calls;
}

TEST_F(EditorLoadTest, ACorruptLayoutGivesWayToADefaultAndIsOverwritten) {
    const std::string path = MakeFile("t.dat");
    MakeFile("tdat.@layout", std::string("\x04\0\0\0\0\x01\0\0\0\xff\xff\xff", 12));
    TestEditor &editor = Make();
    Source(2, 3);
    EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    EXPECT_EQ("", TestApp().TakeBoxes());
    editor.CloseDataSource(false);
    EXPECT_LT(20u, Content(PathOf("tdat.@layout")).size());
}

TEST_F(EditorLoadTest, ALayoutCutAtAnyLengthGivesWayToADefaultOne) {
    const std::string path = MakeFile("t.dat");
    const auto load = [&] {
        TestEditor &editor = Make();
        Source(3, 2);
        EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
        return &editor;
    };
    TestEditor *editor = load();
    editor->GotoCell(1, 0);
    editor->OnHideCols();
    EXPECT_EQ("0,2 of 0,1,2", editor->Order());
    editor->CloseDataSource(false);
    const std::string whole = Content(PathOf("tdat.@layout"));
    constexpr size_t kUnread = 2; // the last field is written with four bytes and read with two
    for (size_t length = 0; length <= whole.size(); ++length) {
        MakeFile("tdat.@layout", whole.substr(0, length));
        editor = load();
        EXPECT_EQ(length >= whole.size() - kUnread ? "0,2 of 0,1,2" : "0,1,2 of 0,1,2", editor->Order())
            << "cut at " << length;
        EXPECT_EQ("", TestApp().TakeBoxes());
        m_editors.pop_back();
    }
}

TEST_F(EditorLoadTest, AHiddenFieldComesBackHiddenWithItsWidthKept) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(3, 2);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    editor.SetColWidth(1, 77);
    editor.OnChangeColWidth(1, 50, 77);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    editor.CloseDataSource(false);
    Source(3, 2);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    EXPECT_EQ("0,2 of 0,1,2", editor.Order());
    CUIntArray all;
    for (UINT field : {0u, 1u, 2u})
        all.Add(field);
    editor.ReOrderCols(all);
    int width = 0;
    editor.GetColWidth(1, &width);
    EXPECT_EQ(77, width);
}

TEST_F(EditorLoadTest, NoLayoutIsWrittenForADataFileThatHasVanished) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 2);
    editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    ::DeleteFileA(path.c_str());
    editor.CloseDataSource(false);
    EXPECT_EQ("", Content(PathOf("tdat.@layout"))); // as the look for it at the load left it
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorLoadTest, ALayoutFileThatCannotBeOpenedIsDoneWithoutAndWithoutAWord) {
    const std::string path = MakeFile("t.dat");
    MakeFile("tdat.@layout", "kept");
    const HANDLE held = ::CreateFileA(PathOf("tdat.@layout").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    TestEditor &editor = Make();
    Source(2, 2);
    EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    editor.CloseDataSource(false);
    ::CloseHandle(held);
    EXPECT_EQ("kept", Content(PathOf("tdat.@layout")));
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorLoadTest, WithoutAutomaticLayoutNoFileIsTouched) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    editor.AutoSaveLayoutInfo(false);
    Source(2, 3);
    EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    editor.CloseDataSource(false);
    EXPECT_EQ("none", Content(PathOf("tdat.@layout")));
}

// --- What a new table begins with

TEST_F(EditorLoadTest, ANewTableBeginsWithNothingSelectedAndNoHeadingMode) {
    TestEditor &editor = Open(3, 5);
    editor.SelectRows(1, 3);
    Source(3, 5, "new");
    ASSERT_TRUE(editor.LoadData("q", nullptr, kEditNormal, ""));
    EXPECT_EQ("0,0..0,0 mode=0 anchor=(-1,-1)", editor.Selection());
    EXPECT_FALSE(editor.IsInMultipleSelection());
    m_log.Take();
    ::SendMessageA(editor.Cells(), WM_KEYDOWN, VK_DELETE, 1);
    const std::string calls = m_log.Take();
    EXPECT_EQ(std::string::npos, calls.find("DeleteRow")) << calls;
}

TEST_F(EditorLoadTest, AClosedTableLeavesNoSelectionAndNoHeadingMode) {
    TestEditor &editor = Open(3, 5);
    editor.SelectRows(1, 3);
    editor.CloseDataSource(false);
    EXPECT_EQ("none mode=0 anchor=(-1,-1)", editor.Selection());
}

TEST_F(EditorLoadTest, TheFirstCellOfANewTableIsToldWhereverTheOldOneStood) {
    TestEditor &editor = Open(3, 5);
    editor.m_notesCellChanges = true;
    for (const auto &[col, row] : {std::pair(2, 3), std::pair(0, 0)}) {
        editor.GotoCell(col, row);
        auto *source = Source(3, 5, "new");
        editor.m_cellChanges.clear();
        ASSERT_TRUE(editor.LoadData("q", nullptr, kEditNormal, ""));
        ASSERT_FALSE(editor.m_cellChanges.empty());
        EXPECT_EQ("0,0", editor.m_cellChanges.back().substr(editor.m_cellChanges.back().find('>') + 1));
        EXPECT_STREQ(source->Text(0, 0).c_str(), editor.m_GI.m_currentCell.GetText());
    }
}

// --- Sources that come and go in the grid's table of them

TEST_F(EditorLoadTest, WithEverySlotLentTheSourceIsDeletedTheLoadRefusedAndLaterLoadsWork) {
    TestEditor &editor = Make();
    CUGMem lent[4];
    for (CUGMem &source : lent)
        ASSERT_LT(0, editor.AddDataSource(&source));
    Source(2, 2);
    Forget();
    EXPECT_FALSE(editor.LoadData("p", nullptr, kEditNormal, ""));
    EXPECT_EQ("Could not get data source!|16", TestApp().TakeBoxes());
    EXPECT_EQ("Create(p) src.Open(p,) src.GetOption(7) src.Close(0) src.delete", m_log.Take());
    EXPECT_FALSE(editor.IsDataSrcOpen());
    EXPECT_EQ(nullptr, ::GetCapture());
    editor.RemoveDataSource(2);
    Source(2, 2);
    EXPECT_TRUE(editor.LoadData("p", nullptr, kEditNormal, ""));
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
    editor.CloseDataSource(false);
    for (int slot : {1, 3, 4})
        editor.RemoveDataSource(slot);
}

TEST_F(EditorLoadTest, ASourceThatTheHostTookOutIsTheHostsAndTheCloseSucceeds) {
    TestEditor &editor = Open(2, 3);
    EXPECT_EQ(GRID_SUCCESS, editor.RemoveDataSource(editor.GetDefaultDataSource()));
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(false));
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_EQ("", m_log.Take()); // neither closed nor deleted
    EXPECT_FALSE(editor.IsDataSrcOpen());
    EXPECT_EQ("cur=(0,0) size=0x0", editor.State());
    delete m_source;
    Source(4, 5, "new");
    EXPECT_TRUE(editor.LoadData("q", nullptr, kEditNormal, ""));
    EXPECT_EQ("cur=(0,0) size=4x5", editor.State());
}

TEST_F(EditorLoadTest, TheEditorsEndDeletesNothingThatItDoesNotOwn) {
    CUGMem others;
    TestEditor &editor = Open(2, 3);
    const int slot = editor.GetDefaultDataSource();
    editor.RemoveDataSource(slot);
    ASSERT_EQ(slot, editor.AddDataSource(&others)); // the host's own, where the editor's was
    EXPECT_EQ(nullptr, editor.GetCurrentDataSrc(false));
    Forget();
    m_editors.clear();
    EXPECT_EQ("", m_log.Take());
    delete m_source;
}

// --- Before the library is set up

TEST_F(EditorLoadTest, AnEditorMadeBeforeTheLibraryIsSetUpSaysSoAndRefusesLoads) {
    TestEditor::ForgetInitialise();
    TestEditor &editor = Make();
    EXPECT_EQ("The editor cannot be used: CEditorCore::Initialise was not called with a host that gives editor "
              "options.|16",
              TestApp().TakeBoxes());
    EXPECT_TRUE(editor.ConstructFailed());
    EXPECT_FALSE(editor.LoadData("p", nullptr, kEditNormal, ""));
    editor.OnCopy();
    editor.OnUnHideCols();
    editor.Undo();
    CEditorCore::SetEnterKey(false);
    TestApp().TakeBoxes();
    m_editors.clear();
    CEditorCore::Initialise(&m_service);
    EXPECT_FALSE(Make().ConstructFailed());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorLoadTest, AHostWithoutOptionsIsRefusedWithAMessage) {
    class : public CQuietAppInterface {
        CVEditorOptions *GetEditorOptions() override { return nullptr; }
    } host;
    CEditorCore::Initialise(&host);
    EXPECT_EQ("The host gives no editor options: no editor can be used.|16", TestApp().TakeBoxes());
    EXPECT_TRUE(Make().ConstructFailed());
    m_editors.clear();
    CEditorCore::Initialise(&m_service);
    TestApp().TakeBoxes();
}

TEST_F(EditorLoadTest, RowHeightAndHeadingSizesComeBackInAnotherEditor) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 3);
    ASSERT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    int size = 33;
    editor.SetRowHeight(0, size);
    editor.OnRowSized(0, &size);
    editor.SetTH_Height(44);
    editor.SetSH_Width(77);
    editor.OnColSized(-1, &size);
    editor.CloseDataSource(false);
    TestEditor &other = Make();
    Source(2, 3);
    ASSERT_TRUE(other.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    other.GetRowHeight(2, &size);
    EXPECT_EQ("33 44 77", std::to_string(size) + " " + std::to_string(other.GetTH_Height()) + " " +
                              std::to_string(other.GetSH_Width()));
}

TEST_F(EditorLoadTest, TablesOfOneFileDoNotGoIntoTheLayoutOfTheNext) {
    const std::string first = MakeFile("a.dat"), second = MakeFile("b.dat"), alone = MakeFile("c.dat");
    TestEditor &editor = Make();
    for (const auto &[path, table] : {std::pair(first, "ONE"), std::pair(second, "TWO")}) {
        Source(2, 3);
        ASSERT_TRUE(editor.LoadData(path.c_str(), table, kEditNormal, ""));
        editor.CloseDataSource(false);
    }
    TestEditor &other = Make();
    Source(2, 3);
    ASSERT_TRUE(other.LoadData(alone.c_str(), "TWO", kEditNormal, ""));
    other.CloseDataSource(false);
    EXPECT_EQ(Content(PathOf("cdat.@layout")), Content(PathOf("bdat.@layout")));
}

// --- A close that is asked for again while the source asks

class AskingSource : public RecordingSource {
public:
    using RecordingSource::RecordingSource;
    int Close(bool force) override {
        if (m_onClose)
            m_onClose();
        return RecordingSource::Close(force);
    }
    std::function<void()> m_onClose;
};

TEST_F(EditorLoadTest, ACloseWithinACloseIsRefusedAndTheFirstOneGoesOn) {
    TestEditor &editor = Make();
    auto *source = new AskingSource(&m_log, 2, 3, "src");
    m_service.m_sources.push_back(source);
    ASSERT_TRUE(editor.LoadData("p", nullptr, kEditNormal, ""));
    Forget();
    source->m_onClose = [&] { EXPECT_FALSE(editor.CloseDataSource(true)); };
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_EQ("src.Close(0) src.delete", m_log.Take());
    EXPECT_TRUE(editor.CloseDataSource(false));
}

TEST_F(EditorLoadTest, AnEditorThatIsDestroyedWhileItClosesLeavesTheSourceToTheClose) {
    TestEditor &editor = Make();
    auto *source = new AskingSource(&m_log, 2, 3, "src");
    m_service.m_sources.push_back(source);
    ASSERT_TRUE(editor.LoadData("p", nullptr, kEditNormal, ""));
    Forget();
    source->m_onClose = [&] { m_editors.clear(); };
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_EQ("src.Close(0) src.delete", m_log.Take());
}

TEST_F(EditorLoadTest, TheMessageThatEndsTheProgramIsInTheQueueAfterALoad) {
    TestEditor &editor = Make();
    Source(2, 3);
    ::PostQuitMessage(7);
    EXPECT_TRUE(editor.LoadData("p", nullptr, kEditNormal, ""));
    MSG message{};
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7u, message.wParam);
}

} // namespace
