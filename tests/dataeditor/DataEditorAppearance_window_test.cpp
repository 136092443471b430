// Grid lines, alignment, frozen columns and colour sets.
#include "DataEditorTest.h"

#include "dataeditor/DataEditorDlgs.h"
#include "resources/ResourceIds.h"

#include <afxcmn.h>

namespace {

class DataEditorAppearanceTest : public DataEditorTest {
protected:
    static int Border(TestDataEditor &editor) {
        CUGCell cell;
        editor.GetCell(0, 0, &cell);
        return cell.GetBorder();
    }
    static std::string Alignments(TestDataEditor &editor) {
        std::string all;
        CUGCell cell;
        for (int col = 0; col < editor.GetNumberCols(); ++col) {
            editor.GetColDefault(col, &cell);
            all += (col > 0 ? "," : "") + std::to_string(cell.GetAlignment());
        }
        return all;
    }
    void Lock(TestDataEditor &editor, const char *count, int button = IDOK) {
        WithDialog act([&](HWND dialog) {
            m_seen = WindowText(dialog) + "|" + WindowText(::GetDlgItem(dialog, IDC_LOCK_COUNT));
            ::SetDlgItemTextA(dialog, IDC_LOCK_COUNT, count);
            ::SendMessageA(dialog, WM_COMMAND, button, 0);
        });
        editor.OnLockColumns();
    }
    TestDataEditor &OpenEven(int fields) {
        TestDataEditor &editor = OpenEditor(fields, 3);
        for (int col = 0; col < fields; ++col) {
            editor.SetColWidth(col, 60);
            editor.Layout()->SetColWidth(col, 60);
        }
        editor.SetSH_Width(50);
        return editor;
    }
    std::string m_seen;
};

TEST_F(DataEditorAppearanceTest, LinesAreABorderOfEveryCellAndHoldForEditorsToCome) {
    TestDataEditor &editor = OpenEditor(2, 2);
    EXPECT_EQ(12, Border(editor));
    editor.SetIsShowingHorizLines(false);
    EXPECT_EQ(4, Border(editor));
    EXPECT_FALSE(editor.IsShowingHorizLines());
    editor.SetIsShowingVerticleLines(false);
    EXPECT_EQ(0, Border(editor));
    EXPECT_EQ(0, Border(OpenEditor(2, 2)));
    EXPECT_FALSE(m_service.m_options.m_vertical);
}

TEST_F(DataEditorAppearanceTest, NumbersGoRightAndTextsLeftAsTheOptionsSay) {
    TestDataEditor &editor = MakeEditor();
    m_source = Source(3, 2);
    m_source->m_types = {0, 3, 1};
    editor.LoadData("t", nullptr, -1, kEditNormal, nullptr);
    EXPECT_EQ("1,2,1", Alignments(editor));
    editor.JustifyFields('c', 'r');
    EXPECT_EQ("2,2,2", Alignments(editor));
    editor.JustifyFields('n', 'l');
    EXPECT_EQ("2,1,2", Alignments(editor));
    editor.JustifyFields('a', 'l');
    EXPECT_EQ("1,1,1", Alignments(editor));
    m_source->m_types = {3, 3, 3};
    editor.JustifyFields('c', 'r');
    EXPECT_EQ("1,1,1", Alignments(editor));
}

TEST_F(DataEditorAppearanceTest, AVerticalAlignmentGoesToAllColumnsWithTheDefaultsHorizontalBits) {
    TestDataEditor &editor = OpenEditor(2, 2);
    editor.JustifyFields('a', 'r');
    editor.VerticallyAlignGridField('b');
    EXPECT_EQ("17,17", Alignments(editor));
    editor.VerticallyAlignGridField('m');
    EXPECT_EQ("33,33", Alignments(editor));
    editor.VerticallyAlignGridField('t');
    EXPECT_EQ("9,9", Alignments(editor));
}

TEST_F(DataEditorAppearanceTest, TopAskedForBottomComesOutAsBottomAndMiddle) {
    TestDataEditor &editor = OpenEditor(1, 2);
    CUGCell cell;
    editor.GetGridDefault(&cell);
    cell.SetAlignment(1 | 8);
    editor.SetGridDefault(&cell);
    editor.VerticallyAlignGridField('b');
    EXPECT_EQ(std::to_string(1 | 16 | 32), Alignments(editor));
}

TEST_F(DataEditorAppearanceTest, FrozenColumnsWidenTheSideHeading) {
    TestDataEditor &editor = OpenEven(4);
    Lock(editor, "2");
    EXPECT_EQ("Freeze Fields|0", m_seen);
    EXPECT_EQ(170, editor.GetSH_Width());
    EXPECT_EQ(2, editor.Layout()->GetFrozenCols());
    EXPECT_EQ(2, editor.m_GI.m_lockedCols);
    Lock(editor, "1");
    EXPECT_EQ(110, editor.GetSH_Width());
    Lock(editor, "99");
    EXPECT_EQ(4, editor.Locked());
    Lock(editor, "0", IDCANCEL);
    EXPECT_EQ(4, editor.Locked());
}

TEST_F(DataEditorAppearanceTest, LockingNoneAfterTwoShrinksTheSideHeadingAndNeverBelowZero) {
    TestDataEditor &editor = OpenEven(4);
    Lock(editor, "2");
    Lock(editor, "0");
    EXPECT_EQ(50, editor.GetSH_Width());
    Lock(editor, "2");
    editor.SetSH_Width(30);
    Lock(editor, "0");
    EXPECT_EQ(0, editor.GetSH_Width());
}

TEST_F(DataEditorAppearanceTest, AFrozenColumnThatIsSizedSizesTheSideHeadingAndAnotherNot) {
    TestDataEditor &editor = OpenEven(4);
    Lock(editor, "2");
    int width = 40;
    editor.OnColSized(1, &width);
    EXPECT_EQ(150, editor.GetSH_Width());
    editor.OnColSized(3, &width);
    EXPECT_EQ(150, editor.GetSH_Width());
}

TEST_F(DataEditorAppearanceTest, FrozenColumnsOfTheLayoutAreLockedAtALoadAsFarAsTheyGo) {
    const std::string path = MakeFile("t.dat");
    for (int stored : {2, 77, -3}) {
        TestDataEditor &editor = MakeEditor();
        Source(3, 2);
        editor.LoadData(path.c_str(), nullptr, -1, kEditNormal, nullptr);
        editor.Layout()->SetFrozenCols(stored);
        editor.CloseDataSource(false);
        Source(3, 2);
        editor.LoadData(path.c_str(), nullptr, -1, kEditNormal, nullptr);
        EXPECT_EQ(stored == 2 ? 2 : 3, editor.Locked()) << stored; // a negative one is read without its sign
    }
}

TEST_F(DataEditorAppearanceTest, TheDialogCountsBetweenNoneAndAll) {
    CResourceScope resources;
    CLockColumns dialog(9, 3, &m_host);
    std::string counts;
    WithDialog act([&](HWND window) {
        const auto spin = [&](int delta) {
            NMUPDOWN notice{};
            notice.hdr = {::GetDlgItem(window, IDC_LOCK_SPIN), IDC_LOCK_SPIN, UDN_DELTAPOS};
            notice.iDelta = delta;
            ::SendMessageA(window, WM_NOTIFY, IDC_LOCK_SPIN, reinterpret_cast<LPARAM>(&notice));
            counts += " " + WindowText(::GetDlgItem(window, IDC_LOCK_COUNT));
        };
        counts = WindowText(::GetDlgItem(window, IDC_LOCK_COUNT));
        spin(-1);
        spin(5);
        ::SetDlgItemTextA(window, IDC_LOCK_COUNT, "500");
        spin(1);
        ::SetDlgItemTextA(window, IDC_LOCK_COUNT, "-7");
        ::SendMessageA(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("3 3 0 3", counts);
    EXPECT_EQ(0, dialog.m_nLockedCols);
}

TEST_F(DataEditorAppearanceTest, ColourSetsAreKeptForTheHost) {
    TestDataEditor &editor = OpenEditor(3, 2);
    EXPECT_EQ(-1, editor.GetColourSet("F1").x);
    editor.AttachColourSet("F1", CPoint(3, 4));
    EXPECT_EQ(4, editor.GetColourSet("F1").y);
    CArray<CPoint, CPoint> sets; // as hosts have it
    editor.GetColourSets(&sets);
    EXPECT_EQ("-1 3 -1", std::to_string(sets.GetAt(0).x) + " " + std::to_string(sets.GetAt(1).x) + " " +
                             std::to_string(sets.GetAt(2).x));
    editor.DetachColourSet("F1");
    EXPECT_EQ(-1, editor.GetColourSet("F1").x);
}

TEST_F(DataEditorAppearanceTest, TheBorderFollowsTheFlagsAndNoOptionIsWritten) {
    TestDataEditor &editor = OpenEditor(2, 2);
    for (int lines = 0; lines < 4; ++lines) {
        const bool horizontal = (lines & 1) != 0, vertical = (lines & 2) != 0;
        editor.SetLines(horizontal, vertical);
        m_source->m_rowsRead.clear();
        editor.UpdateBorders();
        ::UpdateWindow(editor.Cells());
        EXPECT_FALSE(m_source->m_rowsRead.empty()); // the cells are painted again
        EXPECT_EQ((horizontal ? 8 : 0) + (vertical ? 4 : 0), Border(editor));
        EXPECT_EQ(vertical, editor.IsShowingVerticleLines());
        EXPECT_EQ(horizontal, editor.IsShowingHorizLines());
        EXPECT_TRUE(m_service.m_options.m_horizontal && m_service.m_options.m_vertical);
    }
}

TEST_F(DataEditorAppearanceTest, EachDirectionOfLinesIsAFlagOfItsOwn) {
    m_service.m_options.m_horizontal = false;
    TestDataEditor &editor = OpenEditor(2, 2);
    EXPECT_TRUE(editor.IsShowingVerticleLines());
    EXPECT_FALSE(editor.IsShowingHorizLines());
    editor.SetIsShowingVerticleLines(false);
    EXPECT_FALSE(editor.IsShowingVerticleLines());
    editor.SetIsShowingHorizLines(true);
    EXPECT_FALSE(editor.IsShowingVerticleLines());
    EXPECT_EQ(8, Border(editor));
}

TEST_F(DataEditorAppearanceTest, ColourSetsGoToEveryFieldOfTheirNameIgnoringCase) {
    TestDataEditor &editor = OpenEditor(4, 2);
    m_source->m_fields = {"Name", "OTHER", "NAME", "last"};
    editor.AttachColourSet("name", CPoint(3, 4));
    editor.AttachColourSet("Last", CPoint(5, 6));
    editor.AttachColourSet("nobody", CPoint(7, 8));
    CArray<CPoint, CPoint &> sets;
    CPoint old(9, 9);
    for (int i = 0; i < 6; ++i)
        sets.Add(old);
    editor.Layout()->GetColourSetsByField(m_source, sets);
    std::string all;
    for (int field = 0; field < sets.GetSize(); ++field)
        all += std::to_string(sets.GetAt(field).x) + "," + std::to_string(sets.GetAt(field).y) + " ";
    EXPECT_EQ("3,4 -1,-1 3,4 5,6 ", all);
}

} // namespace
