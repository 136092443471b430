// The layout on its way to the grid and back.
#include "EditorWindowTest.h"

#include "MemoryFile.h"

namespace {

class EditorLayoutWindowTest : public EditorWindowTest {
protected:
    // An editor of a table whose layout was stored at an earlier close.
    TestEditor &OpenStored(int fields, long rows) {
        const std::string path = MakeFile("t.dat");
        TestEditor &editor = Make();
        for (int i = 0; i < 2; ++i) {
            editor.CloseDataSource(false);
            m_source = Source(fields, rows);
            EXPECT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
        }
        EXPECT_TRUE(editor.Layout()->IsTableFound());
        Forget();
        return editor;
    }
    // Row height, top heading, side heading of the grid.
    static std::string Sizes(TestEditor &editor) {
        int height = 0;
        editor.GetRowHeight(1, &height);
        return std::to_string(height) + " " + std::to_string(editor.GetTH_Height()) + " " +
               std::to_string(editor.GetSH_Width());
    }
    static std::string Sizes(const CTableInfo &info) {
        return std::to_string(info.m_nRowHeight) + " " + std::to_string(info.m_nTopHeadingHeight) + " " +
               std::to_string(info.m_nSideHeadingWidth);
    }
    // Four fields, of which the record shows two, in sizes of its own.
    static void Arrange(CEditorLayout *layout) {
        CUIntArray fields;
        fields.Add(3);
        fields.Add(1);
        layout->SetDisplayOrder(fields, 4);
        layout->SetColWidth(0, 70);
        layout->SetColWidth(1, 90);
        layout->SetRowHeight(25);
        layout->SetTopHeadingHeight(33);
        layout->SetSideHeadingWidth(66);
    }
};

TEST_F(EditorLayoutWindowTest, AStoredRecordIsShownWithItsFieldsAndSizes) {
    TestEditor &editor = OpenStored(4, 3);
    Arrange(editor.Layout());
    m_source->m_rows.resize(5, m_source->m_rows.front());
    EXPECT_TRUE(editor.Layout()->ApplyToGrid(m_source));
    EXPECT_EQ("3,1 of 0,3,2,1", editor.Order());
    EXPECT_EQ("70,90", editor.Widths());
    EXPECT_EQ("25 33 66", Sizes(editor));
    EXPECT_EQ("cur=(0,0) size=2x5", editor.State());
}

TEST_F(EditorLayoutWindowTest, ARecordThatWasNotStoredIsNotShown) {
    TestEditor &editor = Open(4, 3);
    const std::string sizes = Sizes(editor), widths = editor.Widths();
    Arrange(editor.Layout());
    EXPECT_FALSE(editor.Layout()->ApplyToGrid(m_source));
    EXPECT_EQ(sizes + " " + widths, Sizes(editor) + " " + editor.Widths());
}

TEST_F(EditorLayoutWindowTest, OneFieldMoreThrowsTheRecordAway) {
    TestEditor &editor = OpenStored(4, 3);
    const std::string sizes = Sizes(editor), widths = editor.Widths();
    Arrange(editor.Layout());
    m_source->m_fields.push_back("NEW");
    EXPECT_FALSE(editor.Layout()->ApplyToGrid(m_source));
    EXPECT_EQ(sizes + " " + widths, Sizes(editor) + " " + editor.Widths());
}

TEST_F(EditorLayoutWindowTest, ARecordOfNoFieldsEmptiesTheGridAndItself) {
    TestEditor &editor = Open(0, 0);
    MemoryFile file(Bytes("02 00 00 00  00  01 00 00 00  00  00 00  00 00  00 00  00 00  12 00 14 00 32 00"));
    CArchive archive(&file, CArchive::load);
    editor.Layout()->Serialize(archive);
    ASSERT_TRUE(editor.Layout()->IsTableFound());
    editor.CUGCtrl::SetNumberRows(2);
    editor.SetNumberCols(2);
    EXPECT_TRUE(editor.Layout()->ApplyToGrid(m_source));
    EXPECT_EQ("0x0", editor.State().substr(editor.State().rfind('=') + 1));
    EXPECT_FALSE(editor.Layout()->IsTableFound());
    EXPECT_EQ("0 0 0", Sizes(editor.Layout()->GetWorkingCopy()));
}

TEST_F(EditorLayoutWindowTest, ACaptureTakesTheGridsSizesAndNumbersItsColumns) {
    TestEditor &editor = Open(4, 3);
    Arrange(editor.Layout());
    editor.SetNumberCols(3);
    for (int col = 0; col < 3; ++col)
        editor.SetColWidth(col, 50 + col);
    editor.SetRowHeight(0, 27);
    editor.SetTH_Height(35);
    editor.SetSH_Width(61);
    editor.Layout()->CaptureFromGrid();
    EXPECT_EQ("0,1,2 of 0,1,2", editor.Order());
    EXPECT_EQ("50,51,52", editor.FieldWidths());
    EXPECT_EQ("27 35 61", Sizes(editor.Layout()->GetWorkingCopy()));
    EXPECT_EQ(3, editor.Layout()->GetWorkingCopy().m_nFieldCount);
}

} // namespace
