// CUGCellDrawScope: within a block a cell is drawn; after it the device context is as it was, so that each type begins
// with the same state whatever its neighbour left. Drawing stays within a cell that is small: signs and frames do not
// shrink below some pixels, and would end up in the cells around.
#pragma once

#include <afxwin.h>

class CUGCellDrawScope {
public:
    CUGCellDrawScope(CDC *dc, const RECT &cell) : m_dc(dc->GetSafeHdc()), m_saved(::SaveDC(m_dc)) {
        if (cell.right - cell.left < kSmallPx || cell.bottom - cell.top < kSmallPx)
            ::IntersectClipRect(m_dc, static_cast<int>(cell.left), static_cast<int>(cell.top),
                                static_cast<int>(cell.right), static_cast<int>(cell.bottom));
    }
    ~CUGCellDrawScope() {
        if (m_saved != 0)
            ::RestoreDC(m_dc, m_saved);
    }
    CUGCellDrawScope(const CUGCellDrawScope &) = delete;
    CUGCellDrawScope &operator=(const CUGCellDrawScope &) = delete;

private:
    static constexpr int kSmallPx = 10; // lower or narrower cells are clipped

    HDC m_dc;
    int m_saved;
};
