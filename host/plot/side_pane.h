// The 3-D side view inside the main window: a view of the document on an instance of its own, so
// that turning to it and back leaves the plan's view, marks and modes alone.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/plot/side_fit.h"
#include "host/survey/ground_geometry.h"
#include "host/survey/survey.h"
#include "host/survey/survey_document.h"

namespace fieldhost {

// Shows those points that have a height. Holds slot 1 from construction to destruction; the slot
// that is current stays so. Made after the plan's pane, and gone before it.
class SidePane : private SurveyView {
 public:
  // The document, which must outlive the pane, is empty.
  explicit SidePane(SurveyDocument& document);
  ~SidePane();
  SidePane(const SidePane&) = delete;
  SidePane& operator=(const SidePane&) = delete;

  // Sets where in the parent's client area the view stands. Its window is made when it is first
  // shown, and made again for another place; it then shows all points again, for the height base
  // goes with the old window.
  void SetPlace(CWnd& parent, const CRect& rect);

  // Shows the view: all points at first and after a change of the data, else as it was left. The
  // points have the plan's legends; Hide takes over into the plan what the user changed of them
  // here. False when the window could not be made.
  bool Show();
  void Hide();
  [[nodiscard]] bool IsShown() const { return shown_; }

  void ShowWholeView();
  void ShowButtons(bool show);
  void TakeFocus();

 private:
  void SurveyAdded(const SurveyAddition& addition) override;
  void SurveyCleared() override;
  void PointMoved(int key) override;

  void Enter(std::size_t point) const;
  bool MakeWindow();
  void Fit();
  void KeepLegends();
  [[nodiscard]] std::vector<HighPoint> Points() const;

  SurveyDocument& document_;
  CWnd* parent_ = nullptr;
  CRect place_;
  bool shown_ = false;
  bool shows_buttons_ = true;
  bool needs_window_ = true;
  bool needs_fit_ = true;
};

}  // namespace fieldhost
