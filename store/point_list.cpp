#include "store/point_list.h"

#include <cmath>

namespace tavix {

bool IsSamePosition(GroundPoint a, GroundPoint b) {
  constexpr double kTolerance = 1e-5;
  return std::fabs(a.north - b.north) < kTolerance && std::fabs(a.east - b.east) < kTolerance;
}

int CPntList::Add(const Point& point) {
  Append({point.at, point.key, point.number, Names().Add(point.name), point.legend, false});
  return 0;
}

int CPntList::GetCurCrd(GroundPoint* at) const {
  const PntRec* current = Records().Current();
  if (!current) return -2;
  *at = current->at;
  return 0;
}

int CPntList::SetCurCrd(GroundPoint at) {
  PntRec* current = Records().Current();
  if (!current) return -2;
  current->at = at;
  ++moves_;
  index_.Moved(Records().CurrentPosition());
  SetChanged(true);
  return 0;
}

int CPntList::SetCur(std::int32_t number, NameView name, GroundPoint at, std::int16_t legend) {
  if (SetCurNoNam(number, name) != 0) return -2;  // first: only the name may need memory
  SetCurHan(legend);
  return SetCurCrd(at);
}

int CPntList::FindNearest(double tolerance, GroundPoint at, std::int32_t* key) const {
  constexpr int kMostCandidates = 10;  // Compatibility: later points do not count, even nearer ones
  *key = 0;
  if (Records().IsEmpty()) return -3;

  if (!(tolerance >= 0.0) || std::isnan(at.north) || std::isnan(at.east))
    return -1;  // no point is near

  const GroundArea around{at, tolerance, tolerance};
  const auto touches = [&](const GroundExtent& box) { return around.Touches(box); };
  int candidates = 0;
  double nearest = 0.0;  // the square of its distance
  index_.ForFirst(Records(), touches, [&](const PntRec& record) {
    const double north = at.north - record.at.north;
    if (!(std::fabs(north) <= tolerance)) return true;
    const double east = at.east - record.at.east;
    if (!(std::fabs(east) <= tolerance)) return true;
    const double square = north * north + east * east;
    if (candidates == 0 || square < nearest) {
      nearest = square;
      *key = record.key;
    }
    return ++candidates < kMostCandidates;
  });
  return candidates == 0 ? -1 : 0;
}

int CPntList::GetExtent(GroundExtent* extent) const {
  ExtentBuilder builder;
  Records().ForEach([&](const PntRec& record) { builder.Include(record.at); });
  *extent = builder.Extent();
  return builder.IsEmpty() ? -3 : 0;
}

bool CPntList::Locate(std::int32_t key, GroundPoint* at) const {
  const PntRec* record = Records().Peek(key);
  if (!record) return false;
  *at = record->at;
  return true;
}

Point CPntList::View(const PntRec& record) const {
  return {record.key, record.number, Names().View(record.name), record.at, record.legend};
}

}  // namespace tavix
