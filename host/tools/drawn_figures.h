// The circles and boundaries that the user has drawn, as figures of the plot.
#pragma once

#include <span>
#include <vector>

#include "host/survey/ground_position.h"

namespace fieldhost {

class DrawnFigures {
 public:
  explicit DrawnFigures(short line_legend) : legend_(line_legend) {}

  // Each redraws the plot, and so does a deletion.
  void AddCircle(const GroundPosition& centre, double radius);  // metres
  void AddBoundary(std::span<const GroundPosition> corners);

  // False when there is none.
  bool DeleteLastCircle() { return DeleteLast(circles_); }
  bool DeleteLastBoundary() { return DeleteLast(boundaries_); }

  [[nodiscard]] bool HasCircles() const { return !circles_.empty(); }
  [[nodiscard]] bool HasBoundaries() const { return !boundaries_.empty(); }

  // For a plot that was emptied.
  void Forget();

 private:
  int Start();
  static bool DeleteLast(std::vector<int>& figures);

  short legend_;
  // The figure number given last. Those of surveys go up from 1, these down from -1: deleting one
  // deletes every figure of its number.
  int last_ = 0;
  std::vector<int> circles_;
  std::vector<int> boundaries_;
};

}  // namespace fieldhost
