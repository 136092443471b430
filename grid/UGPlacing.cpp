#include "grid/UGPlacing.h"

#include "grid/UGDefine.h"

#include <algorithm>

namespace {

constexpr int kEdgePx = 5;   // from one edge: that heading is sized
constexpr int kCornerPx = 8; // from both edges: both are

// The start along one axis of something `size` long that hangs on `point`.
LONG Hung(LONG point, LONG size, bool centred, bool atEnd, LONG parentStart, LONG parentEnd) {
    LONG start = centred ? point - size / 2 : atEnd ? point - size : point;
    start = std::min(start, parentEnd - size);
    return std::max(start, parentStart);
}

} // namespace

RECT UGPlaceHint(POINT point, SIZE size, short alignment, const RECT &parent) {
    const LONG left = Hung(point.x, size.cx, alignment & UG_ALIGN_HCENTER, alignment & UG_ALIGN_RIGHT, parent.left,
                           parent.right);
    const LONG top = Hung(point.y, size.cy, alignment & UG_ALIGN_VCENTER, alignment & UG_ALIGN_BOTTOM, parent.top,
                          parent.bottom);
    return {left, top, left + size.cx, top + size.cy};
}

RECT UGPlaceList(const RECT &cell, int clientHeight, int itemHeight, int count, int borderPx) {
    const LONG wanted = static_cast<LONG>(itemHeight) * std::max(count, 1) + borderPx;
    const LONG least = itemHeight + borderPx;
    const LONG below = clientHeight - cell.bottom;
    if (wanted > below && cell.top > below)
        return {cell.left, cell.top - std::min(wanted, std::max(cell.top, least)), cell.right, cell.top};
    return {cell.left, cell.bottom, cell.right, cell.bottom + std::min(wanted, std::max(below, least))};
}

UGCornerZone::UGCornerZone(int fromBottom, int fromRight)
    : m_bottom(fromBottom <= kEdgePx), m_right(fromRight <= kEdgePx),
      m_corner(fromBottom <= kCornerPx && fromRight <= kCornerPx) {}

bool UGCornerZone::SizesHeight(bool heightAllowed, bool widthAllowed) const {
    return heightAllowed && (m_bottom || (m_corner && widthAllowed));
}

bool UGCornerZone::SizesWidth(bool heightAllowed, bool widthAllowed) const {
    return widthAllowed && (m_right || (m_corner && heightAllowed));
}
