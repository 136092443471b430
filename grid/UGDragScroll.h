// How far one step of drag scrolling goes, by the pointer's distance outside the cell area.
#pragma once

struct ORVANE_API UGDragStep {
    long m_steps = 0;     // negative is back; 0 while the pointer is inside
    bool m_waits = false; // a step by one, behind which the scrolling pauses for the delay
};

// `position` and `extent` are pixels along the axis, `unit` the distance that counts as one. Ballistic mode 0
// goes by one, 1 by the distance, 2 by its square, 3 by its cube on rows and its square on columns. Within the
// first unit the step is one in every mode.
ORVANE_API UGDragStep UGDragStepOf(long position, long extent, int unit, int ballisticMode, bool rows);

// Where the step leads from `current`. It may lie outside the axis, and is never further than can be told.
ORVANE_API long UGDragTarget(long current, long steps);
