#include "draw/line_styles.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

#include "draw/exact_stepping.h"

namespace tavix {
namespace {

// What a pattern is made of.
enum class Piece { kDash, kGap, kShortDash, kDot };

// The length of a piece in pixels.
int LengthIn(const LineSymbol& symbol, Piece piece) {
  constexpr int kDotPixels = 2;  // whatever the symbol's lengths
  switch (piece) {
    case Piece::kDash:
      return symbol.dash;
    case Piece::kGap:
      return symbol.gap;
    case Piece::kShortDash:
      return symbol.short_dash;
    default:
      return kDotPixels;
  }
}

// A line style: the pieces that repeat along a line, drawn and left out in turn; none for a solid
// line.
struct LineStyle {
  int kind;
  std::size_t count;
  std::array<Piece, 6> pieces;
};

// The only place that names the styles. Legends keep the kinds.
using enum Piece;
constexpr std::array kLineStyles{
    LineStyle{kSolidLine, 0, {}},
    LineStyle{102, 2, {kDash, kGap}},
    LineStyle{103, 2, {kDot, kDot}},
    LineStyle{104, 4, {kDash, kGap, kShortDash, kGap}},
    LineStyle{105, 6, {kDash, kGap, kShortDash, kGap, kShortDash, kGap}},
};

// The ground rectangle that a segment spans; the walk ends where it would leave it.
class GroundBox {
 public:
  GroundBox(GroundPoint a, GroundPoint b)
      : low_{std::min(a.north, b.north), std::min(a.east, b.east)},
        high_{std::max(a.north, b.north), std::max(a.east, b.east)} {}

  [[nodiscard]] bool Holds(GroundPoint at) const {
    return low_.north <= at.north && at.north <= high_.north && low_.east <= at.east &&
           at.east <= high_.east;
  }

 private:
  GroundPoint low_;
  GroundPoint high_;
};

// How many pixels a metre of the segment takes: along it, not along an axis, for the ratio's sake.
double PixelsPerMetre(const CViewState& view, GroundPoint start, GroundPoint end, double metres) {
  const RealScreenPoint from = view.GroundToRealScreen(start);
  const RealScreenPoint to = view.GroundToRealScreen(end);
  return std::hypot(to.x - from.x, to.y - from.y) / metres;
}

// The pattern's lengths as steps on the ground. A length is a distance: its sign does not count.
std::array<GroundStep, 6> StepsOf(const LinePattern& pattern, GroundStep unit,
                                  double pixels_per_metre) {
  std::array<GroundStep, 6> steps{};
  for (std::size_t i = 0; i < pattern.count; ++i) {
    const double length = std::fabs(static_cast<double>(pattern.lengths[i])) / pixels_per_metre;
    steps[i] = {unit.dx * length, unit.dy * length};
  }
  return steps;
}

// The walk goes from the segment's start in whole rounds of the pattern. Each round leads on from
// the last one's rounded end, so over many rounds the pattern may drift off the segment's own line:
// where it shows is found from the positions themselves. No step leads back, so whatever is drawn
// between two positions lies in the ground box between them; where that cannot show, the rounds
// are passed over.
class PatternWalk {
 public:
  PatternWalk(const CViewState& view, const ScreenBox& visible,
              const std::function<void(const LinePiece&)>& draw, std::span<const GroundStep> steps,
              GroundPoint start, GroundPoint end)
      : view_(view),
        visible_(visible),
        draw_(draw),
        steps_(steps),
        box_(start, end),
        at_(start),
        end_(end) {}

  void Run() {
    // Shorter than the first dash, as the pieces of a curve seen from afar are.
    if (!box_.Holds(at_ + steps_[0])) {
      draw_({at_, end_});
      return;
    }
    if (IsShort() && !DrawRounds(kFewRounds)) return;
    constexpr std::int64_t kManyRounds = std::int64_t{1} << 60;
    std::int64_t rounds = kFewRounds;
    while (!CannotShow(at_, end_)) {
      const GroundPoint next = StepExactly(at_, steps_, rounds);
      const bool holds = box_.Holds(next);
      const bool hidden = holds && CannotShow(at_, next);
      if (hidden || (holds && !IsHere(next) && IsInOnePixel(at_, next))) {
        if (IsHere(next)) return;
        if (!hidden) draw_({at_, at_});  // as all dashes of these rounds
        at_ = next;
        rounds = std::min(2 * rounds, kManyRounds);
      } else if (rounds > kFewRounds) {
        rounds /= 2;
      } else if (!DrawRounds(kFewRounds)) {
        return;
      }
    }
  }

 private:
  static constexpr std::int64_t kFewRounds = 16;  // not worth passing over

