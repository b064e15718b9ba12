#include "store/point3_list.h"

#include <algorithm>
#include <utility>

namespace tavix {

int CPnt3List::Add(const Point3& point) {
  records_.Append({point.at.x, point.at.y, point.z, point.key, point.number, names_.Add(point.name),
                   point.legend, false});
  changed_ = true;
  return 0;
}

int CPnt3List::Remove(std::int32_t key) {
  changed_ = true;
  if (Find(key) != 0) return -1;
  names_.Drop(records_.Current()->name);
  records_.RemoveCurrent();
  if (names_.IsMostlyGaps()) RewriteNames();
  return 0;
}

int CPnt3List::GetCur(Point3* point) const {
  const Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  *point = View(*current);
  return 0;
}

int CPnt3List::GetCurCrd(GroundPoint* at, double* z) const {
  const Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  *at = {current->x, current->y};
  *z = current->z;
  return 0;
}

int CPnt3List::GetCurXYHan(GroundPoint* at, std::int16_t* legend) const {
  const Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  *at = {current->x, current->y};
  *legend = current->legend;
  return 0;
}

int CPnt3List::SetCurNoNam(std::int32_t number, NameView name) {
  Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  current->number = number;
  names_.Replace(current->name, name);
  if (names_.IsMostlyGaps()) RewriteNames();
  return 0;
}

int CPnt3List::SetCurHan(std::int16_t legend) {
  Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  current->legend = legend;
  changed_ = true;
  return 0;
}

int CPnt3List::SetCur(std::int32_t number, NameView name, GroundPoint at, double z,
                      std::int16_t legend) {
  Pnt3Rec* current = records_.Current();
  if (!current) return -2;
  current->x = at.x;
  current->y = at.y;
  current->z = z;
  SetCurHan(legend);
  return SetCurNoNam(number, name);
}

int CPnt3List::Clear() {
  records_.Clear();
  names_.Clear();
  changed_ = false;
  return 0;
}

int CPnt3List::GetExtent(GroundExtent3* extent) const {
  ExtentBuilder plan;
  GroundExtent3 result;
  records_.ForEach([&](const Pnt3Rec& record) {
    if (plan.IsEmpty()) result.max_z = result.min_z = record.z;
    result.max_z = std::max(result.max_z, record.z);
    result.min_z = std::min(result.min_z, record.z);
    plan.Include(GroundPoint{record.x, record.y});
  });
  result.plan = plan.Extent();
  *extent = result;
  return plan.IsEmpty() ? -3 : 0;
}

Point3 CPnt3List::View(const Pnt3Rec& record) const {
  return {record.key,           record.number, names_.View(record.name),
          {record.x, record.y}, record.z,      record.legend};
}

void CPnt3List::RewriteNames() {
  NamePool packed;
  records_.ForEach([&](Pnt3Rec& record) { record.name = packed.Add(names_.View(record.name)); });
  names_ = std::move(packed);
}

}  // namespace tavix
