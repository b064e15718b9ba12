#include "frame/point_calls.h"

#include "frame/redraw.h"
#include "store/point_compare.h"

namespace tavix {
namespace {

bool IsSame(const Point& a, const Point& b) {
  return a.number == b.number && a.name == b.name && IsSamePlace(a.at, b.at) &&
         a.legend == b.legend;
}

int AddPoint(TavixSlot& slot, const Point& point) {
  const int code = slot.points->Add(point);
  if (code == 0 && slot.auto_redraw && slot.window) slot.window->DrawNewPoint(point);
  return code;
}

// Changes the point with this key unless, with auto-redraw on, `is_same` finds nothing to change.
template <class IsSameValue, class Change>
int ChangePoint(TavixSlot& slot, std::int32_t key, IsSameValue is_same, Change change) {
  CPntList& points = *slot.points;
  if (points.Find(key) != 0) return -1;
  Point old;
  if (slot.auto_redraw && points.GetCur(&old) == 0 && is_same(old)) return 0;
  return RedrawAfterChange(slot, change(points));
}

}  // namespace

int EnterPoint(TavixSlot& slot, Point point) {
  point.legend = slot.selected_point_legend;
  if (slot.points->Find(point.key) != 0) return AddPoint(slot, point);
  return ChangePoint(
      slot, point.key, [&](const Point& old) { return IsSame(old, point); },
      [&](CPntList& points) {
        return points.SetCur(point.number, point.name, point.at, point.legend);
      });
}

int ChangePointLegend(TavixSlot& slot, std::int32_t key, std::int16_t legend) {
  return ChangePoint(
      slot, key, [=](const Point& old) { return old.legend == legend; },
      [=](CPntList& points) { return points.SetCurHan(legend); });
}

int ChangePointNumberAndName(TavixSlot& slot, std::int32_t key, std::int32_t number,
                             NameView name) {
  return ChangePoint(
      slot, key, [=](const Point& old) { return old.number == number && old.name == name; },
      [=](CPntList& points) { return points.SetCurNoNam(number, name); });
}

int ChangePointPlace(TavixSlot& slot, std::int32_t key, GroundPoint at) {
  return ChangePoint(
      slot, key, [=](const Point& old) { return IsSamePlace(old.at, at); },
      [=](CPntList& points) { return points.SetCurCrd(at); });
}

}  // namespace tavix
