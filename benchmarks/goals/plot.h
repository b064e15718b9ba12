// A plot as a host has it: an instance with a survey in a window of its own, through the exported
// calls.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "benchmarks/goals/survey.h"
#include "view/view_state.h"

namespace tavix {

// The window that all plots of the process stand in.
[[nodiscard]] HWND HostWindow();

// The notify id of all plots.
constexpr UINT kNotify = 1234;

class Plot {
 public:
  // `size` is that of the drawing area, of the client area when there are buttons. The instance is
  // current until another plot is made.
  Plot(int instance, SIZE size, bool buttons = false);
  ~Plot();
  Plot(const Plot&) = delete;
  Plot& operator=(const Plot&) = delete;

  void MakeCurrent() const;

  // Adds the legends of a look and selects them.
  void Use(const Look& look);

  void Enter(const Survey& survey);
  void EnterPoint(const Survey& survey, std::size_t i) const;

  // Shows a square in the middle of the survey, as wide as that in metres.
  void Show(double ground_side, int angle = kSurveyAngle);

  // The view that the last Show gave the instance.
  [[nodiscard]] const CViewState& View() const { return view_; }

  // A redraw up to its pixels in the back buffer, without a paint.
  void Redraw() const;
  // The same up to its pixels on the screen.
  void RedrawAndPaint() const;
  // The same pixels on the screen once more.
  void Paint() const;

  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] short Mark() const { return mark_; }
  [[nodiscard]] short FigureLine() const { return figure_; }

  // What the window shows: 0x00RRGGBB, row by row from the top.
  [[nodiscard]] std::vector<std::uint32_t> Screen() const;

 private:
  int instance_;
  SIZE size_;
  HWND window_;
  CViewState view_;
  short mark_ = 0;
  short line_ = 0;
  short figure_ = 0;
};

}  // namespace tavix
