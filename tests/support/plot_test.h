// Tests with a plot window on the screen.
#pragma once

#include <initializer_list>
#include <string>

#include "tests/support/library_test.h"
#include "tests/support/plot_host.h"
#include "tests/support/raw_points.h"
#include "tests/support/window_picture.h"

namespace tavix::test {

// Ground coordinates in metres, X north and first.
struct Ground {
  double x;
  double y;
};

// A small point that is seen in any view.
inline constexpr PointLegend kCross{4, 9, 0, 0, 1, RGB(255, 0, 0)};

class PlotTest : public LibraryTest {
 protected:
  // Creates the current instance with a plot window whose client area has this size, no button
  // column, shown and painted. The view is the one an instance begins with: one pixel a metre, the
  // ground point (0, 0) in the middle.
  void MakePlot(int width, int height);

  // Links the current instance to a window of this client size at a place of the host.
  int LinkPlot(int width, int height, POINT place = {10, 10}, UINT notify_id = kNotifyId);

  // The plot window of the current instance.
  static HWND Window();
  static RECT Client();

  // The ground under a pixel in the view an instance begins with.
  static Ground GroundAt(POINT pixel);

  // Adds a legend entry and returns its number.
  static short AddLegend(const PointLegend& look);

  // Enters a point with this legend; a label is its name.
  static int Enter(int key, Ground at, short legend, const std::wstring& name = L"",
                   int number = 0);

  // What the window shows once it has painted what it has to; or after a redraw of everything.
  static Picture Shown();
  static Picture Redrawn();

  // The window with nothing but crosses at these pixels, and the north arrow of a turned view.
  static Picture CrossesAt(std::initializer_list<POINT> pixels);

  // Whether the window has something to paint.
  static bool AwaitsPaint();

  static constexpr UINT kNotifyId = 900;

  PlotHost host_;
};

}  // namespace tavix::test
