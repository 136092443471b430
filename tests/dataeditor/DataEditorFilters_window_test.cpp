// Filters attached and asked, and the keys that step over what they leave out.
#include "DataEditorTest.h"

#include "resources/ResourceIds.h"

namespace {

class DataEditorFiltersTest : public DataEditorTest {
protected:
    std::string GotoRecord(TestDataEditor &editor, const char *record, int button = IDOK) {
        WithDialog act([&](HWND dialog) {
            m_title = WindowText(dialog) + "|" + WindowText(::GetDlgItem(dialog, IDC_RECORDS_PROMPT));
            ::SetDlgItemTextA(dialog, IDC_RECORDS_COUNT, record);
            ::SendMessageA(dialog, WM_COMMAND, button, 0);
        });
        editor.OnGotoRecord();
        return editor.At() + " " + TestApp().TakeBoxes();
    }
    std::string m_title;
};

// --- Commands

TEST_F(DataEditorFiltersTest, AFilterIsAttachedAndDetachedWhereTheSourceAgrees) {
    TestDataEditor &editor = OpenEditor(2, 5);
    editor.OnAttachFilter(4);
    EXPECT_EQ(4, editor.GetFilter());
    editor.OnAttachDefaultFilter();
    EXPECT_EQ(0, editor.GetFilter());
    EXPECT_TRUE(editor.IsFilterAttached());
    m_source->m_results["SetOption"] = GRID_ERROR;
    editor.OnDetachFilter();
    editor.OnAttachFilter(9);
    EXPECT_EQ(0, editor.GetFilter());
    m_source->m_results.clear();
    editor.OnDetachFilter();
    EXPECT_EQ(-1, editor.GetFilter());
    EXPECT_EQ("src.SetOption(4,4) src.SetOption(4,0) src.SetOption(5,0) src.SetOption(4,9) src.SetOption(5,0)",
              m_log.Take());
}

TEST_F(DataEditorFiltersTest, TheHostSelectsTheFilter) {
    TestDataEditor &editor = OpenEditor(2, 5);
    m_service.m_filterChosen = 6;
    editor.OnSelectAttachFilter();
    EXPECT_EQ(6, editor.GetFilter());
    EXPECT_EQ("SelectFilter(-1) src.SetOption(4,6)", m_log.Take());
    m_service.m_filterAnswer = false;
    editor.OnSelectAttachFilter();
    EXPECT_EQ("SelectFilter(-1)", m_log.Take());
    EXPECT_EQ(6, editor.GetFilter());
}

TEST_F(DataEditorFiltersTest, EditingEndsOnTheDefaultFilterWhicheverWasEdited) {
    TestDataEditor &editor = OpenEditor(2, 5);
    editor.OnEditFilter(); // with none attached it is filter 0
    EXPECT_EQ("EditFilter(0,table) src.SetOption(4,0)", m_log.Take());
    editor.OnAttachFilter(5);
    m_log.Take();
    editor.OnEditFilter();
    EXPECT_EQ("EditFilter(5,table) src.SetOption(4,0)", m_log.Take());
    EXPECT_EQ(0, editor.GetFilter());
    m_service.m_filterAnswer = false;
    editor.OnEditFilter();
    EXPECT_EQ("EditFilter(0,table)", m_log.Take());
}

TEST_F(DataEditorFiltersTest, WhatPasses) {
    TestDataEditor &editor = OpenEditor(2, 3);
    EXPECT_TRUE(editor.RecPassesFilter(0));
    EXPECT_TRUE(editor.RecPassesFilter(2));
    editor.OnAttachFilter(1);
    EXPECT_TRUE(editor.RecPassesFilter(2)); // a source that cannot answer hides nothing
    m_source->m_passes = [&](long record) {
        EXPECT_TRUE(editor.RecPassesFilter(record)); // asked back from within, it is not asked again
        return record == 2;
    };
    EXPECT_FALSE(editor.RecPassesFilter(1));
    EXPECT_TRUE(editor.RecPassesFilter(2));
    EXPECT_FALSE(OpenEditor(2, 0).RecPassesFilter(1)); // no rows at all
}

// --- Keys

TEST_F(DataEditorFiltersTest, DownAndUpStepOverWhatIsLeftOut) {
    TestDataEditor &editor = OpenFiltered(2, 8, {1, 4, 8});
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,3", editor.At());
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,7", editor.At()); // the last record, from the last passing one before it
    Key(editor, VK_UP);
    EXPECT_EQ("0,3", editor.At());
    Key(editor, VK_UP);
    EXPECT_EQ("0,0", editor.At());
}

TEST_F(DataEditorFiltersTest, WithNothingFurtherThatPassesTheCellStays) {
    TestDataEditor &editor = OpenFiltered(2, 8, {3});
    editor.GotoCell(0, 2);
    for (UINT key : {VK_DOWN, VK_UP, VK_RETURN}) {
        Key(editor, key, key == VK_RETURN ? 13 : 0);
        EXPECT_EQ("0,2", editor.At()) << key;
    }
    TestDataEditor &first = OpenFiltered(2, 8, {1});
    Key(first, VK_DOWN);
    EXPECT_EQ("0,0", first.At());
    TestDataEditor &last = OpenFiltered(2, 8, {8});
    last.GotoCell(1, 7);
    Key(last, VK_UP);
    Key(last, VK_DOWN);
    Key(last, VK_RETURN, 13);
    EXPECT_EQ("1,7", last.At());
    EXPECT_EQ(8, m_source->GetNumRows());
}

TEST_F(DataEditorFiltersTest, ATabAfterTheLastRecordAppendsOneWhereThatPasses) {
    for (const bool enter : {false, true}) {
        for (const bool editing : {false, true}) {
            CEditorCore::SetEnterKey(enter);
            const auto press = [&](TestDataEditor &editor) {
                const UINT key = enter ? VK_RETURN : VK_TAB;
                if (editing)
                    editor.StartEdit();
                if (editing)
                    SendKey(editor.Edit(), key);
                else
                    Key(editor, key, enter ? 13 : 9);
                return editor.At() + " of " + std::to_string(m_source->GetNumRows());
            };
            TestDataEditor &passing = OpenFiltered(2, 5, {1, 5});
            passing.GotoCell(1, 4);
            EXPECT_EQ("0,5 of 6", press(passing)) << enter << editing;
            TestDataEditor &leftOut = OpenFiltered(2, 5, {1, 3});
            leftOut.GotoCell(1, 4);
            EXPECT_EQ("1,4 of 5", press(leftOut)) << enter << editing;
            TestDataEditor &before = OpenFiltered(2, 5, {1, 3});
            before.GotoCell(1, 2);
            EXPECT_EQ("1,2 of 5", press(before)) << enter << editing;
        }
    }
    CEditorCore::SetEnterKey(false);
}

TEST_F(DataEditorFiltersTest, TabWrapsToTheNextRecordThatPasses) {
    TestDataEditor &editor = OpenFiltered(3, 8, {1, 4});
    editor.GotoCell(1, 0);
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("2,0", editor.At());
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("0,3", editor.At());
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_TAB, 9);
    EXPECT_EQ("2,0", editor.At());
}

