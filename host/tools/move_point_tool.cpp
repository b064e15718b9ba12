#include "host/tools/move_point_tool.h"

#include "host/app/display_text.h"
#include "host/survey/ground_geometry.h"

namespace fieldhost {
namespace {

CString LabelOf(const SurveyPoint& point) {
  if (!point.name.empty()) return WideOf(point.name);
  CString number;
  number.Format(L"%d", point.number);
  return number;
}

CString MoveText(const GroundPosition& from, const GroundPosition& to) {
  CString text;
  text.Format(L"X %.3f \u2192 %.3f  Y %.3f \u2192 %.3f", from.north, to.north, from.east, to.east);
  return LengthText(Distance(from, to)) + L"  " + text;
}

}  // namespace

Progress MovePointTool::Begin() {
  AskForPoint();
  return Progress::kGoesOn;
}

void MovePointTool::End() {
  mark_.Hide();
  point_.reset();
  place_.reset();
}

void MovePointTool::Restore() {
  if (point_) mark_.Show(place_.value_or(point_->position), point_->position);
}

PlanTool::Taps MovePointTool::Wants() const { return point_ ? Taps::kPositions : Taps::kPoints; }

Progress MovePointTool::PointPicked(int key) {
  const SurveyPoint* const point = document_.FindPoint(key);
  if (!point) return Progress::kGoesOn;
  point_ = Picked{key, LabelOf(*point), point->Position()};
  AskForPlace();
  return Progress::kGoesOn;
}

void MovePointTool::AskForPoint() { Say(L"Move: tap the point to move."); }

void MovePointTool::AskForPlace() {
  Show();
  Say(point_->label + L"  " + PositionText(point_->position) + L"  Tap its new place.");
}

Progress MovePointTool::PositionTapped(const GroundPosition& position) {
  if (!point_) return Progress::kGoesOn;
  place_ = position;
  Show();
  Say(point_->label + L"  " + MoveText(point_->position, position) + L"  Enter stores it.");
  return Progress::kGoesOn;
}

void MovePointTool::Undo() {
  if (place_) {
    place_.reset();
    AskForPlace();
  } else {
    End();
    AskForPoint();
  }
}

Progress MovePointTool::Finish(Ending) {
  if (!point_) {
    AskForPoint();
    return Progress::kGoesOn;
  }
  if (!place_) {
    AskForPlace();
    return Progress::kGoesOn;
  }
  const Picked point = *point_;
  const GroundPosition place = *place_;
  End();
  if (!document_.MovePoint(point.key, place)) {
    Say(point.label + L" is no longer there.");
    return Progress::kDone;
  }
  Say(point.label + L" moved  " + MoveText(point.position, place));
  return Progress::kDone;
}

}  // namespace fieldhost
