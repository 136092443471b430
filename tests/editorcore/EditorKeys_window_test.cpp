// Keys that reach the grid with no edit box open, and clicks.
#include "EditorWindowTest.h"

namespace {

class EditorKeysTest : public EditorWindowTest {
protected:
    // A key as it comes from the keyboard, with its character.
    void Key(TestEditor &editor, UINT key, UINT character = 0) {
        ::SendMessageA(editor.Cells(), WM_KEYDOWN, key, 1);
        if (character != 0)
            SendChar(editor.Cells(), character);
        PumpAll();
    }
    std::string Selected(TestEditor &editor) {
        std::string all;
        for (long row = 0; row < editor.CUGCtrl::GetNumberRows(); ++row) {
            for (int col = 0; col < editor.GetNumberCols(); ++col) {
                if (editor.IsSelected(col, row))
                    all += std::to_string(col) + "." + std::to_string(row) + " ";
            }
        }
        return all;
    }
};

TEST_F(EditorKeysTest, TabGoesRightAndThenToTheNextRow) {
    TestEditor &editor = Open(2, 2);
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(1,0) size=2x2", editor.State());
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(0,1) size=2x2", editor.State());
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(1,0) size=2x2", editor.State());
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
}

TEST_F(EditorKeysTest, ShiftTabAtTheFirstCellStays) {
    TestEditor &editor = Open(2, 2);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(0,0) size=2x2", editor.State());
    EXPECT_EQ(2, m_source->GetNumRows());
}

TEST_F(EditorKeysTest, TabAtTheLastCellAppendsARecord) {
    TestEditor &editor = Open(2, 2);
    editor.GotoCell(1, 1);
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(0,2) size=2x3", editor.State());
}

TEST_F(EditorKeysTest, TabAtTheLastCellOfThePlaceholderAddsTwoRecords) {
    TestEditor &editor = Open(2, 0);
    editor.GotoCell(1, 0);
    Key(editor, VK_TAB, 9);
    EXPECT_EQ(2, m_source->GetNumRows());
    EXPECT_EQ("cur=(0,1) size=2x2", editor.State());
}

TEST_F(EditorKeysTest, EnterGoesDownAndAppendsOnTheLastRow) {
    TestEditor &editor = Open(2, 2);
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("cur=(0,1) size=2x2", editor.State());
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("cur=(0,2) size=2x3", editor.State());
    EXPECT_EQ(3, m_source->GetNumRows());
}

TEST_F(EditorKeysTest, EnterAsTabOnTheLastRowAppendsNothing) {
    TestEditor &editor = Open(2, 2);
    CEditorCore::SetEnterKey(true);
    editor.GotoCell(0, 1);
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("cur=(1,1) size=2x2", editor.State());
    EXPECT_EQ(2, m_source->GetNumRows());
}

TEST_F(EditorKeysTest, EnterWithShiftGoesUpAndStaysAtTheTop) {
    TestEditor &editor = Open(2, 3);
    editor.GotoCell(0, 1);
    HeldKeys shift({VK_SHIFT});
    ::SendMessageA(editor.Cells(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
    ::SendMessageA(editor.Cells(), WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ("cur=(0,0) size=2x3", editor.State());
}

TEST_F(EditorKeysTest, ReadOnlyModeAppendsNothing) {
    TestEditor &editor = Open(2, 2, kEditReadOnly);
    editor.GotoCell(1, 1);
    Key(editor, VK_TAB, 9);
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ(2, m_source->GetNumRows());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(EditorKeysTest, AnAppendedRecordIsToldToTheParent) {
    TestEditor &editor = Open(2, 2);
    editor.OnAppendRow(1);
    EXPECT_EQ("src.AppendRow() Title(table,null)", m_log.Take());
    EXPECT_EQ("1049(1,0) 1051(0,0)", m_host.TakeMessages());
    EXPECT_EQ("cur=(1,2) size=2x3", editor.State());
}

TEST_F(EditorKeysTest, APrintableCharacterStartsTheEditWithItself) {
    TestEditor &editor = Open(2, 2);
    SendChar(editor.Cells(), 'q');
    ASSERT_NE(nullptr, editor.Edit());
    EXPECT_EQ("q", WindowText(editor.Edit()));
}

TEST_F(EditorKeysTest, ALetterOfTheCodePageStartsTheEditToo) {
    TestEditor &editor = Open(2, 2);
    SendChar(editor.Cells(), 0xD6);
    ASSERT_NE(nullptr, editor.Edit());
    EXPECT_EQ("\xD6", WindowText(editor.Edit()));
}

TEST_F(EditorKeysTest, BackspaceStartsTheEditAndErases) {
    TestEditor &editor = Open(2, 2);
    SendChar(editor.Cells(), 8);
    ASSERT_NE(nullptr, editor.Edit());
    EXPECT_EQ("", WindowText(editor.Edit()));
}

TEST_F(EditorKeysTest, OtherControlCharactersStartNothing) {
    TestEditor &editor = Open(2, 2);
    for (UINT key : {1u, 3u, 22u, 27u})
        SendChar(editor.Cells(), key);
    EXPECT_EQ(nullptr, editor.Edit());
}

TEST_F(EditorKeysTest, LeftAndRightOpenTheBoxWhereTheCursorIs) {
    TestEditor &editor = Open(3, 2);
    editor.GotoCell(1, 0);
    Key(editor, VK_RIGHT);
    EXPECT_EQ("cur=(1,0) size=3x2", editor.State());
    ASSERT_NE(nullptr, editor.Edit());
    EXPECT_EQ("1.0", WindowText(editor.Edit()));
}

TEST_F(EditorKeysTest, LeftAndRightWithShiftSelect) {
    TestEditor &editor = Open(3, 2);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_RIGHT);
    EXPECT_EQ(nullptr, editor.Edit());
    EXPECT_EQ("0.0 1.0 ", Selected(editor));
    Key(editor, VK_DOWN);
    EXPECT_EQ("0.0 1.0 0.1 1.1 ", Selected(editor));
}

TEST_F(EditorKeysTest, DeleteBlanksTheSelectionAsOneStep) {
    TestEditor &editor = Open(3, 2);
    editor.ClearSelections();
    editor.SelectRange(1, 0, 2, 0);
    Key(editor, VK_DELETE);
    EXPECT_EQ("Title(table,null) src.StartTransaction() src.SetCell(1,0,) src.SetCell(2,0,) src.EndTransaction() "
              "Title(table,null)",
              m_log.Take());
    EXPECT_EQ("", m_source->Text(1, 0));
}

TEST_F(EditorKeysTest, EscapeWithNothingSelectedAsksTheHostToClose) {
    TestEditor &editor = Open(3, 2);
    Key(editor, VK_ESCAPE);
    EXPECT_EQ("273(57602,0)", m_host.TakeMessages());
}

TEST_F(EditorKeysTest, EscapeCancelsASelectionFirst) {
    TestEditor &editor = Open(3, 2);
    editor.SelectRange(0, 0, 2, 1);
    Key(editor, VK_ESCAPE);
    EXPECT_EQ("", m_host.TakeMessages());
    EXPECT_FALSE(editor.IsInMultipleSelection());
}

TEST_F(EditorKeysTest, F6AndControlMAreTheHostsHotKey) {
    TestEditor &editor = Open(3, 2);
    Key(editor, VK_F6);
    EXPECT_EQ("HotKey", m_log.Take());
    Key(editor, 'M');
    EXPECT_EQ("", m_log.Take());
    HeldKeys control({VK_CONTROL});
    Key(editor, 'M');
    EXPECT_EQ("HotKey", m_log.Take());
}

TEST_F(EditorKeysTest, AClickReleasesTheMouseAndClearsASelection) {
    TestEditor &editor = Open(3, 5);
    editor.SelectRange(0, 0, 2, 1);
    PressLeft(editor.Cells(), 5, 50);
    ReleaseLeft(editor.Cells(), 5, 50);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ("cur=(0,2) size=3x5", editor.State());
    EXPECT_FALSE(editor.IsInMultipleSelection());
}

TEST_F(EditorKeysTest, AClickWithShiftExtendsTheSelection) {
    TestEditor &editor = Open(3, 5);
    editor.GotoCell(0, 1);
    HeldKeys shift({VK_SHIFT});
    PressLeft(editor.Cells(), 5, 50);
    EXPECT_EQ("0.1 0.2 ", Selected(editor));
    ReleaseLeft(editor.Cells(), 5, 50);
}

TEST_F(EditorKeysTest, AClickWithShiftAboveAndLeftOfTheAnchorSelectsTheBlockBetween) {
    TestEditor &editor = Open(3, 5);
    for (int col = 0; col < 3; ++col)
        editor.SetColWidth(col, 60);
    editor.GotoCell(2, 2);
    HeldKeys shift({VK_SHIFT});
    PressLeft(editor.Cells(), 65, 18 + 5);
    EXPECT_EQ("1.1 2.1 1.2 2.2 ", Selected(editor));
    ReleaseLeft(editor.Cells(), 65, 18 + 5);
    // The anchor stays where the block began.
    PressLeft(editor.Cells(), 125, 3 * 18 + 5);
    EXPECT_EQ("2.2 2.3 ", Selected(editor));
    ReleaseLeft(editor.Cells(), 125, 3 * 18 + 5);
}

TEST_F(EditorKeysTest, AClickWithShiftAfterAnEditThatEscapeEndedStartsAtTheCellOfTheEdit) {
    TestEditor &editor = Open(3, 5);
    editor.GotoCell(1, 1);
    editor.StartEdit();
    SendKey(editor.Edit(), VK_ESCAPE);
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_DOWN);
    EXPECT_EQ("1.1 1.2 ", Selected(editor));
}

TEST_F(EditorKeysTest, CharactersThatShareTheirNumberWithAnArrowStartTheEdit) {
    for (const char *character : {"(", "&"}) {
        TestEditor &editor = Open(2, 2);
        SendChar(editor.Cells(), static_cast<UINT>(*character));
        ASSERT_NE(nullptr, editor.Edit()) << character;
        EXPECT_EQ(character, WindowText(editor.Edit()));
    }
}

TEST_F(EditorKeysTest, TheNumbersOfTheArrowsOutsideACharacterAreArrows) {
    TestEditor &editor = Open(2, 2);
    for (UINT key : {38u, 40u})
        editor.OnCharDown(&key, 1);
    EXPECT_EQ(nullptr, editor.Edit());
}

TEST_F(EditorKeysTest, TabGoesPastAColumnOfNoWidth) {
    TestEditor &editor = Open(4, 2);
    editor.SetColWidth(1, 0);
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(2,0) size=4x2", editor.State());
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("cur=(0,0) size=4x2", editor.State());
}

TEST_F(EditorKeysTest, DeleteOnThePlaceholderRowDoesNothing) {
    TestEditor &editor = Open(2, 0);
    Key(editor, VK_DELETE);
    editor.SelectColumns(1, 1);
    Key(editor, VK_DELETE);
    EXPECT_EQ(std::string::npos, m_log.Take().find("SetCell"));
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ(0, m_source->GetNumRows());
}

TEST_F(EditorKeysTest, AClickOnTheCurrentCellClearsASelectionAndAHeadingSelection) {
    TestEditor &editor = Open(3, 5);
    editor.SelectRange(0, 0, 2, 1);
    ClickLeft(editor.Cells(), 5, 5);
    EXPECT_EQ("0.0 ", Selected(editor));
    editor.SelectRows(0, 2);
    ClickLeft(editor.Cells(), 5, 5);
    EXPECT_EQ("0,0..0,0 mode=0 anchor=(-1,-1)", editor.Selection());
}

TEST_F(EditorKeysTest, AClickWithShiftOnTheCurrentCellTakesTheBlockBackToIt) {
    TestEditor &editor = Open(3, 5);
    editor.ClearSelections();
    editor.SelectRange(0, 1, 2, 3);
    HeldKeys shift({VK_SHIFT});
    PressLeft(editor.Cells(), 5, 5);
    EXPECT_EQ("0.0 0.1 ", Selected(editor));
    ReleaseLeft(editor.Cells(), 5, 5);
}

} // namespace
