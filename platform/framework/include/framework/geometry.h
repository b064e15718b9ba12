// CSize, CPoint, CRect: the system's structures with arithmetic. Coordinates are pixels.
#pragma once

#include <utility>

#include "platform.h"

class CPoint;

class CSize : public tagSIZE {
 public:
  CSize() : tagSIZE{0, 0} {}
  CSize(int x, int y) : tagSIZE{x, y} {}
  CSize(SIZE size) : tagSIZE(size) {}
  CSize(POINT point) : tagSIZE{point.x, point.y} {}

  void SetSize(int x, int y) {
    cx = x;
    cy = y;
  }

  friend bool operator==(CSize a, CSize b) { return a.cx == b.cx && a.cy == b.cy; }
  friend bool operator!=(CSize a, CSize b) { return !(a == b); }

  CSize& operator+=(SIZE other) {
    SetSize(cx + other.cx, cy + other.cy);
    return *this;
  }
  CSize& operator-=(SIZE other) {
    SetSize(cx - other.cx, cy - other.cy);
    return *this;
  }
  CSize operator+(SIZE other) const { return {cx + other.cx, cy + other.cy}; }
  CSize operator-(SIZE other) const { return {cx - other.cx, cy - other.cy}; }
  CSize operator-() const { return {-cx, -cy}; }

  // The point moved by this size, or by its negative.
  CPoint operator+(POINT point) const;
  CPoint operator-(POINT point) const;
};

class CPoint : public tagPOINT {
 public:
  CPoint() : tagPOINT{0, 0} {}
  CPoint(int px, int py) : tagPOINT{px, py} {}
  CPoint(POINT point) : tagPOINT(point) {}
  CPoint(SIZE size) : tagPOINT{size.cx, size.cy} {}
  // From a message parameter: signed 16-bit halves, x low.
  explicit CPoint(LPARAM packed)
      : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

  void Offset(int dx, int dy) { SetPoint(x + dx, y + dy); }
  void Offset(POINT by) { Offset(by.x, by.y); }
  void Offset(SIZE by) { Offset(by.cx, by.cy); }
  void SetPoint(int px, int py) {
    x = px;
    y = py;
  }

  friend bool operator==(CPoint a, CPoint b) { return a.x == b.x && a.y == b.y; }
  friend bool operator!=(CPoint a, CPoint b) { return !(a == b); }

  CPoint& operator+=(SIZE by) {
    Offset(by);
    return *this;
  }
  CPoint& operator+=(POINT by) {
    Offset(by);
    return *this;
  }
  CPoint& operator-=(SIZE by) {
    Offset(-by.cx, -by.cy);
    return *this;
  }
  CPoint& operator-=(POINT by) {
    Offset(-by.x, -by.y);
    return *this;
  }
  CPoint operator+(SIZE by) const { return {x + by.cx, y + by.cy}; }
  CPoint operator+(POINT by) const { return {x + by.x, y + by.y}; }
  CPoint operator-(SIZE by) const { return {x - by.cx, y - by.cy}; }
  CSize operator-(POINT from) const { return {x - from.x, y - from.y}; }
  CPoint operator-() const { return {-x, -y}; }
};

inline CPoint CSize::operator+(POINT point) const { return {cx + point.x, cy + point.y}; }
inline CPoint CSize::operator-(POINT point) const { return {cx - point.x, cy - point.y}; }

// Right and bottom lie outside. Normalised means left <= right and top <= bottom; Width and Height
// may be negative otherwise, and the calls that combine rectangles or test points expect normalised
// ones. Pointers must not be null.
class CRect : public tagRECT {
 public:
  CRect() : tagRECT{0, 0, 0, 0} {}
  CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
  CRect(const RECT& rect) : tagRECT(rect) {}
  CRect(const RECT* rect) : tagRECT(*rect) {}
  CRect(POINT at, SIZE size) : tagRECT{at.x, at.y, at.x + size.cx, at.y + size.cy} {}
  CRect(POINT topLeft, POINT bottomRight)
      : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

  // The address, for calls that take a pointer.
  operator RECT*() { return this; }
  operator const RECT*() const { return this; }

