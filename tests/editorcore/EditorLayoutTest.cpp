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
    // Row height, top heading, side heading.
    std::string Sizes() {
        const CTableInfo &info = m_layout.GetWorkingCopy();
        return std::to_string(info.m_nRowHeight) + " " + std::to_string(info.m_nTopHeadingHeight) + " " +
               std::to_string(info.m_nSideHeadingWidth);
    }
    // What is shown, all positions, the sizes, the first number of the set of "Name", the frozen columns.
    std::string State() {
        return Shown() + "|" + Positions() + "|" + Sizes() + "|" +
               std::to_string(m_layout.GetColourSet("Name").x) + "|" + std::to_string(m_layout.GetFrozenCols());
    }
    void Read(const char *hex) {
        MemoryFile file(Bytes(hex));
        CArchive archive(&file, CArchive::load);
        m_layout.Serialize(archive);
    }
    std::string Written() {
        MemoryFile file;
        CArchive archive(&file, CArchive::store);
        m_layout.Serialize(archive);
        archive.Close();
        return file.m_bytes;
    }
    // Of a file without a set's name or with one of three letters.
    int TablesWritten() {
        const std::string bytes = Written();
        return bytes.at(4 + 1 + static_cast<size_t>(bytes.at(4)));
    }
    // A version 3 file of the table without a name, one field of 100 pixels, and of the table "T" without any.
    static constexpr const char *kTwoNames =
        "03 00 00 00  03 53 65 74  02 00 00 00  00  01 00  01 00 00 00  01 00 00 00  01 00 64 00  12 00 14 00 32 00  "
        "00 00  01 54  00 00  00 00  00 00  00 00  12 00 14 00 32 00  00 00";
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

TEST_F(EditorLayoutTest, TheColumnsShownAreCounted) {
    EXPECT_EQ(0, m_layout.CountDisplayCols());
    Show({4, 0, 2});
    EXPECT_EQ(3, m_layout.CountDisplayCols());
}

TEST_F(EditorLayoutTest, EachHeadingKeepsItsOwnSize) {
    m_layout.SetTopHeadingHeight(33);
    m_layout.SetSideHeadingWidth(66);
    m_layout.SetRowHeight(25);
    EXPECT_EQ("25 33 66", Sizes());
}

TEST_F(EditorLayoutTest, ATakenWorkingCopyIsPutBackWhole) {
    Show({4, 0});
    m_layout.SetColWidth(0, 70);
    m_layout.SetTopHeadingHeight(33);
    m_layout.AttachColourSet("Name", CPoint(3, 4));
    m_layout.SetFrozenCols(2);
    const CTableInfo taken = m_layout.GetWorkingCopy();
    m_layout.Reset();
    EXPECT_EQ("||0 0 0|-1|0", State());
    m_layout.SetWorkingCopy(taken);
    EXPECT_EQ("4 0|4 1 2 3 0|0 33 0|3|2", State());
    EXPECT_EQ("0 0 0 0 70", Widths());
}

// The file's other tables and the set's name are not the working copy's.
TEST_F(EditorLayoutTest, AResetEmptiesTheWorkingCopyOfAFoundTableAndNothingElse) {
    Read(kTwoNames);
    ASSERT_TRUE(m_layout.IsTableFound());
    m_layout.Reset();
    EXPECT_FALSE(m_layout.IsTableFound());
    EXPECT_EQ("", Shown());
    EXPECT_EQ("0 0 0", Sizes());
    EXPECT_STREQ("Set", m_layout.GetLastXParmsSet());
    EXPECT_EQ(2, TablesWritten());
}

TEST_F(EditorLayoutTest, AForgottenFileLeavesNothingToTheNextOne) {
    Read(kTwoNames);
    m_layout.ForgetFile();
    EXPECT_FALSE(m_layout.IsTableFound());
    EXPECT_EQ("", Shown());
    EXPECT_STREQ("", m_layout.GetLastXParmsSet());
    EXPECT_EQ(1, TablesWritten()); // that of the working copy
}

TEST_F(EditorLayoutTest, TheLastSetOfParametersGoesIntoTheFile) {
    m_layout.SetLastXParmsSet("Mine");
    EXPECT_STREQ("Mine", m_layout.GetLastXParmsSet());
    EXPECT_EQ(Bytes("04 00 00 00  04 4d 69 6e 65"), Written().substr(0, 9));
    m_layout.SetLastXParmsSet("");
    EXPECT_EQ(Bytes("04 00 00 00  00"), Written().substr(0, 5));
}

} // namespace
