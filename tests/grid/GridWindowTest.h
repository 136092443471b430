// The fixture of the grid's window tests: a control of 450 by 280 pixels of cells in a host window.
#pragma once

#include "RecordingGrid.h"
#include "RecordingSource.h"
#include "WindowTestApp.h"

#include <gtest/gtest.h>

#include <memory>

class GridWindowTest : public testing::Test {
protected:
    GridWindowTest();
    ~GridWindowTest() override;

    // Columns of 100 and rows of 20 pixels, fed by a source of its own; events up to here are forgotten.
    RecordingSource &Fill(int cols, long rows);
    // The middle of a cell in grid coordinates.
    POINT Middle(int col, long row);
    void ClickCell(int col, long row);
    void PressCell(int col, long row);
    void ReleaseCell(int col, long row);
    void DragToCell(int col, long row);

    CallLog m_log;
    HostWindow m_host;
    std::unique_ptr<RecordingSource> m_source;
    RecordingGrid m_grid;
};
