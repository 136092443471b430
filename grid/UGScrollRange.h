// What a scroll bar shows for an axis: range, page and position, and the factors between bar and axis.
#pragma once

// The bar counts in its own steps once the axis is longer than this.
constexpr long kScaledBarFrom = 1000;

struct ORVANE_API UGScrollRange {
    int m_max = 0;  // the bar's range is 0 to m_max
    int m_page = 1;
    double m_toBar = 1;  // axis position times this is the bar's
    double m_toAxis = 1; // and back

    // Of the vertical bar. `spring` is the mode in which the thumb returns to its middle.
    static UGScrollRange Vertical(long maxLeading, int extent, int defaultSize, bool spring);
    // Of the horizontal bar, which is never scaled.
    static UGScrollRange Horizontal(long maxLeading, int extent, int defaultSize);

    int BarPosition(long leading) const { return static_cast<int>(leading * m_toBar); }
    long AxisPosition(int bar) const { return static_cast<long>(bar * m_toAxis); }
    // Where the thumb stands of the whole, in percent, truncated; 0 for an axis that does not scroll.
    int Percent(int bar, long maxLeading) const;
};
