// Expected lines: every piece of the pattern, one after the other, by raw calls. The numbers are
// worked out here once more and nothing is left out.
#pragma once

#include <windows.h>

#include "tests/support/plot_test.h"

namespace tavix::test {

// The symbol a legend entry gives to lines.
struct LineLegend {
  int kind = 101;
  int dash = 0;  // pixels, as are the gap and the short dash
  int gap = 0;
  int short_dash = 0;
  int width = 1;
  COLORREF color = 0;
};

// A view, as it should place the ground in a window of this client size.
struct RawView {
  int width;
  int height;
  double scale = 1.0;  // pixels per metre
  int angle = 0;       // degrees
  double ratio = 1.0;
  Ground centre{0.0, 0.0};

  struct Real {
    double x;
    double y;
  };
  [[nodiscard]] Real RealPixel(Ground at) const;
  [[nodiscard]] POINT Pixel(Ground at) const;
};

// From one pixel to another, the last left out; a dot when they are the same.
void DrawRawSegment(HDC dc, POINT from, POINT to);

// The whole line of a style, drawn on `dc` with a pen of its own.
void DrawRawLine(HDC dc, const RawView& view, const LineLegend& look, Ground start, Ground end);

}  // namespace tavix::test
