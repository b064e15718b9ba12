// Exported calls that move a point over the plot.
#include <tavix/tavix.h>

#include "frame/slot_table.h"

using tavix::CPlotWnd;
using tavix::Slots;
using tavix::TavixSlot;

namespace {

CPlotWnd* Window() { return Slots().Current().window.get(); }

}  // namespace

int Tavix_MvPntStt(int legend) {
  const TavixSlot& slot = Slots().Current();
  tavix::HanRec entry;
  const auto number = static_cast<short>(legend);
  if (!slot.window || !slot.legend || number != legend ||
      slot.legend->Table().Get(number, &entry) != 0) {
    return -1;
  }
  if (!entry.is_point) return -2;
  slot.window->StartMovePoint(entry.style);
  return 0;
}

int Tavix_MvPntRub(double X, double Y) {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->SetMoveAnchor({X, Y});
  return 0;
}

int Tavix_MvPntMov(double X, double Y) {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->MovePointTo({X, Y});
  return 0;
}

int Tavix_MvPntEnd() {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->EndMovePoint();
  return 0;
}
