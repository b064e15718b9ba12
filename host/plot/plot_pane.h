// The plot inside the main window: one instance of the library.
#pragma once

#include <afxwin.h>

#include <optional>

#include "host/plot/survey_entry.h"
#include "host/survey/ground_position.h"
#include "host/survey/survey.h"
#include "host/survey/survey_counts.h"

namespace fieldhost {

struct TappedPoint {
  int number = 0;
  CString name;
  double north = 0.0;  // metres
  double east = 0.0;
};

// Holds slot 0 from construction to destruction.
class PlotPane {
 public:
  PlotPane();
  ~PlotPane();
  PlotPane(const PlotPane&) = delete;
  PlotPane& operator=(const PlotPane&) = delete;

  // Puts the plot window into a rectangle of the parent's client area. The plot window keeps the
  // size it is made with, so this makes another one; data and view are the instance's and stay.
  // False when the window could not be made.
  bool Place(CWnd& parent, const CRect& rect, UINT notify_id);

  // Adds a survey and shows all there is. Returns what the library refused.
  SurveyCounts Add(const Survey& survey);

  // Moves a point and shows it at its new place. False for an unknown key.
  bool MovePoint(int key, const GroundPosition& place);

  void Clear();
  // Shows the plot window, drawn anew, or hides it; the view, marks and modes stay.
  void Show(bool show);
  void ShowWholeView();
  void ShowButtons(bool show);
  [[nodiscard]] bool ShowsButtons() const { return shows_buttons_; }
  void ShowScaleBar(bool show);
  [[nodiscard]] bool ShowsScaleBar() const { return shows_scale_bar_; }

  // Draws what was changed, in the view as it is.
  static void Redraw();

  // Gives the plot window the keyboard: the arrow keys pan.
  void TakeFocus();

  // While on, each tap is reported under `capture_id`, and CapturedCoordinate tells where it was.
  void CaptureCoordinates(bool on, UINT capture_id);
  [[nodiscard]] bool CapturesCoordinates() const { return captures_; }
  [[nodiscard]] static std::optional<GroundPosition> CapturedCoordinate();

  // The point of a key that the plot window reported; nothing when it is no longer there.
  [[nodiscard]] static std::optional<TappedPoint> PointOf(int key);

 private:
  SurveyEntry entry_;
  bool shown_ = true;
  bool shows_buttons_ = true;
  bool shows_scale_bar_ = false;
  bool captures_ = false;
  UINT capture_id_ = 0;
};

}  // namespace fieldhost
