#include "store/drawn_lines.h"

#include <cmath>
#include <limits>
#include <optional>

namespace tavix {
namespace {

// Where a coordinate is not finite nothing is known about what lies between the ends.
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr GroundExtent kEverywhere{{kInfinity, kInfinity}, {-kInfinity, -kInfinity}};

bool IsFinite(GroundPoint point) { return std::isfinite(point.north) && std::isfinite(point.east); }

}  // namespace

void DrawnLines::Clear() {
  lines_.clear();
  rows_.clear();
  found_ = 0;
  missing_ = 0;
}

void DrawnLines::Append(LineKeys keys, std::int16_t legend) {
  lines_.push_back({keys, legend, kMissing, kMissing});
}

void DrawnLines::FindEnds(const CPntList& points) {
  const bool entered = points_ != points.PositionEnd();
  if (removals_ != points.Removals() || (entered && missing_ > 0)) {
    found_ = 0;
    missing_ = 0;
    rows_.clear();
  }
  if (moves_ != points.Moves()) rows_.clear();
  removals_ = points.Removals();
  moves_ = points.Moves();
  points_ = points.PositionEnd();
  for (; found_ < lines_.size(); ++found_) {
    Drawn& line = lines_[found_];
    line.start = points.PositionOf(line.keys.a).value_or(kMissing);
    line.end = points.PositionOf(line.keys.b).value_or(kMissing);
    if (!line.HasEnds()) ++missing_;
  }
}

GroundExtent DrawnLines::ExtentOf(std::span<const Drawn> row, const CPntList& points) {
  ExtentBuilder extent;
  for (const Drawn& line : row) {
    if (!line.HasEnds()) continue;
    for (const Position end : {line.start, line.end}) {
      const GroundPoint at = points.At(end);
      if (!IsFinite(at)) return kEverywhere;
      extent.Include(at);
    }
  }
  return extent.Extent();
}

}  // namespace tavix
