#include "tests/support/raw_line.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

struct Turn {
  double cos;
  double sin;
};

Turn TurnOf(int degrees) {
  if (degrees == 0) return {1.0, 0.0};
  if (degrees == 90) return {0.0, 1.0};
  if (degrees == 180) return {-1.0, 0.0};
  if (degrees == 270) return {0.0, -1.0};
  const double radians = degrees * (std::numbers::pi / 180.0);
  return {std::cos(radians), std::sin(radians)};
}

// A dash and a gap, a dash and a gap, ...
std::vector<int> PatternOf(const LineLegend& look) {
  if (look.kind == 103) return {2, 2};
  if (look.kind == 102) return {look.dash, look.gap};
  if (look.kind == 104) return {look.dash, look.gap, look.short_dash, look.gap};
  return {look.dash, look.gap, look.short_dash, look.gap, look.short_dash, look.gap};
}

bool InBox(Ground at, Ground a, Ground b) {
  return std::min(a.x, b.x) <= at.x && at.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= at.y &&
         at.y <= std::max(a.y, b.y);
}

class Walk {
 public:
  Walk(HDC dc, const RawView& view, Ground start, Ground end)
      : dc_(dc), view_(view), start_(start), end_(end) {
    const double metres = std::hypot(end.x - start.x, end.y - start.y);
    const RawView::Real from = view.RealPixel(start);
    const RawView::Real to = view.RealPixel(end);
    pixels_per_metre_ = std::hypot(to.x - from.x, to.y - from.y) / metres;
    unit_ = {(end.x - start.x) / metres, (end.y - start.y) / metres};
  }

  void Run(const std::vector<int>& pattern) const {
    Ground at = start_;
    for (;;) {
      for (std::size_t i = 0; i < pattern.size(); i += 2) {
        const Ground dash_end = Step(at, pattern[i]);
        if (!InBox(dash_end, start_, end_)) {
          Draw(at, end_);
          return;
        }
        Draw(at, dash_end);
        at = Step(dash_end, pattern[i + 1]);
        if (!InBox(at, start_, end_)) return;
      }
    }
  }

 private:
  [[nodiscard]] Ground Step(Ground at, int pixels) const {
    const double length = pixels / pixels_per_metre_;
    return {at.x + unit_.x * length, at.y + unit_.y * length};
  }

  void Draw(Ground from, Ground to) const {
    DrawRawSegment(dc_, view_.Pixel(from), view_.Pixel(to));
  }

  HDC dc_;
  const RawView& view_;
  Ground start_;
  Ground end_;
  Ground unit_{};
  double pixels_per_metre_ = 0.0;
};

}  // namespace

RawView::Real RawView::RealPixel(Ground at) const {
  const int middle_x = width / 2;
  const int middle_y = height / 2;
  const double vertical = scale * ratio;
  const double dx = (at.y - centre.y) * scale + middle_x - middle_x;
  const double dy = (centre.x - at.x) * vertical + middle_y - middle_y;
  const Turn turn = TurnOf(angle);
  return {dx * turn.cos - dy * turn.sin + middle_x, dy * turn.cos + dx * turn.sin + middle_y};
}

POINT RawView::Pixel(Ground at) const {
  const Real real = RealPixel(at);
  return {static_cast<LONG>(real.x), static_cast<LONG>(real.y)};
}

void DrawRawSegment(HDC dc, POINT from, POINT to) {
  const bool is_dot = from.x == to.x && from.y == to.y;
  ::MoveToEx(dc, from.x, from.y, nullptr);
  ::LineTo(dc, is_dot ? from.x + 1 : to.x, to.y);
}

void DrawRawLine(HDC dc, const RawView& view, const LineLegend& look, Ground start, Ground end) {
  const RawSelection pen(dc, ::CreatePen(PS_SOLID, look.width, look.color));
  if (look.kind == 101) {
    DrawRawSegment(dc, view.Pixel(start), view.Pixel(end));
  } else {
    Walk(dc, view, start, end).Run(PatternOf(look));
  }
}

}  // namespace tavix::test
