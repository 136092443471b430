// Reading and writing cells through their layers.
#include "GridWindowTest.h"

namespace {

class CtrlCellsTest : public GridWindowTest {
protected:
    // "text/align" of a layered read.
    std::string Read(int col, long row) {
        CUGCell cell;
        const int result = m_grid.GetCell(col, row, &cell);
        return std::to_string(result) + ":" + cell.GetText() + "/" + std::to_string(cell.GetAlignment());
    }
    std::string ReadRaw(int col, long row) {
        CUGCell cell;
        cell.SetText("rest");
        cell.SetAlignment(77);
        const int result = m_grid.GetCellRaw(col, row, &cell);
        return std::to_string(result) + ":" + cell.GetText() + "/" + std::to_string(cell.GetAlignment());
    }
    void SetColDefaultOf(int col, short dataCol, short index) {
        CUGCell cell;
        m_grid.GetColDefault(col, &cell);
        cell.SetColTranslation(dataCol);
        cell.SetDataSrcIndex(index);
        m_grid.SetColDefault(col, &cell);
    }
};

TEST_F(CtrlCellsTest, RowEqualToTheNumberOfRowsIsAnErrorAndLeavesTheCell) {
    Fill(2, 3);
    CUGCell cell;
    cell.SetText("mine");
    EXPECT_EQ(GRID_ERROR, m_grid.GetCell(0, 3, &cell));
    EXPECT_STREQ("mine", cell.GetText());
    EXPECT_EQ(GRID_ERROR, m_grid.GetCell(2, 0, &cell));
    EXPECT_STREQ("mine", cell.GetText());
}

TEST_F(CtrlCellsTest, AReadOutsideTheTableDoesNotReachTheLastLayer) {
    Fill(2, 3);
    m_grid.m_notesGetCell = true;
    CUGCell cell;
    m_grid.GetCell(0, 3, &cell);
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlCellsTest, TheCornerIsTheHeadingDefaultMergedWithTheCornerHeading) {
    Fill(2, 3);
    CUGCell cell;
    cell.SetText("corner");
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetCell(-1, -1, &cell));
    EXPECT_EQ("0:corner/36", Read(-1, -1));
    cell.ClearAll();
    cell.SetAlignment(UG_ALIGN_RIGHT);
    m_grid.SetCell(-1, -1, &cell);
    EXPECT_EQ("0:/2", Read(-1, -1));
}

TEST_F(CtrlCellsTest, AColumnHeadingReadsNoSource) {
    RecordingSource &source = Fill(2, 3);
    source.m_reads = 0;
    EXPECT_EQ("0:F1/36", Read(1, -1));
    EXPECT_EQ(0, source.m_reads);
}

TEST_F(CtrlCellsTest, TheColumnDefaultLiesBelowTheSource) {
    Fill(2, 3);
    CUGCell cell;
    m_grid.GetColDefault(1, &cell);
    cell.SetText("default");
    cell.SetAlignment(UG_ALIGN_RIGHT);
    m_grid.SetColDefault(1, &cell);
    EXPECT_EQ("0:1.2/2", Read(1, 2));
    m_source->m_rows[2][1] = "";
    EXPECT_EQ("0:/2", Read(1, 2)); // the source itself blanks it
}

TEST_F(CtrlCellsTest, ATranslationAloneReadsTheCurrentSource) {
    Fill(3, 3);
    SetColDefaultOf(0, 2, -1);
    EXPECT_EQ("0:2.1/1", Read(0, 1));
}

TEST_F(CtrlCellsTest, AnIndexReadsThatEntryWithTheColumnOrItsTranslation) {
    Fill(3, 3);
    RecordingSource other(&m_log, 3, 3);
    other.m_rows[1] = {"a", "b", "c"};
    const int index = m_grid.AddDataSource(&other);
    SetColDefaultOf(0, -1, static_cast<short>(index));
    SetColDefaultOf(1, 2, static_cast<short>(index));
    EXPECT_EQ("0:a/1", Read(0, 1));
    EXPECT_EQ("0:c/1", Read(1, 1));
    EXPECT_EQ("0:2.1/1", Read(2, 1));
    // Raw reads and writes do not look at a column's own source: those are for display.
    EXPECT_EQ("0:0.1/-1", ReadRaw(0, 1));
    m_grid.RemoveDataSource(index);
}

