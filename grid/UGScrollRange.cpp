#include "grid/UGScrollRange.h"

#include <algorithm>

namespace {

// At least one: in a view that is smaller than one step the bar must still reach the axis's end.
int PageOf(int extent, int defaultSize) {
    return defaultSize > 0 ? std::max(extent / defaultSize, 1) : 1;
}

} // namespace

UGScrollRange UGScrollRange::Vertical(long maxLeading, int extent, int defaultSize, bool spring) {
    UGScrollRange range;
    if (spring) {
        range.m_max = 2;
    } else if (maxLeading > kScaledBarFrom) {
        range.m_max = kScaledBarFrom;
        range.m_scaledMax = maxLeading;
    } else {
        range.m_page = PageOf(extent, defaultSize);
        range.m_max = static_cast<int>(maxLeading) + range.m_page - 1;
    }
    return range;
}

UGScrollRange UGScrollRange::Horizontal(long maxLeading, int extent, int defaultSize) {
    UGScrollRange range;
    range.m_page = PageOf(extent, defaultSize);
    range.m_max = static_cast<int>(maxLeading) + range.m_page - 1;
    return range;
}

int UGScrollRange::BarPosition(long leading) const {
    if (m_scaledMax == 0)
        return static_cast<int>(leading);
    return static_cast<int>(static_cast<long long>(leading) * kScaledBarFrom / m_scaledMax);
}

long UGScrollRange::AxisPosition(int bar) const {
    if (m_scaledMax == 0)
        return bar;
    return static_cast<long>(static_cast<long long>(bar) * m_scaledMax / kScaledBarFrom);
}

int UGScrollRange::Percent(int bar, long maxLeading) const {
    const int whole = BarPosition(maxLeading);
    return whole > 0 ? bar * 100 / whole : 0;
}
