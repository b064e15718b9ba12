// The looks of points as legends of a plot instance.
//
// They take the place of built-in legends, which have titles in the settings and are saved: what
// the user changes there is still so the next time.
#pragma once

#include <string_view>

namespace fieldhost {

// Gives the current instance a legend for each look, but where the user has changed one.
void PreparePointLegends();

// The number of the legend for points of this kind.
[[nodiscard]] short PointLegend(std::string_view kind);

// Gives the current instance the looks that another slot's has now.
void CopyPointLegends(int from_slot);

}  // namespace fieldhost
