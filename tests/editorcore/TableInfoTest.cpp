// The layout file's records, against bytes written out by hand.
#include "editorcore/TableInfo.h"
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

template <class Object> std::string Stored(Object &object) {
    MemoryFile file;
    CArchive archive(&file, CArchive::store);
    object.Serialize(archive);
    archive.Close();
    return file.m_bytes;
}

// True when it was read whole.
template <class Object> bool Loaded(Object &object, const std::string &bytes) {
    MemoryFile file(bytes);
    CArchive archive(&file, CArchive::load);
    try {
        object.Serialize(archive);
        return true;
    } catch (CArchiveException *e) {
        EXPECT_EQ(CArchiveException::endOfFile, e->m_cause);
        e->Delete();
        return false;
    }
}

// One table of two fields: field 1 shown alone, widths 100 and 300, a colour set, 2 frozen columns.
constexpr const char *kEntry = "02 00  02 00 00 00 01 00  01 00 01 00  02 00 64 00 2c 01  12 00 14 00 32 00 "
                               "01 00 04 4e 61 6d 65 05 00 06 00  02 00 00 00";

CTableInfo ExampleTable() {
    CTableInfo info;
    info.m_nFieldCount = 2;
    info.m_ColPositions.Add(0);
    info.m_ColPositions.Add(1);
    info.m_DisplayCols.Add(1);
    info.m_ColWidths.Add(100);
    info.m_ColWidths.Add(300);
    info.m_nRowHeight = 18;
    info.m_nTopHeadingHeight = 20;
    info.m_nSideHeadingWidth = 50;
    CPoint set(5, 6);
    info.m_ColourSets.SetAt("Name", set);
    info.m_nFrozenCols = 2;
    return info;
}

std::string Shown(CTableInfo &info) {
    return std::to_string(info.m_nFieldCount) + " pos=" + Numbers(info.m_ColPositions) +
           " shown=" + Numbers(info.m_DisplayCols) + " widths=" + Numbers(info.m_ColWidths) +
           " sizes=" + std::to_string(info.m_nRowHeight) + "," + std::to_string(info.m_nTopHeadingHeight) +
           "," + std::to_string(info.m_nSideHeadingWidth) +
           " sets=" + std::to_string(info.m_ColourSets.GetCount()) +
           " frozen=" + std::to_string(info.m_nFrozenCols);
}

constexpr const char *kExample = "2 pos=0 1 shown=1 widths=100 300 sizes=18,20,50 sets=1 frozen=2";

TEST(TableInfoTest, ARecordIsWrittenFieldByField) {
    CTableInfo info = ExampleTable();
    EXPECT_EQ(Hex(Bytes(kEntry)), Hex(Stored(info)));
}

TEST(TableInfoTest, ARecordIsReadFieldByFieldAndTheFrozenColumnsAsTwoBytes) {
    CTableInfo info;
    info.m_nVersion = 4;
    const std::string bytes = Bytes(kEntry);
    EXPECT_TRUE(Loaded(info, bytes.substr(0, bytes.size() - 2)));
    EXPECT_EQ(kExample, Shown(info));
    CPoint set;
    EXPECT_TRUE(info.m_ColourSets.Lookup("Name", set));
    EXPECT_EQ(5, set.x);
    EXPECT_EQ(6, set.y);
}

TEST(TableInfoTest, AVersionTwoRecordHasNoColourSetsAndNoFrozenColumns) {
    CTableInfo info = ExampleTable();
    info.m_nVersion = 2;
    info.m_nFrozenCols = 0;
    EXPECT_TRUE(Loaded(info, Bytes("01 00  01 00 00 00  01 00 00 00  01 00 64 00  12 00 14 00 32 00")));
    EXPECT_EQ("1 pos=0 shown=0 widths=100 sizes=18,20,50 sets=0 frozen=0", Shown(info));
}

TEST(TableInfoTest, AVersionThreeRecordHasNoFrozenColumns) {
    CTableInfo info;
    info.m_nVersion = 3;
    const std::string bytes = Bytes(kEntry);
    EXPECT_TRUE(Loaded(info, bytes.substr(0, bytes.size() - 4)));
    EXPECT_EQ("2 pos=0 1 shown=1 widths=100 300 sizes=18,20,50 sets=1 frozen=0", Shown(info));
}

TEST(TableInfoTest, AHeadingSizeOfZeroReadsAsOne) {
    CTableInfo info;
    info.m_nVersion = 2;
    EXPECT_TRUE(Loaded(info, Bytes("00 00  00 00  00 00  00 00  00 00 00 00 00 00")));
    EXPECT_EQ("0 pos= shown= widths= sizes=0,1,1 sets=0 frozen=0", Shown(info));
}

TEST(TableInfoTest, ValuesAreCutTo16BitsAndWidenedWithoutSign) {
    CPersistUIntArray array;
    array.Add(65536 + 7);
    array.Add(65535);
    EXPECT_EQ("02 00 07 00 ff ff", Hex(Stored(array)));
    CPersistUIntArray read;
    read.Add(99);
    EXPECT_TRUE(Loaded(read, Bytes("02 00 07 00 ff ff")));
    EXPECT_EQ("7 65535", Numbers(read));
}

TEST(TableInfoTest, ARecordCutAnywhereIsTheEndOfTheFile) {
    const std::string bytes = Bytes(kEntry);
    for (size_t length = 0; length < bytes.size() - 2; ++length) {
        CTableInfo info;
        info.m_nVersion = 4;
        EXPECT_FALSE(Loaded(info, bytes.substr(0, length))) << length;
    }
}

