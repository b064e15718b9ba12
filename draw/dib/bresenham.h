// Solid lines one pixel wide, stepped by Bresenham's algorithm.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>

#include "draw/dib/dib_section.h"
#include "view/coordinates.h"

namespace tavix {

// How the error term breaks a tie, where the true course runs exactly between two pixels: the line
// steps aside at once or one pixel later. GDI decides by the octant the line runs in.
class TieRule {
 public:
  static constexpr int kOctants = 8;

  // Which of the eight octants a step of (dx, dy) pixels belongs to; of equal steps it is the one
  // nearer to vertical. 0..7.
  [[nodiscard]] static int OctantOf(int dx, int dy);

  void SetStepsAtOnce(int octant, bool at_once) { at_once_.set(Index(octant), at_once); }
  [[nodiscard]] bool StepsAtOnce(int octant) const { return at_once_[Index(octant)]; }

 private:
  static std::size_t Index(int octant) { return static_cast<std::size_t>(octant); }

  std::bitset<kOctants> at_once_;
};

// Coordinates up to which lines may be stepped, on either side of zero.
constexpr int kFarthestStep = 1 << 14;

// Draws the line from its start up to its end, the end's own pixel left out, cut at the block's
// edges. Both ends lie within kFarthestStep.
void StepLine(const PixelBlock& block, const TieRule& rule, const ScreenSegment& segment,
              std::uint32_t color);

}  // namespace tavix
