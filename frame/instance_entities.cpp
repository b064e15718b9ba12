// What an instance does when points, memos, lines and figures are entered, read and changed.
#include "frame/instance.h"
#include "frame/instance_parts.h"
#include "store/point_list.h"
#include "window/plot_display.h"
#include "window/plot_window.h"

namespace tavix {

// Changes the point with this key unless, with auto-redraw on, `is_same` finds nothing to change.
template <class IsSame, class Change>
int Instance::ChangePoint(std::int32_t key, IsSame is_same, Change change) {
  FinishRedrawUnlessAnotherFollows();
  CPntList& points = parts_->points;
  if (points.Find(key) != 0) return -1;
  Point old;
  if (auto_redraw_ && points.GetCur(&old) == 0 && is_same(old)) return 0;
  return RedrawAfterChange(change(points));
}

int Instance::EnterPoint(Point point) {
  point.legend = point_legend_;
  if (parts_->points.Find(point.key) != 0) {
    FinishRedraw();
    const int code = parts_->points.Add(point);
    if (code == 0 && auto_redraw_ && window_) window_->Display().Shown().DrawNew(point);
    return code;
  }
  return ChangePoint(
      point.key,
      [&](const Point& old) {
        return old.number == point.number && old.name == point.name &&
               IsSamePosition(old.at, point.at) && old.legend == point.legend;
      },
      [&](CPntList& points) {
        return points.SetCur(point.number, point.name, point.at, point.legend);
      });
}

int Instance::EnterPoint3(Point3 point) {
  point.legend = point_legend_;
  CPnt3List& points = parts_->points3;
  if (points.Find(point.key) != 0) return points.Add(point);
  return points.SetCur(point.number, point.name, point.at, point.z, point.legend);
}

std::optional<Point> Instance::FindPoint(std::int32_t key) {
  Point point;
  if (parts_->points.Find(key) != 0 || parts_->points.GetCur(&point) != 0) return std::nullopt;
  return point;
}

std::optional<GroundPoint> Instance::FindPointPosition(std::int32_t key) {
  GroundPoint at;
  if (parts_->points.Find(key) != 0 || parts_->points.GetCurCrd(&at) != 0) return std::nullopt;
  return at;
}

std::optional<Point3> Instance::FindPoint3(std::int32_t key) {
  Point3 point;
  if (parts_->points3.Find(key) != 0 || parts_->points3.GetCur(&point) != 0) return std::nullopt;
  return point;
}

int Instance::ChangePointLegend(std::int32_t key, std::int16_t legend) {
  return ChangePoint(
      key, [=](const Point& old) { return old.legend == legend; },
      [=](CPntList& points) { return points.SetCurHan(legend); });
}

int Instance::ChangePointNumberAndName(const Point& point) {
  return ChangePoint(
      point.key,
      [&](const Point& old) { return old.number == point.number && old.name == point.name; },
      [&](CPntList& points) { return points.SetCurNoNam(point.number, point.name); });
}

int Instance::ChangePointPosition(const Point& point) {
  return ChangePoint(
      point.key, [&](const Point& old) { return IsSamePosition(old.at, point.at); },
      [&](CPntList& points) { return points.SetCurCrd(point.at); });
}

int Instance::ChangePoint3Legend(std::int32_t key, std::int16_t legend) {
  CPnt3List& points = parts_->points3;
  return points.Find(key) == 0 ? points.SetCurHan(legend) : -1;
}

int Instance::ChangePoint3NumberAndName(const Point3& point) {
  CPnt3List& points = parts_->points3;
  return points.Find(point.key) == 0 ? points.SetCurNoNam(point.number, point.name) : -1;
}

int Instance::RemovePoint3(std::int32_t key) { return parts_->points3.Remove(key); }

int Instance::RemovePoint(std::int32_t key) {
  parts_->memos.Remove(key);  // there may be none, or it cannot be removed: the point goes anyway
  return parts_->points.Remove(key);
}

int Instance::EnterMemo(std::int32_t key, const CString& memo) {
  return parts_->memos.Enter(key, memo);
}

int Instance::ReadMemo(std::int32_t key, CString* memo) { return parts_->memos.Read(key, memo); }

int Instance::EnterLine(LineKeys keys) {
  FinishRedraw();
  CLinDb& lines = parts_->lines;
  if (lines.Contains(keys)) return 0;
  Line line{0, keys, line_legend_};
  const int code = lines.Add(keys, line.legend, &line.id);
  if (code == 0 && auto_redraw_ && window_) window_->Display().Shown().DrawNew(line);
  return code;
}

int Instance::ChangeLineLegend(LineKeys keys, std::int16_t legend) {
  FinishRedrawUnlessAnotherFollows();
  CLinDb& lines = parts_->lines;
  if (const int code = lines.Find(keys); code != 0) return code;
  Line old;
  if (auto_redraw_ && lines.ReadCur(&old) == 0 && old.legend == legend) return 0;
  return RedrawAfterChange(lines.SetCurHan(legend));
}

int Instance::RemoveLine(LineKeys keys) { return parts_->lines.Remove(keys); }

int Instance::ClearLines() { return parts_->lines.Clear(); }

int Instance::EndFigure() {
  if (parts_->figures.IsTaken()) return -1;
  parts_->figures.SetChanged(true);
  RedrawAfterChange(0);  // Compatibility: without a window too the figure is ended
  return 0;
}

int Instance::DeleteFigure(std::int32_t number) {
  FinishRedrawUnlessAnotherFollows();
  if (parts_->figures.IsTaken() || parts_->figures.Delete(number) != 0) return -1;
  RedrawAfterChange(0);
  return 0;
}

}  // namespace tavix