TEST_F(DataEditorFiltersTest, EnterGoesToTheNextRecordThatPassesAndWithShiftBack) {
    TestDataEditor &editor = OpenFiltered(3, 8, {1, 4});
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("0,3", editor.At());
    {
        HeldKeys shift({VK_SHIFT});
        Key(editor, VK_RETURN, 13);
    }
    EXPECT_EQ("0,0", editor.At());
    CEditorCore::SetEnterKey(true);
    editor.GotoCell(2, 0);
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("0,3", editor.At());
    HeldKeys shift({VK_SHIFT});
    Key(editor, VK_RETURN, 13);
    EXPECT_EQ("2,0", editor.At());
    CEditorCore::SetEnterKey(false);
}

TEST_F(DataEditorFiltersTest, AnOpenEditMovesOnOverWhatIsLeftOut) {
    TestDataEditor &editor = OpenFiltered(2, 8, {1, 4, 6});
    editor.StartEdit();
    SendKey(editor.Edit(), VK_DOWN);
    EXPECT_EQ("0,3", editor.At());
    ASSERT_NE(nullptr, editor.Edit());
    SendKey(editor.Edit(), VK_UP);
    EXPECT_EQ("0,0", editor.At());
    editor.GotoCell(1, 0);
    editor.StartEdit();
    SendKey(editor.Edit(), VK_TAB);
    EXPECT_EQ("0,3", editor.At());
    editor.GotoCell(0, 5);
    editor.StartEdit();
    SendKey(editor.Edit(), VK_DOWN);
    EXPECT_EQ("0,5", editor.At()); // nothing passes further on
}

