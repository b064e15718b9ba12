// The plan inside the main window: a view of the document on one instance of the library.
#pragma once

#include <afxwin.h>

#include <optional>

#include "host/plot/survey_entry.h"
#include "host/survey/ground_geometry.h"
#include "host/survey/survey_document.h"

namespace fieldhost {

// Holds slot 0, which is the current one, from construction to destruction.
class PlotPane : private SurveyView {
 public:
  // The document, which must outlive the pane, is empty.
  explicit PlotPane(SurveyDocument& document);
  ~PlotPane();
  PlotPane(const PlotPane&) = delete;
  PlotPane& operator=(const PlotPane&) = delete;

  // Puts the plot window into a rectangle of the parent's client area. The plot window keeps the
  // size it is made with, so this makes another one; data and view are the instance's and stay.
  // False when the window could not be made.
  bool Place(CWnd& parent, const CRect& rect, UINT notify_id);

  // Redraws and shows the plot window, or hides it; the view, marks and modes stay.
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

  // While on, each tap is reported under `capture_id`, and CapturedCoordinate returns its position.
  void CaptureCoordinates(bool on, UINT capture_id);
  [[nodiscard]] bool CapturesCoordinates() const { return captures_; }
  [[nodiscard]] static std::optional<GroundPosition> CapturedCoordinate();

  // The legend of a position that a tool works on.
  [[nodiscard]] short WorkMarkLegend() const { return entry_.Legends().work_mark; }

 private:
  // Makes the instance before the entry adds its legends.
  struct Instance {
    Instance();
    ~Instance();
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;
  };

  void SurveyAdded(const SurveyAddition& addition) override;
  void SurveyCleared() override;
  void PointMoved(int key) override;
  void FigureDrawn(const DrawnFigure& figure) override;
  void FigureDeleted(int number) override;

  SurveyDocument& document_;
  Instance instance_;
  SurveyEntry entry_{document_};
  bool shown_ = true;
  bool shows_buttons_ = true;
  bool shows_scale_bar_ = false;
  bool captures_ = false;
  UINT capture_id_ = 0;
};

}  // namespace fieldhost
