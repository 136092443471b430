#include "grid/UGEllipsisType.h"

#include "grid/UGCtrl.h"

#include <algorithm>

namespace {

constexpr int kDotPx = 2;      // height of a dot
constexpr int kDotStepPx = 3;  // from one dot to the next
constexpr int kDotsWidthPx = 7;

} // namespace

int CUGEllipsisType::GetEditArea(RECT *) {
    return 0;
}

int CUGEllipsisType::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) {
    if (updn) {
        const RECT button = ButtonRect(*rect);
        if (!::PtInRect(&button, *point)) {
            ForgetCell();
            return UGCT_NOT_HANDLED;
        }
        PressCell(col, row, *rect);
        return UGCT_HANDLED;
    }
    if (!m_pressed)
        return UGCT_NOT_HANDLED;
    const int pressedCol = m_btnCol;
    const long pressedRow = m_btnRow;
    m_ctrl->OnCellTypeNotify(GetID(), pressedCol, pressedRow, kEllipsisPressed, 0);
    ForgetCell();
    m_ctrl->RedrawCell(pressedCol, pressedRow);
    return UGCT_HANDLED;
}

int CUGEllipsisType::OnDClicked(int, long, RECT *, POINT *) {
    return 0;
}

int CUGEllipsisType::OnMouseMove(POINT *point, UINT flags) {
    if (!(flags & MK_LBUTTON) || m_btnCol < 0)
        return 0;
    const bool inside = ::PtInRect(&m_btnRect, *point) != FALSE;
    if (inside != m_pressed) {
        m_pressed = inside;
        m_ctrl->RedrawCell(m_btnCol, m_btnRow);
    }
    return inside ? UGCT_HANDLED : 0;
}

void CUGEllipsisType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    DrawTextBeside(dc, rect, cell, selected, current);
    const RECT button = ButtonRect(*rect);
    DrawFace(dc, button, LooksPressed(current));
    dc->FillSolidRect(button.left - 1, button.top, 1, button.bottom - button.top, ::GetSysColor(COLOR_BTNSHADOW));
    const int width = static_cast<int>(button.right - button.left);
    const int height = static_cast<int>(button.bottom - button.top);
    const int x = static_cast<int>(button.left) + (width - kDotsWidthPx) / 2;
    const int y = static_cast<int>(button.top) + height * 3 / 4;
    for (int dot = 0; dot < 3; ++dot)
        dc->FillSolidRect(x + dot * kDotStepPx, y, 1, std::min(kDotPx, static_cast<int>(button.bottom) - y),
                          ::GetSysColor(COLOR_BTNTEXT));
}