TEST_F(DataEditorFiltersTest, WithoutAFilterOrItsUseTheKeysAreTheCores) {
    TestDataEditor &editor = OpenFiltered(2, 8, {1, 4});
    editor.SetUseFilteredRecords(false);
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,1", editor.At());
    editor.SetUseFilteredRecords(true);
    editor.OnDetachFilter();
    Key(editor, VK_DOWN);
    EXPECT_EQ("0,2", editor.At());
    EXPECT_FALSE(editor.Navigate(VK_DOWN));
}

// --- Records

TEST_F(DataEditorFiltersTest, GotoRecordAndItsOvershoot) {
    TestDataEditor &editor = OpenEditor(2, 9);
    EXPECT_EQ("0,4 ", GotoRecord(editor, "5"));
    EXPECT_EQ("Goto Record|Goto Record", m_title);
    EXPECT_EQ("0,8 ", GotoRecord(editor, "9"));
    EXPECT_EQ("0,7 ", GotoRecord(editor, "10")); // beyond the end it is the last but one
    EXPECT_EQ("0,7 Please enter a number one or greater.|0", GotoRecord(editor, "0"));
    EXPECT_EQ("0,7 ", GotoRecord(editor, "3", IDCANCEL));
    TestDataEditor &one = OpenEditor(2, 1);
    EXPECT_EQ("0,0 Could not go to record '0'!|16", GotoRecord(one, "2"));
}

TEST_F(DataEditorFiltersTest, FilteredRecordsAreDeletedAsAWholeAfterAQuestion) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 4});
    TestApp().Answer({IDNO, IDCANCEL, IDYES});
    editor.OnDeleteRows();
    EXPECT_EQ("Delete filtered records?\n\n(You will not be able to undo this operation)|36", TestApp().TakeBoxes());
    editor.OnDeleteRows(); // Escape closes the question under some systems
    TestApp().TakeBoxes();
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ(5, editor.GetNumberRows());
    m_host.TakeMessages();
    editor.OnDeleteRows();
    EXPECT_EQ("Delete filtered records?\n\n(You will not be able to undo this operation)|36", TestApp().TakeBoxes());
    EXPECT_NE(std::string::npos, m_log.Take().find("src.DeleteRows(-1,-1)"));
    EXPECT_NE(std::string::npos, m_host.TakeMessages().find("1049(1,0)"));
    EXPECT_EQ(3, editor.GetNumberRows());
    EXPECT_EQ("0.1", m_source->Text(0, 0));
    EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
}

TEST_F(DataEditorFiltersTest, FilteredRecordsThatCannotBeDeletedAreToldOf) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 4});
    m_source->m_results["DeleteRows"] = GRID_ERROR;
    TestApp().Answer({IDYES});
    editor.OnDeleteRows();
    const std::string boxes = TestApp().TakeBoxes();
    EXPECT_NE(std::string::npos, boxes.find("Error while deleting filtered records!|16")) << boxes;
    EXPECT_EQ(5, editor.GetNumberRows());
    EXPECT_NE(0, editor.m_GI.m_paintingEnabled);
}

TEST_F(DataEditorFiltersTest, WithAMultipleSelectionTheSelectionIsDeleted) {
    TestDataEditor &editor = OpenFiltered(2, 5, {1, 4});
    editor.ClearSelections();
    editor.SelectRange(0, 1, 0, 2);
    editor.OnDeleteRows();
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("0.3", m_source->Text(0, 1));
}

} // namespace
