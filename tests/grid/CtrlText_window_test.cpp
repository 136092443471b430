// Finding, replacing and pasting text.
#include "GridWindowTest.h"

namespace {

class CtrlTextTest : public GridWindowTest {
protected:
    std::string Texts() {
        std::string all;
        for (const auto &row : m_source->m_rows)
            all += ::Join(row, ",") + "/";
        return all;
    }
};

TEST_F(CtrlTextTest, ANewSearchFindsTheFirstAndTheFollowingOnesGoOn) {
    RecordingSource &source = Fill(2, 6);
    source.m_rows[1][1] = source.m_rows[4][1] = "x";
    m_grid.GotoCol(1);
    EXPECT_EQ(GRID_SUCCESS, m_grid.FindDialogText("x", nullptr, false, false));
    EXPECT_EQ(1, m_grid.GetCurrentRow());
    EXPECT_EQ(GRID_SUCCESS, m_grid.FindDialogText("x", nullptr, false, false));
    EXPECT_EQ(4, m_grid.GetCurrentRow());
    EXPECT_EQ("src.FindFirst(1,x) src.FindNext(1,x)", m_log.Take());
}

TEST_F(CtrlTextTest, AClosingDialogMakesTheNextSearchNew) {
    RecordingSource &source = Fill(2, 6);
    source.m_rows[1][0] = "x";
    m_grid.FindDialogText("x", nullptr, false, false);
    EXPECT_EQ(1, m_grid.FindDialogText("x", nullptr, false, true));
    EXPECT_EQ(GRID_SUCCESS, m_grid.FindDialogText("x", nullptr, false, false));
    EXPECT_EQ("src.FindFirst(0,x) src.FindFirst(0,x)", m_log.Take());
}

TEST_F(CtrlTextTest, WhatIsNotFoundIsSaid) {
    Fill(2, 6);
    SystemBoxAnswer ok(IDOK);
    EXPECT_EQ(GRID_ERROR, m_grid.FindDialogText("y", nullptr, false, false));
    EXPECT_EQ("Not Found|Item not found", SystemBoxAnswer::Seen());
}

TEST_F(CtrlTextTest, ReplacingChangesTheCellThatWasFound) {
    RecordingSource &source = Fill(2, 6);
    source.m_rows[1][0] = source.m_rows[4][0] = "x";
    EXPECT_EQ(GRID_SUCCESS, m_grid.FindDialogText("x", "new", false, false));
    EXPECT_EQ("new", source.Text(0, 1));
    EXPECT_EQ("x", source.Text(0, 4));
}

TEST_F(CtrlTextTest, ReplacingAllGoesOnToTheLast) {
    RecordingSource &source = Fill(2, 6);
    source.m_rows[1][0] = source.m_rows[4][0] = source.m_rows[5][0] = "x";
    EXPECT_EQ(GRID_SUCCESS, m_grid.FindDialogText("x", "new", true, false));
    EXPECT_EQ("newnewnew", source.Text(0, 1) + source.Text(0, 4) + source.Text(0, 5));
    EXPECT_EQ(5, m_grid.GetCurrentRow());
}

TEST_F(CtrlTextTest, PastedTextFallsIntoCellsFromTheCurrentOneOn) {
    Fill(3, 4);
    m_grid.EnableMultiSelect(1);
    m_grid.GotoCell(1, 1);
    m_grid.PasteText("a\tb\r\nc\td\n");
    EXPECT_EQ("0.0,1.0,2.0/0.1,a,b/0.2,c,d/0.3,1.3,2.3/", Texts());
    EXPECT_EQ("1.1 2.1 1.2 2.2", m_grid.Selected());
}

TEST_F(CtrlTextTest, AnEmptyFieldClearsItsCell) {
    Fill(3, 3);
    m_grid.PasteText("a\t\tc\r\rz");
    EXPECT_EQ("a,,c/,1.1,2.1/z,1.2,2.2/", Texts());
}

TEST_F(CtrlTextTest, TheFieldBehindAClosingTabIsEmptyAndClearsItsCell) {
    Fill(3, 3);
    m_grid.PasteText("a\t\r\nb\t");
    EXPECT_EQ("a,,2.0/b,,2.1/0.2,1.2,2.2/", Texts());
    m_grid.PasteText("");
    EXPECT_EQ("a,,2.0/b,,2.1/0.2,1.2,2.2/", Texts());
}

TEST_F(CtrlTextTest, WhatDoesNotFitIsLeftOut) {
    Fill(2, 2);
    m_grid.EnableMultiSelect(1);
    m_grid.GotoCell(1, 1);
    m_grid.PasteText("a\tb\r\nc");
    EXPECT_EQ("0.0,1.0/0.1,a/", Texts());
    EXPECT_EQ("1.1", m_grid.Selected());
}

} // namespace
