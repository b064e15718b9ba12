#include "window/one_bit_plot.h"

#include "draw/group_picture.h"
#include "window/plot_display.h"

namespace tavix {

OneBitPlot::OneBitPlot(PlotDisplay& display)
    : display_(display), picture_(std::make_unique<GroupPicture>()) {}

OneBitPlot::~OneBitPlot() = default;

int OneBitPlot::Build(int height, int width) {
  picture_->Release();
  if (GroupPicture::IsTooLarge(height, width)) return -1;
  PlanScene& plan = display_.Plan();
  DrawWhatCanBe(
      [&] { BeepIfCut(picture_->Build(plan.Data(), plan.Frame().Sheet(), height, width)); });
  return 0;
}

bool OneBitPlot::IsInk(int row, int column) const {
  return picture_->IsInk(display_.Plan().Frame().Sheet(), row, column);
}

void OneBitPlot::Release() { picture_->Release(); }

}  // namespace tavix
