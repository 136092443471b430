#include "afxwin.h"
#include "handlemap.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNCREATE(CPen, CGdiObject)
IMPLEMENT_DYNCREATE(CBrush, CGdiObject)
IMPLEMENT_DYNCREATE(CFont, CGdiObject)
IMPLEMENT_DYNCREATE(CBitmap, CGdiObject)
IMPLEMENT_DYNCREATE(CPalette, CGdiObject)
IMPLEMENT_DYNCREATE(CRgn, CGdiObject)

namespace {

// Never destroyed: objects with static lifetime still detach their handles when the process ends.
auto &GdiMap() {
    static auto &map = *new HandleMap<CGdiObject, HGDIOBJ, &CGdiObject::m_hObject>;
    return map;
}

void Require(BOOL made) {
    if (!made)
        AfxThrowResourceException();
}

} // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject *CGdiObject::FromHandle(HGDIOBJ object) {
    return FromHandleAs(object, RUNTIME_CLASS(CGdiObject));
}

CGdiObject *CGdiObject::FromHandleAs(HGDIOBJ object, CRuntimeClass *runtimeClass) {
    return GdiMap().Find(object, runtimeClass);
}

void CGdiObject::DeleteTempMap() {
    GdiMap().DeleteTemporary();
}

BOOL CGdiObject::Attach(HGDIOBJ object) {
    if (!object)
        return FALSE;
    GdiMap().SetPermanent(object, this);
    m_hObject = object;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ object = m_hObject;
    if (object && GdiMap().Permanent(object) == this)
        GdiMap().Remove(object);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

CPen::CPen(int style, int width, COLORREF color) {
    Require(CreatePen(style, width, color));
}

CPen::CPen(int style, int width, const LOGBRUSH *brush, int count, const DWORD *lengths) {
    Require(CreatePen(style, width, brush, count, lengths));
}

CPen *CPen::FromHandle(HPEN pen) {
    return static_cast<CPen *>(FromHandleAs(pen, RUNTIME_CLASS(CPen)));
}

CBrush::CBrush(COLORREF color) {
    Require(CreateSolidBrush(color));
}

CBrush::CBrush(int hatch, COLORREF color) {
    Require(CreateHatchBrush(hatch, color));
}

CBrush::CBrush(CBitmap *bitmap) {
    Require(CreatePatternBrush(bitmap));
}

CBrush *CBrush::FromHandle(HBRUSH brush) {
    return static_cast<CBrush *>(FromHandleAs(brush, RUNTIME_CLASS(CBrush)));
}

BOOL CBrush::CreatePatternBrush(CBitmap *bitmap) {
    return Attach(::CreatePatternBrush(*bitmap));
}

CFont *CFont::FromHandle(HFONT font) {
    return static_cast<CFont *>(FromHandleAs(font, RUNTIME_CLASS(CFont)));
}

BOOL CFont::CreatePointFont(int pointSize, LPCTSTR faceName, CDC *dc) {
    LOGFONT logFont{};
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = pointSize;
    lstrcpyn(logFont.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT *logFont, CDC *dc) {
    constexpr int kTenthsOfPointPerInch = 720;
    const HDC device = dc ? dc->m_hAttribDC : ::GetDC(nullptr);
    LOGFONT scaled = *logFont;
    // From the origin's distance, so that a mapping mode with its own scale and origin counts.
    POINT height = {0, ::MulDiv(::GetDeviceCaps(device, LOGPIXELSY), scaled.lfHeight, kTenthsOfPointPerInch)};
    POINT origin = {0, 0};
    ::DPtoLP(device, &height, 1);
    ::DPtoLP(device, &origin, 1);
    scaled.lfHeight = -abs(height.y - origin.y);
    if (!dc)
        ::ReleaseDC(nullptr, device);
    return CreateFontIndirect(&scaled);
}

CBitmap *CBitmap::FromHandle(HBITMAP bitmap) {
    return static_cast<CBitmap *>(FromHandleAs(bitmap, RUNTIME_CLASS(CBitmap)));
}

BOOL CBitmap::LoadBitmap(LPCTSTR name) {
    return Attach(::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC *dc, int width, int height) {
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC *dc, int width, int height) {
    return Attach(::CreateDiscardableBitmap(dc->m_hDC, width, height));
}

CSize CBitmap::GetBitmapDimension() const {
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int width, int height) {
    CSize old;
    ::SetBitmapDimensionEx(*this, width, height, &old);
    return old;
}

CPalette *CPalette::FromHandle(HPALETTE palette) {
    return static_cast<CPalette *>(FromHandleAs(palette, RUNTIME_CLASS(CPalette)));
}

CRgn *CRgn::FromHandle(HRGN region) {
    return static_cast<CRgn *>(FromHandleAs(region, RUNTIME_CLASS(CRgn)));
}
