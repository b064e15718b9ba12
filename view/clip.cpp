#include "view/clip.h"

#include <cstddef>

namespace tavix {
namespace {

// Holds the products of 33-bit differences without overflow; equal to integer arithmetic for every
// product below 2^64, and close enough beyond, where only far-away ends are involved.
using Product = long double;

Product Difference(int a, int b) { return static_cast<Product>(a) - static_cast<Product>(b); }

struct Crossings {
  std::array<ScreenPoint, 4> points;
  std::size_t count = 0;

  void AddNew(ScreenPoint point) {
    for (std::size_t i = 0; i < count; ++i) {
      if (points[i] == point) return;
    }
    points[count++] = point;
  }
};

Crossings FindCrossings(const ScreenQuad& quad, const ScreenSegment& segment) {
  Crossings crossings;
  for (std::size_t i = 0; i < quad.size(); ++i) {
    ScreenPoint crossing;
    if (IntersectSegments({quad[i], quad[(i + 1) % quad.size()]}, segment, crossing)) {
      crossings.AddNew(crossing);
    }
  }
  return crossings;
}

// One crossing: the end outside moves onto it. It fails where that would leave a single pixel.
bool ClipAtOneCrossing(ScreenSegment& segment, ScreenPoint crossing, bool start_inside,
                       bool end_inside) {
  if (start_inside) {
    if (crossing == segment.start) return false;
    segment.end = crossing;
    return true;
  }
  if (!end_inside || crossing == segment.end) return false;
  segment.start = crossing;
  return true;
}

}  // namespace

bool ClipToQuad(const ScreenQuad& quad, ScreenSegment& segment) {
  const bool start_inside = PointInQuad(quad, segment.start);
  const bool end_inside = PointInQuad(quad, segment.end);
  if (start_inside && end_inside) return true;

  const Crossings crossings = FindCrossings(quad, segment);
  switch (crossings.count) {
    case 1:
      return ClipAtOneCrossing(segment, crossings.points[0], start_inside, end_inside);
    case 2:
      segment = {crossings.points[0], crossings.points[1]};
      return true;
    default:
      return false;
  }
}

bool IntersectSegments(const ScreenSegment& edge, const ScreenSegment& segment,
                       ScreenPoint& crossing) {
  const Product dx_a = Difference(edge.end.x, edge.start.x);
  const Product dy_a = Difference(edge.end.y, edge.start.y);
  const Product dx_b = Difference(segment.end.x, segment.start.x);
  const Product dy_b = Difference(segment.end.y, segment.start.y);
  const Product denominator = dx_b * dy_a - dy_b * dx_a;
  if (denominator == 0) return false;

  const Product sign = denominator < 1 ? -1 : 1;
  const Product d = sign * denominator;
  const Product dx_0 = Difference(edge.start.x, segment.start.x);
  const Product dy_0 = Difference(edge.start.y, segment.start.y);
  const Product t = sign * (dx_0 * dy_b - dy_0 * dx_b);
  const Product u = sign * (dx_0 * dy_a - dy_0 * dx_a);
  if (t < 0 || t > d || u < 0 || u > d) return false;

  const auto along = [&](Product length) {
    return TruncateToInt(static_cast<double>(length) * static_cast<double>(t) /
                         static_cast<double>(d));
  };
  crossing = {edge.start.x + along(dx_a), edge.start.y + along(dy_a)};
  return true;
}

}  // namespace tavix
