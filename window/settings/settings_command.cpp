#include "window/settings/settings_command.h"

#include <algorithm>
#include <utility>

#include "window/navigation.h"
#include "window/plot_display.h"
#include "window/settings/settings_dialog.h"

namespace tavix {

void SettingsCommand::Run() {
  PlotSettings settings{display_.Plan().DrawsLines(), legend_.RotationStep(), navigation_.Ratio()};
  SettingsDialog dialog(window_.GetParent(), legend_, settings,
                        [this] { display_.FinishRedraw(); });
  open_.push_back(&dialog);
  window_.EnableWindow(FALSE);
  const INT_PTR result = dialog.DoModal();
  if (dialog.IsAbandoned()) return;  // the window is gone, and perhaps the instance
  open_.pop_back();
  window_.EnableWindow(TRUE);
  // On Cancel too: the dialog's copy has not changed then.
  legend_.SetRotationStep(settings.rotation_step);
  if (result != IDOK) return;

  display_.Plan().SetDrawsLines(settings.draws_lines);
  const RatioSetting& ratio = navigation_.Ratio();
  const bool same_ratio =
      settings.ratio.vertical == ratio.vertical && settings.ratio.horizontal == ratio.horizontal;
  if (ratio.given && !same_ratio) {
    navigation_.SetRatio(settings.ratio.vertical, settings.ratio.horizontal);
    display_.Plan().TakeDirty();  // the plan's flags, whichever scene is shown
    display_.Shown().Fit();
  }
  display_.ViewChanged();
}

void SettingsCommand::Abandon() {
  const auto open = std::exchange(open_, {});
  std::for_each(open.rbegin(), open.rend(), [](SettingsDialog* dialog) { dialog->Abandon(); });
}

}  // namespace tavix
