// How far one step of drag scrolling goes, by the pointer's distance outside the cell area.
#pragma once

// `position` and `extent` are pixels along the axis, `unit` the distance that counts as one. Ballistic mode 0
// goes by one, 1 by the distance, 2 by its square, 3 by its cube on rows and its square on columns. Negative
// is back; 0 while the pointer is inside. Within the first unit the step is one in every mode.
ORVANE_API long UGDragSteps(long position, long extent, int unit, int ballisticMode, bool rows);
