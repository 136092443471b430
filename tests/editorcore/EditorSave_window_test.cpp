// Saving, and saving under another name.
#include "EditorWindowTest.h"

namespace {

class EditorSaveTest : public EditorWindowTest {
protected:
    // An editor on a real file, so that layouts are written.
    TestEditor &OpenFile(const char *name, const char *table = nullptr) {
        TestEditor &editor = Make();
        m_source = Source(2, 3);
        EXPECT_TRUE(editor.LoadData(MakeFile(name).c_str(), table, kEditNormal, ""));
        Forget();
        return editor;
    }
    std::string LayoutOf(const char *name) {
        CString path(PathOf(name).c_str());
        CEditorCore::GetLayoutFileName(path);
        return std::string(path);
    }
};

TEST_F(EditorSaveTest, SavingTakesTheEditAlongAndTellsTheTitle) {
    TestEditor &editor = Open(2, 3);
    editor.StartEdit();
    TypeText(editor.Edit(), "x");
    Forget();
    editor.OnSave(0);
    EXPECT_EQ("src.StartTransaction() src.EndTransaction() Title(table,null) src.SetCell(0,0,x) "
              "Title(table,null) src.Save() Title(table,null)",
              m_log.Take());
    EXPECT_EQ(nullptr, editor.Edit());
}

TEST_F(EditorSaveTest, AFailedSaveIsTheSourcesToTell) {
    TestEditor &editor = Open(2, 3);
    m_source->m_results["Save"] = 1;
    editor.OnSave(0);
    EXPECT_EQ("src.Save() Title(table,null)", m_log.Take());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorSaveTest, TheSameNameInAnotherCaseIsAPlainSave) {
    TestEditor &editor = OpenFile("t.dat");
    std::string upper = PathOf("t.dat");
    for (char &c : upper)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    EXPECT_TRUE(editor.OnSaveAs(upper.c_str(), false, -1));
    EXPECT_EQ("src.Save() Title(" + PathOf("t.dat") + ",null)", m_log.Take());
    EXPECT_STREQ(PathOf("t.dat").c_str(), editor.GetFilePath());
}

TEST_F(EditorSaveTest, TheSameNameFilteredIsRefusedAsOpen) {
    TestEditor &editor = OpenFile("t.dat");
    const std::string path = PathOf("t.dat");
    EXPECT_FALSE(editor.OnSaveAs(path.c_str(), true, 2));
    EXPECT_EQ("The file '" + path +
                  "' is already open in the Editor.\n\nPlease close before trying to save to it.|0",
              TestApp().TakeBoxes());
    EXPECT_EQ("", m_log.Take());
}

TEST_F(EditorSaveTest, AFileOpenInAnotherEditorIsRefused) {
    TestEditor &editor = OpenFile("t.dat");
    OpenFile("other.dat");
    const std::string path = PathOf("other.dat");
    EXPECT_FALSE(editor.OnSaveAs(path.c_str(), false, -1));
    EXPECT_EQ("The file '" + path +
                  "' is already open in the Editor.\n\nPlease close before trying to save to it.|0",
              TestApp().TakeBoxes());
    EXPECT_STREQ(PathOf("t.dat").c_str(), editor.GetFilePath());
}

TEST_F(EditorSaveTest, AnExistingFileIsAskedAboutAndNoLeavesEverything) {
    TestEditor &editor = OpenFile("t.dat");
    const std::string path = MakeFile("new.dat");
    MakeFile("newdat.@layout", "old layout");
    TestApp().Answer({IDNO});
    EXPECT_FALSE(editor.OnSaveAs(path.c_str(), false, -1));
    EXPECT_EQ("The file '" + path + "' already exists!\nOverwrite?|36", TestApp().TakeBoxes());
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("old layout", Content(LayoutOf("new.dat")));
    EXPECT_EQ("", Content(LayoutOf("t.dat")));
}

TEST_F(EditorSaveTest, AYesGoesOn) {
    TestEditor &editor = OpenFile("t.dat");
    const std::string path = MakeFile("new.dat");
    TestApp().Answer({IDYES});
    EXPECT_TRUE(editor.OnSaveAs(path.c_str(), false, -1));
    EXPECT_STREQ(path.c_str(), editor.GetFilePath());
}

TEST_F(EditorSaveTest, ASavedTableHasItsNewPathItsRowsAndItsTitle) {
    TestEditor &editor = OpenFile("t.dat", "T");
    MakeFile("newdat.@layout", "old layout");
    m_source->m_rows.resize(2);
    const std::string path = PathOf("new.dat");
    EXPECT_TRUE(editor.OnSaveAs(path.c_str(), false, 4));
    EXPECT_EQ("src.SaveAs(" + path + ",T) Title(" + path + ",T)", m_log.Take());
    EXPECT_EQ("1049(1,1)", m_host.TakeMessages());
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
    EXPECT_STREQ(path.c_str(), editor.GetFilePath());
    EXPECT_LT(20u, Content(LayoutOf("t.dat")).size()) << "the layout went to the old file's";
    EXPECT_EQ("none", Content(LayoutOf("new.dat")));
    EXPECT_EQ(1, editor.m_GI.m_paintingEnabled);
    // The working copy goes to the new name at the close.
    MakeFile("new.dat");
    editor.CloseDataSource(false);
    EXPECT_LT(20u, Content(LayoutOf("new.dat")).size());
}

TEST_F(EditorSaveTest, TheLayoutInMemoryOutlivesTheSave) {
    TestEditor &editor = OpenFile("t.dat");
    int width = 77;
    editor.SetColWidth(1, width);
    editor.OnColSized(1, &width);
    editor.OnSaveAs(PathOf("new.dat").c_str(), false, -1);
    CUIntArray widths;
    editor.Layout()->GetColWidths(widths);
    ASSERT_EQ(2, widths.GetSize());
    EXPECT_EQ(77u, widths.GetAt(1));
}

TEST_F(EditorSaveTest, FilteredRecordsAreAskedForByTheFiltersNumber) {
    TestEditor &editor = OpenFile("t.dat", "T");
    EXPECT_TRUE(editor.OnSaveAs(PathOf("a.dat").c_str(), true, 3));
    EXPECT_TRUE(editor.OnSaveAs(PathOf("b.dat").c_str(), true, -1));
    const std::string calls = m_log.Take();
    EXPECT_NE(std::string::npos, calls.find("a.dat,T -filter 3)")) << calls;
    EXPECT_NE(std::string::npos, calls.find("b.dat,T)")) << calls;
}

TEST_F(EditorSaveTest, ASavedEmptyTableKeepsItsPlaceholder) {
    TestEditor &editor = OpenFile("t.dat");
    m_source->m_rows.clear();
    EXPECT_TRUE(editor.OnSaveAs(PathOf("new.dat").c_str(), true, 0));
    EXPECT_EQ("cur=(0,0) size=2x1", editor.State());
}

TEST_F(EditorSaveTest, AFailedSaveAsKeepsThePathButTheLayoutsHaveChanged) {
    TestEditor &editor = OpenFile("t.dat");
    MakeFile("newdat.@layout", "old layout");
    m_source->m_results["SaveAs"] = 1;
    const std::string path = PathOf("new.dat");
    EXPECT_FALSE(editor.OnSaveAs(path.c_str(), false, -1));
    EXPECT_EQ("Could not save " + path + "!|16", TestApp().TakeBoxes());
    EXPECT_EQ("src.SaveAs(" + path + ",)", m_log.Take());
    EXPECT_STREQ(PathOf("t.dat").c_str(), editor.GetFilePath());
    EXPECT_LT(20u, Content(LayoutOf("t.dat")).size());
    EXPECT_EQ("none", Content(LayoutOf("new.dat")));
    EXPECT_EQ(1, editor.m_GI.m_paintingEnabled);
}

TEST_F(EditorSaveTest, WithoutASourceItIsSaid) {
    TestEditor &editor = Make();
    EXPECT_FALSE(editor.OnSaveAs("x", false, -1));
    EXPECT_EQ("Could not get data source!|16", TestApp().TakeBoxes());
}

TEST_F(EditorSaveTest, AWorkingCopyThatCannotBeReadBackIsKept) {
    // Two tables in one layout file: the second one is read out of step.
    OpenFile("t.dat", "OTHER").CloseDataSource(false);
    TestEditor &editor = OpenFile("t.dat", "T");
    int width = 77;
    editor.SetColWidth(1, width);
    editor.OnColSized(1, &width);
    const std::string order = editor.Order(), widths = editor.FieldWidths();
    EXPECT_TRUE(editor.OnSaveAs(PathOf("new.dat").c_str(), false, -1));
    EXPECT_EQ(order, editor.Order());
    EXPECT_EQ(widths, editor.FieldWidths());
    editor.OnHideCols();
    EXPECT_EQ("1 of 0,1", editor.Order());
}

} // namespace
