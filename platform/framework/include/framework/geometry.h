// CPoint, CSize, CRect: the system's structures with arithmetic. Coordinates are pixels.
#pragma once

#include "framework/platform.h"

class CSize : public tagSIZE {
 public:
  CSize() : tagSIZE{0, 0} {}
  CSize(int x, int y) : tagSIZE{x, y} {}
  CSize(SIZE size) : tagSIZE(size) {}
  explicit CSize(POINT point) : tagSIZE{point.x, point.y} {}

  friend bool operator==(CSize a, CSize b) { return a.cx == b.cx && a.cy == b.cy; }
  friend bool operator!=(CSize a, CSize b) { return !(a == b); }
  friend CSize operator+(CSize a, CSize b) { return {a.cx + b.cx, a.cy + b.cy}; }
  friend CSize operator-(CSize a, CSize b) { return {a.cx - b.cx, a.cy - b.cy}; }
  CSize operator-() const { return {-cx, -cy}; }
};

class CPoint : public tagPOINT {
 public:
  CPoint() : tagPOINT{0, 0} {}
  CPoint(int px, int py) : tagPOINT{px, py} {}
  CPoint(POINT point) : tagPOINT(point) {}
  explicit CPoint(SIZE size) : tagPOINT{size.cx, size.cy} {}
  // From a message parameter: signed 16-bit halves, x low.
  explicit CPoint(LPARAM packed)
      : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

  void Offset(int dx, int dy) {
    x += dx;
    y += dy;
  }
  void Offset(POINT by) { Offset(by.x, by.y); }
  void SetPoint(int px, int py) {
    x = px;
    y = py;
  }

  friend bool operator==(CPoint a, CPoint b) { return a.x == b.x && a.y == b.y; }
  friend bool operator!=(CPoint a, CPoint b) { return !(a == b); }
  friend CPoint operator+(CPoint a, CSize b) { return {a.x + b.cx, a.y + b.cy}; }
  friend CPoint operator-(CPoint a, CSize b) { return {a.x - b.cx, a.y - b.cy}; }
  friend CSize operator-(CPoint a, CPoint b) { return {a.x - b.x, a.y - b.y}; }
  CPoint& operator+=(SIZE by) {
    Offset(by.cx, by.cy);
    return *this;
  }
  CPoint& operator-=(SIZE by) {
    Offset(-by.cx, -by.cy);
    return *this;
  }
};

// Right and bottom lie outside. Normalised means left <= right and top <= bottom; Width and Height
// may be negative otherwise.
class CRect : public tagRECT {
 public:
  CRect() : tagRECT{0, 0, 0, 0} {}
  CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
  CRect(const RECT& rect) : tagRECT(rect) {}
  explicit CRect(const RECT* rect) : tagRECT(*rect) {}
  CRect(POINT at, SIZE size) : tagRECT{at.x, at.y, at.x + size.cx, at.y + size.cy} {}
  CRect(POINT topLeft, POINT bottomRight)
      : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

  // The address, for calls that take a pointer.
  operator RECT*() { return this; }
  operator const RECT*() const { return this; }

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  CSize Size() const { return {Width(), Height()}; }
  CPoint TopLeft() const { return {left, top}; }
  CPoint BottomRight() const { return {right, bottom}; }
  CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }

  BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
  BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
  BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
  BOOL EqualRect(const RECT* other) const { return ::EqualRect(this, other); }

  void SetRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
  void SetRectEmpty() { ::SetRectEmpty(this); }
  void CopyRect(const RECT* other) { ::CopyRect(this, other); }
  void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
  void DeflateRect(int dx, int dy) { ::InflateRect(this, -dx, -dy); }
  void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
  void OffsetRect(POINT by) { OffsetRect(by.x, by.y); }
  void NormalizeRect() {
    if (left > right) {
      const LONG l = right;
      right = left;
      left = l;
    }
    if (top > bottom) {
      const LONG t = bottom;
      bottom = top;
      top = t;
    }
  }
  BOOL IntersectRect(const RECT* a, const RECT* b) { return ::IntersectRect(this, a, b); }
  BOOL UnionRect(const RECT* a, const RECT* b) { return ::UnionRect(this, a, b); }

  friend bool operator==(const CRect& a, const CRect& b) { return ::EqualRect(&a, &b) != FALSE; }
  friend bool operator!=(const CRect& a, const CRect& b) { return !(a == b); }
};
