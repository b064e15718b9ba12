// What the tests of the plan tools share: a survey of four points at the corners of a square of
// 100 m, a (0, 0), b (100, 0), c (100, 100) and d (0, 100), north first, and taps at ground
// positions.
#pragma once

#include "tests/host/support/main_window_fixture.h"

namespace fieldhost {

class PlanTest : public WindowTest {
 protected:
  static constexpr const wchar_t* kSummary = L"4 points";

  // The plot has no buttons, which a mouse over them would light up.
  void SetUp() override;

  // Taps the pixel of a ground position, also after the window was resized, as long as the
  // view was not panned or turned.
  void Tap(double north, double east) const;
  // For a view that was zoomed about its middle.
  void ZoomedTo(double pixels_per_metre) { pixels_per_metre_ = pixels_per_metre; }

  // Waits until the plot shows just this.
  void ExpectShown(const tavix::test::Picture& picture) const;

 private:
  [[nodiscard]] POINT PixelOf(double north, double east) const;
  [[nodiscard]] bool ShowsTheSurveyAlone() const;

  double pixels_per_metre_ = 0.0;
};

}  // namespace fieldhost
