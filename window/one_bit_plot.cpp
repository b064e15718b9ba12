#include "window/one_bit_plot.h"

#include "window/plot_display.h"

namespace tavix {

OneBitPlot::OneBitPlot(PlotDisplay& display)
    : display_(display), frame_(display.Plan().Frame().Sheet()) {}

int OneBitPlot::Build(int height, int width) {
  picture_.Release();
  if (GroupPicture::IsTooLarge(height, width)) return -1;
  DrawWhatCanBe([&] { BeepIfCut(picture_.Build(display_.Plan().Data(), frame_, height, width)); });
  return 0;
}

}  // namespace tavix
