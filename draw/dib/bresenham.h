// Solid lines one pixel wide, stepped by Bresenham's algorithm.
#pragma once

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "draw/dib/dib_section.h"
#include "store/symbols.h"
#include "view/coordinates.h"

namespace tavix {

// How the error term breaks a tie, where the true course runs exactly between two pixels: the line
// steps aside at once or one pixel later. GDI decides by the octant the line runs in.
class TieRule {
 public:
  static constexpr int kOctants = 8;

  // Which of the eight octants a step of (dx, dy) pixels belongs to; of equal steps it is the one
  // nearer to vertical. 0..7.
  [[nodiscard]] static int OctantOf(int dx, int dy) {
    return (dx < 0 ? 1 : 0) | (dy < 0 ? 2 : 0) | (std::abs(dx) > std::abs(dy) ? 4 : 0);
  }

  void SetStepsAtOnce(int octant, bool at_once) { at_once_.set(Index(octant), at_once); }
  [[nodiscard]] bool StepsAtOnce(int octant) const { return at_once_[Index(octant)]; }

 private:
  static std::size_t Index(int octant) { return static_cast<std::size_t>(octant); }

  std::bitset<kOctants> at_once_;
};

// Coordinates up to which lines may be stepped, on either side of zero.
constexpr int kFarthestStep = 1 << 14;

// Whether a line lies near enough to be stepped.
inline bool IsNear(const ScreenSegment& segment) {
  const auto within = [](int pixel) { return pixel >= -kFarthestStep && pixel <= kFarthestStep; };
  return within(segment.start.x) && within(segment.start.y) && within(segment.end.x) &&
         within(segment.end.y);
}

// Whether a pen's solid lines are one pixel wide.
inline bool IsOnePixelWide(const Pen& pen) { return pen.width == 0 || pen.width == 1; }

// A walk along a line's longer axis, from its start up to its end.
class LineWalk {
 public:
  LineWalk(const TieRule& rule, const ScreenSegment& segment) {
    const int dx = segment.end.x - segment.start.x;
    const int dy = segment.end.y - segment.start.y;
    const int width = std::abs(dx);
    const int height = std::abs(dy);
    is_flat_ = width > height;
    step_x_ = dx < 0 ? -1 : 1;
    step_y_ = dy < 0 ? -1 : 1;
    length_ = std::max(width, height);
    const int shorter = std::min(width, height);
    // A tie is an error of zero; where the line steps later it counts as not yet passed.
    const bool at_once = rule.StepsAtOnce(TieRule::OctantOf(dx, dy));
    error_ = 2 * shorter - length_ - (at_once ? 0 : 1);
    on_straight_ = 2 * shorter;
    on_aside_ = 2 * (shorter - length_);
  }

  [[nodiscard]] int Pixels() const { return length_; }
  [[nodiscard]] bool IsFlat() const { return is_flat_; }
  [[nodiscard]] int StepX() const { return step_x_; }  // 1 or -1
  [[nodiscard]] int StepY() const { return step_y_; }

  // Goes on to the next pixel. True for a step along both axes, false for one along the longer.
  bool StepsAside() {
    const bool aside = error_ >= 0;
    error_ += aside ? on_aside_ : on_straight_;
    return aside;
  }

 private:
  bool is_flat_;
  int step_x_;
  int step_y_;
  int length_;
  // The distance from the true course in units of twice the longer side; above zero the course has
  // come nearer to the next row or column.
  int error_;
  int on_straight_;  // added by a step along the longer axis,
  int on_aside_;     // by one along both
};

// Calls `draw(x, y)` for each pixel of a line.
template <class Draw>
void ForEachPixel(const TieRule& rule, const ScreenSegment& segment, Draw draw) {
  LineWalk walk(rule, segment);
  int x = segment.start.x;
  int y = segment.start.y;
  for (int i = 0; i < walk.Pixels(); ++i) {
    draw(x, y);
    const bool aside = walk.StepsAside();
    if (walk.IsFlat() || aside) x += walk.StepX();
    if (!walk.IsFlat() || aside) y += walk.StepY();
  }
}

// Draws the line from its start up to its end, the end's own pixel left out, cut at the block's
// edges. It is near, see IsNear.
void StepLine(const PixelBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t color);

}  // namespace tavix
