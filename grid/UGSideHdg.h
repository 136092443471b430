// CUGSideHdg: the headings of the rows, with the locked columns drawn beside them.
#pragma once

#include "grid/UGHeading.h"

class ORVANE_API CUGSideHdg : public CUGHeading {
    DECLARE_DYNAMIC(CUGSideHdg)

protected:
    // Without columns there are no records to head.
    bool HasParts() const override;
    CUGAxis &Axis() const override;
    int Along(CPoint point) const override { return point.y; }
    RECT Strip(long begin, long end) const override;
    LPCSTR SizeCursor() const override { return IDC_SIZENS; }
    void DrawOne(CDC *dc, long index, long begin, long end) override;
    int DrawSection() const override;
    bool CanSize(long index) override;
    void Sizing(long index, int *size) override;
    void Sized(long index, int *size) override;
    int StoreSize(long index, int size) override;
    void LClicked(long index, int updn) override;
    void RClicked(long index, int updn) override;
    void DClicked(long index) override;
    void PopupMenu(long index, CPoint screen) override;
};
