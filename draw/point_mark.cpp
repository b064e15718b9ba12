#include "draw/point_mark.h"

#include <afxwin.h>

namespace tavix {
namespace {

// A stroke whose end pixel counts: a line-to leaves its own end out, so `past_end` lies one beyond.
void Stroke(CDC& dc, POINT start, POINT past_end) {
  dc.MoveTo(start);
  dc.LineTo(past_end);
}

// An apex-up triangle whose apex stands 0.8 of the size above the point and whose base 0.2 below
// it; a negative size turns it upside down.
void DrawTriangle(CDC& dc, int size, ScreenPoint at) {
  const int apex = static_cast<int>(size * 0.8);
  const int base = static_cast<int>(size * 0.2);
  const int half = size / 2;
  const POINT vertices[] = {
      {at.x, at.y - apex}, {at.x - half, at.y + base}, {at.x + half, at.y + base}};
  dc.Polygon(vertices, 3);
}

}  // namespace

void DrawMark(CDC& dc, int kind, int size, ScreenPoint at) {
  const int half = size / 2;
  const int left = at.x - half;
  const int top = at.y - half;
  const int right = at.x + half;
  const int bottom = at.y + half;
  switch (kind) {
    case 1:  // dot: a degenerate ellipse, whatever the size
      dc.Ellipse(at.x, at.y, at.x, at.y);
      break;
    case 2:  // circle
    case 8:
      dc.Ellipse(left, top, right, bottom);
      break;
    case 3:  // diagonal cross
      Stroke(dc, {left, top}, {right + 1, bottom + 1});
      Stroke(dc, {left, bottom}, {right + 1, top - 1});
      break;
    case 4:  // upright cross
      Stroke(dc, {left, at.y}, {right + 1, at.y});
      Stroke(dc, {at.x, top}, {at.x, bottom + 1});
      break;
    case 5:  // triangle, apex up
    case 9:
      DrawTriangle(dc, size, at);
      break;
    case 6:  // square
    case 10: {
      const POINT corners[] = {{left, top}, {left, bottom}, {right, bottom}, {right, top}};
      dc.Polygon(corners, 4);
      break;
    }
    case 7:  // triangle, apex down
    case 11:
      DrawTriangle(dc, -size, at);
      break;
    default:
      break;
  }
}

}  // namespace tavix
