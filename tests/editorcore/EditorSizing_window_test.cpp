// Sizes by mouse and by double click, with their undo.
#include "EditorWindowTest.h"

#include "grid/UGEllipsisType.h"

namespace {

class EditorSizingTest : public EditorWindowTest {
protected:
    // Drags the edge of a heading from one pixel to another.
    void Drag(HWND window, POINT from, POINT to) {
        MoveMouse(window, from.x, from.y, 0);
        PressLeft(window, from.x, from.y);
        MoveMouse(window, to.x, to.y, MK_LBUTTON);
        ReleaseLeft(window, to.x, to.y);
    }
    std::string Headings(TestEditor &editor) {
        return std::to_string(editor.GetSH_Width()) + "x" + std::to_string(editor.GetTH_Height());
    }
    // Makes all columns as wide.
    void SetWidths(TestEditor &editor, int width) {
        for (int col = 0; col < editor.GetNumberCols(); ++col) {
            editor.SetColWidth(col, width);
            editor.Layout()->SetColWidth(col, width);
        }
    }
};

TEST_F(EditorSizingTest, AColumnDraggedWiderIsUndoneInGridAndLayout) {
    TestEditor &editor = Open(3, 3);
    SetWidths(editor, 80);
    Drag(editor.TopHeading(), {79, 5}, {109, 5});
    EXPECT_EQ("110,80,80", editor.Widths());
    EXPECT_EQ("110,80,80", editor.FieldWidths());
    editor.Undo();
    EXPECT_EQ("80,80,80", editor.Widths());
    EXPECT_EQ("80,80,80", editor.FieldWidths());
    editor.Redo();
    EXPECT_EQ("110,80,80", editor.Widths());
    EXPECT_EQ("110,80,80", editor.FieldWidths());
}

TEST_F(EditorSizingTest, TwoUndoLevelsRestoreBothWidths) {
    TestEditor &editor = Open(3, 3);
    SetWidths(editor, 80);
    editor.SetColWidth(0, 90);
    editor.OnChangeColWidth(0, 80, 90);
    editor.SetColWidth(2, 70);
    editor.OnChangeColWidth(2, 80, 70);
    editor.Undo();
    EXPECT_EQ("90,80,80|90,80,80", editor.Widths() + "|" + editor.FieldWidths());
    editor.Undo();
    EXPECT_EQ("80,80,80|80,80,80", editor.Widths() + "|" + editor.FieldWidths());
}

TEST_F(EditorSizingTest, ARowDraggedHigherSizesAllRowsAndIsUndone) {
    TestEditor &editor = Open(3, 3);
    int before = 0, height = 0;
    editor.GetRowHeight(0, &before);
    Drag(editor.SideHeading(), {5, before - 1}, {5, before + 11});
    editor.GetRowHeight(2, &height);
    EXPECT_EQ(before + 12, height);
    editor.Undo();
    editor.GetRowHeight(2, &height);
    EXPECT_EQ(before, height);
}

TEST_F(EditorSizingTest, HeadingsDraggedAtTheCornerAreUndoneTogether) {
    TestEditor &editor = Open(3, 3);
    editor.SetTH_Height(20);
    editor.SetSH_Width(50);
    Drag(editor.Corner(), {47, 17}, {67, 27});
    EXPECT_EQ("67x27", Headings(editor));
    editor.Undo();
    EXPECT_EQ("50x20", Headings(editor));
    editor.Redo();
    EXPECT_EQ("67x27", Headings(editor));
}

TEST_F(EditorSizingTest, UndoOfTheHeadingsHeightLeavesTheirWidth) {
    TestEditor &editor = Open(3, 3);
    editor.SetTH_Height(20);
    editor.SetSH_Width(50);
    editor.OnCanSizeCol(0); // what another drag noted
    Drag(editor.Corner(), {10, 17}, {10, 37});
    EXPECT_EQ("50x37", Headings(editor));
    editor.Undo();
    EXPECT_EQ("50x20", Headings(editor));
}

TEST_F(EditorSizingTest, AHeadingDraggedToZeroStaysAtOne) {
    TestEditor &editor = Open(3, 3);
    int size = 0;
    EXPECT_EQ(1, editor.OnTopHdgSizing(&size));
    EXPECT_EQ(1, size);
    size = -5;
    EXPECT_EQ(1, editor.OnSideHdgSizing(&size));
    EXPECT_EQ(1, size);
}

TEST_F(EditorSizingTest, TheNotificationOfTheTopHeadingRecordsBothHeadings) {
    TestEditor &editor = Open(3, 3);
    editor.SetTH_Height(20);
    editor.OnCanSizeTopHdg();
    editor.SetTH_Height(44);
    int height = 44;
    EXPECT_EQ(1, editor.OnTopHdgSized(&height));
    editor.Undo();
    EXPECT_EQ(20, editor.GetTH_Height());
}

TEST_F(EditorSizingTest, WithoutDepthTheLayoutFollowsAndNothingCanBeUndone) {
    m_service.m_options.m_undoLevels = 0;
    TestEditor &editor = Open(3, 3);
    SetWidths(editor, 80);
    editor.OnChangeColWidth(1, 80, 66);
    editor.OnChangeRowHeight(0, 18, 30);
    editor.OnResizeHeadings(50, 60, 20, 30);
    EXPECT_EQ("80,66,80", editor.FieldWidths());
    EXPECT_FALSE(editor.CanUndo());
}

// --- Fitting

TEST_F(EditorSizingTest, ADoubleClickFitsTheColumnToItsCellsAndIsUndone) {
    TestEditor &editor = Open(3, 3);
    m_source->m_rows[1][1] = "a text that is a good deal longer than the heading of its column";
    SetWidths(editor, 80);
    editor.SelectColumns(1, 1);
    editor.OnTH_DClicked(1);
    int fitted = 0;
    editor.GetColWidth(1, &fitted);
    EXPECT_GT(fitted, 200);
    EXPECT_EQ("80," + std::to_string(fitted) + ",80", editor.FieldWidths());
    editor.Undo();
    EXPECT_EQ("80,80,80", editor.Widths());
}

TEST_F(EditorSizingTest, AFitGivesTheHeadingItsMinimum) {
    TestEditor &editor = Open(1, 1);
    m_source->m_rows[0][0] = "";
    editor.CUGCtrl::QuickSetText(0, -1, "WWWWWWWWWWWW");
    editor.SelectColumns(0, 0);
    editor.OnTH_DClicked(0);
    CDC *dc = editor.GetTopHeadingDC();
    TEXTMETRICA metrics;
    ::GetTextMetricsA(dc->GetSafeHdc(), &metrics);
    editor.ReleaseTopHeadingDC(dc);
    EXPECT_EQ(std::to_string(12 * metrics.tmMaxCharWidth), editor.Widths());
}

TEST_F(EditorSizingTest, AValidatingColumnGetsRoomForItsButton) {
    TestEditor &editor = Open(2, 2);
    m_source->m_rows[0][0] = m_source->m_rows[0][1] = "a text that is a good deal longer than its heading";
    CUGEllipsisType type;
    type.SetID(editor.GetNewCellTypeId(2));
    editor.AddCellType(&type);
    editor.SelectColumns(0, 0);
    editor.OnTH_DClicked(0);
    editor.SetCellType("F1", type.GetID());
    editor.SelectColumns(1, 1);
    editor.OnTH_DClicked(1);
    int plain = 0, validating = 0;
    editor.GetColWidth(0, &plain);
    editor.GetColWidth(1, &validating);
    EXPECT_EQ(plain + ::GetSystemMetrics(SM_CXVSCROLL), validating);
}

TEST_F(EditorSizingTest, SeveralColumnsAreFittedUpToTheClickedOneAndUndoSelectsThem) {
    TestEditor &editor = Open(4, 3);
    for (int col = 0; col < 4; ++col)
        m_source->m_rows[0][col] = "a text that is a good deal longer than its heading";
    SetWidths(editor, 80);
    editor.GotoCell(2, 1);
    editor.SelectColumns(1, 3);
    editor.OnTH_DClicked(2);
    int fitted = 0;
    editor.GetColWidth(1, &fitted);
    EXPECT_GT(fitted, 200);
    const std::string wide = std::to_string(fitted);
    EXPECT_EQ("80," + wide + "," + wide + ",80", editor.Widths()); // behind the clicked one they keep theirs
    EXPECT_EQ(editor.Widths(), editor.FieldWidths());
    editor.ClearSelections();
    editor.Undo();
    EXPECT_EQ("80,80,80,80|80,80,80,80", editor.Widths() + "|" + editor.FieldWidths());
    EXPECT_EQ("1,0..3,2 mode=1 anchor=(1,-1)", editor.Selection());
    EXPECT_EQ("cur=(2,0) size=4x3", editor.State());
    editor.ClearSelections();
    editor.Redo();
    EXPECT_EQ("80," + wide + "," + wide + ",80", editor.Widths());
    EXPECT_EQ("1,0..3,2 mode=1 anchor=(1,-1)", editor.Selection());
}

TEST_F(EditorSizingTest, OnlyTheFirstHundredRowsAreMeasured) {
    TestEditor &editor = Open(1, 150);
    m_source->m_rows[120][0] = std::string(60, 'W');
    editor.SelectColumns(0, 0);
    editor.OnTH_DClicked(0);
    int width = 0;
    editor.GetColWidth(0, &width);
    EXPECT_LT(width, 200);
}

TEST_F(EditorSizingTest, ADoubleClickRightOfTheColumnsDoesNothing) {
    TestEditor &editor = Open(2, 2);
    const std::string before = editor.Widths();
    editor.OnTH_DClicked(-1);
    EXPECT_EQ(before, editor.Widths());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorSizingTest, ValidatingColumnsAfterTheClickedOneKeepTheirWidths) {
    TestEditor &editor = Open(3, 2);
    CUGEllipsisType type;
    type.SetID(editor.GetNewCellTypeId(2));
    editor.AddCellType(&type);
    editor.SetCellType("F2", type.GetID());
    SetWidths(editor, 120);
    editor.SelectColumns(0, 2);
    editor.OnTH_DClicked(1);
    EXPECT_EQ(",120", editor.Widths().substr(editor.Widths().rfind(',')));
}

// --- What the commands of the history do

TEST_F(EditorSizingTest, TheWidthPairSizesTheColumnInGridAndLayout) {
    TestEditor &editor = Open(3, 3);
    SetWidths(editor, 80);
    editor.ReOrderCols(Fields({2, 0})); // column 1 shows field 0
    CEditorCore::SizingCommand command(1, 40, 90, &editor, &CEditorCore::ExecChangeColWidth,
                                       &CEditorCore::UnExecChangeColWidth);
    EXPECT_TRUE(editor.ExecChangeColWidth(&command));
    EXPECT_EQ("80,90|90,80,80", editor.Widths() + "|" + editor.FieldWidths());
    EXPECT_TRUE(editor.UnExecChangeColWidth(&command));
    EXPECT_EQ("80,40|40,80,80", editor.Widths() + "|" + editor.FieldWidths());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorSizingTest, TheHeightPairSizesAllRowsInGridAndLayout) {
    TestEditor &editor = Open(3, 3);
    const auto heights = [&] {
        int height = 0;
        editor.GetRowHeight(2, &height);
        return std::to_string(height) + " " + std::to_string(editor.Layout()->GetWorkingCopy().m_nRowHeight);
    };
    CEditorCore::SizingCommand command(0, 21, 34, &editor, &CEditorCore::ExecChangeRowHeight,
                                       &CEditorCore::UnExecChangeRowHeight);
    EXPECT_TRUE(editor.ExecChangeRowHeight(&command));
    EXPECT_EQ("34 34", heights());
    EXPECT_TRUE(editor.UnExecChangeRowHeight(&command));
    EXPECT_EQ("21 21", heights());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorSizingTest, TheHeadingsPairSizesBothHeadingsInGridAndLayout) {
    TestEditor &editor = Open(3, 3);
    const auto headings = [&] {
        const CTableInfo &info = editor.Layout()->GetWorkingCopy();
        return Headings(editor) + " " + std::to_string(info.m_nSideHeadingWidth) + "x" +
               std::to_string(info.m_nTopHeadingHeight);
    };
    CEditorCore::HeadingsCommand command(41, 52, 23, 34, &editor, &CEditorCore::ExecResizeHeadings,
                                         &CEditorCore::UnExecResizeHeadings);
    EXPECT_TRUE(editor.ExecResizeHeadings(&command));
    EXPECT_EQ("52x34 52x34", headings());
    EXPECT_TRUE(editor.UnExecResizeHeadings(&command));
    EXPECT_EQ("41x23 41x23", headings());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorSizingTest, ThePairOfSeveralWidthsSizesTheColumnsAndSelectsThem) {
    TestEditor &editor = Open(4, 3);
    SetWidths(editor, 80);
    editor.SelectRows(1, 1);
    CEditorCore::MultiSizingCommand command(1, 3, &editor, &CEditorCore::ExecChangeMultColWidths,
                                            &CEditorCore::UnExecChangeMultColWidths);
    for (int i = 0; i < 2; ++i) {
        command.m_OldWidths.Add(40 + i);
        command.m_NewWidths.Add(90 + i);
    }
    const auto state = [&] { return editor.Widths() + "|" + editor.FieldWidths() + "|" + editor.Selection(); };
    EXPECT_TRUE(editor.ExecChangeMultColWidths(&command));
    EXPECT_EQ("80,90,91,80|80,90,91,80|1,0..2,2 mode=1 anchor=(1,-1)", state());
    EXPECT_EQ("cur=(3,0) size=4x3", editor.State());
    editor.GotoCell(0, 2);
    editor.SelectRows(1, 1);
    EXPECT_TRUE(editor.UnExecChangeMultColWidths(&command));
    EXPECT_EQ("80,40,41,80|80,40,41,80|1,0..2,2 mode=1 anchor=(1,-1)", state());
    EXPECT_EQ("cur=(3,0) size=4x3", editor.State());
    EXPECT_FALSE(editor.CanUndo());
}

// The grid has the new widths by then.
TEST_F(EditorSizingTest, WidthsOfSeveralColumnsGoIntoTheLayoutAndAreOneStepOfTheHistory) {
    for (int levels : {5, 0}) {
        m_service.m_options.m_undoLevels = levels;
        TestEditor &editor = Open(4, 3);
        SetWidths(editor, 80);
        editor.GotoCell(2, 1);
        CArray<int, int> before, after;
        for (int i = 0; i < 2; ++i) {
            before.Add(80);
            after.Add(60 + i);
            editor.SetColWidth(1 + i, 60 + i);
        }
        editor.OnChangeMultColWidths(1, 2, before, after);
        EXPECT_EQ("80,60,61,80|80,60,61,80", editor.Widths() + "|" + editor.FieldWidths()) << levels;
        EXPECT_EQ(levels > 0, editor.CanUndo());
        if (levels == 0)
            continue;
        editor.GotoCell(0, 0);
        editor.Undo();
        EXPECT_EQ("80,80,80,80|80,80,80,80", editor.Widths() + "|" + editor.FieldWidths());
        EXPECT_EQ("cur=(2,0) size=4x3", editor.State()); // the column that was current then
        EXPECT_FALSE(editor.CanUndo());
        editor.Redo();
        EXPECT_EQ("80,60,61,80|80,60,61,80", editor.Widths() + "|" + editor.FieldWidths());
    }
}

} // namespace
