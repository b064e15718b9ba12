#include "draw/marks.h"

#include <afxwin.h>

#include <array>

namespace tavix {
namespace {

// What stands half a size from the middle.
struct MarkBox {
  MarkBox(int size, ScreenPoint at)
      : left(at.x - size / 2),
        top(at.y - size / 2),
        right(at.x + size / 2),
        bottom(at.y + size / 2) {}

  int left;
  int top;
  int right;
  int bottom;
};

// A stroke whose end pixel counts: a line-to leaves its own end out, so `past_end` lies one beyond.
void Stroke(CDC& dc, POINT start, POINT past_end) {
  dc.MoveTo(start);
  dc.LineTo(past_end);
}

// Compatibility: a degenerate ellipse, whatever the size.
void DrawDot(CDC& dc, int, ScreenPoint at) { dc.Ellipse(at.x, at.y, at.x, at.y); }

void DrawCircle(CDC& dc, int size, ScreenPoint at) {
  const MarkBox box(size, at);
  dc.Ellipse(box.left, box.top, box.right, box.bottom);
}

void DrawDiagonalCross(CDC& dc, int size, ScreenPoint at) {
  const MarkBox box(size, at);
  Stroke(dc, {box.left, box.top}, {box.right + 1, box.bottom + 1});
  Stroke(dc, {box.left, box.bottom}, {box.right + 1, box.top - 1});
}

void DrawUprightCross(CDC& dc, int size, ScreenPoint at) {
  const MarkBox box(size, at);
  Stroke(dc, {box.left, at.y}, {box.right + 1, at.y});
  Stroke(dc, {at.x, box.top}, {at.x, box.bottom + 1});
}

void DrawSquare(CDC& dc, int size, ScreenPoint at) {
  const MarkBox box(size, at);
  const POINT corners[] = {
      {box.left, box.top}, {box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}};
  dc.Polygon(corners, 4);
}

// The apex stands 0.8 of the size above the point and the base 0.2 below it.
void DrawTriangle(CDC& dc, int size, ScreenPoint at) {
  const int apex = static_cast<int>(size * 0.8);
  const int base = static_cast<int>(size * 0.2);
  const int half = size / 2;
  const POINT vertices[] = {
      {at.x, at.y - apex}, {at.x - half, at.y + base}, {at.x + half, at.y + base}};
  dc.Polygon(vertices, 3);
}

void DrawTriangleDown(CDC& dc, int size, ScreenPoint at) { DrawTriangle(dc, -size, at); }

// Kinds 1, 2, 3 and so on. Legends keep the numbers: the order stays, new shapes come last.
constexpr std::array kMarks{
    MarkShape{L"Dot", false, &DrawDot},         MarkShape{L"○", false, &DrawCircle},
    MarkShape{L"×", false, &DrawDiagonalCross}, MarkShape{L"＋", false, &DrawUprightCross},
    MarkShape{L"△", false, &DrawTriangle},      MarkShape{L"□", false, &DrawSquare},
    MarkShape{L"▽", false, &DrawTriangleDown},  MarkShape{L"●", true, &DrawCircle},
    MarkShape{L"▲", true, &DrawTriangle},       MarkShape{L"■", true, &DrawSquare},
    MarkShape{L"▼", true, &DrawTriangleDown},
};

}  // namespace

const MarkShape* FindMark(int kind) {
  const bool known = kind >= 1 && kind <= static_cast<int>(kMarks.size());
  return known ? &kMarks[static_cast<std::size_t>(kind) - 1] : nullptr;
}

void DrawMark(CDC& dc, int kind, int size, ScreenPoint at) {
  if (const MarkShape* shape = FindMark(kind)) shape->draw(dc, size, at);
}

}  // namespace tavix
