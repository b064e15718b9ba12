#include "host/plot/plot_legends.h"

#include <cstddef>

#include "host/app/display_text.h"
#include "host/plot/plot_instance.h"
#include "host/plot/survey_symbols.h"

namespace fieldhost {
namespace {

// A built-in legend has the mark of its own number until it is changed. From this one on no symbol
// has the mark that its legend begins with: a legend with the symbol's mark was the host's in an
// earlier run and may hold what the user has chosen.
constexpr std::size_t kFirstLegend = 4;

short NumberOf(std::size_t symbol) { return static_cast<short>(kFirstLegend + symbol); }

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

Legend LegendOf(const PointSymbol& symbol) {
  return {symbol.mark,      symbol.pen_width,    static_cast<int>(symbol.color),
          symbol.mark_size, symbol.label_height, 0};
}

}  // namespace

void PreparePointLegends() {
  short number = NumberOf(0);
  for (const PointSymbol& symbol : PointSymbols()) {
    if (Read(number).mark != symbol.mark) Write(number, LegendOf(symbol));
    Tavix_PntHanTtl(number, WideOf(symbol.title));
    ++number;
  }
}

short PointLegend(std::string_view kind) { return NumberOf(PointSymbolOf(kind)); }

void CopyPointLegends(int from_slot) {
  for (std::size_t symbol = 0; symbol < PointSymbols().size(); ++symbol) {
    const Legend legend = [&] {
      const CurrentSlot from(from_slot);
      return Read(NumberOf(symbol));
    }();
    Write(NumberOf(symbol), legend);
  }
}

PlanLegends AddPlanLegends() {
  constexpr int kDiagonalCross = 3;
  constexpr int kMarkSize = 7;
  constexpr int kSolidLine = 101;
  PlanLegends legends;
  for (const LineSymbol& symbol : LineSymbols()) {
    Tavix_AddLinHan(symbol.style, symbol.dash, symbol.gap, 0, symbol.pen_width,
                    static_cast<int>(symbol.color), &legends.lines[symbol.kind]);
  }
  Tavix_AddPntHan(kDiagonalCross, 2, static_cast<int>(RGB(255, 96, 0)), kMarkSize, 0, 0,
                  &legends.work_mark);
  // Wider than the sides of parcels, which it often runs along.
  Tavix_AddLinHan(kSolidLine, 0, 0, 0, 2, static_cast<int>(RGB(192, 0, 128)),
                  &legends.drawn_figure);
  return legends;
}

}  // namespace fieldhost
