#include "draw/line_pattern.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

#include "draw/exact_stepping.h"

namespace tavix {
namespace {

constexpr int kDotPixels = 2;  // of the fine dotted line, whatever the entry's values

// Where a segment lies on the screen before truncation, as distances along it in pixels.
class ScreenPath {
 public:
  ScreenPath(const CViewState& view, GroundPoint start, GroundPoint end)
      : view_(view), from_(view.GroundToRealScreen(start)) {
    const RealScreenPoint to = view.GroundToRealScreen(end);
    length_ = std::hypot(to.x - from_.x, to.y - from_.y);
    if (length_ > 0) direction_ = {(to.x - from_.x) / length_, (to.y - from_.y) / length_};
  }

  [[nodiscard]] double Length() const { return length_; }

  [[nodiscard]] double DistanceTo(GroundPoint at) const {
    const RealScreenPoint screen = view_.GroundToRealScreen(at);
    return (screen.x - from_.x) * direction_.x + (screen.y - from_.y) * direction_.y;
  }

  // The distances at which the path enters and leaves a box; empty (enter > leave) outside of it.
  struct Stretch {
    double enter;
    double leave;
  };
  [[nodiscard]] Stretch Within(const ScreenBox& box) const {
    Stretch stretch{0.0, length_};
    Cut(stretch, from_.x, direction_.x, box.left, box.right);
    Cut(stretch, from_.y, direction_.y, box.top, box.bottom);
    return stretch;
  }

 private:
  static void Cut(Stretch& stretch, double from, double direction, double low, double high) {
    if (direction == 0.0) {
      if (from < low || from > high) stretch.leave = stretch.enter - 1.0;
      return;
    }
    const double a = (low - from) / direction;
    const double b = (high - from) / direction;
    stretch.enter = std::max(stretch.enter, std::min(a, b));
    stretch.leave = std::min(stretch.leave, std::max(a, b));
  }

  const CViewState& view_;
  RealScreenPoint from_;
  RealScreenPoint direction_;
  double length_ = 0.0;
};

// The ground rectangle that a segment spans; the walk ends where it would leave it.
class GroundBox {
 public:
  GroundBox(GroundPoint a, GroundPoint b)
      : low_{std::min(a.x, b.x), std::min(a.y, b.y)},
        high_{std::max(a.x, b.x), std::max(a.y, b.y)} {}

  [[nodiscard]] bool Holds(GroundPoint at) const {
    return low_.x <= at.x && at.x <= high_.x && low_.y <= at.y && at.y <= high_.y;
  }

 private:
  GroundPoint low_;
  GroundPoint high_;
};

// The pattern's lengths as steps on the ground: `pixels_per_metre` is the scale along the segment.
std::array<GroundStep, 6> StepsOf(const LinePattern& pattern, GroundStep unit,
                                  double pixels_per_metre) {
  std::array<GroundStep, 6> steps{};
  for (std::size_t i = 0; i < pattern.count; ++i) {
    const double length = pattern.lengths[i] / pixels_per_metre;
    steps[i] = {unit.dx * length, unit.dy * length};
  }
  return steps;
}

// Passes over whole rounds of the pattern that end before `distance`. Rounding may stretch or
// shrink the pattern a little as it is laid, or carry it out of a very thin box, where the walk
// ends; so each jump goes half the way by the present pace, and shorter where it would leave the
// box.
GroundPoint SkipRounds(const ScreenPath& path, const GroundBox& box, GroundPoint at,
                       std::span<const GroundStep> steps, double distance) {
  constexpr std::int64_t kFewRounds = 4;
  for (;;) {
    const double here = path.DistanceTo(at);
    const double pace = path.DistanceTo(StepExactly(at, steps, 1)) - here;
    const double rounds = pace > 0 ? (distance - here) / pace : 0.0;
    if (!(rounds > 0)) return at;
    auto jump = static_cast<std::int64_t>(std::min(rounds / 2, 4e18));
    GroundPoint next = at;
    for (; jump > kFewRounds; jump /= 2) {
      next = StepExactly(at, steps, jump);
      if (box.Holds(next)) break;
    }
    if (jump <= kFewRounds) return at;
    at = next;
  }
}

}  // namespace

std::optional<LinePattern> PatternOf(const LegendStyle& style) {
  const int dash = style.prm1;
  const int gap = style.prm2;
  const int short_dash = style.prm3;
  switch (style.kind) {
    case 102:
      return LinePattern{{dash, gap}, 2};
    case 103:
      return LinePattern{{kDotPixels, kDotPixels}, 2};
    case 104:
      return LinePattern{{dash, gap, short_dash, gap}, 4};
    case 105:
      return LinePattern{{dash, gap, short_dash, gap, short_dash, gap}, 6};
    default:
      return std::nullopt;
  }
}

void WalkPattern(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                 GroundPoint end, const ScreenBox& visible,
                 const std::function<void(const LinePiece&)>& draw) {
  const double ground_length = std::hypot(end.x - start.x, end.y - start.y);
  const ScreenPath path(view, start, end);
  if (!(ground_length > 0 && path.Length() > 0 && std::isfinite(path.Length()))) {
    draw({start, start});
    return;
  }
  const GroundStep unit{(end.x - start.x) / ground_length, (end.y - start.y) / ground_length};
  const auto all_steps = StepsOf(pattern, unit, path.Length() / ground_length);
  const std::span<const GroundStep> steps(all_steps.data(), pattern.count);

  const ScreenPath::Stretch seen = path.Within(visible);
  if (seen.enter > seen.leave) return;
  const GroundBox box(start, end);
  GroundPoint at = SkipRounds(path, box, start, steps, seen.enter);
  for (;;) {
    const GroundPoint round_start = at;
    const double distance = path.DistanceTo(round_start);
    if (distance > seen.leave) return;
    for (std::size_t i = 0; i < steps.size(); i += 2) {
      const GroundPoint dash_end = at + steps[i];
      if (!box.Holds(dash_end)) {
        draw({at, end});
        return;
      }
      draw({at, dash_end});
      at = dash_end + steps[i + 1];
      if (!box.Holds(at)) return;
    }
    if (!(path.DistanceTo(at) > distance)) return;  // would repeat in place for ever
  }
}

}  // namespace tavix
