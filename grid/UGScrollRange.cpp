#include "grid/UGScrollRange.h"

namespace {

int PageOf(int extent, int defaultSize) {
    return defaultSize > 0 ? extent / defaultSize : 1;
}

} // namespace

UGScrollRange UGScrollRange::Vertical(long maxLeading, int extent, int defaultSize, bool spring) {
    UGScrollRange range;
    if (spring) {
        range.m_max = 2;
    } else if (maxLeading > kScaledBarFrom) {
        range.m_max = kScaledBarFrom;
        range.m_toBar = static_cast<double>(kScaledBarFrom) / maxLeading;
        range.m_toAxis = static_cast<double>(maxLeading) / kScaledBarFrom;
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

int UGScrollRange::Percent(int bar, long maxLeading) const {
    const double whole = maxLeading * m_toBar;
    return whole > 0 ? static_cast<int>(bar / whole * 100) : 0;
}
