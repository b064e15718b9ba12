// Coordinates and heights as files write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/formats/field_text.h"

namespace fieldhost {

// False past 100,000 km.
[[nodiscard]] bool IsOnGround(double metres);

// A coordinate or height in metres. Nothing for text that is no number, and for numbers past
// 100,000 km: no grid on earth reaches so far, and one such slip of a decimal point would shrink
// the rest of the survey to a dot.
[[nodiscard]] std::optional<double> GroundNumber(std::string_view field,
                                                 DecimalMark mark = DecimalMark::kPoint);

// What is wrong with a field that GroundNumber refused.
[[nodiscard]] std::string NoGroundNumber(std::string_view what, std::string_view field,
                                         DecimalMark mark = DecimalMark::kPoint);

}  // namespace fieldhost
