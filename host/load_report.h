// What the user is told about a load.
#pragma once

#include <cstddef>
#include <string>

#include "host/readers/read_log.h"
#include "host/survey_loader.h"

namespace fieldhost {

struct SurveyCounts {
  std::size_t points = 0;
  std::size_t lots = 0;
  std::size_t skipped_lines = 0;

  SurveyCounts& operator+=(const SurveyCounts& other);
};

[[nodiscard]] SurveyCounts CountsOf(const LoadedSurvey& loaded);

// "610 points, 1 lot, 2 lines skipped"; lots and lines only where there are any.
[[nodiscard]] std::string Summary(const SurveyCounts& counts);

// "site.csv, line 12: the northing 'abc' is not a number."
[[nodiscard]] std::string Sentence(const Diagnostic& diagnostic);

// All that went wrong, a sentence a line: the refused files, then skipped lines, of which at most
// so many are told one by one. Empty when all went well.
[[nodiscard]] std::string Complaints(const LoadedSurvey& loaded, std::size_t most_lines);

}  // namespace fieldhost
