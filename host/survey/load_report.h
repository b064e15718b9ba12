// What the user is told about a load.
#pragma once

#include <cstddef>
#include <string>

#include "host/formats/read_log.h"
#include "host/survey/survey_counts.h"
#include "host/survey/survey_loader.h"

namespace fieldhost {

[[nodiscard]] SurveyCounts CountsOf(const LoadedSurvey& loaded);

// "610 points, 1 lot, 2 lines skipped"; what there is none of is left out, but for the points of a
// survey that has nothing else.
[[nodiscard]] std::string Summary(const SurveyCounts& counts);

// "site.csv, line 12: the northing 'abc' is not a number."
[[nodiscard]] std::string Sentence(const Diagnostic& diagnostic);

// All that went wrong, a sentence a line: the refused files, then skipped lines and elements, of
// which at most so many are told one by one. Empty when all went well.
[[nodiscard]] std::string Complaints(const LoadedSurvey& loaded, std::size_t most_lines);

}  // namespace fieldhost
