// Grid columns, fields and positions.
#include "editorcore/EditorLayout.h"

#include "MemoryFile.h"

#include <gtest/gtest.h>

namespace {

std::string Numbers(const CUIntArray &array) {
    std::string all;
    for (int i = 0; i < array.GetSize(); ++i)
        all += (i > 0 ? " " : "") + std::to_string(array.GetAt(i));
    return all;
}

class EditorLayoutTest : public testing::Test {
protected:
    EditorLayoutTest() { m_layout.SyncToFieldCount(5); }

    void Show(std::initializer_list<UINT> fields) {
        CUIntArray array;
        for (UINT field : fields)
            array.Add(field);
        m_layout.SetDisplayOrder(array, 5);
    }
    std::string Shown() {
        CUIntArray array;
        m_layout.GetDisplayCols(array);
        return Numbers(array);
    }
    std::string Positions() {
        CUIntArray array;
        m_layout.GetColPositions(array);
        return Numbers(array);
    }
    std::string Widths() {
        CUIntArray array;
        m_layout.GetColWidths(array);
        return Numbers(array);
    }
    CEditorLayout m_layout{nullptr};
};

TEST_F(EditorLayoutTest, AColumnNamesItsFieldAndAFieldItsColumn) {
    Show({4, 0, 2});
    EXPECT_EQ(4, m_layout.GetDataSrcField(0));
    EXPECT_EQ(2, m_layout.GetDataSrcField(2));
    EXPECT_EQ(-1, m_layout.GetDataSrcField(3));
    EXPECT_EQ(-1, m_layout.GetDataSrcField(-1));
    EXPECT_EQ(1, m_layout.GetGridField(0));
    EXPECT_EQ(-1, m_layout.GetGridField(1));
    EXPECT_TRUE(m_layout.IsFieldHidden(3));
    EXPECT_FALSE(m_layout.IsFieldHidden(4));
}

TEST_F(EditorLayoutTest, HiddenFieldsKeepTheirPlacesWhileTheShownOnesMove) {
    Show({0, 1, 2, 3, 4});
    EXPECT_EQ("0 1 2 3 4", Positions());
    Show({4, 2, 0}); // 1 and 3 hidden
    EXPECT_EQ("4 1 2 3 0", Positions());
}

TEST_F(EditorLayoutTest, MoreFieldsThanThereAreChangeNothing) {
    Show({1, 0});
    Show({0, 1, 2, 3, 4, 0});
    EXPECT_EQ("1 0", Shown());
}

TEST_F(EditorLayoutTest, ColumnsAreTakenOutAndPutIn) {
    Show({0, 1, 2, 3, 4});
    m_layout.RemoveDisplayCol(1);
    EXPECT_EQ("0 2 3 4", Shown());
    m_layout.RemoveDisplayCol(9);
    m_layout.RemoveDisplayCol(-1);
    m_layout.InsertDisplayCol(4, 1);
    EXPECT_EQ("0 2 3 4 1", Shown());
    m_layout.InsertDisplayCol(6, 1);
    EXPECT_EQ("0 2 3 4 1", Shown());
    m_layout.InsertDisplayCol(0, 1);
    EXPECT_EQ("1 0 2 3 4 1", Shown());
}

TEST_F(EditorLayoutTest, AWidthBelongsToTheFieldShown) {
    Show({4, 0});
    EXPECT_EQ(4, m_layout.SetColWidth(0, 70));
    EXPECT_EQ("0 0 0 0 70", Widths());
    EXPECT_EQ(2, m_layout.SetColWidth(2, 80)); // nothing shown there
    EXPECT_EQ(7, m_layout.SetColWidth(7, 80));
    EXPECT_EQ("0 0 0 0 70", Widths());
}

TEST_F(EditorLayoutTest, TheRecordIsRepairedAgainstTheNumberOfFields) {
    Show({4, 0, 3});
    m_layout.SetColWidth(0, 70);
    m_layout.SyncToFieldCount(4);
    EXPECT_EQ("0 3", Shown());
    EXPECT_EQ("0 0 0 0 70", Widths()); // longer ones keep their length
    m_layout.SyncToFieldCount(6);
    EXPECT_EQ("0 0 0 0 70 0", Widths());
    EXPECT_EQ("4 1 2 0 4 5", Positions()); // grown with its own next indexes
}

TEST_F(EditorLayoutTest, PositionsOfADamagedFileAreMadeWhole) {
    CUIntArray shown, damaged;
    for (UINT field : {3u, 900u, 3u, 1u})
        damaged.Add(field);
    m_layout.RestoreOrder(shown, damaged);
    m_layout.CompletePositions(5);
    EXPECT_EQ("3 1 0 2 4", Positions());
}

TEST_F(EditorLayoutTest, ColourSetsComeAndGoByName) {
    EXPECT_EQ(-1, m_layout.GetColourSet("Name").x);
    m_layout.AttachColourSet("Name", CPoint(3, 4));
    EXPECT_EQ(3, m_layout.GetColourSet("Name").x);
    EXPECT_EQ(4, m_layout.GetColourSet("Name").y);
    EXPECT_EQ(-1, m_layout.GetColourSet("NAME").x);
    m_layout.DetachColourSet("Name");
    EXPECT_EQ(-1, m_layout.GetColourSet("Name").y);
}

TEST_F(EditorLayoutTest, AWorkingCopyIsTakenAndPutBackAndAForgottenFileLeavesNone) {
    Show({3, 1});
    const CTableInfo kept = m_layout.GetWorkingCopy();
    m_layout.SetLastXParmsSet("set");
    m_layout.ForgetFile();
    EXPECT_EQ("", Shown() + Positions());
    EXPECT_STREQ("", m_layout.GetLastXParmsSet());
    m_layout.SetWorkingCopy(kept);
    EXPECT_EQ("3 1", Shown());
}

} // namespace
