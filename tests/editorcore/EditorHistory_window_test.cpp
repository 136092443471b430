// Undo in three tiers: the edit box, the history of the view, the source.
#include "EditorWindowTest.h"

namespace {

class EditorHistoryTest : public EditorWindowTest {
protected:
    class Note : public CCommand {
    public:
        explicit Note(CallLog *log) : m_log(log) {}
        bool Exec() override { return Say("exec"); }
        bool UnExec() override { return Say("unexec"); }

    private:
        bool Say(const char *what) {
            m_log->Note(what);
            return true;
        }
        CallLog *m_log;
    };
    void AddCommand(TestEditor &editor) { editor.Commands()->AddCommand(new Note(&m_log)); }
    void TypeInBox(TestEditor &editor) {
        editor.StartEdit();
        // What can be undone in the box is one piece of typing.
        ::SendMessageA(editor.Edit(), EM_SETSEL, 0, -1);
        ::SendMessageA(editor.Edit(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("typed"));
    }
};

TEST_F(EditorHistoryTest, TheViewIsUndoneBeforeAnyData) {
    TestEditor &editor = Open(2, 2);
    AddCommand(editor);
    m_source->m_canUndo = true;
    EXPECT_TRUE(editor.CanUndo());
    editor.Undo();
    EXPECT_EQ("unexec Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0) 1051(0,0)", m_host.TakeMessages());
    editor.Undo();
    EXPECT_EQ("src.Undo()", m_log.Take());
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorHistoryTest, RedoWithNothingInTheListFallsThroughToTheSource) {
    TestEditor &editor = Open(2, 2);
    EXPECT_FALSE(editor.CanRedo());
    m_source->m_canRedo = true;
    EXPECT_TRUE(editor.CanRedo());
    editor.Redo();
    EXPECT_EQ("src.Redo()", m_log.Take());
    AddCommand(editor);
    editor.Undo();
    m_log.Take();
    editor.Redo();
    EXPECT_EQ("exec Title(table,null)", m_log.Take());
}

TEST_F(EditorHistoryTest, NothingToUndoStillTellsTheParent) {
    TestEditor &editor = Open(2, 2);
    EXPECT_FALSE(editor.CanUndo());
    editor.Undo();
    editor.Redo();
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("1051(0,0) 1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorHistoryTest, WithoutDepthTheSourceMayStillUndo) {
    m_service.m_options.m_undoLevels = 0;
    TestEditor &editor = Open(2, 2);
    AddCommand(editor);
    EXPECT_FALSE(editor.CanUndo());
    m_source->m_canUndo = true;
    EXPECT_TRUE(editor.CanUndo());
}

TEST_F(EditorHistoryTest, AnOpenBoxWinsAndASecondUndoFallsToTheList) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    TypeInBox(editor);
    Forget();
    editor.Undo();
    EXPECT_EQ("0.0", WindowText(editor.Edit()));
    EXPECT_EQ("0 of 0,1", editor.Order());
    EXPECT_EQ("Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0)", m_host.TakeMessages()); // no word of commands on this path
    EXPECT_TRUE(editor.CanRedo());
    editor.Undo();
    EXPECT_EQ(nullptr, editor.Edit());
    EXPECT_EQ("0,1 of 0,1", editor.Order());
    EXPECT_EQ("TextAlignment Title(table,null)", m_log.Take());
    EXPECT_EQ("0.0 1.0", m_source->Text(0, 0) + " " + m_source->Text(1, 0));
}

TEST_F(EditorHistoryTest, RedoOfAnUndoneBoxTypesItAgain) {
    TestEditor &editor = Open(2, 2);
    TypeInBox(editor);
    editor.Undo();
    Forget();
    editor.Redo();
    EXPECT_EQ("typed", WindowText(editor.Edit()));
    EXPECT_EQ("Title(table,null)", m_log.Take());
    EXPECT_TRUE(editor.CanUndo());
    EXPECT_FALSE(editor.CanRedo());
}

TEST_F(EditorHistoryTest, ALoadEmptiesTheHistoryAndASaveDoesNot) {
    TestEditor &editor = Open(2, 2);
    AddCommand(editor);
    editor.OnSave(0);
    EXPECT_TRUE(editor.CanUndo());
    Source(2, 2);
    editor.LoadData("q", nullptr, kEditNormal, "");
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorHistoryTest, CellsChangedByAnotherWayTellTheTitleAndEndTheBoxesUndoneState) {
    TestEditor &editor = Open(2, 2);
    TypeInBox(editor);
    editor.Undo();
    EXPECT_TRUE(editor.CanRedo());
    EXPECT_FALSE(editor.CanUndo());
    Forget();
    editor.OnEditNotify();
    EXPECT_EQ("Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0)", m_host.TakeMessages());
    EXPECT_FALSE(editor.CanRedo());
    EXPECT_TRUE(editor.CanUndo());
    EXPECT_NE(nullptr, editor.Edit());
}

} // namespace
