// What must hold of a grid control between any two events, whatever came before.
#pragma once

#include "RecordingGrid.h"

#include <string>

// A grid whose child windows can be looked into.
class ProbedGrid : public RecordingGrid {
public:
    const CUGGrid &CellArea() const { return m_grid; }
    const CUGTopHdg &TopHeadingPart() const { return m_topHdg; }
    const CUGSideHdg &SideHeadingPart() const { return m_sideHdg; }
    const CUGCnrBtn &CornerPart() const { return m_cornerBtn; }
    const CUGEdit &EditPart() const { return m_grid.m_edit; }
    bool m_readsFail = false; // a cell that cannot be read is told as one that is not joined
    // The open drop list, or null. Looking for a window asks the system, so it is looked for only while one may
    // stand; the same holds of an edit that nobody knows.
    HWND List();
    HWND LostEdit();

    int OnSetupEditWindow(int col, long row, RECT *rect, CUGCell *cell, DWORD *style, int flag) override;
    void OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) override;

private:
    bool m_editMayStand = false;
    bool m_listMayStand = false;
};

// The first rule that the control breaks, with the values at hand; empty while all hold. `turn` chooses the
// cells of which samples are taken.
std::string BrokenInvariant(ProbedGrid &grid, unsigned turn);
