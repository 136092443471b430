#include "grid/UGCellType.h"

#include "grid/UGCtrl.h"
#include "grid/UGDrawRules.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int kBitmapMarginPx = 4; // between a bitmap and what surrounds it
constexpr int kSidePx = 3;         // between the text and the cell's edge

UINT DeviceAlignment(int horizontal) {
    return horizontal < 0 ? TA_LEFT : horizontal > 0 ? TA_RIGHT : TA_CENTER;
}

} // namespace

CUGCellType::CUGCellType(int id) : m_id(id) {}

int CUGCellType::GetID() {
    return m_id;
}

int CUGCellType::GetEditArea(RECT *) {
    return 1;
}

int CUGCellType::UnusedCellOperationA(long, long) {
    return -1;
}

int CUGCellType::UnusedCellOperationB(long, long, long) {
    return -1;
}

int CUGCellType::UnusedCellOperationC() {
    return 1;
}

int CUGCellType::OnLClicked(int, long, int, RECT *, POINT *) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnRClicked(int, long, int, RECT *, POINT *) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnDClicked(int, long, RECT *, POINT *) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnKeyDown(UINT *) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnCharDown(UINT *) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnMouseMove(POINT *, UINT) {
    return UGCT_NOT_HANDLED;
}

int CUGCellType::OnSetFocus(int col, long row, CUGCell *) {
    m_focusCol = col;
    m_focusRow = row;
    m_hasFocus = 1;
    return col;
}

int CUGCellType::OnKillFocus(int, long, CUGCell *) {
    m_hasFocus = 0;
    return 0;
}

int CUGCellType::StyleOf(const CUGCell *cell) const {
    const int style = cell->GetCellTypeEx();
    return style < 0 ? 0 : style;
}

bool CUGCellType::IsReadOnly(int col, long row) const {
    CUGCell cell;
    m_ctrl->GetCell(col, row, &cell);
    return cell.GetReadOnly() == 1;
}

bool CUGCellType::IsHighlighted(int selected, int current) const {
    return selected || (current && (m_GI->m_currentCellStyle & 2));
}

const char *CUGCellType::DisplayText(const CUGCell *cell) const {
    return m_useLabel || (StyleOf(cell) & UG_STYLE_LABEL) ? cell->GetLabelText() : cell->GetText();
}

void CUGCellType::GetBestSize(CDC *dc, SIZE *size, CUGCell *cell) {
    HFONT font = cell->GetFontHandle();
    if (font == nullptr && m_GI != nullptr)
        font = m_GI->m_defaultFont;
    ObjectScope scope(dc, font);
    const char *text = DisplayText(cell);
    ::GetTextExtentPoint32A(dc->GetSafeHdc(), text, static_cast<int>(std::strlen(text)), size);
}

void CUGCellType::OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current) {
    const bool highlight = IsHighlighted(selected, current);
    const COLORREF back = highlight ? cell->GetHBackColor() : cell->GetBackColor();
    ObjectScope font(dc, cell->GetFontHandle());
    ::SetTextColor(dc->GetSafeHdc(), highlight ? cell->GetHTextColor() : cell->GetTextColor());
    ::SetBkColor(dc->GetSafeHdc(), back);
    RECT area = *rect;
    if (cell->GetBitmapHandle() != nullptr)
        DrawBitmap(dc, &area, cell, back);
    DrawText(dc, &area, cell, back);
}

void CUGCellType::OnPrint(CDC *dc, RECT *rect, CUGCell *cell, int scale) {
    LOGFONTA description{};
    HFONT font = cell->GetFontHandle() != nullptr ? cell->GetFontHandle() : m_GI->m_defaultFont;
    if (font == nullptr || ::GetObjectA(font, sizeof description, &description) == 0)
        ::GetObjectA(::GetStockObject(SYSTEM_FONT), sizeof description, &description);
    description.lfHeight = UGPrintFontHeight(static_cast<int>(description.lfHeight),
                                             static_cast<int>(rect->bottom - rect->top),
                                             m_GI->m_rows.m_defaultSize, scale);
    description.lfWidth = 0;
    CFont scaled;
    CUGCell copy(*cell);
    if (scaled.CreateFontIndirect(&description))
        copy.SetFont(&scaled);
    OnDraw(dc, rect, &copy, 0, 0);
}