TEST_F(CtrlCellsTest, TheSideHeadingReadsTheCurrentSourceOverTheHeadingDefault) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(3);
    EXPECT_EQ("1:/36", Read(-1, 1));
    CUGCell cell;
    cell.SetText("side");
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetCell(-1, 1, &cell));
    EXPECT_EQ("0:side/36", Read(-1, 1));
    EXPECT_EQ("1:/36", Read(-1, 0));
}

TEST_F(CtrlCellsTest, TheNotificationIsTheLastLayerAndSeesEverything) {
    Fill(2, 3);
    std::string seen;
    m_grid.m_onGetCell = [&](CUGCell *cell) {
        seen = cell->GetText();
        cell->SetText("changed");
    };
    EXPECT_EQ("0:changed/1", Read(1, 2));
    EXPECT_EQ("1.2", seen);
    m_grid.m_onGetCell = nullptr;
}

TEST_F(CtrlCellsTest, RawReadsAreTheSourceAlone) {
    Fill(2, 3);
    m_grid.m_notesGetCell = true;
    EXPECT_EQ("0:1.2/-1", ReadRaw(1, 2));
    EXPECT_EQ("1:/-1", ReadRaw(1, 3));
    EXPECT_EQ("0:F1/-1", ReadRaw(1, -1));
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlCellsTest, RawReadsAndWritesFollowTheTranslationOnlyWhileItIsEnabled) {
    Fill(3, 3);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetColTranslation(0, 2));
    EXPECT_EQ("0:2.1/-1", ReadRaw(0, 1));
    CUGCell cell;
    cell.SetText("x");
    m_grid.SetCell(0, 1, &cell);
    m_grid.EnableColTranslation(0);
    EXPECT_EQ("0:0.1/-1", ReadRaw(0, 1));
    m_grid.SetCell(0, 1, &cell);
    EXPECT_EQ("src.SetCell(2,1,x) src.SetCell(0,1,x)", m_log.Take());
}

TEST_F(CtrlCellsTest, TheTranslationAnswersForTheColumn) {
    Fill(3, 3);
    m_grid.SetColTranslation(1, 0);
    EXPECT_EQ(0, m_grid.GetDataColNumber(1));
    EXPECT_EQ(2, m_grid.GetDataColNumber(2));
    EXPECT_EQ(-1, m_grid.GetDataColNumber(3));
    EXPECT_EQ(-1, m_grid.GetDataColNumber(-1));
    EXPECT_EQ(GRID_ERROR, m_grid.SetColTranslation(3, 0));
}

TEST_F(CtrlCellsTest, AVetoedWriteIsAnErrorAndReachesNoSource) {
    Fill(2, 3);
    m_grid.m_vetoes = {"SetCell"};
    CUGCell cell;
    cell.SetText("x");
    EXPECT_EQ(GRID_ERROR, m_grid.SetCell(0, 0, &cell));
    EXPECT_EQ(GRID_ERROR, m_grid.SetCell(0, -1, &cell));
    EXPECT_EQ("", m_log.Take());
    EXPECT_EQ("F0", m_grid.Text(0, -1));
}

TEST_F(CtrlCellsTest, AWriteOutsideTheTableAsksNobody) {
    Fill(2, 3);
    CUGCell cell;
    EXPECT_EQ(GRID_ERROR, m_grid.SetCell(0, 3, &cell));
    EXPECT_EQ(GRID_ERROR, m_grid.SetCell(2, 0, &cell));
    EXPECT_EQ("", m_grid.Take());
}

