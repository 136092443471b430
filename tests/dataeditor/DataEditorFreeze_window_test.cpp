// Frozen columns and the side heading that shows them, through everything that changes the columns.
#include "DataEditorTest.h"

#include "resources/ResourceIds.h"

namespace {

class DataEditorFreezeTest : public DataEditorTest {
protected:
    void Freeze(TestDataEditor &editor, const char *count) {
        WithDialog act([&](HWND dialog) {
            ::SetDlgItemTextA(dialog, IDC_LOCK_COUNT, count);
            ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
        });
        editor.OnLockColumns();
    }
    // Four fields, 60, 70, 80 and 90 pixels wide, a side heading whose own part is 50, and two of them frozen.
    TestDataEditor &OpenFrozen() {
        TestDataEditor &editor = OpenEditor(4, 3);
        for (int col = 0; col < 4; ++col) {
            editor.SetColWidth(col, 60 + 10 * col);
            editor.Layout()->SetColWidth(col, 60 + 10 * col);
        }
        editor.SetSH_Width(50);
        Freeze(editor, "2");
        Forget();
        return editor;
    }
    // "locked:width" of grid and side heading. The layout's width differs only where it is named too.
    static std::string Frozen(TestDataEditor &editor) {
        std::string all = std::to_string(editor.m_GI.m_lockedCols) + ":" + std::to_string(editor.GetSH_Width());
        const int stored = editor.Layout()->GetWorkingCopy().m_nSideHeadingWidth;
        return stored == editor.GetSH_Width() ? all : all + " stored " + std::to_string(stored);
    }
    static void Show(TestDataEditor &editor, std::initializer_list<UINT> fields) {
        CUIntArray all;
        for (UINT field : fields)
            all.Add(field);
        editor.ReOrderCols(all);
    }
};

TEST_F(DataEditorFreezeTest, HidingAFrozenFieldFreezesTheNextOneAndRecordNumbersKeepTheirRoom) {
    TestDataEditor &editor = OpenFrozen();
    EXPECT_EQ("2:180", Frozen(editor));
    editor.GotoCell(0, 0);
    editor.OnHideCols();
    EXPECT_EQ("2:200", Frozen(editor));
    editor.Undo();
    EXPECT_EQ("2:180", Frozen(editor));
    editor.Redo();
    EXPECT_EQ("2:200", Frozen(editor));
    Freeze(editor, "0");
    EXPECT_EQ("0:50", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, AnotherOrderFitsTheHeadingToTheFieldsThatAreFrozenNow) {
    TestDataEditor &editor = OpenFrozen();
    Show(editor, {3, 2, 0, 1});
    EXPECT_EQ("2:220", Frozen(editor));
    Show(editor, {0, 1});
    EXPECT_EQ("2:180", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, FewerFieldsThanAreFrozenAreAllFrozenUntilTheOthersComeBack) {
    TestDataEditor &editor = OpenFrozen();
    Show(editor, {3});
    EXPECT_EQ("1:140", Frozen(editor));
    Show(editor, {});
    EXPECT_EQ("0:50", Frozen(editor));
    Show(editor, {0, 1, 2, 3});
    EXPECT_EQ("2:180", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, UndoAndRedoOfAFrozenColumnsWidthSizeTheHeadingToo) {
    TestDataEditor &editor = OpenFrozen();
    int width = 100;
    editor.OnCanSizeCol(1);
    editor.SetColWidth(1, width);
    editor.OnColSized(1, &width);
    EXPECT_EQ("2:210", Frozen(editor));
    editor.Undo();
    EXPECT_EQ("2:180", Frozen(editor));
    editor.Redo();
    EXPECT_EQ("2:210", Frozen(editor));
    width = 10;
    editor.OnCanSizeCol(3);
    editor.SetColWidth(3, width);
    editor.OnColSized(3, &width);
    editor.Undo();
    EXPECT_EQ("2:210", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, AFitOfFrozenColumnsSizesTheHeadingAndIsUndone) {
    TestDataEditor &editor = OpenFrozen();
    const auto frozenWidths = [&] {
        int first = 0, second = 0;
        editor.GetColWidth(0, &first);
        editor.GetColWidth(1, &second);
        return first + second;
    };
    m_source->m_rows[0][0] = m_source->m_rows[0][1] = "a text that is a good deal longer than its heading";
    editor.SelectRange(0, 0, 0, 2);
    editor.OnTH_DClicked(0);
    ASSERT_LT(200, frozenWidths());
    EXPECT_EQ("2:" + std::to_string(50 + frozenWidths()), Frozen(editor));
    editor.Undo();
    EXPECT_EQ("2:180", Frozen(editor));
    editor.ClearSelections();
    editor.SelectRange(0, 0, 1, 2);
    editor.OnTH_DClicked(1);
    ASSERT_LT(400, frozenWidths());
    EXPECT_EQ("2:" + std::to_string(50 + frozenWidths()), Frozen(editor));
    editor.Undo();
    EXPECT_EQ("2:180", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, UndoOfTheHeadingsOwnWidthKeepsWhatIsFrozenSince) {
    TestDataEditor &editor = OpenFrozen();
    Freeze(editor, "0");
    editor.OnCanSizeSideHdg();
    editor.SetSH_Width(80);
    editor.OnTopHdgSized(nullptr);
    Freeze(editor, "2");
    EXPECT_EQ("2:210", Frozen(editor));
    editor.Undo();
    EXPECT_EQ("2:180", Frozen(editor));
    editor.Redo();
    EXPECT_EQ("2:210", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, AViewThatIsResetKeepsTheRoomOfTheRecordNumbers) {
    TestDataEditor &editor = OpenFrozen();
    editor.ResetFileView(true);
    int first = 0, second = 0;
    editor.GetColWidth(0, &first);
    editor.GetColWidth(1, &second);
    ASSERT_NE(130, first + second);
    EXPECT_EQ("2:" + std::to_string(50 + first + second), Frozen(editor));
}

TEST_F(DataEditorFreezeTest, TheNextTableDoesNotInheritTheRoomOfFrozenColumns) {
    TestDataEditor &editor = OpenFrozen();
    Source(2, 2);
    ASSERT_TRUE(editor.LoadData("other", nullptr, kNoFilter, kEditNormal, nullptr));
    EXPECT_EQ("0:50", Frozen(editor));
}

TEST_F(DataEditorFreezeTest, AViewWithFewerColumnsThanAreFrozenIsReopenedAsItWasClosed) {
    const std::string path = MakeFile("t.dat");
    TestDataEditor &editor = MakeEditor();
    const auto open = [&] {
        Source(4, 2);
        EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kNoFilter, kEditNormal, nullptr));
    };
    open();
    const int own = editor.GetSH_Width();
    Freeze(editor, "3");
    Show(editor, {0, 1});
    open();
    Show(editor, {0, 1, 2, 3});
    open();
    int frozen = 0;
    for (int col = 0; col < editor.m_GI.m_lockedCols; ++col) {
        int width = 0;
        editor.GetColWidth(col, &width);
        frozen += width;
    }
    EXPECT_EQ("2:" + std::to_string(own + frozen), Frozen(editor));
}

} // namespace
