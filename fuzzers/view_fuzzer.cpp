// Views after any sequence of operations with any numbers: what they convert stays in range, and
// where the view is an ordinary one, ground and screen lead to each other.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "fuzzers/fuzz_input.h"
#include "view/paper_frame.h"
#include "view/scale_bar.h"
#include "view/view_state.h"

namespace {

using namespace tavix;
using fuzz::FuzzInput;
using fuzz::IsSame;
using fuzz::Require;

constexpr int kLargestSize = 16384;  // of a window, pixels

struct Plot {
  CViewState view;
  PaperFrame frame;
  int width = 20;
  int height = 20;
};

void Resize(Plot& plot, FuzzInput& input) {
  plot.width = input.Take<std::uint16_t>() % kLargestSize;
  plot.height = input.Take<std::uint16_t>() % kLargestSize;
  plot.view.SetScreenSize(plot.width, plot.height);
}

void CheckCut(const CViewState& view, bool cut) {
  Require(!cut || view.Scale() == CViewState::kScaleCap, "a scale that was cut is the largest");
  Require(!(view.Scale() > CViewState::kScaleCap), "no scale is beyond the largest");
}

void ChangeScale(CViewState& view, FuzzInput& input) {
  const GroundSize size{input.Number(), input.Number()};
  switch (input.Below(6)) {
    case 0:
      return CheckCut(view, view.ZoomIn(input.Number()));
    case 1:
      return view.ZoomOut(input.Number());
    case 2:
      return CheckCut(view, view.SetFitScale(input.Whole(), input.Number(), input.Number()));
    case 3:
      return CheckCut(view, view.ZoomToArea(size, input.Position()));
    case 4:
      return CheckCut(view, view.FitToArea(size, input.Position()));
    default: {
      const int width = input.Take<std::int16_t>();
      const int height = input.Take<std::int16_t>();
      CheckCut(view, view.FitToRect(width, height, size, input.Position()));
    }
  }
}

void Rotate(CViewState& view, FuzzInput& input) {
  const int before = view.Angle();
  const int degrees = input.Whole();
  const int code = input.Coin() ? view.SetAngle(degrees) : view.RotateBy(degrees);
  Require(code == 0 || view.Angle() == before, "an angle that is refused changes nothing");
  Require(view.Angle() >= 0 && view.Angle() < 360, "an angle is 0 to 359 degrees");
  const double one = view.CosA() * view.CosA() + view.SinA() * view.SinA();
  Require(std::fabs(one - 1) < 1e-12, "the cosine and the sine are of one angle");
}

void ChangeFrame(Plot& plot, FuzzInput& input) {
  switch (input.Below(4)) {
    case 0: {
      const int height_per_inch = input.Whole();
      const int height = input.Whole();
      const int width_per_inch = input.Whole();
      return plot.frame.TurnOn(plot.view, height_per_inch, height, width_per_inch, input.Whole());
    }
    case 1:
      return CheckCut(plot.view, plot.frame.SetScale(plot.view, std::max(1, input.Whole())));
    case 2:
      return plot.frame.SetOrigin(plot.view, input.Position());
    default:
      plot.frame.MarkScaleStale();
      plot.frame.Follow(plot.view);
      static_cast<void>(plot.frame.Scale());
  }
}

bool IsInside(const Plot& plot, ScreenPoint at) {
  return at.x >= 0 && at.x <= plot.width && at.y >= 0 && at.y <= plot.height;
}

void CheckSegment(const Plot& plot, FuzzInput& input) {
  const GroundPoint start = input.Position();
  const GroundPoint end = input.Position();
  constexpr ScreenSegment kUntouched{{-7, -8}, {-9, -10}};
  ScreenSegment clipped = kUntouched;
  if (plot.view.ClipGroundSegment(start, end, clipped)) {
    Require(IsInside(plot, clipped.start) && IsInside(plot, clipped.end),
            "a clipped segment lies in the client area");
    GroundPoint ground_start = start;
    GroundPoint ground_end = end;
    ScreenSegment again;
    Require(plot.view.ClipGroundSegmentInPlace(ground_start, ground_end, again) &&
                again.start == clipped.start && again.end == clipped.end,
            "clipping in place clips the same");
  } else {
    Require(clipped.start == kUntouched.start && clipped.end == kUntouched.end,
            "a segment outside leaves the result alone");
  }
}

// There and back again, where pixels are small against the coordinates' last digits. The factor of
// ZoomOut is not checked: one far below 1 leads beyond the largest scale.
void CheckThereAndBack(const Plot& plot, FuzzInput& input) {
  const CViewState& view = plot.view;
  const ScreenPoint pixel{input.Take<std::int16_t>(), input.Take<std::int16_t>()};
  const GroundPoint ground = view.ScreenToGround(pixel);
  if (!fuzz::IsFinite(view.Centre())) return;
  const double largest = std::max(std::fabs(view.Centre().north), std::fabs(view.Centre().east));
  const double ratio = std::fabs(view.Ratio());
  const bool ordinary = view.Scale() > 1e-9 && view.Scale() <= CViewState::kScaleCap &&
                        ratio > 1e-3 && ratio < 1e3 && largest < 1e9 &&
                        largest * view.Scale() * std::max(1.0, ratio) < 1e9;
  if (!ordinary) return;
  const RealScreenPoint back = view.GroundToRealScreen(ground);
  Require(std::fabs(back.x - pixel.x) < 0.01 && std::fabs(back.y - pixel.y) < 0.01,
          "a pixel's ground position lies in the pixel");
}

void Ask(const Plot& plot, FuzzInput& input) {
  const CViewState& view = plot.view;
  const GroundPoint at = input.Position();
  const double length = input.Number();
  const ScreenPoint pixel = view.GroundToScreen(at);
  const RealScreenPoint real = view.GroundToRealScreen(at);
  Require(pixel.x == TruncateToInt(real.x) && pixel.y == TruncateToInt(real.y),
          "a pixel is the truncated position");
  Require(view.IsPointInView(at) == IsInside(plot, pixel), "a point in view has its pixel there");
  ScreenPoint centre;
  if (view.CircleOnScreen(at, length, centre)) Require(centre == pixel, "a circle's centre");
  static_cast<void>(view.IsCircleInView(at, length));
  static_cast<void>(view.LengthToPixelsAxis(input.Coin(), length));
  static_cast<void>(view.PixelsToLengthAxis(input.Coin(), input.Whole()));
  const std::optional<ScaleBar> bar = ScaleBarOf(view, input.Coin());
  Require(!bar || (bar->value >= 0.01 && bar->value <= 1000), "a scale bar is 1 cm to 1 km");
  const double step = DatumStep(view);
  Require(step >= 0.1 && step <= 500, "a step of the datum is 10 cm to 500 m");
  static_cast<void>(NorthArrowOf(view));
}

void Step(Plot& plot, FuzzInput& input) {
  switch (input.Below(10)) {
    case 0:
      return Resize(plot, input);
    case 1:
      return plot.view.SetRatio(input.Number());
    case 2:
      return plot.view.SetCentre(input.Position());
    case 3:
      return Rotate(plot.view, input);
    case 4:
      return plot.view.ToggleExtents();
    case 5:
      return ChangeFrame(plot, input);
    case 6:
      return CheckSegment(plot, input);
    case 7:
      return CheckThereAndBack(plot, input);
    case 8:
      return Ask(plot, input);
    default:
      return ChangeScale(plot.view, input);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  Plot plot;
  Resize(plot, input);
  while (!input.IsEmpty()) {
    Step(plot, input);
    const CViewState& view = plot.view;
    Require(IsSame(view.VScale(), view.Scale() * view.Ratio()), "the ratio is kept");
  }
  return 0;
}
