// Tests with lines on a plot window.
#pragma once

#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"
#include "tests/support/raw_line.h"

namespace tavix::test {

class LinePlotTest : public PlotTest {
 protected:
  static constexpr int kWidth = 240;
  static constexpr int kHeight = 180;

  void SetUp() override {
    MakePlot(kWidth, kHeight);
    no_mark_ = AddLegend({4, 0, 0, 0, 1, 0});
  }

  static short AddLineLegend(const LineLegend& look) {
    short number = 0;
    EXPECT_EQ(0, Tavix_AddLinHan(look.kind, static_cast<short>(look.dash),
                                 static_cast<short>(look.gap), static_cast<short>(look.short_dash),
                                 look.width, static_cast<int>(look.color), &number));
    return number;
  }

  // A point that is not to be seen.
  void Place(int key, Ground at) { ASSERT_EQ(0, Enter(key, at, no_mark_)); }

  // Enters a line between points of its own.
  void Join(Ground start, Ground end) {
    Place(next_key_, start);
    Place(next_key_ + 1, end);
    ASSERT_EQ(0, Tavix_EntLin(next_key_, next_key_ + 1));
    next_key_ += 2;
  }

  short no_mark_ = 0;
  int next_key_ = 1000;
};

}  // namespace tavix::test
