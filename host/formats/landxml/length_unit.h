// Units of length by their names.
#pragma once

#include <optional>
#include <string_view>

namespace fieldhost {

// Metres in one unit, by the names that LandXML and its writers use; upper and lower case
// are the same. Nothing for an unknown name.
[[nodiscard]] std::optional<double> MetresIn(std::string_view unit);

}  // namespace fieldhost
