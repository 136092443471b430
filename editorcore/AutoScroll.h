// How far a heading selection that is dragged beyond the cells goes in one step: one at the edge, and further out
// the square of the distance in units of the axis, so that the speed grows with it. Window-free.
#pragma once

// `position` and `extent` are pixels of the cell area. Negative is towards the start; 0 while the position lies
// between the edges.
ORVANE_API long UGRowsPastEdge(int position, int extent);
ORVANE_API long UGColsPastEdge(int position, int extent);
