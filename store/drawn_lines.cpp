#include "store/drawn_lines.h"

#include <algorithm>
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
  ends_.clear();
  rows_.clear();
  missing_ = 0;
}

void DrawnLines::Append(std::int16_t id, LineKeys keys, std::int16_t legend) {
  lines_.push_back({keys, legend, id});
}

bool DrawnLines::SetLegend(std::int16_t id, LineKeys keys, std::int16_t legend) {
  const std::optional<std::size_t> found = Find(id, keys);
  if (found) lines_[*found].legend = legend;
  return found.has_value();
}

bool DrawnLines::Remove(std::int16_t id, LineKeys keys) {
  const std::optional<std::size_t> found = Find(id, keys);
  if (!found) return false;
  const auto at = static_cast<std::ptrdiff_t>(*found);
  lines_.erase(lines_.begin() + at);
  if (*found < ends_.size()) {
    if (!ends_[*found].AreThere()) --missing_;
    ends_.erase(ends_.begin() + at);
  }
  // The rows from here on have other lines.
  rows_.resize(std::min(rows_.size(), *found / kRow));
  return true;
}

std::optional<std::size_t> DrawnLines::Find(std::int16_t id, LineKeys keys) const {
  const auto first = std::ranges::lower_bound(lines_, id, {}, &Named::id);
  const auto last = std::ranges::upper_bound(lines_, id, {}, &Named::id);
  const auto has_keys = [&](const Named& line) {
    return line.keys.Smaller() == keys.Smaller() && line.keys.Larger() == keys.Larger();
  };
  const auto found = std::find_if(first, last, has_keys);
  if (found == last || std::find_if(found + 1, last, has_keys) != last) return std::nullopt;
  return static_cast<std::size_t>(found - lines_.begin());
}

void DrawnLines::FindEnds(const CPntList& points) {
  const bool entered = points_ != points.PositionEnd();
  if (removals_ != points.Removals() || (entered && missing_ > 0)) {
    ends_.clear();
    missing_ = 0;
    rows_.clear();
  }
  if (moves_ != points.Moves()) rows_.clear();
  removals_ = points.Removals();
  moves_ = points.Moves();
  points_ = points.PositionEnd();
  if (ends_.empty()) ends_.reserve(lines_.size());
  while (ends_.size() < lines_.size()) {
    const LineKeys keys = lines_[ends_.size()].keys;
    ends_.push_back({points.PositionOf(keys.a).value_or(kMissing),
                     points.PositionOf(keys.b).value_or(kMissing)});
    if (!ends_.back().AreThere()) ++missing_;
  }
}

GroundExtent DrawnLines::ExtentOf(std::span<const Ends> row, const CPntList& points) {
  ExtentBuilder extent;
  for (const Ends& line : row) {
    if (!line.AreThere()) continue;
    for (const Position end : {line.start, line.end}) {
      const GroundPoint at = points.At(end);
      if (!IsFinite(at)) return kEverywhere;
      extent.Include(at);
    }
  }
  return extent.Extent();
}

}  // namespace tavix
