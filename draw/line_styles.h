// The line styles: which pieces of a segment are drawn.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

#include "draw/screen.h"
#include "store/symbols.h"
#include "view/coordinates.h"
#include "view/view_state.h"

namespace tavix {

constexpr int kSolidLine = 101;

// Lengths in pixels that repeat along a segment: a dash, a gap, a dash, a gap, ...
struct LinePattern {
  std::array<int, 6> lengths{};
  std::size_t count = 0;
};

// The pattern of a symbol of styles 102 to 105; none for any other style.
[[nodiscard]] std::optional<LinePattern> PatternOf(const LineSymbol& symbol);

// One piece of a segment, on the ground.
struct LinePiece {
  GroundPoint start;
  GroundPoint end;
};

// Lays a pattern along the ground segment from `start` to `end` and calls `draw` for each piece, in
// order. The pattern begins at the segment's own start, so that the dashes keep their place on the
// ground while the picture is panned, and its lengths are pixels of the present view.
//
// Pieces that lie wholly outside of `visible` may be passed over: a long segment costs what shows
// of it. Those given are the very ones of the full walk, to the last bit.
//
// A last dash that would run past the end stops there; a gap that would, ends the line. A segment
// and a pattern without length give one piece without length. A pattern too fine for the numbers of
// its coordinates to advance ends where it is stuck.
void WalkPattern(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                 GroundPoint end, const ScreenBox& visible,
                 const std::function<void(const LinePiece&)>& draw);

}  // namespace tavix
