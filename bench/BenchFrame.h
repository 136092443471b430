// CBenchFrame: the window that everything measured stands in, without a border, so that its size is its
// client's. The frame deletes itself with its window.
#pragma once

#include <afxwin.h>

class CBenchFrame : public CFrameWnd {
public:
    static constexpr int kWidthPx = 1600, kHeightPx = 1000;

    explicit CBenchFrame(int widthPx = kWidthPx, int heightPx = kHeightPx);
    static CRect Client() { return CRect(0, 0, kWidthPx, kHeightPx); }
};

// Begins the framework, which an application object must stand for.
void BeginBench();
