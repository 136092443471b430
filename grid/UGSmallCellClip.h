// CUGSmallCellClip: for the length of a block, drawing stays within a cell that is small. Signs and frames do not shrink
// below some pixels, and would end up in the cells around.
#pragma once

#include <afxwin.h>

class CUGSmallCellClip {
public:
    CUGSmallCellClip(CDC *dc, const RECT &cell) : m_dc(dc->GetSafeHdc()) {
        if (cell.right - cell.left >= kSmallPx && cell.bottom - cell.top >= kSmallPx)
            return;
        m_saved = ::SaveDC(m_dc);
        ::IntersectClipRect(m_dc, static_cast<int>(cell.left), static_cast<int>(cell.top), static_cast<int>(cell.right),
                            static_cast<int>(cell.bottom));
    }
    ~CUGSmallCellClip() {
        if (m_saved != 0)
            ::RestoreDC(m_dc, m_saved);
    }
    CUGSmallCellClip(const CUGSmallCellClip &) = delete;
    CUGSmallCellClip &operator=(const CUGSmallCellClip &) = delete;

private:
    static constexpr int kSmallPx = 10; // lower or narrower cells are clipped

    HDC m_dc;
    int m_saved = 0;
};