namespace {

// Draws the bitmap pressed into the rectangle's height and cut at its width; with `back` the surface around its
// top left pixel gets that colour. It is filled in a bitmap of its own: on the screen that pixel may be clipped,
// and the filling would run out into whatever has its colour.
void BlitBitmap(HDC target, const CRect &rect, HBITMAP bitmap, int bitmapHeight, const COLORREF *back) {
    HDC source = ::CreateCompatibleDC(target);
    HDC work = ::CreateCompatibleDC(target);
    HBITMAP picture = ::CreateCompatibleBitmap(target, rect.Width(), rect.Height());
    HGDIOBJ oldSource = ::SelectObject(source, bitmap);
    HGDIOBJ oldWork = ::SelectObject(work, picture);
    ::SetStretchBltMode(work, COLORONCOLOR); // mixed colours would leave a seam where the filling ends
    ::StretchBlt(work, 0, 0, rect.Width(), rect.Height(), source, 0, 0, rect.Width(), bitmapHeight, SRCCOPY);
    if (back != nullptr) {
        HGDIOBJ oldBrush = ::SelectObject(work, ::GetStockObject(DC_BRUSH));
        ::SetDCBrushColor(work, *back);
        ::ExtFloodFill(work, 0, 0, ::GetPixel(work, 0, 0), FLOODFILLSURFACE);
        ::SelectObject(work, oldBrush);
    }
    ::BitBlt(target, rect.left, rect.top, rect.Width(), rect.Height(), work, 0, 0, SRCCOPY);
    ::SelectObject(work, oldWork);
    ::SelectObject(source, oldSource);
    ::DeleteObject(picture);
    ::DeleteDC(work);
    ::DeleteDC(source);
}

} // namespace

// Draws the bitmap at the left of the rectangle and takes its room off.
void CUGCellType::DrawBitmap(CDC *dc, RECT *rect, CUGCell *cell, COLORREF back) {
    BITMAP info;
    if (::GetObjectA(cell->GetBitmapHandle(), sizeof info, &info) == 0)
        return;
    const int height = static_cast<int>(rect->bottom - rect->top);
    const int roomX = static_cast<int>(rect->right - rect->left) - kBitmapMarginPx;
    const int shownX = info.bmWidth < roomX ? info.bmWidth : roomX;
    const bool higher = info.bmHeight > height - kBitmapMarginPx;
    const int shownY = higher ? height - kBitmapMarginPx : info.bmHeight;
    if (shownX <= 0 || shownY <= 0)
        return;
    RECT strip = *rect;
    strip.right = rect->left + shownX + kBitmapMarginPx;
    ::ExtTextOutA(dc->GetSafeHdc(), 0, 0, ETO_OPAQUE, &strip, "", 0, nullptr);
    const int x = static_cast<int>(rect->left) + kBitmapMarginPx / 2;
    const int y = static_cast<int>(rect->top) + (height - shownY) / 2;
    const bool keepBack = (StyleOf(cell) & UG_STYLE_KEEP_BITMAP) != 0;
    BlitBitmap(dc->GetSafeHdc(), CRect(x, y, x + shownX, y + shownY), cell->GetBitmapHandle(), info.bmHeight,
               keepBack ? nullptr : &back);
    rect->left += shownX + kBitmapMarginPx;
}

void CUGCellType::DrawText(CDC *dc, RECT *rect, CUGCell *cell, COLORREF back) {
    const char *text = DisplayText(cell);
    const int length = static_cast<int>(std::strlen(text));
    const int style = StyleOf(cell);
    HDC hdc = dc->GetSafeHdc();
    if (length == 0) {
        ::ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, rect, "", 0, nullptr);
        return;
    }
    if (style & UG_STYLE_WORDWRAP) {
        ::ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, rect, "", 0, nullptr);
        const UGTextPlace place = UGPlaceText(*rect, cell->GetAlignment(), 0);
        const UINT side = place.horizontal < 0 ? DT_LEFT : place.horizontal > 0 ? DT_RIGHT : DT_CENTER;
        RECT area = {rect->left + kSidePx, rect->top + 1, rect->right - kSidePx, rect->bottom};
        ::SetTextAlign(hdc, TA_LEFT | TA_TOP);
        // Clipped at the cell rather than at the margin: glyphs may be wider than they were measured.
        const int saved = ::SaveDC(hdc);
        ::IntersectClipRect(hdc, rect->left, rect->top, rect->right, rect->bottom);
        ::DrawTextA(hdc, text, length, &area, side | DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
        ::RestoreDC(hdc, saved);
        return;
    }
    SIZE extent{};
    ::GetTextExtentPoint32A(hdc, text, length, &extent);
    if ((style & UG_STYLE_ELLIPSIS) && UGNeedsEllipsis(*rect, extent.cx)) {
        ::SetBkColor(hdc, back);
        ::ExtTextOutA(hdc, 0, 0, ETO_OPAQUE, rect, "", 0, nullptr);
        DrawShortened(dc, *rect, text, length, cell->GetAlignment());
        return;
    }
    const UGTextPlace place = UGPlaceText(*rect, cell->GetAlignment(), extent.cy);
    ::SetTextAlign(hdc, DeviceAlignment(place.horizontal) | TA_TOP);
    ::ExtTextOutA(hdc, place.x, place.y, ETO_OPAQUE | ETO_CLIPPED, rect, text, length, nullptr);
}

