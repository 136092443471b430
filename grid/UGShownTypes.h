// The cell types that only show: progress bar, text as large as the cell, arrow.
#pragma once

#include "grid/UGCellType.h"

constexpr int kAutoFontTypeId = 4;
constexpr int kProgressTypeId = 5;
constexpr int kArrowTypeId = 8;

// The cell's number as a bar of 0 to 100. The text across it is the label when the style is 1, else the number.
class ORVANE_API CUGProgressType : public CUGCellType {
public:
    CUGProgressType();
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;
    // Of the cell's text, held within 0 to 100.
    static long ValueOf(const CUGCell *cell);
    CString ShownText(const CUGCell *cell) const;
};

// The text in the largest size at which it fits.
class ORVANE_API CUGAutoFontType : public CUGCellType {
public:
    CUGAutoFontType() : CUGCellType(kAutoFontTypeId) {}
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;
};

// An arrow that fills the cell, chosen by the extended style.
class ORVANE_API CUGArrowType : public CUGCellType {
public:
    enum Direction { kRight = 0, kLeft = 1, kUp = 2, kDown = 3 };

    CUGArrowType();
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;
};
