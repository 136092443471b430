#include "editorcore/CommandList.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class ListTest : public testing::Test {
protected:
    // Notes what is done to it; its name is one letter.
    class Note : public CCommand {
    public:
        Note(char name, std::string *log) : m_name(name), m_log(log) {}
        ~Note() override { *m_log += std::string("~") + m_name; }
        bool Exec() override { return Say('+'); }
        bool UnExec() override { return Say('-'); }

    private:
        bool Say(char what) {
            *m_log += what;
            *m_log += m_name;
            return false; // the answer is not looked at
        }
        char m_name;
        std::string *m_log;
    };

    void Add(CCommandListMgr &list, const char *names) {
        for (; *names != '\0'; ++names)
            list.AddCommand(new Note(*names, &m_log));
    }
    std::string Taken() { return std::exchange(m_log, {}); }
    // What undoing all of it does.
    std::string UndoAll(CCommandListMgr &list) {
        while (list.Undo(true)) {
        }
        return Taken();
    }
    std::string RedoAll(CCommandListMgr &list) {
        while (list.Redo()) {
        }
        return Taken();
    }

    std::string m_log;
};

TEST_F(ListTest, AnEmptyListHasNothingToDo) {
    CCommandListMgr list(3);
    EXPECT_FALSE(list.CanUndo());
    EXPECT_FALSE(list.CanRedo());
    EXPECT_FALSE(list.Undo(true));
    EXPECT_FALSE(list.Redo());
    list.Empty();
    EXPECT_EQ(3, list.GetMaxCommands());
}

TEST_F(ListTest, AddingDoesNotExecute) {
    CCommandListMgr list(3);
    EXPECT_TRUE(list.AddCommand(new Note('a', &m_log)));
    EXPECT_EQ("", Taken());
    EXPECT_TRUE(list.CanUndo());
    EXPECT_FALSE(list.CanRedo());
}

TEST_F(ListTest, UndoGoesBackOneAndRedoForwardOne) {
    CCommandListMgr list(3);
    Add(list, "abc");
    EXPECT_TRUE(list.Undo(true));
    EXPECT_TRUE(list.Undo(true));
    EXPECT_EQ("-c-b", Taken());
    EXPECT_TRUE(list.Redo());
    EXPECT_EQ("+b", Taken());
    EXPECT_EQ("-b-a", UndoAll(list));
    EXPECT_FALSE(list.CanUndo());
    EXPECT_EQ("+a+b+c", RedoAll(list));
    EXPECT_FALSE(list.CanRedo());
}

TEST_F(ListTest, UndoWithoutExecutingOnlyMoves) {
    CCommandListMgr list(3);
    Add(list, "ab");
    EXPECT_TRUE(list.Undo(false));
    EXPECT_EQ("", Taken());
    EXPECT_EQ("-a", UndoAll(list));
}

TEST_F(ListTest, WithDepthThreeTheFourthCommandDrivesOutTheOldest) {
    CCommandListMgr list(3);
    Add(list, "abcd");
    EXPECT_EQ("~a", Taken());
    EXPECT_EQ("-d-c-b", UndoAll(list));
}

TEST_F(ListTest, AddingAfterTwoUndosDropsTheTwoFirst) {
    CCommandListMgr list(5);
    Add(list, "abc");
    list.Undo(true);
    list.Undo(true);
    Taken();
    Add(list, "d");
    EXPECT_EQ("~c~b", Taken());
    EXPECT_FALSE(list.CanRedo());
    EXPECT_EQ("-d-a", UndoAll(list));
}

TEST_F(ListTest, AddingAfterUndoingEverythingStartsAnew) {
    CCommandListMgr list(5);
    Add(list, "ab");
    UndoAll(list);
    Add(list, "c");
    EXPECT_EQ("~b~a", Taken());
    EXPECT_EQ("-c", UndoAll(list));
}

TEST_F(ListTest, WithoutDepthACommandIsDeletedAndNotKept) {
    CCommandListMgr list(0);
    EXPECT_FALSE(list.AddCommand(new Note('a', &m_log)));
    EXPECT_EQ("~a", Taken());
    CCommandListMgr negative(-4);
    EXPECT_FALSE(negative.AddCommand(new Note('b', &m_log)));
    EXPECT_EQ("~b", Taken());
    EXPECT_FALSE(negative.CanUndo());
}

TEST_F(ListTest, ADepthOfOneWithFiveCommandsKeepsTheNewest) {
    CCommandListMgr list(5);
    Add(list, "abcde");
    list.SetMaxCommands(1);
    EXPECT_EQ("~a~b~c~d", Taken());
    EXPECT_EQ("-e", UndoAll(list));
}

TEST_F(ListTest, ALargerDepthKeepsAll) {
    CCommandListMgr list(2);
    Add(list, "ab");
    list.SetMaxCommands(4);
    Add(list, "cd");
    EXPECT_EQ("-d-c-b-a", UndoAll(list));
}

TEST_F(ListTest, ASmallerDepthWithEverythingUndoneDropsAll) {
    CCommandListMgr list(5);
    Add(list, "abc");
    UndoAll(list);
    list.SetMaxCommands(2);
    EXPECT_EQ(6u, Taken().size());
    EXPECT_FALSE(list.CanRedo());
    EXPECT_FALSE(list.CanUndo());
}

TEST_F(ListTest, ASmallerDepthThatTakesTheCurrentCommandLeavesNothingToUndo) {
    CCommandListMgr list(5);
    Add(list, "abcd");
    list.Undo(true);
    list.Undo(true);
    list.Undo(true); // the current one is a
    Taken();
    list.SetMaxCommands(2);
    EXPECT_EQ("~a~b", Taken());
    EXPECT_FALSE(list.CanUndo());
    EXPECT_TRUE(list.CanRedo());
    EXPECT_EQ("+c+d", RedoAll(list));
}

TEST_F(ListTest, NoDepthDropsAll) {
    CCommandListMgr list(5);
    Add(list, "ab");
    list.SetMaxCommands(-1);
    EXPECT_EQ("~a~b", Taken());
    EXPECT_EQ(-1, list.GetMaxCommands());
}

TEST_F(ListTest, EmptyingDeletesEveryCommandOnBothSides) {
    CCommandListMgr list(5);
    Add(list, "abc");
    list.Undo(true);
    Taken();
    list.Empty();
    EXPECT_EQ("~c~b~a", Taken());
    EXPECT_FALSE(list.CanUndo());
    EXPECT_FALSE(list.CanRedo());
    Add(list, "d");
    EXPECT_EQ("-d", UndoAll(list));
}

TEST_F(ListTest, TheListDeletesWhatItHolds) {
    {
        CCommandListMgr list(5);
        Add(list, "ab");
    }
    EXPECT_EQ("~b~a", Taken());
}

} // namespace
