// The rules of painting that need no device: what a border takes from a cell, where text stands, what shows.
// All rectangles are in the coordinates of the window that is painted, in pixels.
#pragma once

#include <afx.h>

// Takes the border's lines off the rectangle: on each side its widest line, or the 3D frame.
ORVANE_API void UGShrinkByBorder(RECT *rect, int borderStyle, int frameWidth);

// Thickness in pixels of the line at side 0 left, 1 top, 2 right, 3 bottom; 0 for none.
ORVANE_API int UGBorderLine(int borderStyle, int side);

// Where the text's reference point stands, and the device alignment that goes with it.
struct UGTextPlace {
    int x, y;       // y is the top of the text
    int horizontal; // -1 x is the left end, 0 the middle, 1 the right end
};
ORVANE_API UGTextPlace UGPlaceText(const RECT &rect, int alignment, int textHeight);

// Pixels for a length that is `px` at 96 dots an inch.
ORVANE_API int UGScaleToDpi(int px, int dotsPerInch);

// Height of a row or heading that is `px` high at 96 dots an inch: higher where a line of text of this height,
// with its margin and a grid line, would be cut.
ORVANE_API int UGLineHeight(int px, int dotsPerInch, int textHeight);

// Height of a font on paper: its height on the screen, of either sign, in the proportion of the rectangle's
// height to that of a row on the screen, times `scale` percent. Never 0, which is the system's choice.
ORVANE_API int UGPrintFontHeight(int fontHeight, int rectHeight, int rowHeight, int scale);

// True when a text of this width has to be shortened with "..." to stand in the rectangle.
ORVANE_API bool UGNeedsEllipsis(const RECT &rect, int textWidth);
