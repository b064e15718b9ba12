// The tab strip above the plot: plan or 3-D side view.
#pragma once

#include <afxwin.h>

namespace fieldhost {

enum class PlotView { kPlan, kSide };

// The common tab control. It notifies its parent of a choice (WM_NOTIFY, TCN_SELCHANGE) and never
// takes the keyboard from the plot.
class ViewTabs : public CWnd {
 public:
  static constexpr int kHeight = 21;  // pixels, the plot's own buttons being 20

  // FALSE when the strip could not be made.
  BOOL Create(CWnd& parent, UINT id, CFont& font);

  [[nodiscard]] PlotView Selected() const;
  // Does not notify.
  void Select(PlotView view);
};

}  // namespace fieldhost
