// Exported calls on the view: angle and ratio.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::Slots;
using tavix::TavixSlot;

int Tavix_SetAng(int degrees) {
  TavixSlot& slot = Slots().Current();
  return slot.view ? slot.view->SetAngle(degrees) : -1;
}

int Tavix_GetAng(int* degrees) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.view || !tavix::CanWrite(degrees)) return -1;
  *degrees = slot.view->Angle();
  return 0;
}

int Tavix_SetTatYok(int tate, int yoko) {
  TavixSlot& slot = Slots().Current();
  if (!slot.window) return -1;
  slot.window->SetRatio(tate, yoko);
  return 0;
}

int Tavix_GetTatYok(int* tate, int* yoko) {
  const TavixSlot& slot = Slots().Current();
  if (!slot.window || !tavix::CanWrite(tate, yoko)) return -1;
  const tavix::RatioSetting& ratio = slot.window->Ratio();
  *tate = ratio.vertical;
  *yoko = ratio.horizontal;
  return ratio.given ? 0 : -1;
}
