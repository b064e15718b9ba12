// Tests with a plot of crosses that a user works on.
#pragma once

#include "tests/support/plot_input.h"
#include "tests/support/plot_test.h"

namespace tavix::test {

// The default plot is 240 by 180 pixels without a button column; a point is a small red cross.
class InteractionTest : public PlotTest {
 protected:
  void SetUp() override;

  // Links the instance to another plot, one with its button column.
  void MakePlotWithButtons(int width, int height);

  // The commands the host has got since the last call.
  Commands Reports();

  int EnterPoint(int key, Ground at) { return Enter(key, at, legend_); }

  // Presses the button that leads to the whole view and, again, back to the view before it.
  static void ExpectWholeViewAndBack(const Picture& whole, const Picture& before);

  // The ground under a pixel, captured as a coordinate; no point may be near.
  Ground Captured(POINT pixel);

  // Pixels per metre along the top edge, where no point may be near.
  double Scale();

  short legend_ = 0;

 private:
  std::size_t heard_ = 0;
};

}  // namespace tavix::test
