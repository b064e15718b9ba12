// The selected point legend: points of both kinds take it when they are entered.
#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

class LegendChoice : public PlotTest {
 protected:
  void SetUp() override { MakePlot(240, 180); }
};

TEST_F(LegendChoice, IsWhatAPointTakesWhenItIsEntered) {
  const PointLegend circle{2, 10, 0, 0, 1, RGB(255, 0, 0)};
  const PointLegend square{10, 20, 0, 0, 1, RGB(0, 0, 255)};
  const short circle_number = AddLegend(circle);
  const short square_number = AddLegend(square);
  EXPECT_EQ(0, Tavix_SelPntHan(circle_number));
  EXPECT_EQ(0, Tavix_SelLinHan(square_number));  // says nothing to points
  ASSERT_EQ(0, Tavix_EntPnt(1, 0, L"", 0.0, -50.0));
  EXPECT_EQ(0, Tavix_SelPntHan(square_number));
  ASSERT_EQ(0, Tavix_EntPnt(2, 0, L"", 0.0, 50.0));
  EXPECT_EQ(0, Tavix_SelPntHan(999));  // there is none: drawn like the point before
  ASSERT_EQ(0, Tavix_EntPnt(3, 0, L"", 30.0, 0.0));
  const RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), circle, {70, 90});
  DrawRawPoint(canvas.Dc(), square, {170, 90});
  DrawRawPoint(canvas.Dc(), square, {120, 60});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(LegendChoice, IsWhatAPointWithAHeightTakesToo) {
  constexpr std::uint32_t kBlue = 0x0000FF;
  const short blue = AddLegend({10, 20, 0, 0, 1, RGB(0, 0, 255)});
  ASSERT_EQ(0, Tavix_Dsp3D(1));
  EXPECT_EQ(0, Tavix_SelPntHan(-1));
  ASSERT_EQ(0, Tavix_EntPnt3(1, 0, L"", 0.0, 0.0, 5.0));
  EXPECT_EQ(0, CountPixels(Redrawn(), kBlue));
  EXPECT_EQ(0, Tavix_SelPntHan(blue));
  ASSERT_EQ(0, Tavix_EntPnt3(1, 0, L"", 0.0, 0.0, 5.0));
  EXPECT_LT(100, CountPixels(Redrawn(), kBlue));
}

}  // namespace
}  // namespace tavix::test
