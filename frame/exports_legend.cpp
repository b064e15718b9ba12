// Exported calls on the legend.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "store/legend_table.h"

using tavix::ChangeInstance;
using tavix::Instance;
using tavix::LegendValues;
using tavix::OnInstance;
using tavix::Slots;

namespace {

int Add(bool is_point, const LegendValues& values, short* number) {
  return ChangeInstance([&](Instance& instance) {
    return tavix::CanWrite(number) ? instance.Legend().Add(is_point, values, number)
                                   : tavix::kRefused;
  });
}

int Change(short number, bool is_point, const LegendValues& values) {
  return ChangeInstance(
      [&](Instance& instance) { return instance.Legend().Change(number, is_point, values); });
}

int Get(short number, LegendValues& values) {
  return OnInstance([&](Instance& instance) {
    const tavix::HanRec* entry = instance.Legend().Find(number);
    if (!entry) return tavix::kRefused;
    values = entry->values;
    return 0;
  });
}

}  // namespace

int Tavix_AddPntHan(int kind, int width, int color, int prm1, int prm2, int prm3, short* number) {
  return Add(true, {kind, prm1, prm2, prm3, width, color}, number);
}

int Tavix_ChgPntHan(short number, int kind, int width, int color, int prm1, int prm2, int prm3) {
  return Change(number, true, {kind, prm1, prm2, prm3, width, color});
}

int Tavix_GetPntHan(short number, int* kind, int* width, int* color, int* prm1, int* prm2,
                    int* prm3) {
  LegendValues values;
  if (!tavix::CanWrite(kind, width, color, prm1, prm2, prm3) || Get(number, values) != 0) {
    return tavix::kRefused;
  }
  *kind = values.kind;
  *width = values.width;
  *color = values.color;
  *prm1 = values.prm1;
  *prm2 = values.prm2;
  *prm3 = values.prm3;
  return 0;
}

int Tavix_SelPntHan(short number) {
  if (Instance* instance = Slots().Current()) instance->SelectPointLegend(number);
  return 0;
}

int Tavix_PntHanTtl(short number, CString title) {
  return OnInstance([&](Instance& instance) {
    return instance.Legend().SetTitle(number, tavix::ToNameView(title));
  });
}

int Tavix_AddLinHan(int kind, short prm1, short prm2, short prm3, int width, int color,
                    short* number) {
  return Add(false, {kind, prm1, prm2, prm3, width, color}, number);
}

int Tavix_ChgLinHan(short number, int kind, short prm1, short prm2, short prm3, int width,
                    int color) {
  return Change(number, false, {kind, prm1, prm2, prm3, width, color});
}

int Tavix_GetLinHan(short number, int* kind, short* prm1, short* prm2, short* prm3, int* width,
                    int* color) {
  LegendValues values;
  if (!tavix::CanWrite(kind, prm1, prm2, prm3, width, color) || Get(number, values) != 0) {
    return tavix::kRefused;
  }
  *kind = values.kind;
  *prm1 = static_cast<short>(values.prm1);
  *prm2 = static_cast<short>(values.prm2);
  *prm3 = static_cast<short>(values.prm3);
  *width = values.width;
  *color = values.color;
  return 0;
}

int Tavix_SelLinHan(short number) {
  if (Instance* instance = Slots().Current()) instance->SelectLineLegend(number);
  return 0;
}
