// Exported calls on what is in view and what the user has tapped.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "view/in_view.h"

using tavix::Slots;
using tavix::TavixSlot;

int Tavix_ChkCrd(double X, double Y, int* visible) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.view || !tavix::CanWrite(visible)) return -1;
  *visible = tavix::IsPointInView(*slot.view, {X, Y}) ? 1 : 0;
  return 0;
}

int Tavix_ChkCir(double X, double Y, double radius, int* visible) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.view || !tavix::CanWrite(visible)) return -1;
  *visible = tavix::IsCircleInView(*slot.view, {X, Y}, radius) ? 1 : 0;
  return 0;
}

int Tavix_GetLstPicCrd(int* x, int* y) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.window || !tavix::CanWrite(x, y)) return -1;
  const tavix::ScreenPoint tap = slot.window->LastTap();
  *x = tap.x;
  *y = tap.y;
  return tap.y;
}

int Tavix_CrdStt(int command) {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  slot.window->Capture().Start(command);
  return 0;
}

int Tavix_CrdGet(double* X, double* Y) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.window || !tavix::CanWrite(X, Y)) return -1;
  const auto& captured = slot.window->Capture().Captured();
  if (!captured) return -1;
  *X = captured->x;
  *Y = captured->y;
  return 0;
}

int Tavix_CrdEnd() {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  slot.window->Capture().End();
  return 0;
}
