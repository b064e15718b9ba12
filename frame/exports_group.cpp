// Exported calls on the one-bit picture.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::CPlotWnd;
using tavix::Slots;

namespace {

CPlotWnd* Window() { return Slots().Current().window.get(); }

}  // namespace

int Tavix_GrpStt(int height, int width) {
  CPlotWnd* window = Window();
  return window ? window->BuildGroup(height, width) : -1;
}

int Tavix_GrpGet(int row, int column, int* ink) {
  const CPlotWnd* window = Window();
  if (!window || !tavix::CanWrite(ink)) return -1;
  *ink = window->IsGroupInk(row, column) ? 1 : 0;
  return 0;
}

int Tavix_GrpEnd() {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->ReleaseGroup();
  return 0;
}
