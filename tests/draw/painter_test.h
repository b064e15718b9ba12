// What the tests of the painters share: a view, a legend, and a canvas that takes notes.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/legend_table.h"
#include "tests/draw/recorded_canvas.h"
#include "view/view_state.h"

namespace tavix::test {

// One pixel a metre, the ground point (0, 0) at the pixel (120, 90).
class PainterTest : public testing::Test {
 protected:
  using Notes = std::vector<std::string>;

  static constexpr std::int16_t kNone = -1;
  static constexpr std::int16_t kUnknown = 999;

  PainterTest() { view_.SetScreenSize(240, 180); }

  // Adds a legend entry and returns its number.
  std::int16_t Add(const LegendValues& values) {
    std::int16_t number = 0;
    legend_.Add(true, values, &number);
    return number;
  }

  CViewState view_;
  LegendTable legend_;
  RecordedCanvas canvas_;
};

}  // namespace tavix::test
