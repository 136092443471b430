// Where the windows above the cells stand, and what the corner's edges size: rules that need no window. All in
// pixels of the parent's client area.
#pragma once

#include <afx.h>

// A hint of this size hung on the point as the alignment word says (horizontal centre or right, vertical centre
// or bottom, else left and top), and shifted into the parent.
ORVANE_API RECT UGPlaceHint(POINT point, SIZE size, short alignment, const RECT &parent);

// The list of a cell: below it and as high as its items need, above it when there is more room there. Never
// higher than its place, so that the rest is reached by scrolling, and never lower than one item.
ORVANE_API RECT UGPlaceList(const RECT &cell, int clientHeight, int itemHeight, int count, int borderPx);

// Which headings a pointer in the corner could size, by its distance from the corner's bottom and right.
struct ORVANE_API UGCornerZone {
    UGCornerZone(int fromBottom, int fromRight);

    // Who has to be asked whether sizing is allowed.
    bool AsksHeight() const { return m_corner || m_bottom; }
    bool AsksWidth() const { return m_corner || m_right; }
    // What is sized by the answers: near both edges both, when both may be, else the edge that is nearer.
    bool SizesHeight(bool heightAllowed, bool widthAllowed) const;
    bool SizesWidth(bool heightAllowed, bool widthAllowed) const;

    bool m_bottom, m_right, m_corner;
};
