#include "host/tools/trace_tool.h"

#include <tavix/tavix.h>

#include <span>
#include <utility>

#include "host/app/display_text.h"
#include "host/survey/ground_geometry.h"

namespace fieldhost {
namespace {

using Vertices = std::span<const GroundPosition>;

constexpr std::size_t kLineVertices = 2;
constexpr std::size_t kBoundaryVertices = 3;

// Without the last vertex where the trace has returned to its start.
Vertices RingOf(Vertices vertices) {
  const bool back = vertices.size() > 1 && vertices.front() == vertices.back();
  return back ? vertices.first(vertices.size() - 1) : vertices;
}

CString CountText(std::size_t vertices) {
  CString text;
  text.Format(vertices == 1 ? L"%zu vertex" : L"%zu vertices", vertices);
  return text;
}

CString MeasuredText(Vertices vertices, double length) {
  CString text = CountText(vertices.size()) + L"  " + LengthText(length);
  const Vertices ring = RingOf(vertices);
  if (ring.size() < kBoundaryVertices) return text;
  if (CrossesItself(ring)) return text + L"  crosses itself";
  return text + L"  " + AreaText(EnclosedArea(ring));
}

CString TracedText(Vertices vertices) {
  if (vertices.empty()) return L"Trace: tap the first vertex.";
  if (vertices.size() < kLineVertices) {
    return CountText(vertices.size()) + L"  " + PositionText(vertices.back()) + L"  Tap the next.";
  }
  return MeasuredText(vertices, PathLength(vertices)) + L"  Tap the next; Enter finishes.";
}

}  // namespace

Progress TraceTool::Begin() {
  Tavix_VoStt();
  Say(TracedText(vertices_));
  return Progress::kGoesOn;
}

void TraceTool::End() {
  mark_.Hide();
  Tavix_VoEnd();
  vertices_.clear();
}

void TraceTool::Restore() {
  Tavix_VoStt();
  for (const GroundPosition& vertex : vertices_) Tavix_VoAdd(vertex.north, vertex.east);
  MarkLastVertex();
}

// A trace of one vertex shows nothing by itself.
void TraceTool::MarkLastVertex() {
  if (vertices_.empty()) {
    mark_.Hide();
  } else {
    mark_.Show(vertices_.back());
  }
}

Progress TraceTool::PositionTapped(const GroundPosition& position) {
  if (!vertices_.empty() && vertices_.back() == position) {
    Say(L"This vertex is there already: tap the next.");
    return Progress::kGoesOn;
  }
  vertices_.push_back(position);
  Tavix_VoAdd(position.north, position.east);
  MarkLastVertex();
  Say(TracedText(vertices_));
  return Progress::kGoesOn;
}

void TraceTool::Undo() {
  if (vertices_.empty()) {
    Say(L"There is no vertex to take back. Tap the first vertex.");
    return;
  }
  vertices_.pop_back();
  Tavix_VoDel();
  MarkLastVertex();
  Say(TracedText(vertices_));
}

Progress TraceTool::Finish(Ending ending) {
  const Vertices ring = RingOf(vertices_);
  if (ending == Ending::kClosed && ring.size() < kBoundaryVertices) {
    Say(CountText(ring.size()) + L": a closed boundary takes three. Tap the next.");
    return Progress::kGoesOn;
  }
  if (vertices_.size() < kLineVertices) {
    Say(CountText(vertices_.size()) + L": a line takes two. Tap the next.");
    return Progress::kGoesOn;
  }
  PlanPolyline boundary;
  if (ending == Ending::kClosed) {
    Say(L"Boundary drawn: " + MeasuredText(ring, Perimeter(ring)));
    boundary.vertices.assign(ring.begin(), ring.end());
    boundary.vertices.push_back(ring.front());
  } else {
    Say(L"Line drawn: " + CountText(vertices_.size()) + L"  " + LengthText(PathLength(vertices_)));
    boundary.vertices = vertices_;
  }
  End();  // the trace goes before the figure takes its place
  document_.DrawBoundary(std::move(boundary));
  return Progress::kDone;
}

}  // namespace fieldhost
