// CUGButtonType: what the cell types with a button at their right end have in common: where the button is, which
// cell it is pressed in, and how it is drawn.
#pragma once

#include "grid/UGCellType.h"

class ORVANE_API CUGButtonType : public CUGCellType {
public:
    explicit CUGButtonType(int id) : CUGCellType(id) {}

    int GetEditArea(RECT *rect) override; // the button and one pixel off the right end
    int OnKillFocus(int col, long row, CUGCell *cell) override;

    // As wide as the system's vertical scroll bar.
    static int ButtonWidth();
    static RECT ButtonRect(const RECT &cell);

protected:
    void PressCell(int col, long row, const RECT &cell);
    void ForgetCell();
    bool IsPressedCell(int col, long row) const { return m_btnCol == col && m_btnRow == row; }
    // How the button of the cell that is being painted looks. With whole-row highlight every cell of the row
    // counts as current, but only the one that was pressed has its button down.
    bool LooksPressed(int current) const;
    // Draws the cell without the button, then the button's face, raised or pressed.
    void DrawTextBeside(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current);
    static void DrawFace(CDC *dc, const RECT &button, bool pressed);
    // One of the system's controls, clipped: in a low cell their signs reach beyond the rectangle.
    static void DrawControl(CDC *dc, RECT rect, UINT kind, UINT state);

    bool m_pressed = false;
    RECT m_btnRect{};  // of the cell that was pressed, in grid coordinates
    int m_btnCol = -1; // -1 none
    long m_btnRow = -1;
};