  // ---- Size and position; TopLeft and BottomRight can be assigned to

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  CSize Size() const { return {Width(), Height()}; }
  CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
  CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
  CPoint TopLeft() const { return {left, top}; }
  CPoint BottomRight() const { return {right, bottom}; }
  CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }

  // ---- Questions

  // Empty: no width or no height, or a negative one. Null: all four coordinates are 0.
  BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
  BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
  BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
  BOOL EqualRect(const RECT* other) const { return ::EqualRect(this, other); }
  friend bool operator==(const CRect& a, const CRect& b) { return ::EqualRect(&a, &b) != FALSE; }
  friend bool operator!=(const CRect& a, const CRect& b) { return !(a == b); }

  // ---- Setting

  void SetRect(int l, int t, int r, int b) { ::SetRect(this, l, t, r, b); }
  void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
  void SetRectEmpty() { ::SetRectEmpty(this); }
  void CopyRect(const RECT* other) { ::CopyRect(this, other); }
  void NormalizeRect() {
    if (left > right) std::swap(left, right);
    if (top > bottom) std::swap(top, bottom);
  }

  // ---- Moving; the size stays

  void OffsetRect(int dx, int dy) { ::OffsetRect(this, dx, dy); }
  void OffsetRect(POINT by) { OffsetRect(by.x, by.y); }
  void OffsetRect(SIZE by) { OffsetRect(by.cx, by.cy); }
  void MoveToX(int x) { OffsetRect(x - left, 0); }
  void MoveToY(int y) { OffsetRect(0, y - top); }
  void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
  void MoveToXY(POINT to) { MoveToXY(to.x, to.y); }

  // ---- Growing: each side moves outwards by its amount, inwards when deflated

  void InflateRect(int dx, int dy) { ::InflateRect(this, dx, dy); }
  void InflateRect(SIZE by) { InflateRect(by.cx, by.cy); }
  void InflateRect(int l, int t, int r, int b) {
    SetRect(left - l, top - t, right + r, bottom + b);
  }
  void InflateRect(const RECT* by) { InflateRect(by->left, by->top, by->right, by->bottom); }
  void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
  void DeflateRect(SIZE by) { DeflateRect(by.cx, by.cy); }
  void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
  void DeflateRect(const RECT* by) { DeflateRect(by->left, by->top, by->right, by->bottom); }

  // ---- Combining: FALSE when the result is empty

  BOOL IntersectRect(const RECT* a, const RECT* b) { return ::IntersectRect(this, a, b); }
  BOOL UnionRect(const RECT* a, const RECT* b) { return ::UnionRect(this, a, b); }
  // `a` without `b` where that is a rectangle; otherwise `a`.
  BOOL SubtractRect(const RECT* a, const RECT* b) { return ::SubtractRect(this, a, b); }

  // ---- Operators: + and - of a point or size move, of a rectangle inflate and deflate

  CRect& operator+=(POINT by) { return OffsetRect(by), *this; }
  CRect& operator+=(SIZE by) { return OffsetRect(by), *this; }
  CRect& operator+=(const RECT* by) { return InflateRect(by), *this; }
  CRect& operator-=(POINT by) { return OffsetRect(-by.x, -by.y), *this; }
  CRect& operator-=(SIZE by) { return OffsetRect(-by.cx, -by.cy), *this; }
  CRect& operator-=(const RECT* by) { return DeflateRect(by), *this; }
  CRect& operator&=(const RECT& other) { return IntersectRect(this, &other), *this; }
  CRect& operator|=(const RECT& other) { return UnionRect(this, &other), *this; }

  CRect operator+(POINT by) const { return CRect(*this) += by; }
  CRect operator+(SIZE by) const { return CRect(*this) += by; }
  CRect operator+(const RECT* by) const { return CRect(*this) += by; }
  CRect operator-(POINT by) const { return CRect(*this) -= by; }
  CRect operator-(SIZE by) const { return CRect(*this) -= by; }
  CRect operator-(const RECT* by) const { return CRect(*this) -= by; }
  CRect operator&(const RECT& other) const { return CRect(*this) &= other; }
  CRect operator|(const RECT& other) const { return CRect(*this) |= other; }
};
