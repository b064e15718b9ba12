// The point list beside a plain scan of the same points.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <utility>
#include <vector>

#include "store/point_list.h"

namespace tavix {

// The rule, literally: gather up to ten candidates in list order, then choose.
inline std::int32_t PlainNearest(const std::vector<Point>& points, double tolerance,
                                 GroundPoint at) {
  std::vector<std::pair<std::int32_t, double>> candidates;
  for (const Point& point : points) {
    const double north = at.north - point.at.north;
    const double east = at.east - point.at.east;
    if (!(std::fabs(north) <= tolerance && std::fabs(east) <= tolerance)) continue;
    candidates.emplace_back(point.key, north * north + east * east);
    if (candidates.size() == 10) break;
  }
  if (candidates.empty()) return 0;
  auto nearest = candidates.front();
  for (const auto& candidate : candidates) {
    if (candidate.second < nearest.second) nearest = candidate;
  }
  return nearest.first;
}

// A list under test and a plain vector of the same points. No key is 0. A point that the list does
// not have throws std::logic_error.
class PointsTwice {
 public:
  void Add(std::int32_t key, GroundPoint at) {
    points_.Add({key, 1, u"P", at, 1});
    plain_.push_back({key, 1, u"", at, 1});
  }
  void Move(std::size_t which, GroundPoint at) {
    Require(points_.Find(plain_[which].key) == 0 && points_.SetCurCrd(at) == 0);
    plain_[which].at = at;
  }
  void Remove(std::size_t which) {
    Require(points_.Remove(plain_[which].key) == 0);
    plain_.erase(plain_.begin() + static_cast<std::ptrdiff_t>(which));
  }
  void Clear() {
    points_.Clear();
    plain_.clear();
  }
  [[nodiscard]] std::size_t Count() const { return plain_.size(); }
  [[nodiscard]] GroundPoint PositionOf(std::size_t which) const { return plain_[which].at; }

  // What CPntList::FindNearest returns.
  struct Nearest {
    int code = 0;
    std::int32_t key = 99;
    friend bool operator==(const Nearest&, const Nearest&) = default;
  };
  [[nodiscard]] Nearest Found(double tolerance, GroundPoint at) const {
    Nearest found;
    found.code = points_.FindNearest(tolerance, at, &found.key);
    return found;
  }
  [[nodiscard]] Nearest FoundByScan(double tolerance, GroundPoint at) const {
    const std::int32_t key = PlainNearest(plain_, tolerance, at);
    return {plain_.empty() ? -3 : (key == 0 ? -1 : 0), key};
  }

  // Whether the points within an area come in list order, none is left out, and what lies between
  // two of them is handed over as passed over.
  [[nodiscard]] bool HasSameInArea(const GroundArea& area) const {
    std::vector<std::int32_t> keys;      // as they come, those passed over included
    std::vector<std::int32_t> expected;  // up to the last one that came
    bool within = true;                  // those within the area are not among those passed over
    std::int32_t last = 0;
    points_.ForEachIn(area, [&](const Point& point, std::span<const PntRec> passed_over) {
      for (const PntRec& record : passed_over) {
        if (record.removed) continue;
        within = within && !IsWithin(area, record.at);
        keys.push_back(record.key);
      }
      keys.push_back(last = point.key);
    });
    for (const Point& point : plain_) {
      if (last == 0) break;
      expected.push_back(point.key);
      if (point.key == last) last = 0;
    }
    for (std::size_t i = expected.size(); i < plain_.size(); ++i) {
      within = within && !IsWithin(area, plain_[i].at);
    }
    return within && expected == keys;
  }

 private:
  static bool IsWithin(const GroundArea& area, GroundPoint at) {
    return std::fabs(at.north - area.centre.north) <= area.north &&
           std::fabs(at.east - area.centre.east) <= area.east;
  }
  static void Require(bool holds) {
    if (!holds) throw std::logic_error("the list has lost a point");
  }

  CPntList points_;
  std::vector<Point> plain_;
};

}  // namespace tavix
