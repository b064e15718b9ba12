// Exported calls on the legend.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"
#include "store/legend_table.h"

using tavix::HanRec;
using tavix::Instance;
using tavix::LegendStyle;
using tavix::OnInstance;
using tavix::Slots;

namespace {

int Add(bool is_point, const LegendStyle& style, short* number) {
  return OnInstance([&](Instance& instance) {
    return tavix::CanWrite(number) ? instance.Legend().Add(is_point, style, number)
                                   : tavix::kRefused;
  });
}

int Change(short number, bool is_point, const LegendStyle& style) {
  return OnInstance(
      [&](Instance& instance) { return instance.Legend().Change(number, is_point, style); });
}

int Get(short number, HanRec& entry) {
  return OnInstance([&](Instance& instance) { return instance.Legend().Get(number, &entry); });
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
  HanRec entry;
  if (!tavix::CanWrite(kind, width, color, prm1, prm2, prm3) || Get(number, entry) != 0) {
    return tavix::kRefused;
  }
  *kind = entry.style.kind;
  *width = entry.style.width;
  *color = entry.style.color;
  *prm1 = entry.style.prm1;
  *prm2 = entry.style.prm2;
  *prm3 = entry.style.prm3;
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
  HanRec entry;
  if (!tavix::CanWrite(kind, prm1, prm2, prm3, width, color) || Get(number, entry) != 0) {
    return tavix::kRefused;
  }
  *kind = entry.style.kind;
  *prm1 = static_cast<short>(entry.style.prm1);
  *prm2 = static_cast<short>(entry.style.prm2);
  *prm3 = static_cast<short>(entry.style.prm3);
  *width = entry.style.width;
  *color = entry.style.color;
  return 0;
}

int Tavix_SelLinHan(short number) {
  if (Instance* instance = Slots().Current()) instance->SelectLineLegend(number);
  return 0;
}
