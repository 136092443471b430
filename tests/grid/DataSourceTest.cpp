#include "grid/UGDataSource.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(DataSourceTest, EveryOperationOfTheBaseIsAHarmlessDefault) {
    CUGDataSource source;
    CUGCell cell;
    CString name;
    int number = 7;
    long row = 7;
    const int results[] = {
        source.Open("n", "o"), source.UnusedOperationA(1, 2), source.Close(false), source.Save(),
        source.SaveAs("n", "o"), static_cast<int>(source.GetNumRows()), source.GetNumCols(),
        source.GetColName(0, &name), source.GetColType(0, &number), source.AppendRow(), source.InsertRow(0),
        source.AppendCol(), source.InsertCol(0), source.DeleteRow(0), source.DeleteCol(0),
        source.DeleteCell(0, 0), source.Empty(), source.GetCell(0, 0, &cell), source.SetCell(0, 0, &cell),
        source.FindFirst(0, "t", &row), source.FindNext(0, "t", &row), source.SortBy(&number, 1),
        source.SortByCol(0), source.SetOption(4, 0, 0), source.GetOption(7, &number, &number),
        source.RequestMoreRows(1, 1, &row), source.GetFieldDecimals(0)};
    for (int result : results)
        EXPECT_EQ(GRID_NOT_IMPLEMENTED, result);
    EXPECT_EQ(0, source.GetFieldWidth(0));
    EXPECT_FALSE(source.CanUndo());
    EXPECT_FALSE(source.CanRedo());
    source.StartTransaction();
    source.EndTransaction();
    source.Undo();
    source.Redo();
    EXPECT_EQ(7, number);
    EXPECT_EQ(7, row);
}

// Records the single-row calls and fails from a given one on.
class Recording : public CUGDataSource {
public:
    int InsertRow(long row) override { return Note('i', row); }
    int DeleteRow(long row) override { return Note('d', row); }
    std::string m_calls;
    int m_allowed = 100;

private:
    int Note(char what, long row) {
        m_calls += what + std::to_string(row) + " ";
        return m_allowed-- > 0 ? GRID_SUCCESS : GRID_BAD_ARGUMENT;
    }
};

TEST(DataSourceTest, ManyRowsAreSingleRowsAtTheSamePlace) {
    Recording source;
    EXPECT_EQ(GRID_SUCCESS, source.InsertRows(4, 3));
    EXPECT_EQ(GRID_SUCCESS, source.DeleteRows(2, 2));
    EXPECT_EQ("i4 i4 i4 d2 d2 ", source.m_calls);
}

TEST(DataSourceTest, ManyRowsStopAtTheFirstFailure) {
    Recording source;
    source.m_allowed = 1;
    EXPECT_EQ(GRID_ERROR, source.InsertRows(4, 3));
    EXPECT_EQ("i4 i4 ", source.m_calls);
}

TEST(DataSourceTest, ACountBelowOneSucceeds) {
    Recording source;
    EXPECT_EQ(GRID_SUCCESS, source.InsertRows(4, 0));
    EXPECT_EQ(GRID_SUCCESS, source.DeleteRows(-1, -1));
    EXPECT_EQ("", source.m_calls);
}

} // namespace
