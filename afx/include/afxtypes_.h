// CPoint, CSize and CRect: value types over the Win32 structures.
#pragma once

#include "afxver_.h"

class CSize;
class CRect;

class CPoint : public tagPOINT
{
public:
    CPoint() noexcept
    {
        x = 0;
        y = 0;
    }
    CPoint(int initX, int initY) noexcept
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) noexcept
    {
        x = initPt.x;
        y = initPt.y;
    }
    CPoint(SIZE initSize) noexcept
    {
        x = initSize.cx;
        y = initSize.cy;
    }
    explicit CPoint(LPARAM dwPoint) noexcept
    {
        x = (short)LOWORD(dwPoint);
        y = (short)HIWORD(dwPoint);
    }
    void Offset(int xOffset, int yOffset) noexcept
    {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void SetPoint(int X, int Y) noexcept
    {
        x = X;
        y = Y;
    }
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CPoint operator-(POINT point) const noexcept { return CPoint(x - point.x, y - point.y); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
};

class CSize : public tagSIZE
{
public:
    CSize() noexcept
    {
        cx = 0;
        cy = 0;
    }
    CSize(int initCX, int initCY) noexcept
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) noexcept
    {
        cx = initSize.cx;
        cy = initSize.cy;
    }
    CSize(POINT initPt) noexcept
    {
        cx = initPt.x;
        cy = initPt.y;
    }
    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept
    {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) noexcept
    {
        cx -= size.cx;
        cy -= size.cy;
    }
    void SetSize(int CX, int CY) noexcept
    {
        cx = CX;
        cy = CY;
    }
    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
};

class CRect : public tagRECT
{
public:
    CRect() noexcept { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) noexcept
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const RECT& srcRect) noexcept { CopyRect(&srcRect); }
    CRect(LPCRECT lpSrcRect) noexcept { CopyRect(lpSrcRect); }
    CRect(POINT point, SIZE size) noexcept
    {
        left = point.x;
        top = point.y;
        right = left + size.cx;
        bottom = top + size.cy;
    }
    CRect(POINT topLeft, POINT bottomRight) noexcept
    {
        left = topLeft.x;
        top = topLeft.y;
        right = bottomRight.x;
        bottom = bottomRight.y;
    }

    // Attributes
    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const noexcept { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }
    BOOL IsRectEmpty() const noexcept { return left >= right || top >= bottom; }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    // Operations
    void SetRect(int x1, int y1, int x2, int y2) noexcept
    {
        left = x1;
        top = y1;
        right = x2;
        bottom = y2;
    }
    void SetRectEmpty() noexcept { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT src) noexcept
    {
        left = src->left;
        top = src->top;
        right = src->right;
        bottom = src->bottom;
    }
    BOOL EqualRect(LPCRECT r) const noexcept
    {
        return left == r->left && top == r->top && right == r->right && bottom == r->bottom;
    }
    void InflateRect(int x, int y) noexcept
    {
        left -= x;
        top -= y;
        right += x;
        bottom += y;
    }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(int l, int t, int r, int b) noexcept
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int x, int y) noexcept
    {
        left += x;
        right += x;
        top += y;
        bottom += y;
    }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept
    {
        right = Width() + x;
        left = x;
    }
    void MoveToY(int y) noexcept
    {
        bottom = Height() + y;
        top = y;
    }
    void MoveToXY(int x, int y) noexcept
    {
        MoveToX(x);
        MoveToY(y);
    }
    void NormalizeRect() noexcept
    {
        if (left > right)
        {
            int t = left;
            left = right;
            right = t;
        }
        if (top > bottom)
        {
            int t = top;
            top = bottom;
            bottom = t;
        }
    }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) noexcept { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) noexcept { return ::UnionRect(this, a, b); }

    void operator=(const RECT& srcRect) noexcept { CopyRect(&srcRect); }
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    CRect operator+(POINT point) const noexcept
    {
        CRect r(*this);
        r.OffsetRect(point);
        return r;
    }
    CRect operator-(POINT point) const noexcept
    {
        CRect r(*this);
        r.OffsetRect(-point.x, -point.y);
        return r;
    }
};
