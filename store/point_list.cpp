#include "store/point_list.h"

#include <cmath>
#include <utility>

namespace tavix {

int CPntList::Add(const Point& point) {
  records_.Append({point.at.x, point.at.y, point.key, point.number, names_.Add(point.name),
                   point.legend, false});
  changed_ = true;
  return 0;
}

int CPntList::Remove(std::int32_t key) {
  changed_ = true;
  if (Find(key) != 0) return -1;
  names_.Drop(records_.Current()->name);
  records_.RemoveCurrent();
  if (names_.IsMostlyGaps()) RewriteNames();
  return 0;
}

int CPntList::GetCur(Point* point) const {
  const PntRec* current = records_.Current();
  if (!current) return -2;
  *point = View(*current);
  return 0;
}

int CPntList::GetCurCrd(GroundPoint* at) const {
  const PntRec* current = records_.Current();
  if (!current) return -2;
  *at = {current->x, current->y};
  return 0;
}

int CPntList::SetCurNoNam(std::int32_t number, NameView name) {
  PntRec* current = records_.Current();
  if (!current) return -2;
  current->number = number;
  SetName(*current, name);
  return 0;
}

int CPntList::SetCurCrd(GroundPoint at) {
  PntRec* current = records_.Current();
  if (!current) return -2;
  current->x = at.x;
  current->y = at.y;
  changed_ = true;
  return 0;
}

int CPntList::SetCurHan(std::int16_t legend) {
  PntRec* current = records_.Current();
  if (!current) return -2;
  current->legend = legend;
  changed_ = true;
  return 0;
}

int CPntList::SetCur(std::int32_t number, NameView name, GroundPoint at, std::int16_t legend) {
  if (SetCurCrd(at) != 0) return -2;
  SetCurHan(legend);
  return SetCurNoNam(number, name);
}

int CPntList::Clear() {
  records_.Clear();
  names_.Clear();
  changed_ = false;
  return 0;
}

int CPntList::FindNearest(double tolerance, GroundPoint at, std::int32_t* key) const {
  constexpr int kMostCandidates = 10;  // deliberate: later points do not count even when nearer
  *key = 0;
  if (records_.IsEmpty()) return -3;

  int candidates = 0;
  double nearest = 0.0;
  records_.ForEachWhile([&](const PntRec& record) {
    const double dx = at.x - record.x;
    if (!(std::fabs(dx) <= tolerance)) return true;
    const double dy = at.y - record.y;
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
  records_.ForEach([&](const PntRec& record) { builder.Include(GroundPoint{record.x, record.y}); });
  *extent = builder.Extent();
  return builder.IsEmpty() ? -3 : 0;
}

bool CPntList::Locate(std::int32_t key, GroundPoint* at) const {
  const PntRec* record = records_.Peek(key);
  if (!record) return false;
  *at = {record->x, record->y};
  return true;
}

Point CPntList::View(const PntRec& record) const {
  return {record.key, record.number, names_.View(record.name), {record.x, record.y}, record.legend};
}

void CPntList::SetName(PntRec& record, NameView name) {
  names_.Replace(record.name, name);
  if (names_.IsMostlyGaps()) RewriteNames();
}

void CPntList::RewriteNames() {
  NamePool packed;
  records_.ForEach([&](PntRec& record) { record.name = packed.Add(names_.View(record.name)); });
  names_ = std::move(packed);
}

}  // namespace tavix
