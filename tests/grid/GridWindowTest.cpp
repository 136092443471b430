#include "GridWindowTest.h"

GridWindowTest::GridWindowTest() {
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
    m_grid.SetFocus();
}

GridWindowTest::~GridWindowTest() {
    m_grid.DestroyWindow();
}

RecordingSource &GridWindowTest::Fill(int cols, long rows) {
    m_source = std::make_unique<RecordingSource>(&m_log, cols, rows);
    const int index = m_grid.AddDataSource(m_source.get());
    m_grid.SetDefaultDataSource(index);
    m_grid.SetGridUsingDataSource(index);
    PumpAll();
    m_grid.Take();
    m_log.Take();
    return *m_source;
}

POINT GridWindowTest::Middle(int col, long row) {
    RECT rect{};
    m_grid.GetCellRect(col, row, &rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void GridWindowTest::ClickCell(int col, long row) {
    PressCell(col, row);
    ReleaseCell(col, row);
}

void GridWindowTest::PressCell(int col, long row) {
    const POINT at = Middle(col, row);
    PressLeft(m_grid.Cells(), at.x, at.y);
}

void GridWindowTest::ReleaseCell(int col, long row) {
    const POINT at = Middle(col, row);
    ReleaseLeft(m_grid.Cells(), at.x, at.y);
}

void GridWindowTest::DragToCell(int col, long row) {
    const POINT at = Middle(col, row);
    MoveMouse(m_grid.Cells(), at.x, at.y, MK_LBUTTON);
}
