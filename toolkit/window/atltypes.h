// Value classes over the system's SIZE, POINT and RECT. They add operators and no state, so that an
// object of theirs can stand wherever the call wants the structure.
#pragma once

#include <windows.h>

class CPoint;
class CRect;

/// A width and a height, or a distance between two points.
class CSize : public SIZE
{
public:
    CSize() : SIZE{0, 0} {}
    CSize(int initCX, int initCY) : SIZE{initCX, initCY} {}
    CSize(SIZE initSize) : SIZE(initSize) {}
    explicit CSize(POINT initPt) : SIZE{initPt.x, initPt.y} {}

    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    CSize& operator+=(SIZE size) { return *this = *this + size; }
    CSize& operator-=(SIZE size) { return *this = *this - size; }
    CSize operator+(SIZE size) const { return {cx + size.cx, cy + size.cy}; }
    CSize operator-(SIZE size) const { return {cx - size.cx, cy - size.cy}; }
    CSize operator-() const { return {-cx, -cy}; }
};

/// A place in the coordinates of a window or of the screen.
class CPoint : public POINT
{
public:
    CPoint() : POINT{0, 0} {}
    CPoint(int initX, int initY) : POINT{initX, initY} {}
    CPoint(POINT initPt) : POINT(initPt) {}
    explicit CPoint(SIZE initSize) : POINT{initSize.cx, initSize.cy} {}
    /// From a message parameter: x in the low word, y in the high word, both signed.
    explicit CPoint(LPARAM dwPoint)
        : POINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))}
    {
    }

    void Offset(int xOffset, int yOffset) { *this += CSize(xOffset, yOffset); }
    void Offset(SIZE size) { *this += size; }
    void Offset(POINT point) { Offset(point.x, point.y); }
    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    CPoint& operator+=(SIZE size) { return *this = *this + size; }
    CPoint& operator-=(SIZE size) { return *this = *this - size; }
    CPoint operator+(SIZE size) const { return {x + size.cx, y + size.cy}; }
    CPoint operator-(SIZE size) const { return {x - size.cx, y - size.cy}; }
    CSize operator-(POINT point) const { return {x - point.x, y - point.y}; }
    CPoint operator-() const { return {-x, -y}; }
};

/// A rectangle. Its right and bottom edges lie just outside of it.
class CRect : public RECT
{
public:
    CRect() : RECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    CRect(const RECT& srcRect) : RECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) : RECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) : RECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return {Width(), Height()}; }
    CPoint TopLeft() const { return {left, top}; }
    CPoint BottomRight() const { return {right, bottom}; }
    /// The middle; each coordinate is halved toward zero.
    CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    bool IsRectEmpty() const { return left >= right || top >= bottom; }
    bool PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    bool operator==(const RECT& rect) const
    {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }

    void SetRect(int x1, int y1, int x2, int y2) { *this = CRect(x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) { *this = CRect(lpSrcRect); }
    bool EqualRect(LPCRECT lpRect) const { return *this == *lpRect; }

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect)
    {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) { SetRect(left - l, top - t, right + r, bottom + b); }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect)
    {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    /// Makes this the common part of both, or the empty rectangle and false when there is none.
    bool IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2)
    {
        return ::IntersectRect(this, lpRect1, lpRect2) != 0;
    }
    /// Makes this the smallest rectangle around both; an empty one doesn't count.
    bool UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) { return ::UnionRect(this, lpRect1, lpRect2) != 0; }

    CRect& operator+=(POINT point) { return OffsetRect(point), *this; }
    CRect& operator-=(POINT point) { return OffsetRect(-point.x, -point.y), *this; }
    CRect operator+(POINT point) const { return CRect(*this) += point; }
    CRect operator-(POINT point) const { return CRect(*this) -= point; }
    CRect operator&(const RECT& rect) const
    {
        CRect common;
        common.IntersectRect(this, &rect);
        return common;
    }
    CRect operator|(const RECT& rect) const
    {
        CRect both;
        both.UnionRect(this, &rect);
        return both;
    }
};
