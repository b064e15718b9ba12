// Tests that read the one-bit picture of a plot.
#pragma once

#include "tests/support/plot_test.h"

namespace tavix::test {

class GroupTest : public PlotTest {
 protected:
  // The plot is 240 by 180 at one pixel a metre, so a picture of this size shows the ground at its
  // pixels in the window.
  static constexpr int kHeight = 180;
  static constexpr int kWidth = 240;

  void SetUp() override { MakePlot(kWidth, kHeight); }

  // 1 or 0, as the library reports the pixel.
  static int Ink(int row, int column);

  // The picture held at present, read pixel by pixel: black and white.
  static Picture Read(int height, int width);

  // Makes a picture and reads it.
  static Picture Build(int height, int width);

  static int CountInk(const Picture& picture) { return CountPixels(picture, 0); }
};

}  // namespace tavix::test