  // Whether a few rounds lead to the end, but for their rounding.
  [[nodiscard]] bool IsShort() const {
    GroundStep round;
    for (const GroundStep step : steps_) round = {round.dx + step.dx, round.dy + step.dy};
    return !box_.Holds(at_ + GroundStep{round.dx * kFewRounds, round.dy * kFewRounds});
  }

  [[nodiscard]] bool IsHere(GroundPoint at) const {
    return at.north == at_.north && at.east == at_.east;
  }

  // False when the walk has ended.
  bool DrawRounds(std::int64_t rounds) {
    for (; rounds > 0; --rounds) {
      const GroundPoint round_start = at_;
      for (std::size_t i = 0; i < steps_.size(); i += 2) {
        const GroundPoint dash_end = at_ + steps_[i];
        if (!box_.Holds(dash_end)) {
          draw_({at_, end_});
          return false;
        }
        draw_({at_, dash_end});
        at_ = dash_end + steps_[i + 1];
        if (!box_.Holds(at_)) return false;
      }
      if (IsHere(round_start)) return false;  // would repeat in place for ever
    }
    return true;
  }

  // The corners of a ground box, from two of them that are opposite.
  [[nodiscard]] static std::array<GroundPoint, 4> CornersOf(GroundPoint a, GroundPoint b) {
    return {a, {a.north, b.east}, b, {b.north, a.east}};
  }

  // Whether all of a ground box lies in one pixel, as whole rounds do where coordinates are so
  // large that rounding loses the steps along the line: those across it would be taken one by one,
  // by the billion.
  [[nodiscard]] bool IsInOnePixel(GroundPoint a, GroundPoint b) const {
    const auto corners = CornersOf(a, b);
    const ScreenPoint first = view_.GroundToScreen(a);
    return std::all_of(corners.begin(), corners.end(), [&](const GroundPoint& corner) {
      return view_.GroundToScreen(corner) == first;
    });
  }

  // Whether nothing between two opposite corners of a ground box comes into view.
  [[nodiscard]] bool CannotShow(GroundPoint a, GroundPoint b) const {
    std::array<RealScreenPoint, 4> corners;
    std::ranges::transform(CornersOf(a, b), corners.begin(), [&](const GroundPoint& corner) {
      return view_.GroundToRealScreen(corner);
    });
    const auto all = [&](auto outside) {
      return std::all_of(corners.begin(), corners.end(), outside);
    };
    constexpr double kTruncated = 1.0;  // pixels lost on the way to whole ones
    return all([&](const RealScreenPoint& at) { return at.x < visible_.left - kTruncated; }) ||
           all([&](const RealScreenPoint& at) { return at.x > visible_.right + kTruncated; }) ||
           all([&](const RealScreenPoint& at) { return at.y < visible_.top - kTruncated; }) ||
           all([&](const RealScreenPoint& at) { return at.y > visible_.bottom + kTruncated; });
  }

  const CViewState& view_;
  const ScreenBox& visible_;
  const std::function<void(const LinePiece&)>& draw_;
  std::span<const GroundStep> steps_;
  GroundBox box_;
  GroundPoint at_;
  GroundPoint end_;
};

bool HasLength(const LinePattern& pattern) {
  return std::any_of(pattern.lengths.begin(), pattern.lengths.end(),
                     [](int length) { return length != 0; });
}

}  // namespace

std::optional<LinePattern> PatternOf(const LineSymbol& symbol) {
  const auto row = std::find_if(kLineStyles.begin(), kLineStyles.end(),
                                [&](const LineStyle& style) { return style.kind == symbol.style; });
  if (row == kLineStyles.end() || row->count == 0) return std::nullopt;
  LinePattern pattern;
  pattern.count = row->count;
  for (std::size_t i = 0; i < row->count; ++i) {
    pattern.lengths[i] = LengthIn(symbol, row->pieces[i]);
  }
  return pattern;
}

void WalkPattern(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                 GroundPoint end, const ScreenBox& visible,
                 const std::function<void(const LinePiece&)>& draw) {
  const double metres = std::hypot(end.north - start.north, end.east - start.east);
  const double pixels_per_metre = PixelsPerMetre(view, start, end, metres);
  if (!(metres > 0 && pixels_per_metre > 0 && std::isfinite(pixels_per_metre) &&
        HasLength(pattern))) {
    draw({start, start});
    return;
  }
  const GroundStep unit{(end.north - start.north) / metres, (end.east - start.east) / metres};
  const auto steps = StepsOf(pattern, unit, pixels_per_metre);
  PatternWalk(view, visible, draw, std::span(steps.data(), pattern.count), start, end).Run();
}

}  // namespace tavix
