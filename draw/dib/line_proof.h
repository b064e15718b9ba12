// How the system draws lines, found out from its own drawing.
#pragma once

#include <optional>

#include "draw/dib/line_rule.h"

namespace tavix {

// The system's rule; none where it does not draw solid lines of one pixel by such a rule.
[[nodiscard]] std::optional<LineRule> LearnLineRule();

// Whether lines stepped by `rule` are the system's, pixel for pixel: short ones of every slope, and
// long ones that the picture's edges cut.
[[nodiscard]] bool IsSystemsLineRule(const LineRule& rule);

}  // namespace tavix
