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

} // namespace
