// CSize and CPoint.
#pragma once

#include "framework/platform.h"

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

  // The point this far from, or this far before, the other.
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