// Draws the text from the left, clipped in front of a "..." that ends at the right. Only whole characters: half
// a letter would read as another one.
void CUGCellType::DrawShortened(CDC *dc, const RECT &rect, const char *text, int length, int alignment) {
    HDC hdc = dc->GetSafeHdc();
    SIZE dots{};
    ::GetTextExtentPoint32A(hdc, "...", 3, &dots);
    const UGTextPlace place = UGPlaceText(rect, alignment & ~(UG_ALIGN_HCENTER | UG_ALIGN_RIGHT), dots.cy);
    RECT clip = rect;
    clip.right -= dots.cx + kSidePx;
    const int room = std::max(static_cast<int>(clip.right) - place.x, 0);
    int fitting = 0;
    SIZE extent{};
    ::GetTextExtentExPointA(hdc, text, length, room, &fitting, nullptr, &extent);
    ::SetTextAlign(hdc, TA_LEFT | TA_TOP);
    ::ExtTextOutA(hdc, place.x, place.y, ETO_CLIPPED, &clip, text, fitting, nullptr);
    ::ExtTextOutA(hdc, static_cast<int>(clip.right), place.y, ETO_CLIPPED, &rect, "...", 3, nullptr);
}

namespace {

void Line(HDC hdc, long x1, long y1, long x2, long y2) {
    ::MoveToEx(hdc, static_cast<int>(x1), static_cast<int>(y1), nullptr);
    ::LineTo(hdc, static_cast<int>(x2), static_cast<int>(y2));
}

// One pixel frame: `light` at the left and top, `dark` at the right and bottom.
void DrawFrame(HDC hdc, const RECT &r, HPEN light, HPEN dark) {
    ::SelectObject(hdc, light);
    Line(hdc, r.left, r.bottom - 1, r.left, r.top);
    Line(hdc, r.left, r.top, r.right, r.top);
    ::SelectObject(hdc, dark);
    Line(hdc, r.right - 1, r.top, r.right - 1, r.bottom - 1);
    Line(hdc, r.right - 1, r.bottom - 1, r.left - 1, r.bottom - 1);
}

// All the lines of a cell in one call of the device: two a cell is the common case, and calls are what they cost.
void DrawSides(HDC hdc, const RECT &r, int style) {
    constexpr int kMostLines = 4 * 3;
    POINT ends[2 * kMostLines];
    DWORD counts[kMostLines];
    int lines = 0;
    const auto add = [&](long x1, long y1, long x2, long y2) {
        ends[2 * lines] = {x1, y1};
        ends[2 * lines + 1] = {x2, y2};
        counts[lines++] = 2;
    };
    for (int i = 0; i < UGBorderLine(style, 0); ++i)
        add(r.left + i, r.top, r.left + i, r.bottom);
    for (int i = 0; i < UGBorderLine(style, 1); ++i)
        add(r.left, r.top + i, r.right, r.top + i);
    for (int i = 1; i <= UGBorderLine(style, 2); ++i)
        add(r.right - i, r.top, r.right - i, r.bottom);
    for (int i = 1; i <= UGBorderLine(style, 3); ++i)
        add(r.left, r.bottom - i, r.right, r.bottom - i);
    ::PolyPolyline(hdc, ends, counts, static_cast<DWORD>(lines));
}

} // namespace

void CUGCellType::DrawBorder(CDC *dc, RECT *rect, CUGCell *cell) {
    const int style = cell->GetBorder();
    if (style <= 0)
        return;
    HDC hdc = dc->GetSafeHdc();
    if (style & (UG_BDR_RECESSED | UG_BDR_RAISED)) {
        ObjectScope keep(dc, ::GetStockObject(DC_PEN));
        HPEN white = static_cast<HPEN>(::GetStockObject(WHITE_PEN));
        HPEN shadow = static_cast<HPEN>(::GetStockObject(DC_PEN));
        ::SetDCPenColor(hdc, ::GetSysColor(COLOR_BTNSHADOW));
        RECT frame = *rect;
        for (int i = 0; i < m_GI->m_3dBorderWidth; ++i) {
            const bool raised = (style & UG_BDR_RAISED) != 0;
            DrawFrame(hdc, frame, raised ? white : shadow, raised ? shadow : white);
            ::InflateRect(&frame, -1, -1);
        }
    }
    if (style & 0xFFF) {
        HGDIOBJ pen = cell->GetBorderPen() != nullptr ? cell->GetBorderPen() : ::GetStockObject(BLACK_PEN);
        ObjectScope keep(dc, pen);
        DrawSides(hdc, *rect, style);
    }
    UGShrinkByBorder(rect, style, m_GI->m_3dBorderWidth);
}
