#include "grid/UGCheckBoxType.h"

#include "grid/UGCtrl.h"

namespace {

constexpr int kBoxPx = 12;
constexpr int kLowCellPx = 18; // in a lower cell the box shrinks
constexpr int kLowMarginPx = 6;
constexpr int kSmallestBoxPx = 6;
constexpr int kLeftPx = 3;
constexpr int kSmallMarkBoxPx = 10; // a smaller box leaves less room around its mark
constexpr int kSmallestTickPx = 4;  // below that a tick is a blot: a square stands for it

} // namespace

CUGCheckBoxType::CUGCheckBoxType() : CUGCellType(kCheckBoxTypeId) {
    m_canTextEdit = 0;
}

RECT CUGCheckBoxType::BoxRect(const RECT &cell) {
    const int height = static_cast<int>(cell.bottom - cell.top);
    const int size = height < kLowCellPx ? height - kLowMarginPx : kBoxPx;
    if (size < kSmallestBoxPx)
        return {cell.left, cell.top, cell.left, cell.top};
    const LONG top = cell.top + (height - size) / 2;
    return {cell.left + kLeftPx, top, cell.left + kLeftPx + size, top + size};
}

int CUGCheckBoxType::Toggle(int col, long row) {
    if (IsReadOnly(col, row))
        return UGCT_NOT_HANDLED;
    CUGCell cell;
    m_ctrl->GetCellRaw(col, row, &cell);
    cell.SetNumber(cell.GetNumber() == 0 ? 1 : 0);
    m_ctrl->SetCell(col, row, &cell);
    m_ctrl->RedrawCell(col, row);
    return UGCT_HANDLED;
}

int CUGCheckBoxType::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point) {
    const RECT box = BoxRect(*rect);
    return updn && ::PtInRect(&box, *point) ? Toggle(col, row) : UGCT_NOT_HANDLED;
}

int CUGCheckBoxType::OnDClicked(int col, long row, RECT *rect, POINT *point) {
    return OnLClicked(col, row, 1, rect, point);
}

int CUGCheckBoxType::OnKeyDown(UINT *key) {
    return *key == VK_SPACE ? Toggle(m_ctrl->GetCurrentCol(), m_ctrl->GetCurrentRow()) : UGCT_NOT_HANDLED;
}

void CUGCheckBoxType::DrawMark(CDC *dc, const RECT &box, bool filled) {
    RECT inner = box;
    const int margin = box.right - box.left < kSmallMarkBoxPx ? 2 : 3;
    ::InflateRect(&inner, -margin, -margin);
    if (filled || inner.right - inner.left < kSmallestTickPx) {
        dc->FillSolidRect(&inner, ::GetSysColor(COLOR_WINDOWTEXT));
        return;
    }
    HGDIOBJ old = ::SelectObject(dc->GetSafeHdc(), ::GetStockObject(DC_PEN));
    ::SetDCPenColor(dc->GetSafeHdc(), ::GetSysColor(COLOR_WINDOWTEXT));
    const LONG third = (inner.right - inner.left) / 3;
    for (LONG thickness = 0; thickness < 2; ++thickness) {
        const LONG low = inner.bottom - 1 - thickness;
        const POINT tick[] = {{inner.left, low - third}, {inner.left + third, low}, {inner.right, inner.top - thickness}};
        ::Polyline(dc->GetSafeHdc(), tick, 3);
    }
    ::SelectObject(dc->GetSafeHdc(), old);
}

// The whole outline is dark: the light side of a 3D edge alone would be lost on a white cell.
void CUGCheckBoxType::DrawBox(CDC *dc, RECT box, int style) {
    const bool recessed = (style & kCheckRecessed) != 0;
    const bool raised = (style & kCheckRaised) && !recessed;
    dc->FillSolidRect(&box, ::GetSysColor(raised ? COLOR_BTNFACE : COLOR_WINDOW));
    ::FrameRect(dc->GetSafeHdc(), &box,
                ::GetSysColorBrush(recessed ? COLOR_BTNSHADOW : raised ? COLOR_3DDKSHADOW : COLOR_WINDOWTEXT));
    ::InflateRect(&box, -1, -1);
    if (recessed || raised)
        ::DrawEdge(dc->GetSafeHdc(), &box, recessed ? BDR_SUNKENOUTER : BDR_RAISEDINNER, BF_RECT);
}

void CUGCheckBoxType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    const RECT box = BoxRect(*rect);
    RECT text = *rect;
    text.left = std::min<LONG>(box.right > box.left ? box.right + kLeftPx : rect->left, rect->right);
    const bool highlight = IsHighlighted(selected, current);
    RECT strip = *rect;
    strip.right = text.left;
    dc->FillSolidRect(&strip, highlight ? cell->GetHBackColor() : cell->GetBackColor());
    CUGCellType::OnDraw(dc, &text, cell, selected, current);
    if (box.right <= box.left)
        return;
    const int style = StyleOf(cell);
    DrawBox(dc, box, style);
    if (cell->GetNumber() != 0)
        DrawMark(dc, box, (style & kCheckFilled) != 0);
}
