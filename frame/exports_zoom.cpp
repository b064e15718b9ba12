// Exported calls that zoom and pan.
#include <tavix/tavix.h>

#include "frame/slot_table.h"

using tavix::CPlotWnd;
using tavix::Slots;

namespace {

int ZoomTo(tavix::GroundSize size, tavix::GroundPoint centre) {
  CPlotWnd* window = Slots().Current().window.get();
  return window ? window->ZoomTo(size, centre) : -1;
}

}  // namespace

int Tavix_Zom(double X1, double Y1, double X2, double Y2) {
  return ZoomTo({Y2 - Y1, X2 - X1}, {(X1 + X2) * 0.5, (Y1 + Y2) * 0.5});
}

int Tavix_Zom1(double X, double Y, double radius) {
  return ZoomTo({radius * 2.0, radius * 2.0}, {X, Y});
}

int Tavix_Pan(double X, double Y) {
  CPlotWnd* window = Slots().Current().window.get();
  return window ? window->PanTo({X, Y}) : -1;
}

int Tavix_Mov() { return 0; }
