// The graphic objects; part of afxwin.h. An object deletes its handle in its destructor, except the temporary
// ones that FromHandle makes.
#pragma once

#include <afx.h>
#include <windows.h>

class CBitmap;
class CDC;

class ORVANEFW_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject() : m_hObject(nullptr) {}
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    // The object of the handle, or a temporary one that lives until the next idle time.
    static CGdiObject *FromHandle(HGDIOBJ object);
    static void DeleteTempMap();

    // The object owns the handle from now on. FALSE for a null handle.
    BOOL Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    // Number of bytes written.
    int GetObject(int size, void *buffer) const { return ::GetObject(m_hObject, size, buffer); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    bool operator==(const CGdiObject &other) const { return m_hObject == other.m_hObject; }

    HGDIOBJ m_hObject;

protected:
    // A temporary object of the class for a handle that has no object of its own.
    static CGdiObject *FromHandleAs(HGDIOBJ object, CRuntimeClass *runtimeClass);
};

class ORVANEFW_API CPen : public CGdiObject {
    DECLARE_DYNCREATE(CPen)
public:
    CPen() {}
    // These throw CResourceException.
    CPen(int style, int width, COLORREF color);
    CPen(int style, int width, const LOGBRUSH *brush, int count = 0, const DWORD *lengths = nullptr);
    static CPen *FromHandle(HPEN pen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }

    BOOL CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
    BOOL CreatePen(int style, int width, const LOGBRUSH *brush, int count = 0,
                   const DWORD *lengths = nullptr) {
        return Attach(::ExtCreatePen(style, width, brush, count, lengths));
    }
    BOOL CreatePenIndirect(LPLOGPEN logPen) { return Attach(::CreatePenIndirect(logPen)); }
    int GetLogPen(LOGPEN *logPen) const { return GetObject(sizeof(LOGPEN), logPen); }
};

class ORVANEFW_API CBrush : public CGdiObject {
    DECLARE_DYNCREATE(CBrush)
public:
    CBrush() {}
    // These throw CResourceException.
    explicit CBrush(COLORREF color);
    CBrush(int hatch, COLORREF color);
    explicit CBrush(CBitmap *bitmap);
    static CBrush *FromHandle(HBRUSH brush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }

    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateHatchBrush(int index, COLORREF color) { return Attach(::CreateHatchBrush(index, color)); }
    BOOL CreateBrushIndirect(const LOGBRUSH *brush) { return Attach(::CreateBrushIndirect(brush)); }
    BOOL CreatePatternBrush(CBitmap *bitmap);
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }
    int GetLogBrush(LOGBRUSH *brush) const { return GetObject(sizeof(LOGBRUSH), brush); }
};

class ORVANEFW_API CFont : public CGdiObject {
    DECLARE_DYNCREATE(CFont)
public:
    CFont() {}
    static CFont *FromHandle(HFONT font);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONT *logFont) { return Attach(::CreateFontIndirect(logFont)); }
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                    BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName) {
        return Attach(::CreateFont(height, width, escapement, orientation, weight, italic, underline,
                                   strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily,
                                   faceName));
    }
    // Tenths of a point, on the given device or the screen.
    BOOL CreatePointFont(int pointSize, LPCTSTR faceName, CDC *dc = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT *logFont, CDC *dc = nullptr);
    int GetLogFont(LOGFONT *logFont) const { return GetObject(sizeof(LOGFONT), logFont); }
};

class ORVANEFW_API CBitmap : public CGdiObject {
    DECLARE_DYNCREATE(CBitmap)
public:
    CBitmap() {}
    static CBitmap *FromHandle(HBITMAP bitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

    BOOL LoadBitmap(LPCTSTR name);
    BOOL LoadBitmap(UINT id) { return LoadBitmap(MAKEINTRESOURCE(id)); }
    BOOL LoadOEMBitmap(UINT id) { return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(id))); }
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void *bits) {
        return Attach(::CreateBitmap(width, height, planes, bitCount, bits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    BOOL CreateCompatibleBitmap(CDC *dc, int width, int height);
    BOOL CreateDiscardableBitmap(CDC *dc, int width, int height);
    int GetBitmap(BITMAP *bitmap) const { return GetObject(sizeof(BITMAP), bitmap); }
    DWORD GetBitmapBits(DWORD count, void *bits) const {
        return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(count), bits));
    }
    DWORD SetBitmapBits(DWORD count, const void *bits) {
        return static_cast<DWORD>(::SetBitmapBits(*this, count, bits));
    }
    CSize GetBitmapDimension() const;
    CSize SetBitmapDimension(int width, int height);
};

class ORVANEFW_API CPalette : public CGdiObject {
    DECLARE_DYNCREATE(CPalette)
public:
    CPalette() {}
    static CPalette *FromHandle(HPALETTE palette);
    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    BOOL CreatePalette(LPLOGPALETTE palette) { return Attach(::CreatePalette(palette)); }
};

class ORVANEFW_API CRgn : public CGdiObject {
    DECLARE_DYNCREATE(CRgn)
public:
    CRgn() {}
    static CRgn *FromHandle(HRGN region);
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT rect) { return Attach(::CreateEllipticRgnIndirect(rect)); }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    BOOL CreatePolygonRgn(const POINT *points, int count, int mode) {
        return Attach(::CreatePolygonRgn(points, count, mode));
    }
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT rect) { SetRectRgn(rect->left, rect->top, rect->right, rect->bottom); }
    int CombineRgn(const CRgn *first, const CRgn *second, int mode) {
        return ::CombineRgn(*this, *first, second ? static_cast<HRGN>(*second) : nullptr, mode);
    }
    int CopyRgn(const CRgn *source) { return ::CombineRgn(*this, *source, nullptr, RGN_COPY); }
    BOOL EqualRgn(const CRgn *other) const { return ::EqualRgn(*this, *other); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT by) { return ::OffsetRgn(*this, by.x, by.y); }
    int GetRgnBox(LPRECT rect) const { return ::GetRgnBox(*this, rect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(*this, rect); }
};
