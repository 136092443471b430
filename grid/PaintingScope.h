// CPaintingScope: no painting of the grid for the length of a block. The outermost one redraws at its end, on the
// way out of an exception too.
#pragma once

#include "grid/UGCtrl.h"

class CPaintingScope {
public:
    explicit CPaintingScope(CUGCtrl *grid) : m_grid(grid), m_wasOn(grid->m_GI.m_paintingEnabled != 0) {
        m_grid->EnablePainting(0);
    }
    ~CPaintingScope() {
        if (m_wasOn)
            m_grid->EnablePainting(1);
    }
    CPaintingScope(const CPaintingScope &) = delete;
    CPaintingScope &operator=(const CPaintingScope &) = delete;

private:
    CUGCtrl *m_grid;
    bool m_wasOn;
};
