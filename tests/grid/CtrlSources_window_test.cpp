// The table of data sources.
#include "GridWindowTest.h"

namespace {

class CtrlSourcesTest : public GridWindowTest {};

TEST_F(CtrlSourcesTest, TheTableTakesFourAndThenIsFull) {
    RecordingSource source(&m_log, 1, 1);
    std::string indices;
    for (int i = 0; i < 5; ++i)
        indices += std::to_string(m_grid.AddDataSource(&source)) + " ";
    EXPECT_EQ("1 2 3 4 -1 ", indices);
}

TEST_F(CtrlSourcesTest, AddingFillsTheFirstEmptyEntryAndTellsTheSourceItsControl) {
    RecordingSource a(&m_log, 1, 1), b(&m_log, 1, 1), c(&m_log, 1, 1);
    m_grid.AddDataSource(&a);
    m_grid.AddDataSource(&b);
    EXPECT_EQ(&m_grid, a.m_ctrl);
    EXPECT_EQ(GRID_SUCCESS, m_grid.RemoveDataSource(1));
    EXPECT_EQ(1, m_grid.AddDataSource(&c));
    EXPECT_EQ(&c, m_grid.GetDataSource(1));
    EXPECT_EQ(&b, m_grid.GetDataSource(2));
}

TEST_F(CtrlSourcesTest, AnEmptyEntryIsTheOwnStoreAndOutsideThereIsNone) {
    CUGDataSource *own = m_grid.GetDataSource(3);
    EXPECT_NE(nullptr, dynamic_cast<CUGMem *>(own));
    EXPECT_EQ(nullptr, m_grid.GetDataSource(0));
    EXPECT_EQ(nullptr, m_grid.GetDataSource(5));
    EXPECT_EQ(nullptr, m_grid.GetDataSource(-1));
}

TEST_F(CtrlSourcesTest, ADefaultOutsideTheTableOrOnAnEmptyEntryIsRefusedAndTheIndexStays) {
    RecordingSource source(&m_log, 1, 1);
    m_grid.AddDataSource(&source);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetDefaultDataSource(1));
    for (int index : {-1, 0, 2, 5}) {
        EXPECT_EQ(GRID_ERROR, m_grid.SetDefaultDataSource(index));
        EXPECT_EQ(1, m_grid.GetDefaultDataSource());
    }
}

TEST_F(CtrlSourcesTest, RemovingOutsideTheTableIsAnError) {
    EXPECT_EQ(GRID_ERROR, m_grid.RemoveDataSource(0));
    EXPECT_EQ(GRID_ERROR, m_grid.RemoveDataSource(5));
    EXPECT_EQ(GRID_SUCCESS, m_grid.RemoveDataSource(4));
}

TEST_F(CtrlSourcesTest, RemovingTheCurrentSourceDoesNotTouchTheCurrentIndex) {
    RecordingSource source(&m_log, 2, 2);
    m_grid.AddDataSource(&source);
    m_grid.SetDefaultDataSource(1);
    m_grid.SetGridUsingDataSource(1);
    m_grid.RemoveDataSource(1);
    EXPECT_EQ(1, m_grid.GetDefaultDataSource());
    // What is still shown then comes from the own store, as with any empty entry.
    CUGCell cell;
    EXPECT_EQ(GRID_ERROR, m_grid.GetCell(0, 0, &cell));
    EXPECT_EQ(GRID_ERROR, m_grid.GetCellRaw(0, 0, &cell));
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetCell(0, 0, &cell));
    m_grid.Update();
    PumpAll();
}

TEST_F(CtrlSourcesTest, TakingTheGridFromASourceAnswersByWhatIsMissing) {
    RecordingSource empty(&m_log, 0, 5);
    m_grid.AddDataSource(&empty);
    EXPECT_EQ(0, m_grid.SetGridUsingDataSource(0));
    EXPECT_EQ(0, m_grid.SetGridUsingDataSource(5));
    EXPECT_EQ(1, m_grid.SetGridUsingDataSource(2));
    EXPECT_EQ(2, m_grid.SetGridUsingDataSource(1));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=0x0", m_grid.State());
}

TEST_F(CtrlSourcesTest, TakingTheGridFromASourceSetsSizesAndHeadings) {
    RecordingSource source(&m_log, 3, 7);
    const int index = m_grid.AddDataSource(&source);
    m_grid.Take();
    EXPECT_EQ(0, m_grid.SetGridUsingDataSource(index));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=3x7", m_grid.State());
    EXPECT_EQ("F0F1F2", m_grid.Text(0, -1) + m_grid.Text(1, -1) + m_grid.Text(2, -1));
    EXPECT_EQ("SetCell(0,-1) SetCell(1,-1) SetCell(2,-1)", m_grid.Take());
}

// Answers no number of rows.
class Rowless : public RecordingSource {
public:
    explicit Rowless(CallLog *log) : RecordingSource(log, 2, 0) {}
    long GetNumRows() override { return -1; }
};

TEST_F(CtrlSourcesTest, ASourceThatDoesNotKnowItsRowsLeavesTheGridsRows) {
    m_grid.SetNumberRows(9);
    Rowless source(&m_log);
    m_grid.SetGridUsingDataSource(m_grid.AddDataSource(&source));
    EXPECT_EQ("cur=(0,0) view=(0,0) size=2x9", m_grid.State());
}

} // namespace