TEST(TableInfoTest, ACopyIsWhole) {
    CTableInfo info = ExampleTable();
    CTableInfo copy(info);
    info.Clear();
    EXPECT_EQ(kExample, Shown(copy));
    EXPECT_EQ("0 pos= shown= widths= sizes=0,0,0 sets=0 frozen=0", Shown(info));
}

// The whole file: version 4, the set's name, the number of tables, key and record of each.
// The example of docs/formats-layout.md.
TEST(LayoutFileTest, TheDocumentedExampleIsReadAndWrittenAsItStands) {
    const std::string example = Bytes("04 00 00 00  03 73 65 74  01 00 00 00  00  02 00  02 00 00 00 01 00  01 00 00 00 "
                                      "02 00 64 00 2c 01  12 00 14 00 32 00  01 00 04 4e 41 4d 45 05 00 06 00 "
                                      "01 00 00 00");
    CEditorLayout layout(nullptr);
    ASSERT_TRUE(Loaded(layout, example));
    CUIntArray shown, positions, widths;
    layout.GetDisplayCols(shown);
    layout.GetColPositions(positions);
    layout.GetColWidths(widths);
    EXPECT_TRUE(layout.IsTableFound());
    EXPECT_STREQ("set", layout.GetLastXParmsSet());
    EXPECT_EQ("0|0 1|100 300", Numbers(shown) + "|" + Numbers(positions) + "|" + Numbers(widths));
    EXPECT_EQ(5, layout.GetColourSet("NAME").x);
    EXPECT_EQ(6, layout.GetColourSet("NAME").y);
    EXPECT_EQ(1, layout.GetFrozenCols());
    EXPECT_EQ(Hex(example), Hex(Stored(layout)));
}

TEST(LayoutFileTest, SignedVersionsAndCountsReadAsVersionOneAndNone) {
    CEditorLayout layout(nullptr);
    EXPECT_TRUE(Loaded(layout, Bytes("ff ff ff ff  ff ff ff ff"))); // no set name, no entry
    EXPECT_FALSE(layout.IsTableFound());
    EXPECT_TRUE(Loaded(layout, Bytes("04 00 00 00  00  fe ff ff ff")));
    EXPECT_FALSE(layout.IsTableFound());
}

TEST(LayoutFileTest, AFileOfOneTableIsWrittenByteByByte) {
    CEditorLayout layout(nullptr);
    CTableInfo info = ExampleTable();
    const std::string file = Bytes("04 00 00 00  03 53 65 74  01 00 00 00  01 54 ") + Bytes(kEntry);
    layout.SetTableName("T");
    ASSERT_TRUE(Loaded(layout, file));
    EXPECT_TRUE(layout.IsTableFound());
    EXPECT_STREQ("Set", layout.GetLastXParmsSet());
    EXPECT_EQ(2, layout.GetFrozenCols());
    EXPECT_EQ(Hex(file), Hex(Stored(layout)));
    // After a write the working copy is gone.
    EXPECT_FALSE(layout.IsTableFound());
    EXPECT_EQ(-1, layout.GetDataSrcField(0));
}

TEST(LayoutFileTest, AVersionOneFileHasNoSetName) {
    CEditorLayout layout(nullptr);
    layout.SetTableName("");
    EXPECT_TRUE(
        Loaded(layout, Bytes("01 00 00 00  01 00 00 00  00  01 00  01 00 00 00  01 00 00 00  01 00 64 00 "
                             "12 00 14 00 32 00")));
    EXPECT_TRUE(layout.IsTableFound());
    EXPECT_EQ(0, layout.GetDataSrcField(0));
}

TEST(LayoutFileTest, ATableIsLookedUpByItsNameInUpperCase) {
    const std::string lower = Bytes("04 00 00 00  00  01 00 00 00  01 74 ") + Bytes(kEntry);
    CEditorLayout layout(nullptr);
    layout.SetTableName("t");
    EXPECT_TRUE(Loaded(layout, lower));
    EXPECT_FALSE(layout.IsTableFound()) << "a lower-case key is not found again";
    const std::string upper = Bytes("04 00 00 00  00  01 00 00 00  01 54 ") + Bytes(kEntry);
    layout.SetTableName("t");
    EXPECT_TRUE(Loaded(layout, upper));
    EXPECT_TRUE(layout.IsTableFound());
}

TEST(LayoutFileTest, WithTwoTablesTheReaderIsOutOfStepAndEndsInAnException) {
    CEditorLayout layout(nullptr);
    layout.SetTableName("T");
    const std::string two =
        Bytes("04 00 00 00  00  02 00 00 00  01 54 ") + Bytes(kEntry) + Bytes("01 55 ") + Bytes(kEntry);
    EXPECT_FALSE(Loaded(layout, two));
    EXPECT_FALSE(layout.IsTableFound());
}

TEST(LayoutFileTest, AFileCutAnywhereIsNotFound) {
    const std::string file = Bytes("04 00 00 00  03 53 65 74  01 00 00 00  01 54 ") + Bytes(kEntry);
    for (size_t length = 0; length < file.size() - 2; ++length) {
        CEditorLayout layout(nullptr);
        layout.SetTableName("T");
        EXPECT_FALSE(Loaded(layout, file.substr(0, length))) << length;
        EXPECT_FALSE(layout.IsTableFound());
    }
}

} // namespace
