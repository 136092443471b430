// CUGGridInfo: the state block of one control. Every child window and every cell type holds a pointer to it and
// reads it without accessors, since painting runs for every visible cell.
//
// It knows no window: sizes are pixels, colours 0x00BBGGRR, cells are owned. What depends on the system (bar
// sizes, colours) is put in by the control.
#pragma once

#include "grid/UGAxis.h"
#include "grid/UGCell.h"
#include "grid/UGDataSource.h"
#include "grid/UGSelectionList.h"

#include <algorithm>
#include <memory>
#include <vector>

constexpr int kDataSourceSlots = 5;   // entry 0 is the control's own store
constexpr long kIndividualRowsMax = 64000; // from here on SetNumberRows goes over to uniform heights
// SetUniformRowHeight(0) still works at this count, one above the other threshold; hosts know both numbers.
constexpr long kRebuildHeightsMax = 64001;

class ORVANE_API CUGGridInfo {
public:
    CUGGridInfo();

    CUGAxis m_cols; // default size 100
    CUGAxis m_rows; // default size 20
    int m_userSizingMode = 2; // 0 none, 1 applied when the button is released, 2 live

    CUGCell m_gridDefault;
    std::vector<std::unique_ptr<CUGCell>> m_colDefaults; // one a column
    CUGCell m_headingDefault;
    std::vector<std::unique_ptr<CUGCell>> m_colHeadings; // row -1 of each column
    CUGCell m_cornerHeading;                             // also the model of new column headings
    CUGCell m_currentCell;                               // the current cell as read at the last update

    int m_topHeadingHeight; // default 20
    int m_sideHeadingWidth; // default 50; includes the locked columns
    int m_vScrollWidth = 16;
    int m_hScrollHeight = 16;
    bool m_hScrollShown = false;
    bool m_vScrollShown = false;

    int m_rowHighlight = 0;
    int m_multiSelect = 0;
    int m_currentCellStyle = 1; // bit 1 focus rectangle, bit 2 highlight colours
    int m_moveType = UG_MOVED_BY_PROGRAM;
    int m_3dBorderWidth = 1;
    int m_dotsPerInch = 96; // of the display, as the control found it at its creation
    HFONT m_defaultFont = nullptr; // borrowed
    int m_paintingEnabled = 1;
    int m_popupMenuEnabled = 0;
    int m_vScrollHint = 0;
    int m_hScrollHint = 0;
    int m_vScrollMode = 0; // 0 to 2
    int m_hScrollMode = 0; // 0 to 1
    long m_editRow = 0;
    int m_paintCol = -1; // the cell that the cell area has a type draw, -1 while it has none do so
    long m_paintRow = -1;
    int m_editCol = 0;
    int m_colTranslationEnabled = 1;
    int m_ballisticMode = 0; // 0 to 3
    int m_ballisticDelay = 0; // milliseconds
    int m_lockedCols = 0;
    int m_tabWidth = 0; // 0 while the tab bar is hidden
    CUGDataSource *m_sources[kDataSourceSlots] = {}; // borrowed but for entry 0, which the control owns
    int m_currentSource = 0;
    int m_scrollMargin = 1; // 0 for the length of a mouse move
    int m_adjusting = 0;
    int m_suppressFinish = 0; // an edit that loses the focus goes on

    CUGSelectionList m_selection;
    COLORREF m_systemColours[5] = {}; // as last put in
    bool m_hasSystemColours = false;

    // Puts the system's colours into the default cells of grid, columns and headings, where these do not have
    // a colour of their own, that is another than this operation put in last. Colours in the order text, back,
    // highlight text, highlight back of the cells, and back of the headings.
    void SetDefaultColours(COLORREF text, COLORREF back, COLORREF hText, COLORREF hBack, COLORREF heading);

    // The default sizes for a display of this resolution: they are meant for 96 dots an inch. A size that was
    // set before is kept.
    void ScaleDefaults(int dotsPerInch);
    // Makes default row and top heading as high as a line of text needs that is so high, where these still have
    // the default size. Does not shrink them.
    void FitDefaultsToText(int cellTextHeight, int headingTextHeight);

    // Gives the axis `count` columns: kept ones keep width, default and heading, new ones get copies of the
    // defaults. Locked columns that went are locked no more. All or nothing when memory runs out. The cursors
    // are the caller's.
    void ResizeColumns(int count);
    // The same for rows, with the change to uniform heights at the threshold.
    void ResizeRows(long count);

    // 1 gives all rows the default height; any other value gives each its own again. GRID_ERROR when there are
    // too many rows for that.
    int SetUniformRowHeight(int flag);
    int SetRowHeight(long row, int height);
    int GetRowHeight(long row, int *height) const;
    int SetColWidth(int col, int width);
    int GetColWidth(int col, int *width) const;

    // The own store where the current entry is empty: removing a source does not touch the current index.
    CUGDataSource *CurrentSource() const {
        return m_sources[m_currentSource] != nullptr ? m_sources[m_currentSource] : m_sources[0];
    }
};
