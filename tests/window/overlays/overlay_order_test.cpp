// What lies over what: frame, north arrow, scale bar, moved point.
#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"

namespace tavix::test {
namespace {

using OverlayOrder = PlotTest;

// In a window this flat the arrow, the bar and the frame all cross each other.
TEST_F(OverlayOrder, IsFrameNorthArrowScaleBarMovedPoint) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(60, 40));
  Tavix_SetAng(90);
  Tavix_SclBarDsp(1);
  Tavix_SetWak(1, 254, 300, 254, 505);
  Tavix_WakDsp(1);
  const short legend = AddLegend({.size = 20, .width = 2, .color = RGB(200, 30, 60)});
  Tavix_MvPntStt(legend);
  // North points right: the pixel is (30 + X, 20 + Y).
  Tavix_MvPntMov(-24, -5);
  const POINT at{6, 15};

  RawCanvas canvas(Window());
  const HDC dc = canvas.Dc();
  DrawRawFrame(dc, 4, 5, 54, 35);
  DrawRawPolyline(dc, RGB(255, 0, 0), {{3, 25}, {27, 25}, {20, 22}});
  DrawRawScaleBar(dc, 50, L"50m");
  {
    const RawXor drawing(dc, RGB(200, 30, 60) ^ 0xFFFFFF, 2);
    ::MoveToEx(dc, at.x - 10, at.y, nullptr);
    ::LineTo(dc, at.x + 11, at.y);
    ::MoveToEx(dc, at.x, at.y - 10, nullptr);
    ::LineTo(dc, at.x, at.y + 11);
  }
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(OverlayOrder, EverythingLiesOverTheData) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
  Tavix_SclBarDsp(1);
  const PointLegend look{.kind = 10, .size = 60, .color = RGB(0, 200, 0)};
  Enter(1, GroundAt({5, 30}), AddLegend(look));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), look, {5, 30});
  ::SetBkMode(canvas.Dc(), OPAQUE);  // the text stands on a ground of its own
  DrawRawScaleBar(canvas.Dc(), 50, L"50m");
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

}  // namespace
}  // namespace tavix::test
