// Exported calls on the one-bit picture.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "window/one_bit_plot.h"
#include "window/plot_window.h"

using tavix::CPlotWnd;
using tavix::OnWindow;

int Tavix_GrpStt(int height, int width) {
  return OnWindow([=](CPlotWnd& window) { return window.OneBit().Build(height, width); });
}

int Tavix_GrpGet(int row, int column, int* ink) {
  return OnWindow([=](CPlotWnd& window) {
    if (!tavix::CanWrite(ink)) return tavix::kRefused;
    *ink = window.OneBit().IsInk(row, column) ? 1 : 0;
    return 0;
  });
}

int Tavix_GrpEnd() {
  return OnWindow([](CPlotWnd& window) {
    window.OneBit().Release();
    return 0;
  });
}
