// Points, sizes and rectangles: the system's structures with operations. Window-free and all inline.
//
// Differences from MFC: none known but that a union or intersection of rectangles is computed here and not by
// the system, with the same results.
#pragma once

#include <algorithm>
#include <windef.h>

class CPoint;

class CSize : public tagSIZE {
public:
    CSize() { cx = cy = 0; }
    CSize(int width, int height) { cx = width, cy = height; }
    CSize(SIZE size) { cx = size.cx, cy = size.cy; }
    explicit CSize(POINT point) { cx = point.x, cy = point.y; }
    explicit CSize(DWORD packed) { cx = (short)LOWORD(packed), cy = (short)HIWORD(packed); }

    void SetSize(int width, int height) { cx = width, cy = height; }
    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) { cx -= size.cx, cy -= size.cy; }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
};

class CPoint : public tagPOINT {
public:
    CPoint() { x = y = 0; }
    CPoint(int initX, int initY) { x = initX, y = initY; }
    CPoint(POINT point) { x = point.x, y = point.y; }
    explicit CPoint(SIZE size) { x = size.cx, y = size.cy; }
    // A message's parameter: both halves are signed.
    explicit CPoint(LPARAM packed) { x = (short)LOWORD(packed), y = (short)HIWORD(packed); }

    void SetPoint(int newX, int newY) { x = newX, y = newY; }
    void Offset(int dx, int dy) { x += dx, y += dy; }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
};

// Left and top belong to the rectangle, right and bottom do not. Except for NormalizeRect, the operations
// expect left <= right and top <= bottom.
class CRect : public tagRECT {
public:
    CRect() { SetRectEmpty(); }
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT &rect) { CopyRect(&rect); }
    CRect(const RECT *rect) { CopyRect(rect); }
    CRect(POINT topLeft, SIZE size) {
        SetRect(topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy);
    }
    CRect(POINT topLeft, POINT bottomRight) { SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y); }
    void operator=(const RECT &rect) { CopyRect(&rect); }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint &TopLeft() { return *reinterpret_cast<CPoint *>(static_cast<void *>(&left)); }
    CPoint &BottomRight() { return *reinterpret_cast<CPoint *>(static_cast<void *>(&right)); }
    const CPoint TopLeft() const { return CPoint(left, top); }
    const CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator RECT *() { return this; }
    operator const RECT *() const { return this; }

    bool IsRectEmpty() const { return left >= right || top >= bottom; }
    bool IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    bool PtInRect(POINT point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    void SetRect(POINT topLeft, POINT bottomRight) {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(const RECT *rect) { SetRect(rect->left, rect->top, rect->right, rect->bottom); }
    bool EqualRect(const RECT *rect) const {
        return left == rect->left && top == rect->top && right == rect->right && bottom == rect->bottom;
    }

    void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(const RECT *by) { InflateRect(by->left, by->top, by->right, by->bottom); }
    void InflateRect(int l, int t, int r, int b) { left -= l, top -= t, right += r, bottom += b; }
    void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(const RECT *by) { DeflateRect(by->left, by->top, by->right, by->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int dx, int dy) { left += dx, right += dx, top += dy, bottom += dy; }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void MoveToX(int x) { right = Width() + x, left = x; }
    void MoveToY(int y) { bottom = Height() + y, top = y; }
    void MoveToXY(int x, int y) { MoveToX(x), MoveToY(y); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }

    void NormalizeRect() {
        if (left > right)
            std::swap(left, right);
        if (top > bottom)
            std::swap(top, bottom);
    }
    // False, and empty at the origin, when the two have nothing in common.
    bool IntersectRect(const RECT *a, const RECT *b) {
        const CRect common(std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                           std::min(a->bottom, b->bottom));
        const bool found = !CRect(a).IsRectEmpty() && !CRect(b).IsRectEmpty() && !common.IsRectEmpty();
        *this = found ? common : CRect();
        return found;
    }
    // The smallest rectangle around both; an empty one adds nothing. False when both are empty.
    bool UnionRect(const RECT *a, const RECT *b) {
        const CRect first(a), second(b);
        if (first.IsRectEmpty())
            *this = second.IsRectEmpty() ? CRect() : second;
        else if (second.IsRectEmpty())
            *this = first;
        else
            SetRect(std::min(first.left, second.left), std::min(first.top, second.top),
                    std::max(first.right, second.right), std::max(first.bottom, second.bottom));
        return !IsRectEmpty();
    }
    // What is left of a without b, when that is a rectangle; otherwise a.
    bool SubtractRect(const RECT *a, const RECT *b) {
        const CRect whole(a);
        CRect cut;
        const bool common = cut.IntersectRect(a, b);
        *this = whole;
        if (common && cut.top == whole.top && cut.bottom == whole.bottom) {
            if (cut.left == whole.left)
                left = cut.right;
            else if (cut.right == whole.right)
                right = cut.left;
        } else if (common && cut.left == whole.left && cut.right == whole.right) {
            if (cut.top == whole.top)
                top = cut.bottom;
            else if (cut.bottom == whole.bottom)
                bottom = cut.top;
        }
        if (IsRectEmpty())
            SetRectEmpty();
        return !IsRectEmpty();
    }

    bool operator==(const RECT &rect) const { return EqualRect(&rect); }
    bool operator!=(const RECT &rect) const { return !EqualRect(&rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(const RECT *by) { InflateRect(by); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) { OffsetRect(-size.cx, -size.cy); }
    void operator-=(const RECT *by) { DeflateRect(by); }
    void operator&=(const RECT &rect) { IntersectRect(CRect(*this), CRect(rect)); }
    void operator|=(const RECT &rect) { UnionRect(CRect(*this), CRect(rect)); }

    CRect operator+(POINT point) const { return Moved(point.x, point.y); }
    CRect operator-(POINT point) const { return Moved(-point.x, -point.y); }
    CRect operator+(SIZE size) const { return Moved(size.cx, size.cy); }
    CRect operator-(SIZE size) const { return Moved(-size.cx, -size.cy); }
    CRect operator&(const RECT &rect) const {
        CRect result(*this);
        result &= rect;
        return result;
    }
    CRect operator|(const RECT &rect) const {
        CRect result(*this);
        result |= rect;
        return result;
    }

private:
    CRect Moved(int dx, int dy) const {
        CRect result(*this);
        result.OffsetRect(dx, dy);
        return result;
    }
};
