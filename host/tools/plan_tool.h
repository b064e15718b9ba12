// What the user does on the plan with taps: one tool an activity.
#pragma once

#include <afxwin.h>

#include "host/survey/ground_geometry.h"

namespace fieldhost {

// How a tool goes on after it was told something.
enum class Progress { kGoesOn, kDone };

// What the user ends a tool with: as it stands, or closed to a ring.
enum class Ending { kAsItStands, kClosed };

// The toolbox calls Begin first and End last, and in between what the user does. Taps on the plan
// come as what Wants asks for. A tool keeps all of its state itself: what the plot window shows of
// it goes with that window, and Restore puts it on the next one.
class PlanTool {
 public:
  enum class Taps { kPositions, kPoints };

  PlanTool() = default;
  virtual ~PlanTool() = default;
  PlanTool(const PlanTool&) = delete;
  PlanTool& operator=(const PlanTool&) = delete;

  // Done at once when there is nothing to work on.
  virtual Progress Begin() = 0;
  // Takes off what it shows and forgets what is unfinished.
  virtual void End() {}
  virtual void Restore() {}

  [[nodiscard]] virtual Taps Wants() const { return Taps::kPositions; }
  // A position is that of a point where a point was tapped.
  virtual Progress PositionTapped(const GroundPosition&) { return Progress::kGoesOn; }
  virtual Progress PointPicked(int /*key*/) { return Progress::kGoesOn; }
  virtual void Undo() {}
  // The user has all; a tool that misses something says so and goes on.
  virtual Progress Finish(Ending) { return Progress::kDone; }

  // What the user is to know and to do next, or after the end has reached; may be empty.
  [[nodiscard]] const CString& Text() const { return text_; }

 protected:
  void Say(const CString& text) { text_ = text; }

 private:
  CString text_;
};

}  // namespace fieldhost
