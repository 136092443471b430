// The fonts that all editors share.
#include "EditorWindowTest.h"

#include <cstring>

namespace {

class EditorFontsTest : public EditorWindowTest {
protected:
    static LOGFONTA FontOf(int height) {
        LOGFONTA font{};
        font.lfHeight = -height;
        std::strcpy(font.lfFaceName, "Arial");
        return font;
    }
    static int HeightOf(HFONT font) {
        LOGFONTA description{};
        ::GetObjectA(font, sizeof description, &description);
        return -description.lfHeight;
    }
    static int HeadingHeightOf(CEditorCore &editor) {
        CUGCell cell;
        editor.GetHeadingDefault(&cell);
        return HeightOf(cell.GetFontHandle());
    }
};

TEST_F(EditorFontsTest, TheFirstEditorMakesThemAndTheLastOneFreesThem) {
    EXPECT_EQ(nullptr, TestEditor::CellFont());
    Make();
    CFont *const cell = TestEditor::CellFont();
    ASSERT_NE(nullptr, cell);
    EXPECT_NE(nullptr, TestEditor::HeadingFont());
    Make();
    EXPECT_EQ(cell, TestEditor::CellFont());
    m_editors.pop_back();
    EXPECT_EQ(cell, TestEditor::CellFont());
    m_editors.pop_back();
    EXPECT_EQ(nullptr, TestEditor::CellFont());
    EXPECT_EQ(nullptr, TestEditor::HeadingFont());
}

TEST_F(EditorFontsTest, AChangeReachesBothEditorsAndTheHost) {
    TestEditor &first = Open(2, 3);
    TestEditor &second = Open(2, 3);
    CEditorCore::SetFonts(FontOf(19), FontOf(31));
    for (TestEditor *editor : {&first, &second}) {
        EXPECT_EQ(19, HeightOf(editor->m_GI.m_defaultFont));
        EXPECT_EQ(31, HeadingHeightOf(*editor));
        EXPECT_LE(31, editor->GetTH_Height());
        EXPECT_EQ(1, editor->m_GI.m_paintingEnabled);
    }
    EXPECT_EQ("SetCellFont(-19) SetHeadingFont(-31)", m_log.Take());
    LOGFONTA font{};
    CEditorCore::GetCurrentCellFont(&font);
    EXPECT_EQ(-19, font.lfHeight);
}

TEST_F(EditorFontsTest, AnOpenBoxGetsTheNewFontWithItsText) {
    TestEditor &editor = Open(2, 3);
    editor.StartEdit();
    TypeText(editor.Edit(), "typed");
    CEditorCore::SetFonts(FontOf(19), FontOf(31));
    ASSERT_NE(nullptr, editor.Edit());
    EXPECT_EQ("typed", WindowText(editor.Edit()));
    EXPECT_EQ(19, HeightOf(reinterpret_cast<HFONT>(::SendMessageA(editor.Edit(), WM_GETFONT, 0, 0))));
}

TEST_F(EditorFontsTest, ColumnsGrowToTheirHeadingsAndNeverShrink) {
    TestEditor &editor = Open(2, 3);
    editor.SetColWidth(0, 400);
    editor.SetColWidth(1, 1);
    CEditorCore::SetFonts(FontOf(12), FontOf(12));
    int width = 0;
    editor.GetColWidth(0, &width);
    EXPECT_EQ(400, width);
    editor.GetColWidth(1, &width);
    EXPECT_LT(10, width);
}

TEST_F(EditorFontsTest, TheNextFirstEditorMakesThemAgainAsTheyWereSet) {
    Make();
    CEditorCore::SetFonts(FontOf(19), FontOf(31));
    m_editors.clear();
    TestEditor &editor = Make();
    EXPECT_EQ(19, HeightOf(editor.m_GI.m_defaultFont));
    EXPECT_EQ(31, HeadingHeightOf(editor));
}

TEST_F(EditorFontsTest, TheRowsOfANewLayoutAreHighEnoughForTheCellFont) {
    const auto rowHeight = [](CEditorCore &editor) {
        int height = 0;
        editor.GetRowHeight(0, &height);
        return height;
    };
    CEditorCore::SetFonts(FontOf(12), FontOf(12));
    EXPECT_EQ(18, rowHeight(Open(2, 3)));
    CEditorCore::SetFonts(FontOf(40), FontOf(12));
    TestEditor &editor = Open(2, 3);
    CDC *dc = editor.GetGridDC();
    HGDIOBJ old = ::SelectObject(dc->GetSafeHdc(), editor.m_GI.m_defaultFont);
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(dc->GetSafeHdc(), &metrics);
    ::SelectObject(dc->GetSafeHdc(), old);
    editor.ReleaseGridDC(dc);
    EXPECT_EQ(metrics.tmHeight + 2, rowHeight(editor));
}

TEST_F(EditorFontsTest, WithoutEditorsTheFontsAreStillTaken) {
    CEditorCore::SetFonts(FontOf(19), FontOf(31));
    EXPECT_NE(nullptr, TestEditor::CellFont());
    Make();
    EXPECT_EQ(19, HeightOf(m_editors.back()->m_GI.m_defaultFont));
}

TEST_F(EditorFontsTest, ChangesLeaveNoFontsBehind) {
    Open(2, 3);
    CEditorCore::SetFonts(FontOf(12), FontOf(12));
    PumpAll();
    const int before = HighestDrawingHandle();
    for (int i = 0; i < 200; ++i)
        CEditorCore::SetFonts(FontOf(10 + i % 3), FontOf(12));
    PumpAll();
    EXPECT_LE(HighestDrawingHandle(), before + 50);
}

TEST_F(EditorFontsTest, TheLayoutLearnsWhatGrewForTheFonts) {
    const std::string path = MakeFile("t.dat");
    TestEditor &editor = Make();
    Source(2, 3);
    ASSERT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    CEditorCore::SetFonts(FontOf(12), FontOf(48));
    EXPECT_EQ(editor.Widths(), editor.FieldWidths());
    const int height = editor.GetTH_Height();
    editor.CloseDataSource(false);
    editor.SetTH_Height(20);
    Source(2, 3);
    ASSERT_TRUE(editor.LoadData(path.c_str(), nullptr, kEditNormal, ""));
    EXPECT_EQ(height, editor.GetTH_Height());
}

} // namespace
