// What holds after a question of the editor's when something else was done while it was up.
#include "EditorWindowTest.h"

namespace {

class EditorMeanwhileTest : public EditorWindowTest {
protected:
    TestEditor &OpenFile(const char *name, int mode = kEditNormal) {
        TestEditor &editor = Make();
        m_source = Source(2, 2);
        EXPECT_TRUE(editor.LoadData(MakeFile(name).c_str(), nullptr, mode, ""));
        Forget();
        return editor;
    }
    static void Type(TestEditor &editor, const char *text) {
        editor.StartEdit();
        TypeText(editor.Edit(), text);
    }
    std::string LayoutOf(const char *name) const {
        CString path(PathOf(name).c_str());
        CEditorCore::GetLayoutFileName(path);
        return path.GetString();
    }
};

TEST_F(EditorMeanwhileTest, ATableThatIsClosedWhileItsOverwritingIsAskedForIsNotSaved) {
    TestEditor &editor = OpenFile("t.dat");
    const std::string target = MakeFile("new.dat");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { editor.CloseDataSource(false); };
    EXPECT_FALSE(editor.OnSaveAs(target.c_str(), false, -1));
    EXPECT_EQ(std::string::npos, m_log.Take().find("SaveAs"));
    EXPECT_STREQ(PathOf("t.dat").c_str(), editor.GetFilePath());
}

TEST_F(EditorMeanwhileTest, ABoxThatIsOpenedWhileTheOverwritingIsAskedForIsSavedToo) {
    TestEditor &editor = OpenFile("t.dat");
    const std::string target = MakeFile("new.dat");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { Type(editor, "typed"); };
    EXPECT_TRUE(editor.OnSaveAs(target.c_str(), false, -1));
    EXPECT_EQ(nullptr, editor.Edit());
    EXPECT_EQ("typed", m_source->Text(0, 0));
}

TEST_F(EditorMeanwhileTest, ASecondCloseWhileTheFirstAsksChangesNothing) {
    TestEditor &editor = OpenFile("t.dat", kEditVerify);
    editor.SetColWidth(1, 77);
    editor.OnChangeColWidth(1, 50, 77);
    Type(editor, "typed");
    TestApp().Answer({IDYES});
    bool second = true;
    TestApp().m_whileUp = [&](const std::string &) { second = editor.CloseDataSource(false); };
    EXPECT_TRUE(editor.CloseDataSource(false));
    EXPECT_FALSE(second);
    const std::string calls = m_log.Take();
    EXPECT_LT(calls.find("src.SetCell(0,0,typed)"), calls.find("src.Close(0)"));
    EXPECT_EQ(calls.find("src.Close(0)"), calls.rfind("src.Close(0)"));
    EXPECT_FALSE(editor.IsDataSrcOpen());
    EXPECT_LT(20u, Content(LayoutOf("t.dat")).size());
    TestApp().m_whileUp = nullptr;
    m_source = Source(2, 2);
    ASSERT_TRUE(editor.LoadData(PathOf("t.dat").c_str(), nullptr, kEditNormal, ""));
    int width = 0;
    editor.GetColWidth(1, &width);
    EXPECT_EQ(77, width);
}

TEST_F(EditorMeanwhileTest, ACloseThatWasRefusedCanBeAskedForAgain) {
    TestEditor &editor = OpenFile("t.dat");
    m_source->m_results["Close"] = GRID_ERROR;
    EXPECT_FALSE(editor.CloseDataSource(false));
    m_source->m_results.clear();
    EXPECT_TRUE(editor.CloseDataSource(false));
}

// --- Records

TEST_F(EditorMeanwhileTest, ATableThatIsClosedWhileARefusedAppendIsToldIsNotAskedAgain) {
    TestEditor &editor = OpenFile("t.dat");
    m_source->m_results["AppendRow"] = GRID_ERROR;
    TestApp().m_whileUp = [&](const std::string &) {
        editor.CloseDataSource(false);
        m_service.m_sources.clear();
    };
    editor.OnAppendRow(0);
    EXPECT_EQ("cur=(0,0) size=0x0", editor.State());
}

TEST_F(EditorMeanwhileTest, ATableThatIsClosedWhileARefusedDeletionIsToldHasNoRows) {
    TestEditor &editor = OpenFile("t.dat");
    m_source->m_results["DeleteRow"] = GRID_ERROR;
    TestApp().m_whileUp = [&](const std::string &) { editor.CloseDataSource(false); };
    EXPECT_FALSE(editor.ExecDeleteRows(0, 0));
    EXPECT_EQ("cur=(0,0) size=0x0", editor.State());
}

TEST_F(EditorMeanwhileTest, ADeletionThatWasAskedForInOneTableTakesNoRecordsOfAnother) {
    TestEditor &editor = OpenFile("t.dat");
    RecordingSource *other = Source(2, 3, "other");
    const std::string path = MakeFile("other.dat");
    WithDialog act([&](HWND dialog) {
        EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    editor.OnDeleteRows(false);
    EXPECT_EQ(3u, other->m_rows.size());
}

TEST_F(EditorMeanwhileTest, AnInsertionThatWasAskedForInOneTableMakesNoRecordsInAnother) {
    TestEditor &editor = OpenFile("t.dat");
    RecordingSource *other = Source(2, 3, "other");
    const std::string path = MakeFile("other.dat");
    WithDialog act([&](HWND dialog) {
        EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    editor.OnInsertRows();
    EXPECT_EQ(3u, other->m_rows.size());
}

TEST_F(EditorMeanwhileTest, ADeletionIsNotDoneWhereTheRecordsHaveMovedMeanwhile) {
    TestEditor &editor = OpenFile("t.dat");
    WithDialog act([&](HWND dialog) {
        m_source->InsertRow(0);
        editor.OnDataSourceNotify(0, 1, 0);
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    editor.OnDeleteRows(false);
    EXPECT_EQ(3u, m_source->m_rows.size());
}

TEST_F(EditorMeanwhileTest, ADeletionIsDoneWhereRecordsWereAppendedMeanwhile) {
    TestEditor &editor = OpenFile("t.dat");
    WithDialog act([&](HWND dialog) {
        EXPECT_TRUE(editor.ExecInsertRows(2, 1, false));
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    editor.OnDeleteRows(false);
    ASSERT_EQ(2u, m_source->m_rows.size());
    EXPECT_EQ("0.1", m_source->Text(0, 0));
}

TEST_F(EditorMeanwhileTest, ATableThatWasLoadedWhileAnotherOnesOverwritingIsAskedForIsNotSavedThere) {
    TestEditor &editor = OpenFile("t.dat");
    Source(2, 3, "other");
    const std::string path = MakeFile("other.dat"), target = MakeFile("new.dat");
    TestApp().Answer({IDYES});
    TestApp().m_whileUp = [&](const std::string &) { editor.LoadData(path.c_str(), nullptr, kEditNormal, ""); };
    EXPECT_FALSE(editor.OnSaveAs(target.c_str(), false, -1));
    EXPECT_EQ(std::string::npos, m_log.Take().find("SaveAs"));
}

TEST_F(EditorMeanwhileTest, AnOrderThatWasAskedForInOneTableIsNotGivenToAnother) {
    TestEditor &editor = OpenFile("t.dat");
    Source(3, 3, "other");
    const std::string path = MakeFile("other.dat");
    m_service.m_onOrder = [&](CStringArray *) {
        return editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    };
    editor.OnOrderCols(nullptr);
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
    EXPECT_FALSE(editor.Commands()->CanUndo());
}

TEST_F(EditorMeanwhileTest, FieldsThatWereAskedForInOneTableAreNotInTheHistoryOfAnother) {
    TestEditor &editor = OpenFile("t.dat");
    Source(3, 3, "other");
    const std::string path = MakeFile("other.dat");
    m_service.m_onVisibility = [&](CStringArray &, CArray<bool, bool> &) {
        editor.LoadData(path.c_str(), nullptr, kEditNormal, "");
    };
    editor.OnUnHideCols();
    EXPECT_FALSE(editor.Commands()->CanUndo());
}

} // namespace
