// The view of the columns: hidden, ordered, shown again, undone.
#include "EditorWindowTest.h"

#include "lookup/ValidatingCellType.h"
#include "grid/UGEllipsisType.h"

namespace {

class EditorColumnsTest : public EditorWindowTest {
protected:
    static void Fill(CUIntArray &array, std::initializer_list<UINT> values) {
        array.RemoveAll();
        for (UINT value : values)
            array.Add(value);
    }
    void Select(TestEditor &editor, int left, int right) {
        editor.ClearSelections();
        editor.SelectRange(left, 0, right, 0);
    }
    static std::string Join(const CStringArray &names) {
        std::string all;
        for (int i = 0; i < names.GetSize(); ++i)
            all += (i > 0 ? "," : "") + std::string(names.GetAt(i));
        return all;
    }
};

TEST_F(EditorColumnsTest, HidingTakesTheSelectedColumnsAndUndoingPutsThemBack) {
    TestEditor &editor = Open(5, 3);
    Select(editor, 1, 2);
    editor.OnHideCols();
    EXPECT_EQ("0,3,4 of 0,1,2,3,4", editor.Order());
    EXPECT_EQ(-1, editor.GetGridField(1));
    EXPECT_EQ(3, editor.GetDataSrcField(1));
    EXPECT_EQ("1051(0,0) 1051(0,0)", m_host.TakeMessages());
    editor.Undo();
    EXPECT_EQ("0,1,2,3,4 of 0,1,2,3,4", editor.Order());
    editor.Redo();
    EXPECT_EQ("0,3,4 of 0,1,2,3,4", editor.Order());
}

TEST_F(EditorColumnsTest, HidingColumnsOneAndThreeInOneGoRemovesTheRightTwo) {
    TestEditor &editor = Open(5, 3);
    CUIntArray cols;
    Fill(cols, {1, 3});
    editor.HideCols(cols);
    EXPECT_EQ("0,2,4 of 0,1,2,3,4", editor.Order());
    CUIntArray fields;
    Fill(fields, {1, 3});
    editor.UnHideCols(cols, fields);
    EXPECT_EQ("0,1,2,3,4 of 0,1,2,3,4", editor.Order());
}

TEST_F(EditorColumnsTest, WithNoSelectionTheCurrentColumnIsHidden) {
    TestEditor &editor = Open(3, 3);
    editor.GotoCell(1, 1);
    editor.ClearSelections();
    editor.OnHideCols();
    EXPECT_EQ("0,2 of 0,1,2", editor.Order());
}

TEST_F(EditorColumnsTest, HidingAllFieldsIsAllowedAndThenNoneCanBeHidden) {
    TestEditor &editor = Open(3, 3);
    EXPECT_TRUE(editor.CanHideCols());
    Select(editor, 0, 2);
    editor.OnHideCols();
    EXPECT_EQ(" of 0,1,2", editor.Order());
    EXPECT_FALSE(editor.CanHideCols());
    Forget();
    editor.OnHideCols();
    EXPECT_EQ("", m_host.TakeMessages());
    editor.Undo();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
}

TEST_F(EditorColumnsTest, AHiddenFieldKeepsItsWidth) {
    TestEditor &editor = Open(3, 3);
    editor.SetColWidth(1, 77);
    editor.OnChangeColWidth(1, 100, 77);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    editor.SetColWidth(1, 55);
    editor.OnChangeColWidth(1, 100, 55); // its neighbour, which stands there now
    CUIntArray all;
    Fill(all, {0, 1, 2});
    editor.ReOrderCols(all);
    EXPECT_EQ("77,55", editor.Widths().substr(editor.Widths().find(',') + 1));
}

TEST_F(EditorColumnsTest, WithoutDepthNoCommandIsKept) {
    m_service.m_options.m_undoLevels = 0;
    TestEditor &editor = Open(3, 3);
    editor.OnHideCols();
    EXPECT_EQ("1,2 of 0,1,2", editor.Order());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorColumnsTest, HiddenFieldsStayAtTheirPositionsWhileTheShownOnesMove) {
    TestEditor &editor = Open(5, 3);
    CUIntArray fields;
    Fill(fields, {4, 2, 0});
    editor.ReOrderCols(fields);
    EXPECT_EQ("4,2,0 of 4,1,2,3,0", editor.Order());
}

TEST_F(EditorColumnsTest, MoreFieldsThanTheSourceHasChangeNoOrder) {
    TestEditor &editor = Open(2, 3);
    CUIntArray fields, positions;
    Fill(fields, {1, 0, 1});
    editor.Layout()->SetDisplayOrder(fields, 2);
    editor.GetVirtualColPostions(positions);
    EXPECT_EQ(0u, positions.GetAt(0));
}

TEST_F(EditorColumnsTest, OrderingByNamesIgnoresCaseAndIsUndone) {
    TestEditor &editor = Open(3, 3);
    CStringArray names;
    for (const char *name : {"f2", "F0", "f1"})
        names.Add(name);
    editor.OnOrderCols(&names);
    EXPECT_EQ("2,0,1 of 2,0,1", editor.Order());
    editor.Undo();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
}

TEST_F(EditorColumnsTest, AnUnknownNameShowsFieldZeroInItsPlace) {
    TestEditor &editor = Open(3, 3);
    CStringArray names;
    for (const char *name : {"F2", "nobody", "F1"})
        names.Add(name);
    editor.OnOrderCols(&names);
    EXPECT_EQ("2,0,1", editor.Order().substr(0, 5));
}

TEST_F(EditorColumnsTest, TheHostIsAskedForAnOrderAndMayCancel) {
    TestEditor &editor = Open(3, 3);
    std::string offered;
    m_service.m_onOrder = [&](CStringArray *names) {
        offered = Join(*names);
        names->RemoveAt(0);
        names->Add("F0");
        return true;
    };
    editor.OnOrderCols(nullptr);
    EXPECT_EQ("F0,F1,F2", offered);
    EXPECT_EQ("1,2,0 of 1,2,0", editor.Order());
    m_service.m_onOrder = [](CStringArray *) { return false; };
    editor.OnOrderCols(nullptr);
    editor.Undo();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
    EXPECT_FALSE(editor.CanUndo());
}

TEST_F(EditorColumnsTest, TheHostChoosesWhatIsShownAndOneUndoTakesItBack) {
    TestEditor &editor = Open(3, 3);
    CUIntArray fields;
    Fill(fields, {2, 0});
    editor.ReOrderCols(fields);
    std::string offered;
    m_service.m_onVisibility = [&](CStringArray &names, CArray<bool, bool> &shown) {
        for (int i = 0; i < names.GetSize(); ++i)
            offered += std::string(names.GetAt(i)) + (shown.GetAt(i) ? "+ " : "- ");
        Fill(fields, {2, 1, 0});
        editor.ReOrderCols(fields);
    };
    editor.OnUnHideCols();
    EXPECT_EQ("F2+ F1- F0+ ", offered);
    EXPECT_EQ("2,1,0 of 2,1,0", editor.Order());
    editor.Undo();
    EXPECT_EQ("2,0 of 2,1,0", editor.Order());
}

TEST_F(EditorColumnsTest, AChoiceThatChangesNothingLeavesNoUndo) {
    TestEditor &editor = Open(3, 3);
    m_service.m_onVisibility = [](CStringArray &, CArray<bool, bool> &) {};
    editor.OnUnHideCols();
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
}

TEST_F(EditorColumnsTest, AFieldIsHiddenByNameIgnoringCaseAndANameOfNoFieldIs) {
    TestEditor &editor = Open(3, 3);
    editor.GotoCell(1, 0);
    editor.OnHideCols();
    EXPECT_TRUE(editor.IsFieldHidden("f1"));
    EXPECT_FALSE(editor.IsFieldHidden("f2"));
    EXPECT_TRUE(editor.IsFieldHidden("nobody"));
    EXPECT_FALSE(Make().IsFieldHidden("f1")); // no source at all
}

TEST_F(EditorColumnsTest, TheNamesOfWhatIsShown) {
    TestEditor &editor = Open(3, 3);
    CUIntArray fields;
    Fill(fields, {2, 0});
    editor.DisplayCols(fields);
    CStringArray names;
    editor.GetDisplayColNames(names);
    EXPECT_EQ("F2,F0", Join(names));
    EXPECT_EQ("1051(0,0)", m_host.TakeMessages());
    EXPECT_EQ("TextAlignment", m_log.Take());
}

TEST_F(EditorColumnsTest, CellTypesFollowTheirFields) {
    TestEditor &editor = Open(3, 3);
    CUGEllipsisType ellipsis;
    const long id = editor.AddCellType(&ellipsis);
    editor.SetCellType("F2", static_cast<int>(id));
    CUIntArray fields;
    Fill(fields, {2, 0, 1});
    editor.ReOrderCols(fields);
    EXPECT_EQ(id, editor.GetColumnCellType(0));
    EXPECT_EQ(-1, editor.GetColumnCellType(2)); // as the grid default has none
    editor.RemoveCellType(id);
}

TEST_F(EditorColumnsTest, ResettingTheOrderTouchesTheTranslationsAlone) {
    TestEditor &editor = Open(3, 3);
    CUIntArray fields;
    Fill(fields, {2, 0, 1});
    editor.ReOrderCols(fields);
    editor.ResetFieldsOrder();
    EXPECT_EQ(0, editor.GetDataColNumber(0));
    EXPECT_EQ(2, editor.GetDataSrcField(0));
}

TEST_F(EditorColumnsTest, CellsAreReadAndWrittenThroughTheOrder) {
    TestEditor &editor = Open(3, 2);
    CUIntArray fields;
    Fill(fields, {2, 0});
    editor.ReOrderCols(fields);
    CString text;
    ASSERT_TRUE(editor.GetCellText(0, 1, &text));
    EXPECT_STREQ("2.1", text);
    editor.QuickSetText(0, 1, "new");
    EXPECT_EQ("new", m_source->Text(2, 1));
}

TEST_F(EditorColumnsTest, ExportedPairsDoWhatTheOrderPairDoes) {
    TestEditor &editor = Open(3, 2);
    CEditorCore::ReorderCommand command(&editor, &CEditorCore::ExecUnHideCols, &CEditorCore::UnExecUnHideCols);
    Fill(command.m_Before, {0, 1, 2});
    Fill(command.m_After, {2, 1});
    EXPECT_TRUE(command.Exec());
    EXPECT_EQ("2,1 of 0,2,1", editor.Order());
    EXPECT_TRUE(command.UnExec());
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
}

// --- Cell types that validate

class CheckingType : public CUGEllipsisType, public COrvaneValidatingCellType {
public:
    explicit CheckingType(CallLog *log) : m_log(log) {}
    void OnSetText(int col, long row, const char *text) override {
        m_log->Note("SetText(" + std::to_string(col) + "," + std::to_string(row) + "," + (text ? text : "null") + ")");
    }
    bool IsTextValid(const char *text) override { return std::string(text) != "bad"; }
    bool DoInvalidCodeAction(int col, long row, const char *text, bool dataSource) override {
        m_log->Note("Invalid(" + std::to_string(col) + "," + std::to_string(row) + "," + text + "," +
                    std::to_string(dataSource) + ")");
        return true;
    }

private:
    CallLog *m_log;
};

class EditorValidatingTest : public EditorColumnsTest {
protected:
    TestEditor &OpenWithType() {
        TestEditor &editor = Open(3, 2);
        m_type.SetID(editor.GetNewCellTypeId(2));
        editor.AddCellType(&m_type);
        editor.SetCellType("F1", m_type.GetID());
        Forget();
        return editor;
    }
    CheckingType m_type{&m_log};
};

TEST_F(EditorValidatingTest, QuickSetTextTellsTheTypeOfTheColumn) {
    TestEditor &editor = OpenWithType();
    editor.QuickSetText(1, 0, "x");
    EXPECT_EQ("src.SetCell(1,0,x) SetText(1,0,null)", m_log.Take());
    editor.QuickSetText(0, 0, "x");
    EXPECT_EQ("src.SetCell(0,0,x)", m_log.Take());
}

TEST_F(EditorValidatingTest, AnInvalidTextPastTheGridIsWrittenBeforeItIsChecked) {
    TestEditor &editor = OpenWithType();
    CUGCell cell;
    cell.SetText("bad");
    EXPECT_EQ(GRID_SUCCESS, editor.SetDataSrcCell(m_source, &cell, 1, 1));
    EXPECT_EQ("src.SetCell(1,1,bad) Invalid(1,1,bad,1)", m_log.Take());
    EXPECT_EQ("bad", m_source->Text(1, 1));
    cell.SetText("good");
    editor.SetDataSrcCell(m_source, &cell, 1, 1);
    EXPECT_EQ("src.SetCell(1,1,good)", m_log.Take());
    m_source->m_results["SetCell"] = GRID_ERROR;
    cell.SetText("bad");
    EXPECT_EQ(GRID_ERROR, editor.SetDataSrcCell(m_source, &cell, 1, 1));
    EXPECT_EQ("src.SetCell(1,1,bad)", m_log.Take());
}

TEST_F(EditorColumnsTest, ASelectionPastTheLastColumnHidesOnlyColumnsThatAreThere) {
    TestEditor &editor = Open(3, 3);
    Select(editor, 1, 7);
    editor.OnHideCols();
    EXPECT_EQ("0 of 0,1,2", editor.Order());
    editor.Undo();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
    editor.Redo();
    EXPECT_EQ("0 of 0,1,2", editor.Order());
}

TEST_F(EditorColumnsTest, ASelectionGoesWithTheColumnsThatTheHostsDialogHides) {
    TestEditor &editor = Open(4, 3);
    Select(editor, 2, 3);
    m_service.m_onVisibility = [&](CStringArray &, CArray<bool, bool> &) {
        CUIntArray fields;
        Fill(fields, {0, 1});
        editor.ReOrderCols(fields);
    };
    editor.OnUnHideCols();
    EXPECT_FALSE(editor.IsInMultipleSelection());
    editor.OnHideCols();
    editor.Undo();
    editor.Undo();
    EXPECT_EQ("0,1,2,3 of 0,1,2,3", editor.Order());
}

TEST_F(EditorColumnsTest, EveryFieldIsNamedInItsPositionWithWhetherItIsShown) {
    TestEditor &editor = Open(4, 2);
    CUIntArray fields;
    Fill(fields, {3, 0, 2});
    editor.ReOrderCols(fields);
    CStringArray names;
    CArray<bool, bool> shown;
    names.Add("old");
    shown.Add(true);
    const auto info = [&](TestEditor &of) {
        of.GetVirtualColInfo(names, shown);
        std::string all;
        for (int i = 0; i < names.GetSize() && i < shown.GetSize(); ++i)
            all += std::string(names.GetAt(i)) + (shown.GetAt(i) ? "+ " : "- ");
        return all + std::to_string(names.GetSize()) + " " + std::to_string(shown.GetSize());
    };
    EXPECT_EQ("F3+ F1- F0+ F2+ 4 4", info(editor));
    EXPECT_EQ("0 0", info(Make())); // of no source
}

TEST_F(EditorColumnsTest, TheOrderPairShowsEachOfItsOrdersInGridAndLayout) {
    TestEditor &editor = Open(4, 2);
    CEditorCore::ReorderCommand command(&editor, &CEditorCore::ExecOrderCols, &CEditorCore::UnExecOrderCols);
    Fill(command.m_Before, {0, 2});
    Fill(command.m_After, {3, 1, 0});
    EXPECT_TRUE(editor.ExecOrderCols(&command));
    EXPECT_EQ("3,1,0 of 3,1,2,0", editor.Order());
    EXPECT_TRUE(editor.UnExecOrderCols(&command));
    EXPECT_EQ("0,2 of 3,1,0,2", editor.Order());
    EXPECT_FALSE(editor.CanUndo()); // neither is entered in the history
}

TEST_F(EditorColumnsTest, TheHidingPairTakesColumnsOutAndPutsTheirFieldsBackThere) {
    TestEditor &editor = Open(5, 2);
    CEditorCore::ReorderCommand command(&editor, &CEditorCore::ExecHideCols, &CEditorCore::UnExecHideCols);
    Fill(command.m_Before, {1, 3});
    Fill(command.m_After, {1, 3});
    EXPECT_TRUE(editor.ExecHideCols(&command));
    EXPECT_EQ("0,2,4 of 0,1,2,3,4", editor.Order());
    EXPECT_TRUE(editor.UnExecHideCols(&command));
    EXPECT_EQ("0,1,2,3,4 of 0,1,2,3,4", editor.Order());
    EXPECT_FALSE(editor.CanUndo());
}

} // namespace