TEST_F(CtrlCellsTest, QuickTextReplacesTheTextAndKeepsTheRest) {
    m_grid.SetNumberCols(2);
    m_grid.SetNumberRows(3);
    CUGCell cell;
    cell.SetText("old");
    cell.SetAlignment(UG_ALIGN_RIGHT);
    m_grid.SetCell(1, 1, &cell);
    EXPECT_EQ(GRID_SUCCESS, m_grid.QuickSetText(1, 1, "new"));
    EXPECT_EQ("0:new/2", ReadRaw(1, 1));
    EXPECT_EQ(GRID_ERROR, m_grid.QuickSetText(1, 3, "new"));
}

TEST_F(CtrlCellsTest, DefaultsAreWholeCopiesAndReadingClearsFirst) {
    Fill(2, 3);
    CUGCell cell;
    cell.SetAlignment(UG_ALIGN_RIGHT);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetGridDefault(&cell));
    CUGCell read;
    read.SetText("rest");
    EXPECT_EQ(GRID_SUCCESS, m_grid.GetGridDefault(&read));
    EXPECT_STREQ("", read.GetText());
    EXPECT_EQ(UG_ALIGN_RIGHT, read.GetAlignment());
    EXPECT_EQ(-1, read.GetBorder());
    // A later change of the grid default does not reach columns that stand.
    EXPECT_EQ("0:0.0/1", Read(0, 0));
    m_grid.SetNumberCols(3);
    CUGCell third;
    m_grid.GetColDefault(2, &third);
    EXPECT_EQ(UG_ALIGN_RIGHT, third.GetAlignment());
    EXPECT_EQ(GRID_ERROR, m_grid.GetColDefault(3, &third));
    EXPECT_EQ(GRID_ERROR, m_grid.SetColDefault(-1, &third));
}

TEST_F(CtrlCellsTest, NewColumnHeadingsAreCopiesOfTheCorner) {
    CUGCell cell;
    cell.SetText("model");
    m_grid.SetCell(-1, -1, &cell);
    m_grid.SetNumberCols(1);
    m_grid.SetNumberRows(1);
    EXPECT_EQ("0:model/36", Read(0, -1));
}

TEST_F(CtrlCellsTest, TheStartDefaults) {
    CUGCell cell;
    m_grid.GetGridDefault(&cell);
    EXPECT_EQ(UGCELL_DATA_TEXT, cell.GetDataType());
    EXPECT_EQ(0, cell.GetReadOnly());
    EXPECT_EQ(1, cell.GetAlignment());
    EXPECT_EQ(12, cell.GetBorder());
    EXPECT_EQ(::GetSysColor(COLOR_WINDOWTEXT), cell.GetTextColor());
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), cell.GetHBackColor());
    m_grid.GetHeadingDefault(&cell);
    EXPECT_EQ(36, cell.GetAlignment());
    EXPECT_EQ(8192, cell.GetBorder());
    EXPECT_EQ(0u, cell.GetTextColor());
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), cell.GetBackColor());
}

TEST_F(CtrlCellsTest, TheHeadingDefaultLiesBelowEveryHeading) {
    Fill(2, 2);
    CUGCell cell, read;
    cell.SetAlignment(UG_ALIGN_RIGHT);
    EXPECT_EQ(GRID_SUCCESS, m_grid.SetHeadingDefault(&cell));
    m_grid.GetHeadingDefault(&read);
    EXPECT_EQ(UG_ALIGN_RIGHT, read.GetAlignment());
    EXPECT_EQ(-1, read.GetBorder()); // a whole copy
    std::string alignments;
    for (const auto &[col, row] : {std::pair(0, -1L), std::pair(-1, 0L), std::pair(-1, -1L), std::pair(0, 0L)}) {
        m_grid.GetCell(col, row, &read);
        alignments += std::to_string(read.GetAlignment()) + " ";
    }
    EXPECT_EQ("2 2 2 1 ", alignments);
}

} // namespace
