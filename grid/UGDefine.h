// Result codes and selectors that the grid, its data sources and its cell types share.
#pragma once

// Results of grid and data source operations. Callers test for nonzero, so every other value is a failure.
constexpr int GRID_SUCCESS = 0;
constexpr int GRID_ERROR = 1;            // any failure
constexpr int GRID_REFUSED = 2;          // a notification vetoed a move
constexpr int GRID_BAD_ARGUMENT = 3;     // an unknown selector
constexpr int GRID_NOT_IMPLEMENTED = -1; // the answer of an abstract operation

// What `how` means to the four move operations of the control.
enum UGMove {
    UG_MOVE_BACK = 0,         // up or left by one
    UG_MOVE_FORWARD = 1,      // down or right by one
    UG_MOVE_PAGE_BACK = 2,    // page up or left
    UG_MOVE_PAGE_FORWARD = 3, // page down or right
    UG_MOVE_FIRST = 4,
    UG_MOVE_LAST = 5,
};

// What caused the current cell to move; the selection follows the cause.
enum UGMoveType {
    UG_MOVED_BY_PROGRAM = 0,
    UG_MOVED_BY_KEY = 1,
    UG_MOVED_BY_CLICK = 2,
    UG_MOVED_BY_DRAG = 3,
};

// Data types of a cell.
constexpr int UGCELL_DATA_TEXT = 0;
constexpr int UGCELL_DATA_NUMBER = 2;

// Alignment bits. A cell with no vertical bit is at the top.
constexpr short UG_ALIGN_LEFT = 1;
constexpr short UG_ALIGN_RIGHT = 2;
constexpr short UG_ALIGN_HCENTER = 4;
constexpr short UG_ALIGN_BOTTOM = 16;
constexpr short UG_ALIGN_VCENTER = 32;

// Border bits: three thicknesses of line by side, and two 3D frames.
constexpr int UG_BDR_LTHIN = 1;
constexpr int UG_BDR_TTHIN = 2;
constexpr int UG_BDR_RTHIN = 4;
constexpr int UG_BDR_BTHIN = 8;
constexpr int UG_BDR_RECESSED = 4096;
constexpr int UG_BDR_RAISED = 8192;

// Extended style bits of the base cell type.
constexpr int UG_STYLE_WORDWRAP = 2;
constexpr int UG_STYLE_ELLIPSIS = 4;     // shorten with "..."
constexpr int UG_STYLE_LABEL = 8;        // draw the label in place of the text
constexpr int UG_STYLE_KEEP_BITMAP = 16; // leave the bitmap's background as it is

// Sections of the control as notifications and painting name them.
constexpr int UG_SECTION_GRID = 1;
constexpr int UG_SECTION_TOPHDG = 2;
constexpr int UG_SECTION_SIDEHDG = 3;
