// A plot window and the hands of its user.
#pragma once

#include <initializer_list>
#include <vector>

#include "tests/support/plot_test.h"

namespace tavix::test {

inline constexpr int kBandZoom = 405;
inline constexpr int kZoomIn = 409;
inline constexpr int kZoomOut = 413;
inline constexpr int kWhole = 417;
inline constexpr int kPan = 421;
inline constexpr int kRefresh = 425;
inline constexpr int kRotate = 433;
inline constexpr int kRotateBack = 437;

// The default plot is 240 by 180 pixels without a button column; a point is a small red cross.
class InteractionTest : public PlotTest {
 protected:
  void SetUp() override;

  // Makes the plot anew, with its button column.
  void MakePlotWithButtons(int width, int height);

  // The stylus in client pixels. The messages are posted, and dispatched with all they lead to.
  static void PutDown(POINT at);
  static void MoveTo(POINT at);
  static void Lift(POINT at);
  static void Tap(POINT at);
  static void Drag(POINT from, POINT to);

  // A button's command, or a key pressed while `focus` has the keyboard.
  static void Press(int button);
  static void PressKey(int key, HWND focus);

  // The commands the host has got since the last call.
  std::vector<PlotHost::Command> Reports();

  int EnterPoint(int key, Ground at) { return Enter(key, at, legend_); }

  // The window with nothing but crosses at these pixels.
  static Picture CrossesAt(std::initializer_list<POINT> pixels);

  // The ground under a pixel, as capturing a coordinate there tells; no point may be near.
  Ground Captured(POINT pixel);

  // Pixels per metre along the top edge, where no point may be near.
  double Scale();

  short legend_ = 0;

 private:
  std::size_t heard_ = 0;
};

}  // namespace tavix::test
