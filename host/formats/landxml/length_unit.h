// Units of length by their names.
#pragma once

#include <optional>
#include <string_view>

namespace fieldhost {

// Metres in one unit, by the names that LandXML and its writers use; capitals do not matter.
// Nothing for a name that is not known.
[[nodiscard]] std::optional<double> MetresIn(std::string_view unit);

}  // namespace fieldhost
