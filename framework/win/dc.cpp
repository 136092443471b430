#include "afxwin.h"
#include "handlemap.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

auto &DcMap() {
    static auto &map = *new HandleMap<CDC, HDC, &CDC::m_hDC>;
    return map;
}

HWND HandleOf(const CWnd *wnd) {
    return wnd ? wnd->m_hWnd : nullptr;
}

} // namespace

CDC::~CDC() {
    if (m_hDC)
        ::DeleteDC(Detach());
}

CDC *CDC::FromHandle(HDC dc) {
    CDC *object = DcMap().Find(dc, RUNTIME_CLASS(CDC));
    if (object && !object->m_hAttribDC)
        object->m_hAttribDC = dc;
    return object;
}

void CDC::DeleteTempMap() {
    DcMap().DeleteTemporary();
}

BOOL CDC::Attach(HDC dc) {
    if (!dc)
        return FALSE;
    DcMap().SetPermanent(dc, this); // first: without memory for it the handle stays the caller's
    m_hDC = dc;
    SetAttribDC(dc);
    m_bPrinting = ::GetDeviceCaps(dc, TECHNOLOGY) == DT_RASPRINTER;
    return TRUE;
}

HDC CDC::Detach() {
    const HDC dc = m_hDC;
    if (dc && DcMap().Permanent(dc) == this)
        DcMap().Remove(dc);
    ReleaseAttribDC();
    m_hDC = nullptr;
    return dc;
}

void CDC::SetOutputDC(HDC dc) {
    ReleaseOutputDC();
    m_hDC = dc;
    if (dc)
        DcMap().SetPermanent(dc, this);
}

void CDC::ReleaseOutputDC() {
    if (m_hDC && DcMap().Permanent(m_hDC) == this)
        DcMap().Remove(m_hDC);
    m_hDC = nullptr;
}

BOOL CDC::DeleteDC() {
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

CWnd *CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CGdiObject *CDC::SelectObject(CGdiObject *object) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, object->m_hObject));
}

CPen *CDC::SelectObject(CPen *pen) {
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, pen ? pen->m_hObject : nullptr)));
}

CBrush *CDC::SelectObject(CBrush *brush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, brush ? brush->m_hObject : nullptr)));
}

CFont *CDC::SelectObject(CFont *font) {
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, font ? font->m_hObject : nullptr)));
}

CBitmap *CDC::SelectObject(CBitmap *bitmap) {
    return CBitmap::FromHandle(
        static_cast<HBITMAP>(::SelectObject(m_hDC, bitmap ? bitmap->m_hObject : nullptr)));
}

int CDC::SelectObject(CRgn *region) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(::SelectObject(m_hDC, region->m_hObject)));
}

CGdiObject *CDC::SelectStockObject(int index) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(index)));
}

CPen *CDC::GetCurrentPen() const {
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush *CDC::GetCurrentBrush() const {
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont *CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap *CDC::GetCurrentBitmap() const {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPalette *CDC::SelectPalette(CPalette *palette, BOOL forceBackground) {
    return CPalette::FromHandle(::SelectPalette(m_hDC, *palette, forceBackground));
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint old;
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::OffsetViewportOrg(int dx, int dy) {
    CPoint old;
    ::OffsetViewportOrgEx(m_hDC, dx, dy, &old);
    return old;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize old;
    ::SetViewportExtEx(m_hDC, cx, cy, &old);
    return old;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint old;
    ::SetWindowOrgEx(m_hDC, x, y, &old);
    return old;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize old;
    ::SetWindowExtEx(m_hDC, cx, cy, &old);
    return old;
}

void CDC::DPtoLP(SIZE *size) const {
    POINT corners[2] = {{0, 0}, {size->cx, size->cy}};
    ::DPtoLP(m_hAttribDC, corners, 2);
    *size = {corners[1].x - corners[0].x, corners[1].y - corners[0].y};
}

void CDC::LPtoDP(SIZE *size) const {
    POINT corners[2] = {{0, 0}, {size->cx, size->cy}};
    ::LPtoDP(m_hAttribDC, corners, 2);
    *size = {corners[1].x - corners[0].x, corners[1].y - corners[0].y};
}

int CDC::SelectClipRgn(CRgn *region) {
    return ::SelectClipRgn(m_hDC, region ? static_cast<HRGN>(*region) : nullptr);
}

int CDC::SelectClipRgn(CRgn *region, int mode) {
    return ::ExtSelectClipRgn(m_hDC, region ? static_cast<HRGN>(*region) : nullptr, mode);
}

int CDC::ExcludeUpdateRgn(CWnd *wnd) {
    return ::ExcludeUpdateRgn(m_hDC, wnd->m_hWnd);
}

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    // An opaque text of no characters needs no brush, which makes it the cheapest way to fill.
    ::SetBkColor(m_hDC, color);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color) {
    FillSolidRect(CRect(x, y, x + cx, y + cy), color);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight) {
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft,
               bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight) {
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx, y, -1, cy, bottomRight);
    FillSolidRect(x, y + cy, cx, -1, bottomRight);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabs, LPINT positions, int origin) {
    return CSize(static_cast<DWORD>(::TabbedTextOut(m_hDC, x, y, text, count, tabs, positions, origin)));
}

CSize CDC::GetTextExtent(LPCTSTR text, int count) const {
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, text, count, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(LPCTSTR text, int count) const {
    CSize size;
    ::GetTextExtentPoint32(m_hDC, text, count, &size);
    return size;
}

CSize CDC::GetTabbedTextExtent(LPCTSTR text, int count, int tabs, LPINT positions) const {
    return CSize(static_cast<DWORD>(::GetTabbedTextExtent(m_hAttribDC, text, count, tabs, positions)));
}

int CDC::GetTextFace(CString &name) const {
    char face[LF_FACESIZE + 1] = "";
    const int length = ::GetTextFace(m_hAttribDC, LF_FACESIZE, face);
    name = face;
    return length;
}

CBrush *CDC::GetHalftoneBrush() {
    static CBrush &brush = *new CBrush;
    if (!brush.m_hObject) {
        constexpr WORD kPattern[8] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        CBitmap bitmap;
        bitmap.CreateBitmap(8, 8, 1, 1, kPattern);
        brush.CreatePatternBrush(&bitmap);
    }
    return &brush;
}

namespace {

// Attaches what was got for the window; when that fails `giveBack` returns it before the exception goes on.
template <class GiveBack> void AttachOrGiveBack(CDC *dc, HDC handle, GiveBack giveBack) {
    try {
        if (!dc->Attach(handle))
            AfxThrowResourceException();
    } catch (CException *) {
        if (handle)
            giveBack(handle);
        throw;
    }
}

} // namespace

CClientDC::CClientDC(CWnd *wnd) : m_hWnd(HandleOf(wnd)) {
    AttachOrGiveBack(this, ::GetDC(m_hWnd), [this](HDC handle) { ::ReleaseDC(m_hWnd, handle); });
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd *wnd) : m_hWnd(HandleOf(wnd)) {
    AttachOrGiveBack(this, ::GetWindowDC(m_hWnd), [this](HDC handle) { ::ReleaseDC(m_hWnd, handle); });
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd *wnd) : m_hWnd(wnd->m_hWnd) {
    AttachOrGiveBack(this, ::BeginPaint(m_hWnd, &m_ps), [this](HDC) { ::EndPaint(m_hWnd, &m_ps); });
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
