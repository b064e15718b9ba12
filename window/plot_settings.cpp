// The plot window's settings command.
#include <algorithm>
#include <utility>

#include "window/plot_window.h"
#include "window/settings/settings_dialog.h"

namespace tavix {

void CPlotWnd::OnSettings() {
  LegendTable& legend = links_.legend->Table();
  PlotSettings settings{draws_lines_, legend.RotationStep(), ratio_};
  SettingsDialog dialog(GetParent(), legend, settings);
  open_settings_.push_back(&dialog);
  EnableWindow(FALSE);
  const INT_PTR result = dialog.DoModal();
  if (dialog.IsAbandoned()) return;  // nothing of this window is left, nor perhaps of the instance
  open_settings_.pop_back();
  EnableWindow(TRUE);
  // Whatever the dialog's copy holds goes back, on Cancel too: it has not changed then.
  legend.SetRotationStep(settings.rotation_step);
  if (result != IDOK) return;

  draws_lines_ = settings.draws_lines;
  const bool same_ratio =
      settings.ratio.vertical == ratio_.vertical && settings.ratio.horizontal == ratio_.horizontal;
  if (ratio_.given && !same_ratio) {
    SetRatio(settings.ratio.vertical, settings.ratio.horizontal);
    TakePlanStale();  // the plan's flags, whichever view is shown
    FitView();
  }
  ViewChanged();
}

// A host can call from a timer while the dialog's loop runs.
void CPlotWnd::AbandonSettings() {
  const auto open = std::exchange(open_settings_, {});
  std::for_each(open.rbegin(), open.rend(), [](SettingsDialog* dialog) { dialog->Abandon(); });
}

}  // namespace tavix
