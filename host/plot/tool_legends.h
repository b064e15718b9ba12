// The looks of what tools draw.
#pragma once

namespace fieldhost {

struct ToolLegends {
  short mark = 0;  // of a position under work
  short line = 0;  // of figures
};

// Adds them to the current instance, which must exist; it keeps them to its end.
[[nodiscard]] ToolLegends AddToolLegends();

}  // namespace fieldhost
