#include "host/plot/point_legends.h"

#include <tavix/tavix.h>

#include <cstddef>

#include "host/app/wide_text.h"
#include "host/plot/current_slot.h"
#include "host/plot/point_look.h"

namespace fieldhost {
namespace {

// The library's mark of each built-in legend has the legend's own number. From this one on, none of
// the looks has the mark that its legend has at first: a legend with the look's mark was ours
// before and may hold what the user wants.
constexpr std::size_t kFirstLegend = 4;

short NumberOf(std::size_t look) { return static_cast<short>(kFirstLegend + look); }

struct Legend {
  int mark = 0;
  int pen_width = 0;
  int color = 0;
  int mark_size = 0;
  int label_height = 0;
  int label_is_number = 0;
};

Legend Read(short number) {
  Legend legend;
  Tavix_GetPntHan(number, &legend.mark, &legend.pen_width, &legend.color, &legend.mark_size,
                  &legend.label_height, &legend.label_is_number);
  return legend;
}

void Write(short number, const Legend& legend) {
  Tavix_ChgPntHan(number, legend.mark, legend.pen_width, legend.color, legend.mark_size,
                  legend.label_height, legend.label_is_number);
}

Legend LegendOf(const PointLook& look) {
  return {look.mark,      look.pen_width,    static_cast<int>(look.color),
          look.mark_size, look.label_height, 0};
}

}  // namespace

void PreparePointLegends() {
  short number = NumberOf(0);
  for (const PointLook& look : PointLooks()) {
    if (Read(number).mark != look.mark) Write(number, LegendOf(look));
    Tavix_PntHanTtl(number, WideOf(look.title));
    ++number;
  }
}

short PointLegend(std::string_view kind) { return NumberOf(LookOf(kind)); }

void CopyPointLegends(int from_slot) {
  for (std::size_t look = 0; look < PointLooks().size(); ++look) {
    const Legend legend = [&] {
      const CurrentSlot from(from_slot);
      return Read(NumberOf(look));
    }();
    Write(NumberOf(look), legend);
  }
}

}  // namespace fieldhost
