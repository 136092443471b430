#include "grid/UGSpinButtonType.h"

#include "grid/UGCtrl.h"

#include <cstdlib>

RECT CUGSpinButtonType::Half(const RECT &button, bool upper) {
    RECT half = button;
    const LONG middle = button.top + (button.bottom - button.top) / 2;
    (upper ? half.bottom : half.top) = middle;
    return half;
}

int CUGSpinButtonType::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) {
    if (!updn) {
        if (!m_pressed && m_btnCol < 0)
            return UGCT_NOT_HANDLED;
        ForgetCell();
        m_ctrl->RedrawCell(col, row);
        return UGCT_HANDLED;
    }
    const RECT button = ButtonRect(*rect);
    if (!::PtInRect(&button, *point) || IsReadOnly(col, row)) {
        ForgetCell();
        return UGCT_NOT_HANDLED;
    }
    const RECT upper = Half(button, true);
    m_upper = ::PtInRect(&upper, *point) != FALSE;
    PressCell(col, row, *rect);
    CUGCell cell;
    m_ctrl->GetCell(col, row, &cell);
    m_ctrl->OnCellTypeNotify(GetID(), col, row, m_upper ? kSpinUp : kSpinDown, std::atol(cell.GetText()));
    m_ctrl->RedrawCell(col, row);
    return UGCT_HANDLED;
}

int CUGSpinButtonType::OnDClicked(int col, long row, RECT *rect, POINT *point) {
    return OnLClicked(col, row, 1, rect, point);
}

int CUGSpinButtonType::OnMouseMove(POINT *point, UINT flags) {
    return flags & MK_LBUTTON ? OnMouseMoveSpin(point) : 0;
}

int CUGSpinButtonType::OnMouseMoveSpin(POINT *point) {
    if (m_btnCol < 0)
        return 0;
    const RECT half = Half(m_btnRect, m_upper);
    const bool inside = ::PtInRect(&half, *point) != FALSE;
    if (inside != m_pressed) {
        m_pressed = inside;
        m_ctrl->RedrawCell(m_btnCol, m_btnRow);
    }
    return inside ? UGCT_HANDLED : 0;
}

void CUGSpinButtonType::DrawHalf(CDC *dc, const RECT &button, bool upper, bool pressed) {
    DrawControl(dc, Half(button, upper), DFC_SCROLL,
                (upper ? DFCS_SCROLLUP : DFCS_SCROLLDOWN) | (pressed ? DFCS_PUSHED : 0));
}

void CUGSpinButtonType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    DrawTextBeside(dc, rect, cell, selected, current);
    const RECT button = ButtonRect(*rect);
    const bool pressed = LooksPressed(current);
    DrawHalf(dc, button, true, pressed && m_upper);
    DrawHalf(dc, button, false, pressed && !m_upper);
}
