#include "host/plot/tool_legends.h"

#include <tavix/tavix.h>

namespace fieldhost {

ToolLegends AddToolLegends() {
  constexpr int kDiagonalCross = 3;
  constexpr int kMarkSize = 7;
  constexpr int kSolidLine = 101;
  ToolLegends legends;
  Tavix_AddPntHan(kDiagonalCross, 2, static_cast<int>(RGB(255, 96, 0)), kMarkSize, 0, 0,
                  &legends.mark);
  // Wider than the sides of lots, which it often runs along.
  Tavix_AddLinHan(kSolidLine, 0, 0, 0, 2, static_cast<int>(RGB(192, 0, 128)), &legends.line);
  return legends;
}

}  // namespace fieldhost
