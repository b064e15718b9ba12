// Exported calls on the traced polyline.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::CPlotWnd;
using tavix::Slots;

namespace {

CPlotWnd* Window() { return Slots().Current().window.get(); }

int End() {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->EndTraced();
  return 0;
}

}  // namespace

int Tavix_VoStt() { return End(); }

int Tavix_VoAdd(double X, double Y) {
  CPlotWnd* window = Window();
  if (!window) return -1;
  window->AddTraced({X, Y});
  return 0;
}

int Tavix_VoDel() {
  CPlotWnd* window = Window();
  return window && window->RemoveTraced() ? 0 : -1;
}

int Tavix_VoGet(int* count) {
  const CPlotWnd* window = Window();
  if (!window || !tavix::CanWrite(count)) return -1;
  *count = static_cast<int>(window->Traced().size());
  return 0;
}

int Tavix_VoLst(double* X, double* Y) {
  const CPlotWnd* window = Window();
  if (!window) return -1;
  if (!window->Traced().empty() && !tavix::CanWrite(X, Y)) return -1;
  for (const tavix::GroundPoint vertex : window->Traced()) {
    *X++ = vertex.x;
    *Y++ = vertex.y;
  }
  return 0;
}

int Tavix_VoIdx(int index, double* X, double* Y) {
  const CPlotWnd* window = Window();
  if (!window || !tavix::CanWrite(X, Y) || index < 0 ||
      index >= static_cast<int>(window->Traced().size()))
    return -1;
  const tavix::GroundPoint vertex = window->Traced()[static_cast<std::size_t>(index)];
  *X = vertex.x;
  *Y = vertex.y;
  return 0;
}

int Tavix_VoEnd() { return End(); }
