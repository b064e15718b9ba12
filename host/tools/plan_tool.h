// What the user does on the plan with taps: one tool for each activity.
#pragma once

#include <afxwin.h>

#include "host/survey/ground_geometry.h"

namespace fieldhost {

// Whether a tool waits for more or is finished.
enum class Progress { kGoesOn, kDone };

// What the user ends a tool with: as it stands, or closed to a ring.
enum class Ending { kAsItStands, kClosed };

// The toolbox calls Begin first and End last; between them it hands on what the user does. Wants
// decides how taps are reported. A tool keeps its state itself: what the plot window shows of it
// goes with that window, and Restore shows it on the next one.
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
  // Where a point was tapped, the position is that of the point.
  virtual Progress PositionTapped(const GroundPosition&) { return Progress::kGoesOn; }
  virtual Progress PointPicked(int /*key*/) { return Progress::kGoesOn; }
  virtual void Undo() {}
  // The user wants to finish. A tool that lacks something says so and goes on.
  virtual Progress Finish(Ending) { return Progress::kDone; }

  // What the user reads: what to do next, or the result at the end; may be empty.
  [[nodiscard]] const CString& Text() const { return text_; }

 protected:
  void Say(const CString& text) { text_ = text; }

 private:
  CString text_;
};

}  // namespace fieldhost
