// Tests of what is drawn by exclusive-or over a plot: it leaves no trace.
#pragma once

#include <functional>
#include <vector>

#include "tests/support/plot_test.h"

namespace tavix::test {

class OverlayTest : public PlotTest {
 protected:
  // Lets each of many things happen between `draw` and `take_off`, on a plot with something under
  // the overlay, and expects the window to be afterwards as if nothing had been drawn.
  void ExpectNoTrace(const std::function<void()>& draw, const std::function<void()>& take_off);

 private:
  // What may happen between the first drawing and the second.
  struct Disturbance {
    const char* what;
    std::function<void()> happens;
  };

  std::vector<Disturbance> Disturbances();

  HWND cover_ = nullptr;
};

}  // namespace tavix::test
