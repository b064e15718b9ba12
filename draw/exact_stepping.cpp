#include "draw/exact_stepping.h"

#include <algorithm>
#include <cmath>
#include <limits>

// Between two powers of two the representable numbers lie evenly, and adding a constant there moves
// by a constant multiple of their spacing. The one thing that may alternate is the rounding of
// exact halves, which goes by whether the position is an even or an odd multiple. So when two
// double rounds in a row move by the same amount without leaving the power of two, every further
// double round does, and any number of them is one exact multiplication and one exact addition.

namespace tavix {
namespace {

constexpr std::int64_t kFewRounds = 16;  // not worth a jump

// One coordinate of the position and of the steps.
class Axis {
 public:
  Axis(double at, std::span<const GroundStep> steps, double GroundStep::*part)
      : at_(at), steps_(steps), part_(part) {}

  [[nodiscard]] double At() const { return at_; }

  void Advance(std::int64_t rounds) {
    while (rounds >= kFewRounds) {
      const Round first = DoubleRound(at_);
      if (first.end == at_ ||
          std::isnan(first.end)) {  // stays there for ever, zero and infinity too
        at_ = first.end;
        rounds %= 2;
        break;
      }
      const Round second = DoubleRound(first.end);
      const double move = first.end - at_;
      std::int64_t jump = 0;
      if (first.even_spacing && second.even_spacing && second.end - first.end == move) {
        jump = std::min(DoubleRoundsToEdge(move), rounds / 2);
      }
      if (jump > 0) {
        at_ += move * static_cast<double>(jump);
        rounds -= 2 * jump;
      } else {
        at_ = first.end;
        rounds -= 2;
      }
    }
    for (; rounds > 0; --rounds) at_ = OneRound(at_);
  }

 private:
  struct Round {
    double end;
    bool even_spacing;  // no position on the way left the power of two of the first
  };

  [[nodiscard]] double OneRound(double at) const {
    for (const GroundStep& step : steps_) at += step.*part_;
    return at;
  }

  [[nodiscard]] Round DoubleRound(double at) const {
    const int power = at == 0.0 ? std::numeric_limits<int>::min() : std::ilogb(at);
    bool even = at != 0.0;
    for (int i = 0; i < 2; ++i) {
      for (const GroundStep& step : steps_) {
        at += step.*part_;
        even = even && at != 0.0 && std::ilogb(at) == power;
      }
    }
    return {at, even};
  }

  // How many double rounds keep well inside the present power of two; the steps within a round may
  // reach beyond its end, so the longest of them is kept free.
  [[nodiscard]] std::int64_t DoubleRoundsToEdge(double move) const {
    double reach = std::fabs(move);
    for (const GroundStep& step : steps_) reach += 2 * std::fabs(step.*part_);
    const double low = std::ldexp(1.0, std::ilogb(at_));
    const double size = std::fabs(at_);
    const bool outward = (move > 0) == (at_ > 0);
    const double room = (outward ? 2 * low - size : size - low) - 2 * reach;
    return room <= 0 ? 0 : static_cast<std::int64_t>(std::min(room / std::fabs(move), 4e18));
  }

  double at_;
  std::span<const GroundStep> steps_;
  double GroundStep::*part_;
};

}  // namespace

GroundPoint StepExactly(GroundPoint at, std::span<const GroundStep> steps, std::int64_t rounds) {
  Axis x(at.north, steps, &GroundStep::dx);
  Axis y(at.east, steps, &GroundStep::dy);
  x.Advance(rounds);
  y.Advance(rounds);
  return {x.At(), y.At()};
}

}  // namespace tavix
