#include "grid/UGDrawRules.h"

#include "grid/UGDefine.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSideMarginPx = 3; // between text and the cell's left or right edge
constexpr int kEndMarginPx = 1;  // between text and the cell's top or bottom edge
constexpr int kGridLinePx = 1;   // what the default border takes of a row
constexpr int kUnscaledDpi = 96;
constexpr int kThinBits = 0;     // lowest bit of each family of lines, four sides each
constexpr int kMediumBits = 4;
constexpr int kThickBits = 8;

bool HasSide(int style, int family, int side) {
    return (style & (1 << (family + side))) != 0;
}

} // namespace

int UGBorderLine(int borderStyle, int side) {
    if (borderStyle <= 0)
        return 0;
    if (HasSide(borderStyle, kThickBits, side))
        return 3;
    if (HasSide(borderStyle, kMediumBits, side))
        return 2;
    return HasSide(borderStyle, kThinBits, side) ? 1 : 0;
}

void UGShrinkByBorder(RECT *rect, int borderStyle, int frameWidth) {
    if (borderStyle <= 0)
        return;
    const bool frame = (borderStyle & (UG_BDR_RECESSED | UG_BDR_RAISED)) != 0;
    int inset[4];
    for (int side = 0; side < 4; ++side) {
        inset[side] = UGBorderLine(borderStyle, side);
        if (frame && inset[side] < frameWidth)
            inset[side] = frameWidth;
    }
    rect->left += inset[0];
    rect->top += inset[1];
    rect->right -= inset[2];
    rect->bottom -= inset[3];
    if (rect->right < rect->left)
        rect->right = rect->left;
    if (rect->bottom < rect->top)
        rect->bottom = rect->top;
}

UGTextPlace UGPlaceText(const RECT &rect, int alignment, int textHeight) {
    if (alignment < 0)
        alignment = 0;
    UGTextPlace place{static_cast<int>(rect.left) + kSideMarginPx, static_cast<int>(rect.top) + kEndMarginPx, -1};
    if (alignment & UG_ALIGN_HCENTER) {
        place.x = static_cast<int>(rect.left + (rect.right - rect.left) / 2);
        place.horizontal = 0;
    } else if (alignment & UG_ALIGN_RIGHT) {
        place.x = static_cast<int>(rect.right) - kSideMarginPx;
        place.horizontal = 1;
    }
    if (alignment & UG_ALIGN_VCENTER)
        place.y = static_cast<int>(rect.top + (rect.bottom - rect.top - textHeight) / 2);
    else if (alignment & UG_ALIGN_BOTTOM)
        place.y = static_cast<int>(rect.bottom) - kEndMarginPx - textHeight;
    return place;
}

int UGScaleToDpi(int px, int dotsPerInch) {
    return dotsPerInch > 0 ? (px * dotsPerInch + kUnscaledDpi / 2) / kUnscaledDpi : px;
}

int UGLineHeight(int px, int dotsPerInch, int textHeight) {
    return std::max(UGScaleToDpi(px, dotsPerInch), textHeight + kEndMarginPx + kGridLinePx);
}

int UGPrintFontHeight(int fontHeight, int rectHeight, int rowHeight, int scale) {
    double height = fontHeight * (scale / 100.0);
    if (rowHeight > 0)
        height *= static_cast<double>(rectHeight) / rowHeight;
    const int rounded = static_cast<int>(std::lround(height));
    return rounded != 0 ? rounded : fontHeight < 0 ? -1 : 1;
}

bool UGNeedsEllipsis(const RECT &rect, int textWidth) {
    return textWidth + 2 * kSideMarginPx > rect.right - rect.left;
}
