// The device contexts; part of afxwin.h.
#pragma once

#include "afxgdi.h"

class CWnd;

class ORVANEFW_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() : m_hDC(nullptr), m_hAttribDC(nullptr), m_bPrinting(FALSE) {}
    // Deletes the context if there still is one.
    ~CDC() override;

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    static CDC *FromHandle(HDC dc);
    static void DeleteTempMap();
    BOOL Attach(HDC dc);
    HDC Detach();
    virtual void SetAttribDC(HDC dc) { m_hAttribDC = dc; }
    virtual void SetOutputDC(HDC dc);
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();
    BOOL IsPrinting() const { return m_bPrinting; }

    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void *initData) {
        return Attach(::CreateDC(driver, device, output, static_cast<const DEVMODE *>(initData)));
    }
    BOOL CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void *initData) {
        return Attach(::CreateIC(driver, device, output, static_cast<const DEVMODE *>(initData)));
    }
    BOOL CreateCompatibleDC(CDC *dc) { return Attach(::CreateCompatibleDC(dc ? dc->m_hDC : nullptr)); }
    BOOL DeleteDC();
    virtual int SaveDC() { return ::SaveDC(m_hDC); }
    virtual BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }
    CWnd *GetWindow() const;

    // Objects. Each gives the object that was selected before, possibly a temporary one.
    CGdiObject *SelectObject(CGdiObject *object);
    CPen *SelectObject(CPen *pen);
    CBrush *SelectObject(CBrush *brush);
    virtual CFont *SelectObject(CFont *font);
    CBitmap *SelectObject(CBitmap *bitmap);
    int SelectObject(CRgn *region); // the complexity of the region
    HGDIOBJ SelectObject(HGDIOBJ object) { return ::SelectObject(m_hDC, object); }
    virtual CGdiObject *SelectStockObject(int index);
    CPen *GetCurrentPen() const;
    CBrush *GetCurrentBrush() const;
    CFont *GetCurrentFont() const;
    CBitmap *GetCurrentBitmap() const;
    CPalette *SelectPalette(CPalette *palette, BOOL forceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    CPoint GetBrushOrg() const;

    // Attributes.
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
    int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
    int SetStretchBltMode(int mode) { return ::SetStretchBltMode(m_hDC, mode); }
    virtual COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    UINT SetTextAlign(UINT flags) { return ::SetTextAlign(m_hDC, flags); }
    int SetTextCharacterExtra(int extra) { return ::SetTextCharacterExtra(m_hDC, extra); }
    int SetTextJustification(int extra, int count) { return ::SetTextJustification(m_hDC, extra, count); }
    virtual int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }

    // Coordinates. Setters give the old value.
    CPoint GetViewportOrg() const;
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint OffsetViewportOrg(int dx, int dy);
    CSize GetViewportExt() const;
    CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CSize GetWindowExt() const;
    CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    void DPtoLP(POINT *points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(RECT *rect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<POINT *>(rect), 2); }
    void DPtoLP(SIZE *size) const;
    void LPtoDP(POINT *points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(RECT *rect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<POINT *>(rect), 2); }
    void LPtoDP(SIZE *size) const;

    // Clipping.
    virtual int GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hDC, rect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }
    int SelectClipRgn(CRgn *region);
    int SelectClipRgn(CRgn *region, int mode);
    int ExcludeClipRect(int l, int t, int r, int b) { return ::ExcludeClipRect(m_hDC, l, t, r, b); }
    int ExcludeClipRect(LPCRECT rect) {
        return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom);
    }
    int ExcludeUpdateRgn(CWnd *wnd);
    int IntersectClipRect(int l, int t, int r, int b) { return ::IntersectClipRect(m_hDC, l, t, r, b); }
    int IntersectClipRect(LPCRECT rect) {
        return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
    }
    int OffsetClipRgn(int dx, int dy) { return ::OffsetClipRgn(m_hDC, dx, dy); }

    // Lines and figures.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT *points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL PolyPolyline(const POINT *points, const DWORD *counts, int count) {
        return ::PolyPolyline(m_hDC, points, counts, static_cast<DWORD>(count));
    }
    BOOL Polygon(const POINT *points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Rectangle(int l, int t, int r, int b) { return ::Rectangle(m_hDC, l, t, r, b); }
    BOOL Rectangle(LPCRECT rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL RoundRect(int l, int t, int r, int b, int cx, int cy) {
        return ::RoundRect(m_hDC, l, t, r, b, cx, cy);
    }
    BOOL RoundRect(LPCRECT rect, POINT round) {
        return RoundRect(rect->left, rect->top, rect->right, rect->bottom, round.x, round.y);
    }
    BOOL Ellipse(int l, int t, int r, int b) { return ::Ellipse(m_hDC, l, t, r, b); }
    BOOL Ellipse(LPCRECT rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }
    void FillRect(LPCRECT rect, CBrush *brush) { ::FillRect(m_hDC, rect, *brush); }
    void FrameRect(LPCRECT rect, CBrush *brush) { ::FrameRect(m_hDC, rect, *brush); }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    // Both leave the colour as the background colour.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) {
        return ::DrawFrameControl(m_hDC, rect, type, state);
    }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIcon(POINT point, HICON icon) { return DrawIcon(point.x, point.y, icon); }
    BOOL FillRgn(CRgn *region, CBrush *brush) { return ::FillRgn(m_hDC, *region, *brush); }
    BOOL FrameRgn(CRgn *region, CBrush *brush, int width, int height) {
        return ::FrameRgn(m_hDC, *region, *brush, width, height);
    }
    BOOL InvertRgn(CRgn *region) { return ::InvertRgn(m_hDC, *region); }
    BOOL PaintRgn(CRgn *region) { return ::PaintRgn(m_hDC, *region); }

    // Bitmaps and pixels.
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD rop) { return ::PatBlt(m_hDC, x, y, cx, cy, rop); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC *source, int xSource, int ySource, DWORD rop) {
        return ::BitBlt(m_hDC, x, y, cx, cy, source ? source->m_hDC : nullptr, xSource, ySource, rop);
    }
    BOOL StretchBlt(int x, int y, int cx, int cy, CDC *source, int xSource, int ySource, int cxSource,
                    int cySource, DWORD rop) {
        return ::StretchBlt(m_hDC, x, y, cx, cy, source ? source->m_hDC : nullptr, xSource, ySource, cxSource,
                            cySource, rop);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }
    BOOL FloodFill(int x, int y, COLORREF color) { return ::FloodFill(m_hDC, x, y, color); }
    BOOL ExtFloodFill(int x, int y, COLORREF color, UINT type) {
        return ::ExtFloodFill(m_hDC, x, y, color, type);
    }

    // Text. Extents are in logical units.
    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count) {
        return ::TextOut(m_hDC, x, y, text, count);
    }
    BOOL TextOut(int x, int y, const CString &text) { return TextOut(x, y, text, text.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                            LPINT widths) {
        return ::ExtTextOut(m_hDC, x, y, options, rect, text, count, widths);
    }
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString &text, LPINT widths) {
        return ExtTextOut(x, y, options, rect, text, static_cast<UINT>(text.GetLength()), widths);
    }
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) {
        return ::DrawText(m_hDC, text, count, rect, format);
    }
    int DrawText(const CString &text, LPRECT rect, UINT format) {
        return DrawText(text, text.GetLength(), rect, format);
    }
    CSize TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabs, LPINT positions, int origin);
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString &text) const { return GetTextExtent(text, text.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR text, int count) const;
    CSize GetTabbedTextExtent(LPCTSTR text, int count, int tabs, LPINT positions) const;
    BOOL GetTextMetrics(LPTEXTMETRIC metrics) const { return ::GetTextMetrics(m_hAttribDC, metrics); }
    int GetTextFace(int count, LPTSTR name) const { return ::GetTextFace(m_hAttribDC, count, name); }
    int GetTextFace(CString &name) const;
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const {
        return ::GetCharWidth32(m_hAttribDC, first, last, widths);
    }
    BOOL GrayString(CBrush *brush, GRAYSTRINGPROC output, LPARAM data, int count, int x, int y, int cx,
                    int cy) {
        return ::GrayString(m_hDC, brush ? static_cast<HBRUSH>(*brush) : nullptr, output, data, count, x, y,
                            cx, cy);
    }
    BOOL ScrollDC(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn *update, LPRECT updateRect) {
        return ::ScrollDC(m_hDC, dx, dy, scroll, clip, update ? static_cast<HRGN>(*update) : nullptr,
                          updateRect);
    }
    static CBrush *GetHalftoneBrush();

    HDC m_hDC;       // draws
    HDC m_hAttribDC; // answers; the same unless SetAttribDC said otherwise
    BOOL m_bPrinting;
};

// The client area of a window; null stands for the screen. The constructors throw CResourceException.
class ORVANEFW_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd *wnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// The whole window with its frame.
class ORVANEFW_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd *wnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

// BeginPaint to EndPaint; only in a handler of WM_PAINT.
class ORVANEFW_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd *wnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
