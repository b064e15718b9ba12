// The plot window's settings command.
#include "window/plot_window.h"
#include "window/settings_dialog.h"

namespace tavix {

void CPlotWnd::OnSettings() {
  LegendTable& legend = links_.legend->Table();
  PlotSettings settings{draws_lines_, legend.RotationStep(), ratio_};
  EnableWindow(FALSE);
  SettingsDialog dialog(GetParent(), legend, settings);
  const INT_PTR result = dialog.DoModal();
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

}  // namespace tavix
