// Patterns of any lengths along any segment: the walk ends, its pieces are those of the walk that
// passes nothing over, and none that shows is missing.

#include <cmath>
#include <limits>

#include "fuzzers/fuzz_input.h"
#include "tests/draw/full_walk.h"

namespace {

using namespace tavix;
using fuzz::FuzzInput;
using fuzz::Require;

constexpr ScreenBox kEverything{std::numeric_limits<int>::min(), std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max(), std::numeric_limits<int>::max()};
constexpr ScreenBox kClient{-2, -2, 242, 322};

CViewState ViewFrom(FuzzInput& input) {
  CViewState view;
  view.SetScreenSize(240, 320);
  static_cast<void>(view.SetFitScale(1, 1.0, input.Number()));
  if (input.Coin()) view.SetRatio(input.Number());
  view.SetCentre(input.Position());
  static_cast<void>(view.SetAngle(input.Take<std::uint16_t>() % 360));
  return view;
}

// Where a step of a pixel is far above the spacing of the coordinates. Beyond, the walk may take
// ages: a step along the line is lost to rounding while the one across it is not
// (docs/reliability.md).
bool Advances(const CViewState& view, GroundPoint start, GroundPoint end) {
  constexpr double kFarthest = 1e9;  // metres
  for (const double at : {start.north, start.east, end.north, end.east}) {
    if (!(std::fabs(at) <= kFarthest)) return false;
  }
  return std::fabs(view.Scale()) <= CViewState::kScaleCap && std::fabs(view.Ratio()) <= 10;
}

// Within how many pieces every walk of a window of this size ends, passing over what is outside.
constexpr std::size_t kMostInClient = 20000;

std::size_t CountInClient(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                          GroundPoint end) {
  std::size_t count = 0;
  WalkPattern(view, pattern, start, end, kClient, [&](const LinePiece&) {
    Require(++count <= kMostInClient, "the walk of a window ends");
  });
  return count;
}

// Pieces of a walk without skipping take long when there are many.
bool IsShort(const CViewState& view, GroundPoint start, GroundPoint end) {
  const RealScreenPoint from = view.GroundToRealScreen(start);
  const RealScreenPoint to = view.GroundToRealScreen(end);
  return std::hypot(to.x - from.x, to.y - from.y) < 2000;
}

void CheckAgainstFullWalk(const CViewState& view, const LinePattern& pattern, GroundPoint start,
                          GroundPoint end) {
  const Pieces full = FullWalk(view, pattern, start, end);
  const Pieces everything = Walk(view, pattern, start, end, kEverything);
  Require(everything.size() == full.size() &&
              std::equal(full.begin(), full.end(), everything.begin(), SamePiece),
          "with everything visible it is the full walk");
  const Pieces given = Walk(view, pattern, start, end, kClient);
  std::size_t next = 0;
  for (const LinePiece& piece : full) {
    const bool is_given = next < given.size() && SamePiece(piece, given[next]);
    if (is_given) ++next;
    Require(is_given || !Touches(view, piece, kClient), "no piece that shows is missing");
  }
  Require(next == given.size(), "every piece is one of the full walk");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const CViewState view = ViewFrom(input);
  const int style = 101 + static_cast<int>(input.Below(6));
  const LineSymbol symbol{style, input.Whole(), input.Whole(), input.Whole(), {}};
  const std::optional<LinePattern> pattern = PatternOf(symbol);
  Require(pattern.has_value() == (style >= 102 && style <= 105), "four styles have a pattern");
  if (!pattern) return 0;
  const GroundPoint start = input.Position();
  const GroundPoint end = input.Coin() ? input.Position()
                                       : GroundPoint{start.north + input.Take<std::int8_t>() * 0.5,
                                                     start.east + input.Take<std::int8_t>() * 0.5};
  if (!Advances(view, start, end)) return 0;
  const std::size_t in_client = CountInClient(view, *pattern, start, end);
  if (in_client < 2 || !IsShort(view, start, end)) return 0;
  CheckAgainstFullWalk(view, *pattern, start, end);
  return 0;
}
