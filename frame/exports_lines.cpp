// Exported calls on lines.
#include <tavix/tavix.h>

#include "frame/slot_table.h"
#include "store/line_index.h"

using tavix::ChangeInstance;
using tavix::Instance;
using tavix::LineKeys;
using tavix::OnInstance;

int Tavix_EntLin(int keyA, int keyB) {
  return OnInstance(
      [=](Instance& instance) { return instance.EnterLine(LineKeys::Of(keyA, keyB)); });
}

int Tavix_ChgLinHid(int keyA, int keyB, short legend) {
  return OnInstance([=](Instance& instance) {
    return instance.ChangeLineLegend(LineKeys::Of(keyA, keyB), legend);
  });
}

int Tavix_DelEntLin(int keyA, int keyB) {
  return ChangeInstance(
      [=](Instance& instance) { return instance.RemoveLine(LineKeys::Of(keyA, keyB)); });
}

int Tavix_ClrEntLin() {
  return ChangeInstance([](Instance& instance) { return instance.ClearLines(); });
}
