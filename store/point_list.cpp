#include "store/point_list.h"

#include <algorithm>
#include <cmath>

namespace tavix {

int CPntList::Add(const Point& point) {
  Append({point.at.north, point.at.east, point.key, point.number, Names().Add(point.name),
          point.legend, false});
  return 0;
}

int CPntList::GetCurCrd(GroundPoint* at) const {
  const PntRec* current = Records().Current();
  if (!current) return -2;
  *at = {current->x, current->y};
  return 0;
}

int CPntList::SetCurCrd(GroundPoint at) {
  PntRec* current = Records().Current();
  if (!current) return -2;
  current->x = at.north;
  current->y = at.east;
  finder_.Moved(Records().CurrentPosition());
  SetChanged(true);
  return 0;
}

int CPntList::SetCur(std::int32_t number, NameView name, GroundPoint at, std::int16_t legend) {
  if (SetCurCrd(at) != 0) return -2;
  SetCurHan(legend);
  return SetCurNoNam(number, name);
}

int CPntList::FindNearest(double tolerance, GroundPoint at, std::int32_t* key) const {
  constexpr int kMostCandidates = 10;  // Compatibility: later points do not count, even nearer ones
  *key = 0;
  if (Records().IsEmpty()) return -3;

  if (!(tolerance >= 0.0) || std::isnan(at.north) || std::isnan(at.east))
    return -1;  // nothing is near

  // Differences fall as the coordinate rises, rounded or not: those of the borders bound the
  // others.
  const auto too_far = [&](double centre, double low, double high) {
    return std::max(low - centre, centre - high) > tolerance;  // one branch, mostly foreseen
  };
  const auto touches = [&](const GroundExtent& box) {
    return !too_far(at.north, box.min.north, box.max.north) &&
           !too_far(at.east, box.min.east, box.max.east);
  };
  int candidates = 0;
  double nearest = 0.0;
  finder_.ForEach(Records(), touches, [&](const PntRec& record) {
    const double dx = at.north - record.x;
    if (!(std::fabs(dx) <= tolerance)) return true;
    const double dy = at.east - record.y;
    if (!(std::fabs(dy) <= tolerance)) return true;
    const double distance = dx * dx + dy * dy;
    if (candidates == 0 || distance < nearest) {
      nearest = distance;
      *key = record.key;
    }
    return ++candidates < kMostCandidates;
  });
  return candidates == 0 ? -1 : 0;
}

int CPntList::GetExtent(GroundExtent* extent) const {
  ExtentBuilder builder;
  Records().ForEach([&](const PntRec& record) {
    builder.Include(GroundPoint{record.x, record.y});
  });
  *extent = builder.Extent();
  return builder.IsEmpty() ? -3 : 0;
}

bool CPntList::Locate(std::int32_t key, GroundPoint* at) const {
  const PntRec* record = Records().Peek(key);
  if (!record) return false;
  *at = {record->x, record->y};
  return true;
}

Point CPntList::View(const PntRec& record) const {
  return {
      record.key, record.number, Names().View(record.name), {record.x, record.y}, record.legend};
}

}  // namespace tavix
