// The table of cell types and the best fit of columns.
#include "GridWindowTest.h"

namespace {

// As wide as ten pixels a character, however the text is drawn.
class TenPixelType : public CUGCellType {
public:
    explicit TenPixelType(int id) : CUGCellType(id) {}
    void GetBestSize(CDC *, SIZE *size, CUGCell *cell) override { size->cx = 10 * cell->GetTextLength(); }
};

class CtrlTypesTest : public GridWindowTest {
protected:
    void UseTenPixels(int col) {
        CUGCell cell;
        m_grid.GetColDefault(col, &cell);
        cell.SetCellType(m_type.GetID());
        m_grid.SetColDefault(col, &cell);
    }
    int WidthOf(int col) {
        int width = -1;
        m_grid.GetColWidth(col, &width);
        return width;
    }
    TenPixelType m_type{900};
};

TEST_F(CtrlTypesTest, AnUnknownZeroOrNegativeIdIsTheBaseType) {
    CUGCellType *base = m_grid.GetCellType(0);
    ASSERT_NE(nullptr, base);
    EXPECT_EQ(0, base->GetID());
    EXPECT_EQ(base, m_grid.GetCellType(-1));
    EXPECT_EQ(base, m_grid.GetCellType(900));
}

TEST_F(CtrlTypesTest, AnAddedTypeIsFoundByItsIdAndKnowsControlAndState) {
    EXPECT_EQ(900, m_grid.AddCellType(&m_type));
    EXPECT_EQ(&m_type, m_grid.GetCellType(900));
    EXPECT_EQ(&m_grid, m_type.m_ctrl);
    EXPECT_EQ(&m_grid.m_GI, m_type.m_GI);
}

TEST_F(CtrlTypesTest, ARemovedTypeLeavesAnEntryThatTheNextOneTakes) {
    TenPixelType second(901), third(901);
    m_grid.AddCellType(&m_type);
    m_grid.AddCellType(&second);
    EXPECT_EQ(GRID_SUCCESS, m_grid.RemoveCellType(900));
    EXPECT_EQ(GRID_ERROR, m_grid.RemoveCellType(900));
    EXPECT_EQ(m_grid.GetCellType(0), m_grid.GetCellType(900));
    // The third stands in the first one's entry now, in front of the second of the same id.
    m_grid.AddCellType(&third);
    EXPECT_EQ(&third, m_grid.GetCellType(901));
}

TEST_F(CtrlTypesTest, TheEntryOfTheBaseTypeCanBeEmptiedAndFilledAgain) {
    Fill(3, 5);
    CUGCellType *base = m_grid.GetCellType(0);
    EXPECT_EQ(GRID_SUCCESS, m_grid.RemoveCellType(0));
    EXPECT_EQ(base, m_grid.GetCellType(0)); // the control's own serves where the entry is empty
    EXPECT_EQ(base, m_grid.GetCellType(4711));
    EXPECT_EQ(GRID_ERROR, m_grid.RemoveCellType(0));
    m_grid.Update();
    TenPixelType other(0);
    m_grid.AddCellType(&other);
    EXPECT_EQ(&other, m_grid.GetCellType(0));
    EXPECT_EQ(&other, m_grid.GetCellType(4711));
    EXPECT_EQ(GRID_SUCCESS, m_grid.RemoveCellType(0));
}

TEST_F(CtrlTypesTest, RemovingAnUnknownTypeIsAnError) {
    EXPECT_EQ(GRID_ERROR, m_grid.RemoveCellType(4711));
}

TEST_F(CtrlTypesTest, BestFitGivesTheWidestCellOfTheRowsFromTheTopOnAndSixPixels) {
    RecordingSource &source = Fill(3, 100);
    m_grid.SetGridDefault(&m_grid.m_GI.m_gridDefault);
    m_grid.AddCellType(&m_type);
    m_grid.m_onGetCell = nullptr;
    for (auto &row : source.m_rows)
        row[1] = "abcd";
    source.m_rows[5][1] = "abcdefgh";
    source.m_rows[20][1] = "abcdefghijkl";
    // The raw cell is measured, so by the base type: a wider text gives a wider column.
    EXPECT_EQ(GRID_SUCCESS, m_grid.BestFit(1, 1, 4));
    const int narrow = WidthOf(1);
    m_grid.BestFit(1, 1, 5);
    const int wider = WidthOf(1);
    m_grid.BestFit(1, 1, 1000);
    const int widest = WidthOf(1);
    EXPECT_LT(6, narrow);
    EXPECT_LT(narrow, wider);
    EXPECT_LT(wider, widest);
    EXPECT_EQ(100, WidthOf(0));
    m_grid.SetTopRow(21);
    m_grid.BestFit(1, 1, 4);
    EXPECT_EQ(narrow, WidthOf(1));
}

TEST_F(CtrlTypesTest, BestFitAsksTheTypeOfTheRawCell) {
    m_grid.AddCellType(&m_type);
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(2);
    CUGCell cell;
    cell.SetText("abc");
    cell.SetCellType(900);
    m_grid.SetCell(0, 0, &cell);
    EXPECT_EQ(GRID_SUCCESS, m_grid.BestFit(0, 1, 10));
    EXPECT_EQ(36, WidthOf(0));
    EXPECT_EQ(6, WidthOf(1));
}

TEST_F(CtrlTypesTest, BestFitHoldsTheLastColumnInRangeAndRefusesAnEmptyRange) {
    Fill(3, 5);
    EXPECT_EQ(GRID_SUCCESS, m_grid.BestFit(2, 9, 1));
    EXPECT_EQ(GRID_ERROR, m_grid.BestFit(3, 9, 1));
    EXPECT_EQ(GRID_ERROR, m_grid.BestFit(2, 1, 1));
}

// Notes the focus that the update gives and takes.
class FocusType : public CUGCellType {
public:
    FocusType(int id, CallLog *log) : CUGCellType(id), m_log(log) {}
    int OnSetFocus(int col, long row, CUGCell *cell) override { return Told("set", col, row, cell); }
    int OnKillFocus(int col, long row, CUGCell *cell) override { return Told("kill", col, row, cell); }

private:
    int Told(const char *what, int col, long row, CUGCell *cell) {
        m_log->Note(what + std::to_string(col) + "." + std::to_string(row) + "=" + cell->GetText());
        return 0;
    }
    CallLog *m_log;
};

TEST_F(CtrlTypesTest, TheUpdateTakesTheFocusWithTheOldCellAndGivesItWithTheNew) {
    FocusType type(901, &m_log);
    m_grid.AddCellType(&type);
    m_grid.SetNumberCols(3);
    m_grid.SetNumberRows(3);
    for (int col : {1, 2}) {
        CUGCell cell;
        cell.SetText(col == 1 ? "one" : "two");
        cell.SetCellType(901);
        m_grid.SetCell(col, 1, &cell);
    }
    m_grid.GotoCell(1, 1);
    m_grid.GotoCell(2, 1);
    m_grid.GotoCell(0, 0);
    EXPECT_EQ("set1.1=one kill1.1=one set2.1=two kill2.1=two", m_log.Take());
}

} // namespace
