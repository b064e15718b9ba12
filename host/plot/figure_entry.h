// Enters lines of a survey as figures of the current plot instance.
#pragma once

#include <cstddef>

#include "host/survey/survey.h"

namespace fieldhost {

// Enters all elements under one figure number, with a line legend. Returns how many elements the
// library refused.
[[nodiscard]] std::size_t EnterFigure(const SurveyLine& line, int figure, short legend);

}  // namespace fieldhost
