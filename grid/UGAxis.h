// One axis of the grid: the columns or the rows, with their sizes, the current one and the first visible one.
//
// Everything that rows and columns do alike stands here once and knows no window. Positions are pixels from
// the leading edge of the cell area, right for columns and down for rows.
#pragma once

#include <vector>

// Positions further away than this are told as this far: sums of sizes do not overflow, and nothing is in view
// there.
constexpr long kFarPx = 1L << 29;

struct ORVANE_API CUGAxis {
    long m_count = 0;
    long m_current = 0;
    long m_last = 0;        // current one at the previous update
    long m_leading = 0;     // first visible: left column or top row
    long m_lastLeading = 0; // the same at the previous update
    long m_maxLeading = 0;  // largest allowed leading one
    int m_defaultSize = 0;  // pixels
    int m_extent = 0;       // pixels of the cell area
    bool m_uniform = false; // all have the default size and m_sizes is empty
    std::vector<int> m_sizes; // pixels each; a size of 0 hides a column

    int SizeOf(long index) const { return m_uniform ? m_defaultSize : m_sizes[index]; }
    bool Contains(long index) const { return index >= 0 && index < m_count; }

    // Uniform and of no size: nothing of any number of them is in view.
    bool AllHidden() const { return m_uniform && m_defaultSize == 0; }

    // Sum of the sizes of [first, end), at most kFarPx.
    long Span(long first, long end) const;

    // Pixel at which `index` begins, negative in front of the view. The count itself is where the last one ends.
    long PositionOf(long index) const;

    // The one under the pixel, and where it begins; -1 behind the last. Walks from the leading one.
    long At(int position, int *start = nullptr) const;

    // The last one of which a pixel is in view; at least the leading one. -1 with none at all.
    long LastVisible() const;

    // The largest leading one that the sizes need: with it the last one is just in view whole. 0 when all
    // fit, the last one when not even that fits.
    long ComputeMaxLeading() const;

    // The leading one that brings the current one into view. `margin` 1 asks for the whole of it, 0 is content
    // with a part, so that a click on a partly visible cell does not scroll.
    long LeadingForCurrent(int margin) const;

    // A page from `from`, which stays in view: the last one that still fits counted from it; at least one
    // step. May be m_count or -1 when there is nothing further.
    long PageForward(long from) const;
    long PageBack(long from) const;

    // The one whose trailing edge is strictly nearer than `tolerance` to the pixel, -1 for none. Where the
    // following ones are narrower than the tolerance the last of them answers, so that a hidden one can be
    // pulled open.
    long EdgeAt(int position, int tolerance, int *start = nullptr) const;

    // Where the one ends that begins at `begin`.
    long EndOf(long begin, long index) const;

    // Holds current and leading in range after a change of the count. True when the current one had to move.
    bool ClampToCount();
};
