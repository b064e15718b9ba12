// The host's symbols as legends of a plot instance. All work on the current instance, which must
// exist.
#pragma once

#include <map>
#include <string_view>

#include "host/survey/survey.h"

namespace fieldhost {

// Gives the built-in legends that the host uses its own titles, and its symbols except where the
// user has changed one: built-in legends appear in the settings and are saved.
void PreparePointLegends();

// The number of the legend for points of this kind.
[[nodiscard]] short PointLegend(std::string_view kind);

// Copies the points' legends as they are in another slot.
void CopyPointLegends(int from_slot);

// Legends of the plan, added when it is made; the instance keeps them to its end.
struct PlanLegends {
  std::map<LineKind, short> lines;
  short drawn_figure = 0;
  short work_mark = 0;  // of a position that a tool works on
};

[[nodiscard]] PlanLegends AddPlanLegends();

}  // namespace fieldhost
