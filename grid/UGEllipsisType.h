// CUGEllipsisType: text with a button of three dots. Pressing and releasing the button is told to the control.
#pragma once

#include "grid/UGButtonType.h"

constexpr int kEllipsisTypeId = 1002;
constexpr long kEllipsisPressed = 100; // the message of OnCellTypeNotify

class ORVANE_API CUGEllipsisType : public CUGButtonType {
public:
    CUGEllipsisType() : CUGButtonType(kEllipsisTypeId) {}

    int GetEditArea(RECT *rect) override; // the edit covers the button too
    int OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) override;
    int OnDClicked(int col, long row, RECT *rect, POINT *point) override;
    int OnMouseMove(POINT *point, UINT flags) override;
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;
};
