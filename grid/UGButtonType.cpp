#include "grid/UGButtonType.h"

#include "grid/UGCtrl.h"

#include <algorithm>
#include <utility>

int CUGButtonType::ButtonWidth() {
    return ::GetSystemMetrics(SM_CXVSCROLL);
}

RECT CUGButtonType::ButtonRect(const RECT &cell) {
    RECT button = cell;
    button.left = std::max(button.right - ButtonWidth(), cell.left);
    return button;
}

int CUGButtonType::GetEditArea(RECT *rect) {
    rect->right = std::max<LONG>(rect->right - ButtonWidth() - 1, rect->left);
    return 0;
}

int CUGButtonType::OnKillFocus(int col, long row, CUGCell *cell) {
    ForgetCell();
    return CUGCellType::OnKillFocus(col, row, cell);
}

void CUGButtonType::PressCell(int col, long row, const RECT &cell) {
    m_btnRect = ButtonRect(cell);
    m_btnCol = col;
    m_btnRow = row;
    m_pressed = true;
    m_ctrl->RedrawCell(col, row);
}

// A button that was still pressed comes up, on the screen too.
void CUGButtonType::ForgetCell() {
    const int col = std::exchange(m_btnCol, -1);
    const long row = std::exchange(m_btnRow, -1);
    if (std::exchange(m_pressed, false))
        m_ctrl->RedrawCell(col, row);
}

bool CUGButtonType::LooksPressed(int current) const {
    return m_pressed && current && (m_GI->m_paintCol < 0 || IsPressedCell(m_GI->m_paintCol, m_GI->m_paintRow));
}

void CUGButtonType::DrawTextBeside(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    RECT text = *rect;
    text.right = std::max<LONG>(text.right - ButtonWidth() - 1, text.left);
    // The strip between text and button belongs to the cell.
    RECT strip = *rect;
    strip.left = text.right;
    dc->FillSolidRect(&strip, IsHighlighted(selected, current) ? cell->GetHBackColor() : cell->GetBackColor());
    CUGCellType::OnDraw(dc, &text, cell, selected, current);
}

void CUGButtonType::DrawFace(CDC *dc, const RECT &button, bool pressed) {
    RECT face = button;
    dc->FillSolidRect(&face, ::GetSysColor(COLOR_BTNFACE));
    ::DrawEdge(dc->GetSafeHdc(), &face, pressed ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
}

void CUGButtonType::DrawControl(CDC *dc, RECT rect, UINT kind, UINT state) {
    const int saved = ::SaveDC(dc->GetSafeHdc());
    ::IntersectClipRect(dc->GetSafeHdc(), rect.left, rect.top, rect.right, rect.bottom);
    ::DrawFrameControl(dc->GetSafeHdc(), &rect, kind, state);
    ::RestoreDC(dc->GetSafeHdc(), saved);
}
