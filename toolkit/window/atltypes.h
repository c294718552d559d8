// Value classes over the system's SIZE, POINT and RECT. They add operations and no data, so an object can
// stand wherever a call wants the structure.
#pragma once

#include <windows.h>

// Coordinates stop at the ends of their range, whatever is added to them.
constexpr int ClampCoordinate(long long n)
{
    constexpr long long kLeast = -0x80000000LL;
    constexpr long long kMost = 0x7FFFFFFFLL;
    return static_cast<int>(n < kLeast ? kLeast : n > kMost ? kMost : n);
}
constexpr int AddCoordinates(long long a, long long b)
{
    return ClampCoordinate(a + b);
}
constexpr int SubtractCoordinates(long long a, long long b)
{
    return ClampCoordinate(a - b);
}

// A width and a height, or a distance between two points.
class CSize : public SIZE
{
public:
    CSize() : CSize(0, 0) {}
    CSize(int initCX, int initCY)
    {
        cx = initCX;
        cy = initCY;
    }

    bool operator==(const CSize& size) const { return cx == size.cx && cy == size.cy; }
};

// A place in the coordinates of a window or of the screen.
class CPoint : public POINT
{
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(int initX, int initY)
    {
        x = initX;
        y = initY;
    }
    // From a message parameter: x in the low word, y in the high word, both signed.
    explicit CPoint(LPARAM dwPoint)
        : CPoint(static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint)))
    {
    }

    bool operator==(const CPoint& point) const { return x == point.x && y == point.y; }
};

// A rectangle. Its right and bottom edges lie just outside of it.
class CRect : public RECT
{
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(int l, int t, int r, int b)
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const RECT& srcRect) : RECT(srcRect) {}
    CRect(POINT point, SIZE size)
        : CRect(point.x, point.y, AddCoordinates(point.x, size.cx), AddCoordinates(point.y, size.cy))
    {
    }

    int Width() const { return SubtractCoordinates(right, left); }
    int Height() const { return SubtractCoordinates(bottom, top); }
    CSize Size() const { return {Width(), Height()}; }
    // The middle; each coordinate is halved toward zero.
    CPoint CenterPoint() const
    {
        return {ClampCoordinate((1LL * left + right) / 2), ClampCoordinate((1LL * top + bottom) / 2)};
    }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    bool IsRectEmpty() const { return left >= right || top >= bottom; }
    bool PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    bool operator==(const CRect& rect) const
    {
        return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
    }

    void SetRect(int x1, int y1, int x2, int y2) { *this = CRect(x1, y1, x2, y2); }
    void SetRectEmpty() { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) { *this = *lpSrcRect; }

    // Move the edges outwards, inwards, or all by the same distance.
    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(int l, int t, int r, int b)
    {
        SetRect(SubtractCoordinates(left, l), SubtractCoordinates(top, t), AddCoordinates(right, r),
                AddCoordinates(bottom, b));
    }
    void DeflateRect(int x, int y) { InflateRect(SubtractCoordinates(0, x), SubtractCoordinates(0, y)); }
    void OffsetRect(int x, int y)
    {
        SetRect(AddCoordinates(left, x), AddCoordinates(top, y), AddCoordinates(right, x),
                AddCoordinates(bottom, y));
    }
};
