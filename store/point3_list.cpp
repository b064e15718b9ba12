#include "store/point3_list.h"

#include <algorithm>

namespace tavix {

int CPnt3List::Add(const Point3& point) {
  Append(
      {point.at, point.z, point.key, point.number, Names().Add(point.name), point.legend, false});
  return 0;
}

int CPnt3List::GetCurCrd(GroundPoint* at, double* z) const {
  const Pnt3Rec* current = Records().Current();
  if (!current) return -2;
  *at = current->at;
  *z = current->z;
  return 0;
}

int CPnt3List::SetCur(std::int32_t number, NameView name, GroundPoint at, double z,
                      std::int16_t legend) {
  if (SetCurNoNam(number, name) != 0) return -2;  // first: only the name may need memory
  Pnt3Rec* current = Records().Current();
  current->at = at;
  current->z = z;
  return SetCurHan(legend);
}

int CPnt3List::GetExtent(GroundExtent3* extent) const {
  ExtentBuilder plan;
  GroundExtent3 result;
  Records().ForEach([&](const Pnt3Rec& record) {
    if (plan.IsEmpty()) result.max_z = result.min_z = record.z;
    result.max_z = std::max(result.max_z, record.z);
    result.min_z = std::min(result.min_z, record.z);
    plan.Include(record.at);
  });
  result.plan = plan.Extent();
  *extent = result;
  return plan.IsEmpty() ? -3 : 0;
}

Point3 CPnt3List::View(const Pnt3Rec& record) const {
  return {record.key, record.number, Names().View(record.name), record.at, record.z, record.legend};
}

}  // namespace tavix
