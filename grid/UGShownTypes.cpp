#include "grid/UGShownTypes.h"

#include "grid/UGCtrl.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kTextMarginPx = 3; // what the base type leaves beside the text

} // namespace

CUGProgressType::CUGProgressType() : CUGCellType(kProgressTypeId) {
    m_canTextEdit = 0;
}

long CUGProgressType::ValueOf(const CUGCell *cell) {
    return std::clamp(std::atol(cell->GetText()), 0L, 100L);
}

CString CUGProgressType::ShownText(const CUGCell *cell) const {
    if (StyleOf(cell) == 1)
        return cell->GetLabelText();
    CString text;
    text.Format("%% %ld", ValueOf(cell));
    return text;
}

// The text is drawn twice, each time clipped to one side of the bar's end, in that side's colours.
void CUGProgressType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int, int) {
    HDC hdc = dc->GetSafeHdc();
    ObjectScope font(dc, cell->GetFontHandle());
    const CString text = ShownText(cell);
    SIZE extent{};
    ::GetTextExtentPoint32A(hdc, text, text.GetLength(), &extent);
    const int x = static_cast<int>(rect->left + (rect->right - rect->left) / 2);
    const int y = static_cast<int>(rect->top + (rect->bottom - rect->top - extent.cy) / 2);
    const LONG end = rect->left + (rect->right - rect->left) * ValueOf(cell) / 100;
    const RECT done = {rect->left, rect->top, end, rect->bottom};
    const RECT rest = {end, rect->top, rect->right, rect->bottom};
    ::SetTextAlign(hdc, TA_CENTER | TA_TOP);
    ::SetTextColor(hdc, cell->GetHTextColor());
    ::SetBkColor(hdc, cell->GetHBackColor());
    ::ExtTextOutA(hdc, x, y, ETO_OPAQUE | ETO_CLIPPED, &done, text, text.GetLength(), nullptr);
    ::SetTextColor(hdc, cell->GetTextColor());
    ::SetBkColor(hdc, cell->GetBackColor());
    ::ExtTextOutA(hdc, x, y, ETO_OPAQUE | ETO_CLIPPED, &rest, text, text.GetLength(), nullptr);
}

void CUGAutoFontType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    HDC hdc = dc->GetSafeHdc();
    const int length = static_cast<int>(std::strlen(DisplayText(cell)));
    const int width = static_cast<int>(rect->right - rect->left);
    const int height = static_cast<int>(rect->bottom - rect->top);
    LOGFONTA description{};
    ::GetTextFaceA(hdc, LF_FACESIZE, description.lfFaceName);
    description.lfWeight = FW_SEMIBOLD;
    int size = length > 0 ? std::min(width * 3 / 2 / length, height) : 0;
    CFont font;
    for (; size > 1; --size) {
        description.lfHeight = -size;
        font.DeleteObject();
        if (!font.CreateFontIndirect(&description))
            break;
        HGDIOBJ old = ::SelectObject(hdc, font.GetSafeHandle());
        SIZE extent{};
        ::GetTextExtentPoint32A(hdc, DisplayText(cell), length, &extent);
        ::SelectObject(hdc, old);
        if (extent.cx + 2 * kTextMarginPx <= width && extent.cy <= height)
            break;
    }
    CUGCell fitted(*cell);
    if (font.GetSafeHandle() != nullptr)
        fitted.SetFont(&font);
    CUGCellType::OnDraw(dc, rect, &fitted, selected, current);
}

CUGArrowType::CUGArrowType() : CUGCellType(kArrowTypeId) {
    m_canTextEdit = 0;
}

void CUGArrowType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    HDC hdc = dc->GetSafeHdc();
    const bool highlight = IsHighlighted(selected, current);
    dc->FillSolidRect(rect, highlight ? cell->GetHBackColor() : cell->GetBackColor());
    RECT r = *rect;
    ::InflateRect(&r, -2, -2);
    const LONG midX = (r.left + r.right) / 2;
    const LONG midY = (r.top + r.bottom) / 2;
    POINT tip[3];
    switch (StyleOf(cell)) {
    case kLeft: tip[0] = {r.left, midY}, tip[1] = {r.right - 1, r.top}, tip[2] = {r.right - 1, r.bottom - 1}; break;
    case kUp: tip[0] = {midX, r.top}, tip[1] = {r.left, r.bottom - 1}, tip[2] = {r.right - 1, r.bottom - 1}; break;
    case kDown: tip[0] = {midX, r.bottom - 1}, tip[1] = {r.left, r.top}, tip[2] = {r.right - 1, r.top}; break;
    default: tip[0] = {r.right - 1, midY}, tip[1] = {r.left, r.top}, tip[2] = {r.left, r.bottom - 1}; break;
    }
    HGDIOBJ oldPen = ::SelectObject(hdc, ::GetStockObject(NULL_PEN));
    HGDIOBJ oldBrush = ::SelectObject(hdc, ::GetStockObject(DC_BRUSH));
    ::SetDCBrushColor(hdc, highlight ? cell->GetHTextColor() : cell->GetTextColor());
    ::Polygon(hdc, tip, 3);
    ::SelectObject(hdc, oldBrush);
    ::SelectObject(hdc, oldPen);
}
