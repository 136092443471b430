// CUGCheckBoxType: a box that stands for the cell's number, 0 or anything else, with the text beside it.
#pragma once

#include "grid/UGCellType.h"

constexpr int kCheckBoxTypeId = 1;
// Extended style bits: how the box looks.
constexpr int kCheckRecessed = 256;
constexpr int kCheckRaised = 512;
constexpr int kCheckFilled = 4096; // the mark is a filled square rather than a tick

class ORVANE_API CUGCheckBoxType : public CUGCellType {
public:
    CUGCheckBoxType();

    int OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) override;
    int OnDClicked(int col, long row, RECT *rect, POINT *point) override;
    int OnKeyDown(UINT *key) override;
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;

    // In the cell's coordinates; empty when the cell is too low for a box.
    static RECT BoxRect(const RECT &cell);

private:
    int Toggle(int col, long row);
    static void DrawBox(CDC *dc, RECT box, int style);
    static void DrawMark(CDC *dc, const RECT &box, bool filled);
};
