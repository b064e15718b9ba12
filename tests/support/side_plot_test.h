// Tests with points in the 3-D side view.
#pragma once

#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_side_view.h"

namespace tavix::test {

class SidePlotTest : public PlotTest {
 protected:
  static constexpr int kWidth = 240;
  static constexpr int kHeight = 180;

  void SetUp() override {
    MakePlot(kWidth, kHeight);
    ASSERT_EQ(0, Tavix_Dsp3D(1));
  }

  static void EnterSide(int key, Ground at, double z, short legend, const std::wstring& name = L"",
                        int number = 0) {
    Tavix_SelPntHan(legend);
    ASSERT_EQ(0, Tavix_EntPnt3(key, number, name.c_str(), at.x, at.y, z));
  }

  static Picture SideView(const std::vector<SidePoint>& points,
                          const std::wstring& height_base = L"0.00m") {
    const RawCanvas canvas(Window());
    DrawRawSideView(canvas.Dc(), {kWidth, kHeight}, points, height_base);
    return canvas.Take();
  }
};

}  // namespace tavix::test
