// CUGSpinButtonType: text with a button of two halves, told to the control as they are pressed.
#pragma once

#include "grid/UGButtonType.h"

constexpr int kSpinTypeId = 6;
constexpr long kSpinUp = 16; // messages of OnCellTypeNotify; the parameter is the cell's value
constexpr long kSpinDown = 17;

class ORVANE_API CUGSpinButtonType : public CUGButtonType {
public:
    CUGSpinButtonType() : CUGButtonType(kSpinTypeId) {}

    int OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) override;
    int OnDClicked(int col, long row, RECT *rect, POINT *point) override;
    int OnMouseMove(POINT *point, UINT flags) override;
    void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) override;

    // The pressed half unpresses when the pointer leaves it and presses again on return.
    virtual int OnMouseMoveSpin(POINT *point);

private:
    static RECT Half(const RECT &button, bool upper);
    void DrawHalf(CDC *dc, const RECT &button, bool upper, bool pressed);

    bool m_upper = false; // which half was pressed
};
