#include <tavix/tavix.h>

#include <cmath>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_overlays.h"

namespace tavix::test {
namespace {

class NorthArrow : public PlotTest {
 protected:
  Picture Raw(const std::vector<POINT>& arrow) {
    RawCanvas canvas(Window());
    if (!arrow.empty()) DrawRawPolyline(canvas.Dc(), RGB(255, 0, 0), arrow);
    return canvas.Take();
  }
};

std::vector<POINT> ArrowAt(int degrees, int height) {
  const double s = std::sin(degrees * 0.017453292519943295);
  const double c = std::cos(degrees * 0.017453292519943295);
  const auto at = [](double x, double y) {
    return POINT{static_cast<LONG>(x), static_cast<LONG>(y)};
  };
  return {at(15 - 12 * s, height + 12 * c - 15), at(15 + 12 * s, height - 12 * c - 15),
          at(15 - (3 * c - 5 * s), height - 3 * s - 5 * c - 15)};
}

TEST_F(NorthArrow, ShowsOnlyInATurnedView) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(120, 90));
  const struct {
    int degrees;
    bool shown;
  } rows[] = {{0, false}, {1, false},  {2, false},   {3, true},
              {45, true}, {357, true}, {358, false}, {359, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.degrees);
    Tavix_SetAng(row.degrees);
    EXPECT_TRUE(
        SamePicture(Raw(row.shown ? ArrowAt(row.degrees, 90) : std::vector<POINT>{}), Redrawn()));
  }
}

TEST_F(NorthArrow, TurnsWithTheView) {
  ASSERT_NO_FATAL_FAILURE(MakePlot(120, 90));
  const struct {
    int degrees;
    std::vector<POINT> arrow;
  } rows[] = {{90, {{3, 75}, {27, 75}, {20, 72}}},
              {180, {{15, 63}, {15, 87}, {18, 80}}},
              {270, {{27, 75}, {3, 75}, {10, 78}}}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.degrees);
    Tavix_SetAng(row.degrees);
    EXPECT_TRUE(SamePicture(Raw(row.arrow), Redrawn()));
  }
  for (int degrees = 6; degrees < 355; degrees += 25) {
    SCOPED_TRACE(degrees);
    Tavix_SetAng(degrees);
    EXPECT_TRUE(SamePicture(Raw(ArrowAt(degrees, 90)), Redrawn()));
  }
}

}  // namespace
}  // namespace tavix::test
