// Exported calls on lines.
#include <tavix/tavix.h>

#include "frame/line_calls.h"

using tavix::LineKeys;
using tavix::Slots;
using tavix::TavixSlot;

int Tavix_EntLin(int keyA, int keyB) {
  TavixSlot& slot = Slots().Current();
  return slot.lines ? tavix::EnterLine(slot, LineKeys::Of(keyA, keyB)) : -1;
}

int Tavix_ChgLinHid(int keyA, int keyB, short legend) {
  TavixSlot& slot = Slots().Current();
  return slot.lines ? tavix::ChangeLineLegend(slot, LineKeys::Of(keyA, keyB), legend) : -1;
}

int Tavix_DelEntLin(int keyA, int keyB) {
  TavixSlot& slot = Slots().Current();
  return slot.lines ? slot.lines->Remove(LineKeys::Of(keyA, keyB)) : -1;
}

int Tavix_ClrEntLin() {
  TavixSlot& slot = Slots().Current();
  return slot.lines ? slot.lines->Clear() : -1;
}
