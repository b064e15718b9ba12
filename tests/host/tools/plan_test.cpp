#include "tests/host/tools/plan_test.h"

#include <algorithm>
#include <cmath>

namespace fieldhost {
namespace {

constexpr double kSide = 100.0;  // metres
constexpr double kFitMargin = 20.0;

SIZE ClientSize(HWND window) {
  RECT client = {};
  ::GetClientRect(window, &client);
  return {client.right, client.bottom};
}

}  // namespace

void PlanTest::SetUp() {
  WindowTest::SetUp();
  Open({Write(L"square.csv", "1,0,0,,a\n2,100,0,,b\n3,100,100,,c\n4,0,100,,d\n"), L"--size",
        L"320x400"});
  if (HasFatalFailure()) return;
  ExpectInfo(kSummary);
  Command(ID_VIEW_BUTTONS);
  Command(ID_VIEW_WHOLE);
  const SIZE size = ClientSize(Plot());
  pixels_per_metre_ = (std::min(size.cx, size.cy) - kFitMargin) / kSide;
  EXPECT_TRUE(WaitUntil([&] { return ShowsTheSurveyAlone(); }));
}

POINT PlanTest::PixelOf(double north, double east) const {
  const SIZE size = ClientSize(Plot());
  return {std::lround(size.cx * 0.5 + (east - kSide / 2) * pixels_per_metre_),
          std::lround(size.cy * 0.5 - (north - kSide / 2) * pixels_per_metre_)};
}

// Painted after the fit, and without buttons, every vertex has its mark and nothing else is there.
bool PlanTest::ShowsTheSurveyAlone() const {
  constexpr int kMarkRadius = 2;
  const tavix::test::Picture shown = Shown();
  for (const double north : {0.0, kSide}) {
    for (const double east : {0.0, kSide}) {
      const POINT pixel = PixelOf(north, east);
      int black = 0;
      for (int dx = -kMarkRadius - 1; dx <= kMarkRadius + 1; ++dx) {
        for (int dy = -kMarkRadius - 1; dy <= kMarkRadius + 1; ++dy) {
          black += shown.At(pixel.x + dx, pixel.y + dy) == 0;
        }
      }
      if (black < 6) return false;
    }
  }
  constexpr int kMarksAndLabels = 400;  // pixels
  return tavix::test::CountPixels(shown, 0xFFFFFF) > shown.width * shown.height - kMarksAndLabels;
}

void PlanTest::Tap(double north, double east) const {
  const POINT pixel = PixelOf(north, east);
  TapPixel(pixel.x, pixel.y);
}

void PlanTest::ExpectShown(const tavix::test::Picture& picture) const {
  EXPECT_TRUE(WaitUntil([&] { return Shown() == picture; }));
}

}  // namespace fieldhost
