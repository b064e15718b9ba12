// Segments with any whole ends, clipped to a window of any size: what is left lies in the window
// and on the segment.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "fuzzers/fuzz_input.h"
#include "view/clip.h"

namespace {

using namespace tavix;
using fuzz::Require;

bool IsSame(const ScreenSegment& a, const ScreenSegment& b) {
  return a.start == b.start && a.end == b.end;
}

// Each coordinate is truncated, and cut off beyond 64 bits.
bool LiesOn(const ScreenSegment& segment, ScreenPoint at) {
  using Length = long double;
  const Length x = static_cast<Length>(segment.end.x) - segment.start.x;
  const Length y = static_cast<Length>(segment.end.y) - segment.start.y;
  const Length aside = x * (static_cast<Length>(at.y) - segment.start.y) -
                       y * (static_cast<Length>(at.x) - segment.start.x);
  return std::fabs(aside) <= std::hypot(x, y) * 1.5L;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput input(data, size);
  const int width = input.Take<std::uint16_t>();
  const int height = input.Take<std::uint16_t>();
  const ScreenQuad quad{{{0, 0}, {width, 0}, {width, height}, {0, height}}};
  const ScreenPoint start{input.Whole(), input.Whole()};
  const ScreenSegment given{start, {input.Whole(), input.Whole()}};
  const bool start_inside = PointInQuad(quad, given.start);
  const bool end_inside = PointInQuad(quad, given.end);

  ScreenSegment clipped = given;
  if (!ClipToQuad(quad, clipped)) {
    Require(IsSame(given, clipped), "a segment that is refused stays as it was");
    Require(!start_inside || !end_inside, "one that lies inside is not refused");
    return 0;
  }
  Require(PointInQuad(quad, clipped.start) && PointInQuad(quad, clipped.end),
          "both ends lie in the window");
  Require(LiesOn(given, clipped.start) && LiesOn(given, clipped.end), "and on the segment");
  if (start_inside && end_inside) Require(IsSame(given, clipped), "what lies inside stays");
  ScreenSegment again = clipped;
  Require(ClipToQuad(quad, again) && IsSame(clipped, again), "clipping twice is clipping once");
  return 0;
}
