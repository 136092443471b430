// What a scroll bar shows for an axis: range, page and position.
#pragma once

// The bar counts in its own steps once the axis is longer than this.
constexpr long kScaledBarFrom = 1000;

struct ORVANE_API UGScrollRange {
    int m_max = 0;  // the bar's range is 0 to m_max
    int m_page = 1;
    long m_scaledMax = 0; // the axis's end while the bar is scaled, else 0

    // Of the vertical bar. `spring` is the mode in which the thumb returns to its middle.
    static UGScrollRange Vertical(long maxLeading, int extent, int defaultSize, bool spring);
    // Of the horizontal bar, which is never scaled.
    static UGScrollRange Horizontal(long maxLeading, int extent, int defaultSize);

    // Both truncate. Reckoned in whole numbers, so that the bar's end is exactly the axis's end.
    int BarPosition(long leading) const;
    long AxisPosition(int bar) const;
    // Where the thumb stands of the whole, in percent, truncated; 0 for an axis that does not scroll.
    int Percent(int bar, long maxLeading) const;
};
