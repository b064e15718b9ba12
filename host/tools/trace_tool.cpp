#include "host/tools/trace_tool.h"

#include <tavix/tavix.h>

#include <span>
#include <utility>

#include "host/app/measure_text.h"
#include "host/survey/boundary_crossing.h"
#include "host/survey/ground_geometry.h"

namespace fieldhost {
namespace {

using Corners = std::span<const GroundPosition>;

constexpr std::size_t kLineCorners = 2;
constexpr std::size_t kBoundaryCorners = 3;

// Traced back to its start, a boundary has that corner but once.
Corners RingOf(Corners corners) {
  const bool back = corners.size() > 1 && corners.front() == corners.back();
  return back ? corners.first(corners.size() - 1) : corners;
}

CString CountText(std::size_t corners) {
  CString text;
  text.Format(corners == 1 ? L"%zu corner" : L"%zu corners", corners);
  return text;
}

CString MeasuredText(Corners corners, double length) {
  CString text = CountText(corners.size()) + L"  " + LengthText(length);
  const Corners ring = RingOf(corners);
  if (ring.size() < kBoundaryCorners) return text;
  if (CrossesItself(ring)) return text + L"  crosses itself";
  return text + L"  " + AreaText(EnclosedArea(ring));
}

CString TracedText(Corners corners) {
  if (corners.empty()) return L"Trace: tap the first corner.";
  if (corners.size() < kLineCorners) {
    return CountText(corners.size()) + L"  " + PositionText(corners.back()) + L"  Tap the next.";
  }
  return MeasuredText(corners, PathLength(corners)) + L"  Tap the next; Enter finishes.";
}

}  // namespace

Progress TraceTool::Begin() {
  Tavix_VoStt();
  Say(TracedText(corners_));
  return Progress::kGoesOn;
}

void TraceTool::End() {
  mark_.Hide();
  Tavix_VoEnd();
  corners_.clear();
}

void TraceTool::Restore() {
  Tavix_VoStt();
  for (const GroundPosition& corner : corners_) Tavix_VoAdd(corner.north, corner.east);
  MarkLastCorner();
}

// A trace of one corner shows nothing by itself.
void TraceTool::MarkLastCorner() {
  if (corners_.empty()) {
    mark_.Hide();
  } else {
    mark_.Show(corners_.back());
  }
}

Progress TraceTool::PositionTapped(const GroundPosition& position) {
  if (!corners_.empty() && corners_.back() == position) {
    Say(L"This corner is there already: tap the next.");
    return Progress::kGoesOn;
  }
  corners_.push_back(position);
  Tavix_VoAdd(position.north, position.east);
  MarkLastCorner();
  Say(TracedText(corners_));
  return Progress::kGoesOn;
}

void TraceTool::Undo() {
  if (corners_.empty()) {
    Say(L"There is no corner to take back. Tap the first corner.");
    return;
  }
  corners_.pop_back();
  Tavix_VoDel();
  MarkLastCorner();
  Say(TracedText(corners_));
}

Progress TraceTool::Finish(Ending ending) {
  const Corners ring = RingOf(corners_);
  if (ending == Ending::kClosed && ring.size() < kBoundaryCorners) {
    Say(CountText(ring.size()) + L": a closed boundary takes three. Tap the next.");
    return Progress::kGoesOn;
  }
  if (corners_.size() < kLineCorners) {
    Say(CountText(corners_.size()) + L": a line takes two. Tap the next.");
    return Progress::kGoesOn;
  }
  std::vector<GroundPosition> corners;
  if (ending == Ending::kClosed) {
    Say(L"Boundary drawn: " + MeasuredText(ring, Perimeter(ring)));
    corners.assign(ring.begin(), ring.end());
    corners.push_back(ring.front());
  } else {
    Say(L"Line drawn: " + CountText(corners_.size()) + L"  " + LengthText(PathLength(corners_)));
    corners = corners_;
  }
  End();  // the trace goes before the figure takes its place
  figures_.AddBoundary(corners);
  return Progress::kDone;
}

}  // namespace fieldhost
