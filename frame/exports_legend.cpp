// Exported calls on the legend.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::HanRec;
using tavix::LegendTable;
using tavix::Slots;

namespace {

// The current instance's legend, or null.
LegendTable* Legend() {
  const auto& legend = Slots().Current().legend;
  return legend ? &legend->Table() : nullptr;
}

int Add(bool is_point, const tavix::LegendStyle& style, short* number) {
  LegendTable* legend = Legend();
  return legend && tavix::CanWrite(number) ? legend->Add(is_point, style, number) : -1;
}

int Change(short number, bool is_point, const tavix::LegendStyle& style) {
  LegendTable* legend = Legend();
  return legend ? legend->Change(number, is_point, style) : -1;
}

int Get(short number, HanRec& entry) {
  const LegendTable* legend = Legend();
  return legend ? legend->Get(number, &entry) : -1;
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
  if (!tavix::CanWrite(kind, width, color, prm1, prm2, prm3) || Get(number, entry) != 0) return -1;
  *kind = entry.style.kind;
  *width = entry.style.width;
  *color = entry.style.color;
  *prm1 = entry.style.prm1;
  *prm2 = entry.style.prm2;
  *prm3 = entry.style.prm3;
  return 0;
}

int Tavix_SelPntHan(short number) {
  Slots().Current().selected_point_legend = number;
  return 0;
}

int Tavix_PntHanTtl(short number, CString title) {
  LegendTable* legend = Legend();
  return legend ? legend->SetTitle(number, tavix::ToNameView(title)) : -1;
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
  if (!tavix::CanWrite(kind, prm1, prm2, prm3, width, color) || Get(number, entry) != 0) return -1;
  *kind = entry.style.kind;
  *prm1 = static_cast<short>(entry.style.prm1);
  *prm2 = static_cast<short>(entry.style.prm2);
  *prm3 = static_cast<short>(entry.style.prm3);
  *width = entry.style.width;
  *color = entry.style.color;
  return 0;
}

int Tavix_SelLinHan(short number) {
  Slots().Current().selected_line_legend = number;
  return 0;
}
