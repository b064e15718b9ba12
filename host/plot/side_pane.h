// The 3-D side view inside the main window: an instance of the library beside that of the plan, so
// that turning to it and back leaves the plan's view, marks and modes alone.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/plot/side_fit.h"
#include "host/survey/ground_position.h"
#include "host/survey/height_range.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Holds slot 1 from construction to destruction; the slot that is current stays so. Made after the
// plan's pane, and gone before it.
class SidePane {
 public:
  SidePane();
  ~SidePane();
  SidePane(const SidePane&) = delete;
  SidePane& operator=(const SidePane&) = delete;

  // Says where in the parent's client area the view stands. Its window is made when it is first
  // shown, and made anew for another place; it then shows all points again, for the height base
  // goes with the old window.
  void SetPlace(CWnd& parent, const CRect& rect);

  // Enters those points of a survey that have a height. Their keys are those of the plan.
  void Add(const Survey& survey);
  // Moves a point in plan; its height stays. Nothing for a point without height.
  void MovePoint(int key, const GroundPosition& place);
  void Clear();
  [[nodiscard]] const HeightRange& Heights() const { return heights_; }

  // Shows the view: all points at first and after a change of the data, else as it was left. The
  // points look as in the plan; after Hide the plan's look as here, should the user have changed
  // it. False when the window could not be made.
  bool Show();
  void Hide();
  [[nodiscard]] bool IsShown() const { return shown_; }

  void ShowWholeView();
  void ShowButtons(bool show);
  void TakeFocus();

 private:
  bool MakeWindow();
  void Fit();
  void KeepLook();
  [[nodiscard]] std::vector<HighPoint> Points() const;

  CWnd* parent_ = nullptr;
  CRect place_;
  HeightRange heights_;
  std::vector<short> legends_;  // of the points, by key from 1
  bool shown_ = false;
  bool shows_buttons_ = true;
  bool needs_window_ = true;
  bool needs_fit_ = true;
};

}  // namespace fieldhost
